// Pictures of the program's windows.
#pragma once

#include <QImage>
#include <filesystem>
#include <string>

namespace trameli {

/// Takes pictures of windows as a player sees them, each in a game of its own.
class WindowPictures {
public:
    /// `program` is the program folder. `language` is the stem of a language file in it.
    WindowPictures(std::filesystem::path program, std::string language);

    /// The picture of that name: a window's, with a word or a number behind it where the window has
    /// several. Null if there is no such picture.
    QImage Picture(const std::string& name) const;

private:
    std::filesystem::path program_;
    std::string language_;
};

}  // namespace trameli
