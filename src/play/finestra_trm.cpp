#include "play/finestra_trm.h"

#include <initializer_list>
#include <string>
#include <utility>

#include "shell/puntatori.h"

namespace trameli {

namespace {

constexpr const char* Separatore = "----------------------";
constexpr double LarghezzaPannello = 2540;
constexpr std::initializer_list<const char*> Pannelli{"", "Livello", "Boing", "Passi"};
constexpr std::initializer_list<const char*> PannelliConRipartenze{"", "Livello", "Boing", "Passi",
                                                                   ""};
constexpr int IntervalloTimer = 100;  // milliseconds

template <typename T, typename... Argomenti>
std::optional<T> Se(bool presente, Argomenti&&... argomenti) {
    if (!presente) {
        return std::nullopt;
    }
    return std::optional<T>(std::in_place, std::forward<Argomenti>(argomenti)...);
}

template <typename T>
std::optional<T> SePosto(Form& form, const char* nome, const std::optional<Bounds>& posto) {
    return Se<T>(posto.has_value(), form, nome, posto.value_or(Bounds{}));
}

Container& Fondo(Form& form, std::optional<Frame>& banda) {
    return banda ? static_cast<Container&>(*banda) : form;
}

}  // namespace

FinestraTrm::FinestraTrm(trameli::Forms& forms, const DisegnoTrm& disegno)
    : Form(forms, disegno.Nome, disegno.Dimensioni),
      mnuTrameli(*this, "mnuTrameli", "Trameli"),
      mnuNuovo(mnuTrameli, "mnuNuovo", "Nuovo", 'N'),
      mnuRicomincia(mnuTrameli, "mnuRicomincia", "Ricomincia", 'R'),
      mnuColora(mnuTrameli, "mnuColora", "Colora l'intera casella", 'C'),
      mnuLinea1(mnuTrameli, "mnuLinea1", Separatore),
      mnuLineeMuri(Se<MenuItem>(disegno.ConMuri, mnuTrameli, "mnuLineeMuri", "Usa linee", 'M')),
      mnuLinee(mnuTrameli, "mnuLinee", "Modifica spessore linee", 'L'),
      mnulinea2(mnuTrameli, "mnulinea2", Separatore),
      mnuStampa(mnuTrameli, "mnuStampa", "Stampa", 'S'),
      mnuPausa(Se<MenuItem>(disegno.FrameSotto.has_value(), *this, "mnuPausa", "&Pausa")),
      mnuEsci(*this, "mnuEsci", "Torna al menù"),
      PictureScansioneAutomatica(SePosto<PictureBox>(*this, "PictureScansioneAutomatica",
                                                     disegno.PictureScansioneAutomatica)),
      PictureScansioneManuale(
          SePosto<PictureBox>(*this, "PictureScansioneManuale", disegno.PictureScansioneManuale)),
      pictureTramelo(*this, "pictureTramelo", disegno.pictureTramelo),
      pictureStampa(*this, "pictureStampa", {600, 480, 3495, 2295}),
      Image2(pictureTramelo, "Image2", disegno.Image2),
      FrameSotto(SePosto<Frame>(*this, "FrameSotto", disegno.FrameSotto)),
      Image1("Image1"),
      BottoneAvanti(Fondo(*this, FrameSotto), "BottoneAvanti", disegno.BottoneAvanti),
      Timer1(*this, "Timer1", IntervalloTimer),
      StatusBar1(*this, "StatusBar1", LarghezzaPannello,
                 disegno.FrameSotto ? PannelliConRipartenze : Pannelli) {
    BackColor(White);
    mnuLinea1.Enabled(false);
    mnulinea2.Enabled(false);
    mnuStampa.Enabled(false);  // until there is a way to print

    pictureTramelo.TabIndex(1);
    pictureTramelo.AccessibleName("Tramelo");
    pictureStampa.Visible(false);
    pictureStampa.AccessibleName("Stampa");
    Image2.Visible(disegno.Image2Visibile);
    Image2.AccessibleName("Arrivo");

    if (FrameSotto) {
        FrameSotto->Border(false);
        FrameSotto->AccessibleName("Sotto il tramelo");
    }
    const DisegnoCoppe& coppe = disegno.Image1;
    for (const double left : coppe.Left) {
        Image& coppa =
            Image1.Add(Fondo(*this, FrameSotto), Bounds{left, coppe.Top, coppe.Lato, coppe.Lato},
                       Picture{"coppa.svg"});
        coppa.Visible(false);
        coppa.AccessibleName("Coppa " + std::to_string(Image1.Count()));
    }

    BottoneAvanti.TabIndex(5);
    BottoneAvanti.Visible(false);
    BottoneAvanti.Picture({"menu/inizio.svg"});
    BottoneAvanti.AccessibleName("Avanti");
    BottoneAvanti.MouseIcon(FrecciaGrande());

    if (PictureScansioneAutomatica) {
        PictureScansioneAutomatica->TabIndex(2);
        PictureScansioneAutomatica->Visible(false);
        PictureScansioneAutomatica->AccessibleName("Scansione automatica");
    }
    if (PictureScansioneManuale) {
        PictureScansioneManuale->TabIndex(3);
        PictureScansioneManuale->Visible(false);
        PictureScansioneManuale->AccessibleName("Scansione manuale");
    }
    StatusBar1.AccessibleName("Barra di stato");
}

}  // namespace trameli
