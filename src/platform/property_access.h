// How controls tell which properties they have.
#pragma once

#include <string_view>
#include <type_traits>
#include <utility>

#include "platform/property.h"

namespace trameli {

/// One reading or setting of a property on its way through the classes of a control. Each class
/// lists its own properties; the first of the name that is asked for is the one that is meant.
class PropertyAccess {
public:
    /// Reads: the value goes to `into`, which stays as it is if there is none.
    PropertyAccess(std::string_view name, PropertyValue& into) : name_(name), into_(&into) {}
    /// Sets.
    PropertyAccess(std::string_view name, const PropertyValue& from) : name_(name), from_(&from) {}

    /// A property that these two members read and set.
    template <typename Object, typename C, typename R, typename D, typename A>
    void At(std::string_view name, Object& object, R (C::*get)() const, void (D::*set)(A)) {
        if (!Meant(name)) {
            return;
        }
        if (into_) {
            Read((object.*get)());
        } else if (std::remove_cvref_t<A> value{}; Take(value)) {
            (object.*set)(std::move(value));
        }
    }

    /// A property that can only be read.
    template <typename Object, typename C, typename R>
    void At(std::string_view name, const Object& object, R (C::*get)() const) {
        if (!Meant(name)) {
            return;
        }
        if (into_) {
            Read((object.*get)());
        } else {
            code_ = PropertyCode::ReadOnly;
        }
    }

    /// A row of `count` properties, told apart by a number from 0 in brackets behind the name.
    template <typename Object, typename C, typename R, typename D, typename A>
    void Row(std::string_view name, int count, Object& object, R (C::*get)(int) const,
             void (D::*set)(int, A)) {
        const int index = MeantElement(name, count);
        if (index < 0) {
            return;
        }
        if (into_) {
            Read((object.*get)(index));
        } else if (std::remove_cvref_t<A> value{}; Take(value)) {
            (object.*set)(index, std::move(value));
        }
    }

    PropertyCode Code() const { return code_; }

private:
    bool Meant(std::string_view name) { return !found_ && (found_ = name == name_); }
    /// The number in brackets if an element of the row `name` is meant that exists; -1 if not.
    int MeantElement(std::string_view name, int count);

    template <typename T>
    void Read(const T& value) {
        if constexpr (std::is_same_v<T, int>) {
            *into_ = static_cast<double>(value);
        } else {
            *into_ = value;
        }
        code_ = PropertyCode::Done;
    }

    /// Takes the value to set, if it is of the kind that the property holds.
    bool Take(std::string& text);
    bool Take(bool& flag);
    bool Take(double& number);
    bool Take(int& number);

    std::string_view name_;
    PropertyValue* into_ = nullptr;        // of a reading
    const PropertyValue* from_ = nullptr;  // of a setting
    bool found_ = false;
    PropertyCode code_ = PropertyCode::NoSuchProperty;
};

}  // namespace trameli
