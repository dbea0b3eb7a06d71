// Trials that are small among the tests and large where soak.sh asks for it.
#pragma once

#include <cstdlib>
#include <iostream>

namespace trameli {

/// How much of a trial is done: what the variable says, or else little.
inline int Amount(const char* variable, int little) {
    const char* const much = std::getenv(variable);
    return much ? std::atoi(much) : little;
}

/// Prints what came of a trial, as `soak.sh` looks for it.
template <typename... Figures>
void Tell(const Figures&... figures) {
    (std::cout << "soak: " << ... << figures) << std::endl;
}

}  // namespace trameli
