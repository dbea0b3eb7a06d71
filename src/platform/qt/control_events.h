// Events that all controls share.
#pragma once

#include <QObject>

#include "platform/control.h"
#include "platform/qt/key_gate.h"

namespace trameli {

class KeyRoad;

/// Turns the toolkit's events of a control's widget into the control's own: pointer moves, focus
/// and the releases of keys that were pressed there.
class ControlEvents : public QObject {
public:
    /// `widget` becomes the owner.
    ControlEvents(InteractiveControl& control, QWidget* widget);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    KeyRoad& Keys() const;

    InteractiveControl& control_;
    KeyGate pressedHere_;
};

}  // namespace trameli
