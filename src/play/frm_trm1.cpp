#include "play/frm_trm1.h"

#include <algorithm>
#include <array>
#include <string>

#include "base/rounding.h"
#include "platform/forms.h"
#include "platform/keys.h"
#include "play/tasti.h"

namespace trameli {

namespace {

constexpr DisegnoTrm Disegno{
    .Nome = "frmTrm1",
    .Dimensioni = {9675, 6600},
    .pictureTramelo = {0, 0, 5325, 4725},
    .Image2 = {3000, 3240, 855, 735},
    .Image2Visibile = true,
    .LeftCoppe = {360, 960, 1560, 2160},
    .TopCoppe = 720,
    .LatoCoppe = 495,
    .BottoneAvanti = {7320, 240, 1725, 780},
    .ConRipartenze = true,
    .SempreIntestata = true,
    .AttesaIniziale = 0,
};

constexpr std::array<double, 5> LeftSoli{240, 840, 1440, 2040, 2640};
constexpr double TopSoli = 120;
constexpr double LatoSole = 495;

constexpr int VelocitaMinima = 1;
constexpr int VelocitaMassima = 25;
constexpr int VelocitaIniziale = 12;
constexpr int SaltoVelocita = 3;
constexpr int Lentissimo = 30;  // tenths of a second; the bar takes its value from it

constexpr Lato DirezioneIniziale = Lato::Basso;  // the only way in from the start

constexpr int DecimoDiSecondo = 100;    // milliseconds
constexpr double TempoPerGuardare = 3;  // seconds

// What a switch player chooses from during a rest, in the smallest windows.
constexpr double LarghezzaScelta = 4500;
constexpr double AltezzaScelta = 1200;

}  // namespace

frmTrm1::frmTrm1(trameli::Forms& forms, Servizi& servizi, Casuale& casuale)
    : FormTrm(forms, servizi, casuale, Disegno, {8, 11}),
      mnuPausa(*this, "mnuPausa", "&Pausa", &mnuEsci),
      FrameSotto(*this, "FrameSotto", {120, 4800, 9255, 1455}),
      HScroll1(FrameSotto, "HScroll1", {3360, 360, 3375, 270}, VelocitaMinima, VelocitaMassima,
               SaltoVelocita),
      Label1(FrameSotto, "Label1", {3360, 720, 855, 255}, "lento"),
      Label2(FrameSotto, "Label2", {5880, 720, 855, 255}, "veloce"),
      BottoneContinua(*this, "BottoneContinua", {0, 0, LarghezzaScelta, AltezzaScelta},
                      "Continua") {
    mnuPausa.Click = [this] { mnuPausa_Click(); };
    BottoneContinua.TabIndex(4);
    BottoneContinua.Visible(false);
    BottoneContinua.Click = [this] { BottoneContinua_Click(); };

    FrameSotto.Border(false);
    FrameSotto.AccessibleName("Sotto il tramelo");
    Image1.ForEach([this](Image& coppa) { FrameSotto.Take(coppa); });
    FrameSotto.Take(BottoneAvanti);
    for (const double left : LeftSoli) {
        Image& sole = ImageSole.Add(FrameSotto, Bounds{left, TopSoli, LatoSole, LatoSole},
                                    Picture{"sole.svg"});
        sole.AccessibleName("Sole " + std::to_string(ImageSole.Count()));
    }
    HScroll1.AccessibleName("Velocità");
    HScroll1.Change = [this] { HScroll1_Change(); };
    Label1.Transparent(true);
    Label2.Transparent(true);
    Label2.TextAlignment(Alignment::Right);

    Timer1.Tick = [this] { Timer1_Timer(); };
}

void frmTrm1::Accomoda() {
    pictureTramelo.Width(Width());
    pictureTramelo.Height(Height() - 2 * StatusBar1.Height() - FrameSotto.Height());
    FrameSotto.Top(pictureTramelo.Height());
    FrameSotto.Width(Width());
    BottoneAvanti.Left(Width() - 2 * BottoneAvanti.Width());
    if (BottoneContinua.Visible()) {
        AccomodaScelta();
    } else if (BottoneMenu.Visible()) {
        BottoneMenu.Place(PostoBottoneMenu());
    }
}

void frmTrm1::Disponi() {
    Timer1.Enabled(false);
    ContaRipartenze = 0;
    HScroll1.Value(VelocitaIniziale);
    FrameSotto.BackColor(Nearest(stato_.ColoreSfondo));
}

bool frmTrm1::Form_KeyDown(int keyCode, int /*shift*/) {
    if (giro_.KeyDown(keyCode)) {
        return true;
    }
    if (stato_.ModoInput == Tastiera || keyCode != KeySpace || !InGioco()) {
        return false;
    }
    ApriScelta();
    return true;
}

void frmTrm1::Form_KeyUp(int keyCode, int /*shift*/) {
    giro_.KeyUp(keyCode);
    if (!Loaded()) {
        return;
    }
    if (BottoneAvanti.Visible()) {
        BottoneAvanti.SetFocus();
        return;
    }
    if (!giocatore_.TrameloRisolto()) {
        Direzione = DirezioneDi(keyCode).value_or(Direzione);
    }
}

void frmTrm1::HScroll1_Change() {
    Lentezza = static_cast<std::int16_t>(Lentissimo - HScroll1.Value());
}

void frmTrm1::Timer1_Timer() {
    Timer1.Interval(Lentezza * DecimoDiSecondo);
    // The pause can start the clock before there is a maze.
    if (InGioco()) {
        Muovi(Direzione);
    }
}

void frmTrm1::mnuPausa_Click() {
    if (BottoneContinua.Visible()) {
        BottoneContinua_Click();
        return;
    }
    const bool pausa = Timer1.Enabled();
    Timer1.Enabled(!pausa);
    ScriviPausa(pausa);
}

void frmTrm1::ScriviPausa(bool ferma) {
    mnuPausa.Caption(ferma ? servizi_.Lingue.TestoLingua("0035", "Ri&prendi")
                           : servizi_.Lingue.TestoLingua("0036", "&Pausa"));
}

void frmTrm1::ApriScelta() {
    Timer1.Enabled(false);
    ScriviPausa(true);
    AccomodaScelta();
    for (CommandButton* bottone : {&BottoneContinua, &BottoneMenu}) {
        bottone->Visible(true);
        bottone->ToFront();
    }
    giro_.Avvia({GiroOfferte::DiBottone(BottoneContinua, [this] { BottoneContinua_Click(); }),
                 GiroOfferte::DiBottone(BottoneMenu, [this] { mnuEsci_Click(); })});
}

/// A third of the window across, with letters to match.
void frmTrm1::AccomodaScelta() {
    const double scala = std::max(1.0, Width() / 3 / LarghezzaScelta);
    const double larghezza = LarghezzaScelta * scala;
    const double altezza = AltezzaScelta * scala;
    const double left = (Width() - larghezza) / 2;
    const double top = pictureTramelo.Height() / 2 - altezza;
    BottoneContinua.Place({left, top, larghezza, altezza});
    BottoneMenu.Place({left, top + 5 * altezza / 4, larghezza, altezza});
    for (CommandButton* bottone : {&BottoneContinua, &BottoneMenu}) {
        bottone->Font({ScritteGrandi.Family, ScritteGrandi.Points * scala, ScritteGrandi.Bold});
    }
}

void frmTrm1::ChiudiScelta() {
    giro_.Ferma();
    BottoneContinua.Visible(false);
    BottoneMenu.Visible(false);
    BottoneMenu.Font(ScritteGrandi);
    ScriviPausa(false);
}

void frmTrm1::BottoneContinua_Click() {
    ChiudiScelta();
    pictureTramelo.SetFocus();
    // The end of the wait before the first step starts the clock by itself.
    Timer1.Enabled(!fineAttesa_);
}

Bounds frmTrm1::PostoBottoneMenu() const {
    const Image& coppa = Image1(Image1.Count() - 1);
    const double left = Image1(0).Left();
    return {FrameSotto.Left() + left, FrameSotto.Top() + TopSoli,
            coppa.Left() + coppa.Width() - left, coppa.Top() + coppa.Height() - TopSoli};
}

void frmTrm1::mnuNuovo_Click() {
    Timer1.Enabled(false);
    if (BottoneContinua.Visible()) {
        ChiudiScelta();
    }
    Sgombra();
    GeneraTramelo();
    TuttiISoli();
    InserisciPartenza();
    AttendiEParti();
}

PartenzaArrivo frmTrm1::TrovaPartenzaArrivo() {
    Direzione = DirezioneIniziale;
    return TrovaPartenzaArrivoATempo(tramelo_, geometria_, spessori_.SpessoreMuri);
}

void frmTrm1::ColpitoMuro() {
    FormTrm::ColpitoMuro();
    --SoliRimasti;
    mnuRicomincia_Click();
    Direzione = DirezioneIniziale;
    if (SoliRimasti >= 0) {
        ImageSole(SoliRimasti).Visible(false);
    } else {
        Sbagliato();
    }
}

std::string frmTrm1::CostoDellUrto() const {
    return SoliRimasti > 0 ? servizi_.Lingue.TestoLingua("0092", ". Soli rimasti: ") +
                                 std::to_string(SoliRimasti - 1)
                           : servizi_.Lingue.TestoLingua("0093", ". Si riparte da zero");
}

bool frmTrm1::StampaTramelo() {
    if (!FormTrm::StampaTramelo()) {
        return false;
    }
    if (fineAttesa_) {
        fineAttesa_ = Forms().Clock().Now() + TempoPerGuardare;
    }
    return true;
}

void frmTrm1::Sbagliato() {
    Timer1.Enabled(false);
    pictureTramelo.Cls();
    AzzeraVariabili();
    InserisciPartenza();
    ContaRipartenze = Saturated(ContaRipartenze + 1);
    Lingue& lingue = servizi_.Lingue;
    StatusBar1.Panel(5, lingue.TestoLingua("0032", "Ripartito da zero ") +
                            std::to_string(ContaRipartenze) + lingue.TestoLingua("0033", " volte"));
    TuttiISoli();
    DisegnaTramelo();
    AttendiEParti();
}

void frmTrm1::TuttiISoli() {
    SoliRimasti = Saturated(ImageSole.Count());
    ImageSole.ForEach([](Image& sole) { sole.Visible(true); });
}

void frmTrm1::AttendiEParti() {
    const Clock& orologio = Forms().Clock();
    const bool attende = fineAttesa_.has_value();
    fineAttesa_ = orologio.Now() + TempoPerGuardare;
    if (attende) {
        // Waits inside waits would pile up with every new maze and all end together. The one that
        // is under way lasts longer instead.
        return;
    }
    while (orologio.Now() < *fineAttesa_) {
        if (!Attesa(*fineAttesa_ - orologio.Now())) {
            return;
        }
    }
    fineAttesa_.reset();
    Timer1.Enabled(!BottoneContinua.Visible());
}

}  // namespace trameli
