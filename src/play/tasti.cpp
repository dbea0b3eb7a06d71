#include "play/tasti.h"

#include <algorithm>
#include <array>

#include "platform/keys.h"

namespace trameli {

namespace {

struct Tasto {
    int Codice;
    Lato Direzione;
};

constexpr std::array<Tasto, 8> Tasti{{
    {KeyLeft, Lato::Sinistra},
    {KeyPad4, Lato::Sinistra},
    {KeyUp, Lato::Alto},
    {KeyPad8, Lato::Alto},
    {KeyRight, Lato::Destra},
    {KeyPad6, Lato::Destra},
    {KeyDown, Lato::Basso},
    {KeyPad2, Lato::Basso},
}};

}  // namespace

std::optional<Lato> DirezioneDi(int keyCode) {
    const auto tasto = std::find_if(Tasti.begin(), Tasti.end(),
                                    [=](const Tasto& t) { return t.Codice == keyCode; });
    return tasto == Tasti.end() ? std::nullopt : std::optional(tasto->Direzione);
}

}  // namespace trameli
