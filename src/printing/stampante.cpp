#include "printing/stampante.h"

#include "printing/testi_stampa.h"

namespace trameli {

void Stampante::FoglioStampa(int& w, int& h, std::optional<int> orientamento) {
    w = -1;
    h = -1;
    if (!ApriStampante(stato_.NomeStampante)) {
        return;
    }
    if (orientamento) {
        if (*orientamento != PrinterSettings::Portrait &&
            *orientamento != PrinterSettings::Landscape) {
            Avvisa(Testo(servizi_.Lingue, TestoStampa::OrientamentoErrato));
            return;
        }
        stato_.DatiStampante.Orientation = *orientamento;
        AggiornaDatiStampante();
    }
    SheetSize foglio;
    int letto = 0;
    LeggiDimensioniFoglio(stato_.NomeStampante, foglio, letto);
    w = foglio.Width;
    h = foglio.Height;
}

bool Stampante::ApriStampante(std::string& nome) {
    stato_.hStampante.reset();
    if (nome.empty()) {
        nome = StampantePredefinita();
        if (nome.empty()) {
            return false;
        }
    }
    stato_.hStampante = servizi_.Printers.Open(nome);
    if (!stato_.hStampante) {
        Avvisa(Testo(servizi_.Lingue, TestoStampa::NonSiApre) + ARigaNuova);
        return false;
    }
    // One that does not answer is as good as open: what it can do shows when something is printed.
    AggiornaDatiStampante();
    return true;
}

bool Stampante::AggiornaDatiStampante() {
    if (!stato_.hStampante) {
        return false;
    }
    stato_.BufferUscita = stato_.DatiStampante;
    const bool risposto = stato_.hStampante->Merge(stato_.BufferUscita);
    stato_.DatiStampante = stato_.BufferUscita;
    return risposto;
}

void Stampante::MostraProprietaStampante() {
    if (!stato_.hStampante) {
        return;
    }
    PrinterSettings scelti = stato_.DatiStampante;
    if (stato_.hStampante->Properties(scelti, TestiProprieta(servizi_.Lingue))) {
        stato_.BufferUscita = scelti;
        stato_.DatiStampante = scelti;
    }
}

bool Stampante::LeggiDimensioniFoglio(const std::string& nome, SheetSize& foglio,
                                      int& orientamento) {
    if (nome.empty()) {
        foglio = {-1, -1};
        orientamento = -1;
        return false;
    }
    const auto contesto = servizi_.Printers.CreateContext(nome, stato_.BufferUscita);
    foglio = contesto ? contesto->Millimetres() : SheetSize();
    orientamento = stato_.DatiStampante.Orientation;
    return contesto != nullptr;
}

std::string Stampante::StampantePredefinita() {
    std::string nome = servizi_.Printers.Default();
    if (nome.empty()) {
        Avvisa(Testo(servizi_.Lingue, TestoStampa::SenzaDefault));
    }
    return nome;
}

void Stampante::Avvisa(const std::string& testo) {
    servizi_.Dialogs.Message(testo, TitoloStampa, Icon::Critical, Buttons::Ok);
}

}  // namespace trameli
