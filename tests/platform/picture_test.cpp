// What controls look like.
#include "platform/bare_program.h"
#include "platform/check_box.h"
#include "platform/command_button.h"
#include "platform/frame.h"
#include "platform/image.h"
#include "platform/label.h"
#include "platform/option_button.h"
#include "platform/tab_strip.h"
#include "platform/text_box.h"

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

TEST_F(PictureTest, TheFormsDrawingShowsThroughLabelsAndPictures) {
    Bring();
    TheForm.Canvas().FillBox(0, 0, 12000, 9000, Odd);
    Label label(TheForm, "Label", {300, 300, 3000, 600}, "Text");
    label.Font(Large);
    EXPECT_EQ(Count(Look(label), Odd), 0);
    label.Transparent(true);
    EXPECT_GT(Count(Look(label), Black), 10);
    EXPECT_GT(Share(Look(label), Odd), 0.8);

    Image image(TheForm, "Image", {300, 1500, 1500, 1500}, {"sole.svg"});
    const QImage square = Look(image);
    EXPECT_EQ(square.pixel(0, 0), PixelOf(Odd)) << "the corner of the sun's picture is empty";
    EXPECT_LT(Share(square, Odd), 0.8) << "the sun is there";
    image.Width(3000);
    EXPECT_NEAR(Share(Look(image), Odd), Share(square, Odd), 0.05) << "it is stretched";
    image.Picture({"no/such.svg"});
    EXPECT_EQ(Share(Look(image), Odd), 1);
    TheForm.BackColor(White);
    EXPECT_GT(Share(Look(label), White), 0.8) << "a new ground takes the drawing";
}

TEST_F(PictureTest, LettersCanBeReadOnAnyGround) {
    Frame frame(TheForm, "Frame", {300, 300, 6000, 6000}, "Caption");
    OptionButton option(frame, "Option", {300, 600, 3000, 600}, "Caption");
    CheckBox check(frame, "Check", {300, 1200, 3000, 600}, "Caption");
    Label label(frame, "Label", {300, 1800, 3000, 600}, "Caption");
    CommandButton button(frame, "Button", {300, 2400, 3000, 600}, "Caption");
    Label clear(frame, "Clear", {300, 3000, 3000, 600}, "Caption");
    TabStrip tabs(frame, "Tabs", {300, 3600, 3000, 600}, {"Caption"});
    TextBox text(frame, "Text", {300, 4200, 3000, 600});
    text.Text("Caption");
    clear.Transparent(true);
    const std::initializer_list<InteractiveControl*> all{&frame,  &option, &check, &label,
                                                         &button, &clear,  &tabs,  &text};
    Bring();
    frame.SetFocus();
    const struct {
        Colour Ground;
        Colour Letters;
        Colour Seen;
    } rows[] = {
        {White, Black, Black},
        {Black, Black, White},
        {Rgb(0, 0, 160), Black, White},
        {Rgb(255, 128, 0), Black, Black},
        {Rgb(255, 255, 0), White, Black},
        {Black, Odd, Odd},
    };
    for (const auto& row : rows) {
        for (InteractiveControl* control : all) {
            control->Font(Large);
            control->BackColor(row.Ground);
            control->ForeColor(row.Letters);
        }
        clear.BackColor(row.Seen);  // which does not show
        for (InteractiveControl* control : all) {
            EXPECT_GT(Count(Look(*control).copy(40, 0, 160, 40), row.Seen), 50)
                << control->Name() << " on " << row.Ground;
            EXPECT_EQ(control->ForeColor(), row.Letters) << "what was set stays";
        }
    }
}

}  // namespace
}  // namespace trameli
