// PDF files, as other programs see them.
#include "printing/PdfWriter.h"

#include <QBuffer>

#include "harness/FolderState.h"
#include "harness/Sanitizer.h"
#include "printing/PrintRig.h"

namespace neb {
namespace {

using namespace harness;
using namespace tests;

class PdfWriterTest : public ::testing::Test {
  protected:
    PdfWriterTest() { SaveJpeg(NoSlide(), Plain(Qt::magenta, {80, 60})); }
    ~PdfWriterTest() override { SetHostWatcher({}); }
    QString NoSlide() const { return Folder / u"NoSlide.jpg"_s; }
    QString Pdf() const { return Folder / u"out.pdf"_s; }
    QString File(const QString& Name, const QByteArray& Bytes) const {
        WriteFile(Folder / Name, Bytes);
        return Folder / Name;
    }
    PrintDocument Begun(PageTurn Turn = PageTurn::Portrait, QSizeF Paper = LetterPaper) const {
        PrintDocument Document({NoSlide(), {}}, Paper);
        Document.SetOrientation(Turn);
        Document.StartDoc();
        return Document;
    }
    // As many pages, each with a picture of its own.
    PrintDocument Pages(int Count, const QByteArray& Jpeg) const {
        PrintDocument Document = Begun();
        for (int Page = 1; Page <= Count; ++Page) {
            const QString Name = u"p%1.jpg"_s.arg(Page);
            if (Page > 1) Document.NewPage();
            Place(Document, {File(Name, Jpeg), {}}, {1, 1, 6.5, 4.875});
        }
        Document.EndDoc();
        return Document;
    }

    harness::TempFolder Folder;
};

TEST_F(PdfWriterTest, PagesHaveTheSizeOfThePaper) {
    struct Row {
        PageTurn Turn;
        QSizeF Paper, Points;
    };
    const Row Table[] = {{PageTurn::Portrait, LetterPaper, {612, 792}},
                         {PageTurn::Landscape, LetterPaper, {792, 612}},
                         {PageTurn::Portrait, A4Paper, {595.276, 841.89}},
                         {PageTurn::Landscape, A4Paper, {841.89, 595.276}}};
    for (const Row& Each : Table) {
        PrintDocument Document = Begun(Each.Turn, Each.Paper);
        Place(Document, {NoSlide(), {}}, {1, 1, 2, 2});
        Document.NewPage();
        Place(Document, {NoSlide(), {}}, {1, 1, 2, 2});
        Document.EndDoc();
        EXPECT_TRUE(WritePdf(Document, Pdf()));
        EXPECT_EQ(PagesIn(Pdf()), 2);
        EXPECT_NEAR(PageSizeIn(Pdf()).width(), Each.Points.width(), 0.01);
        EXPECT_NEAR(PageSizeIn(Pdf()).height(), Each.Points.height(), 0.01);
    }
}

TEST_F(PdfWriterTest, BearsTheTitleOfTheDocument) {
    PrintDocument Document = Pages(1, JpegOf(Plain(Qt::red, {80, 60})));
    WritePdf(Document, Pdf());
    EXPECT_EQ("", InfoOf(Pdf(), u"Title"_s).toStdString());
    Document.SetTitle(u"Łódź 2026"_s);
    WritePdf(Document, Pdf());
    EXPECT_EQ("Łódź 2026", InfoOf(Pdf(), u"Title"_s).toStdString());
}

TEST_F(PdfWriterTest, JpegsKeepTheirOwnBytes) {
    PrintDocument Document = Begun();
    QByteArrayList Files;
    for (const char* Name : {"rgb420.jpg", "rgb444.jpg", "grey.jpg", "progressive.jpg"})
        Files << ReadFile(PictureFile(QString::fromLatin1(Name)));
    Files << WithExif(JpegOf(Noise({64, 48}, 5)), ExifBlock(false, 6)) + "what a camera adds";
    for (int I = 0; I < Files.size(); ++I) {
        if (I == 3) Document.NewPage();
        Place(Document, {File(u"%1.jpg"_s.arg(I), Files[I]), {}}, {1, 1.0 + I, 1, 1});
    }
    Document.NewPage();
    Place(Document, {{}, Files[1]}, {1, 1, 1, 1});
    Document.EndDoc();
    WritePdf(Document, Pdf());
    EXPECT_EQ(PicturesIn(Pdf()), Files + QByteArrayList{Files[1]});
}

TEST_F(PdfWriterTest, APictureIsInTheFileOnceForAllItsPages) {
    const QByteArray Jpeg = JpegOf(Noise({300, 200}, 7));
    QByteArray Png;
    QBuffer Buffer(&Png);
    ASSERT_TRUE(Noise({200, 150}, 8).save(&Buffer, "png"));
    const PrintPicture Two[] = {{File(u"a.jpg"_s, Jpeg), {}}, {File(u"b.png"_s, Png), {}}};
    PrintDocument Document = Begun();
    for (int Page = 0; Page < 20; ++Page) {
        if (Page > 0) Document.NewPage();
        for (int Cell = 0; Cell < 6; ++Cell) Place(Document, Two[Page % 2], {1, 1.0 + Cell, 1, 1});
    }
    Document.EndDoc();
    WritePdf(Document, Pdf());
    EXPECT_EQ(PagesIn(Pdf()), 20);
    EXPECT_EQ(ReadFile(Pdf()).count(Jpeg), 1);
    const qint64 Pixels = 200 * 150 * 3;
    EXPECT_LT(FileSize(Pdf()), Jpeg.size() + Pixels + 40000);
}

TEST_F(PdfWriterTest, PicturesStandAtTheirPlaces) {
    QByteArray Png;
    QBuffer Buffer(&Png);
    ASSERT_TRUE(Plain(Green, {70, 70}).save(&Buffer, "png"));
    const QRectF RedPlace(1, 1, 2.9, 1.5125), GreenPlace(4.05, 2.6625, 0.75625, 1.5125);
    const QRectF BluePlace(7.1, 5.9875, 2.9, 1.5125);
    PrintDocument Document = Begun(PageTurn::Landscape);
    Document.NewPage();
    Place(Document, {File(u"r.jpg"_s, JpegOf(Plain(Red, {290, 151}))), {}}, RedPlace);
    Place(Document, {File(u"g.png"_s, Png), {}}, GreenPlace);
    Place(Document, {{}, JpegOf(Plain(Blue, {20, 10}))}, BluePlace);
    Document.EndDoc();
    WritePdf(Document, Pdf());
    EXPECT_EQ(WhereIs(PageIn(Pdf(), 1), Red), QRectF());
    const QImage Page = PageIn(Pdf(), 2);
    EXPECT_EQ(Page.size(), QSize(3300, 2550));
    ExpectPlace(Page, Red, RedPlace);
    ExpectPlace(Page, Green, GreenPlace);
    ExpectPlace(Page, Blue, BluePlace);
}

TEST_F(PdfWriterTest, TurnedJpegsComeUprightWithTheirOwnBytes) {
    for (const Lying& How : AllLying) {
        SCOPED_TRACE(How.Orientation);
        const QSize Stored = How.Orientation >= 5 ? QSize(320, 480) : QSize(480, 320);
        const QByteArray Jpeg = WithExif(JpegOf(Fields(How.TL, How.TR, How.BL, How.BR, Stored)),
                                         ExifBlock(false, How.Orientation));
        PrintDocument Document = Begun();
        Place(Document, {{}, Jpeg}, {1, 1, 3, 2});
        Document.EndDoc();
        WritePdf(Document, Pdf());
        EXPECT_EQ(PicturesIn(Pdf()), QByteArrayList{Jpeg});
        const QImage Page = PageIn(Pdf(), 1);
        const QRect Dots(DotsToTheInch, DotsToTheInch, 3 * DotsToTheInch, 2 * DotsToTheInch);
        ExpectFields(Page.copy(Dots), Red, Green, Blue, Grey, 8);
        ExpectPlace(Page, Red, {1, 1, 1.5, 1});
    }
}

TEST_F(PdfWriterTest, OtherPicturesHaveTheColoursOfTheScreen) {
    PrintDocument Document = Begun();
    const char* const Names[] = {"cmyk.jpg", "rgb8.png", "lab.tif", "palette8.pcx", "alpha32.bmp"};
    double Y = 1;
    for (const char* Name : Names)
        Place(Document, {PictureFile(QString::fromLatin1(Name)), {}}, {1, Y++, 1, 0.6});
    Document.EndDoc();
    WritePdf(Document, Pdf());
    const QImage Page = PageIn(Pdf(), 1);
    Y = 1;
    for (const char* Name : Names) {
        SCOPED_TRACE(Name);
        const QImage Wanted = Loaded(PictureFile(QString::fromLatin1(Name))).Picture();
        const QImage Is = Page.copy(int(DotsToTheInch), int(Y++ * DotsToTheInch), 300, 180);
        for (const QPointF At : {QPointF(.25, .25), {.75, .25}, {.25, .75}, {.75, .75}})
            ExpectNear(
                Is, At.x(), At.y(),
                Wanted.pixelColor(int(At.x() * Wanted.width()), int(At.y() * Wanted.height())), 4);
    }
}

TEST_F(PdfWriterTest, ALargePictureHasAsManyPixelsAsPaperShows) {
    QByteArray Png;
    QBuffer Buffer(&Png);
    ASSERT_TRUE(Motif({3000, 2000}).save(&Buffer, "png"));
    PrintDocument Document = Begun();
    Place(Document, {{}, Png}, {1, 1, 1.5, 1});
    Place(Document, {{}, Png}, {1, 3, 6, 4});  // the same at another size
    Document.EndDoc();
    WritePdf(Document, Pdf());
    const QString List = QString::fromUtf8(Output(u"pdfimages"_s, {u"-list"_s, Pdf()}));
    EXPECT_TRUE(List.contains(QRegularExpression(u"image +900 +600 +rgb"_s))) << List.toStdString();
    const QImage Page = PageIn(Pdf(), 1);
    ExpectFields(Page.copy(300, 300, 450, 300), Red, Green, Blue, Grey, 4);
    ExpectFields(Page.copy(300, 900, 1800, 1200), Red, Green, Blue, Grey, 4);
}

TEST_F(PdfWriterTest, WhatCannotBeReadAnyMoreIsStoodInFor) {
    PrintDocument Document = Pages(2, JpegOf(Plain(Red, {40, 30})));
    WriteFile(Folder / u"p1.jpg"_s, "no picture");
    DeleteFile(Folder / u"p2.jpg"_s);
    WritePdf(Document, Pdf());
    for (const int Page : {1, 2}) ExpectPlace(PageIn(Pdf(), Page), Qt::magenta, {1, 1, 6.5, 4.875});
    EXPECT_EQ(ReadFile(Pdf()).count(ReadFile(NoSlide())), 1);
    DeleteFile(NoSlide());
    const QStringList Before = harness::Everything(Folder.Path());
    EXPECT_THROW(WritePdf(Document, Pdf()), Fault);
    EXPECT_EQ(harness::Differences(Before, harness::Everything(Folder.Path())), "");
}

TEST_F(PdfWriterTest, EveryPictureIsToldOfAndStoppingLeavesTheOldFile) {
    const PrintDocument Document = Pages(3, JpegOf(Noise({64, 48}, 9)));
    WriteFile(Pdf(), "the old one");
    const QStringList Before = harness::Everything(Folder.Path());
    std::vector<int> Told;
    EXPECT_FALSE(WritePdf(Document, Pdf(), [&](const PrintProgress& Now) {
        EXPECT_EQ(Now.Total, 3);
        Told.push_back(Now.Done);
        return Now.Done < 2;
    }));
    EXPECT_EQ(Told, (std::vector{1, 2}));
    EXPECT_EQ(harness::Differences(Before, harness::Everything(Folder.Path())), "");
    EXPECT_TRUE(WritePdf(Document, Pdf(), [](const PrintProgress&) { return true; }));
    EXPECT_EQ(PagesIn(Pdf()), 3);
}

TEST_F(PdfWriterTest, ItCanBeStoppedAmongTextsToo) {
    PrintDocument Document({});
    Document.StartDoc();
    for (int I = 0; I < 3; ++I) Document.DrawText({u"rose"_s, {1, 1, 2, 0.3}});
    Document.EndDoc();
    int Told = 0;
    EXPECT_FALSE(WritePdf(Document, Pdf(), [&](const PrintProgress&) { return ++Told < 2; }));
    EXPECT_EQ(2, Told);
    EXPECT_FALSE(FileExists(Pdf()));
}

TEST_F(PdfWriterTest, AFullDiskAtAnyByteLeavesTheOldFileAndNothingBeside) {
    const PrintDocument Document = Pages(3, JpegOf(Noise({900, 700}, 10)));
    WriteFile(Pdf(), "the old one");
    const QStringList Before = harness::Everything(Folder.Path());
    for (const qint64 Room : {0, 1, 1000000, 2000000, 3000000}) {
        qint64 Free = Room;
        bool WasFull = false;
        SetHostWatcher([&](HostStep Step, const QString&, qint64& Length) {
            if (Step != HostStep::Write) return;
            WasFull |= Length > Free;
            Length = std::min(Length, Free);
            Free -= Length;
        });
        EXPECT_THROW(WritePdf(Document, Pdf()), Fault) << Room;
        SetHostWatcher({});
        EXPECT_TRUE(WasFull) << Room;
        EXPECT_EQ(harness::Differences(Before, harness::Everything(Folder.Path())), "") << Room;
    }
}

TEST_F(PdfWriterTest, AFailingStepAtTheEndLeavesTheOldFile) {
    const PrintDocument Document = Pages(1, JpegOf(Noise({90, 70}, 10)));
    WriteFile(Pdf(), "the old one");
    const QStringList Before = harness::Everything(Folder.Path());
    for (const HostStep Failing : {HostStep::Sync, HostStep::Rename}) {
        SetHostWatcher([&](HostStep Step, const QString& Path, qint64&) {
            if (Step == Failing) throw Fault(u"no"_s, Path);
        });
        EXPECT_THROW(WritePdf(Document, Pdf()), Fault);
        SetHostWatcher({});
        EXPECT_EQ(harness::Differences(Before, harness::Everything(Folder.Path())), "");
    }
    EXPECT_THROW(WritePdf(Document, Folder / u"nowhere/out.pdf"_s), Fault);
}

TEST_F(PdfWriterTest, AFaultNamesTheFileThatTheUserHasNamed) {
    const PrintDocument Document = Pages(1, JpegOf(Noise({90, 70}, 10)));
    const auto FileNamed = [&Document](const QString& Path) {
        try {
            WritePdf(Document, Path);
        } catch (const Fault& Problem) {
            return Problem.File().toStdString();
        }
        return std::string("none");
    };
    const QString Nowhere = Folder / u"nowhere/out.pdf"_s;
    EXPECT_EQ(Nowhere.toStdString(), FileNamed(Nowhere));
    for (const HostStep Failing : {HostStep::Write, HostStep::Sync}) {
        SetHostWatcher([&](HostStep Step, const QString& Path, qint64&) {
            if (Step == Failing) throw Fault(u"no"_s, Path);
        });
        EXPECT_EQ(Pdf().toStdString(), FileNamed(Pdf()));
        SetHostWatcher({});
    }
}

// Bytes of this process that are in memory.
qint64 Resident() {
    QFile Numbers(u"/proc/self/statm"_s);
    if (!Numbers.open(QIODevice::ReadOnly)) return 0;
    return Numbers.readAll().split(' ').value(1).toLongLong() * 4096;
}

TEST_F(PdfWriterTest, AThousandPagesTakeNoMoreMemoryThanAHundred) {
    if (RunsUnderSanitizer || Resident() == 0) GTEST_SKIP() << "freed memory is kept, or unknown";
    const QByteArray Jpeg = JpegOf(Noise({300, 225}, 11));
    ASSERT_GT(Jpeg.size(), 100000);
    const PrintDocument Document = Pages(1000, Jpeg);
    qint64 AtHundred = 0, Most = 0;
    WritePdf(Document, Pdf(), [&](const PrintProgress& Now) {
        if (Now.Done == 100) AtHundred = Resident();
        if (Now.Done > 100) Most = std::max(Most, Resident());
        return true;
    });
    EXPECT_EQ(PagesIn(Pdf()), 1000);
    EXPECT_GT(FileSize(Pdf()), 1000 * Jpeg.size());
    constexpr qint64 Allowed = 10 << 20;  // of the hundred million bytes that went through
    EXPECT_LT(Most - AtHundred, Allowed);
}

// The most that was in memory since the last call, in bytes.
qint64 MostResident() {
    QFile Status(u"/proc/self/status"_s), Reset(u"/proc/self/clear_refs"_s);
    if (!Status.open(QIODevice::ReadOnly) || !Reset.open(QIODevice::WriteOnly)) return 0;
    const QString Text = QString::fromLatin1(Status.readAll());
    Reset.write("5");
    const QRegularExpression Line(u"VmHWM:\\s+(\\d+) kB"_s);
    return Line.match(Text).captured(1).toLongLong() * 1024;
}

TEST_F(PdfWriterTest, AJpegIsNotUnpackedHoweverLargeItIs) {
    if (RunsUnderSanitizer || Resident() == 0) GTEST_SKIP() << "freed memory is kept, or unknown";
    const QByteArray Jpeg = JpegOf(Plain(Blue, {4000, 3000}));
    PrintDocument Document = Begun();
    for (int Cell = 0; Cell < 8; ++Cell)
        Place(Document, {File(u"%1.jpg"_s.arg(Cell), Jpeg), {}}, {1, 1.0 + Cell, 1, 0.75});
    Document.EndDoc();
    ASSERT_GT(MostResident(), 0);
    const qint64 Before = Resident();
    WritePdf(Document, Pdf());
    constexpr qint64 OnePicture = 4000 * 3000 * 4;
    EXPECT_LT(MostResident() - Before, OnePicture);
    EXPECT_EQ(PicturesIn(Pdf()), QByteArrayList(8, Jpeg));
}

}  // namespace
}  // namespace neb
