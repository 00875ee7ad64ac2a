// The ".ppd" files in tests/data/print, with which the fuzz program starts: what was saved once is
// read and saved alike for ever. NEB_WRITE_GOLDEN=1 writes them anew.
#include "harness/MemoryFolder.h"
#include "printing/PpdFile.h"
#include "printing/PrintRig.h"

namespace neb {
namespace {

using namespace tests;

PrintDocument WithoutPages() {
    return PrintDocument({}, A4Paper);
}

PrintDocument EmptyPages() {
    PrintDocument Document({});
    Document.StartDoc();
    Document.NewPage();
    Document.EndDoc();
    return Document;
}

// One picture in every cell of a page, another on the next.
PrintDocument Sheets() {
    PrintDocument Document({}, A4Paper);
    Document.SetOrientation(PageTurn::Landscape);
    Document.StartDoc();
    Document.SetMarginLeft(u".25in"_s);
    for (int Cell = 0; Cell < 12; ++Cell)
        Place(Document, {{}, "first"}, {1 + Cell % 4 * 2.3, 1 + Cell / 4 * 2.2, 2.1375, 2});
    Document.NewPage();
    Place(Document, {{}, "second"}, {1, 1, 2.1375, 1.6});
    Document.EndDoc();
    return Document;
}

PrintDocument Captions() {
    PrintDocument Document({});
    Document.StartDoc();
    for (int Cell = 0; Cell < 3; ++Cell) {
        const double Y = 1 + Cell * 3.05;
        Place(Document, {{}, QByteArray(5, static_cast<char>(Cell))}, {1, Y, 3, 2.25});
        Document.DrawText({u"Caption %1 \u2013 \u00FC"_s.arg(Cell), {1, Y + 2.3, 3, 0.3}});
    }
    Document.DrawText({u"Holidays"_s, {1, 10.2, 4, 0.2}});
    Document.DrawText({u"1 / 1"_s, {5, 10.2, 2.5, 0.2}, TextSide::Right});
    Document.EndDoc();
    return Document;
}

// The bytes that the description of the format shows.
QByteArray Example() {
    const QString Text =
        QString::fromUtf8(ReadFile(QStringLiteral(NEB_SOURCE_DIR "/docs/PPD-FORMAT.md")));
    const QRegularExpression Line(u"^ *\\d+  ((?:[0-9A-F]{2} ?){1,16})(?: |$)"_s,
                                  QRegularExpression::MultilineOption);
    QByteArray Bytes;
    for (auto Found = Line.globalMatch(Text); Found.hasNext();)
        Bytes += QByteArray::fromHex(Found.next().captured(1).toLatin1());
    return Bytes;
}

TEST(PpdSamples, TheExampleOfTheDescriptionIsOne) {
    const harness::MemoryFolder Folder;
    PrintDocument Document({});
    Document.StartDoc();
    Place(Document, {{}, "abc"}, {1, 2, 3, 4});
    Document.EndDoc();
    WritePpd(Document, Folder / u"example.ppd"_s);
    EXPECT_EQ(Example().toHex(), ReadFile(Folder / u"example.ppd"_s).toHex());
}

TEST(PpdSamples, AreReadAndSavedAsTheyEverWere) {
    const struct {
        const char* Name;
        PrintDocument Document;
    } Table[] = {{"without-pages", WithoutPages()},
                 {"empty-pages", EmptyPages()},
                 {"sheets", Sheets()},
                 {"captions", Captions()}};
    const harness::MemoryFolder Folder;
    const QString Saved = Folder / u"saved.ppd"_s, Again = Folder / u"again.ppd"_s;
    for (const auto& [Name, Document] : Table) {
        const QString Sample = harness::DataFile("print/") + QLatin1String(Name) + u".ppd"_s;
        if (qEnvironmentVariableIsSet("NEB_WRITE_GOLDEN")) WritePpd(Document, Sample);
        WritePpd(Document, Saved);
        EXPECT_EQ(ReadFile(Saved).toHex(), ReadFile(Sample).toHex()) << Name;
        WritePpd(*ReadPpd(Sample, {}), Again);
        EXPECT_EQ(ReadFile(Again).toHex(), ReadFile(Sample).toHex()) << Name;
    }
}

}  // namespace
}  // namespace neb
