// The settings.
#pragma once

#include "platform/check_box.h"
#include "platform/command_button.h"
#include "platform/control_array.h"
#include "platform/frame.h"
#include "platform/label.h"
#include "platform/line.h"
#include "platform/list_box.h"
#include "platform/menu.h"
#include "platform/option_button.h"
#include "platform/scroll_bar.h"
#include "platform/shape.h"
#include "platform/tab_strip.h"
#include "platform/text_box.h"
#include "shell/finestra_adattata.h"

namespace trameli {

/// The one window in which settings are changed, on four pages: users, look and sounds, capitals,
/// way of playing. A change counts at once. There is no way to take all of it back, and leaving
/// saves it.
///
/// A page is a file of its own beside form_configura.cpp.
class FormConfigura : public FinestraAdattata {
public:
    /// `servizi` must outlive it.
    FormConfigura(trameli::Forms& forms, Servizi& servizi);

    // The controls, page by page.
    MenuItem mnuEsci;
    TabStrip TabStrip1;
    Label Label4;  ///< the current user

    Frame FrameUtente;
    ControlArray<OptionButton> OptionUtente;
    ListBox ListModificaUtente;
    TextBox TextNuovoUtente;

    Frame FramePuzzle;
    CommandButton Command1;
    CommandButton CommandSceltaColoreLinea;
    CommandButton Command3;
    CommandButton CommandSceltaColoreLineaSelezione;
    CommandButton Command2;
    Shape Shape1;
    Line Line1;
    Line Line2;
    Line LineaPareti1;
    Line LineaSelezione;
    Line LineaPareti2;
    Line Line4;  ///< not seen; its height is the measure of the preview
    Label Label2;
    Label Label5;
    Label Label3;
    ControlArray<OptionButton> Option1;  ///< the thicknesses
    Label Label1;
    CheckBox CheckRetrocedi;
    CheckBox CheckMuri;
    CheckBox CheckSuoni;
    CheckBox CheckSuoni2;

    Frame FrameCaratteri;
    CheckBox CheckMaiuscolo;

    Frame FramePunt;
    ControlArray<OptionButton> Option4;  ///< the ways of playing
    CheckBox Check1;
    CommandButton CommandScansione;
    HScrollBar HScroll3;
    Label Label7;

    /// Brings the controls and the preview into line with the settings. What it chooses fires the
    /// same events as the player's hand, so that it runs inside itself; nothing changes then.
    void ImpostaConfigurazioni();
    /// Hides all four pages.
    void NascondiFrame();

protected:
    void Form_Resize() override;
    void Form_Activate() override;
    void Form_QueryClose() override;

private:
    void TabStrip1_Click();
    void mnuEsci_Click();

    void OptionUtente_Click(int Index);
    void ListModificaUtente_Click();
    void TextNuovoUtente_Change();

    void Command1_Click();
    void CommandSceltaColoreLinea_Click();
    void Command3_Click();
    void CommandSceltaColoreLineaSelezione_Click();
    void Command2_Click();
    void Option1_Click(int Index);
    void CheckRetrocedi_Click();
    void CheckMuri_Click();
    void CheckSuoni_Click();
    void CheckSuoni2_Click();

    void CheckMaiuscolo_Click();

    void Option4_Click(int Index);
    void Check1_Click();
    void CommandScansione_Click();
    void HScroll3_Change();

    void DisponiUtente();
    void DisponiPuzzle();
    void DisponiCaratteri();
    void DisponiPunt();
    void OrdinaPerTab();

    void Mostra(Frame& pagina);
    void MostraUtente(const std::string& nome);
    void ElencaUtenti();
    void ScegliColorePer(double Impostazioni::*colore);
    void ImpostaAnteprima();
    void ImpostaColori();
    void ImpostaScansione();
    void MostraVelocita();

    bool attivata_ = false;  ///< it has come to the front before
};

}  // namespace trameli
