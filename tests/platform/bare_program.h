// A program of empty forms, for tests that put their own controls on them.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QWindow>
#include <algorithm>
#include <string>
#include <vector>

#include "platform/forms.h"
#include "support/hand_clock.h"
#include "support/stage.h"

namespace trameli {

class BareForm : public Form {
public:
    BareForm(trameli::Forms& forms, const std::string& name) : Form(forms, name, {6000, 4500}) {}

    std::function<void()> WhenResized;

protected:
    void Form_Resize() override {
        if (WhenResized) {
            WhenResized();
        }
    }
};

using Log = std::vector<std::string>;

/// A program of two forms, A and B, on a clock moved by hand.
template <typename TheirForm>
class ProgramOf : public testing::Test {
protected:
    using Maker = std::function<std::unique_ptr<TheirForm>(Forms&, const std::string&)>;

    /// On `screen`, or on one of so many pixels without a desktop.
    ProgramOf(Maker maker, int width, int height, Screen* screen = nullptr)
        : Display{width, height}, Program(Time, screen ? *screen : Display), maker_(maker) {
        for (const char* name : {"A", "B"}) {
            Program.Register(name, [this, name](Forms& forms) { return maker_(forms, name); });
        }
    }

    TheirForm& Get(const std::string& name) {
        return dynamic_cast<TheirForm&>(*Program.Find(name));
    }
    /// Shows the form and waits until nothing more happens.
    TheirForm& Bring(const std::string& name = "A") {
        Program.Show(name);
        Pump();
        return Get(name);
    }
    /// A routine that notes `what`.
    std::function<void()> Noting(const std::string& what) {
        return [this, what] { Seen.push_back(what); };
    }
    /// How often `what` was noted.
    long Times(const std::string& what) const { return std::count(Seen.begin(), Seen.end(), what); }

    HandClock Time;
    FixedScreen Display;
    Log Seen;
    Forms Program;

private:
    Maker maker_;
};

/// With empty forms. A is loaded, not shown.
class BareProgram : public ProgramOf<BareForm> {
protected:
    BareProgram() : ProgramOf(std::make_unique<BareForm, Forms&, const std::string&>, 800, 600) {}

    BareForm& TheForm = dynamic_cast<BareForm&>(Program.Load("A"));
};

inline QRgb PixelOf(Colour colour) {
    return qRgb(RedOf(colour), GreenOf(colour), BlueOf(colour));
}

/// How many pixels of a picture have just that colour.
inline long Count(const QImage& image, Colour colour) {
    long count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            count += image.pixel(x, y) == PixelOf(colour);
        }
    }
    return count;
}

/// The part of a picture that colour takes.
inline double Share(const QImage& image, Colour colour) {
    return static_cast<double>(Count(image, colour)) /
           static_cast<double>(std::max(1, image.width() * image.height()));
}

}  // namespace trameli
