// Windows that go without having been closed.
#pragma once

#include <QAbstractNativeEventFilter>
#include <QObject>

#include "platform/forms.h"

namespace trameli {

/// Notices when an X server has taken a window away that another program destroyed, of which the
/// toolkit says nothing. A dialog or menu counts as closed then. A form's window is closed too, and
/// the program ends: it would go on unseen, and keep every other copy from starting.
class LostWindows : private QAbstractNativeEventFilter {
public:
    /// Serves all windows of the process. `forms` must outlive it.
    explicit LostWindows(Forms& forms);
    ~LostWindows() override;
    LostWindows(const LostWindows&) = delete;
    LostWindows& operator=(const LostWindows&) = delete;

private:
    bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;
    void Lost(QWidget& window);

    Forms& forms_;
    QObject calls_;  // which end with this
};

}  // namespace trameli
