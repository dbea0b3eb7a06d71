// The documents that come with the program.
#pragma once

#include <string>

#include "platform/documents.h"
#include "platform/file_system.h"
#include "shell/stato.h"

namespace trameli {

/// Opens documents with the desktop's own programs.
class ModuloNavigate {
public:
    /// All three must outlive it.
    ModuloNavigate(const Stato& stato, const FileSystem& fileSystem, Documents& documents)
        : stato_(stato), fileSystem_(fileSystem), documents_(documents) {}

    /// Opens a document, for instance "P:\\trameli.pdf", in the current language if there is one of
    /// that name with the language before its extension. Where nothing can be opened nothing
    /// happens.
    void ApriDocumento(const std::string& percorso);

private:
    const Stato& stato_;
    const FileSystem& fileSystem_;
    Documents& documents_;
};

}  // namespace trameli
