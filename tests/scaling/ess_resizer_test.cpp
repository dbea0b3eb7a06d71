// Controls that keep their proportions when their window gets another size.
#include "scaling/ess_resizer.h"

#include <algorithm>

#include "platform/bare_program.h"
#include "platform/command_button.h"
#include "platform/frame.h"
#include "platform/label.h"
#include "platform/line.h"
#include "platform/option_button.h"
#include "platform/qt/form_window.h"

namespace trameli {
namespace {

struct Disegno {
    VisualControl* Controllo;
    Bounds Posto;
    double Punti;
};

class EssResizerTest : public BareProgram {
protected:
    EssResizerTest() {
        Fuori.Font({"Arial", 72, true});
        Dentro.Font({"Arial", 14.25, false});
        TheForm.WhenResized = [this] { Resizer.Ridimensiona(); };
        Resizer.Carica();
    }

    void Ridimensiona(QSize pixel) {
        WindowOf(TheForm).resize(pixel);
        Pump();
        ASSERT_EQ(WindowOf(TheForm).size(), pixel);
    }

    /// Every control in proportion to the form's size just now.
    void TuttoInProporzione() const {
        const double x = TheForm.Width() / Larghezza;
        const double y = TheForm.Height() / Altezza;
        for (const Disegno& disegno : Disegni) {
            const VisualControl& controllo = *disegno.Controllo;
            SCOPED_TRACE(controllo.Name());
            const auto& [left, top, width, height] = disegno.Posto;
            EXPECT_EQ(controllo.Place(), (Bounds{left * x, top * y, width * x, height * y}));
            // Letters grow as far as both directions allow, or they would not fit any more.
            EXPECT_DOUBLE_EQ(controllo.Font().Points, disegno.Punti * std::min(x, y));
        }
    }

    static constexpr double Larghezza = 6000;
    static constexpr double Altezza = 4500;

    Label Fuori{TheForm, "Fuori", {0, 60, 5990, 1500}, "Trameli"};
    Frame Cornice{TheForm, "Cornice", {120, 1600, 5700, 1400}, "Livello"};
    OptionButton Dentro{Cornice, "Dentro", {240, 480, 1000, 375}, "1"};
    OptionButton Accanto{Cornice, "Accanto", {1240, 480, 1000, 375}, "2"};
    CommandButton Bottone{TheForm, "Bottone", {3360, 3080, 2315, 1095}, "&Avvio"};
    Line Linea{TheForm, "Linea", 0, 4400, 3000, 4400, 1, Black};
    EssResizer Resizer{TheForm};

    const double Normale = Font{}.Points;
    std::vector<Disegno> Disegni{{&Fuori, Fuori.Place(), 72},
                                 {&Cornice, Cornice.Place(), Normale},
                                 {&Dentro, Dentro.Place(), 14.25},
                                 {&Accanto, Accanto.Place(), Normale},
                                 {&Bottone, Bottone.Place(), Normale}};
};

TEST_F(EssResizerTest, KeepsPlacesSizesAndFontsInProportionAtEverySize) {
    CommandButton tardi(TheForm, "Tardi", {100, 3300, 900, 600});  // after the record was taken
    const QRect linea = WidgetOf(Linea).geometry();                // has ends instead of a place
    Bring();
    // Wide, upright, tiny, huge, and the design's own size at the end: nothing adds up.
    for (const QSize pixel : {QSize(1366, 768), QSize(300, 1900), QSize(1, 1), QSize(7680, 4320),
                              QSize(403, 307), QSize(400, 300)}) {
        SCOPED_TRACE(pixel.width());
        ASSERT_NO_FATAL_FAILURE(Ridimensiona(pixel));
        TuttoInProporzione();
        // Also in whole pixels: inside stays inside, and what touches goes on touching.
        const QRect dentro = WidgetOf(Dentro).geometry();
        EXPECT_TRUE(dentro.isEmpty() || WidgetOf(Cornice).rect().contains(dentro));
        EXPECT_EQ(dentro.right() + 1, WidgetOf(Accanto).geometry().left());
        const QFont lettere = WidgetOf(Fuori).font();
        EXPECT_NEAR(lettere.pixelSize(), std::max(1.0, Fuori.Font().Points * 20 / 15), 0.5);
        EXPECT_EQ(tardi.Place(), (Bounds{100, 3300, 900, 600}));
        EXPECT_EQ(WidgetOf(Linea).geometry(), linea);
    }
    EXPECT_EQ(Fuori.Width(), 5990);
    EXPECT_EQ(Fuori.Font().Points, 72);
    EXPECT_TRUE(Fuori.Font().Bold);
}

TEST_F(EssResizerTest, TakesForTheDesignWhatItRecordedLast) {
    EssResizer altro(TheForm);
    TheForm.WhenResized = [&] { altro.Ridimensiona(); };
    Bring();
    EXPECT_EQ(Fuori.Width(), 5990) << "nothing was recorded yet";
    altro.Carica();
    ASSERT_NO_FATAL_FAILURE(Ridimensiona({1600, 600}));
    EXPECT_EQ(Fuori.Width(), 2 * 5990);
    EXPECT_EQ(Fuori.Height(), 1500);
}

}  // namespace
}  // namespace trameli
