// Files as the system has them.
#pragma once

#include <fcntl.h>
#include <unistd.h>

#include <filesystem>

namespace trameli {

/// A file that is closed when it goes out of scope. No program started meanwhile has it open too.
class OpenFile {
public:
    /// `mode` is that of a new file.
    OpenFile(const std::filesystem::path& path, int flags, mode_t mode = 0)
        : handle_(open(path.c_str(), flags | O_CLOEXEC, mode)) {}
    ~OpenFile() { Close(); }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    int Handle() const { return handle_; }
    bool IsOpen() const { return handle_ >= 0; }
    /// False if it was not open, or the system could not keep what was written.
    bool Close() {
        const bool closed = handle_ >= 0 && close(handle_) == 0;
        handle_ = -1;
        return closed;
    }

private:
    int handle_;
};

}  // namespace trameli
