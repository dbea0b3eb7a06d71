// Dialogs that the toolkit brings along.
#pragma once

#include <optional>
#include <string>

#include "platform/colour.h"

namespace trameli {

/// The picture in a message box.
enum class Icon { None, Critical, Question, Information };

/// The buttons of a message box.
enum class Buttons { Ok, OkCancel, YesNo, YesNoCancel };

/// How a message box was answered.
enum class Answer { Ok, Cancel, Yes, No };

/// The service for dialogs. While one is open other windows take no input, but timers go on. A
/// dialog is closed by the end of the program, and outlives the window that it was opened over. In
/// a test the answers come from a script.
class Dialogs {
public:
    virtual ~Dialogs() = default;

    /// Shows a message and returns how it was answered. Closing the box is Cancel if there is such
    /// a button, else No, else Ok.
    virtual Answer Message(const std::string& text, const std::string& title, Icon icon,
                           Buttons buttons) = 0;

    /// Lets the user choose a colour, starting from black; nothing if that was cancelled.
    virtual std::optional<Colour> ChooseColour() = 0;

    /// Gives the dialogs' own texts, such as those of their buttons, in a language, for instance
    /// "de"; in English where they are not installed in it.
    virtual void Language(const std::string& locale) = 0;
};

}  // namespace trameli
