#include "play/form_archivio.h"

#include <string>

#include "drawing/arrivi.h"

namespace trameli {

namespace {

constexpr int NumeroMuri = 4;
constexpr double Lato = 1200;  // twips; those who take a picture stretch it to their own size

}  // namespace

FormArchivio::FormArchivio(trameli::Forms& forms)
    : Form(forms, "FormArchivio", {Lato, Lato * NumeroArrivi}) {
    for (int i = 0; i < NumeroArrivi; ++i) {
        Image2.Add(*this, Bounds{0, Lato * i, Lato, Lato}, ImmagineArrivo(i));
    }
    for (int i = 0; i < NumeroMuri; ++i) {
        PictureBox& muro = PictureMuro.Add(*this, Bounds{Lato, Lato * i, Lato, Lato});
        muro.Picture({"muri/" + std::to_string(i) + ".svg"});
    }
}

}  // namespace trameli
