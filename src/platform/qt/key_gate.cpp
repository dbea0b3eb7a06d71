#include "platform/qt/key_gate.h"

#include "platform/keys.h"

namespace trameli {

namespace {

struct KeyRow {
    int Key;
    int Code;
};

constexpr KeyRow NamedKeys[] = {
    {Qt::Key_Backspace, 8}, {Qt::Key_Tab, 9},    {Qt::Key_Backtab, 9},  {Qt::Key_Return, 13},
    {Qt::Key_Enter, 13},    {Qt::Key_Shift, 16}, {Qt::Key_Control, 17}, {Qt::Key_Alt, 18},
    {Qt::Key_Escape, 27},   {Qt::Key_Space, 32}, {Qt::Key_PageUp, 33},  {Qt::Key_PageDown, 34},
    {Qt::Key_End, 35},      {Qt::Key_Home, 36},  {Qt::Key_Left, 37},    {Qt::Key_Up, 38},
    {Qt::Key_Right, 39},    {Qt::Key_Down, 40},  {Qt::Key_Insert, 45},  {Qt::Key_Delete, 46},
};

constexpr int Pad0 = 96;
constexpr int F1 = 112;

}  // namespace

quint64 IdentityOf(const QKeyEvent& event) {
    // Events without a scan code, as other programs send them, go by the key's meaning.
    const quint32 scanCode = event.nativeScanCode();
    return scanCode != 0 ? scanCode : (quint64{1} << 32) + static_cast<quint32>(event.key());
}

int KeyCodeOf(const QKeyEvent& event) {
    const int key = event.key();
    if (key >= Qt::Key_0 && key <= Qt::Key_9) {
        const bool pad = event.modifiers().testFlag(Qt::KeypadModifier);
        return key - Qt::Key_0 + (pad ? Pad0 : '0');
    }
    if (key >= Qt::Key_A && key <= Qt::Key_Z) {
        return key - Qt::Key_A + 'A';
    }
    if (key >= Qt::Key_F1 && key <= Qt::Key_F12) {
        return key - Qt::Key_F1 + F1;
    }
    for (const KeyRow& row : NamedKeys) {
        if (row.Key == key) {
            return row.Code;
        }
    }
    return 0;
}

int ShiftBitsOf(const QKeyEvent& event) {
    const Qt::KeyboardModifiers modifiers = event.modifiers();
    return (modifiers.testFlag(Qt::ShiftModifier) ? ShiftKey : 0) |
           (modifiers.testFlag(Qt::ControlModifier) ? ControlKey : 0) |
           (modifiers.testFlag(Qt::AltModifier) ? AltKey : 0);
}

void KeyGate::Press(const QKeyEvent& event) {
    if (!event.isAutoRepeat()) {
        pressed_.insert(IdentityOf(event), KeyCodeOf(event));
    }
}

bool KeyGate::Release(const QKeyEvent& event) {
    return !event.isAutoRepeat() && pressed_.remove(IdentityOf(event));
}

}  // namespace trameli
