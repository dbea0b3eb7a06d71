// The road of a key from the window system to the form and its control.
#pragma once

#include <QKeyEvent>
#include <QSet>
#include <QWidget>

#include "platform/form.h"
#include "platform/qt/key_gate.h"
#include "platform/qt/switch_care.h"

namespace trameli {

/// Takes the keys of a form's window before the toolkit does: holds back what is no press of
/// anybody, tells the form, and lets through what the control with the focus shall have.
class KeyRoad {
public:
    /// Both must outlive it.
    KeyRoad(Form& form, QWidget& window);

    /// An event of the window in the window system. True if it goes no further.
    bool Takes(QEvent& event);
    /// The window lost the keyboard.
    void Forget();
    /// The window, or a widget in it, came to be seen or can be used from now on.
    void Appeared(const QWidget& what) { care_.Appeared(what); }
    /// True while a key of this code is held down that was pressed in this window.
    bool IsDown(int keyCode) const { return gate_.IsDown(keyCode); }
    /// True while the form is told of a key's press.
    bool AnswersPress() const { return answersPress_; }

private:
    bool TakesPress(QKeyEvent& event);
    bool TakesRelease(QKeyEvent& event);
    bool Refuses(const QKeyEvent& press);
    void TellForm(QKeyEvent& press);

    Form& form_;
    QWidget& window_;
    SwitchCare care_;
    KeyGate gate_;
    QSet<int> kept_;           // keys held down that the form keeps from its controls
    bool menuHasKey_ = false;  // the press under way found a menu or a list open
    bool answersPress_ = false;
};

}  // namespace trameli
