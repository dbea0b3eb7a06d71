// Forms whose controls follow their size.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/form.h"

namespace trameli {

/// Keeps the controls of one form in proportion to it, lines included, fonts excepted. Each placing
/// starts from the record of the first one, so that no number of resizes adds up their roundings.
///
/// A control's Tag can narrow down what follows: "@" and any of the letters L, T, W, H for left
/// edge, top edge, width and height. An empty Tag and one without "@" leave everything to follow.
class clsResize {
public:
    /// The form served; nothing if there is none, or if it has been unloaded.
    Form* SourceForm() const;
    /// Attaches to a form. Comes before everything else, which does nothing without a form.
    void SourceForm(Form& form);

    /// Makes the present layout the one that sizes are compared with.
    void ReInitialise();
    /// Gives the form this share of the screen, in the middle of it.
    void SizeFormToScreen(std::uint8_t percent);
    /// Lays the controls out for the form's present size. The first call only records the layout.
    /// Belongs into `Form_Resize`.
    void ResizeControls();

private:
    /// A control as it was laid out, in whole twips; a line's ends stand for its edges. What a
    /// control does not have is 0.
    struct DatiControllo {
        Control* Controllo;
        std::string Nome;
        std::optional<int> Indice;
        std::int32_t Left;
        std::int32_t Top;
        std::int32_t Width;
        std::int32_t Height;
    };

    void RegistraControlli(Form& form);
    static void Disponi(const DatiControllo& dati, double rx, double ry);

    trameli::Forms* forms_ = nullptr;  // the form itself may go; they tell
    const Form* form_ = nullptr;
    std::string nomeForm_;

    std::int32_t ConfrontaLarghezza = 0;  ///< the form's size when it was recorded
    std::int32_t ConfrontaAltezza = 0;
    std::vector<DatiControllo> DatiControlli;
    bool DaInizializzare = true;
};

}  // namespace trameli
