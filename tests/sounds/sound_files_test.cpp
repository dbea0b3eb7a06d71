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
    // The sound library would play some of them.
    const struct {
        const char* Name;
        std::string Bytes;
    } broken[] = {
        {"Empty", ""},
        {"Text", "non sono un suono\n"},
        {"HalfAHeader", Tone(PitchA, 1).substr(0, 20)},
        {"HeaderOnly", Tone(PitchA, 1).substr(0, 44)},
        {"NoData", With(40, Little(0, 4))},
        {"NoFormat", With(12, "junk")},
        {"FormatTooShort", With(16, Little(8, 4))},
        {"ChunkTooLong", With(16, Little(0xffffffff, 4))},
        {"Compressed", With(20, Little(2, 2))},
        {"NoChannel", With(22, Little(0, 2))},
        {"ManyChannels", With(22, Little(65535, 2))},
        {"OneSampleASecond", With(24, Little(1, 4))},
        {"TooManySamples", With(24, Little(0x7fffffff, 4))},
        {"OddFrames", With(32, Little(3, 2))},
        {"NoBits", With(34, Little(0, 2))},
        {"FineBits", With(34, Little(24, 2))},
        {"Music", Tune(1, 1)},
    };
    for (const auto& [name, bytes] : broken) {
        EXPECT_FALSE(IsPlainWave(bytes)) << name;
    }
    std::string wave = Tone(PitchA, 1);
    EXPECT_TRUE(IsPlainWave(wave));
    EXPECT_TRUE(IsPlainWave(With(32, Little(1, 2) + Little(8, 2)))) << "8 bits";
    wave.insert(36, "LIST" + Little(3, 4) + "abc" + std::string(1, '\0'));
    wave.insert(12, "JUNK" + Little(4, 4) + "abcd");
    EXPECT_TRUE(IsPlainWave(wave)) << "chunks of other kinds may come between";
    EXPECT_TRUE(IsMidi(Tune(1, 1)));
    EXPECT_FALSE(IsMidi(wave));
}

using SoundFiles = RecordedSounds;

TEST_F(SoundFiles, BrokenMusicEndsAndTheNextIsHeard) {
    const std::string pieces[] = {
        "",
        "non sono una musica\n",
        Tune(1, 1).substr(0, 9),
        Tune(1, 1).substr(0, 14),
        Tune(1, 1).substr(14),
        Tone(PitchA, 1),
        Tune(1, 1).replace(12, 2, 2, '\0'),             // no ticks
        Tune(1, 1).replace(18, 4, "\x7f\xff\xff\xff"),  // a track without end
        Tune(1, 1).substr(0, 40),
        "MThd" + std::string(5000, '\xa7'),
    };
    Put("a.wav", Tone(PitchA, 0.5));
    Put("b.mid", Tune(1, 100));
    Play();
    for (const std::string& piece : pieces) {
        Put("broken.mid", piece);
        Sounds->OpenMusic("P:\\broken.mid");
        Sounds->PlayMusic();
        Sounds->PlayWave("P:\\a.wav");
        ASSERT_TRUE(MoreIsHeard(1)) << piece.size();
    }
    Sounds->OpenMusic("P:\\b.mid");
    Sounds->PlayMusic();
    EXPECT_TRUE(Soon([&] { return Story().ends_with("B"); }));
}

TEST_F(SoundFiles, AWaveThatBreaksOffIsHeardUpToThere) {
    Put("a.wav", Tone(PitchA, 20).substr(0, 44 + 2 * 44100));
    Play();
    Sounds->PlayWave("P:\\a.wav");
    EXPECT_TRUE(Soon([&] { return Story() == "A."; }));
}

TEST_F(SoundFiles, WhatCannotBeReadIsSilent) {
    // The huge ones are nearly all holes on the disk, with a good beginning.
    Put("huge.wav", Tone(PitchA, 1).replace(40, 4, Little(1U << 30, 4)));
    Put("huge.mid", Tune(1, 1));
    std::filesystem::resize_file(PathOf("huge.wav"), 1U << 30);
    std::filesystem::resize_file(PathOf("huge.mid"), 1U << 30);
    std::filesystem::create_directory(PathOf("folder.wav"));
    ASSERT_EQ(mkfifo(PathOf("pipe.wav").c_str(), 0600), 0);
    Put("compressed.wav", With(20, Little(2, 2)));
    Put("wave.mid", Tone(PitchA, 1));
    Put("b.wav", Tone(PitchB, 0.5));
    Play();
    for (const char* path : {"P:\\huge.mid", "P:\\wave.mid", "P:\\folder.wav", "P:\\pipe.wav"}) {
        Sounds->OpenMusic(path);
        Sounds->PlayMusic();
        Sounds->PlayWave("P:\\missing.wav");
        ASSERT_TRUE(MoreIsHeard(0.2)) << path;
    }
    for (const char* path : {"P:\\huge.wav", "P:\\compressed.wav", "P:\\folder.wav", "P:\\pipe.wav",
                             "P:\\..\\b.wav", "Q:\\b.wav", ""}) {
        Sounds->PlayWave(path);
        ASSERT_TRUE(MoreIsHeard(0.2)) << path;
    }
    EXPECT_EQ(Story(), "");
    Sounds->PlayWave("P:\\b.wav");
    EXPECT_TRUE(Soon([&] { return Story() == "B."; })) << Letters();
}

}  // namespace
}  // namespace trameli
