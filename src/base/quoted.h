// What came from outside, for a terminal.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace trameli {

/// A word between quotes, fit for one line whatever is in it.
inline std::string Quoted(std::string_view word) {
    std::string text = "'" + std::string(word) + "'";
    constexpr char erase = 127;
    std::replace_if(
        text.begin(), text.end(), [](char c) { return (c >= 0 && c < ' ') || c == erase; }, '?');
    return text;
}

}  // namespace trameli
