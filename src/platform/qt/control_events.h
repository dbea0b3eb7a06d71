// Events that all controls share.
#pragma once

#include <QObject>

#include "platform/control.h"

namespace trameli {

/// Turns the toolkit's events of a control's widget into the control's own: pointer moves, focus
/// and key releases.
class ControlEvents : public QObject {
public:
    /// `widget` becomes the owner.
    ControlEvents(InteractiveControl& control, QWidget* widget);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    InteractiveControl& control_;
};

}  // namespace trameli
