// Clock, screen and dialogs of the desktop.
#pragma once

#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/screen.h"

namespace trameli {

/// The machine's time.
class DesktopClock final : public Clock {
public:
    double Now() const override;
    std::unique_ptr<Ticker> Every(int milliseconds, std::function<void()> tick) override;
    void Wait(double seconds, const std::function<bool()>& over) override;
};

/// The screen that the desktop calls its first.
class DesktopScreen final : public Screen {
public:
    PixelSize Size() const override;
    PixelSize Available() const override;
    bool HasDesktop() const override { return true; }
};

/// Message boxes in front of the program's windows.
class DesktopDialogs final : public Dialogs {
public:
    void Critical(const std::string& text, const std::string& title) override;
};

/// Sets the toolkit up alike on every desktop; called once, before the first window.
void PrepareToolkit();

}  // namespace trameli
