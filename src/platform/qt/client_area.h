// What a form is made of between its frame, menu and edges.
#pragma once

#include <QWidget>

namespace trameli {

class Form;

/// The area below the menu bar: it carries the form's controls and shows the form's own drawing.
class ClientArea : public QWidget {
public:
    ClientArea(Form& form, QWidget* parent);

    /// Tells the form that it has another size.
    void Resized();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    Form& form_;
};

}  // namespace trameli
