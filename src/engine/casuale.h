// Where chance comes from. One generator serves the whole game, so the order of its draws is part
// of how a maze comes about: a given seed, or a script of draws in a test, always gives the same
// maze.
#pragma once

#include <cstdint>
#include <random>

#include "base/rounding.h"

namespace trameli {

/// A source of uniform single-precision numbers u with 0 <= u < 1.
class Casuale {
public:
    Casuale() = default;
    // A copy would give the same draws a second time.
    Casuale(const Casuale&) = delete;
    Casuale& operator=(const Casuale&) = delete;
    virtual ~Casuale() = default;

    /// The next u, 0 <= u < 1.
    virtual float Estrai() = 0;

    /// floor(u x n): a whole number from 0 to n - 1; one draw. n is 1 or more.
    int FinoA(int n) {
        // The product of 24 and 29 bits is exact in a double, so it cannot be rounded up to n, nor
        // across any whole number below.
        return FloorOfPositive(static_cast<double>(Estrai()) * n);
    }
};

/// The generator of the game, seeded once.
class CasualeConSeme final : public Casuale {
public:
    /// Equal seeds give equal draws, on every machine.
    explicit CasualeConSeme(std::uint64_t seme);

    float Estrai() override;

private:
    std::mt19937 m_generatore;
};

}  // namespace trameli
