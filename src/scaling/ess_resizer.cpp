#include "scaling/ess_resizer.h"

#include <algorithm>

#include "platform/line.h"
#include "platform/status_bar.h"

namespace trameli {

namespace {

/// True for the controls that have a place to scale: a status bar keeps to the form's edge by
/// itself, and a line has ends instead.
bool HaPosto(const VisualControl& controllo) {
    return dynamic_cast<const StatusBar*>(&controllo) == nullptr &&
           dynamic_cast<const Line*>(&controllo) == nullptr;
}

}  // namespace

void EssResizer::Carica() {
    larghezza_ = form_.Width();
    altezza_ = form_.Height();
    disegni_.clear();
    for (const Control* controllo : form_.Controls()) {
        const auto* const visibile = dynamic_cast<const VisualControl*>(controllo);
        if (visibile != nullptr && HaPosto(*visibile)) {
            disegni_[visibile] = {visibile->Place(), visibile->Font().Points};
        }
    }
}

void EssResizer::Ridimensiona() {
    // Nothing was recorded yet, or the window is folded away.
    if (larghezza_ <= 0 || altezza_ <= 0 || form_.Width() <= 0 || form_.Height() <= 0) {
        return;
    }
    const double orizzontale = form_.Width() / larghezza_;
    const double verticale = form_.Height() / altezza_;
    // Always from the record: scaling what was scaled before would add up the roundings.
    for (Control* controllo : form_.Controls()) {
        auto* const visibile = dynamic_cast<VisualControl*>(controllo);
        const auto disegno = disegni_.find(visibile);
        if (disegno == disegni_.end()) {
            continue;
        }
        const auto& [posto, punti] = disegno->second;
        visibile->Place({posto.Left * orizzontale, posto.Top * verticale, posto.Width * orizzontale,
                         posto.Height * verticale});
        Font carattere = visibile->Font();
        carattere.Points = punti * std::min(orizzontale, verticale);
        visibile->Font(carattere);
    }
}

}  // namespace trameli
