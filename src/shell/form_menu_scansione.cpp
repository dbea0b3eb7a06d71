// The menu for players with switches: what is on offer, and in which order.
#include <array>
#include <string>
#include <utility>
#include <vector>

#include "shell/fasce.h"
#include "shell/form_menu.h"

namespace trameli {

namespace {

constexpr int PrimaDelGiro = 2;  // paces: whoever has just taken something needs a moment to look

/// What an offer is called where it is not seen; asked for when it comes.
std::function<std::string()> NomeDi(const InteractiveControl& controllo) {
    return [&controllo] { return controllo.AccessibleName(); };
}

}  // namespace

/// The round of the whole window. It begins with the start, so that going on is one press.
void FormMenu::AvviaScansione() {
    Command1(Uscita).Caption("");
    std::vector<GiroOfferte::Offerta> giro;
    giro.push_back(OffertaDi(CorniceForm, Command1(Inizio), NomeDi(Command1(Inizio)),
                             [this] { Command1_Click(Inizio); }));
    for (std::size_t i = 0; i < Fasce.size(); ++i) {
        if (Option1(Fasce.at(i).Primo).Enabled()) {
            giro.push_back(OffertaDi(
                CorniceFrame, Riquadro(i),
                [this, i] {
                    return Option1(Fasce.at(i).Primo).AccessibleName() + " - " +
                           Option1(Fasce.at(i).Ultimo).Caption();
                },
                [this, i] { OffriLivelli(i); }));
        }
    }
    if (Combo1.Visible()) {
        giro.push_back(OffertaDi(
            CorniceForm, Combo1, [this] { return Combo1.AccessibleName() + ": " + Combo1.Text(); },
            [this] { ProssimoUtente(); }));
    }
    giro.push_back(OffertaDi(CorniceForm, Command1(Uscita), NomeDi(Command1(Uscita)),
                             [this] { ChiediUscita(); }));
    giro.front().Durata = PrimaDelGiro;
    durataGiro_ = static_cast<int>(giro.size()) + 1;
    giro_.Avvia(std::move(giro));
}

/// The levels of a band, and the band itself once more as the way back.
void FormMenu::OffriLivelli(std::size_t fascia) {
    std::vector<GiroOfferte::Offerta> giro;
    for (int livello = Fasce.at(fascia).Primo; livello <= Fasce.at(fascia).Ultimo; ++livello) {
        giro.push_back(
            OffertaDi(CorniceFrame, Option1(livello), NomeDi(Option1(livello)), [this, livello] {
                Option1(livello).Value(true);
                AvviaScansione();
            }));
    }
    giro.push_back(OffertaDi(
        CorniceFrame, Riquadro(fascia),
        [this] { return servizi_.Lingue.TestoLingua("0091", "Indietro"); },
        [this] { AvviaScansione(); }));
    giro.front().Durata = PrimaDelGiro;
    giro_.Avvia(std::move(giro));
}

/// Each user has a way of playing and a pace of his own.
void FormMenu::SeguiUtente() {
    if (servizi_.Stato.ModoInput == Tastiera) {
        giro_.Ferma();
    } else if (giro_.InCorso()) {
        giro_.Aggiorna();
    } else if (preparato_) {
        AvviaScansione();
    }
}

/// Those who play in another way are passed over: whoever has these switches could not go on from
/// there, or not come back.
void FormMenu::ProssimoUtente() {
    const int modo = servizi_.Stato.ModoInput;
    scorre_ = true;
    for (int i = 0; i < Combo1.ListCount() && Loaded(); ++i) {
        Combo1.ListIndex((Combo1.ListIndex() + 1) % Combo1.ListCount());
        if (servizi_.Stato.ModoInput == modo) {
            break;
        }
    }
    scorre_ = false;
    if (Loaded()) {
        SeguiUtente();
    }
}

/// A press that was not meant must not end the program: it takes a second one, for which there is
/// as much time as the whole round takes.
void FormMenu::ChiediUscita() {
    Command1(Uscita).Caption(
        servizi_.Lingue.TestoLingua("0052", "Premi ancora una volta per uscire"));
    GiroOfferte::Offerta uscita = OffertaDi(CorniceForm, Command1(Uscita), NomeDi(Command1(Uscita)),
                                            [this] { Command1_Click(Uscita); });
    uscita.Durata = durataGiro_;
    giro_.Avvia({std::move(uscita)}, [this] { AvviaScansione(); });
    Announce([this] { return Command1(Uscita).Caption(); });
}

GiroOfferte::Offerta FormMenu::OffertaDi(Cornice& cornice, const PlacedControl& dove,
                                         std::function<std::string()> nome,
                                         std::function<void()> prendi) {
    return {[this, &cornice, &dove, nome = std::move(nome)](bool offerta) {
                if (!offerta) {
                    cornice.Nascondi();
                    return;
                }
                cornice.Mostra(dove.Place());
                // The keyboard stays where it is, so that nothing else would be read out.
                Announce(nome);
            },
            std::move(prendi)};
}

const Shape& FormMenu::Riquadro(std::size_t fascia) const {
    const std::array<const Shape*, Fasce.size()> riquadri{&Shape1, &Shape2, &Shape3};
    return *riquadri.at(fascia);
}

}  // namespace trameli
