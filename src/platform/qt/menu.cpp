#include "platform/menu.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>

#include "platform/qt/convert.h"
#include "platform/qt/form_window.h"
#include "platform/qt/native.h"

namespace trameli {

namespace {

const trameli::Font MenuFont{"Arial", 9, false};

}  // namespace

/// The window owns menus and actions; the entry's own goes with the entry.
struct MenuItem::Native {
    explicit Native(QWidget* where) : Where(where), Action(new QAction(where)) {
        Where->addAction(Action);
    }
    ~Native() { delete Action.data(); }
    Native(const Native&) = delete;
    Native& operator=(const Native&) = delete;

    /// The menu that this entry opens, made when the first entry comes into it.
    QMenu* Menu() {
        if (!Action->menu()) {
            auto* menu = new QMenu(Where);
            menu->setFont(Where->font());
            Action->setMenu(menu);
        }
        return Action->menu();
    }

    QWidget* Where;  // the bar or the menu that the entry stands in
    QPointer<QAction> Action;
};

namespace {

QMenuBar* BarOf(Form& form) {
    QMenuBar* bar = form.NativePart().Window.menuBar();
    bar->setNativeMenuBar(false);
    bar->setFont(ToQt(MenuFont, TwipsPerPixel(form)));
    return bar;
}

}  // namespace

MenuItem::MenuItem(Form& form, ControlName name, std::string caption)
    : Control(form, std::move(name)), native_(std::make_unique<Native>(BarOf(form))) {
    QObject::connect(native_->Action, &QAction::triggered, [this] { Fire(*this, Click); });
    Caption(caption);
}

MenuItem::MenuItem(MenuItem& parent, ControlName name, std::string caption, char letter)
    : Control(parent.OwnerForm(), std::move(name)),
      native_(std::make_unique<Native>(parent.NativePart().Menu())) {
    if (letter != 0) {
        // Held down, a key is one press and no more.
        native_->Action->setAutoRepeat(false);
        native_->Action->setShortcut(QKeySequence(Qt::CTRL | static_cast<Qt::Key>(letter)));
    }
    QObject::connect(native_->Action, &QAction::triggered, [this] { Fire(*this, Click); });
    Caption(caption);
}

MenuItem::MenuItem(MenuItem& model, int index)
    : Control(model.OwnerForm(), {model.Name(), index}),
      native_(std::make_unique<Native>(model.NativePart().Where)) {
    QObject::connect(native_->Action, &QAction::triggered, [this] { Fire(*this, Click); });
    Caption(model.Caption());
    Visible(false);
}

MenuItem::~MenuItem() = default;

void MenuItem::Caption(const std::string& caption) {
    caption_ = caption;
    native_->Action->setText(ToQt(caption));
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

}  // namespace trameli
