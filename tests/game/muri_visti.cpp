#include "game/muri_visti.h"

#include <algorithm>
#include <cmath>
#include <deque>

namespace trameli {

Pianta Pianta::Su(double larghezza, double altezza, int righe, int colonne, int aiLati,
                  double twips) {
    const int lato = std::min(static_cast<int>(std::nearbyint(larghezza)) / (colonne + aiLati),
                              static_cast<int>(std::nearbyint(altezza)) / (righe + 2));
    return {righe,
            colonne,
            lato,
            static_cast<int>(std::floor((larghezza - lato * colonne) / 2)),
            static_cast<int>(std::floor((altezza - lato * righe) / 2)),
            twips};
}

QPointF Pianta::Verso(const Posto& posto, double celle) const {
    const auto lato = static_cast<std::size_t>(posto.Lato);
    return {BordoX(posto.Colonna - 1) + Lato * (0.5 + celle * ColonnaVerso.at(lato)),
            BordoY(posto.Riga - 1) + Lato * (0.5 + celle * RigaVerso.at(lato))};
}

Posto Posto::Dopo(const std::vector<int>& passi, int lato) const {
    Posto posto{Riga, Colonna, lato};
    for (const int verso : passi) {
        posto.Riga += RigaVerso.at(static_cast<std::size_t>(verso));
        posto.Colonna += ColonnaVerso.at(static_cast<std::size_t>(verso));
    }
    return posto;
}

QRgb Vista::A(double x, double y) const {
    const double scala = immagine_.devicePixelRatio() / pianta_.TwipsPerPixel;
    const QPoint qui(static_cast<int>(std::floor(x * scala + 0.5)),
                     static_cast<int>(std::floor(y * scala + 0.5)));
    return immagine_.valid(qui) ? immagine_.pixel(qui) : 0;
}

bool Vista::Largo(QRgb colore, QPointF mezzo, double pixel, bool lungoX) const {
    const auto ha = [&](double lontano) {
        lontano *= pianta_.TwipsPerPixel;
        return A(mezzo.x() + (lungoX ? lontano : 0), mezzo.y() + (lungoX ? 0 : lontano)) == colore;
    };
    constexpr double gioco = 1.1;  // the odd pixel may be on either side
    const double dentro = std::max(0.0, pixel / 2 - gioco);
    const double fuori = pixel / 2 + gioco;
    return ha(-dentro) && ha(dentro) && !ha(-fuori) && !ha(fuori);
}

QRgb Vista::Fra(int riga, int colonna, double versoX, double versoY) const {
    return A(pianta_.BordoX(colonna - 1) + pianta_.Lato * (0.5 + versoX),
             pianta_.BordoY(riga - 1) + pianta_.Lato * (0.5 + versoY));
}

QRgb Vista::Muro(const Posto& posto) const {
    const QPointF mezzo = pianta_.Verso(posto, 0.5);
    return A(mezzo.x(), mezzo.y());
}

Macchia MacchiaDi(const QImage& immagine, QRgb colore) {
    Macchia macchia;
    for (int y = 0; y < immagine.height(); ++y) {
        const auto* riga = reinterpret_cast<const QRgb*>(immagine.constScanLine(y));
        for (int x = 0; x < immagine.width(); ++x) {
            if ((riga[x] | 0xFF000000U) == colore) {
                ++macchia.Quanti;
                macchia.Posto |= QRect(x, y, 1, 1);
            }
        }
    }
    return macchia;
}

MuriVisti::MuriVisti(const Vista& vista, QRgb colore)
    : righe_(vista.LaPianta().Righe), colonne_(vista.LaPianta().Colonne) {
    for (int r = 1; r <= righe_; ++r) {
        for (int c = 1; c <= colonne_; ++c) {
            auto& muri = muri_.emplace_back();
            for (int lato = 0; lato < 4; ++lato) {
                muri.at(static_cast<std::size_t>(lato)) = vista.Muro({r, c, lato}) == colore;
            }
        }
    }
}

bool MuriVisti::Ha(const Posto& posto) const {
    return muri_.at(Indice(posto.Riga, posto.Colonna)).at(static_cast<std::size_t>(posto.Lato));
}

int MuriVisti::Interni() const {
    int quanti = 0;
    for (int r = 1; r <= righe_; ++r) {
        for (int c = 1; c <= colonne_; ++c) {
            quanti += c < colonne_ && Ha({r, c, AllaDestra}) ? 1 : 0;
            quanti += r < righe_ && Ha({r, c, Giu}) ? 1 : 0;
        }
    }
    return quanti;
}

std::vector<Posto> MuriVisti::Aperture() const {
    std::vector<Posto> aperture;
    for (int r = 1; r <= righe_; ++r) {
        for (int c = 1; c <= colonne_; ++c) {
            const std::array<bool, 4> fuori{r == 1, c == colonne_, r == righe_, c == 1};
            for (int lato = 0; lato < 4; ++lato) {
                if (fuori.at(static_cast<std::size_t>(lato)) && !Ha({r, c, lato})) {
                    aperture.push_back({r, c, lato});
                }
            }
        }
    }
    return aperture;
}

std::vector<int> MuriVisti::Esplora(const Posto& da) const {
    std::vector<int> arrivo(muri_.size(), -1);
    arrivo.at(Indice(da.Riga, da.Colonna)) = 4;
    std::deque<Posto> aperti{da};
    while (!aperti.empty()) {
        const Posto qui = aperti.front();
        aperti.pop_front();
        for (int lato = 0; lato < 4; ++lato) {
            const Posto vicina = qui.Dopo({lato});
            const int r = vicina.Riga;
            const int c = vicina.Colonna;
            const bool dentro = r >= 1 && r <= righe_ && c >= 1 && c <= colonne_;
            if (dentro && !Ha({qui.Riga, qui.Colonna, lato}) && arrivo[Indice(r, c)] < 0) {
                arrivo[Indice(r, c)] = lato;
                aperti.push_back({r, c, 0});
            }
        }
    }
    return arrivo;
}

int MuriVisti::Raggiungibili() const {
    const auto arrivo = Esplora({1, 1, 0});
    return static_cast<int>(
        std::count_if(arrivo.begin(), arrivo.end(), [](int passo) { return passo >= 0; }));
}

std::vector<int> MuriVisti::Strada(const Posto& da, const Posto& a) const {
    const auto arrivo = Esplora(da);
    std::vector<int> passi;
    Posto qui = a;
    for (int passo = arrivo.at(Indice(qui.Riga, qui.Colonna)); passo >= 0 && passo < 4;
         passo = arrivo.at(Indice(qui.Riga, qui.Colonna))) {
        passi.insert(passi.begin(), passo);
        qui = qui.Dopo({Contrario(passo)});
    }
    return passi;
}

}  // namespace trameli
