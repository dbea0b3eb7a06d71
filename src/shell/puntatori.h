// The program's own mouse pointers.
#pragma once

#include "platform/picture.h"

namespace trameli {

/// The large arrow over the controls that matter.
inline PointerImage FrecciaGrande() {
    return {{"puntatori/freccia_grande.svg"}, 3, 1};
}

/// The large blue arrow over the picture that opens a document.
inline PointerImage FrecciaBlu() {
    return {{"puntatori/freccia_blu.svg"}, 3, 1};
}

/// The magnifying glass over what can be enlarged; its middle points.
inline PointerImage Lente() {
    return {{"puntatori/lente.svg"}, 9, 8};
}

/// The program's icon; it has no tip and points with its middle.
inline PointerImage PuntatoreIcona() {
    return {{"icona/trameli.svg"}, 16, 16};
}

}  // namespace trameli
