// The road from a picture to paper.
#pragma once

#include <string>

#include "platform/picture_box.h"

namespace trameli {

/// What a play form knows of printing: it has a picture, and somebody lets the player put it on
/// paper.
class Stampa {
public:
    virtual ~Stampa() = default;

    /// Opens the print window for a picture and returns when it has closed; the caller's form may
    /// be gone by then. Margins and size are the first ones that the window offers, in millimetres.
    /// `orientamento` is 1 for portrait, 2 for landscape, anything else for the printer's own; the
    /// job is called `nomeDocumento`, or after the picture box if that is empty. What fails is told
    /// to the player.
    virtual void StampaFPB(PictureBox& sorgente, int x, int y, int w, int h, int orientamento,
                           const std::string& nomeDocumento) = 0;
};

}  // namespace trameli
