#include "play/sfumatura.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "base/rounding.h"

namespace trameli {

namespace {

struct Schema {
    Colour Tinta;  ///< brightness 1; its multiples are the gradient
    Colour Scritte;
};

constexpr std::array<Schema, NumeroSchemi> Schemi{{
    {Rgb(0, 0, 1), Rgb(255, 192, 128)},
    {Rgb(0, 1, 0), Rgb(255, 255, 0)},
    {Rgb(1, 0, 0), Rgb(0, 0, 255)},
    {Rgb(0, 1, 1), Rgb(0, 0, 255)},
    {Rgb(1, 0, 1), Rgb(255, 255, 0)},
    {Rgb(1, 1, 0), Rgb(255, 0, 0)},
    {Rgb(1, 1, 1), Rgb(255, 0, 0)},
}};

constexpr float LuceAlBordo = 32;
constexpr float SaltoDiLuce = 223;  ///< from the edge to the middle

const Schema& Trova(int schema) {
    return Schemi[static_cast<std::size_t>(std::clamp(schema, 0, NumeroSchemi - 1))];
}

}  // namespace

Colour ColoreScritte(int schema) {
    return Trova(schema).Scritte;
}

std::vector<Colour> Sfumatura(int schema, float RaggioMassimo) {
    const Colour tinta = Trova(schema).Tinta;
    const float PassoLuce = SaltoDiLuce / RaggioMassimo;
    float Luce = LuceAlBordo;
    std::vector<Colour> anelli;
    for (float Raggio = RaggioMassimo; Raggio >= 1; Raggio -= 1) {
        anelli.push_back(tinta * Nearest(Luce));
        Luce += PassoLuce;
    }
    return anelli;
}

void DisegnaSfumatura(Surface& superficie, int schema, double larghezza, double altezza) {
    const double CentroX = larghezza / 2;
    const double CentroY = altezza / 2;
    const double RaggioMassimo = std::max(CentroX, CentroY);
    superficie.FillRings(Sfumatura(schema, static_cast<float>(RaggioMassimo)), RaggioMassimo);
}

}  // namespace trameli
