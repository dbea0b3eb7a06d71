// Walls of the first levels as bars, and the change from bars to lines.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "game/partita.h"
#include "platform/image.h"
#include "platform/picture_box.h"

namespace trameli {
namespace {

class Barre : public testing::Test {
protected:
    /// Opens the level; the user wants bars unless `linee`.
    Tavolo Apri(int livello, bool linee = false) {
        const FileUtente file = FileUtente().Con(RigaLinee, linee ? "True" : "False");
        disco_.Scrivi("_predefinito", file);
        return Tavolo(partita_.ApriLivello(livello),
                      MisureLivelli.at(static_cast<std::size_t>(livello)), file);
    }
    static PictureBox& Barra(const Tavolo& tavolo, int indice) {
        return Trova<PictureBox>(tavolo.Form_, "PictureMuri", indice);
    }
    /// The places of the bars; all of them are to be seen, and show the picture of the first one,
    /// which is not.
    static std::vector<Bounds> Posti(const Tavolo& tavolo) {
        EXPECT_FALSE(WidgetOf(Barra(tavolo, 0)).isVisible());
        std::vector<Bounds> posti;
        for (const Control* control : tavolo.Form_.Controls()) {
            if (control->Name() == "PictureMuri" && control->Index() != 0) {
                const auto& barra = dynamic_cast<const PictureBox&>(*control);
                EXPECT_TRUE(WidgetOf(barra).isVisible());
                EXPECT_EQ(barra.Picture(), Barra(tavolo, 0).Picture());
                posti.push_back(barra.Place());
            }
        }
        return posti;
    }
    static void Cambia(const Tavolo& tavolo) { Partita::Scegli(tavolo.Form_, "mnuLineeMuri"); }

    Disco disco_;
    Partita partita_{disco_, {800, 600}, 3};
};

TEST_F(Barre, CoverTheWallsOfTheMazeAndNothingElse) {
    const Tavolo tavolo = Apri(3);
    const Vista barre = tavolo.Guarda();
    Cambia(tavolo);
    const MuriVisti muri = tavolo.Muri();
    std::size_t quanti = 0;
    for (int r = 1; r <= muri.Righe(); ++r) {
        for (int c = 1; c <= muri.Colonne(); ++c) {
            for (int lato = 0; lato < 4; ++lato) {
                const Posto posto{r, c, lato};
                const QRgb colore = barre.Muro(posto);
                const bool libero =
                    colore == tavolo.Colore(RigaSfondo) || colore == tavolo.Colore(RigaSimbolo);
                EXPECT_EQ(libero, !muri.Ha(posto)) << r << ", " << c << " side " << lato;
                // An inner wall counts once, for the cell above it or left of it.
                const bool conta = (lato != Su || r == 1) && (lato != AllaSinistra || c == 1);
                quanti += conta && muri.Ha(posto) ? 1 : 0;
            }
        }
    }
    Cambia(tavolo);
    EXPECT_EQ(Posti(tavolo).size(), quanti);
}

TEST_F(Barre, StandInTheSamePlacesHoweverOftenTheMazeIsDrawn) {
    const Tavolo tavolo = Apri(4);
    const auto posti = Posti(tavolo);
    const QImage prima = tavolo.Guarda().Immagine();
    const auto pareti = [&] {
        return MacchiaDi(tavolo.Guarda().Immagine(), tavolo.Colore(RigaPareti)).Quanti;
    };
    Cambia(tavolo);
    EXPECT_TRUE(Posti(tavolo).empty());
    EXPECT_GT(pareti(), 1000);
    EXPECT_FALSE(partita_.Gioco.Stato().LineeNeiPrimiLivelli);  // the change is this window's
    Cambia(tavolo);
    EXPECT_EQ(tavolo.Guarda().Immagine(), prima);
    EXPECT_EQ(pareti(), 0);
    for (const char* voce : {"mnuRicomincia", "mnuLinee", "mnuColora", "mnuRicomincia"}) {
        EXPECT_EQ(Posti(tavolo), posti) << voce;
        Partita::Scegli(tavolo.Form_, voce);
    }
    EXPECT_EQ(Posti(tavolo), posti);
}

TEST_F(Barre, MazesComeWithOneOfFourPictures) {
    const Tavolo tavolo = Apri(2);
    std::set<std::string> visti;
    for (int i = 0; i < 24; ++i) {
        const std::string nome = Barra(tavolo, 1).Picture().Name;
        visti.insert(nome);
        Partita::Scegli(tavolo.Form_, "mnuRicomincia");
        EXPECT_EQ(Barra(tavolo, 1).Picture().Name, nome);
        Partita::Scegli(tavolo.Form_, "mnuNuovo");
    }
    EXPECT_EQ(visti,
              (std::set<std::string>{"muri/0.svg", "muri/1.svg", "muri/2.svg", "muri/3.svg"}));
}

TEST_F(Barre, CoverWhatIsDrawnAndTheFinish) {
    const Tavolo tavolo = Apri(0);
    const PictureBox& barra = Barra(tavolo, 5);
    const auto centro = [&] {
        const QImage vista = tavolo.Guarda().Immagine();
        return vista.pixel(WidgetOf(barra).geometry().center() * vista.devicePixelRatio());
    };
    const QRgb prima = centro();
    Trova<Image>(tavolo.Form_, "Image2").Place(barra.Place());
    const auto& [sinistra, alto, larga, alta] = barra.Place();
    Trova<PictureBox>(tavolo.Form_, "pictureTramelo")
        .FillBox(sinistra, alto, sinistra + larga, alto + alta, Rgb(255, 0, 255));
    EXPECT_EQ(centro(), prima);
}

TEST_F(Barre, WithLinesThereAreNoneUntilTheChangeWhichRestartsTheMaze) {
    const Tavolo tavolo = Apri(4, true);
    for (const char* voce : {"mnuRicomincia", "mnuNuovo"}) {
        EXPECT_TRUE(Posti(tavolo).empty());
        Partita::Scegli(tavolo.Form_, voce);
    }
    tavolo.Passo(Contrario(tavolo.Partenza().Lato));
    Cambia(tavolo);
    EXPECT_FALSE(Posti(tavolo).empty());
    Cambia(tavolo);
    EXPECT_NO_THROW(tavolo.Partenza());  // the symbol is there again
    EXPECT_EQ(tavolo.Passi(), 1);
}

TEST_F(Barre, LeaveTwoThirdsOfACellForWholeCells) {
    const Tavolo tavolo = Apri(0, true);
    const Posto partenza = tavolo.Partenza();
    const int dentro = Contrario(partenza.Lato);
    Cambia(tavolo);
    Tap(tavolo.Form_, Qt::Key_C, Qt::ControlModifier);
    tavolo.Cammina({dentro, dentro});
    const Vista vista = tavolo.Guarda();
    // Across the way, from a corner towards the middle, where this level has no walls.
    const bool lungoX = dentro == Su || dentro == Giu;
    const double versoX = lungoX ? (partenza.Colonna == 1 ? 1 : -1) : 0;
    const double versoY = lungoX ? 0 : (partenza.Riga == 1 ? 1 : -1);
    for (const auto& [parte, riga] : {std::pair{0.3, RigaAvanti}, std::pair{0.37, RigaSfondo}}) {
        EXPECT_EQ(vista.Fra(partenza.Riga, partenza.Colonna, versoX * parte, versoY * parte),
                  tavolo.Colore(riga))
            << parte;
    }
}

TEST_F(Barre, AClickOnOneTakesTheKeyboardFromNobody) {
    const Tavolo tavolo = Apri(0);
    const QWidget* const prima = WindowOf(tavolo.Form_).focusWidget();
    ClickOn(Barra(tavolo, 1));
    EXPECT_EQ(WindowOf(tavolo.Form_).focusWidget(), prima);
}

}  // namespace
}  // namespace trameli
