#include "scaling/ess_resizer.h"

#include <algorithm>

#include "platform/status_bar.h"

namespace trameli {

namespace {

double PuntiDi(const Control& controllo) {
    const auto* const conScritta = dynamic_cast<const InteractiveControl*>(&controllo);
    return conScritta != nullptr ? conScritta->Font().Points : 0;
}

}  // namespace

void EssResizer::Carica() {
    larghezza_ = form_.Width();
    altezza_ = form_.Height();
    disegni_.clear();
    for (const Control* controllo : form_.Controls()) {
        const auto* const posto = dynamic_cast<const PlacedControl*>(controllo);
        // A status bar keeps to the form's edge by itself.
        if (posto != nullptr && dynamic_cast<const StatusBar*>(controllo) == nullptr) {
            disegni_[controllo] = {posto->Place(), PuntiDi(*controllo)};
        }
    }
}

void EssResizer::Ridimensiona() {
    if (Misurabile()) {
        Colloca(form_.Width() / larghezza_, form_.Height() / altezza_, 0, 0);
    }
}

void EssResizer::RidimensionaInProporzione() {
    if (Misurabile()) {
        const double scala = std::min(form_.Width() / larghezza_, form_.Height() / altezza_);
        Colloca(scala, scala, (form_.Width() - scala * larghezza_) / 2,
                (form_.Height() - scala * altezza_) / 2);
    }
}

/// Not before anything was recorded, nor while the window is folded away.
bool EssResizer::Misurabile() const {
    return larghezza_ > 0 && altezza_ > 0 && form_.Width() > 0 && form_.Height() > 0;
}

void EssResizer::Colloca(double orizzontale, double verticale, double left, double top) {
    // Always from the record: scaling what was scaled before would add up the roundings.
    for (Control* controllo : form_.Controls()) {
        const auto disegno = disegni_.find(controllo);
        if (disegno == disegni_.end()) {
            continue;
        }
        const auto& [posto, punti] = disegno->second;
        dynamic_cast<PlacedControl&>(*controllo)
            .Place({left + posto.Left * orizzontale, top + posto.Top * verticale,
                    posto.Width * orizzontale, posto.Height * verticale});
        if (auto* const conScritta = dynamic_cast<InteractiveControl*>(controllo)) {
            Font carattere = conScritta->Font();
            carattere.Points = punti * std::min(orizzontale, verticale);
            conScritta->Font(carattere);
        }
    }
}

}  // namespace trameli
