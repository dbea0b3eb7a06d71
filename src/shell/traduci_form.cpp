// The translation of whole windows. It needs nothing of them but their names.
#include <array>
#include <string>

#include "platform/form.h"
#include "platform/forms.h"
#include "shell/lingue.h"

namespace trameli {

namespace {

/// What a language file calls a control.
std::string NomeDi(const Control& controllo) {
    return controllo.Index() ? controllo.Name() + "(" + std::to_string(*controllo.Index()) + ")"
                             : controllo.Name();
}

/// The properties that a language can give, if they are texts.
constexpr std::array<const char*, 4> Proprieta{"Caption", "ToolTipText", "Tag", "AccessibleName"};

}  // namespace

void Lingue::TraduciForm(Form& form) {
    const std::string lingua = Corrente();
    const std::string file = FileDi(lingua);
    const std::string sezione = form.Name();
    const auto traduci = [&](Control& controllo, const std::string& nome,
                             const std::string& proprieta) {
        // What the language lacks, or the control, leaves things as they are.
        const auto valore = LeggiChiave(file, sezione, nome + "." + proprieta);
        if (valore && !valore->empty()) {
            controllo.Set(proprieta, *valore);
        }
    };

    // The form itself has no other text than that of its language, but for want of a file.
    const auto titolo = LeggiChiave(file, sezione, sezione + ".Caption");
    if (titolo && !form.Caption().empty()) {
        form.Caption(*titolo);
    }
    form.Tag(LeggiChiave(file, sezione, sezione + ".Tag").value_or(form.Tag()));
    form.Forms().ForEachControl(form, [&](Control& controllo) {
        if (stato_.LinguaCorrente != lingua) {
            return;  // another one was chosen meanwhile, and has the last word
        }
        const std::string nome = NomeDi(controllo);
        for (const char* proprieta : Proprieta) {
            traduci(controllo, nome, proprieta);
        }
        PropertyValue linguette;
        if (controllo.Get("Tabs", linguette) == PropertyCode::Done) {
            const auto* const quante = std::get_if<double>(&linguette);
            for (int i = 0; quante && i < *quante; ++i) {
                traduci(controllo, nome, "TabCaption(" + std::to_string(i) + ")");
            }
        }
        form.Forms().ServeEvents();
    });
}

}  // namespace trameli
