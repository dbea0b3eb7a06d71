// The carving in its plainest form, one array for each thing and every pass in full, to hold the
// packed and shortened one against.
#pragma once

#include <array>
#include <cstddef>
#include <vector>

#include "engine/casuale.h"

namespace trameli {

class Modello {
public:
    Modello(int righe, int colonne, Casuale& casuale) : R(righe), C(colonne), m_casuale(casuale) {
        const std::vector<std::array<bool, 4>> riga(static_cast<std::size_t>(C) + 1);
        Muri.assign(static_cast<std::size_t>(R) + 1, riga);
        MuriProtetti = Muri;
        Griglia.assign(Muri.size(), std::vector<int>(riga.size()));
        for (int r = 1; r <= R; ++r) {
            for (int c = 1; c <= C; ++c) {
                Etichetta(r, c) = C * (r - 1) + c;
                for (int s = 0; s < 4; ++s) {
                    Di(Muri, r, c, s) = true;
                    Di(MuriProtetti, r, c, s) = Fuori(r, c, s);
                }
            }
        }
        RegioniRimaste = R * C;
    }

    void SelezionaMuroDaAbbattere() {
        EstraiMuro();
        int a = 0;
        int b = 0;
        while (a == b) {
            while (Di(MuriProtetti, m_r, m_c, m_s)) {
                EstraiMuro();
            }
            a = Etichetta(m_r, m_c);
            b = Etichetta(m_r + Giu[At(m_s)], m_c + Destra[At(m_s)]);
            Scrivi(MuriProtetti, true);
        }
        Scrivi(Muri, false);
        const int via = a > b ? a : b;
        const int resta = a > b ? b : a;
        for (int r = 1; r <= R; ++r) {
            for (int c = 1; c <= C; ++c) {
                if (Etichetta(r, c) == via) {
                    Etichetta(r, c) = resta;
                }
            }
        }
        --RegioniRimaste;
    }

    void AbbattiAltriMuri(int quanti) {
        for (int n = 0; n < quanti;) {
            EstraiMuro();
            if (Di(Muri, m_r, m_c, m_s) && !Fuori(m_r, m_c, m_s)) {
                Scrivi(Muri, false);
                ++n;
            }
        }
    }

    int R;
    int C;
    int RegioniRimaste;
    std::vector<std::vector<int>> Griglia;
    std::vector<std::vector<std::array<bool, 4>>> Muri;
    std::vector<std::vector<std::array<bool, 4>>> MuriProtetti;

private:
    static constexpr std::array<int, 4> Giu{-1, 0, 1, 0};
    static constexpr std::array<int, 4> Destra{0, 1, 0, -1};

    static std::size_t At(int i) { return static_cast<std::size_t>(i); }
    static bool& Di(std::vector<std::vector<std::array<bool, 4>>>& di, int r, int c, int s) {
        return di[At(r)][At(c)][At(s)];
    }
    int& Etichetta(int r, int c) { return Griglia[At(r)][At(c)]; }
    bool Fuori(int r, int c, int s) const {
        return (s == 0 && r == 1) || (s == 2 && r == R) || (s == 3 && c == 1) || (s == 1 && c == C);
    }
    void Scrivi(std::vector<std::vector<std::array<bool, 4>>>& in, bool valore) {
        Di(in, m_r, m_c, m_s) = valore;
        Di(in, m_r + Giu[At(m_s)], m_c + Destra[At(m_s)], (m_s + 2) % 4) = valore;
    }
    void EstraiMuro() {
        m_r = m_casuale.FinoA(R) + 1;
        m_c = m_casuale.FinoA(C) + 1;
        m_s = m_casuale.FinoA(4);
    }

    Casuale& m_casuale;
    int m_r = 0;
    int m_c = 0;
    int m_s = 0;
};

}  // namespace trameli
