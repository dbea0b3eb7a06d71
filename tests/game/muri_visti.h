// A maze as the player sees it: read off the picture, and solved by it.
#pragma once

#include <QImage>
#include <QPointF>
#include <QRect>
#include <array>
#include <vector>

namespace trameli {

/// Sides of a cell: 0 up, 1 right, 2 down, 3 left; also the directions of steps.
inline constexpr int Su = 0;
inline constexpr int AllaDestra = 1;
inline constexpr int Giu = 2;
inline constexpr int AllaSinistra = 3;
inline constexpr std::array<int, 4> RigaVerso{-1, 0, 1, 0};
inline constexpr std::array<int, 4> ColonnaVerso{0, 1, 0, -1};
constexpr int Contrario(int lato) {
    return (lato + 2) % 4;
}

/// A cell, counted from 1, with one of its sides.
struct Posto {
    int Riga = 0;
    int Colonna = 0;
    int Lato = 0;
    bool operator==(const Posto&) const = default;

    /// The place on this side of the cell so many steps further.
    Posto Dopo(const std::vector<int>& passi, int lato = 0) const;
};

/// Where the cells of a maze lie on its picture box, twips.
struct Pianta {
    int Righe = 0;
    int Colonne = 0;
    int Lato = 0;      ///< of a cell
    int Sinistra = 0;  ///< margins
    int Alto = 0;
    double TwipsPerPixel = 15;

    /// A grid centred on a box of so many twips, with a whole cell free above and below and so
    /// many in all at its sides.
    static Pianta Su(double larghezza, double altezza, int righe, int colonne, int aiLati,
                     double twips);

    /// The edges between cells: 0 is the outer edge.
    double BordoX(int colonna) const { return Sinistra + static_cast<double>(colonna) * Lato; }
    double BordoY(int riga) const { return Alto + static_cast<double>(riga) * Lato; }
    /// The point so many cells from the middle of a cell, towards its side.
    QPointF Verso(const Posto& posto, double celle) const;
};

/// A picture of a maze with its plan.
class Vista {
public:
    Vista(const QImage& immagine, const Pianta& pianta)
        : immagine_(immagine.convertToFormat(QImage::Format_RGB32)), pianta_(pianta) {}

    const Pianta& LaPianta() const { return pianta_; }
    const QImage& Immagine() const { return immagine_; }

    /// The pixel at a point given in twips; 0 outside the picture.
    QRgb A(double x, double y) const;
    /// The pixel in the middle of a cell, or of the place of one of its walls.
    QRgb Centro(int riga, int colonna) const { return Fra(riga, colonna, 0, 0); }
    QRgb Muro(const Posto& posto) const;
    /// The pixel a part of a cell's side away from the cell's middle.
    QRgb Fra(int riga, int colonna, double versoX, double versoY) const;
    /// Whether something of one colour is as broad as that, in pixels of the layout, round a point
    /// given in twips, along x or along y.
    bool Largo(QRgb colore, QPointF mezzo, double pixel, bool lungoX) const;

private:
    QImage immagine_;
    Pianta pianta_;
};

/// How many pixels have a colour, and the smallest rectangle that holds them.
struct Macchia {
    int Quanti = 0;
    QRect Posto;
};
Macchia MacchiaDi(const QImage& immagine, QRgb colore);

/// The walls of a maze, as pixels of one colour.
class MuriVisti {
public:
    MuriVisti(const Vista& vista, QRgb colore);

    int Righe() const { return righe_; }
    int Colonne() const { return colonne_; }
    bool Ha(const Posto& posto) const;
    /// Interior walls that stand.
    int Interni() const;
    /// Gaps in the outside wall.
    std::vector<Posto> Aperture() const;
    /// Steps that lead from `da` to `a`, cells without regard to the side; empty if none do.
    std::vector<int> Strada(const Posto& da, const Posto& a) const;
    /// How many cells can be reached from the first one, itself included.
    int Raggiungibili() const;

    bool operator==(const MuriVisti&) const = default;

private:
    std::size_t Indice(int riga, int colonna) const {
        return static_cast<std::size_t>((riga - 1) * colonne_ + colonna - 1);
    }
    /// For each cell the step that leads to it from `da`, -1 where none does, 4 for `da`.
    std::vector<int> Esplora(const Posto& da) const;

    int righe_;
    int colonne_;
    std::vector<std::array<bool, 4>> muri_;
};

}  // namespace trameli
