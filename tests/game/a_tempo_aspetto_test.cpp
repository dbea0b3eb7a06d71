// The window of the levels with a clock on screens of all sizes.
#include <QFontMetrics>
#include <QLabel>

#include "game/a_tempo.h"
#include "platform/frame.h"
#include "platform/image.h"
#include "platform/picture_box.h"
#include "platform/status_bar.h"

namespace trameli {
namespace {

class SuOgniSchermo : public testing::TestWithParam<PixelSize> {
protected:
    SuOgniSchermo() {
        // As full as it can be.
        for (int i = 0; i < 4; ++i) {
            Trova<Image>(form_, "Image1", i).Visible(true);
        }
        Trova<CommandButton>(form_, "BottoneAvanti").Visible(true);
        Pump();
    }

    Disco disco_;
    Partita partita_{disco_, GetParam(), 7};
    Form& form_ = partita_.ApriLivello(5);
    Frame& banda_ = Trova<Frame>(form_, "FrameSotto");
    StatusBar& stato_ = Trova<StatusBar>(form_, "StatusBar1");
};

INSTANTIATE_TEST_SUITE_P(Schermi, SuOgniSchermo,
                         testing::Values(PixelSize{800, 600}, PixelSize{1366, 768},
                                         PixelSize{3840, 2160}, PixelSize{1080, 1920}),
                         [](const auto& voce) {
                             return std::to_string(voce.param.Width) + "x" +
                                    std::to_string(voce.param.Height);
                         });

TEST_P(SuOgniSchermo, MazeBandAndStatusFollowEachOther) {
    const Bounds tramelo = Trova<PictureBox>(form_, "pictureTramelo").Place();
    EXPECT_EQ(tramelo, (Bounds{0, 0, form_.Width(), form_.Height() - 1455 - 2 * stato_.Height()}));
    EXPECT_EQ(banda_.Place(), (Bounds{120, tramelo.Height, form_.Width(), 1455}));
    EXPECT_LE(banda_.Top() + banda_.Height(), stato_.Top());
    EXPECT_EQ(Trova<CommandButton>(form_, "BottoneAvanti").Place(),
              (Bounds{form_.Width() - 2 * 1725, 240, 1725, 780}));
    // One ground from the maze to the status bar.
    const QImage vista = Shot(form_);
    const QPoint angolo = WidgetOf(banda_).mapTo(&WindowOf(form_), QPoint(0, 0));
    const int alta = WidgetOf(banda_).height();
    for (const int x : {1, angolo.x() + 2, WindowOf(form_).width() - 2}) {
        for (const int y : {1, alta - 2, alta + 2}) {
            const QPointF punto = QPointF(x, angolo.y() + y) * vista.devicePixelRatio();
            EXPECT_EQ(vista.pixel(punto.toPoint()), Pixel(12648447)) << x << ", " << y;
        }
    }
}

TEST_P(SuOgniSchermo, NothingInTheBandIsCutOrCovered) {
    const QWidget& banda = WidgetOf(banda_);
    const QPoint angolo = banda.mapTo(&WindowOf(form_), QPoint(0, 0));
    const auto widget = banda.findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
    EXPECT_EQ(widget.size(), 5 + 4 + 4);  // suns, cups, the bar with its two ends and the button
    for (const QWidget* uno : widget) {
        const std::string nome = uno->accessibleName().toStdString();
        EXPECT_TRUE(uno->isVisible()) << nome;
        EXPECT_TRUE(banda.rect().contains(uno->geometry())) << nome;
        EXPECT_TRUE(WindowOf(form_).rect().contains(uno->geometry().translated(angolo))) << nome;
        for (const QWidget* altro : widget) {
            EXPECT_TRUE(uno == altro || !uno->geometry().intersects(altro->geometry()))
                << nome << " and " << altro->accessibleName().toStdString();
        }
    }
    EXPECT_EQ(WidgetOf(Trova<Image>(form_, "ImageSole", 4)).accessibleName(), "Sole 5");
}

TEST_P(SuOgniSchermo, TextsAreWhole) {
    EXPECT_EQ(stato_.PanelCount(), 5);
    stato_.Panel(5, "Ripartito da zero 999 volte");
    auto scritte = WidgetOf(stato_).findChildren<QLabel*>();
    scritte += WidgetOf(banda_).findChildren<QLabel*>();
    QStringList testi;
    for (const QLabel* scritta : scritte) {
        const QFontMetrics misure(scritta->font());
        EXPECT_LE(misure.horizontalAdvance(scritta->text()), scritta->contentsRect().width())
            << scritta->text().toStdString();
        EXPECT_LE(misure.ascent() + misure.descent(), scritta->height() + 1)
            << scritta->text().toStdString();
        testi += scritta->text();
    }
    EXPECT_TRUE(testi.contains("lento") && testi.contains("veloce"));
}

}  // namespace
}  // namespace trameli
