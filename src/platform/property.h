// Properties of controls by their names.
#pragma once

#include <string>
#include <variant>

namespace trameli {

/// What a property holds: text, number or flag. Colours are numbers.
using PropertyValue = std::variant<std::string, double, bool>;

/// What became of reading or setting a property.
enum class PropertyCode : int {
    Done = 0,
    InvalidValue = 380,   ///< a value of another kind, no number, or an element that is not there
    ReadOnly = 383,       ///< it can be read, not set
    CannotBeSet = 387,    ///< not just now
    CannotBeRead = 393,   ///< not just now
    NoSuchProperty = 438  ///< controls of this class have none of that name
};

}  // namespace trameli
