#include "platform/qt/page_context.h"

#include <utility>

namespace trameli {

int PageContext::StartDocument(const std::string& name) {
    if (!format_.HasRoom()) {
        return -1;
    }
    document_ = {name, {}};
    state_ = State::InDocument;
    return 1;
}

int PageContext::StartPage() {
    if (state_ != State::InDocument) {
        return 0;
    }
    document_.Pages.emplace_back();
    state_ = State::InPage;
    return 1;
}

int PageContext::Stretch(const PixelRectangle& where, const PixelBlock& picture) {
    if (state_ != State::InPage || where.Width <= 0 || where.Height <= 0 || !picture.Bits) {
        return 0;
    }
    QImage pixels = PictureOf(picture);
    if (pixels.isNull()) {
        return 0;
    }
    document_.Pages.back().push_back({where, std::move(pixels)});
    return picture.Height;
}

int PageContext::EndPage() {
    if (state_ != State::InPage) {
        return 0;
    }
    state_ = State::InDocument;
    return 1;
}

int PageContext::EndDocument() {
    if (state_ != State::InDocument) {
        return 0;
    }
    state_ = State::Nothing;
    // Nothing of this object is used from here on: it may be gone when events were served.
    const Delivery deliver = deliver_;
    return deliver(std::exchange(document_, {})) ? 1 : 0;
}

}  // namespace trameli
