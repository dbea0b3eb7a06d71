// Buttons for those who have the keyboard elsewhere.
#pragma once

#include <QKeyEvent>
#include <QPointer>
#include <QPushButton>

namespace trameli {

/// The buttons of a form that Enter and Escape press, wherever the keyboard is. It is told of the
/// keys that nobody else has a use for; a stroke of one presses once, when the key is let go.
class FormButtons {
public:
    QPointer<QPushButton> Default;  ///< Enter's
    QPointer<QPushButton> Cancel;   ///< Escape's

    /// Both are true if the key is one for a button that can be pressed.
    bool Press(const QKeyEvent& event);
    bool Release(const QKeyEvent& event);
    /// What is held down counts no more.
    void Forget();

private:
    QPointer<QPushButton> down_;
    int key_ = 0;  // that holds it down
};

}  // namespace trameli
