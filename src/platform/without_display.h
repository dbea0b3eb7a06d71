// The machine for work that needs no window.
#pragma once

#include <memory>
#include <string>

#include "platform/file_system.h"

namespace trameli {

/// What there is of a desktop without a display: files, language, and whatever drawing on paper
/// needs. Made in place of a `Desktop`.
class WithoutDisplay {
public:
    WithoutDisplay();
    ~WithoutDisplay();
    WithoutDisplay(const WithoutDisplay&) = delete;
    WithoutDisplay& operator=(const WithoutDisplay&) = delete;

    FileSystem& Files() const;
    /// What the desktop says of its language.
    std::string Locale() const;
    /// Makes `bytes` the content of a file anywhere on this machine, whole or not at all. Of a link
    /// the file that it leads to is made or replaced; what is there and no ordinary file that may
    /// be written stays as it is.
    bool Write(const std::string& path, const std::string& bytes) const;

private:
    struct Native;
    std::unique_ptr<Native> native_;
};

}  // namespace trameli
