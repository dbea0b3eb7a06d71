#include "shell/form_configura.h"

#include <array>
#include <vector>

#include "platform/forms.h"

namespace trameli {

namespace {

constexpr Form::DesignSize Dimensioni{10770, 8925};
constexpr int Sottile = 1;

// Widest and narrowest pace, quarters of a second, and the step of a click beside the handle.
constexpr int VelocitaMinima = 2;
constexpr int VelocitaMassima = 60;
constexpr int UnSecondo = 4;

}  // namespace

FormConfigura::FormConfigura(trameli::Forms& forms, Servizi& servizi)
    : FinestraAdattata(forms, "FormConfigura", Dimensioni, servizi),
      mnuEsci(*this, "mnuEsci", "&Esci"),
      TabStrip1(*this, "TabStrip1", {480, 1080, 9975, 7575},
                {"Utente", "Trameli", "Caratteri", "Modalità di input"}),
      Label4(*this, "Label4", {960, 360, 7695, 615}, ""),

      FrameUtente(*this, "FrameUtente", {840, 1560, 9375, 6855}),
      OptionUtente("OptionUtente"),
      ListModificaUtente(FrameUtente, "ListModificaUtente", {4560, 1800, 3135, 390}),
      TextNuovoUtente(FrameUtente, "TextNuovoUtente", {4560, 2640, 3135, 495}),

      FramePuzzle(*this, "FramePuzzle", {600, 1560, 9735, 6855}),
      Command1(FramePuzzle, "Command1", {5760, 480, 2655, 615}, "Colore sfondo"),
      CommandSceltaColoreLinea(FramePuzzle, "CommandSceltaColoreLinea", {5760, 1320, 2655, 615},
                               "Colore pareti del tramelo"),
      Command3(FramePuzzle, "Command3", {5760, 2160, 2655, 615}, "Colore simbolo movimento"),
      CommandSceltaColoreLineaSelezione(FramePuzzle, "CommandSceltaColoreLineaSelezione",
                                        {5760, 3000, 2655, 615},
                                        "Colore linea del percorso in avanti"),
      Command2(FramePuzzle, "Command2", {5760, 3840, 2655, 615},
               "Colore linea del percorso di ritorno"),
      Shape1(FramePuzzle, "Shape1", {8760, 2280, 375, 375}, Sottile, Black, ShapeKind::Circle),
      Line1(FramePuzzle, "Line1", 8520, 3360, 9480, 3360, 3, Black),
      Line2(FramePuzzle, "Line2", 8520, 4200, 9480, 4200, 3, Black),
      LineaPareti1(FramePuzzle, "LineaPareti1", 840, 480, 4080, 480, Sottile, Black),
      LineaSelezione(FramePuzzle, "LineaSelezione", 840, 1080, 4080, 1080, Sottile, Black),
      LineaPareti2(FramePuzzle, "LineaPareti2", 840, 1680, 4080, 1680, Sottile, Black),
      Line4(FramePuzzle, "Line4", 480, 480, 480, 1680, Sottile, Black),
      Label2(FramePuzzle, "Label2", {2760, 2040, 2895, 495},
             "Spessore di pareti e traccia movimento uguali"),
      Label5(FramePuzzle, "Label5", {2760, 2640, 2655, 495},
             "Spessore delle pareti inferiore a quello dellatraccia"),
      Label3(FramePuzzle, "Label3", {2760, 3240, 2655, 495},
             "Spessore delle pareti superiore a quello dellatraccia"),
      Option1("Option1"),
      Label1(FramePuzzle, "Label1", {240, 3840, 5055, 1935},
             "attenzione, la combinazione di spessori che è stata scelta (pareti tramelo e "
             "tracciato percorso) verrà modificata automaticamente nel passaggio tra i vari "
             "livelli, per adattarsi alla modificazione di dimensione dei trameli, mantenendo però "
             "la proporzione degli spessori delle linee"),
      CheckRetrocedi(FramePuzzle, "CheckRetrocedi", {5520, 4560, 3855, 1050},
                     "Modifica il colore del percorso quando retrocedi"),
      CheckMuri(FramePuzzle, "CheckMuri", {360, 5880, 4455, 810},
                "Utilizza linee anche nei primi livelli dei trameli"),
      CheckSuoni(FramePuzzle, "CheckSuoni", {5520, 5880, 3735, 330}, "Attiva suoni"),
      CheckSuoni2(FramePuzzle, "CheckSuoni2", {5520, 6360, 4095, 330}, "Suono ad ogni movimento"),

      FrameCaratteri(*this, "FrameCaratteri", {720, 1680, 9495, 6735}),
      CheckMaiuscolo(FrameCaratteri, "CheckMaiuscolo", {1080, 1440, 7455, 375},
                     "Usa stampato maiuscolo"),

      FramePunt(*this, "FramePunt", {840, 1680, 9495, 6615}),
      Option4("Option4"),
      Check1(FramePunt, "Check1", {4800, 960, 3735, 495}, "Usa punt di sistema"),
      CommandScansione(FramePunt, "CommandScansione", {6720, 2280, 1935, 855}, "Colore scansione"),
      HScroll3(FramePunt, "HScroll3", {480, 4800, 7215, 375}, VelocitaMinima, VelocitaMassima,
               UnSecondo),
      Label7(FramePunt, "Label7", {720, 5400, 6855, 375}, "") {
    Caption("Configurazioni");
    mnuEsci.Click = [this] { mnuEsci_Click(); };

    TabStrip1.Font({"Arial", 9.75, false});
    TabStrip1.AccessibleName("Pagine");
    TabStrip1.Click = [this] { TabStrip1_Click(); };
    Label4.BackColor(White);
    Label4.Font({"Arial", 15.75, false});

    DisponiUtente();
    DisponiPuzzle();
    DisponiCaratteri();
    DisponiPunt();
    OrdinaPerTab();
}

/// The Tab key goes down each page; options that belong together are one stop.
void FormConfigura::OrdinaPerTab() {
    std::vector<InteractiveControl*> ordine{&TabStrip1};
    OptionUtente.ForEach([&](OptionButton& opzione) { ordine.push_back(&opzione); });
    ordine.insert(ordine.end(),
                  {&ListModificaUtente, &TextNuovoUtente, &Command1, &CommandSceltaColoreLinea,
                   &Command3, &CommandSceltaColoreLineaSelezione, &Command2});
    Option1.ForEach([&](OptionButton& opzione) { ordine.push_back(&opzione); });
    ordine.insert(ordine.end(),
                  {&CheckRetrocedi, &CheckMuri, &CheckSuoni, &CheckSuoni2, &CheckMaiuscolo});
    Option4.ForEach([&](OptionButton& opzione) { ordine.push_back(&opzione); });
    ordine.insert(ordine.end(), {&Check1, &CommandScansione, &HScroll3});
    for (std::size_t i = 0; i < ordine.size(); ++i) {
        ordine[i]->TabIndex(static_cast<int>(i));
    }
}

void FormConfigura::Form_Resize() {
    FinestraAdattata::Form_Resize();
    ImpostaAnteprima();
}

void FormConfigura::Form_Activate() {
    // The window comes to the front again after each choice of a colour, and must not turn back to
    // its first page then.
    if (attivata_) {
        return;
    }
    attivata_ = true;

    RiempiSchermo();
    Option4(servizi_.Stato.ModoInput).Value(true);
    Label4.Caption(servizi_.Stato.NomeUtente);
    NascondiFrame();
    ImpostaConfigurazioni();
    Mostra(FrameUtente);
    Check1.Value(servizi_.Stato.PuntatoreSistema);
    TabStrip1.SetFocus();
}

void FormConfigura::Form_QueryClose() {
    mnuEsci_Click();
}

void FormConfigura::NascondiFrame() {
    for (Frame* const pagina : {&FrameUtente, &FramePuzzle, &FrameCaratteri, &FramePunt}) {
        pagina->Visible(false);
    }
}

void FormConfigura::Mostra(Frame& pagina) {
    pagina.Visible(true);
    pagina.ToFront();
}

void FormConfigura::TabStrip1_Click() {
    const std::array<Frame*, 4> pagine{&FrameUtente, &FramePuzzle, &FrameCaratteri, &FramePunt};
    NascondiFrame();
    Mostra(*pagine.at(static_cast<std::size_t>(TabStrip1.SelectedTab() - 1)));
}

void FormConfigura::ImpostaConfigurazioni() {
    const Stato& stato = servizi_.Stato;
    ImpostaAnteprima();
    ImpostaColori();
    CheckMuri.Value(stato.LineeNeiPrimiLivelli);
    CheckRetrocedi.Value(stato.CambiaColoreRitorno);
    Command2.Visible(stato.CambiaColoreRitorno);
    Line2.Visible(stato.CambiaColoreRitorno);
    ImpostaScansione();
    CheckMaiuscolo.Value(stato.UsaMaiuscolo);
    CheckSuoni.Value(stato.SuoniAttivi);
    CheckSuoni2.Enabled(stato.SuoniAttivi);
    CheckSuoni2.Value(stato.SuonoMovimento);
}

void FormConfigura::mnuEsci_Click() {
    servizi_.ModuloPerIni.ScriviUtente();
    if (!Loaded()) {
        return;
    }
    Forms().HandOver(*this, "FormMenu");
}

}  // namespace trameli
