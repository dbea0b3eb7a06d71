#include "printing/foglio.h"

#include <algorithm>

#include "base/rounding.h"

namespace trameli {

namespace {

constexpr int TastoIndietro = 8;

int Limitato(int valore, const Limiti& limiti) {
    return std::clamp(valore, limiti.Minimo, limiti.Massimo);
}

PostoStampa PerFattore(float fattore, const PostoStampa& posto) {
    const auto ridotto = [fattore](int valore) {
        return Nearest(static_cast<double>(fattore) * valore);
    };
    return {ridotto(posto.X), ridotto(posto.Y), ridotto(posto.W), ridotto(posto.H)};
}

}  // namespace

float Rapporto(int larghezza, int altezza) {
    return static_cast<float>(larghezza) / static_cast<float>(altezza);
}

int FiltraTastoNumerico(int tasto, bool consentiMeno, std::string_view testo,
                        std::string_view selezione, int inizioSelezione) {
    const bool meno =
        consentiMeno && inizioSelezione == 0 && (!testo.starts_with('-') || selezione == testo);
    const bool passa =
        (tasto >= '0' && tasto <= '9') || (tasto == '-' && meno) || tasto == TastoIndietro;
    return passa ? tasto : 0;
}

int AltezzaPer(int larghezza, float proporzione) {
    return Nearest(larghezza / static_cast<double>(proporzione));
}

int LarghezzaPer(int altezza, float proporzione) {
    return Nearest(static_cast<double>(proporzione) * altezza);
}

PostoStampa Centrato(PostoStampa posto, const SheetSize& foglio) {
    posto.X = Nearest(static_cast<float>(foglio.Width - posto.W) / 2);
    posto.Y = Nearest(static_cast<float>(foglio.Height - posto.H) / 2);
    return posto;
}

PostoStampa Massima(PostoStampa posto, const SheetSize& foglio, float proporzione, bool bloccata,
                    bool centrata) {
    if (!HaMisura(foglio)) {
        return posto;
    }
    const int larghezza = Limitato(foglio.Width, LimitiMisura);
    const int altezza = Limitato(foglio.Height, LimitiMisura);
    if (!bloccata) {
        posto.W = larghezza;
        posto.H = altezza;
    } else if (Rapporto(foglio.Width, foglio.Height) <= Rapporto(posto.W, posto.H)) {
        // By the picture as it is now, which need not have kept the proportions so far.
        posto.W = larghezza;
        posto.H = Limitato(AltezzaPer(posto.W, proporzione), LimitiMisura);
        posto.X = 0;
    } else {
        posto.H = altezza;
        posto.W = Limitato(LarghezzaPer(posto.H, proporzione), LimitiMisura);
        posto.Y = 0;
    }
    if (!centrata) {
        if (posto.X + posto.W > foglio.Width) {
            posto.X = Limitato(foglio.Width - posto.W, LimitiMargine);
        }
        if (posto.Y + posto.H > foglio.Height) {
            posto.Y = Limitato(foglio.Height - posto.H, LimitiMargine);
        }
    }
    return posto;
}

bool Eccede(const PostoStampa& posto, const SheetSize& foglio) {
    return posto.X + posto.W > foglio.Width || posto.Y + posto.H > foglio.Height;
}

PostoStampa Riscalato(PostoStampa posto, const SheetSize& foglio) {
    if (const int destra = posto.X + posto.W; destra > foglio.Width) {
        posto = PerFattore(Rapporto(foglio.Width, destra), posto);
    }
    if (const int fondo = posto.Y + posto.H; fondo > foglio.Height) {
        posto = PerFattore(Rapporto(foglio.Height, fondo), posto);
    }
    return posto;
}

PixelRectangle SullaStampante(const PostoStampa& posto, const SheetSize& foglio,
                              const SheetSize& pixel) {
    if (!HaMisura(foglio)) {
        return {};
    }
    const double kx = Rapporto(pixel.Width, foglio.Width);
    const double ky = Rapporto(pixel.Height, foglio.Height);
    return {Nearest(kx * posto.X), Nearest(ky * posto.Y), Nearest(kx * posto.W),
            Nearest(ky * posto.H)};
}

PixelRectangle SullAnteprima(const PostoStampa& posto, const SheetSize& foglio, double larghezza,
                             double altezza) {
    return {Nearest(larghezza / foglio.Width * posto.X), Nearest(altezza / foglio.Height * posto.Y),
            Nearest(larghezza / foglio.Width * posto.W),
            Nearest(altezza / foglio.Height * posto.H)};
}

Bounds Miniatura(const SheetSize& foglio) {
    const double r = Rapporto(foglio.Width, foglio.Height);
    if (foglio.Width > foglio.Height) {
        return {0, 0, LatoMiniatura, static_cast<double>(Nearest(LatoMiniatura / r))};
    }
    return {0, 0, static_cast<double>(Nearest(LatoMiniatura * r)), LatoMiniatura};
}

Bounds FoglioIngrandito(double larghezza, double altezza, float rapporto) {
    const double massimaLarghezza = std::max(0, Nearest(larghezza - 2 * BordoZoom));
    const double massimaAltezza = std::max(0, Nearest(altezza - 2 * BordoZoom));
    Bounds foglio{0, 0, massimaLarghezza, massimaLarghezza / rapporto};
    if (foglio.Height > massimaAltezza) {
        foglio.Height = massimaAltezza;
        foglio.Width = foglio.Height * rapporto;
    }
    foglio.Left = (larghezza - foglio.Width) / 2;
    foglio.Top = (altezza - foglio.Height) / 2;
    return foglio;
}

}  // namespace trameli
