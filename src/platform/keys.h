// Key codes of key events. They do not depend on the keyboard's language.
#pragma once

namespace trameli {

/// The keys that the game asks for. Other keys arrive with other codes, 0 where they have none.
enum KeyCode : int {
    KeyEnter = 13,
    KeyEscape = 27,
    KeySpace = 32,
    KeyLeft = 37,
    KeyUp = 38,
    KeyRight = 39,
    KeyDown = 40,
    KeyPad2 = 98,
    KeyPad4 = 100,
    KeyPad6 = 102,
    KeyPad8 = 104,
};

/// Bits of the `Shift` argument of key events.
enum ShiftBit : int { ShiftKey = 1, ControlKey = 2, AltKey = 4 };

}  // namespace trameli
