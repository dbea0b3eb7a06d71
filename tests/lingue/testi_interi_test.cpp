// No text is cut off and nothing lies on anything else, in any language and on any screen.
#include <gtest/gtest.h>

#include <QApplication>
#include <QMenuBar>
#include <QRegularExpression>

#include "lingue/testi_forniti.h"
#include "platform/command_button.h"
#include "platform/image.h"
#include "platform/shape.h"
#include "platform/status_bar.h"
#include "support/written_text.h"

namespace trameli {
namespace {

/// A text without what tells nothing of its letters.
QString Lettere(QString testo) {
    return testo.remove('&').remove(QRegularExpression("\\s"));
}

/// Everything in the window is written as a whole, on pages that do not show just now as well.
void ControllaFinestra(const Form& form) {
    for (QWidget* widget : WindowOf(form).findChildren<QWidget*>()) {
        if (widget->window() != &WindowOf(form)) {
            continue;  // a menu is as large as it needs to be
        }
        for (const WrittenText& testo : TextsOf(*widget)) {
            EXPECT_TRUE(testo.Whole())
                << widget->objectName().toStdString() << ": " << testo.Text.toStdString();
        }
        if (const auto* barra = qobject_cast<const QMenuBar*>(widget)) {
            for (QAction* voce : barra->actions()) {
                EXPECT_TRUE(barra->rect().contains(barra->actionGeometry(voce)))
                    << voce->text().toStdString();
            }
        }
    }
    for (Control* controllo : form.Controls()) {
        auto* const visto = dynamic_cast<VisualControl*>(controllo);
        PropertyValue valore;
        if (!visto || visto->Get("Caption", valore) != PropertyCode::Done) {
            continue;
        }
        QString scritto;
        for (const WrittenText& testo : TextsOf(WidgetOf(*visto))) {
            scritto += testo.Text;
        }
        const QString voluto = QString::fromStdString(std::get<std::string>(valore));
        EXPECT_TRUE(Lettere(scritto).contains(Lettere(voluto)))
            << visto->Name() << ": " << voluto.toStdString();
    }
}

/// The controls on the form itself are whole, and none covers another one.
void ControllaPosti(const Form& form) {
    EXPECT_LE(std::max(form.Width(), form.Height()), 32767);  // places have sixteen bits
    std::vector<const VisualControl*> visti;
    for (const Control* controllo : form.Controls()) {
        const auto* const visto = dynamic_cast<const VisualControl*>(controllo);
        // Shapes are there to have options on them.
        if (visto && WidgetOf(*visto).isVisible() && !dynamic_cast<const Shape*>(visto)) {
            visti.push_back(visto);
        }
    }
    for (const VisualControl* uno : visti) {
        const QWidget& qui = WidgetOf(*uno);
        // The band, as wide as the window, begins a little to the right.
        EXPECT_TRUE(qui.parentWidget()->rect().contains(qui.geometry()) ||
                    uno->Name() == "FrameSotto")
            << uno->Name();
        EXPECT_FALSE(qui.geometry().isEmpty()) << uno->Name();
        for (const VisualControl* altro : visti) {
            const QWidget& la = WidgetOf(*altro);
            EXPECT_FALSE(uno != altro && qui.parentWidget() == la.parentWidget() &&
                         qui.geometry().intersects(la.geometry()))
                << uno->Name() << " and " << altro->Name();
        }
    }
}

class TestiInteri : public testing::TestWithParam<std::tuple<PixelSize, std::string>> {};

TEST_P(TestiInteri, AreSeenInEachWindow) {
    const auto& [schermo, lingua] = GetParam();
    const Disco disco;
    ScegliLingua(disco, lingua);
    // Capitals take more room.
    disco.Scrivi("_predefinito", FileUtente().Con(RigaMaiuscolo, "True"));
    Partita partita(disco, schermo);
    ASSERT_TRUE(partita.Avvia());
    for (const auto& [nome, livello] : Finestre) {
        SCOPED_TRACE(nome);
        if (std::string(nome) == "frmStampa") {
            continue;  // it opens over a maze alone
        }
        Stato& stato = partita.Gioco.Stato();
        stato.Livello = livello;
        stato.RigheGriglia = 15;
        stato.ColonneGriglia = 20;
        partita.Gioco.Forms().Show(nome);
        Pump();
        partita.Tempo.Advance(4);
        Pump();
        Form& form = partita.Finestra(nome);
        const bool diGioco = form.Name().starts_with("frmTrm");
        if (diGioco) {  // as full as it can be
            Trova<Image>(form, "Image1", 3).Visible(true);
            Trova<CommandButton>(form, "BottoneAvanti").Visible(true);
        }
        ControllaFinestra(form);
        // Elsewhere pages lie on each other, and a name on a cup.
        if (diGioco || form.Name() == "FormMenu" || form.Name() == "FormAvvio") {
            ControllaPosti(form);
        }
        if (form.Name() == "frmTrm3") {
            EXPECT_TRUE(partita.Stampa(form, ControllaFinestra));
        }
    }
}

TEST(BarreDelDesktop, FollowItsLargerFont) {
    const QFont prima = QApplication::font();
    QFont grande = prima;
    grande.setPixelSize(24);
    QApplication::setFont(grande);
    const Disco disco;
    Partita partita(disco, {800, 600});
    Form& form = partita.ApriLivello(15);
    EXPECT_EQ(WindowOf(form).findChild<QMenuBar*>()->font().pixelSize(), 24);
    auto& barra = Trova<StatusBar>(form, "StatusBar1");
    EXPECT_EQ(WidgetOf(barra).font().pixelSize(), 24);
    barra.Panel(4, "Ripartito da zero 10 volte");
    Trova<Image>(form, "Image1", 3).Visible(true);
    ControllaFinestra(form);
    ControllaPosti(form);
    QApplication::setFont(prima);
}

/// A name of a test has plain letters alone, so a language is its place among them.
std::string NomeCaso(const testing::TestParamInfo<TestiInteri::ParamType>& voce) {
    const PixelSize schermo = std::get<0>(voce.param);
    return std::to_string(schermo.Width) + "x" + std::to_string(schermo.Height) + "Lingua" +
           std::to_string(voce.index % LingueFornite().size());
}

INSTANTIATE_TEST_SUITE_P(Schermi, TestiInteri,
                         testing::Combine(testing::Values(PixelSize{3840, 2160},
                                                          PixelSize{1080, 1920}),
                                          testing::Values("italiano")),
                         NomeCaso);
INSTANTIATE_TEST_SUITE_P(Lingue, TestiInteri,
                         testing::Combine(testing::Values(PixelSize{800, 600}, PixelSize{1366, 768},
                                                          PixelSize{1920, 1080}),
                                          testing::ValuesIn(LingueFornite())),
                         NomeCaso);

}  // namespace
}  // namespace trameli
