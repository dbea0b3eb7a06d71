// Walls of the first levels as bars, and the change from bars to lines.
#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "game/partita.h"
#include "platform/picture_box.h"

namespace trameli {
namespace {

const FileUtente ConBarre = FileUtente().Con(RigaLinee, "False");

class Barre : public ConTavolo {
protected:
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
};

TEST_F(Barre, CoverTheWallsOfTheMazeAndNothingElse) {
    const Tavolo tavolo = Apri(3, ConBarre);
    const Vista barre = tavolo.Guarda();
    const auto posti = Posti(tavolo);
    Cambia(tavolo);
    EXPECT_TRUE(Posti(tavolo).empty());
    EXPECT_FALSE(partita_.Gioco.Stato().LineeNeiPrimiLivelli);  // the change is this window's
    const MuriVisti muri = tavolo.Muri();
    const Posto arrivo = tavolo.Arrivo();
    for (int r = 1; r <= muri.Righe(); ++r) {
        for (int c = 1; c <= muri.Colonne(); ++c) {
            for (int lato = 0; lato < 4; ++lato) {
                const Posto qui{r, c, lato};
                const QRgb colore = barre.Muro(qui);
                const bool libero =
                    colore == tavolo.Colore(RigaSfondo) || colore == tavolo.Colore(RigaSimbolo);
                // The finish picture may reach into its opening.
                EXPECT_TRUE(libero == !muri.Ha(qui) || qui == arrivo)
                    << r << ", " << c << " side " << lato;
            }
        }
    }
    // One for each wall: the outside ones less two openings, and the inner ones.
    EXPECT_EQ(static_cast<int>(posti.size()), 2 * (6 + 9) - 2 + muri.Interni());
    Cambia(tavolo);
    EXPECT_EQ(tavolo.Guarda().Immagine(), barre.Immagine());
    Partita::Scegli(tavolo.Form_, "mnuRicomincia");
    EXPECT_EQ(Posti(tavolo), posti);
}

TEST_F(Barre, MazesComeWithOneOfFourPictures) {
    const Tavolo tavolo = Apri(2, ConBarre);
    std::set<std::string> visti;
    for (int i = 0; i < 24; ++i) {
        const std::string nome = Barra(tavolo, 1).Picture().Name;
        visti.insert(nome);
        Partita::Scegli(tavolo.Form_, "mnuRicomincia");
        EXPECT_EQ(Barra(tavolo, 1).Picture().Name, nome);
        Posti(tavolo);  // none of an earlier picture is left
        Partita::Scegli(tavolo.Form_, "mnuNuovo");
    }
    EXPECT_EQ(visti,
              (std::set<std::string>{"muri/0.svg", "muri/1.svg", "muri/2.svg", "muri/3.svg"}));
}

}  // namespace
}  // namespace trameli
