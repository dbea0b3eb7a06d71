#include "pdf_file.h"

#include <QRegularExpression>
#include <stdexcept>

namespace trameli {

namespace {

/// A text as PDF files hold it, in sixteen bits a character.
QByteArray Text(const QString& text) {
    QByteArray hex = "<FEFF";
    for (const QChar character : text) {
        hex += QByteArray::number(character.unicode(), 16).rightJustified(4, '0');
    }
    return hex + ">";
}

/// Where `what` begins behind `from`; it must be there.
qsizetype Find(const QByteArray& pdf, const QByteArray& what, qsizetype from = 0) {
    const qsizetype place = pdf.indexOf(what, from);
    if (place < 0) {
        throw std::runtime_error("no " + what.toStdString() + " in the PDF file");
    }
    return place;
}

/// Puts `text` in place of so many bytes, and corrects the table of the objects' places.
void Change(QByteArray& pdf, qsizetype place, qsizetype length, const QByteArray& text) {
    const qsizetype moved = text.size() - length;
    qsizetype entry = Find(pdf, "\nxref\n0 ") + 1;
    const qsizetype start = pdf.lastIndexOf("startxref\n") + 10;
    const qsizetype startEnd = pdf.indexOf('\n', start);
    pdf.replace(start, startEnd - start, QByteArray::number(entry + moved));
    entry = pdf.indexOf('\n', entry + 5) + 1;
    constexpr qsizetype entryLength = 20;
    for (; pdf.at(entry) != 't'; entry += entryLength) {
        const qsizetype object = pdf.mid(entry, 10).toLongLong();
        if (object > place) {
            pdf.replace(entry, 10, QByteArray::number(object + moved).rightJustified(10, '0'));
        }
    }
    pdf.replace(place, length, text);
}

}  // namespace

QByteArray Xmp(const Facts& facts) {
    return QStringLiteral(R"(<?xpacket begin="" id="W5M0MpCehiHzreSzNTczkc9d"?>
<x:xmpmeta xmlns:x="adobe:ns:meta/"><rdf:RDF xmlns:rdf="http://www.w3.org/1999/02/22-rdf-syntax-ns#">
<rdf:Description rdf:about="" xmlns:dc="http://purl.org/dc/elements/1.1/">
<dc:title><rdf:Alt><rdf:li xml:lang="x-default">%1</rdf:li></rdf:Alt></dc:title>
<dc:creator><rdf:Seq><rdf:li>%2</rdf:li></rdf:Seq></dc:creator>
<dc:language><rdf:Bag><rdf:li>%3</rdf:li></rdf:Bag></dc:language>
</rdf:Description></rdf:RDF></x:xmpmeta>
<?xpacket end="w"?>
)")
        .arg(facts.Title.toHtmlEscaped(), facts.Author.toHtmlEscaped(),
             facts.Language.toHtmlEscaped())
        .toUtf8();
}

QByteArray Completed(QByteArray pdf, const Facts& facts) {
    const qsizetype time = Find(pdf, "/CreationDate");
    Change(pdf, time, Find(pdf, ")", time) + 1 - time, "/Author " + Text(facts.Author));
    const qsizetype catalog = Find(pdf, "/Type /Catalog\n");
    Change(pdf, catalog, 0, "/Lang " + Text(facts.Language) + "\n");
    return pdf;
}

}  // namespace trameli
