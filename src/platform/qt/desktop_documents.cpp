#include "platform/qt/desktop_documents.h"

#include <QDesktopServices>
#include <QUrl>

#include "platform/qt/convert.h"

namespace trameli {

void DesktopDocuments::Open(const std::string& path) {
    if (files_.FileExists(path)) {
        QDesktopServices::openUrl(QUrl::fromLocalFile(ToQt(files_.OnThisMachine(path))));
    }
}

}  // namespace trameli
