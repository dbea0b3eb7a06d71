#include "pages.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextList>
#include <QTextTable>
#include <vector>

namespace trameli {

namespace {

// Lengths of the text are in 96ths of an inch, whatever the resolution.
constexpr qreal PixelsPerInch = 96;
constexpr qreal FigureWidth = 370;
constexpr qreal ListIndent = 20;

constexpr QMarginsF PaperMargins{24, 20, 24, 24};  // millimetres
constexpr qreal FooterDistance = 9;                // millimetres from the text to its base line

constexpr const char* BodyFont = "Liberation Sans";
constexpr const char* TitleFont = "Comic Neue";
constexpr const char* CodeFont = "Liberation Mono";
constexpr qreal BodyPoints = 10.5;
constexpr qreal SmallPoints = 9;

const QColor DarkBlue(0, 0, 128);
const QColor Grey(96, 96, 96);
const QColor PaleBlue(228, 233, 247);
const QColor PaleGrey(243, 243, 243);

/// A heading of some order: the first is that of the parts.
struct Heading {
    qreal Points;
    qreal Above;
    qreal Below;
};
constexpr Heading TitleHeading{28, 0, 14};
constexpr Heading Headings[] = {{22, 0, 12}, {14.5, 22, 6}, {11.5, 14, 4}};

// What stands for a picture while the text is read.
constexpr char16_t FigureMark = 0xE000;
constexpr char16_t CaptionMark = 0xE001;

/// What a block is, where its formats do not tell.
enum Kind { IsFigure = QTextFormat::UserProperty + 1, IsContents };

bool Has(const QTextBlock& block, int property) {
    return block.blockFormat().hasProperty(property);
}

bool IsCode(const QTextBlock& block) {
    return Has(block, QTextFormat::BlockCodeFence) || Has(block, QTextFormat::BlockCodeLanguage);
}

QTextTable* TableOf(const QTextBlock& block) {
    return QTextCursor(block).currentTable();
}

/// A text on its way to paper.
class Book {
public:
    Book(const QString& markdown, const std::function<QImage(const std::string&)>& picture,
         Facts facts)
        : facts_(std::move(facts)), buffer_(&pdf_), writer_(Opened(buffer_)) {
        writer_.setPageSize(QPageSize(QPageSize::A4));
        writer_.setPageMargins(PaperMargins, QPageLayout::Millimeter);
        QFont body{QString::fromLatin1(BodyFont)};
        body.setPointSizeF(BodyPoints);
        text_.setDefaultFont(body);
        text_.setDocumentMargin(0);
        text_.setIndentWidth(ListIndent);
        text_.documentLayout()->setPaintDevice(&writer_);
        Read(markdown);
        DressBlocks();
        DressTables();
        InsertFigures(picture);
        InsertContents();
        BreakPages();
        FillContents();
    }

    QByteArray Printed() {
        facts_.Title = text_.begin().text();
        writer_.setTitle(facts_.Title);
        writer_.setCreator(QStringLiteral("Trameli"));
        writer_.setDocumentXmpMetadata(Xmp(facts_));
        Paint();
        return Completed(pdf_, facts_);
    }

private:
    static QIODevice* Opened(QBuffer& buffer) {
        buffer.open(QIODevice::WriteOnly);
        return &buffer;
    }

    void Read(const QString& markdown) {
        static const QRegularExpression figure(QStringLiteral(R"(^!\[(.*)\]\((\w+)\)$)"),
                                               QRegularExpression::MultilineOption);
        text_.setMarkdown(
            QString(markdown).replace(figure, QChar(FigureMark) + QStringLiteral("\\2") +
                                                  QChar(CaptionMark) + QStringLiteral("\\1")));
    }

    void DressBlocks() {
        bool first = true;
        for (QTextBlock block = text_.begin(); block.isValid(); block = block.next()) {
            const int level = block.blockFormat().headingLevel();
            if (level > 0) {
                DressHeading(block, level, first);
            } else {
                DressText(block);
            }
            first = false;
        }
    }

    static void DressHeading(const QTextBlock& block, int level, bool isTitle) {
        const Heading& heading =
            isTitle ? TitleHeading : Headings[std::min<int>(level, std::size(Headings)) - 1];
        QTextCharFormat letters;
        letters.setFontFamilies({QString::fromLatin1(TitleFont)});
        letters.setFontPointSize(heading.Points);
        letters.setFontWeight(QFont::Bold);
        letters.setForeground(DarkBlue);
        QTextCursor cursor(block);
        cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
        cursor.setCharFormat(letters);
        QTextBlockFormat format = block.blockFormat();
        format.setTopMargin(heading.Above);
        format.setBottomMargin(heading.Below);
        if (level == 1 && !isTitle) {
            format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
        }
        cursor.setBlockFormat(format);
    }

    static void DressText(const QTextBlock& block) {
        QTextBlockFormat format = block.blockFormat();
        const bool inTable = TableOf(block) != nullptr;
        const bool code = IsCode(block);
        const bool inList = block.textList() && block.next().textList();
        format.setLineHeight(code      ? 100
                             : inTable ? 115
                                       : 135,
                             QTextBlockFormat::ProportionalHeight);
        format.setTopMargin(0);
        format.setBottomMargin(inTable || (code && IsCode(block.next())) ? 0 : inList ? 3 : 9);
        if (code) {
            format.setBackground(PaleGrey);
        }
        QTextCursor(block).setBlockFormat(format);
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            const QTextFragment fragment = part.fragment();
            if (!code && !fragment.charFormat().fontFixedPitch()) {
                continue;
            }
            QTextCharFormat letters;
            letters.setFontFamilies({QString::fromLatin1(CodeFont)});
            letters.setFontPointSize(SmallPoints + 0.5);
            QTextCursor cursor(block);
            cursor.setPosition(fragment.position());
            cursor.setPosition(fragment.position() + fragment.length(), QTextCursor::KeepAnchor);
            cursor.mergeCharFormat(letters);
        }
    }

    void DressTables() {
        for (QTextFrame* frame : text_.rootFrame()->childFrames()) {
            auto* const table = qobject_cast<QTextTable*>(frame);
            if (!table) {
                continue;
            }
            QTextTableFormat format = table->format();
            format.setWidth(QTextLength(QTextLength::PercentageLength, 100));
            format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
            format.setBorderCollapse(true);
            format.setBorder(1);
            format.setBorderBrush(PaleBlue);
            format.setCellSpacing(0);
            format.setCellPadding(4);
            format.setTopMargin(4);
            format.setBottomMargin(14);
            format.setHeaderRowCount(1);
            table->setFormat(format);
            for (int column = 0; column < table->columns(); ++column) {
                QTextTableCell cell = table->cellAt(0, column);
                QTextCharFormat heading = cell.format();
                heading.setBackground(PaleBlue);
                cell.setFormat(heading);
            }
        }
    }

    void InsertFigures(const std::function<QImage(const std::string&)>& picture) {
        for (QTextBlock block = text_.begin(); block.isValid();) {
            const QString mark = block.text();
            const QTextBlock next = block.next();
            if (mark.startsWith(QChar(FigureMark))) {
                const qsizetype middle = mark.indexOf(QChar(CaptionMark));
                const QString name = mark.mid(1, middle - 1);
                InsertFigure(block, name, mark.mid(middle + 1), picture(name.toStdString()));
            }
            block = next;
        }
    }

    void InsertFigure(const QTextBlock& block, const QString& name, const QString& caption,
                      QImage picture) {
        QTextCursor cursor(block);
        cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
        cursor.removeSelectedText();
        picture.setDevicePixelRatio(1);
        QPainter frame(&picture);
        frame.setPen(QPen(Grey, 2));
        frame.drawRect(picture.rect().adjusted(1, 1, -1, -1));
        frame.end();
        text_.addResource(QTextDocument::ImageResource, QUrl(name), picture);

        QTextBlockFormat centred;
        centred.setAlignment(Qt::AlignHCenter);
        centred.setTopMargin(8);
        centred.setBottomMargin(4);
        centred.setProperty(IsFigure, true);
        cursor.setBlockFormat(centred);
        QTextImageFormat image;
        image.setName(name);
        image.setWidth(FigureWidth);
        image.setHeight(FigureWidth * picture.height() / picture.width());
        cursor.insertImage(image);

        centred.clearProperty(IsFigure);
        centred.setTopMargin(0);
        centred.setBottomMargin(14);
        QTextCharFormat letters;
        letters.setFontItalic(true);
        letters.setFontPointSize(SmallPoints);
        cursor.insertBlock(centred, letters);
        cursor.insertText(caption, letters);
    }

    /// A list of the headings before the first part. Short documents need none.
    void InsertContents() {
        std::vector<QTextBlock> headings;
        QTextBlock firstPart;
        for (QTextBlock block = text_.begin().next(); block.isValid(); block = block.next()) {
            const int level = block.blockFormat().headingLevel();
            if (level == 1 || level == 2) {
                headings.push_back(block);
            }
            if (level == 1 && !firstPart.isValid()) {
                firstPart = block;
            }
        }
        if (!firstPart.isValid()) {
            return;
        }
        QTextCursor cursor(firstPart.previous());
        cursor.movePosition(QTextCursor::EndOfBlock);
        for (const QTextBlock& heading : headings) {
            const bool part = heading.blockFormat().headingLevel() == 1;
            QTextBlockFormat line;
            line.setProperty(IsContents, true);
            line.setTopMargin(part ? 9 : 0);
            line.setBottomMargin(2);
            line.setIndent(part ? 0 : 1);
            line.setTabPositions(
                {QTextOption::Tab(writer_.width() * PixelsPerInch / writer_.logicalDpiX() -
                                      line.indent() * ListIndent,
                                  QTextOption::RightTab)});
            QTextCharFormat letters;
            if (part) {
                letters.setFontWeight(QFont::Bold);
                letters.setForeground(DarkBlue);
            }
            cursor.insertBlock(line, letters);
            cursor.insertText(heading.text() + "\t", letters);
        }
    }

    /// Where their headings ended up.
    void FillContents() {
        QTextBlock line = text_.begin();
        for (QTextBlock block = text_.begin().next(); block.isValid(); block = block.next()) {
            const int level = block.blockFormat().headingLevel();
            if (level != 1 && level != 2) {
                continue;
            }
            while (line.isValid() && !Has(line, IsContents)) {
                line = line.next();
            }
            if (!line.isValid()) {
                return;
            }
            QTextCursor cursor(line);
            cursor.movePosition(QTextCursor::EndOfBlock);
            cursor.insertText(QString::number(PageOf(block) + 1));
            line = line.next();
            Layout();
        }
    }

    // Pages.

    int PageAt(qreal y) const { return static_cast<int>(y / text_.pageSize().height()); }

    /// The page of a block's first line, or of another one.
    int PageOf(const QTextBlock& block, int line = 0) const {
        const QRectF place = text_.documentLayout()->blockBoundingRect(block);
        const QTextLayout* const layout = block.layout();
        // A hair below its upper edge, which may be that of the page.
        const qreal inside = 2;
        return PageAt(place.top() + (line < layout->lineCount() ? layout->lineAt(line).y() : 0) +
                      inside);
    }

    /// Whether a block stands on one page with the beginning of the next one.
    static bool BelongsToNext(const QTextBlock& block) {
        const QTextBlock next = block.next();
        if (!next.isValid()) {
            return false;
        }
        const QTextTable* const table = TableOf(block);
        if (table) {
            // A table's heading, and the cells of one row.
            return TableOf(next) == table && table->cellAt(block.position()).row() == 0;
        }
        return block.blockFormat().headingLevel() > 0 || Has(block, IsFigure) ||
               (IsCode(block) && IsCode(next)) || block.text().endsWith(':');
    }

    /// Whether a page ends where it should not: inside a short block or table, or behind a block
    /// that belongs to the next.
    bool EndsBadly(const QTextBlock& block) const {
        constexpr int shortBlock = 4;
        constexpr int shortTable = 10;
        const QTextTable* const table = TableOf(block);
        if (table && table->rows() <= shortTable && table->firstPosition() == block.position()) {
            return PageOf(block) != PageOf(text_.findBlock(table->lastPosition()));
        }
        const int lines = block.layout()->lineCount();
        const bool parted = lines > 1 && (PageOf(block) != PageOf(block, lines - 1));
        const bool alone = parted && (PageOf(block, 1) != PageOf(block) ||
                                      PageOf(block, lines - 2) != PageOf(block, lines - 1));
        return (parted && lines <= shortBlock) || alone ||
               (BelongsToNext(block) &&
                PageOf(block, std::max(0, lines - 1)) != PageOf(block.next()));
    }

    /// Finds all places anew. The toolkit's own corrections after a change stop halfway.
    void Layout() {
        text_.setPageSize(QSizeF(writer_.width(), writer_.height()));
        text_.pageCount();  // which takes the layout to its end
    }

    void BreakPages() {
        Layout();
        for (QTextBlock block = text_.begin(); block.isValid(); block = block.next()) {
            if (!EndsBadly(block)) {
                continue;
            }
            QTextBlock first = block;
            while (first.previous().isValid() && BelongsToNext(first.previous())) {
                first = first.previous();
            }
            BreakBefore(first);
            Layout();
        }
    }

    static void BreakBefore(const QTextBlock& block) {
        if (QTextTable* const table = TableOf(block)) {
            QTextTableFormat format = table->format();
            format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
            table->setFormat(format);
            return;
        }
        QTextBlockFormat format = block.blockFormat();
        format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
        QTextCursor(block).setBlockFormat(format);
    }

    void Paint() {
        QPainter painter(&writer_);
        const QSizeF page = text_.pageSize();
        for (int number = 0; number < text_.pageCount(); ++number) {
            if (number > 0) {
                writer_.newPage();
                PaintFooter(painter, number + 1);
            }
            painter.save();
            painter.translate(0, -number * page.height());
            QAbstractTextDocumentLayout::PaintContext context;
            context.clip = QRectF(QPointF(0, number * page.height()), page);
            context.palette.setColor(QPalette::Text, Qt::black);
            painter.setClipRect(context.clip);
            text_.documentLayout()->draw(&painter, context);
            painter.restore();
        }
    }

    void PaintFooter(QPainter& painter, int number) {
        QFont font{QString::fromLatin1(BodyFont)};
        font.setPointSizeF(SmallPoints);
        painter.setFont(QFont(font, &writer_));
        painter.setPen(Grey);
        const qreal millimetre = writer_.logicalDpiY() / 25.4;
        const QRectF line(0, writer_.height(), writer_.width(), FooterDistance * millimetre);
        painter.drawText(line, Qt::AlignLeft | Qt::AlignBottom, text_.begin().text());
        painter.drawText(line, Qt::AlignRight | Qt::AlignBottom, QString::number(number));
    }

    Facts facts_;
    QByteArray pdf_;
    QBuffer buffer_;
    QPdfWriter writer_;
    QTextDocument text_;
};

}  // namespace

QByteArray Pages(const QString& markdown,
                 const std::function<QImage(const std::string& name)>& picture, Facts facts) {
    return Book(markdown, picture, std::move(facts)).Printed();
}

}  // namespace trameli
