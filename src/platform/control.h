// What all controls have in common.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/bounds.h"
#include "platform/colour.h"
#include "platform/font.h"
#include "platform/picture.h"
#include "platform/property.h"

namespace trameli {

class Form;
class Container;
class PropertyAccess;

/// Name of a control, with its index if it is an element of a control array.
struct ControlName {
    /// A single control.
    ControlName(const char* name) : Name(name) {}  // NOLINT(google-explicit-constructor)
    /// An element of a control array.
    ControlName(std::string name, int index) : Name(std::move(name)), Index(index) {}

    std::string Name;
    std::optional<int> Index;
};

/// A named part of a form. A control enters its form's `Controls` when it is made and leaves it
/// when it is destroyed.
class Control {
public:
    virtual ~Control();
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    const std::string& Name() const { return name_.Name; }
    /// The index in a control array; nothing for a single control.
    std::optional<int> Index() const { return name_.Index; }
    /// The form it belongs to, whatever it lies on. The form outlives it.
    Form& OwnerForm() const { return form_; }

    /// Free text that goes with the control.
    const std::string& Tag() const { return tag_; }
    void Tag(std::string tag) { tag_ = std::move(tag); }

    /// Reads or sets a property by its name, as code does that serves controls of any class.
    PropertyCode Get(std::string_view property, PropertyValue& value) const;
    PropertyCode Set(std::string_view property, const PropertyValue& value);

protected:
    Control(Form& form, ControlName name);

    /// Offers the properties of the class; a class with further ones calls its base's as well.
    virtual void Properties(PropertyAccess& access);

private:
    int IndexNumber() const { return *name_.Index; }

    Form& form_;
    ControlName name_;
    std::string tag_;
};

/// A control that can be seen on the form.
class VisualControl : public Control {
public:
    ~VisualControl() override;

    /// What was set, not what can be seen just now.
    bool Visible() const { return visible_; }
    void Visible(bool visible);

    /// Puts it above or below all others of its container. A new control lies above the older ones.
    void ToFront();
    void ToBack();

    struct Native;
    /// The toolkit's side of the control; of use below `platform` only.
    Native& NativePart() const { return *native_; }

protected:
    VisualControl(Container& container, ControlName name, std::unique_ptr<Native> native);

    void Properties(PropertyAccess& access) override;
    /// Lays the widget out over an area given in twips.
    void Cover(const Bounds& area);

private:
    std::unique_ptr<Native> native_;
    bool visible_ = true;
};

/// A control that takes a rectangle of its container.
class PlacedControl : public VisualControl {
public:
    // Place and size in twips, relative to the container. What is set is kept as it is; on the
    // screen each edge lies on the nearest pixel.
    double Left() const { return bounds_.Left; }
    double Top() const { return bounds_.Top; }
    double Width() const { return bounds_.Width; }
    double Height() const { return bounds_.Height; }
    void Left(double twips);
    void Top(double twips);
    void Width(double twips);
    void Height(double twips);
    /// All four at once, for a control that is moved and sized in one go.
    const Bounds& Place() const { return bounds_; }
    virtual void Place(const Bounds& bounds);

protected:
    PlacedControl(Container& container, ControlName name, const Bounds& bounds,
                  std::unique_ptr<Native> native);

    void Properties(PropertyAccess& access) override;

private:
    Bounds bounds_;
};

/// A control that takes part in the play of mouse and keyboard, and has colours and a font.
class InteractiveControl : public PlacedControl {
public:
    /// What was set; a control on a disabled container keeps its own value.
    bool Enabled() const { return enabled_; }
    void Enabled(bool enabled);

    /// What fills the control behind its text.
    Colour BackColor() const { return backColor_; }
    virtual void BackColor(Colour colour);
    /// What its text is written in.
    Colour ForeColor() const { return foreColor_; }
    void ForeColor(Colour colour);
    const trameli::Font& Font() const { return font_; }
    void Font(const trameli::Font& font);

    /// What is shown while the pointer rests on the control; nothing if it is empty.
    const std::string& ToolTipText() const { return toolTipText_; }
    void ToolTipText(const std::string& text);
    /// What assistive technology calls the control where its caption does not say it.
    const std::string& AccessibleName() const { return accessibleName_; }
    virtual void AccessibleName(const std::string& name);

    /// Place in the order of the Tab key; equal ones go by creation.
    int TabIndex() const { return tabIndex_; }
    void TabIndex(int index);

    /// Gives the control the keyboard. Does nothing if it cannot take it just now, and never
    /// brings a window to the front.
    void SetFocus();

    /// The pointer over the control: a picture, or nothing for the system's own.
    const std::optional<PointerImage>& MouseIcon() const { return mouseIcon_; }
    void MouseIcon(std::optional<PointerImage> icon);

    // Events. Each is a routine of the form, set when the form is made.
    /// The keyboard came here from another control of the form, not just back with the window.
    std::function<void()> GotFocus;
    /// The pointer moved over the control and over none that lies on it, with or without a button
    /// held down.
    std::function<void()> MouseMove;
    /// A key was released that had been pressed while the control had the keyboard: KeyCode and
    /// ShiftBit. Comes after the form has seen the key.
    std::function<void(int, int)> KeyUp;

protected:
    InteractiveControl(Container& container, ControlName name, const Bounds& bounds,
                       std::unique_ptr<Native> native);

    void Properties(PropertyAccess& access) override;

private:
    void ShowColours();
    void ShowFont();

    bool enabled_ = true;
    Colour backColor_ = ButtonFace;
    Colour foreColor_ = Black;
    trameli::Font font_;
    std::string toolTipText_;
    std::string accessibleName_;
    int tabIndex_ = 0;
    std::optional<PointerImage> mouseIcon_;
};

/// Something that controls lie on: a form, a frame or a picture box.
class Container {
public:
    virtual ~Container() = default;

    struct Native;
    /// The form that it is, or is part of.
    virtual Form& ContainerForm() = 0;
    /// The toolkit's side of the container; of use below `platform` only.
    virtual Native ContainerNative() = 0;
};

}  // namespace trameli
