#include "play/form_archivio.h"

#include <string>

#include "drawing/arrivi.h"

namespace trameli {

namespace {

constexpr int NumeroMuri = 4;
constexpr double Quadro = 1200;  // twips; those who take a picture stretch it to their own size

}  // namespace

FormArchivio::FormArchivio(trameli::Forms& forms)
    : Form(forms, "FormArchivio", {Quadro, Quadro * NumeroArrivi}) {
    for (int i = 0; i < NumeroArrivi; ++i) {
        Image2.Add(*this, Bounds{0, Quadro * i, Quadro, Quadro}, ImmagineArrivo(i));
    }
    for (int i = 0; i < NumeroMuri; ++i) {
        PictureBox& muro = PictureMuro.Add(*this, Bounds{Quadro, Quadro * i, Quadro, Quadro});
        muro.Picture({"muri/" + std::to_string(i) + ".svg"});
    }
}

}  // namespace trameli
