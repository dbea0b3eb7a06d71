#include "platform/status_bar.h"

#include <QEvent>
#include <QLabel>
#include <algorithm>
#include <vector>

#include "base/rounding.h"
#include "platform/qt/accessibility.h"
#include "platform/qt/bar_font.h"
#include "platform/qt/convert.h"
#include "platform/qt/native.h"

namespace trameli {

namespace {

constexpr double LeastHeight = 375;  // twips
constexpr int RoundTheLetters = 6;   // pixels of a panel's edges and of the space within, in all

class StatusBarWidget : public QWidget, public SelfDescribing {
public:
    StatusBarWidget(double twipsPerPixel, QWidget* parent)
        : QWidget(parent), twipsPerPixel_(twipsPerPixel) {
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

    QAccessibleInterface* Describe() override {
        return new AccessibleContainer(this, QAccessible::StatusBar);
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

    void resizeEvent(QResizeEvent*) override { LayOut(); }

public:
    void Dock() {
        const Form& form = Owner->OwnerForm();
        const double height =
            std::max(LeastHeight, (fontMetrics().height() + RoundTheLetters) * twipsPerPixel_);
        Owner->Place({0, form.Height() - height, form.Width(), height});
    }

    /// Gives every panel its place.
    void LayOut() {
        double left = 0;
        const std::vector<double> widths = Widths();
        for (std::size_t i = 0; i < Panels.size(); ++i) {
            const double right = left + widths[i];
            Panels[i]->setGeometry(Nearest(left), 1, Nearest(right) - Nearest(left) - 1,
                                   height() - 2);
            left = right;
        }
    }

private:
    /// How wide the panels are: as wide as is wanted, all alike, or as their text needs.
    std::vector<double> Widths() const {
        const double all = width();
        const double alike =
            std::min(PanelWidth / twipsPerPixel_, all / static_cast<double>(Panels.size()));
        std::vector<double> widths;
        double excess = -all;
        for (const QLabel* panel : Panels) {
            widths.push_back(std::max(alike, Needed(*panel)));
            excess += widths.back();
        }
        for (std::size_t i = 0; i < Panels.size() && excess > 0; ++i) {
            const double given = std::min(excess, widths[i] - Needed(*Panels[i]));
            widths[i] -= given;
            excess -= given;
        }
        if (excess > 0) {
            // A name of any length, as a rule: the others can still be read.
            double& longest = *std::max_element(widths.begin(), widths.end());
            longest = std::max(0.0, longest - excess);
        }
        return widths;
    }
    static double Needed(const QLabel& panel) { return panel.sizeHint().width() + 1; }

    double twipsPerPixel_;
};

}  // namespace

StatusBar::StatusBar(Form& form, ControlName name, double panelWidth,
                     std::initializer_list<const char*> texts)
    : InteractiveControl(form, std::move(name), {0, 0, 0, LeastHeight},
                         MakeNative<StatusBarWidget>(form, TwipsPerPixel(form))) {
    auto& widget = WidgetOf<StatusBarWidget>(*this);
    widget.Owner = this;
    // That of labels: for status bars some desktops have a smaller one than for all else.
    widget.setFont(BarFont(TwipsPerPixel(form), "QLabel"));
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
    auto& widget = WidgetOf<StatusBarWidget>(*this);
    widget.Panels.at(static_cast<std::size_t>(number - 1))->setText(ToQt(text));
    widget.LayOut();
}

}  // namespace trameli
