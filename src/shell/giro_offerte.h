// Offers for players who have one switch or two.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <vector>

#include "platform/command_button.h"
#include "platform/timer.h"
#include "shell/stato.h"

namespace trameli {

/// One offer after the other, round and round, as `ModoInput` says. With a single switch the offer
/// moves by itself, every `VelocitaScansione`, and Space takes it; with two, Space moves it and
/// Enter takes it. What is taken is what was on offer when the switch went down, and nothing moves
/// while it is down.
class GiroOfferte {
public:
    struct Offerta {
        std::function<void(bool)>
            Mostra;                    ///< makes it plain that this is on offer, or not any more
        std::function<void()> Prendi;  ///< may begin another round, or unload the form
        int Durata = 1;                ///< with a single switch, in paces
    };

    /// What a button on offer is filled with.
    static constexpr Colour Evidenza = Rgb(255, 210, 63);

    /// A button on offer has the keyboard and another colour.
    static Offerta DiBottone(CommandButton& bottone, std::function<void()> prendi, int durata = 1);

    /// A round in `form`, by a timer of that name. `stato` must outlive it.
    GiroOfferte(Form& form, ControlName timer, const Stato& stato);

    /// Puts the first one on offer. When the last one was not taken either, `finito` is called, or
    /// the round begins anew without it. With the arrow keys nothing is offered.
    void Avvia(std::vector<Offerta> offerte, std::function<void()> finito = nullptr);
    /// Nothing is on offer any more.
    void Ferma();
    bool InCorso() const { return !offerte_.empty(); }
    /// Something else has put this one on offer, the Tab key for instance.
    void Corrente(std::size_t quale);
    /// Shows the offer again, for a form whose controls have moved.
    void Mostra();
    /// The same for another player, whose way and pace hold from now on.
    void Aggiorna();

    /// To be called by the form for each key. True for a key that is a switch of the round. In the
    /// first moment of a round it does nothing, since nobody can have seen what is on offer.
    bool KeyDown(int keyCode);
    void KeyUp(int keyCode);

private:
    void Tick();
    void Prossima();
    void Offri(std::size_t quale);
    void DaCapo();

    Form& form_;
    const Stato& stato_;
    Timer timer_;
    std::vector<Offerta> offerte_;
    std::function<void()> finito_;
    std::size_t corrente_ = 0;
    int resta_ = 0;               ///< paces that the offer stays
    double avviato_ = 0;          ///< when the round began
    std::optional<int> premuto_;  ///< the switch that is down
};

}  // namespace trameli
