#include "platform/qt/sound_files.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace trameli {

namespace {

constexpr std::size_t RiffHeader = 12;
constexpr std::size_t ChunkHeader = 8;
constexpr std::size_t PlainFormat = 16;

/// A whole number with its lowest byte first.
std::uint32_t NumberAt(std::string_view bytes, std::size_t place, std::size_t length) {
    std::uint32_t number = 0;
    for (std::size_t i = length; i > 0; --i) {
        number = number << 8 | static_cast<unsigned char>(bytes[place + i - 1]);
    }
    return number;
}

bool IsPlain(std::string_view format) {
    if (format.size() < PlainFormat) {
        return false;
    }
    const std::uint32_t kind = NumberAt(format, 0, 2);
    const std::uint32_t channels = NumberAt(format, 2, 2);
    const std::uint32_t rate = NumberAt(format, 4, 4);
    const std::uint32_t bits = NumberAt(format, 14, 2);
    return kind == 1 && (channels == 1 || channels == 2) && rate >= 8000 && rate <= 96000 &&
           (bits == 8 || bits == 16) && NumberAt(format, 12, 2) == channels * bits / 8;
}

/// Where the samples of a plain wave begin, behind what the file says of their length.
std::optional<std::size_t> SamplesOf(std::string_view bytes) {
    if (bytes.size() < RiffHeader || bytes.substr(0, 4) != "RIFF" || bytes.substr(8, 4) != "WAVE") {
        return std::nullopt;
    }
    bool plain = false;
    for (std::size_t place = RiffHeader; bytes.size() - place >= ChunkHeader;) {
        const std::string_view name = bytes.substr(place, 4);
        const std::size_t length = NumberAt(bytes, place + 4, 4);
        place += ChunkHeader;
        if (name == "data") {
            return plain && place < bytes.size() && length > 0 ? std::optional(place)
                                                               : std::nullopt;
        }
        if (name == "fmt ") {
            plain = IsPlain(bytes.substr(place, length));
            if (!plain) {
                return std::nullopt;
            }
        }
        // Chunks of odd length are followed by a byte that counts for nothing.
        place += std::min(length + length % 2, bytes.size() - place);
    }
    return std::nullopt;
}

}  // namespace

bool IsPlainWave(std::string_view bytes) {
    return SamplesOf(bytes).has_value();
}

void CorrectLength(std::string& wave) {
    const auto samples = SamplesOf(wave);
    if (!samples || NumberAt(wave, *samples - 4, 4) <= wave.size() - *samples) {
        return;
    }
    for (std::size_t i = 0; i < 4; ++i) {
        wave[*samples - 4 + i] = static_cast<char>((wave.size() - *samples) >> (8 * i));
    }
}

bool IsMidi(std::string_view bytes) {
    return bytes.substr(0, 4) == "MThd";
}

}  // namespace trameli
