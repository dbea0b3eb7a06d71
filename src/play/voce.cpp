#include "play/voce.h"

#include <array>

namespace trameli {

namespace {

struct Parola {
    const char* Id;
    const char* Disegno;
};

/// By the directions' numbers.
constexpr std::array<Parola, 4> Direzioni{
    {{"0084", "su"}, {"0085", "destra"}, {"0086", "giù"}, {"0087", "sinistra"}}};

std::string RigaEColonna(Cella cella, Lingue& lingue) {
    return lingue.TestoLingua("0080", "Riga ") + std::to_string(cella.Riga) +
           lingue.TestoLingua("0081", ", colonna ") + std::to_string(cella.Colonna);
}

std::string Arrivo(Lingue& lingue) {
    return lingue.TestoLingua("0090", ". Arrivo: ");
}

}  // namespace

std::string NomeDirezione(Lato lato, Lingue& lingue) {
    const auto& [id, disegno] = Direzioni.at(static_cast<std::size_t>(lato));
    return lingue.TestoLingua(id, disegno);
}

std::string DovEIlGiocatore(const Giocatore& giocatore, const Tramelo& tramelo, Lingue& lingue) {
    std::string testo = giocatore.NonPartito() ? lingue.TestoLingua("0083", "Prima della partenza")
                                               : RigaEColonna(giocatore.CellaCorrente(), lingue);
    std::string prima = lingue.TestoLingua("0082", ". Strade aperte: ");
    std::string uscita;
    for (const Lato lato : {Lato::Alto, Lato::Destra, Lato::Basso, Lato::Sinistra}) {
        if (giocatore.Esce(lato, tramelo)) {
            uscita = Arrivo(lingue) + NomeDirezione(lato, lingue);
        } else if (giocatore.Aperto(lato, tramelo)) {
            testo += prima + NomeDirezione(lato, lingue);
            prima = ", ";
        }
    }
    return testo + uscita;
}

std::string DescriviTramelo(const Giocatore& giocatore, const Tramelo& tramelo, Lingue& lingue) {
    if (giocatore.TrameloRisolto()) {
        return DescriviArrivo(lingue);
    }
    return DovEIlGiocatore(giocatore, tramelo, lingue) +
           (giocatore.AllArrivo()
                ? std::string()
                : Arrivo(lingue) + RigaEColonna(giocatore.Percorso().CellaArrivo, lingue));
}

std::string DescriviUrto(Lato lato, Lingue& lingue) {
    return lingue.TestoLingua("0088", "Muro: ") + NomeDirezione(lato, lingue);
}

std::string DescriviArrivo(Lingue& lingue) {
    return lingue.TestoLingua("0089", "Arrivo raggiunto");
}

}  // namespace trameli
