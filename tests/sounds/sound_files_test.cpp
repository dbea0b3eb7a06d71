// Files that are no sounds, or not those that their names promise.
#include "platform/qt/sound_files.h"

#include <sys/stat.h>

#include "recorded_sounds.h"

namespace trameli {
namespace {

/// A good wave with other bytes at one place.
std::string With(std::size_t place, const std::string& bytes) {
    return Tone(PitchA, 1).replace(place, bytes.size(), bytes);
}

TEST(PlainFiles, AreAllThatIsHandedOn) {
    // The sound library would play some of the others.
    std::string wave = Tone(PitchA, 1);
    wave.insert(36, "LIST" + Little(3, 4) + "abc" + std::string(1, '\0'));
    const struct {
        const char* What;
        std::string Bytes;
        bool Plain = false;
    } rows[] = {
        {"16 bits, and chunks of other kinds between", wave, true},
        {"8 bits", With(32, Little(1, 2) + Little(8, 2)), true},
        {"stereo", With(22, Little(2, 2)).replace(32, 2, Little(4, 2)), true},
        {"nothing", ""},
        {"half a header", Tone(PitchA, 1).substr(0, 20)},
        {"no data", With(40, Little(0, 4))},
        {"no format", With(12, "junk")},
        {"a short format", With(16, Little(8, 4))},
        {"an endless chunk", With(16, Little(0xffffffff, 4))},
        {"compressed", With(20, Little(2, 2))},
        {"many channels", With(22, Little(6, 2)).replace(32, 2, Little(12, 2))},
        {"many samples", With(24, Little(0x7fffffff, 4))},
        {"odd frames", With(32, Little(3, 2))},
        {"24 bits", With(32, Little(3, 2) + Little(24, 2))},
        {"music", Tune(1, 1)},
    };
    for (const auto& [what, bytes, plain] : rows) {
        EXPECT_EQ(IsPlainWave(bytes), plain) << what;
    }
}

TEST(PlainFiles, AreThoseOfTheGame) {
    const std::filesystem::path sounds = GAME_SOUNDS;
    for (const char* wave : {"boing.wav", "si.wav", "muovi.wav"}) {
        EXPECT_TRUE(IsPlainWave(BytesOf(sounds / wave))) << wave;
    }
    EXPECT_TRUE(IsMidi(BytesOf(sounds / "coppa.mid")));
}

using SoundFiles = RecordedSounds;

TEST_F(SoundFiles, WhatCannotBePlayedIsSilentAndTheNextIsHeard) {
    Put("text.mid", "non sono una musica\n");
    Put("header.mid", Tune(1, 1).substr(0, 14));
    Put("b.wav", Tone(PitchB, 20).substr(0, 44 + 2 * 44100));  // breaks off
    Put("compressed.wav", With(20, Little(2, 2)));
    // The huge ones are nearly all holes on the disk, with a good beginning.
    Put("huge.mid", Tune(1, 1));
    Put("huge.wav", With(40, Little(1U << 30, 4)));
    for (const char* huge : {"huge.wav", "huge.mid"}) {
        std::filesystem::resize_file(PathOf(huge), 1U << 30);
    }
    std::filesystem::create_directory(PathOf("folder"));
    ASSERT_EQ(mkfifo(PathOf("pipe").c_str(), 0600), 0);
    Play();
    for (const std::string name : {"huge.wav", "huge.mid", "compressed.wav", "text.mid",
                                   "header.mid", "missing", "folder", "pipe"}) {
        Sounds->PlayWave("P:\\" + name);
        Sounds->PlayMusic("P:\\" + name);
        ASSERT_TRUE(MoreIsHeard(0.5)) << name;
    }
    Sounds->PlayMusic("P:\\b.wav");
    ASSERT_TRUE(MoreIsHeard(0.5));
    Sounds->PlayWave("P:\\b.wav");
    EXPECT_TRUE(Soon([&] { return Story() == "B."; })) << Letters();
    Put("ab.mid", Tune(1, 1));
    Sounds->PlayMusic("P:\\ab.mid");
    EXPECT_TRUE(Soon([&] { return Story() == "B.AB."; })) << Letters();
}

}  // namespace
}  // namespace trameli
