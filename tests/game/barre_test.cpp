// Walls of the first levels as bars, and the change from bars to lines.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <tuple>

#include "game/partita.h"
#include "platform/image.h"
#include "platform/menu.h"
#include "platform/picture_box.h"

namespace trameli {
namespace {

using Posti = std::vector<Bounds>;

bool Prima(const Bounds& a, const Bounds& b) {
    return std::tie(a.Top, a.Left, a.Width, a.Height) < std::tie(b.Top, b.Left, b.Width, b.Height);
}

class Barre : public testing::Test {
protected:
    /// Opens the level; the user wants bars unless `linee`.
    Tavolo Apri(int livello, bool linee = false, int modo = 0) {
        file_ = FileUtente().Con(RigaLinee, linee ? "True" : "False").Con(RigaModoInput, modo);
        disco_.Scrivi("_predefinito", file_);
        return Tavolo(partita_.ApriLivello(livello),
                      MisureLivelli.at(static_cast<std::size_t>(livello)), file_);
    }
    static bool Ha(const Form& form, int indice) {
        return std::any_of(form.Controls().begin(), form.Controls().end(), [&](Control* control) {
            return control->Name() == "PictureMuri" && control->Index() == indice;
        });
    }
    static int Quante(const Form& form) {
        int quante = 0;
        while (Ha(form, quante + 1)) {
            ++quante;
        }
        return quante;
    }
    static PictureBox& Barra(const Form& form, int indice) {
        return Trova<PictureBox>(form, "PictureMuri", indice);
    }
    /// The places of the bars, in order; all of them are to be seen, and show one picture.
    static Posti InOrdine(const Form& form) {
        Posti posti;
        for (int i = 1; Ha(form, i); ++i) {
            EXPECT_TRUE(WidgetOf(Barra(form, i)).isVisible());
            EXPECT_EQ(Barra(form, i).Picture(), Barra(form, 0).Picture());
            posti.push_back(Barra(form, i).Place());
        }
        EXPECT_FALSE(WidgetOf(Barra(form, 0)).isVisible());
        std::sort(posti.begin(), posti.end(), Prima);
        return posti;
    }
    static void Cambia(const Tavolo& tavolo) { Partita::Scegli(tavolo.Form_, "mnuLineeMuri"); }
    /// The walls as a player sees them in line mode.
    static MuriVisti ConLinee(const Tavolo& tavolo) {
        Cambia(tavolo);
        MuriVisti muri = tavolo.Muri();
        Cambia(tavolo);
        return muri;
    }

    Disco disco_;
    Partita partita_{disco_, {800, 600}, 3};
    FileUtente file_;
};

TEST_F(Barre, TheEmptyBoxHasTwentyEight) {
    const Tavolo tavolo = Apri(0);
    EXPECT_EQ(Quante(tavolo.Form_), 28);
}

TEST_F(Barre, TheFifthLevelHasMoreThanTheSecond) {
    const int pochi = Quante(Apri(1).Form_);
    Partita::Scegli(partita_.Finestra("frmTrm0"), "mnuEsci");
    Disco altro;
    altro.Scrivi("_predefinito", file_);
    Partita partita(altro, {800, 600}, 3);
    EXPECT_GT(Quante(partita.ApriLivello(4)), pochi);
}

TEST_F(Barre, CoverTheWallsOfTheMazeAndNothingElse) {
    const Tavolo tavolo = Apri(3);
    const Posti posti = InOrdine(tavolo.Form_);
    const MuriVisti muri = ConLinee(tavolo);
    const int lato = tavolo.Pianta_.Lato;
    const int spessore = lato / 3;
    Posti attesi;
    for (int r = 1; r <= 6; ++r) {
        for (int c = 1; c <= 9; ++c) {
            const double x = tavolo.Pianta_.BordoX(c - 1);
            const double y = tavolo.Pianta_.BordoY(r - 1);
            const auto orizzontale = [&](double su) {
                attesi.push_back({x - lato / 6, su - spessore / 2,
                                  static_cast<double>(lato + spessore),
                                  static_cast<double>(spessore)});
            };
            const auto verticale = [&](double sinistra) {
                attesi.push_back({sinistra - spessore / 2, y - lato / 6,
                                  static_cast<double>(spessore),
                                  static_cast<double>(lato + spessore)});
            };
            if (r == 1 && muri.Ha({r, c, Su})) {
                orizzontale(y);
            }
            if (c == 1 && muri.Ha({r, c, AllaSinistra})) {
                verticale(x);
            }
            if (muri.Ha({r, c, Giu})) {
                orizzontale(y + lato);
            }
            if (muri.Ha({r, c, AllaDestra})) {
                verticale(x + lato);
            }
        }
    }
    std::sort(attesi.begin(), attesi.end(), Prima);
    EXPECT_EQ(posti, attesi);
}

TEST_F(Barre, LinesAndBackGiveTheSameMazeInTheSamePlaces) {
    const Tavolo tavolo = Apri(4);
    const Posti posti = InOrdine(tavolo.Form_);
    const QImage prima = tavolo.Guarda().Immagine();
    const Picture quadro = Barra(tavolo.Form_, 0).Picture();
    Cambia(tavolo);
    EXPECT_EQ(Quante(tavolo.Form_), 0);
    EXPECT_FALSE(WidgetOf(Barra(tavolo.Form_, 0)).isVisible());
    EXPECT_GT(MacchiaDi(tavolo.Guarda().Immagine(), tavolo.Colore(RigaPareti)).Quanti, 1000);
    Cambia(tavolo);
    EXPECT_EQ(InOrdine(tavolo.Form_), posti);
    EXPECT_EQ(Barra(tavolo.Form_, 0).Picture(), quadro);
    EXPECT_EQ(tavolo.Guarda().Immagine(), prima);
    EXPECT_EQ(MacchiaDi(tavolo.Guarda().Immagine(), tavolo.Colore(RigaPareti)).Quanti, 0);
}

TEST_F(Barre, NoWallHasTwoBarsHoweverOftenItIsDrawn) {
    const Tavolo tavolo = Apri(2);
    const Posti posti = InOrdine(tavolo.Form_);
    for (const char* voce : {"mnuRicomincia", "mnuLinee", "mnuColora", "mnuRicomincia"}) {
        Partita::Scegli(tavolo.Form_, voce);
        EXPECT_EQ(InOrdine(tavolo.Form_), posti) << voce;
    }
}

TEST_F(Barre, MazesComeWithOneOfFourPictures) {
    const Tavolo tavolo = Apri(2);
    std::set<std::string> visti;
    for (int i = 0; i < 24; ++i) {
        const std::string nome = Barra(tavolo.Form_, 1).Picture().Name;
        visti.insert(nome);
        Partita::Scegli(tavolo.Form_, "mnuRicomincia");
        EXPECT_EQ(Barra(tavolo.Form_, 1).Picture().Name, nome);
        Partita::Scegli(tavolo.Form_, "mnuNuovo");
    }
    EXPECT_EQ(visti,
              (std::set<std::string>{"muri/0.svg", "muri/1.svg", "muri/2.svg", "muri/3.svg"}));
}

TEST_F(Barre, CoverWhatIsDrawnAndTheFinish) {
    const Tavolo tavolo = Apri(0);
    auto& traguardo = Trova<Image>(tavolo.Form_, "Image2");
    traguardo.Place(Barra(tavolo.Form_, 5).Place());
    auto& superficie = Trova<PictureBox>(tavolo.Form_, "pictureTramelo");
    const QImage prima = Shot(Barra(tavolo.Form_, 5));
    const Bounds& posto = Barra(tavolo.Form_, 5).Place();
    superficie.FillBox(posto.Left, posto.Top, posto.Left + posto.Width, posto.Top + posto.Height,
                       Rgb(255, 0, 255));
    const QRect tutta = WidgetOf(Barra(tavolo.Form_, 5)).geometry();
    const double pixel = prima.devicePixelRatio();
    const QPoint centro = tutta.center() * pixel;
    const QPoint centroBarra = QRect({0, 0}, tutta.size()).center() * pixel;
    const QImage dopo = Shot(superficie);
    EXPECT_EQ(dopo.pixel(centro), prima.pixel(centroBarra));
    EXPECT_NE(dopo.pixel(centro), qRgb(255, 0, 255));
}

TEST_F(Barre, WithLinesThereAreNone) {
    const Tavolo tavolo = Apri(4, true);
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(Quante(tavolo.Form_), 0);
        Partita::Scegli(tavolo.Form_, i == 0 ? "mnuRicomincia" : "mnuNuovo");
    }
    EXPECT_EQ(Trova<MenuItem>(tavolo.Form_, "mnuLineeMuri").Caption(), "Usa linee");
}

TEST_F(Barre, TheMenuEntryDoesNotChangeTheSetting) {
    const Tavolo tavolo = Apri(1);
    Cambia(tavolo);
    EXPECT_FALSE(partita_.Gioco.Stato().LineeNeiPrimiLivelli);
    EXPECT_TRUE(Trova<MenuItem>(tavolo.Form_, "mnuLineeMuri").Enabled());
}

TEST_F(Barre, AClickOnOneTakesTheKeyboardFromNobody) {
    const Tavolo tavolo = Apri(0);
    const QWidget* const prima = WindowOf(tavolo.Form_).focusWidget();
    ClickOn(Barra(tavolo.Form_, 1));
    EXPECT_EQ(WindowOf(tavolo.Form_).focusWidget(), prima);
}

TEST_F(Barre, TheChangeRestartsTheMaze) {
    const Tavolo tavolo = Apri(0, true);
    tavolo.Passo(Contrario(tavolo.Partenza().Lato));
    EXPECT_EQ(tavolo.Passi(), 1);
    Cambia(tavolo);
    Cambia(tavolo);
    EXPECT_NO_THROW(tavolo.Partenza());  // the symbol is there again
    EXPECT_EQ(tavolo.Passi(), 1);
}

}  // namespace
}  // namespace trameli
