// A generator that plays back a script, so that a test decides every draw and counts them.
#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <initializer_list>
#include <stdexcept>
#include <utility>
#include <vector>

#include "engine/tramelo.h"

namespace trameli {

/// The middle of the draws that FinoA(n) turns into `valore`.
inline float PerValore(int valore, int n) {
    return (static_cast<float>(valore) + 0.5F) / static_cast<float>(n);
}

class CasualeFinto : public Casuale {
public:
    explicit CasualeFinto(std::vector<float> estrazioni = {})
        : m_estrazioni(std::move(estrazioni)) {}

    /// Fails the test and throws when the script has run out.
    float Estrai() override {
        if (m_estratti == m_estrazioni.size()) {
            ADD_FAILURE() << "more draws than the " << m_estratti << " of the script";
            throw std::out_of_range("script of draws");
        }
        return m_estrazioni[m_estratti++];
    }

    void Aggiungi(float u) { m_estrazioni.push_back(u); }

    /// The three draws of a wall: row, column, side.
    void AggiungiMuro(const Tramelo& tramelo, int r, int c, Lato lato) {
        Aggiungi(PerValore(r - 1, tramelo.Righe()));
        Aggiungi(PerValore(c - 1, tramelo.Colonne()));
        Aggiungi(PerValore(static_cast<int>(lato), 4));
    }

    std::size_t Estratti() const { return m_estratti; }
    std::size_t Rimasti() const { return m_estrazioni.size() - m_estratti; }

private:
    std::vector<float> m_estrazioni;
    std::size_t m_estratti = 0;
};

}  // namespace trameli
