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

    /// Makes room for the passages of a grid of R rows and C columns.
    Traccia(int righe, int colonne);

    /// Forgets all points and passages, and begins with point 0.
    void Comincia(Punto punto);
    /// The newest point, and the colour of the segment that leads to it.
    void Aggiungi(Punto punto, Colour colore);

    /// The same points on a grid that lies otherwise.
    void Trasferisci(const Geometria& da, const Geometria& a);

    /// Notes a walk through a passage. True after the first, third, fifth: a way forward. Only the
    /// count decides, not the direction.
    bool Attraversa(const Passaggio& passaggio);

    /// Index of the last point, 0 to MassimoPunti.
    int ContaPunti() const { return contaPunti_; }
    /// Point i, twips.
    Punto Percorso(int i) const { return percorso_[static_cast<std::size_t>(i)]; }
    /// Colour of segment i, which ends at point i; entry 0 means nothing.
    Colour PercorsoColore(int i) const { return colori_[static_cast<std::size_t>(i)]; }
    /// The last point: where the symbol is.
    Punto Testa() const { return Percorso(contaPunti_); }

    /// Segment i, 1 to ContaPunti: to point i, from `indietro` twips behind point i - 1.
    Segmento Tratto(int i, int indietro) const;

private:
    std::array<Punto, MassimoPunti + 1> percorso_{};
    std::array<Colour, MassimoPunti + 1> colori_{};
    int contaPunti_ = 0;
    std::size_t passo_;  // entries from one row to the next, column 0 included
    std::vector<bool> passaggi_;
};

}  // namespace trameli
