#include "scaling/cls_resize.h"

#include <algorithm>
#include <array>

#include "base/rounding.h"
#include "platform/forms.h"
#include "platform/line.h"
#include "platform/screen.h"

namespace trameli {

namespace {

/// The four properties that follow, by the letters of the Tag.
constexpr std::array<char, 4> Lettere{'L', 'T', 'W', 'H'};
using Proprieta = std::array<const char*, Lettere.size()>;
constexpr Proprieta DelPosto{"Left", "Top", "Width", "Height"};
constexpr Proprieta DellaLinea{"X1", "Y1", "X2", "Y2"};
constexpr const char* Tutte = "@LTWH";

const Proprieta& ProprietaDi(const Control& controllo) {
    return dynamic_cast<const Line*>(&controllo) ? DellaLinea : DelPosto;
}

std::int32_t Letta(const Control& controllo, const char* proprieta) {
    PropertyValue valore;
    if (controllo.Get(proprieta, valore) != PropertyCode::Done) {
        return 0;
    }
    const double* const numero = std::get_if<double>(&valore);
    return numero ? Nearest(*numero) : 0;
}

/// What may follow, in capitals.
std::string LettereDi(const Control& controllo) {
    std::string tag = controllo.Tag();
    if (!tag.starts_with('@')) {
        return Tutte;
    }
    std::transform(tag.begin(), tag.end(), tag.begin(), [](char lettera) {
        return lettera >= 'a' && lettera <= 'z' ? static_cast<char>(lettera - 'a' + 'A') : lettera;
    });
    return tag;
}

/// True if a refusal concerns that property alone, and the control's others may well be set.
bool SoloQuesta(PropertyCode codice) {
    return codice == PropertyCode::Done || codice == PropertyCode::ReadOnly ||
           codice == PropertyCode::CannotBeSet || codice == PropertyCode::CannotBeRead ||
           codice == PropertyCode::NoSuchProperty;
}

/// A form that had no size when it was recorded has no proportions to keep.
double Rapporto(double ora, std::int32_t registrata) {
    return registrata == 0 ? 1 : ora / registrata;
}

}  // namespace

Form* clsResize::SourceForm() const {
    Form* const form = forms_ ? forms_->Find(nomeForm_) : nullptr;
    return form == form_ ? form : nullptr;
}

void clsResize::SourceForm(Form& form) {
    forms_ = &form.Forms();
    form_ = &form;
    nomeForm_ = form.Name();
}

void clsResize::ReInitialise() {
    if (Form* const form = SourceForm()) {
        RegistraControlli(*form);
    }
}

void clsResize::SizeFormToScreen(std::uint8_t percent) {
    Form* const form = SourceForm();
    if (!form) {
        return;
    }
    if (DaInizializzare) {
        RegistraControlli(*form);
    }
    const Screen& schermo = form->Forms().Screen();
    const double altezza = Floor(percent * schermo.Height() / 100);
    const double larghezza = Floor(percent * schermo.Width() / 100);
    form->Top((schermo.Height() - altezza) / 2);
    form->Left((schermo.Width() - larghezza) / 2);
    form->Height(altezza);
    form->Width(larghezza);
    ResizeControls();
}

void clsResize::ResizeControls() {
    Form* const form = SourceForm();
    // A window that is folded away has no size to follow, and comes back as it was.
    if (!form || form->Controls().empty() || form->WindowState() == Form::Minimised) {
        return;
    }
    if (DaInizializzare) {
        RegistraControlli(*form);
        return;
    }
    const Form::HoldPainting ferma(*form);
    const double ry = Rapporto(form->ScaleHeight(), ConfrontaAltezza);
    const double rx = Rapporto(form->ScaleWidth(), ConfrontaLarghezza);
    for (const DatiControllo& dati : DatiControlli) {
        // Elements of control arrays come and go, and another control may lie where one was.
        const std::vector<Control*>& presenti = form->Controls();
        if (std::find(presenti.begin(), presenti.end(), dati.Controllo) != presenti.end() &&
            dati.Controllo->Name() == dati.Nome && dati.Controllo->Index() == dati.Indice) {
            Disponi(dati, rx, ry);
        }
    }
}

void clsResize::RegistraControlli(Form& form) {
    ConfrontaLarghezza = Nearest(form.ScaleWidth());
    ConfrontaAltezza = Nearest(form.ScaleHeight());
    DatiControlli.clear();
    for (Control* const controllo : form.Controls()) {
        const auto& [left, top, width, height] = ProprietaDi(*controllo);
        DatiControlli.push_back({controllo, controllo->Name(), controllo->Index(),
                                 Letta(*controllo, left), Letta(*controllo, top),
                                 Letta(*controllo, width), Letta(*controllo, height)});
    }
    DaInizializzare = false;
}

void clsResize::Disponi(const DatiControllo& dati, double rx, double ry) {
    const Proprieta& proprieta = ProprietaDi(*dati.Controllo);
    const std::string lettere = LettereDi(*dati.Controllo);
    const std::array<double, Lettere.size()> valori{dati.Left * rx, dati.Top * ry, dati.Width * rx,
                                                    dati.Height * ry};
    for (std::size_t i = 0; i < Lettere.size(); ++i) {
        if (lettere.find(Lettere[i]) != std::string::npos &&
            !SoloQuesta(dati.Controllo->Set(proprieta[i], valori[i]))) {
            return;
        }
    }
}

}  // namespace trameli
