// The windows of a program and its life.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/clock.h"
#include "platform/form.h"
#include "platform/screen.h"

namespace trameli {

/// Whether a form lets others have the keyboard and the pointer while it is shown.
enum class Modality { Modeless, Modal };

/// All forms of one program, by name. Each exists at most once. Forms open each other through this
/// class and so need not know of each other.
class Forms {
public:
    /// Makes a form; called whenever it is loaded.
    using Maker = std::function<std::unique_ptr<Form>(Forms&)>;

    /// Both services must outlive it. No form is known yet.
    Forms(trameli::Clock& clock, trameli::Screen& screen);
    ~Forms();
    Forms(const Forms&) = delete;
    Forms& operator=(const Forms&) = delete;

    trameli::Clock& Clock() const { return clock_; }
    trameli::Screen& Screen() const { return screen_; }

    /// Tells how the form `name` is made.
    void Register(const std::string& name, Maker maker);
    /// True if the program has a form of that name.
    bool Knows(const std::string& name) const { return makers_.contains(name); }

    /// Loads the form if it is not loaded, and brings it to the front; returns before its
    /// `Form_Activate`. A form whose `Form_Load` is still under way, serving events, comes to the
    /// front when that has returned. A name that is not known shows nothing.
    ///
    /// Shown `Modal`, it alone has keyboard and pointer, and this returns when it is unloaded or
    /// the program ended: the caller's own form may be gone by then.
    void Show(const std::string& name, Modality modality = Modality::Modeless);
    /// The form of that name, loaded but not shown if it was not loaded before. It must be known.
    Form& Load(const std::string& name);
    /// The form of that name if it is loaded, else nothing.
    Form* Find(const std::string& name) const;
    /// All forms that are loaded just now, the one in front last.
    std::vector<Form*> Loaded() const;
    /// Shows the form `to` and unloads `from`. None of its events arrives meanwhile, though loading
    /// the other one serves events: two quick clicks never lead to two windows.
    void HandOver(Form& from, const std::string& to);
    /// Runs the form's `Form_Unload` and takes it from the screen. None of its routines is started
    /// any more; it is destroyed when the last one under way has returned. The program ends when
    /// no form is left on the screen.
    void Unload(Form& form);

    /// Ends the program at once: no routine of any form is started any more.
    void End();
    /// True once the program has ended, by `End` or with its last window.
    bool Ended() const { return ended_; }

    /// Seconds in which nobody reacts to what has just come to be seen.
    static constexpr double Reaction = 0.5;
    /// Tells how to find out whether the player uses switches. While that is so, a key that went up
    /// less than 150 ms ago is not pressed, and neither is any key less than `Reaction` after the
    /// window or the control with the focus appeared, or could be used again: nobody means that.
    /// Tab and the keys held together with others are let through.
    void SwitchesInUse(std::function<bool()> inUse) { switchesInUse_ = std::move(inUse); }
    bool SwitchesInUse() const { return switchesInUse_ && switchesInUse_(); }

    /// Serves events until the program ends.
    void Run();
    /// Serves the events that are waiting, without waiting for any. Afterwards the caller's form
    /// and its controls may be gone.
    void ServeEvents();

    /// Calls `action` with each control that the form has now, in the order of their making, and
    /// leaves out those that are gone when it is their turn. Stops when the form is unloaded.
    void ForEachControl(Form& form, const std::function<void(Control&)>& action);

    /// Runs an event routine of `form` if the form is loaded; of use below `platform` only.
    void Dispatch(Form& form, const std::function<void()>& routine);

private:
    using Place = std::vector<std::unique_ptr<Form>>::iterator;

    Place PlaceOf(const Form& form);
    Form& Open(const std::string& name, bool wanted);
    void Present(Form& form);
    void AwaitUnload(const Form& form);
    void Bury();
    void BringLastToFront();
    void StopIfDeserted();

    trameli::Clock& clock_;
    trameli::Screen& screen_;
    std::map<std::string, Maker> makers_;
    std::vector<std::unique_ptr<Form>> loaded_;  // in the order in which they were shown last
    std::vector<std::unique_ptr<Form>> buried_;  // unloaded, perhaps with a routine under way
    int routinesUnderWay_ = 0;
    bool ended_ = false;
    std::function<bool()> switchesInUse_;

    struct Native;
    std::unique_ptr<Native> native_;
};

}  // namespace trameli
