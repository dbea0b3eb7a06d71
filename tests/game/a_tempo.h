// A maze in which the symbol walks by itself, and the hands that steer it.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "game/partita.h"
#include "platform/command_button.h"
#include "platform/menu.h"
#include "platform/scroll_bar.h"
#include "platform/timer.h"

namespace trameli {

inline constexpr double TreSecondi = 3;
inline constexpr double UnIstante = 0.001;

/// A game at one of the levels with a clock. Level 5 has no inner walls: there the symbol walks
/// eight cells down before it meets a wall.
class ATempo : public testing::Test {
protected:
    /// Opens the level; its first maze stands, and the wait before it is over.
    void Apri(int livello = 5, const FileUtente& file = {}) {
        disco_.Scrivi("_predefinito", file);
        partita_.ApriLivello(livello);
    }

    /// Opens level 5 without the menu, which does not offer it to everybody, and with nothing else
    /// on the screen. `prima` is called just before.
    void ApriDaSolo(const std::function<void()>& prima = [] {}) {
        if (!partita_.Aperta("FormMenu")) {
            partita_.ApriMenu();
        }
        prima();
        partita_.Gioco.Stato().Livello = 5;
        partita_.Gioco.Forms().Show("frmTrm1");
        partita_.Gioco.Forms().Unload(partita_.Finestra("FormMenu"));
        Pump();
    }

    Form& Gioco() { return partita_.Finestra("frmTrm1"); }
    bool Aperto() { return partita_.Aperta("frmTrm1"); }
    Tavolo IlTavolo() { return Tavolo(Gioco(), {8, 11}); }
    QImage Immagine() { return IlTavolo().Guarda().Immagine(); }
    int Passi() { return IlTavolo().Passi(); }
    int Urti() { return IlTavolo().Urti(); }
    std::string Pannello(int numero) { return IlTavolo().Pannello(numero); }

    Timer& Orologio() { return Trova<Timer>(Gioco(), "Timer1"); }
    HScrollBar& Velocita() { return Trova<HScrollBar>(Gioco(), "HScroll1"); }
    MenuItem& Pausa() { return Trova<MenuItem>(Gioco(), "mnuPausa"); }

    int Soli() { return Visibili(Gioco(), "ImageSole", 5); }
    int Coppe() { return IlTavolo().Coppe(); }

    void Tasto(int verso) { Tap(Gioco(), Frecce.at(static_cast<std::size_t>(verso))); }
    void CtrlN() { Tap(Gioco(), Qt::Key_N, Qt::ControlModifier); }
    void CtrlR() { Tap(Gioco(), Qt::Key_R, Qt::ControlModifier); }
    void Scegli(const char* voce) { Partita::Scegli(Gioco(), voce); }

    /// The time of a step passes.
    void Scatto() { partita_.Tempo.Advance(Orologio().Interval() / 1000.0); }
    void Scatti(int quanti) {
        for (int i = 0; i < quanti; ++i) {
            Scatto();
        }
    }
    /// Steers before each tick.
    void Guida(const std::vector<int>& passi) {
        for (const int verso : passi) {
            Tasto(verso);
            Scatto();
        }
    }
    /// So many hits, each by a wrong first step.
    void Sbaglia(int volte) {
        for (int i = 0; i < volte; ++i) {
            Guida({Su});
        }
    }
    /// `azione` in the middle of whatever waits then.
    void Fra(double secondi, std::function<void()> azione) {
        partita_.Tempo.In(secondi, std::move(azione));
    }

    Disco disco_;
    Partita partita_{disco_, {800, 600}, 7};
};

}  // namespace trameli
