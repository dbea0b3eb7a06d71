// Waves and music as they are heard.
#include <algorithm>

#include "recorded_sounds.h"

namespace trameli {
namespace {

class HeardSounds : public RecordedSounds {
protected:
    HeardSounds() {
        Put("a.wav", Tone(PitchA, 1));
        Put("b.wav", Tone(PitchB, 20));
        Put("short.mid", Tune(1, 2));
        Put("long.mid", Tune(1, 150));
    }

    bool StoryEnds(const std::string& end) const {
        return Soon([&] { return Story().ends_with(end); });
    }
    /// How long a pitch was heard since this much of the recording, in fiftieths of a second.
    double LengthOf(char letter, std::size_t since = 0) const {
        const std::string letters = Letters().substr(since);
        return static_cast<double>(std::count(letters.begin(), letters.end(), letter));
    }
};

TEST_F(HeardSounds, WavesPlayOnceAndTheLastWinsAtOnce) {
    Play();
    Sounds->PlayWave("P:\\a.wav");
    ASSERT_TRUE(StoryEnds("A."));
    ASSERT_TRUE(MoreIsHeard(2));
    EXPECT_EQ(Story(), "A.");
    EXPECT_NEAR(LengthOf('A'), 50, 2);
    Sounds->PlayWave("P:\\b.wav");
    ASSERT_TRUE(StoryEnds("B"));
    for (int i = 0; i < 1000; ++i) {
        Sounds->PlayWave("P:\\b.wav");
    }
    Sounds->PlayWave("P:\\a.wav");
    EXPECT_TRUE(StoryEnds("BA."));
    EXPECT_LT(LengthOf('B'), 15 * 50) << "cut off in the middle";
}

TEST_F(HeardSounds, MusicBeginsAnewSoundsUnderWavesAndEndsWhenItIsStopped) {
    Play();
    Sounds->PlayMusic("P:\\long.mid");
    ASSERT_TRUE(StoryEnds("AB"));
    const std::size_t half = Letters().size();
    Sounds->PlayMusic("P:\\long.mid");
    ASSERT_TRUE(StoryEnds("AB") && Soon([&] { return LengthOf('A', half) > 40; }))
        << "the first one would have gone on with B in the middle";
    ASSERT_TRUE(StoryEnds("B"));
    const std::size_t alone = Letters().size();
    Sounds->PlayWave("P:\\a.wav");
    ASSERT_TRUE(Soon([&] { return Letters().find_first_of("A?", alone) != std::string::npos; }));
    ASSERT_TRUE(StoryEnds("B")) << "goes on after the wave";
    Sounds->StopMusic();
    ASSERT_TRUE(MoreIsHeard(3));
    EXPECT_TRUE(Letters().ends_with(std::string(50, '.')));
}

TEST_F(HeardSounds, MusicNeedsTheFirstInstrumentsThatThereAre) {
    MixerOptions options;
    auto& fonts = options.SoundFonts;
    fonts.insert(fonts.begin(), PathOf("missing.sf2"));
    Play(options);
    Sounds->PlayMusic("P:\\short.mid");
    EXPECT_TRUE(StoryEnds("AB."));
}

}  // namespace
}  // namespace trameli
