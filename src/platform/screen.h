// The screen that the program's windows fill.
#pragma once

namespace trameli {

/// Play coordinates are held in 16 bits, so no screen is longer than this in twips.
inline constexpr int LongestInTwips = 32767;

/// Twips per pixel on a screen of so many pixels: 15, or as many fewer as it takes for the longer
/// side to fit into `LongestInTwips`. A screen that fits in no other way has 1.
constexpr int TwipsPerPixelFor(int width, int height) {
    constexpr int usual = 15;
    const int longer = width > height ? width : height;
    const int fitting = longer > 0 ? LongestInTwips / longer : usual;
    return fitting < 1 ? 1 : fitting < usual ? fitting : usual;
}

/// A size in pixels, which are logical ones where the system scales and nothing else is said.
struct PixelSize {
    int Width = 0;
    int Height = 0;
};

/// The service that tells the screen's size.
class Screen {
public:
    virtual ~Screen() = default;

    /// The whole screen.
    virtual PixelSize Size() const = 0;

    /// The part that a maximised window may take.
    virtual PixelSize Available() const = 0;

    /// Width of the screen in twips.
    double Width() const { return Size().Width * TwipsPerPixelX(); }
    /// Height of the screen in twips.
    double Height() const { return Size().Height * TwipsPerPixelY(); }
    /// The same in both directions, and a whole number.
    double TwipsPerPixelX() const { return TwipsPerPixelFor(Size().Width, Size().Height); }
    double TwipsPerPixelY() const { return TwipsPerPixelX(); }
};

}  // namespace trameli
