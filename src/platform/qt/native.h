// The toolkit's side of controls and containers.
#pragma once

#include <QPointer>
#include <QWidget>

#include <type_traits>

#include "platform/control.h"
#include "platform/form.h"
#include "platform/forms.h"

namespace trameli {

/// A control owns its widget. The widget may go first, with a parent widget.
struct VisualControl::Native {
    explicit Native(QWidget* made) : Widget(made) {}
    ~Native() { delete Widget.data(); }
    Native(const Native&) = delete;
    Native& operator=(const Native&) = delete;

    QPointer<QWidget> Widget;
    bool StartsVisible = true;
    bool ShowsLook = true;  ///< colours and font of the control are those of the widget
};

/// Where the widgets of a container's controls are put.
struct Container::Native {
    QWidget* Widget;
};

/// The widget of a control, by its own class.
template <typename T>
T& WidgetOf(const VisualControl& control) {
    return static_cast<T&>(*control.NativePart().Widget);
}

/// A new widget of class T in `container`, wrapped for the constructor of a control. Arguments go
/// in front of the parent.
template <typename T, typename... Arguments>
std::unique_ptr<VisualControl::Native> MakeNative(Container& container, Arguments&&... arguments) {
    return std::make_unique<VisualControl::Native>(
        new T(std::forward<Arguments>(arguments)..., container.ContainerNative().Widget));
}

/// Twips per pixel of the screen that the form stands on.
double TwipsPerPixel(const Form& form);

/// Runs an event routine of a control, if it has one and its form is loaded.
template <typename... Values>
void Fire(const Control& control, const std::function<void(Values...)>& routine,
          std::type_identity_t<Values>... values) {
    if (!routine) {
        return;
    }
    Form& form = control.OwnerForm();
    // A copy, as the routine may take its own control away.
    form.Forms().Dispatch(form, [&, copy = routine] { copy(values...); });
}

}  // namespace trameli
