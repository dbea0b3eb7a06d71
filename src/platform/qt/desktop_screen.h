// The desktop's screen.
#pragma once

#include "platform/screen.h"

namespace trameli {

/// The screen that the desktop calls its first.
class DesktopScreen final : public Screen {
public:
    PixelSize Size() const override;
    PixelSize Available() const override;
};

}  // namespace trameli
