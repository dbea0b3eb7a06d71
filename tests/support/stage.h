// A player's hands and eyes for tests: real events sent to real windows, and what is seen there.
#pragma once

#include <QImage>
#include <QPoint>
#include <QWidget>
#include <filesystem>
#include <string>

#include "platform/control.h"
#include "platform/dialogs.h"
#include "platform/documents.h"
#include "platform/form.h"
#include "platform/instances.h"
#include "platform/screen.h"

namespace trameli {

/// Serves all window events that are waiting, and those that they bring about.
void Pump();

/// The window of a form.
QWidget& WindowOf(const Form& form);
/// The widget of a control.
QWidget& WidgetOf(const VisualControl& control);

/// Presses, releases or taps a key, a Qt::Key, in the window of `form` as a keyboard would.
void Press(Form& form, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
void Release(Form& form, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
void Tap(Form& form, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

/// Clicks the middle of a control, or moves the pointer over it.
void ClickOn(const VisualControl& control);
void MoveOver(const VisualControl& control);
/// Moves the pointer over a point given in pixels of the widget.
void MoveOver(QWidget& widget, QPoint where);

/// What a window shows.
QImage Shot(const Form& form);
/// What a control shows, with the controls on it.
QImage Shot(const VisualControl& control);

/// A screen of any size, without a desktop.
class FixedScreen final : public Screen {
public:
    explicit FixedScreen(int width = 1366, int height = 768) : size_{width, height} {}

    PixelSize Size() const override { return size_; }
    PixelSize Available() const override { return size_; }
    void Size(PixelSize size) { size_ = size; }

private:
    PixelSize size_;
};

/// Other instances as a test wants them.
class FixedInstances final : public Instances {
public:
    bool Another = false;

    bool AnotherRuns() override { return Another; }
};

/// Notes the messages and answers them at once, as the test wants; `During` is called while one is
/// open.
class NotedDialogs final : public Dialogs {
public:
    struct Noted {
        std::string Text;
        std::string Title;
        trameli::Icon Icon;
        trameli::Buttons Buttons;
    };
    std::vector<Noted> Messages;
    std::function<void()> During;
    trameli::Answer Answer = trameli::Answer::Ok;
    std::optional<Colour> Chosen;  ///< what the user chooses; nothing is a cancel
    std::string Spoken;            ///< the language of the dialogs

    trameli::Answer Message(const std::string& text, const std::string& title, trameli::Icon icon,
                            trameli::Buttons buttons) override {
        Messages.push_back({text, title, icon, buttons});
        if (During) {
            During();
        }
        return Answer;
    }
    std::optional<Colour> ChooseColour() override { return Chosen; }
    void Language(const std::string& locale) override { Spoken = locale; }
};

/// Notes which documents were opened.
class NotedDocuments final : public Documents {
public:
    std::vector<std::string> Opened;

    void Open(const std::string& path) override { Opened.push_back(path); }
};

/// A new folder on the disk, gone with the object.
class TemporaryFolder {
public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::filesystem::path& Path() const { return path_; }

private:
    std::filesystem::path path_;
};

/// Reads and writes a file's bytes as they are.
std::string BytesOf(const std::filesystem::path& file);
void Write(const std::filesystem::path& file, const std::string& bytes);

}  // namespace trameli
