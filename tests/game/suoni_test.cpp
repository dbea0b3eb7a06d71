// What is heard while a level is played.
#include <gtest/gtest.h>

#include "game/partita.h"
#include "platform/command_button.h"

namespace trameli {
namespace {

using Chiesti = std::vector<std::string>;

const std::string Boing = "wave P:\\suoni\\boing.wav";
const std::string Si = "wave P:\\suoni\\si.wav";
const std::string Tic = "wave P:\\suoni\\muovi.wav";

TEST_F(ConTavolo, SoundsAreThoseThatThePlayerWants) {
    struct {
        const char* Suoni;
        const char* Movimento;
        Chiesti Urto, Passo, Coppa;
    } const casi[] = {{"True", "True", {Boing}, {Tic}, {Si}},
                      {"True", "False", {Boing}, {}, {Si}},
                      {"False", "True", {}, {}, {}}};
    for (const auto& caso : casi) {
        disco_.Scrivi(
            "_predefinito",
            FileUtente().Con(RigaSuoni, caso.Suoni).Con(RigaSuonoMovimento, caso.Movimento));
        Partita partita(disco_, {800, 600}, 7);
        const Tavolo tavolo(partita.ApriLivello(9), 9);
        const auto passi = tavolo.Soluzione();
        // Before the first step every other way is a wall.
        tavolo.Passo(Contrario(passi.front()));
        Chiesti attesi = caso.Urto;
        for (const int verso : passi) {
            tavolo.Passo(verso);
            attesi.insert(attesi.end(), caso.Passo.begin(), caso.Passo.end());
        }
        attesi.insert(attesi.end(), caso.Coppa.begin(), caso.Coppa.end());
        EXPECT_EQ(partita.Suoni.Asked, attesi) << caso.Suoni << ", " << caso.Movimento;
    }
}

}  // namespace
}  // namespace trameli
