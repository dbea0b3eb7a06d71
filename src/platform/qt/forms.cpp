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

Forms::~Forms() {
    // Windows still say something while they are taken apart; no routine may hear it.
    ended_ = true;
}

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
    for (Control* control : form.Controls()) {
        if (auto* timer = dynamic_cast<Timer*>(control); timer && timer->Enabled()) {
            timer->Restart();
        }
    }
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
        // The last one is the one in front.
        std::rotate(PlaceOf(form), PlaceOf(form) + 1, loaded_.end());
        form.native_->Window.Present();
    }
}

void Forms::Unload(Form& form) {
    if (!form.Loaded() || form.unloading_) {
        return;
    }
    form.unloading_ = true;
    Dispatch(form, [&form] { form.Form_Unload(); });
    form.loaded_ = false;
    for (Control* control : form.Controls()) {
        if (auto* timer = dynamic_cast<Timer*>(control)) {
            timer->Enabled(false);
        }
    }
    const bool inFront = form.native_->Window.isActiveWindow();
    form.native_->Window.Dismiss();
    const auto place = PlaceOf(form);
    buried_.push_back(std::move(*place));
    loaded_.erase(place);
    Bury();
    if (inFront) {
        BringLastToFront();
    }
    StopIfDeserted();
}

void Forms::End() {
    ended_ = true;
    // A message box would hold the program up until somebody answers it.
    while (QWidget* box = QApplication::activeModalWidget()) {
        if (!box->close()) {
            break;
        }
    }
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

Forms::Place Forms::PlaceOf(const Form& form) {
    return std::find_if(loaded_.begin(), loaded_.end(),
                        [&](const auto& held) { return held.get() == &form; });
}

/// Not every desktop gives the keyboard to another window when one goes.
void Forms::BringLastToFront() {
    for (auto form = loaded_.rbegin(); form != loaded_.rend(); ++form) {
        if (FormWindow& window = (*form)->native_->Window; window.isVisible()) {
            window.Present();
            return;
        }
    }
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
