#include "platform/forms.h"

#include <QApplication>
#include <QDialog>
#include <QEventLoop>
#include <algorithm>

#include "platform/qt/dialog_care.h"
#include "platform/qt/form_window.h"
#include "platform/qt/key_repeats.h"
#include "platform/qt/lost_windows.h"
#include "platform/timer.h"

namespace trameli {

struct Forms::Native {
    /// The loop of a modal form, in `AwaitUnload`.
    struct Modal {
        const Form* Shown;
        QEventLoop* Loop;
    };

    explicit Native(Forms& forms) : Dialogs(forms), Lost(forms) {}

    QEventLoop Loop;
    std::vector<Modal> Modals;  // one inside the other
    QObject Grave;              // receives the call that buries; gone with the program
    DialogCare Dialogs;
    KeyRepeats Repeats;
    LostWindows Lost;
};

Forms::Forms(trameli::Clock& clock, trameli::Screen& screen)
    : clock_(clock), screen_(screen), native_(std::make_unique<Native>(*this)) {}

Forms::~Forms() {
    // Windows still say something while they are taken apart; no routine may hear it.
    ended_ = true;
}

void Forms::Register(const std::string& name, Maker maker) {
    makers_[name] = std::move(maker);
}

Form& Forms::Load(const std::string& name) {
    Form& form = Open(name, false);
    if (form.awaited_ && !form.loading_ && form.Loaded()) {
        Present(form);
    }
    return form;
}

/// Loads the form if it is not loaded. It is presented by whoever began to load it, or by nobody:
/// `wanted` notes the wish for them.
Form& Forms::Open(const std::string& name, bool wanted) {
    if (Form* form = Find(name)) {
        form->awaited_ |= wanted && form->loading_;
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
    form.awaited_ = wanted;
    form.loading_ = true;
    Dispatch(form, [&form] { form.Form_Load(); });
    form.loading_ = false;
    return form;
}

Form* Forms::Find(const std::string& name) const {
    const auto found = std::find_if(loaded_.begin(), loaded_.end(),
                                    [&](const auto& form) { return form->Name() == name; });
    return found == loaded_.end() ? nullptr : found->get();
}

std::vector<Form*> Forms::Loaded() const {
    std::vector<Form*> forms;
    for (const auto& form : loaded_) {
        if (form->Loaded()) {
            forms.push_back(form.get());
        }
    }
    return forms;
}

void Forms::Show(const std::string& name, Modality modality) {
    if (ended_ || !Knows(name)) {
        return;
    }
    Form& form = Open(name, true);
    if (!form.Loaded() || form.loading_) {
        return;
    }
    if (modality == Modality::Modal) {
        form.native_->Window.setWindowModality(Qt::ApplicationModal);
    }
    Present(form);
    if (modality == Modality::Modal) {
        AwaitUnload(form);
    }
}

void Forms::Present(Form& form) {
    form.awaited_ = false;
    // The last one is the one in front.
    std::rotate(PlaceOf(form), PlaceOf(form) + 1, loaded_.end());
    form.native_->Window.Present();
}

void Forms::AwaitUnload(const Form& form) {
    QEventLoop loop;
    native_->Modals.push_back({&form, &loop});
    // As long as a routine: what is unloaded meanwhile may have one under way that called this.
    ++routinesUnderWay_;
    loop.exec();
    --routinesUnderWay_;
    native_->Modals.pop_back();
    Bury();
}

void Forms::HandOver(Form& from, const std::string& to) {
    from.leaving_ = true;
    Show(to);
    from.leaving_ = false;
    Unload(from);
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
    // A modal one that went so soon that it never was leaves nobody in front.
    const bool inFront = form.native_->Window.isActiveWindow() || form.native_->Window.isModal();
    form.native_->Window.Dismiss();
    const auto place = PlaceOf(form);
    buried_.push_back(std::move(*place));
    loaded_.erase(place);
    Bury();
    if (inFront) {
        BringLastToFront();
    }
    for (const Native::Modal& modal : native_->Modals) {
        if (modal.Shown == &form) {
            modal.Loop->quit();
        }
    }
    StopIfDeserted();
}

void Forms::End() {
    ended_ = true;
    // A message box would hold the program up until somebody answers it.
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (auto* box = qobject_cast<QDialog*>(window); box && box->isVisible()) {
            box->reject();
        }
    }
    // Whoever waits for something that is done beside the windows has a loop of the application's.
    for (QEventLoop* loop :
         qApp->findChildren<QEventLoop*>(QString(), Qt::FindDirectChildrenOnly)) {
        loop->quit();
    }
    for (const Native::Modal& modal : native_->Modals) {
        modal.Loop->quit();
    }
    native_->Loop.quit();
}

void Forms::Run() {
    StopIfDeserted();
    if (!ended_) {
        native_->Loop.exec();
    }
}

void Forms::ServeEvents() {
    QCoreApplication::processEvents();
}

void Forms::ForEachControl(Form& form, const std::function<void(Control&)>& action) {
    Dispatch(form, [&] {
        const std::vector<Control*>& now = form.Controls();
        const std::vector<Control*> all = now;
        for (std::size_t i = 0; i < all.size() && form.Loaded(); ++i) {
            const bool inPlace = i < now.size() && now[i] == all[i];  // mostly, and soon told
            if (inPlace || std::find(now.begin(), now.end(), all[i]) != now.end()) {
                action(*all[i]);
            }
        }
    });
}

void Forms::Dispatch(Form& form, const std::function<void()>& routine) {
    if (!form.Loaded() || form.leaving_) {
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
        if (FormWindow& window = (*form)->native_->Window; window.Presented()) {
            window.Present();
            return;
        }
    }
}

void Forms::StopIfDeserted() {
    const bool deserted = std::none_of(loaded_.begin(), loaded_.end(), [](const auto& form) {
        return form->native_->Window.Presented() || form->awaited_;
    });
    if (deserted) {
        End();
    }
}

}  // namespace trameli
