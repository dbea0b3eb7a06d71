// The store of the game's pictures.
#pragma once

#include "platform/control_array.h"
#include "platform/form.h"
#include "platform/image.h"
#include "platform/picture_box.h"

namespace trameli {

/// A form that is loaded and never shown: the other forms take their pictures from it.
class FormArchivio : public Form {
public:
    /// Comes with all its pictures.
    explicit FormArchivio(trameli::Forms& forms);

    /// The pictures that can mark the finish.
    ControlArray<Image> Image2{"Image2"};
    /// The pictures that bars of walls can show, each larger than the longest bar.
    ControlArray<PictureBox> PictureMuro{"PictureMuro"};
};

}  // namespace trameli
