#include "support/written_text.h"

#include <QFontMetricsF>
#include <QImage>
#include <QPaintEngine>
#include <QPainterPath>

namespace trameli {

namespace {

/// Listens to a painter. Everything but letters and clipping passes by.
class Listener final : public QPaintEngine {
public:
    explicit Listener(QSize size) : QPaintEngine(AllFeatures), whole_(QPoint(), size) {}

    std::vector<WrittenText> Heard;

    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    Type type() const override { return User; }

    void updateState(const QPaintEngineState& changed) override {
        if (changed.state() & DirtyTransform) {
            transform_ = changed.transform();
        }
        if (changed.state() & DirtyClipRegion) {
            Clip(changed.clipOperation(), changed.clipRegion().boundingRect());
        }
        if (changed.state() & DirtyClipPath) {
            Clip(changed.clipOperation(), changed.clipPath().boundingRect());
        }
    }

    void drawTextItem(const QPointF& where, const QTextItem& item) override {
        const QRectF ink = transform_.mapRect(
            QFontMetricsF(item.font()).tightBoundingRect(item.text()).translated(where));
        // The same once more, moved a little, covers it: what was under it is the letters' rim.
        std::erase_if(Heard, [&](const WrittenText& under) {
            return under.Text == item.text() && under.Ink.intersects(ink);
        });
        Heard.push_back({item.text(), ink, clip_ & whole_});
    }

    void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}
    void drawPath(const QPainterPath&) override {}
    void drawPolygon(const QPointF*, int, PolygonDrawMode) override {}

private:
    void Clip(Qt::ClipOperation operation, const QRectF& area) {
        const QRectF there = transform_.mapRect(area);
        clip_ = operation == Qt::NoClip          ? whole_
                : operation == Qt::IntersectClip ? clip_ & there
                                                 : there;
    }

    QRectF whole_;
    QRectF clip_ = whole_;
    QTransform transform_;
};

class Paper final : public QImage {
public:
    explicit Paper(QSize size) : QImage(size, Format_RGB32), listener_(size) {}

    QPaintEngine* paintEngine() const override { return &listener_; }
    std::vector<WrittenText>& Heard() { return listener_.Heard; }

private:
    mutable Listener listener_;
};

}  // namespace

std::vector<WrittenText> TextsOf(QWidget& widget) {
    Paper paper(widget.size().expandedTo({1, 1}));
    widget.render(&paper, {}, {}, QWidget::RenderFlags());
    // What lies beyond the edge of anything below cannot be seen either.
    QRectF shown = widget.rect();
    for (const QWidget* below = &widget; !below->isWindow(); below = below->parentWidget()) {
        shown = shown.translated(below->pos()) & QRectF(below->parentWidget()->rect());
    }
    const QPointF place = widget.mapTo(widget.window(), QPointF(0, 0));
    for (WrittenText& text : paper.Heard()) {
        text.Ink.translate(place);
        text.Shown = text.Shown.translated(place) & shown;
    }
    return std::move(paper.Heard());
}

}  // namespace trameli
