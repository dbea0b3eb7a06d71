#include "quaderno/quaderno.h"

#include <algorithm>
#include <vector>

#include "base/griglie.h"
#include "base/rounding.h"
#include "drawing/arrivi.h"
#include "drawing/geometria.h"
#include "drawing/muri_a_linee.h"
#include "drawing/spessori.h"
#include "engine/casuale.h"
#include "engine/ricette.h"
#include "platform/contrast.h"
#include "quaderno/soluzione.h"

namespace trameli {

namespace {

constexpr double Margine = 567;  // twips, a centimetre
constexpr double Titolo = 500;   // height of a page's heading
constexpr double PuntiTitolo = 12;
constexpr double Pixel = 15;  // twips; thicknesses are worked out in pixels
constexpr int SoluzioniPerRiga = 4;
constexpr int SoluzioniPerColonna = 3;
constexpr int SoluzioniPerPagina = SoluzioniPerRiga * SoluzioniPerColonna;

/// The least contrast to the paper. That of the trace is a little larger at first, while yellow,
/// say, has hardly any: good on a dark window and nothing on a sheet.
constexpr double MinimoContrasto = 2;

bool SiVede(Colour colore) {
    return Contrast(colore, White) >= MinimoContrasto;
}

/// A player's colour, or a darker one like it that can be seen on the paper.
Colour SullaCarta(Colour colore) {
    const auto scuro = [](int parte) { return Quotient(parte * 3, 4); };
    while (!SiVede(colore)) {
        colore = Rgb(scuro(RedOf(colore)), scuro(GreenOf(colore)), scuro(BlueOf(colore)));
    }
    return colore;
}

/// Walls that cannot be seen become black, so that they differ from a trace that could not either.
Colour MuriSullaCarta(Colour colore) {
    return SiVede(colore) ? colore : Black;
}

/// A maze, wherever it is going to be drawn.
struct TrameloPronto {
    Tramelo Muri;
    Aperture DoveSiApre;
    int Configurazione_;  ///< where start and finish are
    int Arrivo;           ///< which picture
};

TrameloPronto Prepara(int livello, Casuale& casuale) {
    const auto [righe, colonne] = DimensioniDi(livello);
    // In the timed levels the way always leads downwards.
    const bool inGiu = ATempo(livello);
    TrameloPronto pronto{Tramelo(righe, colonne, casuale),
                         inGiu ? Aperture::SopraESotto : Aperture::OgniLato, 0, 0};
    CreaTramelo(pronto.Muri, livello, [&] {
        pronto.Configurazione_ = inGiu ? 0 : casuale.FinoA(NumeroConfigurazioni);
        const PartenzaArrivo percorso =
            Configurazione(pronto.Configurazione_, righe, colonne, {}, 0);
        pronto.Muri.Apri(percorso.CellaPartenza, percorso.LatoPartenza);
        pronto.Muri.Apri(percorso.CellaArrivo, percorso.LatoArrivo);
    });
    pronto.Arrivo = casuale.FinoA(NumeroArrivi);
    return pronto;
}

/// Draws in a part of the page.
class Disegno {
public:
    Disegno(PageBook& libro, const Impostazioni& impostazioni, const TrameloPronto& tramelo,
            const Bounds& dove)
        : libro_(libro),
          impostazioni_(impostazioni),
          tramelo_(tramelo.Muri),
          dove_(dove),
          geometria_(CalcolaGeometria(dove.Width, dove.Height, tramelo_.Righe(), tramelo_.Colonne(),
                                      tramelo.DoveSiApre)),
          spessori_(CalcolaSpessori(impostazioni.SpessoreLinee, geometria_.DimensioneCella, Pixel,
                                    Pareti::Linee)),
          percorso_(Configurazione(tramelo.Configurazione_, tramelo_.Righe(), tramelo_.Colonne(),
                                   geometria_, spessori_.SpessoreMuri)) {}

    void Muri() const {
        PerOgniMuro(tramelo_, geometria_, [this](const Segmento& muro) {
            Linea(muro.Da, muro.A, std::max(1.0, spessori_.SpessoreMuri),
                  MuriSullaCarta(Nearest(impostazioni_.ColorePareti)));
        });
    }
    void Partenza() const {
        Linea(percorso_.PuntoIniziale, percorso_.PuntoIniziale, PennaTraccia(),
              SullaCarta(Nearest(impostazioni_.ColoreSimbolo)));
    }
    void Arrivo(int immagine) const {
        const double lato = LatoArrivoImmagine(geometria_.DimensioneCella, spessori_.SpessoreMuri);
        libro_.DrawPicture(ImmagineArrivo(immagine),
                           {dove_.Left + percorso_.PosizioneArrivo.Sinistra,
                            dove_.Top + percorso_.PosizioneArrivo.Alto, lato, lato});
    }
    void Via() const {
        const Colour colore = SullaCarta(Nearest(impostazioni_.ColoreAvanti));
        Punto qui = percorso_.PuntoIniziale;
        for (const Cella cella : Soluzione(tramelo_, percorso_)) {
            const Punto poi = Mezzo(cella);
            Linea(qui, poi, PennaTraccia(), colore);
            qui = poi;
        }
        const Punto fuori =
            Sposta(qui, percorso_.LatoArrivo, Quotient(geometria_.DimensioneCella, 2));
        Linea(qui, fuori, PennaTraccia(), colore);
    }

private:
    double PennaTraccia() const { return std::max(1, 2 * spessori_.SpessoreTraccia); }

    Punto Mezzo(Cella cella) const {
        const int lato = geometria_.DimensioneCella;
        const int mezzo = Quotient(lato, 2);
        return {Saturated(geometria_.MargineSinistro + (cella.Colonna - 1) * lato + mezzo),
                Saturated(geometria_.MargineSuperiore + (cella.Riga - 1) * lato + mezzo)};
    }
    void Linea(Punto da, Punto a, double pixel, Colour colore) const {
        libro_.DrawLine(dove_.Left + da.X, dove_.Top + da.Y, dove_.Left + a.X, dove_.Top + a.Y,
                        pixel * Pixel, colore);
    }

    PageBook& libro_;
    const Impostazioni& impostazioni_;
    const Tramelo& tramelo_;
    Bounds dove_;
    Geometria geometria_;
    Spessori spessori_;
    PartenzaArrivo percorso_;
};

/// The part of a page with a heading of that height for the maze `i` of so many in rows.
Bounds Posto(int i, int perRiga, int perColonna, double titolo) {
    const double larghezza = (LarghezzaPagina - 2 * Margine) / perRiga;
    const double altezza = (AltezzaPagina - 2 * Margine) / perColonna;
    return {Margine + larghezza * (i % perRiga), Margine + altezza * Quotient(i, perRiga) + titolo,
            larghezza, altezza - titolo};
}

void Scrivi(PageBook& libro, const Bounds& sotto, const std::string& testo) {
    libro.DrawText(sotto.Left, sotto.Top - Titolo, PuntiTitolo, testo);
}

}  // namespace

void Scrivi(const Quaderno& quaderno, const Impostazioni& impostazioni,
            const std::string& parolaLivello, PageBook& libro) {
    CasualeConSeme casuale(quaderno.Seme);
    std::vector<TrameloPronto> trameli;
    for (int i = 0; i < quaderno.Numero; ++i) {
        trameli.push_back(Prepara(quaderno.Livello, casuale));
    }
    const std::string livello = parolaLivello + std::to_string(quaderno.Livello + 1);
    for (int i = 0; i < quaderno.Numero; ++i) {
        if (i > 0) {
            libro.NewPage();
        }
        const TrameloPronto& tramelo = trameli[static_cast<std::size_t>(i)];
        const Bounds posto = Posto(0, 1, 1, Titolo);
        Scrivi(libro, posto, livello + "   " + std::to_string(i + 1));
        const Disegno disegno(libro, impostazioni, tramelo, posto);
        disegno.Muri();
        disegno.Partenza();
        disegno.Arrivo(tramelo.Arrivo);
    }
    for (int i = 0; quaderno.Soluzioni && i < quaderno.Numero; ++i) {
        const int sullaPagina = i % SoluzioniPerPagina;
        if (sullaPagina == 0) {
            libro.NewPage();
        }
        const Bounds posto = Posto(sullaPagina, SoluzioniPerRiga, SoluzioniPerColonna, Titolo);
        Scrivi(libro, posto, std::to_string(i + 1));
        const Disegno disegno(libro, impostazioni, trameli[static_cast<std::size_t>(i)], posto);
        disegno.Via();
        disegno.Muri();
    }
}

}  // namespace trameli
