// Documents opened by the desktop.
#pragma once

#include "platform/documents.h"
#include "platform/qt/local_file_system.h"

namespace trameli {

/// Hands documents over to the desktop.
class DesktopDocuments final : public Documents {
public:
    explicit DesktopDocuments(LocalFileSystem files) : files_(std::move(files)) {}

    void Open(const std::string& path) override;

private:
    LocalFileSystem files_;
};

}  // namespace trameli
