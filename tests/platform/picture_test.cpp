// What controls look like.
#include <QFont>

#include "platform/bare_program.h"
#include "platform/command_button.h"
#include "platform/frame.h"
#include "platform/image.h"
#include "platform/label.h"
#include "platform/line.h"
#include "platform/option_button.h"
#include "platform/shape.h"
#include "platform/status_bar.h"

namespace trameli {
namespace {

constexpr Colour Odd = Rgb(200, 120, 35);
/// Large enough for letters to have pixels of just their colour.
const Font Large{"Arial", 20, true};

class PictureTest : public BareProgram {
protected:
    /// A control's part of the form as it is seen, with what lies under and over it.
    QImage Look(const VisualControl& control) {
        QWidget& window = WindowOf(control.OwnerForm());
        const QWidget& widget = WidgetOf(control);
        Pump();
        return window.grab(QRect(widget.mapTo(&window, QPoint(0, 0)), widget.size())).toImage();
    }
};

TEST_F(PictureTest, ControlsHaveTheirColoursAndArePaleWhereDisabled) {
    Bring();
    const Bounds place{300, 300, 3000, 900};
    CommandButton button(TheForm, "Button", place, "Caption");
    OptionButton option(TheForm, "Option", place, "Caption");
    Label label(TheForm, "Label", place, "Caption");
    Frame frame(TheForm, "Frame", place, "Caption");
    for (VisualControl* control :
         std::initializer_list<VisualControl*>{&frame, &label, &option, &button}) {
        SCOPED_TRACE(control->Name());
        control->Font(Large);
        control->BackColor(White);
        EXPECT_GT(Share(Look(*control), White), 0.6);
        const long black = Count(Look(*control), Black);
        EXPECT_GT(black, 50);
        control->ForeColor(Odd);
        EXPECT_GT(Count(Look(*control), Odd), 50);
        control->ForeColor(Black);
        if (control != &frame) {
            control->Enabled(false);
            EXPECT_EQ(Count(Look(*control), Black), 0) << "disabled texts are pale";
            control->Enabled(true);
        }
        control->Font({"Arial", 12, true});
        EXPECT_LT(Count(Look(*control), Black), black);
        control->Visible(false);
    }
}

TEST_F(PictureTest, TextStandsWhereItsAlignmentSays) {
    Bring();
    Label label(TheForm, "Label", {300, 300, 4500, 1500}, "Text");
    label.BackColor(White);
    label.Font(Large);
    const auto blackColumn = [&](bool last) {
        const QImage image = Look(label);
        for (int i = 0; i < image.width(); ++i) {
            const int x = last ? image.width() - 1 - i : i;
            if (Count(image.copy(x, 0, 1, image.height()), Black) > 0) {
                return x;
            }
        }
        return -1;
    };
    label.TextAlignment(Alignment::Left);
    EXPECT_LT(blackColumn(false), 10);
    label.TextAlignment(Alignment::Right);
    EXPECT_GT(blackColumn(true), 300 - 10);
    label.TextAlignment(Alignment::Centre);
    EXPECT_NEAR((blackColumn(false) + blackColumn(true)) / 2.0, 150, 5);
    label.TextAlignment(Alignment::Left);
    label.Caption("<b>i</b>");
    EXPECT_GT(blackColumn(true), 50) << "markup is text";
    label.Caption("many words that do not fit into one line");
    EXPECT_GT(Count(Look(label).copy(0, 50, 300, 50), Black), 50) << "it wraps at its width";
}

TEST_F(PictureTest, TransparentLabelLetsTheFormsDrawingShow) {
    Bring();
    Surface& canvas = TheForm.Canvas();
    canvas.FillBox(0, 0, 9000, 9000, Odd);
    canvas.DrawLine(0, 450, 9000, 450, Black);
    Label label(TheForm, "Label", {300, 300, 3000, 600}, "");
    label.Font(Large);
    EXPECT_EQ(Count(Look(label), Odd), 0);
    label.Transparent(true);
    EXPECT_EQ(Count(Look(label), Black), 200);
    EXPECT_EQ(Count(Look(label), Odd), 200 * 39);
    label.Caption("Text");
    label.ForeColor(White);
    EXPECT_GT(Count(Look(label), White), 10);
    EXPECT_GT(Share(Look(label), Odd), 0.8);
    // So does what comes under it later; a new ground takes the drawing.
    TheForm.BackColor(Black);
    EXPECT_GT(Share(Look(label), Black), 0.8);
}

TEST_F(PictureTest, ImageIsStretchedAndItsTransparentPartsShowTheDrawing) {
    Bring();
    TheForm.Canvas().FillBox(0, 0, 12000, 9000, Odd);
    Image image(TheForm, "Image", {300, 300, 1500, 1500}, {"sole.svg"});
    const QImage square = Look(image);
    EXPECT_EQ(square.pixel(0, 0), PixelOf(Odd)) << "the corner of the sun's picture is empty";
    EXPECT_LT(Share(square, Odd), 0.8) << "the sun is there";
    // Twice as wide, each column comes twice: what was in the middle is in the middle.
    image.Width(3000);
    const QImage wide = Look(image);
    const QImage again = wide.scaled(square.size(), Qt::IgnoreAspectRatio, Qt::FastTransformation);
    EXPECT_LT(Differences(again, square), square.width() * square.height() / 3);
    EXPECT_NEAR(Share(wide, Odd), Share(square, Odd), 0.05);
    for (const char* none : {"", "no/such.svg"}) {
        image.Picture({none});
        EXPECT_EQ(Share(Look(image), Odd), 1);
    }
    image.Picture({"sole.svg"});
    EXPECT_EQ(Differences(Look(image), wide), 0);
}

TEST_F(PictureTest, ShapesAndLinesLieUnderTheControls) {
    Bring();
    Label label(TheForm, "Label", {2850, 600, 900, 900}, "");
    label.BackColor(White);
    Shape shape(TheForm, "Shape", {300, 300, 3000, 1500}, 4, Odd);
    const QImage outline = Look(shape);
    EXPECT_EQ(Count(outline, Odd), 200 * 100 - 192 * 92 - 4 * 60);
    EXPECT_EQ(outline.pixel(0, 0), PixelOf(Odd));
    shape.BorderColor(Black);
    EXPECT_EQ(Count(Look(shape), Black), 200 * 100 - 192 * 92 - 4 * 60);

    Line line(TheForm, "Line", 300, 900, 3300, 900, 3, Odd);
    EXPECT_EQ(Count(Look(label), White), 60 * 60) << "both go under the label";
    const auto lineSeen = [&] { return static_cast<double>(Count(Shot(TheForm), Odd)); };
    EXPECT_NEAR(lineSeen(), 3 * (200 - 30), 20);
    line.Ends(300, 2400, 3300, 2400);
    EXPECT_NEAR(lineSeen(), 3 * 200, 20);
    line.BorderWidth(9);
    EXPECT_NEAR(lineSeen(), 9 * 200, 60);
    line.BorderColor(Rgb(1, 2, 3));
    EXPECT_EQ(lineSeen(), 0);
}

TEST_F(PictureTest, FrameHasItsBorderOrNot) {
    Bring();
    Frame frame(TheForm, "Frame", {300, 300, 3000, 1500}, "Caption");
    frame.BackColor(White);
    EXPECT_LT(Share(Look(frame), White), 0.99);
    frame.Border(false);
    EXPECT_EQ(Share(Look(frame), White), 1) << "without a border there is no caption either";
}

TEST_F(PictureTest, StatusBarKeepsItsPanelsInANarrowWindow) {
    StatusBar bar(TheForm, "Bar", 1500, {"one", "two", "three"});
    bar.Panel(3, "3 <b>");
    EXPECT_EQ(bar.Panel(1) + bar.Panel(2) + bar.Panel(3), "onetwo3 <b>");
    Bring();
    WindowOf(TheForm).resize(120, 300);
    Pump();
    for (const QWidget* panel : WidgetOf(bar).findChildren<QWidget*>()) {
        EXPECT_TRUE(WidgetOf(bar).rect().contains(panel->geometry()));
    }
}

}  // namespace
}  // namespace trameli
