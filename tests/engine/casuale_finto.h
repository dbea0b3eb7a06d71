// A generator that plays back a script, so that a test decides every draw and counts them.
#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <stdexcept>
#include <utility>
#include <vector>

#include "engine/tramelo.h"

namespace trameli {

class CasualeFinto : public Casuale {
public:
    explicit CasualeFinto(std::vector<float> estrazioni = {})
        : m_estrazioni(std::move(estrazioni)) {}

    /// Fails the test and throws when the script has run out.
    float Estrai() override {
        if (Rimasti() == 0) {
            ADD_FAILURE() << "more draws than the " << m_estratti << " of the script";
            throw std::out_of_range("script of draws");
        }
        return m_estrazioni[m_estratti++];
    }

    /// The three draws of a wall: row, column, side, each in the middle of those that mean it.
    void AggiungiMuro(const Tramelo& tramelo, int r, int c, Lato lato) {
        const auto aggiungi = [this](int valore, int n) {
            m_estrazioni.push_back((static_cast<float>(valore) + 0.5F) / static_cast<float>(n));
        };
        aggiungi(r - 1, tramelo.Righe());
        aggiungi(c - 1, tramelo.Colonne());
        aggiungi(static_cast<int>(lato), 4);
    }

    std::size_t Rimasti() const { return m_estrazioni.size() - m_estratti; }

private:
    std::vector<float> m_estrazioni;
    std::size_t m_estratti = 0;
};

}  // namespace trameli
