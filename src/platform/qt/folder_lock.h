// One running copy for each data folder.
#pragma once

#include <filesystem>

#include "platform/instances.h"

namespace trameli {

/// Knows other instances by a lock on the data folder itself. The system takes the lock away with
/// the process, however that ends, so nothing is ever left behind to lock anyone out.
class FolderLock final : public Instances {
public:
    /// Nothing is locked yet, nor made.
    explicit FolderLock(std::filesystem::path folder) : folder_(std::move(folder)) {}
    ~FolderLock() override;
    FolderLock(const FolderLock&) = delete;
    FolderLock& operator=(const FolderLock&) = delete;

    bool AnotherRuns() override;

private:
    std::filesystem::path folder_;
    int handle_ = -1;
};

}  // namespace trameli
