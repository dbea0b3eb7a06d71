#include "shell/cornice.h"

namespace trameli {

namespace {

constexpr int Spessore = 5;      // pixels of each line
constexpr double Twips = 15;     // per pixel of the lines' thickness
constexpr double Distanza = 30;  // twips between the place and the light line

Bounds Intorno(const Bounds& posto, double margine) {
    return {posto.Left - margine, posto.Top - margine, posto.Width + 2 * margine,
            posto.Height + 2 * margine};
}

}  // namespace

Cornice::Cornice(Container& container, const std::string& nome)
    : scura_(container, nome.c_str(), {}, Spessore, Black),
      chiara_(container, (nome + "2").c_str(), {}, Spessore, Rgb(255, 255, 0)) {
    Nascondi();
}

void Cornice::Mostra(const Bounds& posto) {
    chiara_.Place(Intorno(posto, Distanza + Spessore * Twips));
    scura_.Place(Intorno(posto, Distanza + 2 * Spessore * Twips));
    for (Shape* linea : {&chiara_, &scura_}) {
        linea->Visible(true);
        linea->ToFront();
    }
}

void Cornice::Nascondi() {
    scura_.Visible(false);
    chiara_.Visible(false);
}

}  // namespace trameli
