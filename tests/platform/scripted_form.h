// A form that does what a test tells it, and notes everything that happens to it.
#pragma once

#include <map>

#include "platform/bare_program.h"
#include "platform/command_button.h"
#include "platform/menu.h"
#include "platform/option_button.h"
#include "platform/picture_box.h"
#include "platform/timer.h"

namespace trameli {

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
        Entry.Click = [this] { Note("Entry_Click"); };
        Other.Click = [this] { Note("Other_Click"); };
        First.Click = [this] { Note("First_Click"); };
        First.KeyUp = [this](int code, int) { Note("First_KeyUp " + std::to_string(code)); };
        Second.Click = [this] { Note("Second_Click"); };
        Second.GotFocus = [this] { Note("Second_GotFocus"); };
        Ticker.Tick = [this] { Note("Ticker_Timer"); };
    }

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

/// With forms that do what `Scripts` says.
class ScriptedProgram : public ProgramOf<ScriptedForm> {
protected:
    explicit ScriptedProgram(Screen* screen = nullptr)
        : ProgramOf(
              [this](Forms& forms, const std::string& name) {
                  return std::make_unique<ScriptedForm>(forms, name, Scripts[name], Seen);
              },
              1024, 768, screen) {}

    /// Shows the form, and forgets what was noted on the way.
    ScriptedForm& Bring(const std::string& name) {
        ScriptedForm& form = ProgramOf::Bring(name);
        Seen.clear();
        return form;
    }

    std::map<std::string, ScriptedForm::Script> Scripts;
};

}  // namespace trameli
