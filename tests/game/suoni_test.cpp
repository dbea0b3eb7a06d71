// What is heard while a level is played.
#include <gtest/gtest.h>

#include <algorithm>

#include "game/partita.h"
#include "platform/command_button.h"

namespace trameli {
namespace {

using Chiesti = std::vector<std::string>;

const std::string Boing = "wave P:\\suoni\\boing.wav";
const std::string Si = "wave P:\\suoni\\si.wav";
const std::string Tic = "wave P:\\suoni\\muovi.wav";

class SuoniInGioco : public testing::TestWithParam<int> {
protected:
    Tavolo Apri(const FileUtente& file) {
        disco_.Scrivi("_predefinito", file);
        Form& form = partita_.ApriLivello(GetParam());
        return Tavolo(form, MisureLivelli.at(static_cast<std::size_t>(GetParam())), file);
    }
    Chiesti& Uditi() { return partita_.Suoni.Asked; }

    Disco disco_;
    Partita partita_{disco_, {800, 600}, 7};
};

TEST_P(SuoniInGioco, EachStepTicksAndTheCupSaysYes) {
    const Tavolo tavolo = Apri(FileUtente().Con(RigaSuonoMovimento, "True"));
    EXPECT_EQ(Uditi(), Chiesti());
    const auto passi = tavolo.Soluzione();
    tavolo.Cammina(passi);
    Chiesti attesi(passi.size(), Tic);
    attesi.push_back(Si);
    EXPECT_EQ(Uditi(), attesi);
}

TEST_P(SuoniInGioco, StepsAreSilentUnlessAskedForAndWallsAreNot) {
    const Tavolo tavolo = Apri({});
    const auto passi = tavolo.Soluzione();
    // Before the first step every other way is a wall.
    tavolo.Passo((passi.front() + 2) % 4);
    EXPECT_EQ(Uditi(), Chiesti{Boing});
    tavolo.Cammina(passi);
    EXPECT_EQ(Uditi(), (Chiesti{Boing, Si}));
}

TEST_P(SuoniInGioco, NothingIsHeardWithSoundsOff) {
    const Tavolo tavolo =
        Apri(FileUtente().Con(RigaSuoni, "False").Con(RigaSuonoMovimento, "True"));
    const auto passi = tavolo.Soluzione();
    tavolo.Passo((passi.front() + 2) % 4);
    tavolo.Cammina(passi);
    EXPECT_EQ(Uditi(), Chiesti());
}

TEST_P(SuoniInGioco, TheFifthMazeGivesTheWordToTheMusic) {
    const Tavolo tavolo = Apri({});
    for (int volta = 0; volta < 4; ++volta) {
        Tavolo(tavolo.Form_, MisureLivelli.at(static_cast<std::size_t>(GetParam()))).Risolvi();
        ClickOn(Trova<CommandButton>(tavolo.Form_, "BottoneAvanti"));
    }
    EXPECT_EQ(Uditi(), Chiesti(4, Si));
    Uditi().clear();
    Tavolo(tavolo.Form_, MisureLivelli.at(static_cast<std::size_t>(GetParam()))).Risolvi();
    EXPECT_EQ(Uditi(), (Chiesti{"close", "open P:\\suoni\\coppa.mid", "play"}));
}

INSTANTIATE_TEST_SUITE_P(Livelli, SuoniInGioco, testing::Values(3, 9));

}  // namespace
}  // namespace trameli
