// The window of the levels with a clock on screens of all sizes.
#include <QAccessible>
#include <QFontMetrics>
#include <QLabel>

#include "game/a_tempo.h"
#include "platform/frame.h"
#include "platform/image.h"
#include "platform/label.h"
#include "platform/picture_box.h"
#include "platform/status_bar.h"

namespace trameli {
namespace {

class SuOgniSchermo : public testing::TestWithParam<PixelSize> {
protected:
    SuOgniSchermo() {
        partita_.ApriLivello(5);
        Form& form = Gioco();
        // As full as it can be.
        for (int i = 0; i < 4; ++i) {
            Trova<Image>(form, "Image1", i).Visible(true);
        }
        Trova<CommandButton>(form, "BottoneAvanti").Visible(true);
        Pump();
    }

    Form& Gioco() { return partita_.Finestra("frmTrm1"); }
    QWidget& Widget(const char* nome, std::optional<int> indice = std::nullopt) {
        return WidgetOf(Trova<VisualControl>(Gioco(), nome, indice));
    }
    std::vector<QWidget*> NellaBanda() {
        std::vector<QWidget*> widget;
        for (int i = 0; i < 5; ++i) {
            widget.push_back(&Widget("ImageSole", i));
        }
        for (int i = 0; i < 4; ++i) {
            widget.push_back(&Widget("Image1", i));
        }
        for (const char* nome : {"HScroll1", "Label1", "Label2", "BottoneAvanti"}) {
            widget.push_back(&Widget(nome));
        }
        return widget;
    }

    Disco disco_;
    Partita partita_{disco_, GetParam(), 7};
};

INSTANTIATE_TEST_SUITE_P(Schermi, SuOgniSchermo,
                         testing::Values(PixelSize{800, 600}, PixelSize{1366, 768},
                                         PixelSize{1920, 1080}, PixelSize{3840, 2160},
                                         PixelSize{1080, 1920}),
                         [](const auto& voce) {
                             return std::to_string(voce.param.Width) + "x" +
                                    std::to_string(voce.param.Height);
                         });

TEST_P(SuOgniSchermo, MazeBandAndStatusFollowEachOther) {
    const auto& banda = Trova<Frame>(Gioco(), "FrameSotto");
    const auto& tramelo = Trova<PictureBox>(Gioco(), "pictureTramelo");
    const auto& stato = Trova<StatusBar>(Gioco(), "StatusBar1");
    EXPECT_EQ(tramelo.Place(),
              (Bounds{0, 0, Gioco().Width(), Gioco().Height() - 1455 - 2 * stato.Height()}));
    EXPECT_EQ(banda.Place(), (Bounds{120, tramelo.Height(), Gioco().Width(), 1455}));
    EXPECT_LE(banda.Top() + banda.Height(), stato.Top());
    EXPECT_EQ(Trova<CommandButton>(Gioco(), "BottoneAvanti").Place(),
              (Bounds{Gioco().Width() - 2 * 1725, 240, 1725, 780}));
    // One ground from the maze to the status bar.
    const QImage vista = Shot(Gioco());
    const QPoint angolo = WidgetOf(banda).mapTo(&WindowOf(Gioco()), QPoint(0, 0));
    const int larga = WindowOf(Gioco()).width();
    const int alta = WidgetOf(banda).height();
    for (const int x : {1, angolo.x() + 2, larga - 2}) {
        for (const int y : {1, alta - 2, alta + 2}) {
            const QPointF punto = QPointF(x, angolo.y() + y) * vista.devicePixelRatio();
            EXPECT_EQ(vista.pixel(punto.toPoint()), Pixel(12648447)) << x << ", " << y;
        }
    }
}

TEST_P(SuOgniSchermo, NothingInTheBandIsCutOrCovered) {
    const QRect finestra = WindowOf(Gioco()).rect();
    const auto widget = NellaBanda();
    for (QWidget* uno : widget) {
        const std::string nome = uno->objectName().toStdString();
        EXPECT_EQ(uno->parentWidget(), &Widget("FrameSotto")) << nome;
        EXPECT_TRUE(uno->isVisible()) << nome;
        EXPECT_TRUE(uno->parentWidget()->rect().contains(uno->geometry())) << nome;
        EXPECT_TRUE(
            finestra.contains(QRect(uno->mapTo(&WindowOf(Gioco()), QPoint(0, 0)), uno->size())))
            << nome;
        for (QWidget* altro : widget) {
            EXPECT_TRUE(uno == altro || !uno->geometry().intersects(altro->geometry()))
                << nome << " and " << altro->objectName().toStdString();
        }
    }
}

TEST_P(SuOgniSchermo, TextsAreWhole) {
    auto& stato = Trova<StatusBar>(Gioco(), "StatusBar1");
    EXPECT_EQ(stato.PanelCount(), 5);
    stato.Panel(5, "Ripartito da zero 999 volte");
    auto scritte = WidgetOf(stato).findChildren<QLabel*>();
    for (const char* nome : {"Label1", "Label2"}) {
        scritte.push_back(dynamic_cast<QLabel*>(&Widget(nome)));
    }
    for (const QLabel* scritta : scritte) {
        const QFontMetrics misure(scritta->font());
        EXPECT_LE(misure.horizontalAdvance(scritta->text()), scritta->contentsRect().width())
            << scritta->text().toStdString();
        EXPECT_LE(misure.ascent() + misure.descent(), scritta->height() + 1)
            << scritta->text().toStdString();
    }
    EXPECT_EQ(Trova<Label>(Gioco(), "Label1").Caption(), "lento");
    EXPECT_EQ(Trova<Label>(Gioco(), "Label2").Caption(), "veloce");
}

TEST_P(SuOgniSchermo, EveryControlHasAName) {
    const auto nome = [&](const char* controllo, std::optional<int> indice = std::nullopt) {
        const auto* detto = QAccessible::queryAccessibleInterface(&Widget(controllo, indice));
        return detto->text(QAccessible::Name).toStdString();
    };
    EXPECT_EQ(nome("HScroll1"), "Velocità");
    EXPECT_EQ(nome("ImageSole", 0), "Sole 1");
    EXPECT_EQ(nome("ImageSole", 4), "Sole 5");
    EXPECT_EQ(nome("Image1", 3), "Coppa 4");
    EXPECT_EQ(nome("BottoneAvanti"), "Avanti");
    EXPECT_EQ(nome("FrameSotto"), "Sotto il tramelo");
}

}  // namespace
}  // namespace trameli
