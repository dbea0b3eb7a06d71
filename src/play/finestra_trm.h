// The window of a play form: its menu bar and its controls.
#pragma once

#include <array>
#include <optional>

#include "platform/command_button.h"
#include "platform/control_array.h"
#include "platform/form.h"
#include "platform/frame.h"
#include "platform/image.h"
#include "platform/menu.h"
#include "platform/picture_box.h"
#include "platform/status_bar.h"
#include "platform/timer.h"

namespace trameli {

/// The four cups as laid out, twips.
struct DisegnoCoppe {
    std::array<double, 4> Left;
    double Top;
    double Lato;
};

/// The window as laid out, before its first activation moves the controls; twips.
struct DisegnoTrm {
    const char* Nome;
    Form::DesignSize Dimensioni;
    Bounds pictureTramelo;
    Bounds Image2;
    bool Image2Visibile;
    DisegnoCoppe Image1;
    Bounds BottoneAvanti;
    /// The band under the maze where the symbol walks by itself: cups and button lie in it, and a
    /// pause in the menu and a further status panel come with it.
    std::optional<Bounds> FrameSotto = std::nullopt;
    std::optional<Bounds> PictureScansioneAutomatica;
    std::optional<Bounds> PictureScansioneManuale;
    bool ConMuri;  ///< has the menu entry that chooses what the walls are made of
};

/// What the play forms have to see and to press. What only some of them have is optional here,
/// because controls lie upon each other, and menu entries follow each other, in the order of their
/// making.
class FinestraTrm : public Form {
public:
    /// Everything is laid out as in `disegno`, and no event does anything yet.
    FinestraTrm(trameli::Forms& forms, const DisegnoTrm& disegno);

    MenuItem mnuTrameli;
    MenuItem mnuNuovo;
    MenuItem mnuRicomincia;
    MenuItem mnuColora;
    MenuItem mnuLinea1;
    std::optional<MenuItem> mnuLineeMuri;
    MenuItem mnuLinee;
    MenuItem mnulinea2;
    MenuItem mnuStampa;
    std::optional<MenuItem> mnuPausa;
    MenuItem mnuEsci;

    // These two do nothing but have the keyboard while scanning. They lie under the maze, where
    // they hide no part of it.
    std::optional<PictureBox> PictureScansioneAutomatica;
    std::optional<PictureBox> PictureScansioneManuale;

    PictureBox pictureTramelo;  ///< the playing surface
    PictureBox pictureStampa;   ///< carries the maze to the printer; never seen
    Image Image2;               ///< the finish mark
    std::optional<Frame> FrameSotto;
    ControlArray<Image> Image1;   ///< the cups, one for each solved maze
    CommandButton BottoneAvanti;  ///< shown after a solved maze; leads to the next one
    Timer Timer1;
    StatusBar StatusBar1;
};

}  // namespace trameli
