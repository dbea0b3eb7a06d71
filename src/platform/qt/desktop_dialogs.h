// Dialogs in front of the program's windows.
#pragma once

#include <QTranslator>

#include "platform/dialogs.h"

namespace trameli {

/// The toolkit's own dialogs, alike on every desktop.
class DesktopDialogs final : public Dialogs {
public:
    Answer Message(const std::string& text, const std::string& title, Icon icon,
                   Buttons buttons) override;
    std::optional<Colour> ChooseColour() override;
    void Language(const std::string& locale) override;

private:
    QTranslator texts_;
};

}  // namespace trameli
