// The sounds that come with the game.
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <numbers>

#include "recorded_sounds.h"

namespace trameli {
namespace {

namespace fs = std::filesystem;

const fs::path GameSounds = GAME_SOUNDS;

constexpr double Rate = 44100;
constexpr double HighestPeak = 0.7;  // below -3 dBFS

struct GameSound {
    const char* Name;
    double Longest;  ///< seconds
};

constexpr GameSound GameWaves[] = {{"boing", 0.6}, {"si", 0.6}, {"muovi", 0.1}};

Samples WaveNamed(const std::string& name) {
    return SamplesOf(BytesOf(GameSounds / (name + ".wav")));
}

/// One pole of a filter, turned from the continuous to the sampled by the bilinear rule.
void Filter(std::vector<double>& sound, double poleHz, bool high) {
    const double pole = 2 * std::numbers::pi * poleHz;
    const double k = 2 * Rate;
    const double in = (high ? k : pole) / (k + pole);
    double lastIn = 0;
    double last = 0;
    for (double& sample : sound) {
        const double now =
            in * (high ? sample - lastIn : sample + lastIn) + (k - pole) / (k + pole) * last;
        lastIn = sample;
        last = now;
        sample = now;
    }
}

/// Decibels of a sound as an ear weighs it (curve A of IEC 61672): of all of it, and the highest
/// that a sound level meter shows when it is set to fast.
struct Level {
    double Whole;
    double Fast;
};
Level LevelOf(const Samples& wave) {
    std::vector<double> sound(wave.begin(), wave.end());
    for (const double pole : {20.6, 20.6, 107.7, 737.9}) {
        Filter(sound, pole, true);
    }
    for (const double pole : {12194.0, 12194.0}) {
        Filter(sound, pole, false);
    }
    const double keep = std::exp(-1 / (Rate * 0.125));
    double energy = 0;
    double fast = 0;
    double highest = 0;
    for (const double sample : sound) {
        const double power = std::pow(sample / 32768, 2);
        energy += power;
        fast = keep * fast + (1 - keep) * power;
        highest = std::max(highest, fast);
    }
    return {10 * std::log10(energy / static_cast<double>(sound.size())), 10 * std::log10(highest)};
}

TEST(GameFiles, WavesAreShortAndNeverTooLoud) {
    for (const auto& [name, longest] : GameWaves) {
        const Samples wave = WaveNamed(name);
        EXPECT_LT(static_cast<double>(wave.size()), longest * Rate) << name;
        const auto [low, high] = std::minmax_element(wave.begin(), wave.end());
        EXPECT_LT(std::max(-*low, +*high), HighestPeak * 32768) << name;
    }
}

TEST(GameFiles, WavesBeginAndEndInSilence) {
    for (const auto& [name, longest] : GameWaves) {
        const Samples wave = WaveNamed(name);
        EXPECT_LT(std::abs(wave.front()), 33) << name;  // -60 dBFS
        EXPECT_LT(std::abs(wave.back()), 33) << name;
        // A tick may begin fast, but not at once.
        for (std::size_t i = 1; i < wave.size(); ++i) {
            ASSERT_LT(std::abs(wave[i] - wave[i - 1]), 4000) << name << ' ' << i;
        }
    }
}

TEST(GameFiles, WavesAreAlikeInLoudness) {
    std::vector<double> whole;
    std::vector<double> fast;
    for (const auto& sound : GameWaves) {
        const Level level = LevelOf(WaveNamed(sound.Name));
        whole.push_back(level.Whole);
        fast.push_back(level.Fast);
    }
    for (const auto& levels : {whole, fast}) {
        const auto [quiet, loud] = std::minmax_element(levels.begin(), levels.end());
        EXPECT_LT(*loud - *quiet, 3) << *quiet << ' ' << *loud;
    }
}

class GameFilesHeard : public RecordedSounds, public testing::WithParamInterface<GameSound> {};

/// From the first sample that is not silent.
Samples Trimmed(Samples sound) {
    sound.erase(sound.begin(), std::find_if(sound.begin(), sound.end(), [](int s) { return s; }));
    return sound;
}

TEST_P(GameFilesHeard, JustAsItIs) {
    fs::copy(GameSounds, PathOf("suoni"));
    Play();
    Sounds->PlayWave(std::string("P:\\suoni\\") + GetParam().Name + ".wav");
    const Samples wave = Trimmed(WaveNamed(GetParam().Name));
    ASSERT_TRUE(Soon([&] { return Trimmed(Heard()).size() >= wave.size(); }));
    const Samples heard = Trimmed(Heard());
    for (std::size_t i = 0; i < wave.size(); ++i) {
        ASSERT_NEAR(heard[i], wave[i], 1) << i;
    }
}

INSTANTIATE_TEST_SUITE_P(Waves, GameFilesHeard, testing::ValuesIn(GameWaves),
                         [](const auto& sound) { return sound.param.Name; });

TEST_F(RecordedSounds, TheMusicOfTheGameLastsHalfAMinuteAndLeavesRoomForAWave) {
    fs::copy(GameSounds, PathOf("suoni"));
    setenv("SDL_DISKAUDIODELAY", "1", 1);
    MixerOptions options;
    options.Silence = std::chrono::seconds(0);
    Play(options);
    Sounds->OpenMusic("P:\\suoni\\coppa.mid");
    Sounds->PlayMusic();
    ASSERT_TRUE(Soon([&] { return DeviceIsOpen(); }));
    ASSERT_TRUE(Soon([&] { return !DeviceIsOpen(); }));
    Samples heard = Trimmed(Heard());
    const auto isLoud = [](int sample) { return std::abs(sample) > 300; };
    heard.erase(std::find_if(heard.rbegin(), heard.rend(), isLoud).base(), heard.end());
    EXPECT_NEAR(static_cast<double>(heard.size()) / Rate, 30, 2);
    const auto [low, high] = std::minmax_element(heard.begin(), heard.end());
    EXPECT_LT(std::max(-*low, +*high), HighestPeak * 32768);
}

}  // namespace
}  // namespace trameli
