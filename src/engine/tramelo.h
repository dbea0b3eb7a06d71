// The maze: a grid of cells with a wall flag on each side, and the carving that joins its regions.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "engine/casuale.h"

namespace trameli {

/// A side of a cell. The values also number the directions of travel.
enum class Lato : std::int8_t { Alto = 0, Destra = 1, Basso = 2, Sinistra = 3 };

/// The same wall as seen from the cell on its other side.
constexpr Lato Opposto(Lato lato) {
    return static_cast<Lato>(static_cast<unsigned>(lato) ^ 2U);
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
    /// more, and their product fits into 16 bits. `casuale` is kept and must outlive the maze.
    Tramelo(int righe, int colonne, Casuale& casuale);

    /// The size of the grid, in cells.
    std::int16_t Righe() const { return righe_; }
    std::int16_t Colonne() const { return colonne_; }
    /// Rows times columns.
    std::int16_t NumeroCelle() const { return numeroCelle_; }

    /// The label of the region a cell belongs to, 1 to NumeroCelle; r from 0 to R, c from 0 to C.
    std::int16_t Griglia(int r, int c) const { return griglia_[Indice(r, c)]; }
    /// True: a wall stands on this side of this cell. An inner wall has a flag in both its cells.
    bool Muri(int r, int c, Lato lato) const { return (muri_[Indice(r, c)] & Bit(lato)) != 0; }
    /// True: carving may not choose this wall, for it is an outside one or has been examined
    /// before.
    bool MuriProtetti(int r, int c, Lato lato) const {
        return (muriProtetti_[Indice(r, c)] & Bit(lato)) != 0;
    }
    /// Regions still apart; 1 once carved, NumeroCelle on a grid that is never carved.
    std::int16_t RegioniRimaste() const { return regioniRimaste_; }
    /// What the last ContaMuriRimasti found, 0 before it.
    std::int16_t MuriRimasti() const { return muriRimasti_; }

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

private:
    // A wall as one of its cells sees it: the cell's entry in the arrays below, and the side.
    struct Faccia {
        std::size_t Cella;
        Lato Su;
    };

    static constexpr std::uint8_t Bit(Lato lato) {
        return static_cast<std::uint8_t>(1U << static_cast<unsigned>(lato));
    }
    std::size_t Indice(int r, int c) const {
        return static_cast<std::size_t>(r) * passo_ + static_cast<std::size_t>(c);
    }
    using Bandiere = std::vector<std::uint8_t>;  // four flags a cell, bit s for side s

    static bool Ha(const Bandiere& bandiere, Faccia faccia) {
        return (bandiere[faccia.Cella] & Bit(faccia.Su)) != 0;
    }
    void Togli(Faccia faccia) { muri_[faccia.Cella] &= static_cast<std::uint8_t>(~Bit(faccia.Su)); }
    Faccia EstraiFaccia();
    Faccia Altra(Faccia faccia) const;
    void Unisci(std::int16_t minore, std::int16_t maggiore);

    Casuale& casuale_;
    std::int16_t righe_;
    std::int16_t colonne_;
    std::int16_t numeroCelle_;
    std::int16_t regioniRimaste_ = 0;
    std::int16_t muriRimasti_ = 0;
    std::size_t passo_;  // entries from one row to the next, column 0 included
    std::vector<std::int16_t> griglia_;
    Bandiere muri_;
    Bandiere muriProtetti_;
    Bandiere esterni_;  // the outside walls, by position
    // By label: the entries of the first and the last cell of its region, in reading order.
    std::vector<std::size_t> prime_;
    std::vector<std::size_t> ultime_;
};

}  // namespace trameli
