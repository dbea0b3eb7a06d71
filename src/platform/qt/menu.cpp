#include "platform/menu.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>

#include "platform/qt/accessibility.h"
#include "platform/qt/bar_font.h"
#include "platform/qt/convert.h"
#include "platform/qt/form_window.h"
#include "platform/qt/native.h"

namespace trameli {

/// The window owns menus and actions; the entry's own goes with the entry.
struct MenuItem::Native {
    /// In front of the entry `before`, or at the end.
    Native(QWidget* where, QAction* before) : Where(where), Action(new QAction(where)) {
        Where->insertAction(before, Action);
    }
    ~Native() { delete Action.data(); }
    Native(const Native&) = delete;
    Native& operator=(const Native&) = delete;

    /// The menu that this entry opens, made when the first entry comes into it.
    QMenu* Menu() {
        if (!Action->menu()) {
            auto* menu = new QMenu(Where);
            menu->setFont(Where->font());
            menu->setAccessibleName(Spoken(Action->text()));
            Action->setMenu(menu);
        }
        return Action->menu();
    }

    /// The entry behind this one, nothing at the end.
    QAction* Next() const { return Where->actions().value(Where->actions().indexOf(Action) + 1); }

    QWidget* Where;  // the bar or the menu that the entry stands in
    QPointer<QAction> Action;
};

namespace {

QMenuBar* BarOf(Form& form) {
    QMenuBar* bar = form.NativePart().Window.menuBar();
    bar->setNativeMenuBar(false);
    bar->setAccessibleName(form.NativePart().Window.accessibleName());
    bar->setFont(BarFont(TwipsPerPixel(form), "QMenuBar"));
    return bar;
}

QAction* ActionOf(const MenuItem* entry) {
    return entry ? entry->NativePart().Action.data() : nullptr;
}

/// The entry of the model's array that comes before the element `index`.
const MenuItem& PreviousOf(const MenuItem& model, int index) {
    const MenuItem* previous = &model;
    for (const Control* control : model.OwnerForm().Controls()) {
        const auto* const entry = dynamic_cast<const MenuItem*>(control);
        if (entry && entry->Name() == model.Name() && entry->Index() < index &&
            entry->Index() > previous->Index()) {
            previous = entry;
        }
    }
    return *previous;
}

}  // namespace

MenuItem::MenuItem(Form& form, ControlName name, std::string caption, const MenuItem* before)
    : Captioned(form, std::move(name)),
      native_(std::make_unique<Native>(BarOf(form), ActionOf(before))) {
    Listen();
    Caption(caption);
}

MenuItem::MenuItem(MenuItem& parent, ControlName name, std::string caption, char letter,
                   const MenuItem* before)
    : Captioned(parent.OwnerForm(), std::move(name)),
      native_(std::make_unique<Native>(parent.NativePart().Menu(), ActionOf(before))) {
    if (letter != 0) {
        // Held down, a key is one press and no more.
        native_->Action->setAutoRepeat(false);
        native_->Action->setShortcut(QKeySequence(Qt::CTRL | static_cast<Qt::Key>(letter)));
    }
    Listen();
    Caption(caption);
}

MenuItem::MenuItem(MenuItem& model, int index)
    : Captioned(model.OwnerForm(), {model.Name(), index}),
      native_(std::make_unique<Native>(model.NativePart().Where,
                                       PreviousOf(model, index).NativePart().Next())) {
    Listen();
    Caption(model.Caption());
    Visible(false);
}

MenuItem::~MenuItem() = default;

void MenuItem::Listen() {
    QObject::connect(native_->Action, &QAction::triggered, [this] {
        // The toolkit has turned the mark over, but that is for the program to do.
        Checked(checked_);
        Fire(*this, Click);
    });
}

void MenuItem::ShowCaption() {
    native_->Action->setText(ToQt(Caption()));
    if (native_->Action->menu()) {
        native_->Action->menu()->setAccessibleName(Spoken(native_->Action->text()));
    }
}

void MenuItem::Enabled(bool enabled) {
    enabled_ = enabled;
    native_->Action->setEnabled(enabled);
}

void MenuItem::Visible(bool visible) {
    visible_ = visible;
    native_->Action->setVisible(visible);
}

void MenuItem::Checked(bool checked) {
    checked_ = checked;
    native_->Action->setCheckable(checked);
    native_->Action->setChecked(checked);
}

void MenuItem::Properties(PropertyAccess& access) {
    access.At("Enabled", *this, &MenuItem::Enabled, &MenuItem::Enabled);
    access.At("Visible", *this, &MenuItem::Visible, &MenuItem::Visible);
    access.At("Checked", *this, &MenuItem::Checked, &MenuItem::Checked);
    Captioned::Properties(access);
}

}  // namespace trameli
