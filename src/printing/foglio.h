// The sheet, and where a picture lies on it. Whole millimetres; no window.
#pragma once

#include <string_view>

#include "platform/bounds.h"
#include "platform/pixel_block.h"
#include "platform/printers.h"

namespace trameli {

/// Where a picture is printed, in millimetres from the upper left corner of what the printer
/// reaches. Margins can be negative.
struct PostoStampa {
    int X = 0;
    int Y = 0;
    int W = 0;
    int H = 0;

    bool operator==(const PostoStampa&) const = default;
};

/// The range of a number that can be typed.
struct Limiti {
    int Minimo;
    int Massimo;
};
inline constexpr Limiti LimitiMisura{1, 2000};       ///< of width and height
inline constexpr Limiti FrecceMisura{2, 2000};       ///< the same by the arrows: a 1 is only typed
inline constexpr Limiti LimitiMargine{-2000, 2000};  ///< of the margins, however they are set
inline constexpr Limiti FrecceCopie{1, 100};         ///< copies by the arrows

/// False for a printer that could not be asked, whose sheet has no size.
constexpr bool HaMisura(const SheetSize& foglio) {
    return foglio.Width > 0 && foglio.Height > 0;
}

/// How much width there is for a height of 1.
float Rapporto(int larghezza, int altezza);

/// What becomes of a typed key, a character's code or 8 for a step back: itself if it can be part
/// of a number, or else 0. A minus sign, where it is allowed at all, can only come first.
int FiltraTastoNumerico(int tasto, bool consentiMeno, std::string_view testo,
                        std::string_view selezione, int inizioSelezione);

/// The height for a width, and the other way round, at so much width for a height of 1.
int AltezzaPer(int larghezza, float proporzione);
int LarghezzaPer(int altezza, float proporzione);

/// The margins in the middle of the sheet; negative ones where the picture is larger.
PostoStampa Centrato(PostoStampa posto, const SheetSize& foglio);

/// As large as the sheet. `proporzione` is kept where the picture is `bloccata`, and what then
/// reaches beyond the sheet is moved back unless somebody centres it anyway. Stays as it is on a
/// sheet without a size.
PostoStampa Massima(PostoStampa posto, const SheetSize& foglio, float proporzione, bool bloccata,
                    bool centrata);

/// True if the picture reaches beyond the right or the lower edge of the sheet.
bool Eccede(const PostoStampa& posto, const SheetSize& foglio);
/// Margins and size scaled down together until it does not.
PostoStampa Riscalato(PostoStampa posto, const SheetSize& foglio);

/// The place in pixels of the printer.
PixelRectangle SullaStampante(const PostoStampa& posto, const SheetSize& foglio,
                              const SheetSize& pixel);
/// The place in pixels of a surface of this size, which stands for the whole sheet.
PixelRectangle SullAnteprima(const PostoStampa& posto, const SheetSize& foglio, double larghezza,
                             double altezza);

/// Twips of the miniature sheet's longer side.
inline constexpr int LatoMiniatura = 1905;
/// Width and height of the miniature sheet; left and top are 0.
Bounds Miniatura(const SheetSize& foglio);

/// Twips round the enlarged sheet, and its white margin.
inline constexpr double BordoZoom = 120;
/// Where a sheet with so much width for a height of 1 lies in a window's part of this size, white
/// margin included: as large as there is room for, in the middle.
Bounds FoglioIngrandito(double larghezza, double altezza, float rapporto);

}  // namespace trameli
