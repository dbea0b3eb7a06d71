// Files that are no sounds, or not those that their names promise.
#include "platform/qt/sound_files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <ostream>

#include "recorded_sounds.h"

namespace trameli {
namespace {

std::string With(std::size_t place, const std::string& bytes) {
    return Tone(PitchA, 1).replace(place, bytes.size(), bytes);
}

std::string Little(unsigned number, int bytes) {
    std::string text;
    for (int i = 0; i < bytes; ++i) {
        text += static_cast<char>(number >> 8 * i & 0xff);
    }
    return text;
}

struct Broken {
    const char* Name;
    std::string Bytes;
};

void PrintTo(const Broken& broken, std::ostream* out) {
    *out << broken.Name;
}

/// Every single one is silent, though the sound library would play some of them.
const Broken BrokenWaves[] = {
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
    {"OtherContainer", "OggS" + std::string(2000, '\0')},
};

class BrokenWave : public RecordedSounds, public testing::WithParamInterface<Broken> {};

TEST_P(BrokenWave, IsSilentAndTheNextIsHeard) {
    EXPECT_FALSE(IsPlainWave(GetParam().Bytes));
    Put("broken.wav", GetParam().Bytes);
    Put("b.wav", Tone(PitchB, 0.5));
    Play();
    Sounds->PlayWave("P:\\broken.wav");
    ASSERT_TRUE(MoreIsHeard(0.5));
    Sounds->PlayWave("P:\\b.wav");
    ASSERT_TRUE(Soon([&] { return Story().ends_with("B."); }));
    EXPECT_EQ(Story(), "B.");
}

INSTANTIATE_TEST_SUITE_P(Files, BrokenWave, testing::ValuesIn(BrokenWaves),
                         [](const auto& broken) { return broken.param.Name; });

const Broken BrokenMusic[] = {
    {"Empty", ""},
    {"Text", "non sono una musica\n"},
    {"HeaderOnly", Tune(1, 1).substr(0, 14)},
    {"HalfAHeader", Tune(1, 1).substr(0, 9)},
    {"NoHeader", Tune(1, 1).substr(14)},
    {"Wave", Tone(PitchA, 1)},
    {"NoTicks", Tune(1, 1).replace(12, 2, 2, '\0')},
    {"TrackTooLong", Tune(1, 1).replace(18, 4, "\x7f\xff\xff\xff")},
    {"HalfATrack", Tune(1, 1).substr(0, 40)},
    {"Noise", "MThd" + std::string(5000, '\xa7')},
};

class BrokenPiece : public RecordedSounds, public testing::WithParamInterface<Broken> {};

TEST_P(BrokenPiece, EndsAndTheNextIsHeard) {
    Put("broken.mid", GetParam().Bytes);
    Put("b.mid", Tune(1, 1));
    Put("a.wav", Tone(PitchA, 0.5));
    Play();
    Sounds->OpenMusic("P:\\broken.mid");
    Sounds->PlayMusic();
    Sounds->PlayWave("P:\\a.wav");
    ASSERT_TRUE(Soon([&] { return Story().find("A") != std::string::npos; }));
    ASSERT_TRUE(MoreIsHeard(3));
    Sounds->OpenMusic("P:\\b.mid");
    Sounds->PlayMusic();
    EXPECT_TRUE(Soon([&] { return Story().find("B") != std::string::npos; }));
}

INSTANTIATE_TEST_SUITE_P(Files, BrokenPiece, testing::ValuesIn(BrokenMusic),
                         [](const auto& broken) { return broken.param.Name; });

TEST_F(RecordedSounds, AWaveThatBreaksOffIsHeardUpToThere) {
    const std::string whole = Tone(PitchA, 20);
    Put("a.wav", whole.substr(0, 44 + 2 * 44100));
    Play();
    Sounds->PlayWave("P:\\a.wav");
    EXPECT_TRUE(Soon([&] { return Story() == "A."; }));
}

TEST_F(RecordedSounds, WhatCannotBeReadIsSilent) {
    // The huge ones are nearly all holes on the disk, with a good beginning.
    Put("huge.wav", Tone(PitchA, 1).replace(40, 4, Little(1U << 30, 4)));
    Put("huge.mid", Tune(1, 1));
    std::filesystem::resize_file(PathOf("huge.wav"), 1U << 30);
    std::filesystem::resize_file(PathOf("huge.mid"), 1U << 30);
    std::filesystem::create_directory(PathOf("folder.wav"));
    ASSERT_EQ(mkfifo(PathOf("pipe.wav").c_str(), 0600), 0);
    Put("b.wav", Tone(PitchB, 0.5));
    Play();
    for (const char* name : {"huge.mid", "missing.mid", "folder.wav", "pipe.wav"}) {
        Sounds->OpenMusic(std::string("P:\\") + name);
        Sounds->PlayMusic();
        Sounds->PlayWave("P:\\missing.wav");
        ASSERT_TRUE(MoreIsHeard(0.2)) << name;
    }
    for (const char* name : {"huge.wav", "missing.wav", "folder.wav", "pipe.wav", "..\\b.wav"}) {
        Sounds->PlayWave(std::string("P:\\") + name);
        ASSERT_TRUE(MoreIsHeard(0.2)) << name;
    }
    Sounds->PlayWave("Q:\\b.wav");
    Sounds->PlayWave("");
    ASSERT_TRUE(MoreIsHeard(0.2));
    EXPECT_EQ(Story(), "");
    Sounds->PlayWave("P:\\b.wav");
    EXPECT_TRUE(Soon([&] { return Story() == "B."; }));
}

TEST(SoundFiles, ChunksOfOtherKindsMayComeBetween) {
    std::string wave = Tone(PitchA, 1);
    wave.insert(36, "LIST" + Little(3, 4) + "abc" + std::string(1, '\0'));
    wave.insert(12, "JUNK" + Little(4, 4) + "abcd");
    EXPECT_TRUE(IsPlainWave(wave));
}

TEST(SoundFiles, MusicBeginsAsMidiDoes) {
    EXPECT_TRUE(IsMidi(Tune(1, 1)));
    for (const std::string& other : {std::string(), std::string("MTh"), Tone(PitchA, 1)}) {
        EXPECT_FALSE(IsMidi(other)) << other.substr(0, 8);
    }
}

}  // namespace
}  // namespace trameli
