// Waves as they are heard.
#include <algorithm>

#include "recorded_sounds.h"

namespace trameli {
namespace {

using RecordedWaves = RecordedSounds;

TEST_F(RecordedWaves, OneIsHeardOnceToItsEnd) {
    Put("A.WAV", Tone(PitchA, 1));
    Play();
    Sounds->PlayWave("p:\\a.Wav");
    ASSERT_TRUE(Soon([&] { return Story() == "A."; }));
    ASSERT_TRUE(MoreIsHeard(1));
    EXPECT_EQ(Story(), "A.");
    const std::string letters = Letters();
    EXPECT_NEAR(static_cast<double>(std::count(letters.begin(), letters.end(), 'A')), 50, 2);
}

TEST_F(RecordedWaves, ANewOneCutsOffTheOneBefore) {
    Put("a.wav", Tone(PitchA, 20));
    Put("b.wav", Tone(PitchB, 1));
    Play();
    Sounds->PlayWave("P:\\a.wav");
    ASSERT_TRUE(Soon([&] { return Story() == "A"; }));
    Sounds->PlayWave("P:\\b.wav");
    ASSERT_TRUE(Soon([&] { return Story().ends_with("B."); }));
    ASSERT_TRUE(MoreIsHeard(1));
    EXPECT_EQ(Story(), "AB.");
    const std::string letters = Letters();
    EXPECT_LT(std::count(letters.begin(), letters.end(), 'A'), 15 * 50);
}

TEST_F(RecordedWaves, TheSameOneBeginsAgain) {
    Samples sound = SamplesOf(Tone(PitchA, 0.5));
    const Samples b = SamplesOf(Tone(PitchB, 20));
    sound.insert(sound.end(), b.begin(), b.end());
    Put("ab.wav", WaveOf(sound));
    Play();
    Sounds->PlayWave("P:\\ab.wav");
    ASSERT_TRUE(Soon([&] { return Story().ends_with("B"); }));
    Sounds->PlayWave("P:\\ab.wav");
    EXPECT_TRUE(Soon([&] { return Story().find('A', 1) != std::string::npos; }));
    EXPECT_TRUE(Soon([&] { return Story().ends_with("B"); }));
}

TEST_F(RecordedWaves, OfManyAtOnceTheLastIsHeard) {
    Put("a.wav", Tone(PitchA, 0.5));
    Put("b.wav", Tone(PitchB, 0.5));
    Play();
    for (int i = 0; i < 1000; ++i) {
        Sounds->PlayWave("P:\\a.wav");
    }
    Sounds->PlayWave("P:\\b.wav");
    ASSERT_TRUE(Soon([&] { return Story().ends_with("B."); }));
    ASSERT_TRUE(MoreIsHeard(1));
    EXPECT_TRUE(Story().ends_with("B.")) << Story();
}

}  // namespace
}  // namespace trameli
