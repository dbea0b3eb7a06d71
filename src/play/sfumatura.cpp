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

std::vector<Colour> Sfumatura(int schema, float raggioMassimo) {
    const Colour tinta = Trova(schema).Tinta;
    const float passoLuce = SaltoDiLuce / raggioMassimo;
    float luce = LuceAlBordo;
    std::vector<Colour> anelli;
    for (float raggio = raggioMassimo; raggio >= 1; raggio -= 1) {
        anelli.push_back(tinta * Nearest(luce));
        luce += passoLuce;
    }
    std::reverse(anelli.begin(), anelli.end());
    return anelli;
}

void DisegnaSfumatura(Surface& superficie, int schema, double larghezza, double altezza) {
    superficie.FillRings(Sfumatura(schema, static_cast<float>(std::max(larghezza, altezza) / 2)));
}

}  // namespace trameli
