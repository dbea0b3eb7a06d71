// The trace's memory: the way the player has walked.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "drawing/segmento.h"
#include "engine/tramelo.h"
#include "platform/colour.h"

namespace trameli {

/// A passage between two neighbouring cells: Verso 0 leads from the cell to the one on its right,
/// Verso 1 to the one below it.
struct Passaggio {
    std::int16_t Riga;
    std::int16_t Colonna;
    std::int8_t Verso;
    bool operator==(const Passaggio&) const = default;
};

/// The passage on one side of a cell; the same one from either of its cells.
Passaggio PassaggioDa(Cella cella, Lato lato);

/// The points of the trace in the order walked, with the colours of the segments between them, and
/// how often each passage was walked. When it is full, the oldest point gives way to the newest.
class Traccia {
public:
    /// Index of the last point that there is room for.
    static constexpr int MassimoPunti = 1000;

    /// Makes room for the passages of a grid of R rows and C columns, none of them walked.
    void Alloca(int righe, int colonne);
    /// Forgets all points and passages; the grid stays.
    void Azzera();
    /// Sets point 0, where the trace begins.
    void Comincia(Punto punto);
    /// The newest point, and the colour of the segment that leads to it.
    void Aggiungi(Punto punto, Colour colore);

    /// Notes a walk through a passage. True after the first, third, fifth: a way forward. Only the
    /// count decides, not the direction.
    bool Attraversa(const Passaggio& passaggio);
    /// Whether the passage was walked an odd number of times; rows and columns from 0 on.
    bool Passaggi(int riga, int colonna, int verso) const;

    /// Index of the last point, 0 to MassimoPunti.
    std::int16_t ContaPunti() const { return contaPunti_; }
    /// Point i, twips; 0 beyond ContaPunti.
    std::int16_t PercorsoX(int i) const { return percorsoX_[static_cast<std::size_t>(i)]; }
    std::int16_t PercorsoY(int i) const { return percorsoY_[static_cast<std::size_t>(i)]; }
    /// Colour of segment i, which ends at point i; entry 0 means nothing.
    Colour PercorsoColore(int i) const { return percorsoColore_[static_cast<std::size_t>(i)]; }
    /// The last point.
    Punto Testa() const { return {PercorsoX(contaPunti_), PercorsoY(contaPunti_)}; }

    /// Segment i, 1 to ContaPunti: to point i, from `indietro` twips behind point i - 1.
    Segmento Tratto(int i, int indietro) const;

private:
    template <typename T>
    using Elenco = std::array<T, MassimoPunti + 1>;

    std::size_t Indice(int riga, int colonna, int verso) const {
        return (static_cast<std::size_t>(riga) * passo_ + static_cast<std::size_t>(colonna)) * 2 +
               static_cast<std::size_t>(verso);
    }

    Elenco<std::int16_t> percorsoX_{};
    Elenco<std::int16_t> percorsoY_{};
    Elenco<Colour> percorsoColore_{};
    std::int16_t contaPunti_ = 0;
    std::size_t passo_ = 0;  // entries from one row to the next, column 0 included
    std::vector<bool> passaggi_;
};

}  // namespace trameli
