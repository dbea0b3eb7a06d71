// Keys that the X server repeats.
#pragma once

#include <QKeyEvent>
#include <QObject>
#include <QSet>

namespace trameli {

/// Sees to it that what the X server makes up while a key is held down is marked as auto-repeat, in
/// all windows of the process. By itself the server sends pairs of a release and a press, which
/// the toolkit knows by finding both halves at once; on a busy machine, or on the way round by a
/// screen reader, they come apart, and a held switch would be many strokes. So the server is asked
/// for presses alone, and one whose key is down already is a repetition. Elsewhere than on X11 the
/// toolkit knows by itself.
class KeyRepeats : public QObject {
public:
    KeyRepeats();

private:
    bool eventFilter(QObject* object, QEvent* event) override;
    bool Takes(QObject& window, QEvent& event);
    static void Repeat(QObject& window, const QKeyEvent& press);
    void ForgetReleased();

    QSet<quint64> held_;  // keys that are down, by what they are
    quint64 asked_ = 0;   // the one for which a shortcut is looked for
};

}  // namespace trameli
