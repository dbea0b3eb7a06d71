// Every window on every screen: whole and in order.
#include <gtest/gtest.h>

#include <algorithm>

#include "game/partita.h"
#include "platform/command_button.h"
#include "platform/image.h"
#include "platform/shape.h"

namespace trameli {
namespace {

std::string Nome(const VisualControl& control) {
    return control.Name() + (control.Index() ? std::to_string(*control.Index()) : "");
}

/// The controls that lie on the form itself and can be seen.
std::vector<const VisualControl*> Visibili(const Form& form) {
    std::vector<const VisualControl*> visibili;
    for (const Control* control : form.Controls()) {
        const auto* visual = dynamic_cast<const VisualControl*>(control);
        if (visual && WidgetOf(*visual).isVisible()) {
            visibili.push_back(visual);
        }
    }
    return visibili;
}

void EIntera(const Form& form) {
    SCOPED_TRACE(form.Name());
    const PixelSize schermo = form.Forms().Screen().Available();
    EXPECT_EQ(WindowOf(form).size(), QSize(schermo.Width, schermo.Height));
    EXPECT_LE(std::max(form.Width(), form.Height()), 32767);  // places have sixteen bits
    const auto visibili = Visibili(form);
    for (const VisualControl* uno : visibili) {
        const QWidget& su = WidgetOf(*uno);
        // The finish picture is cut off by the edge of its box where the finish is on the left; the
        // band, as wide as the window, begins a little to the right.
        EXPECT_TRUE(su.parentWidget()->rect().contains(su.geometry()) || uno->Name() == "Image2" ||
                    uno->Name() == "FrameSotto")
            << Nome(*uno);
        EXPECT_FALSE(su.geometry().isEmpty()) << Nome(*uno);
        for (const VisualControl* altro : visibili) {
            const QWidget& sotto = WidgetOf(*altro);
            // Shapes are there to have options on them.
            if (uno != altro && su.parentWidget() == sotto.parentWidget() &&
                !dynamic_cast<const Shape*>(uno) && !dynamic_cast<const Shape*>(altro)) {
                EXPECT_FALSE(su.geometry().intersects(sotto.geometry()))
                    << Nome(*uno) << " and " << Nome(*altro);
            }
        }
    }
}

class Finestre : public testing::TestWithParam<PixelSize> {};

TEST_P(Finestre, AreWholeOnEveryScreen) {
    const Disco disco;
    disco.Scrivi("Una giocatrice dal nome lungo");
    disco.Scrivi("_predefinito", FileUtente().Con(RigaMaiuscolo, "True"));
    Partita partita(disco, GetParam());
    ASSERT_TRUE(partita.Avvia());
    EIntera(partita.Finestra("FormAvvio"));
    ClickOn(Trova<VisualControl>(partita.Finestra("FormAvvio"), "Command1"));
    partita.Tempo.Advance(0.3);
    EIntera(partita.Finestra("FormMenu"));

    for (const int livello : {1, 6, 8, 15}) {
        Form& form = partita.ApriLivello(livello);
        // As full as it can be.
        for (int i = 0; i < 4; ++i) {
            Trova<Image>(form, "Image1", i).Visible(true);
        }
        Trova<CommandButton>(form, "BottoneAvanti").Visible(true);
        Pump();
        EIntera(form);
        Partita::Scegli(form, "mnuEsci");
    }
}

INSTANTIATE_TEST_SUITE_P(Schermi, Finestre,
                         testing::Values(PixelSize{800, 600}, PixelSize{1366, 768},
                                         PixelSize{3840, 2160}, PixelSize{1080, 1920}),
                         NomeSchermo);

}  // namespace
}  // namespace trameli
