#include "shell/giro_offerte.h"

#include <utility>

#include "platform/forms.h"
#include "platform/keys.h"

namespace trameli {

GiroOfferte::Offerta GiroOfferte::DiBottone(CommandButton& bottone, std::function<void()> prendi,
                                            int durata) {
    return {[&bottone](bool offerto) {
                bottone.BackColor(offerto ? Evidenza : ButtonFace);
                if (offerto) {
                    bottone.SetFocus();
                }
            },
            std::move(prendi), durata};
}

GiroOfferte::GiroOfferte(Form& form, ControlName timer, const Stato& stato)
    : form_(form), stato_(stato), timer_(form, std::move(timer), QuartoDiSecondo) {
    timer_.Tick = [this] { Tick(); };
}

void GiroOfferte::Avvia(std::vector<Offerta> offerte, std::function<void()> finito) {
    Ferma();
    if (stato_.ModoInput == Tastiera) {
        return;
    }
    offerte_ = std::move(offerte);
    finito_ = std::move(finito);
    avviato_ = form_.Forms().Clock().Now();
    Offri(0);
}

void GiroOfferte::Ferma() {
    timer_.Enabled(false);
    if (InCorso()) {
        offerte_[corrente_].Mostra(false);
    }
    offerte_.clear();
    premuto_.reset();
}

void GiroOfferte::Mostra() {
    if (InCorso()) {
        offerte_[corrente_].Mostra(true);
    }
}

void GiroOfferte::Aggiorna() {
    if (InCorso()) {
        Offri(corrente_);
    }
}

void GiroOfferte::Corrente(std::size_t quale) {
    if (quale < offerte_.size() && quale != corrente_) {
        offerte_[corrente_].Mostra(false);
        Offri(quale);
    }
}

bool GiroOfferte::KeyDown(int keyCode) {
    const bool interruttore =
        InCorso() &&
        (keyCode == KeySpace || (keyCode == KeyEnter && stato_.ModoInput == ScansioneManuale));
    if (interruttore && form_.Forms().Clock().Now() - avviato_ >= Forms::Reaction) {
        premuto_ = keyCode;
    }
    return interruttore;
}

void GiroOfferte::KeyUp(int keyCode) {
    // A round that began while the switch was down was not meant by it.
    if (premuto_ != keyCode) {
        return;
    }
    premuto_.reset();
    if (keyCode == KeySpace && stato_.ModoInput == ScansioneManuale) {
        Prossima();
        return;
    }
    DaCapo();  // whoever takes it again has all the time for that
    const auto prendi = offerte_[corrente_].Prendi;
    prendi();
}

void GiroOfferte::Tick() {
    // A switch that went down and was let go in another window is not down any more.
    if (premuto_ && form_.KeyIsDown(*premuto_)) {
        return;
    }
    if (--resta_ <= 0) {
        Prossima();
    }
}

void GiroOfferte::Prossima() {
    if (corrente_ + 1 == offerte_.size() && finito_) {
        const auto finito = finito_;
        finito();
        return;
    }
    offerte_[corrente_].Mostra(false);
    Offri((corrente_ + 1) % offerte_.size());
}

void GiroOfferte::Offri(std::size_t quale) {
    corrente_ = quale;
    DaCapo();
    offerte_[quale].Mostra(true);
}

/// The offer's time begins.
void GiroOfferte::DaCapo() {
    resta_ = offerte_[corrente_].Durata;
    timer_.Interval(stato_.VelocitaScansione * QuartoDiSecondo);
    timer_.Enabled(false);
    timer_.Enabled(stato_.ModoInput == ScansioneAutomatica);
}

}  // namespace trameli
