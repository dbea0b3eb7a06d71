#include "platform/qt/form_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMenuBar>
#include <QScreen>
#include <algorithm>
#include <utility>

#include "platform/forms.h"
#include "platform/label.h"
#include "platform/qt/native.h"

namespace trameli {

namespace {

constexpr Qt::WindowFlags FrameWithoutSizeButtons = Qt::Window | Qt::CustomizeWindowHint |
                                                    Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                                                    Qt::WindowCloseButtonHint;

bool TakesTab(const InteractiveControl& control) {
    return control.NativePart().Widget->focusPolicy() & Qt::TabFocus;
}

}  // namespace

FormWindow::FormWindow(Form& form, QSize clientSize, FormStyle style)
    : form_(form),
      client_(*new ClientArea(form, this)),
      keys_(form, *this),
      style_(style),
      asked_({0, 0}, clientSize),
      maximised_(style == FormStyle::Maximised) {
    setWindowFlags(FrameWithoutSizeButtons);
    Title(QString());
    setCentralWidget(&client_);
    client_.resize(clientSize);
    SetUpSettling();
}

void FormWindow::Title(const QString& title) {
    // A window with no title at all would get the program's name from the toolkit.
    setWindowTitle(title.isEmpty() ? QStringLiteral(" ") : title);
    setAccessibleName(title.isEmpty() ? QStringLiteral("Trameli") : title);
    if (menuWidget()) {
        menuWidget()->setAccessibleName(accessibleName());
    }
}

QRect FormWindow::Place() const {
    return {isVisible() ? pos() : asked_.topLeft(), client_.size()};
}

QRect FormWindow::Asked() const {
    const bool asIs = isVisible() && !maximised_ && !CoversScreen() && !isMinimized();
    return asIs ? Place() : asked_;
}

void FormWindow::Place(const QRect& asked) {
    if (maximised_) {
        return;
    }
    asked_ = {asked.topLeft(), asked.size().expandedTo({0, 0})};
    if (isVisible()) {
        Arrange();
    } else if (client_.size() != asked_.size()) {
        client_.resize(asked_.size());
        client_.Resized();
    }
}

Form::WindowStates FormWindow::State() const {
    return isMinimized() ? Form::Minimised : maximised_ ? Form::Maximised : Form::Normal;
}

void FormWindow::State(Form::WindowStates state) {
    if (state == Form::Minimised) {
        setWindowState(windowState() | Qt::WindowMinimized);
        return;
    }
    setWindowState(windowState() & ~Qt::WindowMinimized);
    maximised_ = state == Form::Maximised;
    if (isVisible()) {
        Arrange();
    }
}

bool FormWindow::CoversScreen() const {
    const PixelSize size = form_.Forms().Screen().Size();
    return asked_.contains(QRect(0, 0, size.Width, size.Height));
}

/// Gives the window its size and place.
void FormWindow::Arrange() {
    if (!maximised_ && !CoversScreen()) {
        setWindowState(windowState() & ~Qt::WindowMaximized);
        move(asked_.topLeft());
        const int bar = menuWidget() ? menuWidget()->heightForWidth(asked_.width()) : 0;
        resize(asked_.width(), asked_.height() + bar);
        return;
    }
    if (isVisible() && isMaximized()) {
        return;
    }
    const PixelSize available = form_.Forms().Screen().Available();
    const QSize size(available.Width, available.Height);
    const QRect place = QGuiApplication::primaryScreen()->availableGeometry();
    // The size comes first and the wish to be maximised after it, so that the window fills the
    // screen also where no window manager hears of the wish. Where the program's screen is another
    // one than the toolkit's, only the program's tells how large a full one is. A Wayland
    // compositor always hears of it, and the size would be the one that the window goes back to.
    if (!QGuiApplication::platformName().startsWith(QLatin1String("wayland"))) {
        resize(size);
    }
    if (size == place.size()) {
        move(place.topLeft());
        setWindowState(windowState() | Qt::WindowMaximized);
    }
}

void FormWindow::HoldPainting() {
    if (++paintingHolds_ == 1) {
        setUpdatesEnabled(false);
    }
}

void FormWindow::ReleasePainting() {
    if (--paintingHolds_ == 0) {
        setUpdatesEnabled(true);
    }
}

void FormWindow::Hourglass(bool wanted) {
    hourglassWanted_ = wanted;
    ShowHourglass();
}

/// The pointer is that of all windows, or controls with one of their own would show theirs. So it
/// comes and goes with the window's being in front: over a message box nobody has to wait.
void FormWindow::ShowHourglass() {
    const bool due = hourglassWanted_ && isActiveWindow() && presented_;
    if (due == std::exchange(hourglassShown_, due)) {
        return;
    }
    if (due) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
    } else {
        QApplication::restoreOverrideCursor();
    }
}

bool FormWindow::FocusMovedTo(const Control& control) {
    const bool moved = focused_ != &control;
    focused_ = &control;
    return moved;
}

void FormWindow::Dismiss() {
    settling_.stop();
    presented_ = false;
    ShowHourglass();
    // A menu left open would stay on the screen without its window.
    while (QWidget* popup = QApplication::activePopupWidget()) {
        popup->close();
    }
    hide();
}

bool FormWindow::event(QEvent* event) {
    switch (event->type()) {
        case QEvent::WindowActivate:
            ShowHourglass();
            keys_.Appeared(*this);
            if (frontAnnounced_ && activated_) {
                // Later, because the desktop's event is not over yet and the routine may wait.
                QMetaObject::invokeMethod(
                    this,
                    [this] {
                        form_.Forms().Dispatch(form_, [this] { Form::Native::Activate(form_); });
                    },
                    Qt::QueuedConnection);
            }
            frontAnnounced_ = true;
            break;
        case QEvent::WindowDeactivate:
            ShowHourglass();
            keys_.Forget();
            buttons_.Forget();
            break;
        case QEvent::Resize:
            if (!settled_ && isVisible()) {
                const bool handled = QMainWindow::event(event);
                Settle();
                return handled;
            }
            break;
        default:
            break;
    }
    return QMainWindow::event(event);
}

bool FormWindow::eventFilter(QObject* object, QEvent* event) {
    if (event->type() == QEvent::Expose && !settled_) {
        // After the window has dealt with it.
        QMetaObject::invokeMethod(
            this, [this] { Settle(); }, Qt::QueuedConnection);
    }
    return keys_.Takes(*event) || QMainWindow::eventFilter(object, event);
}

void FormWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    form_.Forms().Dispatch(form_, [this] { Form::Native::QueryClose(form_); });
}

void FormWindow::keyPressEvent(QKeyEvent* event) {
    event->setAccepted(buttons_.Press(*event));
}

void FormWindow::keyReleaseEvent(QKeyEvent* event) {
    event->setAccepted(buttons_.Release(*event));
}

bool FormWindow::focusNextPrevChild(bool next) {
    // Controls come, go and change their place in the order while the form is shown.
    OrderTabs();
    return QMainWindow::focusNextPrevChild(next);
}

/// Tells the toolkit and the labels of the order of the Tab key, and returns it.
std::vector<const InteractiveControl*> FormWindow::OrderTabs() {
    std::vector<const InteractiveControl*> controls;
    for (const Control* control : form_.Controls()) {
        if (const auto* interactive = dynamic_cast<const InteractiveControl*>(control)) {
            controls.push_back(interactive);
        }
    }
    std::stable_sort(controls.begin(), controls.end(),
                     [](const auto* a, const auto* b) { return a->TabIndex() < b->TabIndex(); });
    for (std::size_t i = 1; i < controls.size(); ++i) {
        setTabOrder(controls[i - 1]->NativePart().Widget, controls[i]->NativePart().Widget);
    }
    for (std::size_t i = 0; i < controls.size(); ++i) {
        if (const auto* label = dynamic_cast<const Label*>(controls[i])) {
            const auto next =
                std::find_if(controls.begin() + static_cast<std::ptrdiff_t>(i), controls.end(),
                             [](const auto* control) { return TakesTab(*control); });
            label->LeadTo(next == controls.end() ? nullptr : *next);
        }
    }
    return controls;
}

void FormWindow::FocusFirst() {
    for (const InteractiveControl* control : OrderTabs()) {
        if (TakesTab(*control) && control->Visible() && control->Enabled()) {
            control->NativePart().Widget->setFocus();
            break;
        }
    }
}

}  // namespace trameli
