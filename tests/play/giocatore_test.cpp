#include "play/giocatore.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "play/traccia.h"

namespace trameli {

namespace {

constexpr Misure Celle{751, 100, 200, 7};  // an odd side: its half is floored
constexpr std::array Lati{Lato::Alto, Lato::Destra, Lato::Basso, Lato::Sinistra};

/// A player before a maze of 3 by 4 cells in which every wall stands but the two openings.
class UnGiocatore : public testing::Test {
protected:
    explicit UnGiocatore(int k = 0) {
        tramelo_.CreaNuovaGriglia();
        const PartenzaArrivo percorso = Configurazione(k, 3, 4, Celle);
        tramelo_.Apri(percorso.CellaPartenza, percorso.LatoPartenza);
        tramelo_.Apri(percorso.CellaArrivo, percorso.LatoArrivo);
        giocatore_.Colloca(percorso, Celle.DimensioneCella);
    }

    void Apri(Cella cella, Lato lato) {
        tramelo_.Apri(cella, lato);
        tramelo_.Apri(Vicina(cella, lato), Opposto(lato));
    }

    /// Takes all inner walls away.
    void Sgombra() {
        for (std::int16_t r = 1; r <= 3; ++r) {
            for (std::int16_t c = 1; c <= 4; ++c) {
                for (const Lato lato : Lati) {
                    if (!tramelo_.Esterno({r, c}, lato)) {
                        tramelo_.Apri({r, c}, lato);
                    }
                }
            }
        }
    }

    Esito Passo(Lato lato) { return giocatore_.Passo(lato, tramelo_); }
    Esito PrimoPasso(Lato lato) { return giocatore_.PrimoPasso(lato, tramelo_); }

    CasualeConSeme casuale_{1};
    Tramelo tramelo_{3, 4, casuale_};
    Giocatore giocatore_;
};

class OgniConfigurazione : public UnGiocatore, public testing::WithParamInterface<int> {
protected:
    OgniConfigurazione() : UnGiocatore(GetParam()) {}
};

}  // namespace

TEST_P(OgniConfigurazione, OnlyTheWayIntoTheGridIsAFirstStep) {
    const PartenzaArrivo percorso = giocatore_.Percorso();
    const Lato dentro = Opposto(percorso.LatoPartenza);
    for (const Lato lato : Lati) {
        if (lato != dentro) {
            EXPECT_EQ(PrimoPasso(lato), Esito::Urto);
            EXPECT_TRUE(giocatore_.PrimaMossa());
            EXPECT_EQ(giocatore_.CellaCorrente(), percorso.CellaIniziale);
            EXPECT_EQ(giocatore_.PuntoCorrente(), percorso.PuntoIniziale);
        }
    }
    EXPECT_EQ(PrimoPasso(dentro), Esito::Passo);
    EXPECT_FALSE(giocatore_.PrimaMossa());
    EXPECT_EQ(giocatore_.CellaCorrente(), percorso.CellaPartenza);
}

TEST_P(OgniConfigurazione, FirstStepIsHalfACellLongAndTheNextAWholeOne) {
    const Punto inizio = giocatore_.PuntoCorrente();
    const Lato dentro = Opposto(giocatore_.Percorso().LatoPartenza);
    const Cella direzione = Vicina({0, 0}, dentro);
    Sgombra();
    PrimoPasso(dentro);
    EXPECT_EQ(giocatore_.PuntoCorrente().X, inizio.X + direzione.Colonna * 375);
    EXPECT_EQ(giocatore_.PuntoCorrente().Y, inizio.Y + direzione.Riga * 375);
    Passo(dentro);
    EXPECT_EQ(giocatore_.PuntoCorrente().X, inizio.X + direzione.Colonna * (375 + 751));
    EXPECT_EQ(giocatore_.PuntoCorrente().Y, inizio.Y + direzione.Riga * (375 + 751));
}

TEST_P(OgniConfigurazione, StartOpeningIsNoWayOut) {
    const PartenzaArrivo percorso = giocatore_.Percorso();
    PrimoPasso(Opposto(percorso.LatoPartenza));
    const Punto prima = giocatore_.PuntoCorrente();
    EXPECT_EQ(Passo(percorso.LatoPartenza), Esito::Urto);
    EXPECT_EQ(giocatore_.CellaCorrente(), percorso.CellaPartenza);
    EXPECT_EQ(giocatore_.PuntoCorrente(), prima);
    EXPECT_FALSE(giocatore_.TrameloRisolto());
}

TEST_P(OgniConfigurazione, FinishIsTheStepOutOfItsOpening) {
    const PartenzaArrivo percorso = giocatore_.Percorso();
    Sgombra();
    PrimoPasso(Opposto(percorso.LatoPartenza));
    const auto vai = [&](Lato verso, int passi) {
        for (int i = 0; i < passi; ++i) {
            ASSERT_EQ(Passo(verso), Esito::Passo);
            ASSERT_FALSE(giocatore_.TrameloRisolto());
        }
    };
    const int righe = percorso.CellaArrivo.Riga - percorso.CellaPartenza.Riga;
    const int colonne = percorso.CellaArrivo.Colonna - percorso.CellaPartenza.Colonna;
    vai(righe > 0 ? Lato::Basso : Lato::Alto, std::abs(righe));
    vai(colonne > 0 ? Lato::Destra : Lato::Sinistra, std::abs(colonne));
    ASSERT_EQ(giocatore_.CellaCorrente(), percorso.CellaArrivo);

    const Punto prima = giocatore_.PuntoCorrente();
    EXPECT_EQ(Passo(percorso.LatoArrivo), Esito::Arrivo);
    EXPECT_TRUE(giocatore_.TrameloRisolto());
    EXPECT_EQ(giocatore_.CellaCorrente(), Vicina(percorso.CellaArrivo, percorso.LatoArrivo));
    const Cella direzione = Vicina({0, 0}, percorso.LatoArrivo);
    EXPECT_EQ(giocatore_.PuntoCorrente().X, prima.X + direzione.Colonna * 751);
    EXPECT_EQ(giocatore_.PuntoCorrente().Y, prima.Y + direzione.Riga * 751);
}

INSTANTIATE_TEST_SUITE_P(Giocatore, OgniConfigurazione, testing::Range(0, NumeroConfigurazioni),
                         [](const auto& k) { return "Numero" + std::to_string(k.param); });

TEST_F(UnGiocatore, HitsAWallAndStays) {
    PrimoPasso(Lato::Basso);
    const Punto prima = giocatore_.PuntoCorrente();
    for (const Lato lato : {Lato::Destra, Lato::Basso, Lato::Sinistra}) {
        EXPECT_EQ(Passo(lato), Esito::Urto);
    }
    EXPECT_EQ(giocatore_.CellaCorrente(), (Cella{1, 1}));
    EXPECT_EQ(giocatore_.PuntoCorrente(), prima);
}

TEST_F(UnGiocatore, GoesAllFourWays) {
    Sgombra();
    PrimoPasso(Lato::Basso);
    EXPECT_EQ(giocatore_.PuntoCorrente(), (Punto{475, 575}));
    EXPECT_EQ(Passo(Lato::Destra), Esito::Passo);
    EXPECT_EQ(giocatore_.PuntoCorrente(), (Punto{1226, 575}));
    EXPECT_EQ(Passo(Lato::Basso), Esito::Passo);
    EXPECT_EQ(giocatore_.PuntoCorrente(), (Punto{1226, 1326}));
    EXPECT_EQ(Passo(Lato::Sinistra), Esito::Passo);
    EXPECT_EQ(giocatore_.PuntoCorrente(), (Punto{475, 1326}));
    EXPECT_EQ(Passo(Lato::Alto), Esito::Passo);
    EXPECT_EQ(giocatore_.PuntoCorrente(), (Punto{475, 575}));
    EXPECT_EQ(giocatore_.CellaCorrente(), (Cella{1, 1}));
}

TEST_F(UnGiocatore, StandingInTheFinishCellEndsNothing) {
    Sgombra();
    PrimoPasso(Lato::Basso);
    for (const Lato lato : {Lato::Basso, Lato::Basso, Lato::Destra, Lato::Destra, Lato::Destra}) {
        Passo(lato);
    }
    EXPECT_EQ(giocatore_.CellaCorrente(), (Cella{3, 4}));
    EXPECT_FALSE(giocatore_.TrameloRisolto());
    EXPECT_EQ(Passo(Lato::Destra), Esito::Urto);
    EXPECT_FALSE(giocatore_.TrameloRisolto());
}

TEST_F(UnGiocatore, StartsTheSameMazeAgain) {
    Sgombra();
    PrimoPasso(Lato::Basso);
    Passo(Lato::Destra);
    giocatore_.Azzera();
    EXPECT_EQ(giocatore_.CellaCorrente(), (Cella{1, 2}));
    giocatore_.TornaAllaPartenza();
    EXPECT_TRUE(giocatore_.PrimaMossa());
    EXPECT_EQ(giocatore_.CellaCorrente(), (Cella{0, 1}));
    EXPECT_EQ(giocatore_.PuntoCorrente(), (Punto{475, 200}));
    EXPECT_EQ(giocatore_.Percorso().CellaArrivo, (Cella{3, 4}));
    EXPECT_EQ(PrimoPasso(Lato::Basso), Esito::Passo);
}

TEST_F(UnGiocatore, StopsAtSixteenBits) {
    giocatore_.Colloca(Configurazione(0, 3, 4, {30000, 0, 0, 7}), 30000);
    Sgombra();
    PrimoPasso(Lato::Basso);
    Passo(Lato::Basso);
    Passo(Lato::Basso);
    EXPECT_EQ(giocatore_.PuntoCorrente(), (Punto{15000, 32767}));
}

namespace {

/// A player whose steps are noted like those of the game: F a way forward, R a way back.
class UnaCamminata : public UnGiocatore {
protected:
    UnaCamminata() {
        traccia_.Alloca(3, 4);
        Apri({1, 1}, Lato::Destra);
        Apri({1, 2}, Lato::Basso);
        Apri({2, 2}, Lato::Sinistra);
        Apri({2, 1}, Lato::Alto);
        PrimoPasso(Lato::Basso);
    }

    std::string Cammina(const std::vector<Lato>& passi) {
        std::string colori;
        for (const Lato lato : passi) {
            const Passaggio passaggio = PassaggioDa(giocatore_.CellaCorrente(), lato);
            EXPECT_EQ(Passo(lato), Esito::Passo);
            colori += traccia_.Attraversa(passaggio) ? 'F' : 'R';
        }
        return colori;
    }

    Traccia traccia_;
};

constexpr Lato S = Lato::Sinistra;
constexpr Lato D = Lato::Destra;
constexpr Lato A = Lato::Alto;
constexpr Lato B = Lato::Basso;

}  // namespace

TEST_F(UnaCamminata, OutAndBackAndOutAgain) {
    EXPECT_EQ(Cammina({D, B}), "FF");
    EXPECT_EQ(Cammina({A, S}), "RR");
    EXPECT_EQ(Cammina({D, B}), "FF");
}

TEST_F(UnaCamminata, ASecondRoundTheSameWayIsAWayBackToo) {
    EXPECT_EQ(Cammina({D, B, S, A}), "FFFF");
    EXPECT_EQ(Cammina({D, B, S, A}), "RRRR");
    EXPECT_EQ(Cammina({B, D}), "FF");
    EXPECT_EQ(Cammina({S}), "R");
}

}  // namespace trameli
