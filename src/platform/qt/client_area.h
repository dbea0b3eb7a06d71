// What a form is made of between its frame, menu and edges.
#pragma once

#include <QWidget>

#include "platform/qt/accessibility.h"

namespace trameli {

class Form;

/// The area below the menu bar: it carries the form's controls and shows the form's own drawing.
class ClientArea : public QWidget, public SelfDescribing {
public:
    ClientArea(Form& form, QWidget* parent);

    /// Tells the form that it has another size.
    void Resized();

    /// As Form::Announce.
    void Announce(const QString& text);

    QAccessibleInterface* Describe() override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    Form& form_;
};

}  // namespace trameli
