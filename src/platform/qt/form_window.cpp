#include "platform/qt/form_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMenuBar>
#include <QScreen>
#include <QTimer>
#include <QWindow>
#include <algorithm>
#include <utility>

#include "platform/forms.h"
#include "platform/label.h"
#include "platform/qt/convert.h"
#include "platform/qt/native.h"
#include "platform/qt/x11_server.h"

namespace trameli {

namespace {

/// How long a window's size must stay the same to count as final where nothing else tells, in
/// milliseconds. Only a desktop without window frames needs it.
constexpr int SettlingTime = 100;
/// After how many milliseconds without a trace of it a window is asked for once more.
constexpr int Overlooked = 500;

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
    settling_.setSingleShot(true);
    settling_.setInterval(SettlingTime);
    connect(&settling_, &QTimer::timeout, this, [this] {
        // No frame came, so perhaps nobody manages windows here, and nobody else gives the keyboard
        // to a new one. Keys would find their way all the same, but not the focus.
        activateWindow();
        Settled();
    });
}

void FormWindow::Title(const QString& title) {
    // A window with no title at all would get the program's name from the toolkit.
    setWindowTitle(title.isEmpty() ? QStringLiteral(" ") : title);
    setAccessibleName(title.isEmpty() ? QStringLiteral("Trameli") : title);
    if (menuWidget()) {
        menuWidget()->setAccessibleName(accessibleName());
    }
}

void FormWindow::Present() {
    if (presented_) {
        raise();
        activateWindow();
        return;
    }
    presented_ = true;
    FocusFirst();
    if (style_ == FormStyle::Maximised) {
        ComeUp();
        return;
    }
    QMetaObject::invokeMethod(
        this,
        [this] {
            Activate();
            ComeUp();
        },
        Qt::QueuedConnection);
}

void FormWindow::ComeUp() {
    if (!presented_ || isVisible() || !form_.Loaded()) {
        return;
    }
    OrderTabs();  // the form may have other controls by now than when it was presented
    Arrange();
    winId();  // makes the window, whose keys are filtered
    windowHandle()->installEventFilter(this);
    if (const QWidget* below = QApplication::activeWindow(); below && isModal()) {
        // A click on the window that it blocks must not hide it.
        windowHandle()->setTransientParent(below->windowHandle());
    }
    settled_ = !maximised_ && !CoversScreen();
    if (!settled_) {
        // Painted once, with what the activation draws: nothing flashes up before it, and the
        // first picture is there sooner.
        firstPictureHeld_ = true;
        HoldPainting();
    }
    show();
    QTimer::singleShot(Overlooked, this, [this] { AskAgain(); });
    LookUpFonts();
    if (settled_) {
        keys_.Appeared(*this);
        activateWindow();
    } else {
        Settle();
    }
}

/// A window manager that starts in the same moment can miss that a window wants to be shown. It
/// would stay unseen, and keep every other copy of the program from starting.
void FormWindow::AskAgain() {
    if (presented_ && isVisible() && !isMinimized() && !windowHandle()->isExposed()) {
        askedAgain_ = true;
        MapAgain(*windowHandle());
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

void FormWindow::ReleaseFirstPicture() {
    if (std::exchange(firstPictureHeld_, false)) {
        ReleasePainting();
    }
}

/// Has the toolkit look for the system's fonts, which it does when it first needs one. Now the
/// desktop is putting its frame round the window; later nothing but the search would be going on.
void FormWindow::LookUpFonts() {
    if (const QWidget* first = focusWidget()) {
        first->fontMetrics().height();
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

/// Called whenever something has happened to a window that fills the screen and has not got its
/// final size yet.
void FormWindow::Settle() {
    if (settled_ || !isVisible() || !windowHandle()->isExposed()) {
        return;
    }
    if (HasFinalSize()) {
        settling_.stop();
        QMetaObject::invokeMethod(
            this, [this] { Settled(); }, Qt::QueuedConnection);
    } else {
        ReleaseFirstPicture();  // too long for a window without a picture
        settling_.start();
    }
}

/// True if it is sure that the desktop will not size the window once more.
bool FormWindow::HasFinalSize() const {
    // X11 alone tells of a size before the window manager has had its say; there the frame that it
    // put round the window shows that it has.
    if (QGuiApplication::platformName() != QLatin1String("xcb")) {
        return true;
    }
    const QRect available = windowHandle()->screen()->availableGeometry();
    const QRect outside = windowHandle()->frameGeometry();
    return !windowHandle()->frameMargins().isNull() && outside.size() == available.size();
}

void FormWindow::Settled() {
    if (settled_ || !form_.Loaded()) {
        return;
    }
    settled_ = true;
    settling_.stop();
    ReleaseFirstPicture();
    if (askedAgain_) {
        activateWindow();  // it no longer counts as one that has just been opened
    }
    keys_.Appeared(*this);
    Activate();
}

/// For the first time.
void FormWindow::Activate() {
    if (activated_ || !form_.Loaded()) {
        return;
    }
    activated_ = true;
    form_.Forms().Dispatch(form_, [this] { Form::Native::Activate(form_); });
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
