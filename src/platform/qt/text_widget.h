// The widget of a text box.
#pragma once

#include <QLineEdit>
#include <functional>

#include "platform/text_box.h"

namespace trameli {

class AskingValidator;

/// A line of text that asks its control for each character.
class TextWidget : public QLineEdit {
public:
    explicit TextWidget(QWidget* parent);

    TextBox* Owner = nullptr;
    AskingValidator* Validator = nullptr;
    /// What the up and down keys do, told 1 for up and -1 for down.
    std::function<void(int)> Count;

    /// Whether what changes is changed by the keyboard.
    bool ByKey = false;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QString LetThrough(const QString& typed) const;
};

}  // namespace trameli
