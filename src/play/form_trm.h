// What the play forms have in common.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "base/griglie.h"
#include "drawing/geometria.h"
#include "drawing/spessori.h"
#include "engine/casuale.h"
#include "engine/tramelo.h"
#include "platform/command_button.h"
#include "platform/control_array.h"
#include "platform/form.h"
#include "platform/image.h"
#include "platform/menu.h"
#include "platform/picture_box.h"
#include "platform/status_bar.h"
#include "platform/timer.h"
#include "play/disegno_traccia.h"
#include "play/giocatore.h"
#include "play/scansione.h"
#include "play/traccia.h"
#include "shell/giro_offerte.h"
#include "shell/servizi.h"

namespace trameli {

class FormArchivio;

/// On the buttons for players with switches.
inline const Font ScritteGrandi{"Arial", 14.25, true};

/// What a play form has of its own in the window that all share. Places are those before the first
/// activation moves the controls, in twips.
struct DisegnoTrm {
    const char* Nome;
    Form::DesignSize Dimensioni;
    Bounds pictureTramelo;
    Bounds Image2;
    bool Image2Visibile;
    std::array<double, 4> LeftCoppe;
    double TopCoppe;
    double LatoCoppe;
    Bounds BottoneAvanti;
    bool ConRipartenze;     ///< a fifth panel in the status bar
    bool SempreIntestata;   ///< the panels are written anew whenever it comes back to the front
    double AttesaIniziale;  ///< seconds that the window is shown empty before the first maze
};

/// A game at one level: five mazes one after the other, with the counters of each.
///
/// A routine that leads on to another maze or window can find the form unloaded when it is done,
/// and so can whoever called it: Muovi and mnuNuovo_Click and all that end in one of them. Nothing
/// of the form is touched after them without asking Loaded.
class FormTrm : public Form {
public:
    MenuItem mnuTrameli;
    MenuItem mnuNuovo;
    MenuItem mnuRicomincia;
    MenuItem mnuColora;
    MenuItem mnuLinea1;
    MenuItem mnuLinee;
    MenuItem mnulinea2;
    MenuItem mnuStampa;
    MenuItem mnuEsci;

    PictureBox pictureTramelo;    ///< the playing surface
    PictureBox pictureStampa;     ///< carries the maze to the printer; never seen
    Image Image2;                 ///< the finish mark
    ControlArray<Image> Image1;   ///< the cups, one for each solved maze
    CommandButton BottoneAvanti;  ///< shown after a solved maze; leads to the next one
    CommandButton BottoneMenu;    ///< back to the menu, on offer to players with switches at times
    Timer Timer1;
    StatusBar StatusBar1;

protected:
    /// `servizi` and `casuale` must outlive it. All its mazes have the size `griglia`.
    FormTrm(trameli::Forms& forms, Servizi& servizi, Casuale& casuale, const DisegnoTrm& disegno,
            DimensioniGriglia griglia);

    // What differs from form to form.

    /// Places the controls in the window's size.
    virtual void Accomoda() = 0;
    /// Lets the settings take effect on controls in their places.
    virtual void Disponi() = 0;
    /// A new maze at the same level, with its counters at 0.
    virtual void mnuNuovo_Click() = 0;
    /// Chooses start and finish of a new maze and opens them in its walls.
    virtual PartenzaArrivo TrovaPartenzaArrivo();
    /// In which sides of its mazes that can be.
    virtual Aperture DoveSiApre() const { return Aperture::OgniLato; }
    /// What the walls are made of just now.
    virtual Pareti AspettoPareti() const { return Pareti::Linee; }
    /// Draws the walls; the surface is not cleared before.
    virtual void DisegnaTramelo();
    /// Counts a hit, with its sound.
    virtual void ColpitoMuro();
    /// What the next hit costs the player, to be said behind what is in the way.
    virtual std::string CostoDellUrto() const { return {}; }
    /// Puts what is drawn on paper, by the print window. Serves events; false if the form was
    /// unloaded meanwhile.
    virtual bool StampaTramelo();
    /// Draws what offers a direction again, if it was to be seen before all was drawn anew.
    virtual void RimettiOfferta() {}

    // The window.

    void Form_Load() override;
    void Form_Activate() override;
    /// The window goes with its screen: the maze and what was walked of it are fitted anew.
    void Form_Resize() override;
    /// A thickness changed while playing, or a level reached, is saved before the window goes.
    void Form_QueryClose() override;
    void BottoneAvanti_Click();
    /// Keeps the timer from taking the keyboard away again.
    void BottoneAvanti_GotFocus();
    /// The same maze from its start. Counters, timer and button stay as they are.
    void mnuRicomincia_Click();
    // Another look of trace or walls, and the same maze from its start.
    void mnuColora_Click();
    void mnuLinee_Click();
    /// Maze and trace on paper: they are drawn on white for it, and on their own ground afterwards.
    void mnuStampa_Click();
    /// Back to the menu: unloads the form.
    void mnuEsci_Click();

    /// Where BottoneMenu goes in the window as it is: over the cups.
    virtual Bounds PostoBottoneMenu() const = 0;
    void MostraBottoneMenu(bool visibile);
    /// After a solved maze, one switch goes on or, if it waits long enough, leaves.
    void OffriAvantiOMenu();

    /// What belongs to the maze before goes, to make room for a new one.
    void Sgombra();
    /// Writes `parola`, with a blank at its end, and the number of hits on their panel.
    void ScriviBoing(const char* parola);
    /// Writes the number of steps on its panel.
    void ScriviPassi();

    // The maze on `pictureTramelo`.

    /// What a maze on paper is called, in the queue of a printer for instance.
    static constexpr const char* NomeDocumento = "Trameli";

    /// The store of pictures, which no window shows.
    FormArchivio& Archivio() const;
    /// Fits the grid into its picture box, and works the thicknesses out.
    void ImpostaGeometria();
    /// Works the thicknesses out from the settings and the cells' size.
    void ImpostaSpessori();
    /// The look of trace and symbol with the settings and thicknesses as they are now.
    AspettoTraccia Aspetto() const;
    /// Makes and draws a new maze of the level.
    void GeneraTramelo();
    /// Forgets what was played of this maze; walls, start and finish stay.
    void AzzeraVariabili();
    /// Draws all of it anew, on a ground of that colour and without what offers a direction.
    void RidisegnaSu(Colour sfondo);
    /// Draws the symbol at the start.
    void InserisciPartenza();
    /// Puts the picture that marks the finish in its place.
    void CollocaArrivo();
    /// Chooses the picture that marks the finish by a draw, and puts it there.
    void InserisciArrivo();

    // The moves.

    /// Whether there is a maze, and not yet a solved one. The window is up before it is activated,
    /// and activation may wait: menu entries and keys can come before the first maze.
    bool InGioco() const { return stato_.TrameloDisegnato && !giocatore_.TrameloRisolto(); }
    /// A wish to go somewhere, from keyboard, switch or clock.
    void Muovi(Lato lato);
    /// Tells those who hear the game where they stand now.
    void AnnunciaPosto();
    /// Counts a step and draws it, with its sound.
    void DisegnaLinea(Lato lato, int lunghezza, double colore);
    /// A solved maze: a cup and the way to the next one, or after the fifth the congratulations in
    /// place of the form.
    void MostraFrameTrameloRisolto();
    /// The congratulations in place of the form, when no maze of it is being printed any more.
    void Complimenti();
    /// Shows the direction on offer as a stroke at the head of the trace; nothing is taken away.
    void RidisegnaRotazione();
    /// The look of those strokes in this maze.
    AspettoScansione AspettoTratti() const;

    Servizi& servizi_;
    Stato& stato_;
    Casuale& casuale_;

    Tramelo tramelo_;
    Geometria geometria_;
    Spessori spessori_;
    Giocatore giocatore_;
    Traccia traccia_;

    std::int16_t ContaBoing = 0;      ///< wall hits in this maze
    std::int16_t ContaPassi = 0;      ///< steps in this maze
    std::int16_t TrameliRisolti = 0;  ///< since the activation, 0 to 4

    /// The buttons on offer to players with switches, when there are any.
    GiroOfferte giro_;
    /// The direction on offer while scanning, a place in DirezioniScansione.
    std::int16_t DirezioneScansione = 0;
    bool offerto_ = false;   ///< something is on offer and to be seen
    bool tenuto_ = false;    ///< the switch that takes went down on this offer
    int offerte_ = 0;        ///< directions offered since something was taken, or the way out was
    int uscitaOfferta_ = 0;  ///< offers that the way out, BottoneMenu, still takes the place of

private:
    bool sempreIntestata_;
    double attesaIniziale_;
    bool preparato_ = false;          ///< the first activation has come
    bool stampando_ = false;          ///< a maze is on its way to paper
    bool complimentiAttesi_ = false;  ///< the level ended meanwhile
    bool StatoTimerSalvato = false;   ///< Timer1 as it was before BottoneAvanti stopped it
};

}  // namespace trameli
