// The system's list of fonts, read beside the start of the program.
#pragma once

#include <thread>

namespace trameli {

/// Reads, on a thread of its own, what the toolkit asks the system for when it needs the first
/// font: which fonts there are, and which stand in for which. It takes a sixth of the whole start,
/// most of which the program spends waiting for the screen.
class FontSearch {
public:
    FontSearch();

private:
    std::jthread thread_;
};

}  // namespace trameli
