// Ears for tests: sounds are played to a device that writes down what is heard.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/qt/mixer_sounds.h"
#include "support/stage.h"

namespace trameli {

/// Sound of one channel, 44100 samples a second.
using Samples = std::vector<std::int16_t>;

/// A whole number as sound files hold it, its lowest byte first.
std::string Little(std::uint32_t number, int bytes);
/// The two pitches that the tests tell apart, hertz. No overtone of one is near the other.
constexpr double PitchA = 440;
constexpr double PitchB = 659.26;
/// So many seconds of one pitch, in a wave file of 16 bits, mono.
std::string Tone(double pitch, double seconds);

/// A MIDI file with both pitches one after the other, held for so many seconds.
std::string Tune(int secondsOfA, int secondsOfB);

/// Asks until the answer is yes; no after a time that only something stuck needs.
bool Soon(const std::function<bool()>& question);

/// Plays from a program folder of its own to a recording, several times as fast as one could
/// listen.
class RecordedSounds : public testing::Test {
protected:
    RecordedSounds();
    ~RecordedSounds() override;

    void Play(MixerOptions options = {}) {
        Sounds.emplace(LocalFileSystem(folder_.Path() / "data", folder_.Path()),
                       std::move(options));
    }
    /// Makes a file of the program folder, "P:\NAME".
    void Put(const std::string& name, const std::string& bytes) const;
    std::filesystem::path PathOf(const std::string& name) const { return folder_.Path() / name; }

    /// Where the device writes to. A new recording begins whenever the device is opened.
    void RecordTo(const std::filesystem::path& file);
    /// What was heard up to now, on the left.
    Samples Heard() const;
    /// What was heard, with a letter for each fiftieth of a second: A and B for the pitches, a dot
    /// for silence, a question mark for anything else.
    std::string Letters() const;
    /// Letters with the same in a row told once, without the silence at the beginning.
    std::string Story() const;
    /// Waits until this much more was recorded.
    bool MoreIsHeard(double seconds) const;
    /// True while the device writes.
    bool DeviceIsOpen() const;

    std::optional<MixerSounds> Sounds;

private:
    /// How many samples of each channel were recorded.
    std::size_t Recorded() const;

    TemporaryFolder folder_;
    std::filesystem::path recording_;
};

}  // namespace trameli
