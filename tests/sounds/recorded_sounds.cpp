#include "recorded_sounds.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdlib>
#include <fstream>
#include <numbers>
#include <thread>

namespace trameli {

namespace {

constexpr int Rate = 44100;
constexpr std::size_t Window = Rate / 50;

/// Tells the pitches apart by how often they pass through zero.
char LetterOf(const std::int16_t* window) {
    int loudest = 0;
    double crossings = 0;
    for (std::size_t i = 1; i < Window; ++i) {
        loudest = std::max(loudest, std::abs(window[i]));
        crossings += (window[i - 1] < 0) != (window[i] < 0);
    }
    if (loudest < 50) {
        return '.';
    }
    const auto isPitch = [&](double pitch) {
        return std::abs(crossings - 2 * pitch * Window / Rate) < 2.5;
    };
    return isPitch(PitchA) ? 'A' : isPitch(PitchB) ? 'B' : '?';
}

}  // namespace

std::string Little(std::uint32_t number, int bytes) {
    std::string text;
    for (int i = 0; i < bytes; ++i) {
        text += static_cast<char>(number >> 8 * i & 0xff);
    }
    return text;
}

std::string Tone(double pitch, double seconds) {
    Samples sound(static_cast<std::size_t>(seconds * Rate));
    for (std::size_t i = 0; i < sound.size(); ++i) {
        const double turn = 2 * std::numbers::pi * pitch / Rate * static_cast<double>(i);
        sound[i] = static_cast<std::int16_t>(std::lround(25000 * std::sin(turn)));
    }
    const auto length = static_cast<std::uint32_t>(2 * sound.size());
    std::string wave = "RIFF" + Little(36 + length, 4) + "WAVEfmt " + Little(16, 4) + Little(1, 2) +
                       Little(1, 2) + Little(Rate, 4) + Little(2 * Rate, 4) + Little(2, 2) +
                       Little(16, 2) + "data" + Little(length, 4);
    return wave.append(reinterpret_cast<const char*>(sound.data()), length);
}

std::string Tune(int secondsOfA, int secondsOfB) {
    // 96 ticks a second; no reverberation and no chorus, which would mix the pitches.
    const auto wait = [](int seconds) {
        const int ticks = 96 * seconds;
        return std::string{static_cast<char>(0x80 | ticks >> 7), static_cast<char>(ticks & 0x7f)};
    };
    using namespace std::string_literals;
    const std::string track = "\0\xff\x51\3\x0f\x42\x40"s + "\0\xc0\x4f"s + "\0\xb0\x5b\0"s +
                              "\0\xb0\x5d\0"s + "\0\x90\x45\x60"s + wait(secondsOfA) +
                              "\x80\x45\0"s + "\0\x90\x4c\x60"s + wait(secondsOfB) + "\x80\x4c\0"s +
                              "\0\xff\x2f\0"s;
    return "MThd\0\0\0\6\0\0\0\1\0\x60MTrk\0\0\0"s + static_cast<char>(track.size()) + track;
}

bool Soon(const std::function<bool()>& question) {
    using namespace std::chrono;
    for (const auto end = steady_clock::now() + 30s; steady_clock::now() < end;) {
        if (question()) {
            return true;
        }
        std::this_thread::sleep_for(50ms);
    }
    return false;
}

RecordedSounds::RecordedSounds() {
    setenv("SDL_AUDIODRIVER", "disk", 1);
    setenv("SDL_DISKAUDIODELAY", "5", 1);
    RecordTo(PathOf("recording"));
}

RecordedSounds::~RecordedSounds() {
    Sounds.reset();  // before the folder
}

void RecordedSounds::Put(const std::string& name, const std::string& bytes) const {
    Write(PathOf(name), bytes);
}

void RecordedSounds::RecordTo(const std::filesystem::path& file) {
    recording_ = file;
    setenv("SDL_DISKAUDIOFILE", file.c_str(), 1);
}

std::size_t RecordedSounds::Recorded() const {
    std::error_code error;
    const auto size = std::filesystem::file_size(recording_, error);
    return error ? 0 : size / 4;
}

Samples RecordedSounds::Heard() const {
    // In one go: it is asked for again and again while the recording grows.
    Samples both(2 * Recorded());
    std::ifstream(recording_, std::ios::binary)
        .read(reinterpret_cast<char*>(both.data()), static_cast<std::streamsize>(2 * both.size()));
    Samples left(both.size() / 2);
    for (std::size_t i = 0; i < left.size(); ++i) {
        left[i] = both[2 * i];
    }
    return left;
}

std::string RecordedSounds::Letters() const {
    const Samples heard = Heard();
    std::string letters;
    for (std::size_t i = 0; i + Window <= heard.size(); i += Window) {
        letters += LetterOf(heard.data() + i);
    }
    // A window in which one sound gives way to another tells nothing: it is like neither neighbour.
    std::string sure;
    for (std::size_t i = 0; i < letters.size(); ++i) {
        if ((i > 0 && letters[i] == letters[i - 1]) ||
            (i + 1 < letters.size() && letters[i] == letters[i + 1])) {
            sure += letters[i];
        }
    }
    return sure;
}

std::string RecordedSounds::Story() const {
    std::string story = Letters();
    story.erase(0, story.find_first_not_of('.'));
    story.erase(std::unique(story.begin(), story.end()), story.end());
    return story;
}

bool RecordedSounds::MoreIsHeard(double seconds) const {
    const auto enough = Recorded() + static_cast<std::size_t>(seconds * Rate);
    return Soon([&] { return Recorded() >= enough; });
}

bool RecordedSounds::DeviceIsOpen() const {
    std::error_code error;
    for (const auto& handle : std::filesystem::directory_iterator("/proc/self/fd", error)) {
        if (std::filesystem::read_symlink(handle, error) == recording_) {
            return true;
        }
    }
    return false;
}

}  // namespace trameli
