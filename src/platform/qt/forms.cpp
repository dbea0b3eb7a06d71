#include "platform/forms.h"

#include <QApplication>
#include <QEventLoop>
#include <algorithm>

#include "platform/qt/form_window.h"
#include "platform/timer.h"

namespace trameli {

struct Forms::Native {
    QEventLoop Loop;
    QObject Grave;  // receives the call that buries; gone with the program
};

Forms::Forms(trameli::Clock& clock, trameli::Screen& screen)
    : clock_(clock), screen_(screen), native_(std::make_unique<Native>()) {}

Forms::~Forms() = default;

void Forms::Register(const std::string& name, Maker maker) {
    makers_[name] = std::move(maker);
}

Form& Forms::Load(const std::string& name) {
    if (Form* form = Find(name)) {
        return *form;
    }
    loaded_.push_back(makers_.at(name)(*this));
    Form& form = *loaded_.back();
    form.loaded_ = true;
    Dispatch(form, [&form] { form.Form_Load(); });
    return form;
}

Form* Forms::Find(const std::string& name) const {
    const auto found = std::find_if(loaded_.begin(), loaded_.end(),
                                    [&](const auto& form) { return form->Name() == name; });
    return found == loaded_.end() ? nullptr : found->get();
}

void Forms::Show(const std::string& name) {
    if (ended_ || !Knows(name)) {
        return;
    }
    Form& form = Load(name);
    if (form.Loaded()) {
        form.native_->Window.Present();
    }
}

void Forms::Unload(Form& form) {
    if (!form.Loaded()) {
        return;
    }
    Dispatch(form, [&form] { form.Form_Unload(); });
    form.loaded_ = false;
    for (Control* control : form.Controls()) {
        if (auto* timer = dynamic_cast<Timer*>(control)) {
            timer->Enabled(false);
        }
    }
    form.native_->Window.Dismiss();
    const auto place = std::find_if(loaded_.begin(), loaded_.end(),
                                    [&](const auto& held) { return held.get() == &form; });
    buried_.push_back(std::move(*place));
    loaded_.erase(place);
    Bury();
    StopIfDeserted();
}

void Forms::End() {
    ended_ = true;
    native_->Loop.quit();
}

void Forms::Run() {
    StopIfDeserted();
    if (!ended_) {
        native_->Loop.exec();
    }
}

void Forms::Dispatch(Form& form, const std::function<void()>& routine) {
    if (!form.Loaded()) {
        return;
    }
    ++routinesUnderWay_;
    routine();
    --routinesUnderWay_;
    Bury();
}

/// Destroys unloaded forms once no routine is under way. Not at once even then: the toolkit may
/// still be handling the event that unloaded the form, in the form's own window.
void Forms::Bury() {
    if (buried_.empty() || routinesUnderWay_ > 0) {
        return;
    }
    QMetaObject::invokeMethod(
        &native_->Grave,
        [this] {
            if (routinesUnderWay_ == 0) {
                buried_.clear();
            }
        },
        Qt::QueuedConnection);
}

void Forms::StopIfDeserted() {
    const bool deserted = std::none_of(loaded_.begin(), loaded_.end(), [](const auto& form) {
        return form->native_->Window.isVisible();
    });
    if (deserted) {
        End();
    }
}

}  // namespace trameli
