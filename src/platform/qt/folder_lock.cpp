#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>

#include "platform/qt/folder_lock.h"

namespace trameli {

FolderLock::~FolderLock() {
    if (handle_ >= 0) {
        close(handle_);
    }
}

bool FolderLock::AnotherRuns() {
    if (handle_ >= 0) {
        return false;
    }
    std::error_code error;
    std::filesystem::create_directories(folder_, error);
    handle_ = open(folder_.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle_ >= 0 && flock(handle_, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
        close(handle_);
        handle_ = -1;
        return true;
    }
    // Without a folder, or on a file system without locks, two copies are better than none.
    return false;
}

}  // namespace trameli
