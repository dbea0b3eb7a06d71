#include "platform/tab_strip.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <QTabBar>
#include <algorithm>

#include "platform/property_access.h"
#include "platform/qt/accessible_tabs.h"
#include "platform/qt/convert.h"
#include "platform/qt/drawing.h"
#include "platform/qt/native.h"

namespace trameli {

namespace {

/// Round the text of a tab, in pixels.
constexpr int Beside = 14;
constexpr int Above = 6;
/// By how much the tabs that are not selected are lower.
constexpr int Step = 3;
constexpr double Corner = 6;

/// The toolkit's row of tabs, as large as tabs and pages together: drawn here so that tabs and the
/// ground of the pages are one.
class TabWidget : public QTabBar, public SelfDescribing {
public:
    explicit TabWidget(QWidget* parent) : QTabBar(parent) {
        setDrawBase(false);
        setExpanding(false);
        setUsesScrollButtons(false);
        setElideMode(Qt::ElideNone);
        setFocusPolicy(Qt::StrongFocus);
    }

    QAccessibleInterface* Describe() override { return new AccessibleTabs(this); }

protected:
    /// Where all of them together would be too wide, each gives up the same part.
    QSize tabSizeHint(int index) const override {
        int all = 0;
        for (int i = 0; i < count(); ++i) {
            all += WidthOf(i);
        }
        const int own = WidthOf(index);
        return {all <= width() ? own : own * width() / all,
                fontMetrics().height() + 2 * Above + Step};
    }
    QSize minimumTabSizeHint(int index) const override { return tabSizeHint(index); }

    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const QColor face = palette().color(QPalette::Window);
        const int row = count() > 0 ? tabRect(0).height() : 0;
        const QRectF ground = QRectF(rect()).adjusted(0.5, row - 0.5, -0.5, -0.5);
        painter.setPen(EdgeOf(face));
        painter.setBrush(face);
        painter.drawRect(ground);
        for (int i = 0; i < count(); ++i) {
            if (i != currentIndex()) {
                PaintTab(painter, i, face);
            }
        }
        if (currentIndex() >= 0) {
            PaintTab(painter, currentIndex(), face);
        }
    }

    void resizeEvent(QResizeEvent* event) override {
        QTabBar::resizeEvent(event);
        // The toolkit lays the tabs out anew only when one of them changes.
        if (count() > 0) {
            setTabText(0, tabText(0));
        }
    }

    void keyPressEvent(QKeyEvent* event) override {
        if (event->key() == Qt::Key_Home || event->key() == Qt::Key_End) {
            setCurrentIndex(event->key() == Qt::Key_Home ? 0 : count() - 1);
        } else {
            QTabBar::keyPressEvent(event);
        }
    }

    /// The wheel scrolls what lies on the pages, if anything; it turns no page.
    void wheelEvent(QWheelEvent* event) override { event->ignore(); }

private:
    int WidthOf(int index) const {
        return fontMetrics().size(Qt::TextShowMnemonic, tabText(index)).width() + 2 * Beside;
    }

    void PaintTab(QPainter& painter, int index, const QColor& face) const {
        const bool selected = index == currentIndex();
        const QRectF tab =
            QRectF(tabRect(index))
                .adjusted(0.5, selected ? 0.5 : Step + 0.5, -0.5, selected ? 0.5 : -0.5);
        QPainterPath outline;
        outline.moveTo(tab.bottomLeft());
        outline.lineTo(tab.left(), tab.top() + Corner);
        outline.quadTo(tab.topLeft(), QPointF(tab.left() + Corner, tab.top()));
        outline.lineTo(tab.right() - Corner, tab.top());
        outline.quadTo(tab.topRight(), QPointF(tab.right(), tab.top() + Corner));
        outline.lineTo(tab.bottomRight());
        painter.fillPath(outline, selected ? face : face.darker(112));
        painter.setPen(EdgeOf(face));
        painter.setBrush(Qt::NoBrush);
        painter.drawPath(outline);

        painter.setPen(InkOf(*this));
        painter.drawText(tab, Qt::AlignCenter | Qt::TextShowMnemonic, tabText(index));
        if (selected && hasFocus()) {
            PaintFocusRing(painter, tab.toRect().adjusted(3, 3, -3, -2), face);
        }
    }
};

}  // namespace

TabStrip::TabStrip(Container& container, ControlName name, const Bounds& bounds,
                   const std::vector<std::string>& captions)
    : InteractiveControl(container, std::move(name), bounds, MakeNative<TabWidget>(container)) {
    auto& widget = WidgetOf<TabWidget>(*this);
    for (const std::string& caption : captions) {
        widget.addTab(ToQt(caption));
    }
    QObject::connect(&widget, &QTabBar::currentChanged, [this] { Fire(*this, Click); });
}

int TabStrip::Tabs() const {
    return WidgetOf<TabWidget>(*this).count();
}

std::string TabStrip::TabCaption(int index) const {
    return FromQt(WidgetOf<TabWidget>(*this).tabText(index));
}

void TabStrip::TabCaption(int index, const std::string& caption) {
    WidgetOf<TabWidget>(*this).setTabText(index, ToQt(caption));
}

int TabStrip::SelectedTab() const {
    return WidgetOf<TabWidget>(*this).currentIndex() + 1;
}

void TabStrip::SelectedTab(int number) {
    WidgetOf<TabWidget>(*this).setCurrentIndex(number - 1);
}

void TabStrip::Properties(PropertyAccess& access) {
    access.At("Tabs", *this, &TabStrip::Tabs);
    access.Row("TabCaption", Tabs(), *this, &TabStrip::TabCaption, &TabStrip::TabCaption);
    access.At("SelectedTab", *this, &TabStrip::SelectedTab, &TabStrip::SelectedTab);
    InteractiveControl::Properties(access);
}

}  // namespace trameli
