// What the play forms have in common.
#pragma once

#include <cstdint>

#include "play/scansione.h"
#include "play/tavola_trm.h"

namespace trameli {

/// A game at one level: five mazes one after the other, with the counters of each. The forms
/// differ in single steps of the routines; these are the virtual ones.
class FormTrm : public TavolaTrm {
protected:
    FormTrm(trameli::Forms& forms, Servizi& servizi, Casuale& casuale, const DisegnoTrm& disegno);

    void Form_Load() override;
    void Form_Activate() override;
    /// On to the next maze. The form may be unloaded afterwards.
    void BottoneAvanti_Click();
    /// Keeps the timer from taking the keyboard away again.
    void BottoneAvanti_GotFocus();
    /// A new maze at the same level, with its counters at 0. The form may be unloaded afterwards.
    void mnuNuovo_Click();
    /// The same maze from its start. Counters, timer and button stay as they are.
    void mnuRicomincia_Click();
    // Another look of trace or walls, and the same maze from its start.
    void mnuColora_Click();
    void mnuLinee_Click();
    /// Back to the menu: unloads the form.
    void mnuEsci_Click();

    /// Whether an activation finds no maze, and no other activation is about to make one.
    bool DaPreparare() const;
    /// Writes the panels that name the player and the level.
    void ScriviIntestazione();
    /// The set-up of such an activation, up to the first maze. The form may be unloaded afterwards.
    void PreparaGioco();
    /// Places the controls in the window's final size and lets the settings take effect.
    virtual void Disponi() = 0;
    /// Seconds that the window is shown empty before the first maze.
    virtual double AttesaIniziale() const = 0;
    /// The first half of a new maze: what belongs to the one before goes.
    virtual void Sgombra();
    /// Hits and steps are 0, on their panels too.
    void AzzeraContatori();
    /// Chooses what the walls of the next maze look like.
    virtual void ScegliMuri() {}
    /// The end of a new maze: it is on show, and play begins. The form may be unloaded afterwards.
    virtual void AvviaTramelo() = 0;
    /// When a changed thickness takes effect: at every restart of the maze, or only when the menu
    /// entry changes it.
    virtual bool SpessoriAllaRipartenza() const = 0;

    /// A wish to go somewhere, from keyboard, switch or clock. The caller has set ColoreTratto to
    /// the colour of a way forward. The form may be unloaded afterwards.
    void Muovi(Lato lato);
    // A step within the grid, or the one out of it. The form may be unloaded afterwards.
    void Sinistra();
    void Alto();
    void Destra();
    void Basso();
    /// Counts a hit, with its sound. The form may be unloaded afterwards where a hit costs more.
    virtual void ColpitoMuro();
    /// Counts a step and draws it in ColoreTratto, with its sound; the player stands there already.
    void DisegnaLinea();
    /// A solved maze: a cup and the way to the next one, or after the fifth the congratulations in
    /// place of the form, which is then unloaded.
    void MostraFrameTrameloRisolto();
    /// Shows the direction on offer as a stroke at the head of the trace; nothing is taken away.
    void RidisegnaRotazione();
    /// The look of those strokes in this maze.
    AspettoScansione AspettoTratti() const;
    /// Writes `parola`, with a blank at its end, and the number of hits on their panel.
    void ScriviBoing(const char* parola);
    /// Writes the number of steps on its panel.
    void ScriviPassi();

    Colour ColoreTratto = 0;          ///< of the step under way
    std::int16_t ContaBoing = 0;      ///< wall hits in this maze
    std::int16_t ContaPassi = 0;      ///< steps in this maze
    std::int16_t TrameliRisolti = 0;  ///< since the activation, 0 to 4

    /// The direction on offer while scanning, a place in DirezioniScansione.
    std::int16_t DirezioneScansione = 0;

private:
    void PrimoPasso(Lato lato);
    void Passo(Lato lato);

    bool preparando_ = false;        ///< an activation waits for the first maze
    bool StatoTimerSalvato = false;  ///< Timer1 as it was before BottoneAvanti stopped it
};

}  // namespace trameli
