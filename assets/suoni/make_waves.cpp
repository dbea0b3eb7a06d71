// Makes the three short sounds, in the folder given: boing.wav, si.wav, muovi.wav.
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <numbers>
#include <string>
#include <vector>

namespace {

constexpr int Rate = 44100;
constexpr double Turn = 2 * std::numbers::pi;

using Wave = std::vector<double>;

Wave Silence(double seconds) {
    return Wave(static_cast<std::size_t>(seconds * Rate), 0.0);
}

double TimeOf(std::size_t i) {
    return static_cast<double>(i) / Rate;
}

/// From 0 at `from` to 1 at `to`, without corners.
double Rise(double t, double from, double to) {
    const double x = std::clamp((t - from) / (to - from), 0.0, 1.0);
    return x * x * (3 - 2 * x);
}

/// A rubber band: the pitch falls fast and goes on wobbling, the overtones die before the ground.
Wave Boing() {
    Wave wave = Silence(0.45);
    double phase = 0;
    for (std::size_t i = 0; i < wave.size(); ++i) {
        const double t = TimeOf(i);
        const double wobble = 0.16 * std::sin(Turn * 15 * t) * std::exp(-3 * t);
        const double pitch = (175 + 190 * std::exp(-14 * t)) * (1 + wobble);
        phase += Turn * pitch / Rate;
        double sound = 0;
        for (int overtone = 1; overtone <= 7; ++overtone) {
            sound += std::sin(phase * overtone) * std::exp(-(2.5 + 2.2 * overtone) * t) /
                     std::pow(overtone, 0.9);
        }
        wave[i] = sound * Rise(t, 0, 0.006) * (1 - Rise(t, 0.30, 0.45));
    }
    return wave;
}

/// How strongly a mouth that says "i" lets a frequency through.
double Vowel(double frequency) {
    const auto resonance = [frequency](double centre, double width) {
        const double x = (frequency - centre) / width;
        return 1 / (1 + x * x);
    };
    return resonance(310, 110) + 0.30 * resonance(2150, 180) + 0.16 * resonance(2900, 240) + 0.01;
}

/// Somebody says a glad "sì": a breath of s, then i with a rising voice.
Wave Si() {
    Wave wave = Silence(0.42);
    double phase = 0;
    std::uint32_t noise = 1;
    double last = 0;
    double beforeLast = 0;
    for (std::size_t i = 0; i < wave.size(); ++i) {
        const double t = TimeOf(i);
        const double pitch = 235 + 175 * Rise(t, 0.05, 0.34);
        phase += Turn * pitch / Rate;
        double voice = 0;
        for (int overtone = 1; overtone <= 20; ++overtone) {
            voice += std::sin(phase * overtone + 0.7 * overtone * overtone) *
                     Vowel(overtone * pitch) / std::sqrt(overtone);
        }
        noise = noise * 1664525 + 1013904223;
        const double random = static_cast<double>(noise >> 8) / (1 << 23) - 1;
        const double hiss = random - 2 * last + beforeLast;  // what is left is the high end
        beforeLast = last;
        last = random;
        wave[i] = voice * Rise(t, 0.06, 0.11) * (1 - Rise(t, 0.27, 0.42)) +
                  0.016 * hiss * Rise(t, 0, 0.04) * (1 - Rise(t, 0.06, 0.11));
    }
    return wave;
}

/// A fingertip on wood.
Wave Muovi() {
    Wave wave = Silence(0.08);
    for (std::size_t i = 0; i < wave.size(); ++i) {
        const double t = TimeOf(i);
        const double wood = std::sin(Turn * 820 * t) * std::exp(-t / 0.017) +
                            0.45 * std::sin(Turn * 1730 * t) * std::exp(-t / 0.008) +
                            0.20 * std::sin(Turn * 2960 * t) * std::exp(-t / 0.004);
        wave[i] = wood * Rise(t, 0, 0.002) * (1 - Rise(t, 0.05, 0.08));
    }
    return wave;
}

void Put(std::ofstream& file, std::uint32_t number, int bytes) {
    for (int i = 0; i < bytes; ++i) {
        file.put(static_cast<char>(number >> 8 * i & 0xff));
    }
}

/// Writes 16 bits, mono, with the highest peak at `peak` of what fits. The peaks are chosen by
/// ear's measure, so that none of the three stands out.
void Write(const std::filesystem::path& path, const Wave& wave, double peak) {
    double highest = 0;
    for (const double sample : wave) {
        highest = std::max(highest, std::abs(sample));
    }
    const auto length = static_cast<std::uint32_t>(2 * wave.size());
    std::ofstream file(path, std::ios::binary);
    file << "RIFF";
    Put(file, 36 + length, 4);
    file << "WAVEfmt ";
    Put(file, 16, 4);
    Put(file, 1, 2);
    Put(file, 1, 2);
    Put(file, Rate, 4);
    Put(file, 2 * Rate, 4);
    Put(file, 2, 2);
    Put(file, 16, 2);
    file << "data";
    Put(file, length, 4);
    for (const double sample : wave) {
        const long value = std::lround(sample / highest * peak * 32767);
        Put(file, static_cast<std::uint32_t>(value), 2);
    }
}

}  // namespace

int main(int argc, char** argv) {
    const std::filesystem::path folder = argc > 1 ? argv[1] : ".";
    Write(folder / "boing.wav", Boing(), 0.50);
    Write(folder / "si.wav", Si(), 0.36);
    Write(folder / "muovi.wav", Muovi(), 0.48);
    return 0;
}
