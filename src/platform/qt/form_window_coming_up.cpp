// How the window of a form comes to the screen, up to its final size and the form's activation.
#include <QApplication>
#include <QTimer>
#include <QWindow>
#include <utility>

#include "platform/forms.h"
#include "platform/qt/form_window.h"
#include "platform/qt/native.h"
#include "platform/qt/x11_server.h"

namespace trameli {

namespace {

/// How long a window's size must stay the same to count as final where nothing else tells, in
/// milliseconds. Only a desktop without window frames needs it.
constexpr int SettlingTime = 100;
/// After how many milliseconds without a trace of it a window is asked for once more.
constexpr int Overlooked = 500;

}  // namespace

void FormWindow::SetUpSettling() {
    settling_.setSingleShot(true);
    settling_.setInterval(SettlingTime);
    connect(&settling_, &QTimer::timeout, this, [this] {
        // No frame came, so perhaps nobody manages windows here, and nobody else gives the keyboard
        // to a new one. Keys would find their way all the same, but not the focus.
        activateWindow();
        Settled();
    });
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

/// Has the toolkit look for the system's fonts, which it does when it first needs one. Now the
/// desktop is putting its frame round the window; later nothing but the search would be going on.
void FormWindow::LookUpFonts() {
    if (const QWidget* first = focusWidget()) {
        first->fontMetrics().height();
    }
}

void FormWindow::ReleaseFirstPicture() {
    if (std::exchange(firstPictureHeld_, false)) {
        ReleasePainting();
    }
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

}  // namespace trameli
