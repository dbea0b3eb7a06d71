// The maze: a grid of cells with a wall flag on each side, and the carving that joins its regions.
#pragma once

#include <cstdint>
#include <vector>

#include "engine/casuale.h"

namespace trameli {

/// A side of a cell. The values also number the directions of travel.
enum class Lato : std::int8_t { Alto = 0, Destra = 1, Basso = 2, Sinistra = 3 };

/// The same wall as seen from the cell on its other side.
constexpr Lato Opposto(Lato lato) {
    return static_cast<Lato>((static_cast<int>(lato) + 2) % 4);
}

/// A place on the grid, counted from 1; row 1 is at the top, column 1 at the left. Row 0, column 0,
/// row R + 1 and column C + 1 are the places just outside.
struct Cella {
    std::int16_t Riga;
    std::int16_t Colonna;
    bool operator==(const Cella&) const = default;
};

/// The neighbour across a side; it may lie outside the grid.
constexpr Cella Vicina(Cella cella, Lato lato) {
    switch (lato) {
        case Lato::Alto:
            --cella.Riga;
            break;
        case Lato::Destra:
            ++cella.Colonna;
            break;
        case Lato::Basso:
            ++cella.Riga;
            break;
        case Lato::Sinistra:
            --cella.Colonna;
            break;
    }
    return cella;
}

/// A maze of R rows and C columns. Rows 1 to R and columns 1 to C are its cells; row 0 and column 0
/// can be read too, and are 0 and false for ever.
class Tramelo {
public:
    /// Allocates the grid, all zero and false: no maze before CreaNuovaGriglia. Both sizes are 1 or
    /// more, and their product at most 32767; otherwise std::invalid_argument. `casuale` is kept
    /// and must outlive the maze.
    Tramelo(int righe, int colonne, Casuale& casuale);

    std::int16_t Righe() const { return m_righe; }
    std::int16_t Colonne() const { return m_colonne; }
    /// Rows times columns.
    std::int16_t NumeroCelle() const { return m_numeroCelle; }

    /// The label of the region a cell belongs to, 1 to NumeroCelle; r from 0 to R, c from 0 to C.
    std::int16_t Griglia(int r, int c) const { return m_griglia[Indice(r, c)]; }
    /// True: a wall stands on this side of this cell. An inner wall has a flag in both its cells.
    bool Muri(int r, int c, Lato lato) const { return (m_muri[Indice(r, c)] & Bit(lato)) != 0; }
    /// True: carving may not choose this wall, for it is an outside one or has been examined
    /// before.
    bool MuriProtetti(int r, int c, Lato lato) const {
        return (m_muriProtetti[Indice(r, c)] & Bit(lato)) != 0;
    }
    /// Regions still apart; 1 once carved, NumeroCelle on a grid that is never carved.
    std::int16_t RegioniRimaste() const { return m_regioniRimaste; }
    /// What the last ContaMuriRimasti found, 0 before it.
    std::int16_t MuriRimasti() const { return m_muriRimasti; }

    /// Starts anew: every wall stands, none is protected, each cell is a region of its own,
    /// numbered 1 to R x C in reading order.
    void CreaNuovaGriglia();
    /// Protects the outside walls from carving, and puts them back on a grid emptied by NessunMuro.
    void NonEliminareMuriEsterni();
    /// Takes every wall away, the outside ones too. Protection and labels stay.
    void NessunMuro();
    /// Sets MuriRimasti to half the flags that stand on the right, lower and left sides of all
    /// cells. That is not the number of walls: the upper sides are left out, and the recipes of the
    /// levels are made for this figure.
    void ContaMuriRimasti();
    /// Knocks down one wall between two regions, drawn at random, and joins the two: the smaller
    /// label stays. Needs protected outside walls. Draws row, column, side, each with its own draw,
    /// until a wall can be taken; with a single region left it draws nothing and returns.
    void SelezionaMuroDaAbbattere();
    /// Knocks down that many more inner walls, drawn at random, whatever lies behind them. Ends
    /// early when no inner wall stands any more; 0 or less does nothing.
    void AbbattiAltriMuri(std::int16_t quanti);
    /// SelezionaMuroDaAbbattere until one region is left: exactly one way from any cell to any
    /// other.
    void Scava();
    /// Clears one flag of Muri: an opening in the outside wall. It stays protected.
    void Apri(Cella cella, Lato lato);
    /// Whether this side of a cell is an outside wall, by its position; says nothing of the flag.
    bool Esterno(Cella cella, Lato lato) const;

private:
    static constexpr std::uint8_t Bit(Lato lato) {
        return static_cast<std::uint8_t>(1U << static_cast<unsigned>(lato));
    }
    std::size_t Indice(int r, int c) const {
        return static_cast<std::size_t>(r) * m_passo + static_cast<std::size_t>(c);
    }

    Casuale& m_casuale;
    std::int16_t m_righe;
    std::int16_t m_colonne;
    std::int16_t m_numeroCelle;
    std::int16_t m_regioniRimaste = 0;
    std::int16_t m_muriRimasti = 0;
    std::size_t m_passo;  // entries from one row to the next, column 0 included
    std::vector<std::int16_t> m_griglia;
    // Four flags a cell, bit s for side s.
    std::vector<std::uint8_t> m_muri;
    std::vector<std::uint8_t> m_muriProtetti;
};

}  // namespace trameli
