#include "platform/list_box.h"

#include <QListView>
#include <QMouseEvent>
#include <QPainter>
#include <QStandardItemModel>

#include "platform/qt/control_events.h"
#include "platform/qt/drawing.h"
#include "platform/qt/native.h"

namespace trameli {

namespace {

class ListWidget : public QListView {
public:
    explicit ListWidget(QWidget* parent) : QListView(parent) {
        setModel(new QStandardItemModel(this));
        setEditTriggers(NoEditTriggers);
        setSelectionMode(SingleSelection);
        setFocusPolicy(Qt::StrongFocus);
        setFrameStyle(QFrame::Box);
        setLineWidth(FocusRing);
        setContextMenuPolicy(Qt::NoContextMenu);
    }

    /// The player chose the entry shown as chosen now.
    std::function<void()> ChosenByHand;

    int Chosen() const {
        const QModelIndexList selected = selectedIndexes();
        return selected.isEmpty() ? -1 : selected.front().row();
    }

    void Choose(int index) {
        byHand_ = false;
        if (index < 0) {
            clearSelection();
            setCurrentIndex(QModelIndex());
        } else {
            setCurrentIndex(model()->index(index, 0));
        }
        byHand_ = true;
    }

protected:
    bool event(QEvent* event) override {
        if (event->type() != QEvent::Paint) {
            return QListView::event(event);
        }
        QPainter painter(this);
        painter.fillRect(rect(), palette().color(QPalette::Base));
        painter.setPen(EdgeOf(palette().color(QPalette::Base)));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
        PaintFocusRing(*this);
        return true;
    }

    /// Nothing takes the choice away: no click beside the entries, and none with Ctrl.
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent*) const override {
        return index.isValid() ? QItemSelectionModel::ClearAndSelect
                               : QItemSelectionModel::NoUpdate;
    }

    void mousePressEvent(QMouseEvent* event) override {
        const int before = Chosen();
        QListView::mousePressEvent(event);
        const QModelIndex pressed = indexAt(event->position().toPoint());
        if (event->button() == Qt::LeftButton && pressed.isValid() && pressed.row() == before) {
            Tell();
        }
    }

    void selectionChanged(const QItemSelection& now, const QItemSelection& before) override {
        QListView::selectionChanged(now, before);
        if (byHand_ && !now.isEmpty()) {
            Tell();
        }
    }

private:
    void Tell() const {
        if (ChosenByHand) {
            ChosenByHand();
        }
    }

    bool byHand_ = true;
};

}  // namespace

ListBox::ListBox(Container& container, ControlName name, const Bounds& bounds)
    : ListControl(container, std::move(name), bounds, MakeNative<ListWidget>(container)) {
    BackColor(White);
    auto& widget = WidgetOf<ListWidget>(*this);
    new ControlEvents(*this, widget.viewport());  // the pointer is over that, not over the widget
    widget.ChosenByHand = [this] { Fire(*this, Click); };
}

int ListBox::Chosen() const {
    return WidgetOf<ListWidget>(*this).Chosen();
}

void ListBox::Choose(int index) {
    WidgetOf<ListWidget>(*this).Choose(index);
}

}  // namespace trameli
