// Forms that keep their proportions.
#pragma once

#include <map>

#include "platform/form.h"

namespace trameli {

/// Keeps the places, sizes and font sizes of a form's controls in proportion to the form.
class EssResizer {
public:
    /// `form` must outlive it. Without Carica it keeps nothing in proportion.
    explicit EssResizer(Form& form) : form_(form) {}

    /// Records how the form was laid out. Belongs into `Form_Load`, while the client area still has
    /// its design size.
    void Carica();

    /// Lays the controls out for the form's present size. Belongs into `Form_Resize`.
    void Ridimensiona();
    /// The same with one scale for both directions, in the middle of the form.
    void RidimensionaInProporzione();

private:
    /// A control as it was laid out.
    struct Disegno {
        Bounds Posto;
        double Punti;  // 0 where nothing is written
    };

    bool Misurabile() const;
    void Colloca(double orizzontale, double verticale, double left, double top);

    Form& form_;
    double larghezza_ = 0;
    double altezza_ = 0;
    std::map<const Control*, Disegno> disegni_;
};

}  // namespace trameli
