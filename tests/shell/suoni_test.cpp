#include "shell/suoni.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "support/noted_sounds.h"

namespace trameli {
namespace {

using Chiesti = std::vector<std::string>;

struct Caso {
    bool SuoniAttivi;
    bool SuonoMovimento;
    Chiesti Muro;
    Chiesti Arrivo;
    Chiesti Passo;
    Chiesti Midi;
};

std::string NomeDi(const Caso& caso) {
    return std::string(caso.SuoniAttivi ? "Attivi" : "Muti") +
           (caso.SuonoMovimento ? "ConPassi" : "SenzaPassi");
}

void PrintTo(const Caso& caso, std::ostream* out) {
    *out << NomeDi(caso);
}

const Chiesti Niente;
const Chiesti Boing{"wave P:\\suoni\\boing.wav"};
const Chiesti Si{"wave P:\\suoni\\si.wav"};
const Chiesti Tic{"wave P:\\suoni\\muovi.wav"};
const Chiesti Musica{"close", "open P:\\suoni\\coppa.mid", "play"};

const Caso Casi[] = {
    {false, false, Niente, Niente, Niente, Niente},
    {false, true, Niente, Niente, Niente, Niente},
    {true, false, Boing, Si, Niente, Musica},
    {true, true, Boing, Si, Tic, Musica},
};

class SuoniTest : public testing::TestWithParam<Caso> {
protected:
    SuoniTest() {
        Variabili.SuoniAttivi = GetParam().SuoniAttivi;
        Variabili.SuonoMovimento = GetParam().SuonoMovimento;
    }

    Stato Variabili;
    NotedSounds Altoparlante;
    Suoni Voci{Variabili, Altoparlante};
};

TEST_P(SuoniTest, SuonoMuro) {
    Voci.SuonoMuro();
    EXPECT_EQ(Altoparlante.Asked, GetParam().Muro);
}

TEST_P(SuoniTest, SuonoArrivo) {
    Voci.SuonoArrivo();
    EXPECT_EQ(Altoparlante.Asked, GetParam().Arrivo);
}

TEST_P(SuoniTest, SuonoPasso) {
    Voci.SuonoPasso();
    EXPECT_EQ(Altoparlante.Asked, GetParam().Passo);
}

TEST_P(SuoniTest, SuonaMidi) {
    Voci.SuonaMidi("P:\\suoni\\coppa.mid");
    EXPECT_EQ(Altoparlante.Asked, GetParam().Midi);
}

TEST_P(SuoniTest, FermaMidi) {
    Voci.FermaMidi();
    EXPECT_EQ(Altoparlante.Asked, Chiesti{"close"});
}

TEST_P(SuoniTest, AChangeOfTheSettingsCountsAtTheNextCall) {
    Variabili.SuoniAttivi = true;
    Variabili.SuonoMovimento = true;
    Voci.SuonoPasso();
    Variabili.SuoniAttivi = false;
    Voci.SuonoPasso();
    EXPECT_EQ(Altoparlante.Asked, Tic);
}

INSTANTIATE_TEST_SUITE_P(Impostazioni, SuoniTest, testing::ValuesIn(Casi),
                         [](const auto& caso) { return NomeDi(caso.param); });

}  // namespace
}  // namespace trameli
