// Where there is nobody to ask.
#pragma once

#include "platform/dialogs.h"

namespace trameli {

/// Shows nothing and chooses nothing.
class NoDialogs : public Dialogs {
public:
    Answer Message(const std::string&, const std::string&, Icon, Buttons) override {
        return Answer::Ok;
    }
    std::optional<Colour> ChooseColour() override { return std::nullopt; }
    void Language(const std::string&) override {}
};

}  // namespace trameli
