#include "platform/qt/graphics.h"

#include <QCursor>
#include <QPainter>
#include <QPixmapCache>
#include <vector>

#include "platform/qt/convert.h"

namespace trameli {

namespace {

constexpr int PointerSize = 32;  // pixels, each way

/// Under 32 pixels the full maze turns to mush, so the small sizes have a drawing of their own.
struct IconDrawing {
    const char* Name;
    std::vector<int> Sizes;  // pixels, each way
};
const IconDrawing IconDrawings[] = {
    {"icona/trameli-small.svg", {16, 24}},
    {"icona/trameli.svg", {32, 48, 64}},
};

QString PathOf(const Picture& picture) {
    return QStringLiteral(":/") + ToQt(picture.Name);
}

QPixmap Rendered(QSvgRenderer& renderer, const QSize& size, double devicePixelRatio) {
    QPixmap pixmap((QSizeF(size) * devicePixelRatio).toSize());
    pixmap.setDevicePixelRatio(devicePixelRatio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    renderer.render(&painter, QRectF(QPointF(0, 0), QSizeF(size)));
    return pixmap;
}

class AccessibleGraphic final : public AccessibleContainer {
public:
    explicit AccessibleGraphic(GraphicWidget* graphic) : AccessibleContainer(graphic) {}

    QString text(QAccessible::Text kind) const override {
        const QString told = AccessibleContainer::text(kind);
        if (kind == QAccessible::Name) {
            return told.isEmpty() ? widget()->toolTip() : told;
        }
        if (kind != QAccessible::Description) {
            return told;
        }
        const auto& seen = static_cast<const GraphicWidget*>(widget())->Seen;
        const QString description = seen ? seen() : told;
        // A tool tip often says the same as the name, which is read out first.
        return description == text(QAccessible::Name) ? QString() : description;
    }

    QAccessible::Role role() const override {
        return Press() ? QAccessible::Button : QAccessible::Graphic;
    }
    QStringList actionNames() const override {
        QStringList names = QAccessibleWidget::actionNames();
        if (Press() && widget()->isEnabled()) {
            names.prepend(pressAction());
        }
        return names;
    }
    void doAction(const QString& name) override {
        if (name == pressAction() && actionNames().contains(name)) {
            Press()();
        } else {
            QAccessibleWidget::doAction(name);
        }
    }

private:
    const std::function<void()>& Press() const {
        return static_cast<const GraphicWidget*>(widget())->Press;
    }
};

/// What `draw` draws, or drew the last time that this key was asked for.
template <typename Draw>
QPixmap Kept(const QString& key, Draw draw) {
    QPixmap pixmap;
    if (!QPixmapCache::find(key, &pixmap)) {
        pixmap = draw();
        QPixmapCache::insert(key, pixmap);
    }
    return pixmap;
}

}  // namespace

void ShownPicture::Set(const Picture& picture) {
    picture_ = picture;
    renderer_.reset();
    drawn_ = QPixmap();
}

QSize ShownPicture::OwnSize() {
    return Empty() ? QSize(0, 0) : Renderer().defaultSize();
}

void ShownPicture::Paint(QPainter& painter, const QRect& target, double devicePixelRatio) {
    if (Empty() || target.isEmpty()) {
        return;
    }
    const QSize wanted = (QSizeF(target.size()) * devicePixelRatio).toSize();
    if (drawn_.size() != wanted) {
        Renderer().setAspectRatioMode(Qt::IgnoreAspectRatio);
        drawn_ = Rendered(Renderer(), target.size(), devicePixelRatio);
    }
    painter.drawPixmap(target.topLeft(), drawn_);
}

QSvgRenderer& ShownPicture::Renderer() {
    if (!renderer_) {
        renderer_ = std::make_unique<QSvgRenderer>(PathOf(picture_));
    }
    return *renderer_;
}

QImage CornerAtOwnSize(const Picture& picture, const QSize& size, double devicePixelRatio) {
    // Sixty bars of a wall show one picture, in two shapes. Drawing all of it would take as long as
    // a frame, and as a rule they show a small part.
    return Kept(QStringLiteral("%1 %2x%3 x %4")
                    .arg(PathOf(picture))
                    .arg(size.width())
                    .arg(size.height())
                    .arg(devicePixelRatio),
                [&] {
                    QSvgRenderer renderer(PathOf(picture));
                    const QSizeF whole = QSizeF(renderer.defaultSize()) * devicePixelRatio;
                    QPixmap pixmap(size.boundedTo(whole.toSize()));
                    if (!pixmap.isNull()) {
                        pixmap.fill(Qt::transparent);
                        QPainter painter(&pixmap);
                        renderer.render(&painter, QRectF(QPointF(0, 0), whole));
                    }
                    return pixmap;
                })
        .toImage();
}

void SetPointer(QWidget& widget, const std::optional<PointerImage>& icon) {
    if (!icon) {
        widget.unsetCursor();
        return;
    }
    // The menu gives its pointer to twenty controls, some of them several times before it is ready.
    const QString path = PathOf(icon->Image);
    const double ratio = widget.devicePixelRatioF();
    const QPixmap image = Kept(QStringLiteral("pointer %1 x %2").arg(path).arg(ratio), [&] {
        QSvgRenderer renderer(path);
        return Rendered(renderer, QSize(PointerSize, PointerSize), ratio);
    });
    widget.setCursor(QCursor(image, icon->HotX, icon->HotY));
}

QIcon WindowIcon() {
    // From the drawings and not from files of pixels: for those the toolkit first loads every
    // plugin for pictures that it has, and the window waits. The larger sizes are for menus and
    // desktops; sent to the screen they would only cost time.
    QIcon icon;
    for (const auto& [drawing, sizes] : IconDrawings) {
        QSvgRenderer renderer(PathOf({drawing}));
        for (const int size : sizes) {
            icon.addPixmap(Rendered(renderer, QSize(size, size), 1));
        }
    }
    return icon;
}

QAccessibleInterface* GraphicWidget::Describe() {
    return new AccessibleGraphic(this);
}

bool GraphicWidget::IsDecoration() const {
    return accessibleName().isEmpty() && toolTip().isEmpty();
}

}  // namespace trameli
