// Care for switches in front of the toolkit's own dialogs.
#pragma once

#include <QObject>

#include "platform/qt/switch_care.h"

namespace trameli {

/// Keeps presses that nobody can have meant from message boxes and other dialogs, as KeyRoad keeps
/// them from forms: a box that comes up under a bouncing switch stays until it can have been read.
class DialogCare : public QObject {
public:
    /// Serves all dialogs of the process. `forms` must outlive it.
    explicit DialogCare(const Forms& forms);

private:
    bool eventFilter(QObject* object, QEvent* event) override;

    SwitchCare care_;
};

}  // namespace trameli
