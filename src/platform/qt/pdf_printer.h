// The printer that is always there.
#pragma once

#include <QDateTime>
#include <filesystem>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>

#include "platform/qt/printer_facts.h"

namespace trameli {

/// What can be chosen about it.
struct PdfOptions {
    /// Where documents go; made if it is missing, and the home folder if that cannot be.
    std::filesystem::path Folder;
    std::filesystem::path Home;
    std::function<QDateTime()> Now = [] { return QDateTime::currentDateTime(); };
    /// Shows a document that was made.
    std::function<void(const std::filesystem::path&)> Show = [](const auto&) {};
    bool Letter = false;  ///< the paper of the country, instead of A4

    /// As this user has it.
    static PdfOptions OfDesktop();
};

/// Makes a file of each document. Any thread can print.
class PdfPrinter {
public:
    explicit PdfPrinter(PdfOptions options) : options_(std::move(options)) {}

    /// It prints on sheets without edges, in colours.
    PrinterFacts Facts(const std::string& name) const;

    /// Writes a document, whole or not at all, into a file that is called after it and the time,
    /// with a number if there is one already. Nothing if it could not be written.
    std::optional<std::filesystem::path> Print(const std::string& name, const QDateTime& time,
                                               const std::string& pdf);

    QDateTime Now() const { return options_.Now(); }
    void Show(const std::filesystem::path& document) const { options_.Show(document); }

private:
    std::filesystem::path Folder() const;

    PdfOptions options_;
    std::mutex oneAtATime_;  ///< two documents of one second have one name until they are written
};

}  // namespace trameli
