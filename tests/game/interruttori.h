// Hands that have one key or two.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "game/partita.h"
#include "platform/picture_box.h"
#include "play/scansione.h"

namespace trameli {

inline constexpr int Manuale = 1;
inline constexpr int Automatica = 2;
inline constexpr int Velocita = 4;  // quarters of a second
inline constexpr double Giro = Velocita * 0.25;
/// A key that bounces, and one that comes too soon after a window or a button, count for nothing.
inline constexpr double DopoUnTasto = 0.16;
inline constexpr double DopoUnaNovita = 0.51;

inline constexpr int Blu = Rgb(0, 0, 255);

/// Strokes and symbol are blue.
inline FileUtente Utente(int modo) {
    return FileUtente()
        .Con(RigaModoInput, modo)
        .Con(RigaVelocita, Velocita)
        .Con(RigaSpessore, 0)
        .Con(RigaScansione, Blu)
        .Con(RigaSimbolo, Blu);
}

/// The number of a direction of travel in the order of the offers.
inline int Offerta(int verso) {
    const auto* const qui =
        std::find(DirezioniScansione.begin(), DirezioniScansione.end(), static_cast<Lato>(verso));
    return static_cast<int>(qui - DirezioniScansione.begin());
}

/// A player who has Space, with `Manuale` Enter too, and otherwise waits.
class ConInterruttori : public ConTavolo {
protected:
    Tavolo Apri(int livello, int modo) {
        modo_ = modo;
        file_ = Utente(modo);
        disco_.Scrivi("_predefinito", file_);
        return AlTavolo(partita_.ApriLivello(livello), livello);
    }
    Tavolo AlTavolo(Form& form, int livello) {
        // In the first tenth of a second the keyboard may still be elsewhere.
        if (modo_ == Manuale) {
            partita_.Tempo.Advance(DopoUnaNovita);
        }
        return {form, livello, file_};
    }

    void Spazio(Form& form) { Batti(form, Qt::Key_Space); }
    void Invio(Form& form) { Batti(form, Qt::Key_Return); }
    void Tic(int quanti = 1) { partita_.Tempo.Advance(Giro * quanti); }

    /// The next direction, by key or by waiting.
    void Prossima(Form& form) { modo_ == Manuale ? Spazio(form) : Tic(); }
    void Conferma(Form& form) { modo_ == Manuale ? Invio(form) : Spazio(form); }
    /// Goes on to the direction and takes it. `offerta` is the one on offer.
    void Vai(Form& form, int verso, int& offerta) {
        // Without a stroke on show, a player with one key waits for the next one.
        for (bool vista = modo_ == Manuale; !vista || offerta != Offerta(verso); vista = true) {
            Prossima(form);
            offerta = (offerta + 1) % NumeroDirezioni;
        }
        Conferma(form);
    }
    void Risolvi(const Tavolo& tavolo, int& offerta) {
        partenza_ = tavolo.Partenza();
        for (const int verso : tavolo.Soluzione()) {
            Vai(tavolo.Form_, verso, offerta);
        }
    }
    /// Waits until the direction is on offer, with one key before the first tick.
    void Aspetta(int offerta) { Tic(offerta == 0 ? NumeroDirezioni : offerta); }

    /// The directions whose strokes are to be seen round the head, by a pixel near their ends.
    /// `qui` is the cell where the head is, or an opening.
    std::vector<int> Tratti(const Tavolo& tavolo, const Posto& qui, bool inApertura) const {
        const Vista vista = tavolo.Guarda();
        const double fuori = inApertura ? 0.5 : 0;
        const auto lato = static_cast<std::size_t>(qui.Lato);
        std::vector<int> visti;
        for (std::size_t verso = 0; verso < ColonnaVerso.size(); ++verso) {
            constexpr double parte = 0.35;
            if (vista.Fra(qui.Riga, qui.Colonna,
                          parte * ColonnaVerso.at(verso) + fuori * ColonnaVerso.at(lato),
                          parte * RigaVerso.at(verso) + fuori * RigaVerso.at(lato)) == Pixel(Blu)) {
                visti.push_back(Offerta(static_cast<int>(verso)));
            }
        }
        return visti;
    }
    std::vector<int> TrattiAllInizio(const Tavolo& tavolo) const {
        return Tratti(tavolo, partenza_, true);
    }

    QWidget& ImmagineTasti(Form& form) const {
        return WidgetOf(Trova<PictureBox>(
            form, modo_ == Manuale ? "PictureScansioneManuale" : "PictureScansioneAutomatica"));
    }

    FileUtente file_;
    int modo_ = 0;
    Posto partenza_;  ///< of the last maze that was looked at

private:
    void Batti(Form& form, int tasto) {
        if (modo_ == Manuale) {
            partita_.Tempo.Advance(DopoUnTasto);
        }
        Tap(form, tasto);
    }
};

struct Caso {
    int Livello;
    int Modo;
};

/// A level of each window in which switches play, in both ways.
inline constexpr std::array CasiDiScansione{Caso{1, Manuale}, Caso{1, Automatica}, Caso{9, Manuale},
                                            Caso{9, Automatica}};

inline std::string NomeCaso(const testing::TestParamInfo<Caso>& voce) {
    constexpr std::array modi{"Keyboard", "TwoKeys", "OneKey"};
    return "Level" + std::to_string(voce.param.Livello) +
           modi.at(static_cast<std::size_t>(voce.param.Modo));
}

}  // namespace trameli
