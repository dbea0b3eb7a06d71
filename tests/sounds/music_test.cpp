// Music as it is heard.
#include <algorithm>

#include "recorded_sounds.h"

namespace trameli {
namespace {

class RecordedMusic : public RecordedSounds {
protected:
    /// As the end of a level asks for a piece.
    void StartMusic(const std::string& path) {
        Sounds->CloseMusic();
        Sounds->OpenMusic(path);
        Sounds->PlayMusic();
    }

    /// Whether it is silent for a second.
    bool IsSilent() const {
        return Soon([&] { return Letters().ends_with(std::string(50, '.')); });
    }

    bool Contains(const std::string& part) const { return Story().find(part) != std::string::npos; }
};

TEST_F(RecordedMusic, APieceIsHeardFromItsBeginningToItsEnd) {
    Put("ab.mid", Tune(1, 2));
    Play();
    StartMusic("P:\\ab.mid");
    ASSERT_TRUE(Soon([&] { return !Story().empty(); }));
    ASSERT_TRUE(IsSilent());
    const std::string letters = Letters();
    EXPECT_NEAR(static_cast<double>(std::count(letters.begin(), letters.end(), 'A')), 50, 10);
    EXPECT_NEAR(static_cast<double>(std::count(letters.begin(), letters.end(), 'B')), 100, 20);
    EXPECT_LT(letters.find('A'), letters.find('B'));
    EXPECT_LT(letters.rfind('A'), letters.find('B'));
}

TEST_F(RecordedMusic, TwoStartsLeaveOnePieceFromItsBeginning) {
    Put("ab.mid", Tune(1, 100));
    Play();
    StartMusic("P:\\ab.mid");
    ASSERT_TRUE(Soon([&] { return Contains("B"); }));
    StartMusic("P:\\ab.mid");
    ASSERT_TRUE(Soon([&] { return Story().rfind('A') > Story().find('B'); }));
    ASSERT_TRUE(Soon([&] { return Story().rfind('B') > Story().rfind('A'); }));
    // The first piece would go on with B in the middle of the A of the second.
    const std::string letters = Letters();
    const std::string again = letters.substr(letters.find('B'));
    EXPECT_GT(std::count(again.begin(), again.end(), 'A'), 40);
    Sounds->CloseMusic();
    EXPECT_TRUE(IsSilent());
    EXPECT_LT(Letters().size(), 80 * 50U) << "the piece goes on for a hundred seconds";
}

TEST_F(RecordedMusic, AWaveSoundsOverThePiece) {
    Put("a.mid", Tune(100, 1));
    Put("b.wav", Tone(PitchB, 1));
    Play();
    StartMusic("P:\\a.mid");
    ASSERT_TRUE(Soon([&] { return Contains("A"); }));
    Sounds->PlayWave("P:\\b.wav");
    ASSERT_TRUE(Soon([&] { return Contains("AB") || Contains("A?"); }));
    EXPECT_TRUE(Soon([&] { return Story().ends_with("A"); }));
}

TEST_F(RecordedMusic, OpeningIsNotPlayingAndPlayingNeedsAPiece) {
    Put("a.mid", Tune(100, 1));
    Put("b.wav", Tone(PitchB, 0.5));
    Play();
    Sounds->CloseMusic();
    Sounds->PlayMusic();
    Sounds->OpenMusic("P:\\a.mid");
    Sounds->PlayWave("P:\\b.wav");
    ASSERT_TRUE(Soon([&] { return Contains("B."); }));
    EXPECT_FALSE(Contains("A"));
    Sounds->PlayMusic();
    EXPECT_TRUE(Soon([&] { return Contains("A"); }));
}

TEST_F(RecordedMusic, NeedsTheFirstInstrumentsThatThereAre) {
    Put("a.mid", Tune(100, 1));
    Put("b.wav", Tone(PitchB, 0.5));
    Put("broken.sf2", "RIFF????sfbk and nothing more");
    MixerOptions options;
    options.SoundFonts.insert(options.SoundFonts.begin(), PathOf("missing.sf2"));
    RecordTo(PathOf("with.raw"));
    Play(options);
    StartMusic("P:\\a.mid");
    EXPECT_TRUE(Soon([&] { return Contains("A"); }));
    for (const char* font : {"missing.sf2", "broken.sf2"}) {
        RecordTo(PathOf(std::string(font) + ".raw"));
        options.SoundFonts = {PathOf(font)};
        Play(options);
        StartMusic("P:\\a.mid");
        Sounds->PlayWave("P:\\b.wav");
        ASSERT_TRUE(Soon([&] { return Contains("B."); }));
        StartMusic("P:\\a.mid");
        ASSERT_TRUE(MoreIsHeard(2));
        EXPECT_EQ(Story(), "B.") << font;
    }
}

}  // namespace
}  // namespace trameli
