#include "printing/immagine.h"

#include <cstring>
#include <new>
#include <utility>

// The loop over the pixels is made several times, and the processor's best is chosen at the start:
// what all processors of the kind have is slow at taking pixels of three bytes apart. The address
// sanitizer cannot do with such a choice.
#if defined(__x86_64__) && defined(__GLIBC__) && defined(__GNUC__) && !defined(__clang__) && \
    !defined(__SANITIZE_ADDRESS__)
#define PER_OGNI_PROCESSORE [[gnu::target_clones("default", "ssse3", "avx2")]]
#else
#define PER_OGNI_PROCESSORE
#endif

namespace trameli {

namespace {

constexpr int Bit = 24;

PER_OGNI_PROCESSORE void RigaInGrigi(std::uint8_t* riga, int larghezza) {
    for (int x = 0; x < larghezza; ++x) {
        std::uint8_t* const pixel = riga + 3 * static_cast<std::ptrdiff_t>(x);
        const std::uint8_t grigio = GreyOf(pixel[2], pixel[1], pixel[0]);
        pixel[0] = grigio;
        pixel[1] = grigio;
        pixel[2] = grigio;
    }
}

int ByteNonAllineati(int bit, int larghezza) {
    switch (bit) {
        case 1:
            return (larghezza + 7) / 8;
        case 4:
            return (larghezza + 1) / 2;
        case 8:
        case 16:
        case 24:
        case 32:
            return bit / 8 * larghezza;
        default:
            return 0;
    }
}

}  // namespace

DimensioneImmagine CalcolaDimensioneImmagine(int bit, int larghezza, int altezza) {
    const int byteRiga = ArrotondaA4(ByteNonAllineati(bit, larghezza));
    return {byteRiga, static_cast<std::size_t>(byteRiga) * static_cast<std::size_t>(altezza)};
}

void ConvertiInGrigi(const PixelBlock& immagine) {
    for (int y = 0; y < immagine.Height; ++y) {
        RigaInGrigi(immagine.Bits + static_cast<std::ptrdiff_t>(y) * immagine.BytesPerRow,
                    immagine.Width);
    }
}

std::optional<std::string> Immagine::CatturaImmagine(const Surface& sorgente,
                                                     const std::string& senzaMisura) {
    Prepara(sorgente.DevicePixels());
    if (dimensione_.Byte == 0) {
        return senzaMisura;
    }
    if (!memoria_) {
        return "hMem = 0";
    }
    sorgente.ReadPixels(Blocco());
    return std::nullopt;
}

std::optional<std::string> Immagine::CatturaForm(const Form& sorgente,
                                                 const std::string& senzaMisura) {
    Prepara(sorgente.WindowPixels());
    if (dimensione_.Byte == 0) {
        return senzaMisura;
    }
    if (!memoria_) {
        // Of the three things that could be missing only this one ever is.
        return "hDC_FSrc = 1\r\nhBmp_Form = 1\r\nhMem = 0";
    }
    const int righe = sorgente.ReadPixels(Blocco());
    if (righe == 0) {
        Libera();
        return "Unable to read the Form.\r\nR2 = " + std::to_string(righe);
    }
    return std::nullopt;
}

PixelBlock Immagine::Blocco() const {
    return {misura_.Width, misura_.Height, dimensione_.ByteRiga, memoria_.get()};
}

PixelBlock Immagine::InGrigi(Memoria& copia) const {
    PixelBlock grigia = Blocco();
    copia = Presente() ? prestito_(dimensione_.Byte) : nullptr;
    grigia.Bits = copia.get();
    if (copia) {
        std::memcpy(copia.get(), memoria_.get(), dimensione_.Byte);
        ConvertiInGrigi(grigia);
    }
    return grigia;
}

void Immagine::Prepara(const PixelSize& misura) {
    Libera();
    misura_ = misura;
    dimensione_ = CalcolaDimensioneImmagine(Bit, misura.Width, misura.Height);
    if (dimensione_.Byte > 0) {
        memoria_ = prestito_(dimensione_.Byte);
    }
}

Immagine::Memoria Immagine::DalSistema(std::size_t byte) {
    return Memoria(new (std::nothrow) std::uint8_t[byte]);
}

}  // namespace trameli
