// Waves as they are heard.
#include <algorithm>

#include "recorded_sounds.h"

namespace trameli {
namespace {

TEST_F(RecordedSounds, AWaveIsHeardOnceToItsEnd) {
    Put("A.WAV", Tone(PitchA, 1));
    Play();
    Sounds->PlayWave("p:\\a.Wav");
    ASSERT_TRUE(Soon([&] { return Story() == "A."; }));
    ASSERT_TRUE(MoreIsHeard(1));
    EXPECT_EQ(Story(), "A.");
    const std::string letters = Letters();
    EXPECT_NEAR(static_cast<double>(std::count(letters.begin(), letters.end(), 'A')), 50, 2);
}

TEST_F(RecordedSounds, ANewWaveCutsOffTheOneBefore) {
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

TEST_F(RecordedSounds, TheSameWaveBeginsAgain) {
    Put("ab.wav", [] {
        Samples sound = SamplesOf(Tone(PitchA, 0.5));
        const Samples b = SamplesOf(Tone(PitchB, 20));
        sound.insert(sound.end(), b.begin(), b.end());
        return WaveOf(sound);
    }());
    Play();
    Sounds->PlayWave("P:\\ab.wav");
    ASSERT_TRUE(Soon([&] { return Story().ends_with("B"); }));
    Sounds->PlayWave("P:\\ab.wav");
    EXPECT_TRUE(Soon([&] { return Story().find('A', 1) != std::string::npos; }));
    EXPECT_TRUE(Soon([&] { return Story().ends_with("B"); }));
}

TEST_F(RecordedSounds, OfManyAtOnceTheLastIsHeard) {
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

TEST_F(RecordedSounds, WavesOfOtherKindsAreHeardToo) {
    // 8 bits at half the rate: every second sample, its upper half, with the zero in the middle.
    std::string wave = Tone(PitchA, 1);
    const Samples sound = SamplesOf(wave);
    wave.resize(44);
    for (std::size_t i = 0; i < sound.size(); i += 2) {
        wave += static_cast<char>((sound[i] >> 8) + 128);
    }
    const std::string format{"\x22\x56\0\0\x22\x56\0\0\1\0\x08\0", 12};
    wave.replace(24, format.size(), format);
    wave.replace(40, 4, {"\x22\x56\0\0", 4});
    Put("a.wav", wave);
    Play();
    Sounds->PlayWave("P:\\a.wav");
    EXPECT_TRUE(Soon([&] { return Story() == "A."; }));
}

}  // namespace
}  // namespace trameli
