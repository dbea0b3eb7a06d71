// Documents as a reader's program takes them apart.
#include "pages.h"

#include <gtest/gtest.h>

#include <QRegularExpression>

namespace trameli {
namespace {

/// A document of two parts with a picture in each.
QByteArray Made() {
    const QString part = QStringLiteral("# Part\n\n%1\n\n![Caption](Picture)\n\n")
                             .arg(QStringLiteral("Words and words. ").repeated(100));
    return Pages("# Title\n\nIntroduction.\n\n" + part + part,
                 [](const std::string& name) {
                     EXPECT_EQ(name, "Picture");
                     QImage picture(800, 600, QImage::Format_RGB32);
                     picture.fill(Qt::red);
                     return picture;
                 },
                 {{}, "Authors", "de"});
}

TEST(PagesTest, AreAFileWhoseObjectsAreWhereItSaysTheyAre) {
    const QByteArray pdf = Made();
    const qsizetype start = pdf.lastIndexOf("startxref\n") + 10;
    const qsizetype table = pdf.mid(start, pdf.indexOf('\n', start) - start).toLongLong();
    ASSERT_EQ(pdf.mid(table, 7), "xref\n0 ");
    const QList<QByteArray> lines = pdf.mid(table, start - table).split('\n');
    for (int object = 1; lines.value(object + 2).endsWith("n "); ++object) {
        const qsizetype place = lines[object + 2].left(10).toLongLong();
        const QByteArray head = QByteArray::number(object) + " 0 obj";
        EXPECT_EQ(pdf.mid(place, head.size()), head);
    }
    EXPECT_EQ(pdf.count("/Lang <FEFF00640065>"), 1);
    EXPECT_EQ(pdf.count("/Author <FEFF0041"), 1);
    EXPECT_EQ(pdf.count("/CreationDate"), 0);
    EXPECT_EQ(pdf.count("/Type /Page\n"), 3) << "the title, and a page for each part";
}

}  // namespace
}  // namespace trameli
