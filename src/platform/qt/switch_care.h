// Care for switches that bounce and for hands that shake.
#pragma once

#include <QHash>
#include <QKeyEvent>
#include <QSet>
#include <QWidget>

#include "platform/forms.h"

namespace trameli {

/// Tells which presses nobody can have meant, as long as switches are in use: those of a key that
/// has just gone up, and those that come before a person can have seen what they act on.
class SwitchCare {
public:
    /// `forms` tells the time and whether switches are in use, and must outlive it.
    explicit SwitchCare(const Forms& forms) : forms_(forms) {}

    /// True if the press has to do nothing at all, and neither have its repetitions. It acts on
    /// the control with the focus in `window`; without one, on a menu or a list.
    bool Refuses(const QKeyEvent& press, const QWidget* window);
    /// True if the control with the focus has only just come to be seen, or the window. A press
    /// that was not refused can have brought the focus there.
    bool IsTooSoon(const QKeyEvent& press, const QWidget& window) const;
    /// Takes note of a release; true if its press was refused.
    bool WentUp(const QKeyEvent& release);
    /// A window or a control came to be seen or can be used from now on.
    void Appeared(const QWidget& what) { appeared_[&what] = forms_.Clock().Now(); }

private:
    bool Bounces(const QKeyEvent& press) const;
    bool IsMinded(const QKeyEvent& press, const QWidget* window) const;

    const Forms& forms_;
    QHash<quint64, double> wentUp_;           // when each key did last
    QHash<const QWidget*, double> appeared_;  // when, if not long ago
    QSet<quint64> refused_;                   // keys that are down and have not to be
};

}  // namespace trameli
