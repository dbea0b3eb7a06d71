// Documents that other programs show.
#pragma once

#include <string>

namespace trameli {

/// The service that opens documents. In a test it notes what was asked.
class Documents {
public:
    virtual ~Documents() = default;

    /// Has a file opened by the program that the desktop keeps for its kind. Paths are those of
    /// FileSystem. Returns at once; a missing file or program is no matter and told to nobody.
    virtual void Open(const std::string& path) = 0;
};

}  // namespace trameli
