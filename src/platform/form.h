// Windows.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/control.h"
#include "platform/surface.h"

namespace trameli {

class Forms;

/// How a form stands on the screen.
enum class FormStyle {
    Maximised,  ///< as large as the desktop lets it be
    Windowed,   ///< where and as large as the form says
};

/// A window of the program. A class of its own declares the controls as members, and overrides
/// the event routines that it needs.
///
/// Events of a form and of its controls arrive only while it is loaded. A routine that waits can
/// find its form unloaded afterwards; the object itself lives until the last of its routines has
/// returned.
class Form : public Container {
public:
    /// Size of the client area as laid out, in twips; the menu bar is not part of it.
    struct DesignSize {
        double Width;
        double Height;
    };

    /// Not loaded yet and not on the screen. `name` is the one it is registered under.
    Form(trameli::Forms& forms, std::string name, DesignSize size,
         FormStyle style = FormStyle::Maximised);
    ~Form() override;
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    const std::string& Name() const { return name_; }
    trameli::Forms& Forms() const { return forms_; }
    /// True from `Form_Load` until the form is unloaded or the program ended.
    bool Loaded() const;

    /// Place of the window on the screen in twips.
    double Left() const;
    double Top() const;
    /// Size of the client area in twips, without menu bar and window frame, whose measures belong
    /// to the desktop. A maximised form has its final size from `Form_Activate` on.
    double Width() const;
    double Height() const;
    double ScaleWidth() const { return Width(); }
    double ScaleHeight() const { return Height(); }
    // A maximised form stays as it is whatever is set. One that is made to cover the whole screen
    // gets what the desktop leaves of it, like a maximised one, and learns of that size by
    // `Form_Resize`.
    void Left(double twips);
    void Top(double twips);
    void Width(double twips);
    void Height(double twips);
    void ScaleWidth(double twips) { Width(twips); }
    void ScaleHeight(double twips) { Height(twips); }
    /// Normal, minimised or maximised. The desktop may take its time for the size that goes with
    /// it: `Form_Resize` tells.
    enum WindowStates { Normal = 0, Minimised = 1, Maximised = 2 };
    int WindowState() const;
    void WindowState(int state);

    /// While one lives, nothing of the form is painted again; for placing many controls.
    class HoldPainting {
    public:
        explicit HoldPainting(Form& form);
        ~HoldPainting();
        HoldPainting(const HoldPainting&) = delete;
        HoldPainting& operator=(const HoldPainting&) = delete;

    private:
        Form& form_;
    };

    /// The text in the window's frame.
    const std::string& Caption() const { return caption_; }
    void Caption(const std::string& caption);
    /// Free text that goes with the form.
    const std::string& Tag() const { return tag_; }
    void Tag(std::string tag) { tag_ = std::move(tag); }
    /// The ground of the client area. Setting it clears what is drawn on `Canvas`.
    Colour BackColor() const { return backColor_; }
    void BackColor(Colour colour);
    /// The pointer over the form and over all controls that have none of their own.
    void MouseIcon(std::optional<PointerImage> icon);
    const std::optional<PointerImage>& MouseIcon() const { return mouseIcon_; }
    /// What is drawn on the form itself, under its controls; made at the first call.
    Surface& Canvas();

    // What can be seen of the form, in the device's own pixels: the window within the desktop's
    // frame, or the client area alone, without menu bar. Reading returns the rows that were copied:
    // none unless `into` has just that size.
    PixelSize WindowPixels() const;
    int ReadPixels(const PixelBlock& into) const;
    PixelSize ClientPixels() const;
    int ReadClientPixels(const PixelBlock& into) const;

    /// Whether the pointer says over the whole form, whatever lies under it, that it has to be
    /// waited for.
    void Hourglass(bool shown);

    /// Has assistive technology read a text out, if any listens and the form is in front. Only then
    /// is the text asked for. What is announced afterwards takes its place.
    void Announce(const std::function<std::string()>& text);

    /// True while a key, by its KeyCode, is held down that was pressed in this form. A key that was
    /// down when a menu or another window took the keyboard is not any more.
    bool KeyIsDown(int keyCode) const;

    /// All controls in the order of their making, timers and menu entries included.
    const std::vector<Control*>& Controls() const { return controls_; }

    Form& ContainerForm() override { return *this; }
    Container::Native ContainerNative() override;

    struct Native;
    /// The toolkit's side of the form; of use below `platform` only.
    Native& NativePart() const { return *native_; }

protected:
    // Event routines, in the order in which they arrive.
    /// The form is there, in its design size and not on the screen yet.
    virtual void Form_Load() {}
    /// The client area has another size, by the desktop or by code.
    virtual void Form_Resize() {}
    /// The form has come to the front and has its final size; again whenever it comes back. The
    /// first time of a windowed form is just before it is seen, so that it can still choose its
    /// size.
    virtual void Form_Activate() {}
    /// A key was pressed; holding it down is one press. True keeps the key for the form: neither
    /// its press nor its release reaches the control that has the focus.
    virtual bool Form_KeyDown(int keyCode, int shift);
    /// A key was released that had been pressed in this form. Comes before the control's event.
    virtual void Form_KeyUp(int keyCode, int shift);
    /// The pointer moved over the form itself, not over a control.
    virtual void Form_MouseMove() {}
    /// Somebody closes the window by its frame. Unloads the form; one that overrides this decides
    /// itself what becomes of it.
    virtual void Form_QueryClose();
    /// The form goes, by code or because its window was closed. It is still loaded.
    virtual void Form_Unload() {}

    /// Waits so many seconds while events are served. Ends early if the form is unloaded
    /// meanwhile, or the program ended. Returns whether the form is still loaded: if it is not,
    /// the caller returns at once.
    [[nodiscard]] bool Attesa(double secondi);

private:
    friend class trameli::Control;
    friend class trameli::Forms;
    friend struct Native;

    trameli::Forms& forms_;
    std::string name_;
    std::string caption_;
    std::string tag_;
    Colour backColor_ = ButtonFace;
    std::optional<PointerImage> mouseIcon_;
    std::vector<Control*> controls_;
    bool loaded_ = false;
    bool loading_ = false;  // its Form_Load is under way
    bool awaited_ = false;  // to be shown as soon as it is loaded
    bool leaving_ = false;  // another form is about to take its place
    bool unloading_ = false;
    std::unique_ptr<Native> native_;
};

}  // namespace trameli
