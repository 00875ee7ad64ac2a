// A table on paper: every row once, headings on every page, nothing beyond the sheet.
#include "printing/TablePages.h"

#include <gtest/gtest.h>

namespace neb {
namespace {

using namespace Qt::StringLiterals;

PrintDocument Printed(const TableToPrint& Table) {
    PrintDocument Document({u"none.bmp"_s, {}}, A4Paper);
    ComposeTable(Document, Table);
    return Document;
}

TableToPrint TableOfRows(int Count) {
    TableToPrint Table{.Title = u"Lake"_s, .Intro = {u"In short."_s}};
    Table.Columns = {{u"Slide"_s, 0.2, true}, {u"Caption"_s, 0.8, false}};
    for (int Row = 1; Row <= Count; ++Row)
        Table.Rows.push_back({QString::number(Row), u"Caption %1"_s.arg(Row)});
    return Table;
}

QStringList TextsOn(const PrintDocument& Document, int Page) {
    QStringList All;
    for (const PlacedText& Each : Document.TextsOn(Page)) All << Each.Text;
    return All;
}

TEST(TablePages, HoldEachRowOnceWithHeadingsOnEveryPage) {
    const PrintDocument Document = Printed(TableOfRows(100));
    ASSERT_GT(Document.PageCount(), 2);
    QStringList All;
    for (int Page = 1; Page <= Document.PageCount(); ++Page) {
        const QStringList Here = TextsOn(Document, Page);
        EXPECT_EQ(1, Here.count(u"Caption"_s)) << Page;
        EXPECT_TRUE(Here.contains(u"Lake"_s)) << "at the foot";
        All += Here;
    }
    for (int Row = 1; Row <= 100; ++Row) EXPECT_EQ(1, All.count(u"Caption %1"_s.arg(Row))) << Row;
}

TEST(TablePages, StayWithinTheSheetAndKeepRowsApart) {
    const PrintDocument Document = Printed(TableOfRows(100));
    const QRectF Sheet({0, 0}, Document.PageSize());
    EXPECT_GT(Sheet.width(), Sheet.height());
    for (int Page = 1; Page <= Document.PageCount(); ++Page) {
        double Foot = 0;
        for (const PlacedText& Each : Document.TextsOn(Page)) {
            EXPECT_TRUE(Sheet.contains(Each.Place)) << Each.Text.toStdString();
            if (Each.Text == u"Lake"_s && Each.Place.top() > 1) Foot = Each.Place.top();
        }
        for (const PlacedText& Each : Document.TextsOn(Page))
            if (Each.Text.startsWith(u"Caption "_s)) {
                EXPECT_LE(Each.Place.bottom(), Foot);
            }
    }
}

TEST(TablePages, BreakLongLinesBehindTheTable) {
    TableToPrint Table = TableOfRows(1);
    QStringList Words;
    for (int Word = 0; Word < 60; ++Word) Words << u"word%1"_s.arg(Word);
    Table.Tail = {u"Problems"_s, Words.join(u' ')};
    QString All;
    const PrintDocument Document = Printed(Table);
    for (const QString& Each : TextsOn(Document, 1)) {
        EXPECT_LT(Each.size(), 160);
        if (Each.contains(u"word"_s)) All += Each.trimmed() + u' ';
    }
    EXPECT_EQ(Words.join(u' '), All.trimmed()) << "nothing is cut";
}

TEST(TablePages, BreakLinesOfWideLettersSooner) {
    const auto Longest = [](QChar Letter) {
        TableToPrint Table = TableOfRows(1);
        Table.Tail = {QString(600, Letter)};
        qsizetype Most = 0;
        for (const QString& Each : TextsOn(Printed(Table), 1))
            Most = std::max(Most, Each.count(Letter));
        return Most;
    };
    EXPECT_GT(Longest(u'n'), 100);
    EXPECT_EQ(Longest(u'n') / 2, Longest(u'\u5C71'));
}

TEST(TablePages, BreakALetterWithMoreMarksThanALineHasRoomFor) {
    TableToPrint Table = TableOfRows(1);
    Table.Tail = {u'e' + QString(600, QChar(0x0301))};
    const PrintDocument Document = Printed(Table);
    EXPECT_EQ(TextsOn(Document, 1).join(QString()).count(QChar(0x0301)), 600);
}

}  // namespace
}  // namespace neb
