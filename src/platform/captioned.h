// Controls with a caption.
#pragma once

#include <string>
#include <utility>

#include "platform/control.h"
#include "platform/property_access.h"

namespace trameli {

/// A control of the class Base that shows a text. An "&" in it marks the letter that stands for the
/// control on the keyboard, where the control can be chosen.
template <typename Base>
class Captioned : public Base {
public:
    const std::string& Caption() const { return caption_; }
    void Caption(const std::string& caption) {
        caption_ = caption;
        ShowCaption();
    }

protected:
    using Base::Base;

    /// Hands the caption to the toolkit.
    virtual void ShowCaption() = 0;

    void Properties(PropertyAccess& access) override {
        access.At("Caption", *this, &Captioned::Caption, &Captioned::Caption);
        Base::Properties(access);
    }

private:
    std::string caption_;
};

}  // namespace trameli
