// Every window on every screen: whole, in order, and readable.
#include <gtest/gtest.h>

#include <QFontMetrics>
#include <QLabel>
#include <QRadioButton>

#include "game/partita.h"
#include "platform/shape.h"
#include "platform/status_bar.h"

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

void StaTuttoDentro(const Form& form) {
    for (const VisualControl* control : Visibili(form)) {
        const QRect posto = WidgetOf(*control).geometry();
        // The finish picture is cut off by the edge of its box where the finish is on the left.
        EXPECT_TRUE(WidgetOf(*control).parentWidget()->rect().contains(posto) ||
                    control->Name() == "Image2")
            << Nome(*control);
        EXPECT_FALSE(posto.isEmpty()) << Nome(*control);
    }
    // Places have sixteen bits.
    EXPECT_LE(form.Width(), 32767);
    EXPECT_LE(form.Height(), 32767);
}

/// Shapes are there to have options on them; nothing else lies on something else.
void NienteSiCopre(const Form& form) {
    const auto visibili = Visibili(form);
    for (const VisualControl* uno : visibili) {
        for (const VisualControl* altro : visibili) {
            const QWidget& su = WidgetOf(*uno);
            const QWidget& sotto = WidgetOf(*altro);
            const bool figura =
                dynamic_cast<const Shape*>(uno) || dynamic_cast<const Shape*>(altro);
            if (uno != altro && !figura && su.parentWidget() == sotto.parentWidget()) {
                EXPECT_FALSE(su.geometry().intersects(sotto.geometry()))
                    << Nome(*uno) << " and " << Nome(*altro);
            }
        }
    }
}

QString Scritta(const QWidget& widget) {
    if (const auto* bottone = dynamic_cast<const QAbstractButton*>(&widget)) {
        return bottone->text().remove('&');
    }
    const auto* scritta = dynamic_cast<const QLabel*>(&widget);
    return scritta ? scritta->text() : QString();
}

/// Captions fit into their controls in one line, with the circle of an option before them.
void NessunaScrittaTagliata(const Form& form) {
    for (const QWidget* widget : WindowOf(form).findChildren<QWidget*>()) {
        const QString testo = Scritta(*widget);
        if (!widget->isVisible() || testo.isEmpty()) {
            continue;
        }
        const QFontMetrics misure(widget->font());
        const int cerchio =
            dynamic_cast<const QRadioButton*>(widget) ? misure.height() * 2 * 7 / 10 : 0;
        EXPECT_LE(misure.horizontalAdvance(testo) + cerchio, widget->width())
            << testo.toStdString();
        EXPECT_LE(misure.ascent() + misure.descent(), widget->height() + 1) << testo.toStdString();
    }
}

void EIntera(const Form& form) {
    SCOPED_TRACE(form.Name());
    const PixelSize schermo = form.Forms().Screen().Available();
    EXPECT_EQ(WindowOf(form).size(), QSize(schermo.Width, schermo.Height));
    StaTuttoDentro(form);
    NienteSiCopre(form);
    NessunaScrittaTagliata(form);
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
    EXPECT_EQ(Visibili(partita.Finestra("FormMenu")).size(), 1U + 3 + 16 + 1 + 2);

    for (const int livello : {1, 8, 15}) {
        Form& form = partita.ApriLivello(livello);
        const Tavolo tavolo(form, MisureLivelli.at(static_cast<std::size_t>(livello)));
        EIntera(form);
        // All cups and the button, and numbers of four digits.
        for (int i = 0; i < 3; ++i) {
            tavolo.Risolvi();
            Tap(form, Qt::Key_N, Qt::ControlModifier);
        }
        tavolo.Risolvi();
        EXPECT_EQ(tavolo.Coppe(), 4);
        Trova<StatusBar>(form, "StatusBar1").Panel(1, "Una giocatrice");
        Trova<StatusBar>(form, "StatusBar1").Panel(3, "Boing 10000");
        EIntera(form);
        Partita::Scegli(form, "mnuEsci");
    }
}

INSTANTIATE_TEST_SUITE_P(Schermi, Finestre,
                         testing::Values(PixelSize{800, 600}, PixelSize{1366, 768},
                                         PixelSize{3840, 2160}, PixelSize{1080, 1920}),
                         [](const auto& voce) {
                             return std::to_string(voce.param.Width) + "x" +
                                    std::to_string(voce.param.Height);
                         });

}  // namespace
}  // namespace trameli
