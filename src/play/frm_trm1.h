// The play form of levels 5 to 7.
#pragma once

#include <optional>
#include <string>

#include "platform/frame.h"
#include "platform/label.h"
#include "platform/scroll_bar.h"
#include "play/form_trm.h"

namespace trameli {

/// Mazes of 8 by 11 cells in which the symbol walks by itself, a step with each tick, and the keys
/// only steer it. A hit costs a sun and leads back to the start; without suns the maze starts again
/// from zero.
class frmTrm1 : public FormTrm {
public:
    /// `servizi` and `casuale` must outlive it.
    frmTrm1(trameli::Forms& forms, Servizi& servizi, Casuale& casuale);

    MenuItem mnuPausa;
    Frame FrameSotto;                            ///< the band under the maze
    ControlArray<Image> ImageSole{"ImageSole"};  ///< the suns left; the last goes first
    HScrollBar HScroll1;                         ///< the speed
    Label Label1;                                ///< its slow end
    Label Label2;                                ///< its fast end
    CommandButton BottoneContinua;               ///< ends the rest of a player with switches

protected:
    /// With switches, Space stops the clock and lets the player choose between going on and
    /// leaving.
    bool Form_KeyDown(int keyCode, int shift) override;
    void Form_KeyUp(int keyCode, int shift) override;
    /// The new pace takes effect at the next tick.
    void HScroll1_Change();
    /// One step.
    void Timer1_Timer();
    void mnuPausa_Click();

    void Accomoda() override;
    void Disponi() override;
    void mnuNuovo_Click() override;
    PartenzaArrivo TrovaPartenzaArrivo() override;
    Aperture DoveSiApre() const override { return Aperture::SopraESotto; }
    /// A sun less and back to the start.
    void ColpitoMuro() override;
    std::string CostoDellUrto() const override;
    /// Whoever prints while looking at a new maze looks on when the print window has closed.
    bool StampaTramelo() override;
    /// The suns have run out: the same maze from zero, with all of them.
    void Sbagliato();

    Bounds PostoBottoneMenu() const override;

private:
    void ApriScelta();
    /// Puts its two buttons into the middle of the maze.
    void AccomodaScelta();
    void ChiudiScelta();
    void BottoneContinua_Click();
    void ScriviPausa(bool ferma);
    void TuttiISoli();
    /// Leaves the player three seconds to look, then starts the clock.
    void AttendiEParti();

    Lato Direzione = Lato::Basso;      ///< of the next step
    std::int16_t Lentezza = 18;        ///< time of a step, tenths of a second
    std::int16_t SoliRimasti = 5;      ///< suns shown; -1 when they have run out
    std::int16_t ContaRipartenze = 0;  ///< new starts from zero in the whole game

    std::optional<double> fineAttesa_;  ///< when the wait under way ends
};

}  // namespace trameli
