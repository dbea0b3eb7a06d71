// What stands in a box for numbers.
#pragma once

#include <algorithm>
#include <charconv>
#include <limits>
#include <string_view>

namespace trameli {

/// The number that a text begins with, decimal point allowed, no exponent; 0 if it begins with
/// none. One that is too large for its kind is the largest there is.
inline double LeadingNumber(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
    if (text.starts_with('+')) {
        text.remove_prefix(1);
        if (text.starts_with('-')) {
            return 0;
        }
    }
    const bool negative = text.starts_with('-');
    // Words that stand for a number, such as "inf", begin with none.
    if (text.find_first_of("0123456789.") > (negative ? 1U : 0U)) {
        return 0;
    }
    double number = 0;
    const auto read =
        std::from_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed);
    if (read.ec == std::errc::result_out_of_range) {
        constexpr double largest = std::numeric_limits<double>::max();
        return negative ? -largest : largest;
    }
    return number;
}

}  // namespace trameli
