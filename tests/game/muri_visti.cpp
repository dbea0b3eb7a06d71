#include "game/muri_visti.h"

#include <algorithm>
#include <cmath>
#include <deque>

namespace trameli {

Pianta Pianta::Su(double larghezza, double altezza, int righe, int colonne, double twips) {
    const int lato = std::min(static_cast<int>(std::nearbyint(larghezza)) / (colonne + 1),
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

double Vista::PixelPerTwip() const {
    return immagine_.devicePixelRatio() / pianta_.TwipsPerPixel;
}

QPoint Vista::Pixel(QPointF punto) const {
    punto = punto * PixelPerTwip() + QPointF(0.5, 0.5);
    return {static_cast<int>(std::floor(punto.x())), static_cast<int>(std::floor(punto.y()))};
}

QRgb Vista::A(double x, double y) const {
    const QPoint qui = Pixel({x, y});
    return immagine_.valid(qui) ? immagine_.pixel(qui) : 0;
}

QRgb Vista::Fra(int riga, int colonna, double versoX, double versoY) const {
    return A(pianta_.BordoX(colonna - 1) + pianta_.Lato * (0.5 + versoX),
             pianta_.BordoY(riga - 1) + pianta_.Lato * (0.5 + versoY));
}

QRgb Vista::Muro(const Posto& posto) const {
    const QPointF mezzo = pianta_.Verso(posto, 0.5);
    return A(mezzo.x(), mezzo.y());
}

Tratto Vista::TrattoDi(QRgb colore, const Posto& posto, bool lungoX) const {
    const QPoint passo = lungoX ? QPoint(1, 0) : QPoint(0, 1);
    const auto ha = [&](QPoint qui) {
        return immagine_.valid(qui) && immagine_.pixel(qui) == colore;
    };
    QPoint inizio = Pixel(pianta_.Verso(posto, 0.5));
    QPoint fine = inizio;
    while (ha(fine)) {
        fine += passo;
    }
    while (ha(inizio - passo)) {
        inizio -= passo;
    }
    return {lungoX ? inizio.x() : inizio.y(), (fine - inizio).manhattanLength()};
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
