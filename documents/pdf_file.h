// What the toolkit's PDF files leave out.
#pragma once

#include <QByteArray>
#include <QString>

namespace trameli {

/// What a document says of itself.
struct Facts {
    QString Title;
    QString Author;
    QString Language;  ///< two letters
};

/// The facts as XMP, the form in which newer programs look for them.
QByteArray Xmp(const Facts& facts);

/// Adds author and language to the bytes of a PDF file as the toolkit writes it, and takes the
/// time of its making out, so that the same text always gives the same file.
QByteArray Completed(QByteArray pdf, const Facts& facts);

}  // namespace trameli
