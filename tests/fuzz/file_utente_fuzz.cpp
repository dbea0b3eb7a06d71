// Whatever a user file holds, reading it gives nothing or a record that saves and reads unchanged.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "shell/file_utente.h"

namespace {

bool Colore(double colore) {
    return colore >= 0 && colore <= 16777215;
}

bool NeiLimiti(const trameli::Impostazioni& i) {
    return i.Livello >= 0 && i.Livello <= 15 && Colore(i.ColorePareti) && Colore(i.ColoreAvanti) &&
           Colore(i.ColoreSfondo) && Colore(i.ColoreSimbolo) && Colore(i.ColoreRitorno) &&
           Colore(i.ColoreScansione) && i.SpessoreLinee >= 0 && i.SpessoreLinee <= 6 &&
           i.ModoInput >= 0 && i.ModoInput <= 2 && i.VelocitaScansione >= 2 &&
           i.VelocitaScansione <= 60;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* byte, std::size_t quanti) {
    const auto lette =
        trameli::Leggi(std::string_view(reinterpret_cast<const char*>(byte), quanti));
    if (lette && (!NeiLimiti(*lette) || trameli::Leggi(trameli::Testo(*lette)) != lette)) {
        std::abort();
    }
    return 0;
}
