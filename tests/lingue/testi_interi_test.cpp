// No text is cut off, in any language and on any screen.
#include <gtest/gtest.h>

#include <QMenuBar>
#include <QRegularExpression>

#include "lingue/testi_forniti.h"
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
        Stato& stato = partita.Gioco.Stato();
        stato.Livello = livello;
        stato.RigheGriglia = 15;
        stato.ColonneGriglia = 20;
        partita.Gioco.Forms().Show(nome);
        Pump();
        partita.Tempo.Advance(4);
        Pump();
        ControllaFinestra(partita.Finestra(nome));
    }
}

/// A name of a test has plain letters alone, so a language is its place among them.
std::string NomeCaso(const testing::TestParamInfo<TestiInteri::ParamType>& voce) {
    const PixelSize schermo = std::get<0>(voce.param);
    return std::to_string(schermo.Width) + "x" + std::to_string(schermo.Height) + "Lingua" +
           std::to_string(voce.index % LingueFornite().size());
}

INSTANTIATE_TEST_SUITE_P(Lingue, TestiInteri,
                         testing::Combine(testing::Values(PixelSize{800, 600}, PixelSize{1366, 768},
                                                          PixelSize{1920, 1080}),
                                          testing::ValuesIn(LingueFornite())),
                         NomeCaso);

}  // namespace
}  // namespace trameli
