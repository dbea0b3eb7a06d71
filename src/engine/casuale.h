// Where chance comes from. One generator serves the whole game, so the order of its draws is part
// of how a maze comes about: a given seed, or a script of draws in a test, always gives the same
// maze.
#pragma once

#include <array>
#include <cstddef>
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

    float Estrai() override {
        if (prossimo_ == scorta_.size()) {
            Riempi();
        }
        return scorta_[prossimo_++];
    }

private:
    // std::mt19937 in all but its word: that one may keep its state in 64-bit words, which takes
    // twice as long.
    using Generatore =
        std::mersenne_twister_engine<std::uint32_t, 32, 624, 397, 31, 0x9908b0dfU, 11, 0xffffffffU,
                                     7, 0x9d2c5680U, 15, 0xefc60000U, 18, 1812433253U>;

    void Riempi();

    Generatore generatore_;
    // A carve rejects many draws and is about as fast as they come, so they are made in advance.
    std::array<float, Generatore::state_size> scorta_;
    std::size_t prossimo_ = 0;
};

}  // namespace trameli
