#include "platform/qt/sound_files.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

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

}  // namespace

bool IsPlainWave(std::string_view bytes) {
    if (bytes.size() < RiffHeader || bytes.substr(0, 4) != "RIFF" || bytes.substr(8, 4) != "WAVE") {
        return false;
    }
    bytes.remove_prefix(RiffHeader);
    bool plain = false;
    while (bytes.size() >= ChunkHeader) {
        const std::string_view name = bytes.substr(0, 4);
        const std::size_t length = NumberAt(bytes, 4, 4);
        bytes.remove_prefix(ChunkHeader);
        if (name == "data") {
            return plain && !bytes.empty() && length > 0;
        }
        if (name == "fmt ") {
            plain = IsPlain(bytes.substr(0, length));
            if (!plain) {
                return false;
            }
        }
        // Chunks of odd length are followed by a byte that counts for nothing.
        bytes.remove_prefix(std::min(length + length % 2, bytes.size()));
    }
    return false;
}

bool IsMidi(std::string_view bytes) {
    return bytes.substr(0, 4) == "MThd";
}

}  // namespace trameli
