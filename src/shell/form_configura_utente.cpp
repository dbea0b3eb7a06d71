// The settings' page of users.
#include <algorithm>

#include "platform/text.h"
#include "shell/form_configura.h"
#include "shell/nome_utente.h"

namespace trameli {

namespace {

struct Scelta {
    Bounds Posto;
    const char* Testo;
};

constexpr std::array<Scelta, 3> Scelte{{
    {{360, 840, 3855, 615}, "Utente predefinito"},
    {{360, 1680, 3855, 615}, "Modifica utente"},
    {{360, 2640, 3855, 615}, "Nuovo utente"},
}};

const Font Leggibile{"Arial", 12, false};

constexpr std::string_view Estensione = ".ini";

std::string FileDi(const std::string& utente) {
    return ModuloPerIni::CartellaUtenti + utente + std::string(Estensione);
}

}  // namespace

void FormConfigura::DisponiUtente() {
    FrameUtente.Border(false);
    FrameUtente.AccessibleName("Utente");
    for (const Scelta& scelta : Scelte) {
        const int indice = OptionUtente.Count();
        OptionButton& opzione = OptionUtente.Add(FrameUtente, scelta.Posto, scelta.Testo);
        opzione.Font(Leggibile);
        opzione.Value(indice == 0);
        opzione.Click = [this, indice] { OptionUtente_Click(indice); };
    }
    ListModificaUtente.Visible(false);
    ListModificaUtente.Font(Leggibile);
    ListModificaUtente.AccessibleName("Utenti");
    ListModificaUtente.Click = [this] { ListModificaUtente_Click(); };
    TextNuovoUtente.Visible(false);
    TextNuovoUtente.Font(Leggibile);
    TextNuovoUtente.AccessibleName("Nome del nuovo utente");
    TextNuovoUtente.Accepts = [](const std::string& nome) { return NomeUtenteAmmesso(nome); };
    TextNuovoUtente.Change = [this] { TextNuovoUtente_Change(); };
}

void FormConfigura::OptionUtente_Click(int Index) {
    ListModificaUtente.Visible(Index == 1);
    TextNuovoUtente.Visible(Index == 2);
    switch (Index) {
        case 0:
            // The settings stay: they become the first user's.
            MostraUtente(ModuloPerIni::PrimoUtente);
            break;
        case 1:
            ElencaUtenti();
            break;
        default:
            TextNuovoUtente.Text("");
            TextNuovoUtente.SetFocus();
            break;
    }
}

void FormConfigura::ListModificaUtente_Click() {
    MostraUtente(ListModificaUtente.Text());
    servizi_.ModuloPerIni.LeggiUtente();
    ImpostaConfigurazioni();
    // These two follow the settings only here and when the window comes up.
    Option4(servizi_.Stato.ModoInput).Value(true);
    Check1.Value(servizi_.Stato.PuntatoreSistema);
}

void FormConfigura::TextNuovoUtente_Change() {
    const std::string nome = TextNuovoUtente.Text();
    if (nome.find_first_not_of(' ') != std::string::npos) {
        MostraUtente(nome);
    }
}

/// From now on the settings are this user's.
void FormConfigura::MostraUtente(const std::string& nome) {
    servizi_.Stato.NomeUtente = nome;
    servizi_.Stato.FileUtente = FileDi(nome);
    Label4.Caption(nome);
}

void FormConfigura::ElencaUtenti() {
    ListModificaUtente.Clear();
    const std::string primo = Capitals(std::string(ModuloPerIni::PrimoUtente) + ".ini");
    for (const std::string& file :
         servizi_.FileSystem.List(ModuloPerIni::CartellaUtenti, std::string(Estensione))) {
        if (Capitals(file) != primo) {
            ListModificaUtente.AddItem(
                Capitals(file.substr(0, file.size() - std::min(file.size(), Estensione.size()))));
        }
    }
}

}  // namespace trameli
