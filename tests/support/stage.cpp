#include "support/stage.h"

#include <QApplication>
#include <QPointer>
#include <QTest>
#include <QWindow>
#include <fstream>
#include <iterator>

#include "platform/qt/form_window.h"
#include "platform/qt/native.h"

namespace trameli {

void Pump() {
    // What one round of events posts, the next one serves.
    for (int round = 0; round < 3; ++round) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents(QEventLoop::AllEvents);
    }
}

QWidget& WindowOf(const Form& form) {
    return form.NativePart().Window;
}

QWidget& WidgetOf(const VisualControl& control) {
    return *control.NativePart().Widget;
}

void Press(Form& form, int key, Qt::KeyboardModifiers modifiers) {
    QTest::keyPress(WindowOf(form).windowHandle(), static_cast<Qt::Key>(key), modifiers);
    Pump();
}

void Release(Form& form, int key, Qt::KeyboardModifiers modifiers) {
    QTest::keyRelease(WindowOf(form).windowHandle(), static_cast<Qt::Key>(key), modifiers);
    Pump();
}

void Tap(Form& form, int key, Qt::KeyboardModifiers modifiers) {
    const QPointer<QWidget> window = &WindowOf(form);
    Press(form, key, modifiers);
    // The press may have been the form's end.
    if (window && form.Loaded()) {
        Release(form, key, modifiers);
    }
}

void ClickOn(const VisualControl& control) {
    QWidget& widget = WidgetOf(control);
    QTest::mouseClick(widget.window()->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                      widget.mapTo(widget.window(), widget.rect().center()));
    Pump();
}

void MoveOver(const VisualControl& control) {
    MoveOver(WidgetOf(control), WidgetOf(control).rect().center());
}

void MoveOver(QWidget& widget, QPoint where) {
    QTest::mouseMove(widget.window()->windowHandle(), widget.mapTo(widget.window(), where));
    Pump();
}

QImage Shot(const Form& form) {
    Pump();
    return WindowOf(form).grab().toImage();
}

QImage Shot(const VisualControl& control) {
    Pump();
    return WidgetOf(control).grab().toImage();
}

TemporaryFolder::TemporaryFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "trameli-XXXXXX").string();
    path_ = mkdtemp(pattern.data());
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    for (auto entry = std::filesystem::recursive_directory_iterator(path_, ignored);
         entry != std::filesystem::recursive_directory_iterator(); entry.increment(ignored)) {
        if (entry->is_directory(ignored)) {
            std::filesystem::permissions(entry->path(), std::filesystem::perms::owner_all, ignored);
        }
    }
    std::filesystem::remove_all(path_, ignored);
}

std::string BytesOf(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

void Write(const std::filesystem::path& file, const std::string& bytes) {
    std::ofstream(file, std::ios::binary) << bytes;
}

}  // namespace trameli
