// Controls that keep their proportions when their window gets another size.
#include "scaling/ess_resizer.h"

#include <algorithm>

#include "base/rounding.h"
#include "platform/bare_program.h"
#include "platform/frame.h"
#include "platform/label.h"
#include "platform/line.h"
#include "platform/option_button.h"

namespace trameli {
namespace {

class EssResizerTest : public BareProgram {
protected:
    EssResizerTest() {
        Fuori.Font({"Arial", 72, true});
        Dentro.Font({"Arial", 14.25, false});
        Resizer.Carica();
        TheForm.WhenResized = [this] { Resizer.Ridimensiona(); };
        Bring();
    }

    /// So many times as wide and as high as it was designed.
    void Ridimensiona(double x, double y) {
        WindowOf(TheForm).resize(Nearest(400 * x), Nearest(300 * y));
        Pump();
    }

    Label Fuori{TheForm, "Fuori", {0, 60, 5990, 1500}, "Trameli"};
    Frame Cornice{TheForm, "Cornice", {120, 1600, 5700, 1400}, "Livello"};
    OptionButton Dentro{Cornice, "Dentro", {240, 480, 1000, 375}, "1"};
    OptionButton Accanto{Cornice, "Accanto", {1240, 480, 1000, 375}, "2"};
    Line Linea{TheForm, "Linea", 0, 4400, 3000, 4400, 1, Black};
    EssResizer Resizer{TheForm};
};

TEST_F(EssResizerTest, KeepsPlacesSizesAndFontsInProportionToTheDesign) {
    const QRect linea = WidgetOf(Linea).geometry();  // has ends instead of a place
    // Wide, upright, tiny, huge, and the design's own size at the end: nothing adds up.
    const std::pair<double, double> volte[] = {
        {3.25, 2.5}, {0.75, 6}, {0.01, 0.01}, {20, 15}, {1, 1}};
    for (const auto& [x, y] : volte) {
        SCOPED_TRACE(x);
        Ridimensiona(x, y);
        EXPECT_EQ(Fuori.Place(), (Bounds{0, 60 * y, 5990 * x, 1500 * y}));
        EXPECT_EQ(Cornice.Place(), (Bounds{120 * x, 1600 * y, 5700 * x, 1400 * y}));
        EXPECT_EQ(Dentro.Place(), (Bounds{240 * x, 480 * y, 1000 * x, 375 * y}));
        // Letters grow as far as both directions allow, or they would not fit any more.
        EXPECT_EQ(Fuori.Font(), (Font{"Arial", 72 * std::min(x, y), true}));
        EXPECT_DOUBLE_EQ(Dentro.Font().Points, 14.25 * std::min(x, y));
        // What touches goes on touching, also in whole pixels.
        EXPECT_EQ(WidgetOf(Dentro).geometry().right() + 1, WidgetOf(Accanto).geometry().left());
        EXPECT_EQ(WidgetOf(Linea).geometry(), linea);
    }
}

}  // namespace
}  // namespace trameli
