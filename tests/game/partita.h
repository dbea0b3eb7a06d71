// A whole game as a player has it before him, from the splash to the maze.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "game/disco.h"
#include "game/muri_visti.h"
#include "platform/form.h"
#include "platform/qt/local_file_system.h"
#include "program.h"
#include "support/hand_clock.h"
#include "support/noted_printers.h"
#include "support/noted_sounds.h"
#include "support/stage.h"

namespace trameli {

inline constexpr int NumeroLivelliGioco = 16;

/// Rows and columns of a level.
struct Misura {
    int Righe;
    int Colonne;
};
constexpr Misura MisuraDi(int livello) {
    constexpr std::array<Misura, 8> crescenti{
        {{3, 4}, {4, 5}, {5, 6}, {6, 7}, {8, 10}, {10, 15}, {12, 18}, {15, 20}}};
    return livello < 5   ? Misura{6, 9}
           : livello < 8 ? Misura{8, 11}
                         : crescenti.at(static_cast<std::size_t>(livello - 8));
}

/// The control of a form by its name, and its index if it is one of several.
template <typename T>
T& Trova(const Form& form, const std::string& nome, std::optional<int> indice = std::nullopt) {
    for (Control* control : form.Controls()) {
        if (control->Name() == nome && control->Index() == indice) {
            return dynamic_cast<T&>(*control);
        }
    }
    throw std::runtime_error(form.Name() + " has no " + nome);
}

/// How many pictures of an array are seen. Those that are seen come first, or else a failure tells.
int Visibili(const Form& form, const char* nome, int quante);

/// A colour of the settings as a pixel.
constexpr QRgb Pixel(Colour colour) {
    return qRgb(RedOf(colour), GreenOf(colour), BlueOf(colour));
}

/// The keys of the four directions, cursor keys and those of the numeric pad.
inline constexpr std::array<int, 4> Frecce{Qt::Key_Up, Qt::Key_Right, Qt::Key_Down, Qt::Key_Left};
inline constexpr std::array<int, 4> Tastierino{Qt::Key_8, Qt::Key_6, Qt::Key_2, Qt::Key_4};

/// The program as it was installed, the desktop's language, and printers other than noted ones.
struct Installazione {
    std::filesystem::path Programma = ProgrammaFornito();
    std::string Locale;
    Printers* Stampanti = nullptr;
};

/// One run of the program on a machine with this disk and screen. Everything happens through
/// windows: clicks, keys, and what is seen.
class Partita {
public:
    explicit Partita(const Disco& disco, PixelSize schermo = {1366, 768}, std::uint64_t seme = 1);
    Partita(const Disco& disco, const Installazione& installazione);
    Partita(const Disco& disco, PixelSize schermo, std::unique_ptr<Casuale> casuale,
            const Installazione& installazione = {});

    HandClock Tempo;
    FixedScreen Schermo;
    LocalFileSystem File;
    NotedDialogs Messaggi;
    FixedInstances Istanze;
    NotedSounds Suoni;
    NotedDocuments Documenti;
    NotedPrinters Stampanti;
    Program Gioco;

    /// The splash comes up. False if the program does not start.
    bool Avvia();
    /// Starts and clicks the splash; with `pronto` until the menu's timer has run.
    Form& ApriMenu(bool pronto = true);
    /// Goes to the menu if it is not there, chooses the level and starts it, up to its maze.
    Form& ApriLivello(int livello);
    /// The same where the window may be gone again before its maze comes.
    void AvviaLivello(int livello);

    Form& Finestra(const std::string& nome);
    bool Aperta(const std::string& nome);
    /// The windows on the screen.
    std::vector<std::string> Aperte();

    /// Chooses an entry of the menu bar with the mouse, opening its menu first.
    static void Scegli(Form& form, const std::string& voce, std::optional<int> indice = {});
    /// Ctrl+S in the maze's window; does something in the print window once that is seen, and
    /// closes it if that has not. False if it was never seen.
    bool Stampa(Form& form, const std::function<void(Form&)>& gesti);
    /// Another window comes before this one, and goes again.
    static void ViaERitorno(Form& form);
    /// Closes the window as the desktop does.
    static void Chiudi(Form& form);
};

/// A maze on the screen and the hands that walk it.
class Tavolo {
public:
    Tavolo(Form& form, int livello, const FileUtente& file = {});

    Form& Form_;
    Pianta Pianta_;

    Vista Guarda() const;
    MuriVisti Muri() const;
    /// The openings, by the symbol that stands in one of them before the first step.
    Posto Partenza() const;
    Posto Arrivo() const;
    /// The steps from before the start to behind the finish.
    std::vector<int> Soluzione() const;

    void Passo(int verso, const std::array<int, 4>& tasti = Frecce) const;
    void Cammina(const std::vector<int>& passi, const std::array<int, 4>& tasti = Frecce) const;
    void Risolvi() const { Cammina(Soluzione()); }

    std::string Pannello(int numero) const;
    /// The number at the end of a panel, whatever word stands before it.
    int NumeroPannello(int numero) const;
    int Urti() const { return NumeroPannello(3); }
    int Passi() const { return NumeroPannello(4); }
    bool Risolto() const;
    int Coppe() const { return Visibili(Form_, "Image1", 4); }

    /// A colour of the player's settings.
    QRgb Colore(Riga riga) const;

private:
    /// Start and finish.
    std::vector<Posto> Aperture(const Vista& vista) const;

    FileUtente file_;
};

/// A player before the maze of some level.
class ConTavolo : public testing::Test {
protected:
    /// Starts the level, for a user with these settings.
    Tavolo Apri(int livello, const FileUtente& file = {}) {
        disco_.Scrivi("_predefinito", file);
        return {partita_.ApriLivello(livello), livello, file};
    }
    /// Ctrl with a letter, a Qt::Key.
    static void Comando(const Tavolo& tavolo, int lettera) {
        Tap(tavolo.Form_, lettera, Qt::ControlModifier);
    }

    Disco disco_;
    Partita partita_{disco_, {800, 600}, 7};
};

/// The name of a case that is a level, or a screen.
inline std::string NomeLivello(const testing::TestParamInfo<int>& voce) {
    return "Level" + std::to_string(voce.param);
}
inline std::string NomeSchermo(const testing::TestParamInfo<PixelSize>& voce) {
    return std::to_string(voce.param.Width) + "x" + std::to_string(voce.param.Height);
}

}  // namespace trameli
