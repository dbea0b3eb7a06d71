// Documents of drawn pages.
#pragma once

#include <memory>
#include <string>

#include "platform/bounds.h"
#include "platform/colour.h"
#include "platform/picture.h"

namespace trameli {

/// A PDF document in the making. Places and lengths are twips, 1440 an inch, from the upper left
/// corner of the page. What is drawn stays lines and curves, as sharp as the paper lets them be.
class PageBook {
public:
    /// Pages of that size, the first of which is there at once.
    PageBook(double width, double height, const std::string& title);
    ~PageBook();
    PageBook(const PageBook&) = delete;
    PageBook& operator=(const PageBook&) = delete;

    /// What is drawn from now on comes to a further page.
    void NewPage();

    /// A line with round ends; of length zero it is a round point as wide as the pen.
    void DrawLine(double x1, double y1, double x2, double y2, double pen, Colour colour);
    /// A picture of the program, stretched.
    void DrawPicture(const Picture& picture, const Bounds& place);
    /// A line of text, in black, its upper left corner there.
    void DrawText(double left, double top, double points, const std::string& text);

    /// Ends the document and gives its bytes. The same drawing gives the same bytes.
    std::string Bytes();

private:
    struct Native;
    std::unique_ptr<Native> native_;
};

}  // namespace trameli
