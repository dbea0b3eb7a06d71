// A frame that is seen on any ground.
#pragma once

#include "platform/shape.h"

namespace trameli {

/// Marks a place in a container with a thick dark line and a light one inside it, above all that
/// lies there.
class Cornice {
public:
    /// A hidden one. `nome` is that of the dark line; the light one has a "2" behind it.
    Cornice(Container& container, const std::string& nome);

    /// Puts it round a place, in the container's twips.
    void Mostra(const Bounds& posto);
    void Nascondi();

private:
    Shape scura_;
    Shape chiara_;
};

}  // namespace trameli
