// Controls that follow the size of their form, from the record of how they were laid out.
#include "scaling/cls_resize.h"

#include <optional>

#include "platform/bare_program.h"
#include "platform/control_array.h"
#include "platform/frame.h"
#include "platform/label.h"
#include "platform/line.h"
#include "platform/picture_box.h"
#include "platform/timer.h"

namespace trameli {
namespace {

/// A form of 6000 by 4500 twips on a screen of 19200 by 14400.
struct Finestra : Form {
    explicit Finestra(trameli::Forms& forms)
        : Form(forms, "Finestra", {6000, 4500}, FormStyle::Windowed) {}

    Timer Orologio{*this, "Orologio", 100};
    Frame Cornice{*this, "Cornice", {120, 1600, 5700, 1400}};
    ControlArray<PictureBox> Dentro{"Dentro"};
    Label Libera{*this, "Libera", {300, 60, 1001, 1500}, "Trameli"};
    Line Linea{*this, "Linea", 100, 4400, 3001, 4000, 1, Black};
    clsResize Ridimensiona;
    std::function<void()> AlCaricamento;

protected:
    void Form_Load() override {
        for (const double left : {100, 200}) {
            Dentro.Add(Cornice, Bounds{left, 50, 80, 40});
        }
        Ridimensiona.SourceForm(*this);
        if (AlCaricamento) {
            AlCaricamento();
        }
    }
    void Form_Resize() override { Ridimensiona.ResizeControls(); }
};

class ClsResizeTest : public testing::Test {
protected:
    ClsResizeTest() {
        Programma.Register("Finestra",
                           [](Forms& forms) { return std::make_unique<Finestra>(forms); });
    }
    Finestra& Carica() { return dynamic_cast<Finestra&>(Programma.Load("Finestra")); }

    static void Misura(Form& form, double larghezza, double altezza) {
        form.Width(larghezza);
        form.Height(altezza);
    }

    HandClock Tempo;
    FixedScreen Schermo{1280, 960};
    Forms Programma{Tempo, Schermo};
};

TEST_F(ClsResizeTest, FirstResizeRecordsAndFurtherOnesGoThereAndBack) {
    Finestra& form = Carica();
    form.Width(6600);  // the first
    EXPECT_EQ(form.Libera.Place(), (Bounds{300, 60, 1001, 1500}));
    const Font carattere = form.Libera.Font();
    // Twice as wide, a third as high; nothing; and back, without a rest.
    Misura(form, 13200, 1500);
    EXPECT_EQ(form.Libera.Place(), (Bounds{600, 20, 2002, 500}));
    EXPECT_EQ(form.Dentro(1).Left(), 400);
    EXPECT_EQ(form.Linea.X2(), 6002);
    EXPECT_DOUBLE_EQ(form.Linea.Y2(), 4000.0 / 3);
    EXPECT_EQ(form.Libera.Font(), carattere);
    Misura(form, 0, 0);
    Misura(form, 7777, 333);
    Misura(form, 6600, 4500);
    EXPECT_EQ(form.Libera.Place(), (Bounds{300, 60, 1001, 1500}));
    EXPECT_EQ(form.Linea.X1(), 100);

    Misura(form, 13200, 4500);
    form.Ridimensiona.ReInitialise();
    Misura(form, 6600, 4500);
    EXPECT_EQ(form.Libera.Width(), 1001);
}

TEST_F(ClsResizeTest, ShareOfTheScreenStandsInItsMiddleAndStartsFromTheDesign) {
    Finestra& form = Carica();
    form.Ridimensiona.SizeFormToScreen(75);
    EXPECT_EQ(form.Width(), 14400);
    EXPECT_EQ(form.Height(), 10800);
    EXPECT_EQ(form.Left(), 2400);
    EXPECT_EQ(form.Top(), 1800);
    EXPECT_EQ(form.Cornice.Place(), (Bounds{288, 3840, 13680, 3360}));
}

}  // namespace
}  // namespace trameli
