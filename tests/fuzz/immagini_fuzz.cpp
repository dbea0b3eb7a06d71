// Whatever the sizes of a picture and of what it is laid over, nothing beside them is read or
// written, and one colour stays that colour. No picture of anybody else's is ever read.
#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <vector>

#include "platform/qt/stretch.h"

namespace {

/// Pixels in the longest side: more would only take longer.
constexpr int Lato = 48;

struct Misure {
    std::array<std::uint8_t, 4> Lati;  // of the picture and of the target
    std::array<std::int32_t, 2> Inizio;
    std::array<std::int32_t, 2> Lunghezza;
    std::uint32_t Punti;
};

trameli::Extent Tratto(const Misure& misure, std::size_t verso) {
    return {static_cast<double>(misure.Inizio[verso]),
            static_cast<double>(misure.Inizio[verso]) + misure.Lunghezza[verso]};
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* byte, std::size_t quanti) {
    Misure misure{};
    std::memcpy(&misure, byte, std::min(quanti, sizeof misure));
    std::array<int, 4> lati;
    std::transform(misure.Lati.begin(), misure.Lati.end(), lati.begin(),
                   [](int lato) { return 1 + lato % Lato; });
    const auto [larga, alta, largo, alto] = lati;
    const int riga = (3 * larga + 3) / 4 * 4;
    std::vector<std::uint8_t> immagine(static_cast<std::size_t>(riga * alta), 0x5A);
    const bool uguale = quanti <= sizeof misure;
    for (std::size_t i = 0; !uguale && i < immagine.size(); ++i) {
        immagine[i] = byte[sizeof misure + i % (quanti - sizeof misure)];
    }
    std::vector<std::uint32_t> fondo(static_cast<std::size_t>(largo * alto), misure.Punti);
    trameli::Stretch({fondo.data(), largo, alto, largo}, Tratto(misure, 0), Tratto(misure, 1),
                     {larga, alta, riga, immagine.data()});
    const auto giusto = [&](std::uint32_t punto) {
        return punto == misure.Punti || punto == 0xFF5A5A5AU;
    };
    if (uguale && !std::all_of(fondo.begin(), fondo.end(), giusto)) {
        std::abort();
    }
    return 0;
}
