#include "shell/finestra_adattata.h"

#include <memory>
#include <utility>

#include "platform/forms.h"
#include "platform/screen.h"
#include "scaling/cls_resize.h"

namespace trameli {

namespace {

constexpr int PercentualeSchermo = 75;  // of the screen, until the activation

}  // namespace

FinestraAdattata::FinestraAdattata(trameli::Forms& forms, std::string nome, DesignSize dimensioni,
                                   Servizi& servizi)
    : Form(forms, std::move(nome), dimensioni, FormStyle::Windowed), servizi_(servizi) {}

void FinestraAdattata::Form_Load() {
    servizi_.Lingue.TraduciForm(*this);
    if (!Loaded()) {
        return;
    }
    auto ridimensiona = std::make_shared<clsResize>();
    servizi_.Stato.RidimensionaFinestra = ridimensiona;
    ridimensiona->SourceForm(*this);
    ridimensiona->SizeFormToScreen(PercentualeSchermo);
}

void FinestraAdattata::Form_Resize() {
    if (const auto ridimensiona = servizi_.Stato.RidimensionaFinestra) {
        ridimensiona->ResizeControls();
    }
}

void FinestraAdattata::RiempiSchermo() {
    const Screen& schermo = Forms().Screen();
    Left(0);
    Top(0);
    Width(schermo.Width());
    Height(schermo.Height());
}

}  // namespace trameli
