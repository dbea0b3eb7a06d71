// The three ways in which the game turns a number into a whole one. Everything that rounds goes
// through here, so that a bare cast from floating point never decides where a pixel lies.
#pragma once

#include <cmath>
#include <concepts>
#include <cstdint>
#include <limits>

namespace trameli {

/// The nearest whole number, a half going to the even neighbour (2.5 gives 2, 3.5 gives 4).
/// Values beyond 32 bits give the nearest 32-bit number, NaN gives 0.
inline std::int32_t Nearest(double x) {
    if (std::isnan(x)) {
        return 0;
    }
    constexpr double low = std::numeric_limits<std::int32_t>::min();
    constexpr double high = std::numeric_limits<std::int32_t>::max();
    const double floor = std::floor(x);
    const double rest = x - floor;
    const bool up = rest > 0.5 || (rest == 0.5 && std::fmod(floor, 2.0) != 0.0);
    const double whole = up ? floor + 1.0 : floor;
    return static_cast<std::int32_t>(whole < low ? low : whole > high ? high : whole);
}

/// The largest whole number not above x, limited to 32 bits; NaN gives 0.
inline std::int32_t Floor(double x) {
    return Nearest(std::floor(x));
}

/// Floor of what is known to lie from 0 to below 2^31: no test, for the draws of the carving, where
/// Floor would cost more than the draw.
constexpr std::int32_t FloorOfPositive(double x) {
    return static_cast<std::int32_t>(x);
}

/// a divided by b, cut off towards zero; b must not be 0.
template <std::integral A, std::integral B>
constexpr auto Quotient(A a, B b) {
    return a / b;
}

/// x as a 16-bit number; what does not fit becomes the nearest number that does.
template <std::integral A>
constexpr std::int16_t Saturated(A x) {
    constexpr A low = std::numeric_limits<std::int16_t>::min();
    constexpr A high = std::numeric_limits<std::int16_t>::max();
    return static_cast<std::int16_t>(x < low ? low : x > high ? high : x);
}

}  // namespace trameli
