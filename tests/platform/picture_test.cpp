// What controls look like.
#include <QFont>

#include "platform/bare_program.h"
#include "platform/combo_box.h"
#include "platform/command_button.h"
#include "platform/frame.h"
#include "platform/image.h"
#include "platform/label.h"
#include "platform/line.h"
#include "platform/option_button.h"
#include "platform/picture_box.h"
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

TEST_F(PictureTest, ControlsHaveJustTheirColours) {
    Bring();
    const Bounds place{300, 300, 3000, 1500};
    CommandButton button(TheForm, "Button", place);
    OptionButton option(TheForm, "Option", place, "");
    Label label(TheForm, "Label", place, "");
    Frame frame(TheForm, "Frame", place);
    PictureBox box(TheForm, "Box", place);
    VisualControl* const controls[] = {&button, &option, &label, &frame, &box};
    for (VisualControl* control : controls) {
        for (VisualControl* other : controls) {
            other->Visible(other == control);
        }
        for (const Colour colour : {Odd, White, Black}) {
            control->BackColor(colour);
            EXPECT_EQ(control->BackColor(), colour);
            EXPECT_GT(Share(Look(*control), colour), 0.7) << control->Name() << " " << colour;
        }
    }
    TheForm.BackColor(Odd);
    button.Visible(false);
    label.Visible(false);
    box.Visible(false);
    EXPECT_GT(Share(Shot(TheForm), Odd), 0.9);
}

TEST_F(PictureTest, CaptionsAreThereInTheirColourAndPaleWhereDisabled) {
    Bring();
    const Bounds place{300, 300, 3000, 900};
    CommandButton button(TheForm, "Button", place, "Caption");
    OptionButton option(TheForm, "Option", place, "Caption");
    Label label(TheForm, "Label", place, "Caption");
    Frame frame(TheForm, "Frame", place, "Caption");
    VisualControl* const controls[] = {&button, &option, &label, &frame};
    for (VisualControl* control : controls) {
        for (VisualControl* other : controls) {
            other->Visible(other == control);
        }
        SCOPED_TRACE(control->Name());
        control->Font(Large);
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
    }
    frame.Visible(false);
    button.Visible(true);
    const QImage named = Look(button);
    button.Caption("");
    EXPECT_GT(Differences(Look(button), named), 20);
}

TEST_F(PictureTest, TextStandsWhereItsAlignmentSays) {
    Bring();
    Label label(TheForm, "Label", {300, 300, 4500, 600}, "Text");
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
    // It wraps at its width, and takes no markup for such.
    label.Caption("<b>many words that do not fit into one line of this label</b>");
    EXPECT_GT(blackColumn(true), 150);
}

TEST_F(PictureTest, TransparentLabelLetsTheFormsDrawingShow) {
    Bring();
    Surface& canvas = TheForm.Canvas();
    canvas.FillBox(0, 0, 9000, 9000, Odd);
    canvas.DrawLine(0, 450, 9000, 450, Black);
    Label label(TheForm, "Label", {300, 300, 3000, 600}, "");
    label.Font(Large);
    EXPECT_EQ(Count(Look(label), Odd), 0);
    const QImage opaque = Look(label);
    label.Transparent(true);
    const QImage bare = Look(label);
    EXPECT_EQ(Count(bare, Black), 200);
    EXPECT_EQ(Count(bare, Odd), 200 * 39);
    label.Caption("Text");
    label.ForeColor(White);
    const QImage text = Look(label);
    EXPECT_GT(Count(text, White), 10);
    EXPECT_GT(Share(text, Odd), 0.8);
    // What is drawn under it later shows as well.
    canvas.Cls();
    EXPECT_EQ(Count(Look(label), Odd), 0);
    label.Transparent(false);
    label.Caption("");
    EXPECT_EQ(Differences(Look(label), opaque), 0);
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
    image.Picture({});
    EXPECT_EQ(Share(Look(image), Odd), 1);
    image.Picture({"no/such.svg"});
    EXPECT_EQ(Share(Look(image), Odd), 1);
    image.Picture({"sole.svg"});
    image.Place({300, 300, 0, 0});
    image.Place({300, 300, 1500, 1500});
    EXPECT_EQ(Differences(Look(image), square), 0);
}

TEST_F(PictureTest, ButtonShowsItsPictureInItsOwnProportions) {
    Bring();
    CommandButton button(TheForm, "Button", {300, 300, 4500, 1500});
    const QImage bare = Look(button);
    button.Picture({"sole.svg"});
    const QImage face = Look(button);
    EXPECT_GT(Differences(face, bare), 1000);
    // A square picture on a broad button leaves its sides alone.
    EXPECT_EQ(Differences(face.copy(0, 0, 100, 100), bare.copy(0, 0, 100, 100)), 0);
    EXPECT_EQ(Differences(face.copy(200, 0, 100, 100), bare.copy(200, 0, 100, 100)), 0);
    button.Caption("Caption");
    EXPECT_GT(Differences(Look(button), face), 200);
}

TEST_F(PictureTest, PictureBoxKeepsItsDrawingUnderItsControls) {
    Bring();
    PictureBox box(TheForm, "Box", {300, 300, 3000, 1500});
    Label label(box, "Label", {150, 150, 600, 300}, "");
    label.BackColor(White);
    box.FillBox(0, 0, 1500, 1500, Odd);
    const QImage before = Look(box);
    EXPECT_EQ(Count(before, Odd), 100 * 100 - 40 * 20);
    EXPECT_EQ(Count(before, White), 40 * 20);
    // It comes back whole after it was covered, hidden or moved.
    Bring("B");
    Program.Unload(Get("B"));
    box.Visible(false);
    EXPECT_EQ(Count(Look(box), Odd), 0);
    box.Visible(true);
    EXPECT_EQ(Differences(Look(box), before), 0);
    box.Left(1200);
    EXPECT_EQ(Differences(Look(box), before), 0);
    box.Width(6000);
    EXPECT_EQ(Count(Look(box), Odd), 100 * 100 - 40 * 20);
    box.BackColor(ButtonFace);
    EXPECT_EQ(Count(Look(box), Odd), 0);
}

TEST_F(PictureTest, ShapesAndLinesLieUnderTheControls) {
    Bring();
    Label label(TheForm, "Label", {600, 600, 900, 900}, "");
    label.BackColor(White);
    Shape shape(TheForm, "Shape", {300, 300, 3000, 1500}, 4, Odd);
    const QImage outline = Look(shape);
    EXPECT_EQ(Count(outline, Odd), 200 * 100 - 192 * 92);
    EXPECT_EQ(outline.pixel(0, 0), PixelOf(Odd));
    shape.BorderColor(Black);
    EXPECT_EQ(Count(Look(shape), Black), 200 * 100 - 192 * 92);
    EXPECT_EQ(Count(Look(label), White), 60 * 60);

    Line line(TheForm, "Line", 300, 900, 3300, 900, 3, Odd);
    EXPECT_EQ(Count(Look(label), White), 60 * 60) << "the line goes under the label";
    const QImage form = Shot(TheForm);
    EXPECT_NEAR(static_cast<double>(Count(form, Odd)), 3 * (200 - 60), 20);
    line.Ends(300, 2400, 3300, 2400);
    EXPECT_NEAR(static_cast<double>(Count(Shot(TheForm), Odd)), 3 * 200, 20);
    line.BorderWidth(9);
    EXPECT_NEAR(static_cast<double>(Count(Shot(TheForm), Odd)), 9 * 200, 60);
    line.BorderColor(Rgb(1, 2, 3));
    EXPECT_EQ(Count(Shot(TheForm), Odd), 0);
}

TEST_F(PictureTest, FrameHasItsBorderOrNot) {
    Bring();
    Frame frame(TheForm, "Frame", {300, 300, 3000, 1500}, "Caption");
    frame.BackColor(White);
    EXPECT_LT(Share(Look(frame), White), 0.99);
    frame.Border(false);
    EXPECT_EQ(Share(Look(frame), White), 1) << "without a border there is no caption either";
}

TEST_F(PictureTest, StatusBarDocksAtTheLowerEdge) {
    StatusBar bar(TheForm, "Bar", 1500, {"one", "two", "three"});
    EXPECT_EQ(bar.PanelCount(), 3);
    EXPECT_EQ(bar.Panel(2), "two");
    bar.Panel(3, "3 <b>");
    EXPECT_EQ(bar.Panel(3), "3 <b>");
    Bring();
    for (const QSize size : {QSize(800, 600), QSize(500, 400), QSize(120, 300), QSize(900, 500)}) {
        WindowOf(TheForm).resize(size);
        Pump();
        EXPECT_EQ(bar.Left(), 0);
        EXPECT_EQ(bar.Width(), TheForm.Width());
        EXPECT_EQ(bar.Top() + bar.Height(), TheForm.Height());
        const auto panels = WidgetOf(bar).findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
        ASSERT_EQ(panels.size(), 3);
        for (int i = 0; i < 3; ++i) {
            EXPECT_TRUE(WidgetOf(bar).rect().contains(panels[i]->geometry()));
            EXPECT_NEAR(panels[i]->width(), std::min(100, size.width() / 3), 2);
            if (i > 0) {
                EXPECT_GT(panels[i]->x(), panels[i - 1]->geometry().right());
            }
        }
    }
    bar.Font(Large);
    EXPECT_GT(Count(Look(bar), Black), 50) << "the texts";
}

TEST_F(PictureTest, ListShowsItsChoice) {
    Bring();
    ComboBox combo(TheForm, "Combo", {300, 300, 3000, 450});
    combo.AddItem("MMMMMMMM");
    const QImage none = Look(combo);
    combo.ListIndex(0);
    EXPECT_GT(Differences(Look(combo), none), 50);
}

}  // namespace
}  // namespace trameli
