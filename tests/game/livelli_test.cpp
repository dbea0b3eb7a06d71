// Every level from the menu to the congratulations and out of them again, as each kind of player
// plays it.
#include <gtest/gtest.h>

#include <algorithm>

#include "game/interruttori.h"
#include "platform/command_button.h"
#include "platform/timer.h"
#include "shell/livelli.h"

namespace trameli {
namespace {

using Nomi = std::vector<std::string>;

constexpr int LabirintiPerLivello = 5;

/// Whether the symbol walks by itself.
constexpr bool DaSolo(int livello) {
    return livello >= 5 && livello <= 7;
}

/// All levels with the keyboard, and those where the symbol waits with one key and with two.
std::vector<Caso> OgniLivelloEModo() {
    std::vector<Caso> casi;
    for (int livello = 0; livello < NumeroLivelliGioco; ++livello) {
        casi.push_back({livello, Tastiera});
        if (!DaSolo(livello)) {
            casi.push_back({livello, Manuale});
            casi.push_back({livello, Automatica});
        }
    }
    return casi;
}

class LivelloIntero : public ConInterruttori, public testing::WithParamInterface<Caso> {
protected:
    /// The form may be gone afterwards.
    void Passo(const Tavolo& tavolo, int verso) {
        if (modo_ != Tastiera) {
            Vai(tavolo.Form_, verso, offerta_);
        } else if (DaSolo(GetParam().Livello)) {
            const double scatto = Trova<Timer>(tavolo.Form_, "Timer1").Interval() / 1000.0;
            tavolo.Passo(verso);
            partita_.Tempo.Advance(scatto);
        } else {
            tavolo.Passo(verso, GetParam().Livello % 2 == 0 ? Frecce : Tastierino);
        }
    }

    /// Presses the button, in one of the ways that the player has, in turns.
    void Prosegui(const Tavolo& tavolo, int volta) {
        partita_.Tempo.Advance(DopoUnaNovita);
        if (modo_ == Automatica || volta % 3 == 0) {
            Spazio(tavolo.Form_);
        } else if (modo_ == Manuale || volta % 3 == 1) {
            Invio(tavolo.Form_);
        } else {
            ClickOn(Avanti(tavolo));
        }
    }

    /// To the other button, if there is one, and presses it; else the first one.
    void Rispondi(Form& finale, bool altro) {
        partita_.Tempo.Advance(DopoUnaNovita);
        if (altro) {
            modo_ == Tastiera ? Tap(finale, Qt::Key_Tab) : Prossima(finale);
        }
        Conferma(finale);
    }

    static CommandButton& Avanti(const Tavolo& tavolo) {
        return Trova<CommandButton>(tavolo.Form_, "BottoneAvanti");
    }

    int offerta_ = 0;
};

INSTANTIATE_TEST_SUITE_P(Livelli, LivelloIntero, testing::ValuesIn(OgniLivelloEModo()), NomeCaso);

TEST_P(LivelloIntero, FiveMazesAndBothAnswers) {
    const auto [livello, modo] = GetParam();
    Apri(livello, modo);
    for (const bool altro : {false, true}) {
        const Tavolo tavolo = AlTavolo(partita_.Finestra(FormDelLivello(livello)), livello);
        EXPECT_EQ(tavolo.Pannello(1), "_predefinito");
        EXPECT_EQ(tavolo.NumeroPannello(2), livello + 1);
        offerta_ = 0;
        for (int labirinto = 0; labirinto < LabirintiPerLivello; ++labirinto) {
            SCOPED_TRACE(testing::Message() << "maze " << labirinto);
            ASSERT_FALSE(tavolo.Risolto());
            ASSERT_EQ(tavolo.Coppe(), labirinto);
            ASSERT_EQ(tavolo.Passi(), 0);
            ASSERT_EQ(tavolo.Pannello(3), "boing 0");
            const std::vector<int> passi = tavolo.Soluzione();
            Posto qui = tavolo.Partenza();
            for (std::size_t i = 0; i < passi.size(); ++i) {
                Passo(tavolo, passi[i]);
                // The first step leads into the start cell, the last one behind the finish picture.
                qui = i > 0 ? qui.Dopo({passi[i]}) : qui;
                if (labirinto == 0 && i + 1 < passi.size()) {
                    ASSERT_EQ(tavolo.Passi(), static_cast<int>(i) + 1);
                    ASSERT_EQ(tavolo.Guarda().Centro(qui.Riga, qui.Colonna),
                              tavolo.Colore(RigaSimbolo));
                }
            }
            if (labirinto + 1 < LabirintiPerLivello) {
                ASSERT_TRUE(tavolo.Risolto());
                EXPECT_EQ(tavolo.Passi(), static_cast<int>(passi.size()));
                EXPECT_EQ(tavolo.Urti(), 0);
                if (labirinto == 0) {
                    // However long it takes, nothing but the button leads on.
                    const QImage prima = tavolo.Guarda().Immagine();
                    partita_.Tempo.Advance(20);
                    EXPECT_EQ(tavolo.Guarda().Immagine(), prima);
                }
                EXPECT_TRUE(WidgetOf(Avanti(tavolo)).hasFocus());
                Prosegui(tavolo, labirinto);
                if (modo_ == Automatica) {
                    Spazio(tavolo.Form_);  // too early: nothing is on offer yet
                }
            }
        }
        ASSERT_EQ(partita_.Aperte(), Nomi{"FormFinale"});
        EXPECT_EQ(partita_.Suoni.Asked.back(), "music P:\\suoni\\coppa.mid");
        Rispondi(partita_.Finestra("FormFinale"), altro);
        EXPECT_EQ(partita_.Suoni.Asked.back(), "stop");
        // After the last level there is none but itself.
        const int dopo = std::min(livello + (altro ? 1 : 0), NumeroLivelliGioco - 1);
        ASSERT_EQ(partita_.Gioco.Stato().Livello, dopo);
        ASSERT_EQ(partita_.Aperte(), Nomi{FormDelLivello(dopo)});
        const Tavolo nuovo = AlTavolo(partita_.Finestra(FormDelLivello(dopo)), dopo);
        EXPECT_EQ(nuovo.Muri().Aperture().size(), 2U);
    }
}

}  // namespace
}  // namespace trameli
