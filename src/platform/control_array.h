// Controls of one name, told apart by an index.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <utility>

#include "platform/control.h"

namespace trameli {

/// A control array. Its first elements are made with the form, further ones can come and go while
/// it runs.
template <typename T>
class ControlArray {
public:
    /// An empty array; `name` is that of all its elements.
    explicit ControlArray(std::string name) : name_(std::move(name)) {}

    /// Makes the next element at design time; the arguments follow those for container and name.
    template <typename Parent, typename... Arguments>
    T& Add(Parent& container, Arguments&&... arguments) {
        const int index = Count() == 0 ? 0 : elements_.rbegin()->first + 1;
        auto element = std::make_unique<T>(container, ControlName(name_, index),
                                           std::forward<Arguments>(arguments)...);
        return *(elements_[index] = std::move(element));
    }

    /// Makes the element `index` at run time: like element 0, but invisible. An element that
    /// exists already stays as it is.
    T& Load(int index) {
        auto& element = elements_[index];
        if (!element) {
            element = std::make_unique<T>(*elements_.at(0), index);
        }
        return *element;
    }

    /// Destroys an element, if there is one.
    void Unload(int index) { elements_.erase(index); }

    /// How many elements there are. Their indices may have gaps.
    int Count() const { return static_cast<int>(elements_.size()); }

    /// The element `index`; std::out_of_range if there is none.
    T& operator()(int index) { return *elements_.at(index); }
    const T& operator()(int index) const { return *elements_.at(index); }

    /// Calls `action` with each element, in the order of the indices.
    template <typename Action>
    void ForEach(Action action) {
        for (auto& [index, element] : elements_) {
            action(*element);
        }
    }

private:
    std::string name_;
    std::map<int, std::unique_ptr<T>> elements_;
};

}  // namespace trameli
