// A form that does what a test tells it, and notes everything that happens to it.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "platform/command_button.h"
#include "platform/forms.h"
#include "platform/menu.h"
#include "platform/option_button.h"
#include "platform/picture_box.h"
#include "platform/timer.h"
#include "support/hand_clock.h"
#include "support/stage.h"

namespace trameli {

using Log = std::vector<std::string>;

/// A form with a menu, two buttons, a picture box and a timer.
class ScriptedForm : public Form {
public:
    using Routine = std::function<void(ScriptedForm&)>;
    /// What the form does in its own routines, apart from noting them.
    struct Script {
        Routine Load;
        Routine Resize;
        Routine Activate;
        Routine Unload;
        Routine QueryClose;
        FormStyle Style = FormStyle::Maximised;
        std::function<bool(ScriptedForm&, int)> KeyDown;
        std::function<void(ScriptedForm&, int)> KeyUp;
    };

    ScriptedForm(trameli::Forms& forms, const std::string& name, Script& script, Log& log)
        : Form(forms, name, {6000, 3000}, script.Style),
          Menu(*this, "Menu", "&Menu"),
          Entry(Menu, "Entry", "&Entry", 'E'),
          Other(Menu, "Other", "&Other"),
          Board(*this, "Board", {200, 900, 3000, 1500}),
          First(*this, "First", {200, 100, 1500, 600}, "&First"),
          Second(*this, "Second", {2000, 100, 1500, 600}, "Second"),
          Ticker(*this, "Ticker", 100),
          script_(script),
          log_(log) {
        ++Alive;
        Entry.Click = [this] { Note("Entry_Click"); };
        Other.Click = [this] { Note("Other_Click"); };
        Board.MouseMove = [this] { Note("Board_MouseMove"); };
        First.Click = [this] { Note("First_Click"); };
        First.KeyUp = [this](int code, int) { Note("First_KeyUp " + std::to_string(code)); };
        Second.Click = [this] { Note("Second_Click"); };
        Second.GotFocus = [this] { Note("Second_GotFocus"); };
        Ticker.Tick = [this] { Note("Ticker_Timer"); };
    }
    ~ScriptedForm() override { --Alive; }

    /// How many live just now.
    inline static int Alive = 0;

    MenuItem Menu;
    MenuItem Entry;
    MenuItem Other;
    PictureBox Board;
    CommandButton First;
    CommandButton Second;
    Timer Ticker;

    bool Wait(double seconds) { return Attesa(seconds); }
    void Note(const std::string& what) { log_.push_back(Name() + " " + what); }

protected:
    void Form_Load() override { Do("Load", script_.Load); }
    void Form_Resize() override { Do("Resize", script_.Resize); }
    void Form_Activate() override { Do("Activate", script_.Activate); }
    void Form_Unload() override { Do("Unload", script_.Unload); }
    void Form_QueryClose() override {
        if (script_.QueryClose) {
            script_.QueryClose(*this);
        } else {
            Form::Form_QueryClose();
        }
    }
    void Form_MouseMove() override { Note("MouseMove"); }
    bool Form_KeyDown(int keyCode, int) override {
        return script_.KeyDown && script_.KeyDown(*this, keyCode);
    }
    void Form_KeyUp(int keyCode, int) override {
        Note("KeyUp " + std::to_string(keyCode));
        if (script_.KeyUp) {
            script_.KeyUp(*this, keyCode);
        }
    }

private:
    void Do(const char* what, const Routine& routine) {
        Note(what);
        if (routine) {
            routine(*this);
        }
    }

    Script& script_;
    Log& log_;
};

/// A program of two scripted forms, A and B, on a clock moved by hand.
class ScriptedProgram : public testing::Test {
protected:
    ScriptedProgram() : ScriptedProgram(nullptr) {}
    /// On another screen than the one without a desktop.
    explicit ScriptedProgram(Screen* screen) : Program(Time, screen ? *screen : Display) {
        ScriptedForm::Alive = 0;
        Introduce(Program);
    }

    /// Makes A and B known to a program.
    void Introduce(Forms& program) {
        for (const char* name : {"A", "B"}) {
            program.Register(name, [this, name](Forms& forms) {
                return std::make_unique<ScriptedForm>(forms, name, Scripts[name], Seen);
            });
        }
    }

    ScriptedForm& Get(const std::string& name) {
        return dynamic_cast<ScriptedForm&>(*Program.Find(name));
    }
    /// Shows the form, waits until nothing more happens, and forgets what was noted on the way.
    ScriptedForm& Bring(const std::string& name) {
        Program.Show(name);
        Pump();
        Seen.clear();
        return Get(name);
    }
    /// How often `what` was noted.
    long Times(const std::string& what) const { return std::count(Seen.begin(), Seen.end(), what); }

    HandClock Time;
    FixedScreen Display{1024, 768};
    std::map<std::string, ScriptedForm::Script> Scripts;
    Log Seen;
    Forms Program;
};

}  // namespace trameli
