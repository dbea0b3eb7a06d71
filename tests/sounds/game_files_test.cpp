// The sounds that come with the game.
#include <algorithm>
#include <cstdlib>

#include "recorded_sounds.h"

namespace trameli {
namespace {

constexpr double Rate = 44100;
constexpr int HighestPeak = 22900;  // below -3 dBFS
constexpr int Silent = 33;          // -60 dBFS

class GameFiles : public RecordedSounds {
protected:
    GameFiles() { std::filesystem::copy(GAME_SOUNDS, PathOf("suoni")); }

    static bool IsSound(int sample) { return sample != 0; }
    /// From the first sample that is not silent.
    static Samples Trimmed(const Samples& sound) {
        return {std::find_if(sound.begin(), sound.end(), IsSound), sound.end()};
    }
    static int PeakOf(const Samples& sound) {
        const auto [low, high] = std::minmax_element(sound.begin(), sound.end());
        return std::max(-*low, +*high);
    }
};

TEST_F(GameFiles, WavesAreShortAndSoftAtBothEndsAndHeardAsTheyAre) {
    const struct {
        const char* Name;
        double Longest;  // seconds
    } waves[] = {{"boing.wav", 0.6}, {"si.wav", 0.6}, {"muovi.wav", 0.1}};
    for (const auto& [name, longest] : waves) {
        SCOPED_TRACE(name);
        const Samples wave = Trimmed(SamplesOf(BytesOf(PathOf("suoni") / name)));
        EXPECT_LT(static_cast<double>(wave.size()), longest * Rate);
        EXPECT_LT(PeakOf(wave), HighestPeak);
        EXPECT_LT(std::abs(wave.front()), Silent);
        EXPECT_LT(std::abs(wave.back()), Silent);
        RecordTo(PathOf(name));
        Play();
        Sounds->PlayWave(std::string("P:\\suoni\\") + name);
        ASSERT_TRUE(Soon([&] { return Trimmed(Heard()).size() >= wave.size(); }));
        const Samples heard = Trimmed(Heard());
        for (std::size_t i = 0; i < wave.size(); ++i) {
            ASSERT_NEAR(heard[i], wave[i], 1) << i;
        }
    }
}

TEST_F(GameFiles, TheMusicLastsHalfAMinuteAndLeavesRoomForAWave) {
    setenv("SDL_DISKAUDIODELAY", "1", 1);
    MixerOptions options;
    options.Silence = std::chrono::seconds(0);
    Play(options);
    Sounds->PlayMusic("P:\\suoni\\coppa.mid");
    ASSERT_TRUE(Soon([&] { return DeviceIsOpen(); }));
    ASSERT_TRUE(Soon([&] { return !DeviceIsOpen(); }));
    Samples heard = Trimmed(Heard());
    const auto isLoud = [](int sample) { return std::abs(sample) > 300; };
    heard.erase(std::find_if(heard.rbegin(), heard.rend(), isLoud).base(), heard.end());
    EXPECT_NEAR(static_cast<double>(heard.size()) / Rate, 30, 2);
    EXPECT_LT(PeakOf(heard), HighestPeak);
}

}  // namespace
}  // namespace trameli
