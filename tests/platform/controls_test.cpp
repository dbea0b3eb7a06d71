// Clicks.
#include <QTest>

#include "platform/bare_program.h"
#include "platform/command_button.h"
#include "platform/frame.h"
#include "platform/image.h"
#include "platform/label.h"

namespace trameli {
namespace {

using Names = std::vector<std::string>;

class ControlsTest : public BareProgram {};

TEST_F(ControlsTest, MouseClicksWhatIsEnabledAndOnlyInside) {
    Frame frame(TheForm, "Frame", {0, 0, 9000, 6000});
    CommandButton button(frame, "Button", {300, 300, 1500, 600}, "Button");
    Label label(frame, "Label", {300, 1200, 1500, 600}, "Label");
    Image image(frame, "Image", {300, 2100, 1500, 600}, {"sole.svg"});
    button.Click = Noting("Button");
    label.Click = Noting("Label");
    image.Click = Noting("Image");
    Bring();
    for (InteractiveControl* control :
         std::initializer_list<InteractiveControl*>{&button, &label, &image}) {
        QWidget& widget = WidgetOf(*control);
        QWindow* window = WindowOf(TheForm).windowHandle();
        const QPoint middle = widget.mapTo(&WindowOf(TheForm), widget.rect().center());
        Seen.clear();
        QTest::mouseClick(window, Qt::RightButton, Qt::NoModifier, middle);
        // Pressed here and let go elsewhere is no click.
        QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, middle);
        QTest::mouseMove(window, middle + QPoint(300, 0));
        QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, middle + QPoint(300, 0));
        for (InteractiveControl* off : {control, static_cast<InteractiveControl*>(&frame)}) {
            off->Enabled(false);
            ClickOn(*control);
            off->Enabled(true);
        }
        EXPECT_EQ(Seen, Names{});
        ClickOn(*control);
        EXPECT_EQ(Seen, Names{control->Name()});
    }
}

}  // namespace
}  // namespace trameli
