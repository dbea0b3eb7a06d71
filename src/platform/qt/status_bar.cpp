#include "platform/status_bar.h"

#include <QEvent>
#include <QLabel>
#include <algorithm>
#include <vector>

#include "base/rounding.h"
#include "platform/qt/convert.h"
#include "platform/qt/native.h"

namespace trameli {

namespace {

constexpr double BarHeight = 375;  // twips

class StatusBarWidget : public QWidget {
public:
    explicit StatusBarWidget(QWidget* parent) : QWidget(parent) {
        setAutoFillBackground(true);
        parent->installEventFilter(this);
    }

    void AddPanel(const QString& text) {
        auto* panel = new QLabel(text, this);
        panel->setTextFormat(Qt::PlainText);
        panel->setFrameStyle(QFrame::Panel | QFrame::Sunken);
        panel->setIndent(fontMetrics().horizontalAdvance(QLatin1Char(' ')));
        Panels.push_back(panel);
    }

    StatusBar* Owner = nullptr;
    double PanelWidth = 0;  // twips
    std::vector<QLabel*> Panels;

protected:
    /// Stays at the lower edge of the form, whatever size that gets.
    bool eventFilter(QObject* object, QEvent* event) override {
        if (event->type() == QEvent::Resize && Owner) {
            Dock();
        }
        return QWidget::eventFilter(object, event);
    }

    void resizeEvent(QResizeEvent*) override {
        if (!Owner || Panels.empty()) {
            return;
        }
        const double wanted = PanelWidth / TwipsPerPixel(Owner->OwnerForm());
        const double width = std::min(wanted, this->width() / static_cast<double>(Panels.size()));
        for (std::size_t i = 0; i < Panels.size(); ++i) {
            const int left = Nearest(static_cast<double>(i) * width);
            const int right = Nearest(static_cast<double>(i + 1) * width);
            Panels[i]->setGeometry(left, 1, right - left - 1, height() - 2);
        }
    }

public:
    void Dock() {
        const Form& form = Owner->OwnerForm();
        Owner->Place({0, form.Height() - BarHeight, form.Width(), BarHeight});
    }
};

}  // namespace

StatusBar::StatusBar(Form& form, ControlName name, double panelWidth,
                     std::initializer_list<const char*> texts)
    : InteractiveControl(form, std::move(name), {0, 0, 0, BarHeight},
                         MakeNative<StatusBarWidget>(form)) {
    auto& widget = WidgetOf<StatusBarWidget>(*this);
    widget.Owner = this;
    widget.PanelWidth = panelWidth;
    for (const char* text : texts) {
        widget.AddPanel(QString::fromUtf8(text));
    }
    widget.Dock();
}

int StatusBar::PanelCount() const {
    return static_cast<int>(WidgetOf<StatusBarWidget>(*this).Panels.size());
}

std::string StatusBar::Panel(int number) const {
    return FromQt(
        WidgetOf<StatusBarWidget>(*this).Panels.at(static_cast<std::size_t>(number - 1))->text());
}

void StatusBar::Panel(int number, const std::string& text) {
    WidgetOf<StatusBarWidget>(*this)
        .Panels.at(static_cast<std::size_t>(number - 1))
        ->setText(ToQt(text));
}

}  // namespace trameli
