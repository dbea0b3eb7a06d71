#include "platform/property_access.h"

#include <charconv>
#include <cmath>

#include "base/rounding.h"

namespace trameli {

int PropertyAccess::MeantElement(std::string_view name, int count) {
    if (found_ || !name_.starts_with(name) || !name_.ends_with(')')) {
        return -1;
    }
    const std::string_view brackets = name_.substr(name.size());
    const char* const end = brackets.data() + brackets.size() - 1;
    unsigned index = 0;
    if (!brackets.starts_with('(') || std::from_chars(brackets.data() + 1, end, index).ptr != end ||
        end[-1] == '(') {
        return -1;
    }
    found_ = true;
    if (index >= static_cast<unsigned>(count)) {
        code_ = PropertyCode::InvalidValue;
        return -1;
    }
    return static_cast<int>(index);
}

namespace {

template <typename T>
PropertyCode TakeAs(const PropertyValue& from, T& value) {
    const T* const given = std::get_if<T>(&from);
    if (!given) {
        return PropertyCode::InvalidValue;
    }
    value = *given;
    return PropertyCode::Done;
}

}  // namespace

bool PropertyAccess::Take(std::string& text) {
    code_ = TakeAs(*from_, text);
    return code_ == PropertyCode::Done;
}

bool PropertyAccess::Take(bool& flag) {
    code_ = TakeAs(*from_, flag);
    return code_ == PropertyCode::Done;
}

bool PropertyAccess::Take(double& number) {
    code_ = TakeAs(*from_, number);
    if (!std::isfinite(number)) {
        code_ = PropertyCode::InvalidValue;
    }
    return code_ == PropertyCode::Done;
}

bool PropertyAccess::Take(int& number) {
    double given = 0;
    if (!Take(given)) {
        return false;
    }
    number = Nearest(given);
    return true;
}

}  // namespace trameli
