#include "play/form_trm.h"

#include <initializer_list>
#include <string>

#include "base/rounding.h"
#include "platform/forms.h"
#include "play/voce.h"
#include "shell/puntatori.h"

namespace trameli {

namespace {

constexpr const char* Separatore = "----------------------";
constexpr double LarghezzaPannello = 2540;
constexpr std::initializer_list<const char*> Pannelli{"", "Livello", "Boing", "Passi"};
constexpr std::initializer_list<const char*> PannelliConRipartenze{"", "Livello", "Boing", "Passi",
                                                                   ""};
constexpr int IntervalloTimer = 100;  // milliseconds

}  // namespace

FormTrm::FormTrm(trameli::Forms& forms, Servizi& servizi, Casuale& casuale,
                 const DisegnoTrm& disegno, DimensioniGriglia griglia)
    : Form(forms, disegno.Nome, disegno.Dimensioni),
      mnuTrameli(*this, "mnuTrameli", "Trameli"),
      mnuNuovo(mnuTrameli, "mnuNuovo", "Nuovo", 'N'),
      mnuRicomincia(mnuTrameli, "mnuRicomincia", "Ricomincia", 'R'),
      mnuColora(mnuTrameli, "mnuColora", "Colora l'intera casella", 'C'),
      mnuLinea1(mnuTrameli, "mnuLinea1", Separatore),
      mnuLinee(mnuTrameli, "mnuLinee", "Modifica spessore linee", 'L'),
      mnulinea2(mnuTrameli, "mnulinea2", Separatore),
      mnuStampa(mnuTrameli, "mnuStampa", "Stampa", 'S'),
      mnuEsci(*this, "mnuEsci", "Torna al menù"),
      pictureTramelo(*this, "pictureTramelo", disegno.pictureTramelo),
      pictureStampa(*this, "pictureStampa", {600, 480, 3495, 2295}),
      Image2(pictureTramelo, "Image2", disegno.Image2),
      Image1("Image1"),
      BottoneAvanti(*this, "BottoneAvanti", disegno.BottoneAvanti),
      BottoneMenu(*this, "BottoneMenu", {0, 0, 4500, 1200}, "Torna al menù"),
      Timer1(*this, "Timer1", IntervalloTimer),
      StatusBar1(*this, "StatusBar1", LarghezzaPannello,
                 disegno.ConRipartenze ? PannelliConRipartenze : Pannelli),
      servizi_(servizi),
      stato_(servizi.Stato),
      casuale_(casuale),
      tramelo_(griglia.Righe, griglia.Colonne, casuale),
      traccia_(griglia.Righe, griglia.Colonne),
      giro_(*this, "TimerOfferte", servizi.Stato),
      sempreIntestata_(disegno.SempreIntestata),
      attesaIniziale_(disegno.AttesaIniziale) {
    BackColor(White);
    mnuNuovo.Click = [this] {
        if (preparato_) {  // else chosen before the window was laid out
            mnuNuovo_Click();
        }
    };
    mnuRicomincia.Click = [this] {
        mnuRicomincia_Click();
        Announce(pictureTramelo.Description);
    };
    mnuColora.Click = [this] { mnuColora_Click(); };
    mnuLinee.Click = [this] { mnuLinee_Click(); };
    mnuStampa.Click = [this] { mnuStampa_Click(); };
    mnuEsci.Click = [this] { mnuEsci_Click(); };
    mnuLinea1.Enabled(false);
    mnulinea2.Enabled(false);

    pictureTramelo.TabIndex(1);
    pictureTramelo.AccessibleName("Tramelo");
    pictureTramelo.Description = [this] {
        return stato_.TrameloDisegnato ? DescriviTramelo(giocatore_, tramelo_, servizi_.Lingue)
                                       : std::string();
    };
    pictureStampa.Visible(false);
    pictureStampa.AccessibleName("Stampa");
    Image2.Visible(disegno.Image2Visibile);
    Image2.AccessibleName("Arrivo");
    for (const double left : disegno.LeftCoppe) {
        Image& coppa =
            Image1.Add(*this, Bounds{left, disegno.TopCoppe, disegno.LatoCoppe, disegno.LatoCoppe},
                       Picture{"coppa.svg"});
        coppa.Visible(false);
        coppa.AccessibleName("Coppa " + std::to_string(Image1.Count()));
    }
    BottoneAvanti.TabIndex(5);
    BottoneAvanti.Visible(false);
    BottoneAvanti.Picture({"menu/inizio.svg"});
    BottoneAvanti.AccessibleName("Avanti");
    BottoneAvanti.MouseIcon(FrecciaGrande());
    BottoneAvanti.Click = [this] { BottoneAvanti_Click(); };
    BottoneAvanti.GotFocus = [this] { BottoneAvanti_GotFocus(); };
    BottoneMenu.TabIndex(6);
    BottoneMenu.Font(ScritteGrandi);
    BottoneMenu.Visible(false);
    BottoneMenu.Click = [this] { mnuEsci_Click(); };
    StatusBar1.AccessibleName("Barra di stato");
}

void FormTrm::Form_Load() {
    if (stato_.PuntatoreSistema) {
        BottoneAvanti.MouseIcon(std::nullopt);
    }
    servizi_.Lingue.TraduciForm(*this);
    stato_.TrameloDisegnato = false;
}

void FormTrm::Form_Activate() {
    if (!preparato_ || sempreIntestata_) {
        StatusBar1.Panel(1, stato_.NomeGiocatore);
        StatusBar1.Panel(2,
                         servizi_.Lingue.TestoLingua("0022") + std::to_string(stato_.Livello + 1));
    }
    if (preparato_) {
        return;
    }
    preparato_ = true;
    BackColor(Nearest(stato_.ColoreSfondo));
    TrameliRisolti = 0;
    Accomoda();
    Disponi();
    ImpostaGeometria();
    pictureTramelo.Left(0);
    pictureTramelo.Top(0);
    pictureTramelo.BackColor(Nearest(stato_.ColoreSfondo));
    if (!Attesa(attesaIniziale_)) {
        return;
    }
    mnuNuovo_Click();
    if (Loaded() && stato_.ModoInput == ScansioneManuale) {
        RidisegnaRotazione();
    }
}

void FormTrm::Form_Resize() {
    if (!preparato_) {
        return;
    }
    Accomoda();
    const Geometria prima = geometria_;
    ImpostaGeometria();
    if (!stato_.TrameloDisegnato || geometria_ == prima) {
        return;
    }
    giocatore_.Trasferisci(prima, geometria_);
    traccia_.Trasferisci(prima, geometria_);
    CollocaArrivo();
    pictureTramelo.Cls();
    RidisegnaSu(pictureTramelo.BackColor());
    RimettiOfferta();
}

void FormTrm::Form_QueryClose() {
    servizi_.ModuloPerIni.ScriviUtente();
    Form::Form_QueryClose();
}

void FormTrm::MostraBottoneMenu(bool visibile) {
    if (visibile) {
        BottoneMenu.Place(PostoBottoneMenu());
        BottoneMenu.BackColor(GiroOfferte::Evidenza);
        BottoneMenu.ToFront();
    }
    BottoneMenu.Visible(visibile);
    if (visibile) {
        BottoneMenu.SetFocus();
    }
}

void FormTrm::OffriAvantiOMenu() {
    // In paces: going on is what most want, and a press that was meant for it must not leave.
    constexpr int avanti = 4;
    constexpr int menu = 2;
    giro_.Avvia({GiroOfferte::DiBottone(
                     BottoneAvanti, [this] { BottoneAvanti_Click(); }, avanti),
                 {[this](bool offerto) { MostraBottoneMenu(offerto); }, [this] { mnuEsci_Click(); },
                  menu}});
}

void FormTrm::Sgombra() {
    giro_.Ferma();
    MostraBottoneMenu(false);
    BottoneAvanti.Visible(false);
    ContaPassi = 0;
    ScriviPassi();
    ContaBoing = 0;
    ScriviBoing("boing ");
    pictureTramelo.Cls();
}

void FormTrm::mnuRicomincia_Click() {
    pictureTramelo.Cls();
    ImpostaSpessori();
    if (!stato_.TrameloDisegnato) {
        return;
    }
    DisegnaTramelo();
    AzzeraVariabili();
    InserisciPartenza();
}

void FormTrm::mnuColora_Click() {
    stato_.ColoraCasella = !stato_.ColoraCasella;
    mnuColora.Checked(stato_.ColoraCasella);
    mnuRicomincia_Click();
}

void FormTrm::mnuLinee_Click() {
    stato_.SpessoreLinee = static_cast<std::int16_t>((stato_.SpessoreLinee + 1) % NumeroSpessori);
    mnuRicomincia_Click();
}

void FormTrm::mnuEsci_Click() {
    Timer1.Enabled(false);
    Forms().HandOver(*this, "FormMenu");
}

void FormTrm::BottoneAvanti_GotFocus() {
    // The button can get the focus a second time, from the Tab key or a click, and then finds the
    // timer as it left it. A timer that once ran has to run again, or scanning would stand still
    // in the next maze.
    StatoTimerSalvato = StatoTimerSalvato || Timer1.Enabled();
    Timer1.Enabled(false);
}

void FormTrm::BottoneAvanti_Click() {
    Timer1.Enabled(StatoTimerSalvato);
    mnuNuovo_Click();
}

void FormTrm::ScriviBoing(const char* parola) {
    StatusBar1.Panel(3, parola + std::to_string(ContaBoing));
}

void FormTrm::ScriviPassi() {
    StatusBar1.Panel(4, servizi_.Lingue.TestoLingua("0023") + std::to_string(ContaPassi));
}

}  // namespace trameli
