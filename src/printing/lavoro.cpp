#include "printing/lavoro.h"

#include "printing/testi_stampa.h"

namespace trameli {

namespace {

constexpr int StartDocFallito = -1;
constexpr int CodiceErrore = 482;  // trouble with the printer, whatever it is

std::string Riga(const std::string& nome, int numero) {
    return nome + " = " + std::to_string(numero) + ARigaNuova;
}

}  // namespace

bool Lavoro::StampaImmagine(PostoStampa posto, const std::string& nome) {
    finestra_.Hourglass(true);
    CreaContestoStampa(stato_.NomeStampante, nome);
    SheetSize foglio;
    int orientamento = 0;
    stampante_.LeggiDimensioniFoglio(stato_.NomeStampante, foglio, orientamento);
    if (!HaMisura(foglio)) {
        prhDC_.reset();  // it went after the context was made
    }
    const bool stampata =
        RispettaFoglio(posto, foglio) &&
        InviaAllaStampante(SullaStampante(posto, foglio, prhDC_ ? prhDC_->Pixels() : SheetSize()));
    finestra_.Hourglass(false);
    prhDC_.reset();
    return stampata;
}

bool Lavoro::CreaContestoStampa(const std::string& stampante, const std::string& nome) {
    stato_.BufferUscita = stato_.DatiStampante;
    prhDC_ = servizi_.Printers.CreateContext(stampante, stato_.BufferUscita);
    nomeDocumento_ = nome;
    return prhDC_ != nullptr;
}

/// What reaches beyond the sheet is scaled down if the player says so. False if nothing is to be
/// printed at all.
bool Lavoro::RispettaFoglio(PostoStampa& posto, const SheetSize& foglio) {
    if (!prhDC_ || !Eccede(posto, foglio)) {
        return true;
    }
    const auto testo = [&](const TestoNumerato& quale) { return Testo(servizi_.Lingue, quale); };
    const Answer risposta = servizi_.Dialogs.Message(
        testo(TestoStampa::Eccedente) + ARigaNuova + ARigaNuova + testo(TestoStampa::CambioScala),
        testo(TestoStampa::TitoloScala), Icon::Question, Buttons::YesNoCancel);
    if (risposta == Answer::Yes) {
        posto = Riscalato(posto, foglio);
    }
    return risposta != Answer::Cancel && finestra_.Loaded();
}

bool Lavoro::InviaAllaStampante(const PixelRectangle& dove) {
    const std::optional<std::string> errore = InviaCopie(dove);
    if (errore && finestra_.Loaded()) {
        servizi_.Dialogs.Message(
            *errore + Testo(servizi_.Lingue, TestoStampa::Chiusura) + ARigaNuova +
                Riga(Testo(servizi_.Lingue, TestoStampa::Codice), CodiceErrore) +
                Testo(servizi_.Lingue, TestoStampa::Errore482),
            TitoloStampa, Icon::Critical, Buttons::Ok);
    }
    immagine_.Libera();
    return !errore;
}

/// Nothing if all went well, else what did not.
std::optional<std::string> Lavoro::InviaCopie(const PixelRectangle& dove) {
    if (!prhDC_ || !immagine_.Presente()) {
        return Riga("prhDC", prhDC_ ? 1 : 0);
    }
    int r4 = 0;
    const int copie = stato_.NumeroCopie;
    for (int copia = 1; copia <= copie && finestra_.Loaded() && ancora_(); ++copia) {
        if (prhDC_->StartDocument(nomeDocumento_) == StartDocFallito) {
            return Testo(servizi_.Lingue, TestoStampa::ErroreStartDoc) + ARigaNuova;
        }
        const int r1 = prhDC_->StartPage();
        const int r2 = prhDC_->Stretch(dove, immagine_.Blocco());
        const int r3 = prhDC_->EndPage();
        if (r3 > 0) {
            r4 = prhDC_->EndDocument();
        }
        if (r1 <= 0 || r2 == 0 || r3 <= 0 || r4 == 0) {
            return Testo(servizi_.Lingue, TestoStampa::Interrotta) + ARigaNuova + Riga("R1", r1) +
                   Riga("R2", r2) + Riga("R3", r3) + Riga("R4", r4);
        }
    }
    return std::nullopt;
}

}  // namespace trameli
