#include "shell/suoni.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "support/noted_sounds.h"

namespace trameli {
namespace {

using Chiesti = std::vector<std::string>;

TEST(SuoniTest, AreAskedForAsTheSettingsSayAtEachCall) {
    Stato variabili;
    NotedSounds altoparlante;
    Suoni suoni(variabili, altoparlante);
    const Chiesti musica{"close", "open P:\\suoni\\coppa.mid", "play"};
    struct {
        const char* Nome;
        std::function<void()> Chiama;
        Chiesti Attivi;         // with sounds on
        bool SoloConMovimento;  // and only with those of steps
        Chiesti Muti = {};      // with sounds off
    } const casi[] = {
        {"SuonoMuro", [&] { suoni.SuonoMuro(); }, {"wave P:\\suoni\\boing.wav"}, false},
        {"SuonoArrivo", [&] { suoni.SuonoArrivo(); }, {"wave P:\\suoni\\si.wav"}, false},
        {"SuonoPasso", [&] { suoni.SuonoPasso(); }, {"wave P:\\suoni\\muovi.wav"}, true},
        {"SuonaMidi", [&] { suoni.SuonaMidi("P:\\suoni\\coppa.mid"); }, musica, false},
        {"FermaMidi", [&] { suoni.FermaMidi(); }, {"close"}, false, {"close"}},
    };
    for (const auto& caso : casi) {
        for (const bool attivi : {true, false}) {
            for (const bool movimento : {false, true}) {
                variabili.SuoniAttivi = attivi;
                variabili.SuonoMovimento = movimento;
                altoparlante.Asked.clear();
                caso.Chiama();
                const bool muto = !attivi || (caso.SoloConMovimento && !movimento);
                EXPECT_EQ(altoparlante.Asked, muto ? caso.Muti : caso.Attivi)
                    << caso.Nome << attivi << movimento;
            }
        }
    }
}

}  // namespace
}  // namespace trameli
