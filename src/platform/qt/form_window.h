// The window of a form.
#pragma once

#include <QMainWindow>
#include <QTimer>

#include "platform/form.h"
#include "platform/qt/client_area.h"
#include "platform/qt/form_buttons.h"
#include "platform/qt/key_road.h"

namespace trameli {

/// A form's window on the screen. It tells the form of its size, of keys, of its coming to the
/// front and of being closed.
class FormWindow : public QMainWindow {
public:
    FormWindow(Form& form, QSize clientSize, FormStyle style);
    ~FormWindow() override { Hourglass(false); }

    ClientArea& Client() { return client_; }
    /// The text in the window's frame; it may be empty.
    void Title(const QString& title);
    /// Shows the window, or brings it to the front.
    void Present();
    /// True from then on until it is dismissed, though it may not be on the screen yet.
    bool Presented() const { return presented_; }
    /// Brings a window that was presented to the screen now, though its form would still have the
    /// right to choose its size unseen.
    void ComeUp();

    /// Where the frame's corner is and how large the client area, in pixels.
    QRect Place() const;
    /// The same as the form last asked for it, or as somebody has made it since.
    QRect Asked() const;
    /// Has no effect on a window that is maximised by the program.
    void Place(const QRect& asked);
    Form::WindowStates State() const;
    void State(Form::WindowStates state);

    /// Nothing is painted until each hold was released.
    void HoldPainting();
    void ReleasePainting();

    void Hourglass(bool wanted);

    /// Notes which control has the keyboard; true if it is another one than before.
    bool FocusMovedTo(const Control& control);
    KeyRoad& Keys() { return keys_; }
    FormButtons& Buttons() { return buttons_; }
    /// Takes the window from the screen for good.
    void Dismiss();

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* object, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    bool CoversScreen() const;
    void Arrange();
    std::vector<const InteractiveControl*> OrderTabs();
    void FocusFirst();
    void ShowHourglass();

    // In form_window_coming_up.cpp.
    void SetUpSettling();
    void AskAgain();
    void LookUpFonts();
    void ReleaseFirstPicture();
    void Settle();
    bool HasFinalSize() const;
    void Settled();
    void Activate();

    Form& form_;
    ClientArea& client_;
    KeyRoad keys_;
    FormButtons buttons_;
    const Control* focused_ = nullptr;
    const FormStyle style_;
    QRect asked_;
    bool maximised_;  // by the form itself
    bool presented_ = false;
    int paintingHolds_ = 0;
    bool firstPictureHeld_ = false;
    bool hourglassWanted_ = false;
    bool hourglassShown_ = false;
    QTimer settling_;
    bool settled_ = false;         // the desktop has given the window its size
    bool askedAgain_ = false;      // for the window to be shown at all
    bool activated_ = false;       // Form_Activate has come once
    bool frontAnnounced_ = false;  // the desktop has said once that the window is in front
};

/// The toolkit's side of a form.
struct Form::Native {
    Native(Form& form, QSize clientSize, FormStyle style) : Window(form, clientSize, style) {}

    FormWindow Window;
    std::unique_ptr<Surface> Canvas;

    // The event routines of a form are its own; its window reaches them through here.
    static void Resize(Form& form);
    static void Activate(Form& form);
    static void QueryClose(Form& form);
    static bool KeyPressed(Form& form, int keyCode, int shift);
    static void KeyReleased(Form& form, int keyCode, int shift);
    static void MouseMoved(Form& form);
};

}  // namespace trameli
