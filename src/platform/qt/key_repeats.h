// Keys that the X server repeats.
#pragma once

#include <QAbstractNativeEventFilter>
#include <QKeyEvent>
#include <QWindow>
#include <deque>
#include <memory>

namespace trameli {

/// Makes sure that the releases and presses which the X server makes up for a held key are marked
/// as auto-repeat. The server sends them in pairs of the same moment, and the toolkit marks a pair
/// if it finds both halves waiting. On a busy machine they come apart, and then the release looks
/// like a real one: a held switch would be many strokes. So each release waits here, with all keys
/// behind it, until the server has answered to a message; if the release was made up, its press
/// comes before that answer. Elsewhere than on X11 nothing waits.
class KeyRepeats : private QAbstractNativeEventFilter {
public:
    KeyRepeats();
    ~KeyRepeats() override;
    KeyRepeats(const KeyRepeats&) = delete;
    KeyRepeats& operator=(const KeyRepeats&) = delete;

    /// True if this key of the window has to wait. It is sent to the window again afterwards, and
    /// passes then.
    bool Withholds(QWindow& window, const QKeyEvent& event);

private:
    struct Waiting {
        std::unique_ptr<QKeyEvent> Event;
        bool ForAnswer;  // or only for those before it
    };

    bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;
    void AskServer(const QWindow& window);
    void Answered();

    std::deque<Waiting> waiting_;
    const QKeyEvent* passing_ = nullptr;
    std::uint32_t question_ = 0;  // the name of our message to the server
    QObject answers_;             // whose calls end with this
    QWindow* window_ = nullptr;
};

}  // namespace trameli
