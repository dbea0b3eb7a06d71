// The picture that is printed, as a block of pixels.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "platform/form.h"
#include "platform/pixel_block.h"
#include "platform/surface.h"

namespace trameli {

/// `n`, or the next multiple of four above it.
constexpr int ArrotondaA4(int n) {
    return (n + 3) & ~3;
}

/// How much memory a picture takes.
struct DimensioneImmagine {
    int ByteRiga = 0;      ///< from one row to the next
    std::size_t Byte = 0;  ///< of all rows
};

/// For a picture of 1, 4, 8, 16, 24 or 32 bits a pixel; nothing for other ones.
DimensioneImmagine CalcolaDimensioneImmagine(int bit, int larghezza, int altezza);

/// Gives each pixel the mean of its three parts. What fills a row up stays as it is.
void ConvertiInGrigi(const PixelBlock& immagine);

/// The one picture that the print window works with: captured when the window opens, shown in the
/// previews, sent, and given back.
class Immagine {
public:
    /// Bytes of pixels.
    using Memoria = std::unique_ptr<std::uint8_t[]>;
    /// Where memory comes from: so many bytes, or nothing if there are not as many.
    using Prestito = std::function<Memoria(std::size_t)>;

    /// No picture yet.
    explicit Immagine(Prestito prestito = DalSistema) : prestito_(std::move(prestito)) {}

    /// Takes what is drawn on a surface, in the device's own pixels. Nothing if that worked, else
    /// the message that tells why not: `senzaMisura` for a picture of no size.
    [[nodiscard]] std::optional<std::string> CatturaImmagine(const Surface& sorgente,
                                                             const std::string& senzaMisura);
    /// The same with a window as it is seen.
    [[nodiscard]] std::optional<std::string> CatturaForm(const Form& sorgente,
                                                         const std::string& senzaMisura);

    /// Whether there is a picture just now.
    bool Presente() const { return memoria_ != nullptr; }
    /// The picture, without `Bits` if there is none. Good until the next capture or release.
    PixelBlock Blocco() const;
    /// The same in greys, in memory of its own: without `Bits` if there is not enough of it.
    PixelBlock InGrigi(Memoria& copia) const;
    /// Gives the memory back.
    void Libera() { memoria_.reset(); }

private:
    static Memoria DalSistema(std::size_t byte);

    /// Makes room for a picture, in place of the one before.
    void Prepara(const PixelSize& misura);

    Prestito prestito_;
    PixelSize misura_;
    DimensioneImmagine dimensione_;
    Memoria memoria_;
};

}  // namespace trameli
