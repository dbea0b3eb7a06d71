#include "shell/form_info.h"

#include <array>

#include "platform/forms.h"
#include "platform/keys.h"
#include "shell/puntatori.h"

namespace trameli {

namespace {

constexpr Form::DesignSize Dimensioni{8745, 6510};
constexpr Colour Sfondo = Rgb(255, 255, 192);
constexpr const char* ARigaNuova = "\r\n";

/// A numbered text, and what stands there where no language file has it.
struct Riga {
    const char* Id;
    const char* Disegno;
};

constexpr Riga Titolo{"9990", "Trameli, il gioco dei labirinti"};
constexpr std::array<Riga, 3> Autori{{
    {"9991", "Autori: The Trameli authors"},
    {"9992", "Licenza: MIT"},
    {"9993", "Anno: 2026"},
}};
constexpr std::array<Riga, 2> Avviso{{
    {"9994", "Trameli è di tutti: puoi usarlo, copiarlo, regalarlo e modificarlo liberamente."},
    {"9995", "Viene dato così com'è, senza garanzie."},
}};
constexpr std::array<const char*, 4> Aggiunte{"9996", "9997", "9998", "9999"};

const Font Grande{"Arial", 14.25, false};

}  // namespace

FormInfo::FormInfo(trameli::Forms& forms, Servizi& servizi)
    : FinestraAdattata(forms, "FormInfo", Dimensioni, servizi),
      Image1(*this, "Image1", {240, 120, 1575, 615}, {"info/documento.svg"}),
      Label1(*this, "Label1", {240, 1200, 3855, 2535}, ""),
      Label4(*this, "Label4", {4920, 1200, 3375, 2535}, ""),
      Label3(*this, "Label3", {240, 3960, 5055, 2295}, ""),
      Command1(*this, "Command1", {5520, 5040, 2655, 975}, "Chiudi") {
    Caption("Informazioni");
    BackColor(Sfondo);
    Image1.MouseIcon(FrecciaBlu());
    Image1.AccessibleName("Apri il documento sulle licenze");
    Image1.ToolTipText("Apri il documento sulle licenze");
    Image1.Click = [this] { Image1_Click(); };
    Image1.TakesKeyboard(true);
    Image1.TabIndex(1);
    Image1.KeyUp = [this](int keyCode, int) {
        if (keyCode == KeySpace || keyCode == KeyEnter) {
            Image1_Click();
        }
    };
    for (Label* const scritta : {&Label1, &Label4, &Label3}) {
        scritta->Font(Grande);
    }
    Label1.Transparent(true);
    Label3.Transparent(true);
    Label4.BackColor(Sfondo);
    Command1.Font(Grande);
    Command1.Click = [this] { Command1_Click(); };
}

void FormInfo::Form_Activate() {
    RiempiSchermo();

    Lingue& lingue = servizi_.Lingue;
    const auto testo = [&](const Riga& riga) { return lingue.TestoLingua(riga.Id, riga.Disegno); };
    std::string autori = testo(Titolo) + " " + TRAMELI_VERSION + ARigaNuova;
    for (const Riga& riga : Autori) {
        autori += testo(riga) + ARigaNuova;
    }
    Label1.Caption(autori);
    Label3.Caption(testo(Avviso[0]) + ARigaNuova + testo(Avviso[1]));
    std::string aggiunte;
    for (const char* const id : Aggiunte) {
        const std::string riga = lingue.TestoLingua(id);
        aggiunte += riga.empty() ? riga : riga + ARigaNuova;
    }
    Label4.Caption(aggiunte);
}

void FormInfo::Form_QueryClose() {
    Command1_Click();
}

void FormInfo::Image1_Click() {
    servizi_.ModuloNavigate.ApriDocumento("P:\\documento.pdf");
}

void FormInfo::Command1_Click() {
    Forms().HandOver(*this, "FormMenu");
}

}  // namespace trameli
