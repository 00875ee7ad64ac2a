// Documents saved as ".ppd" and loaded again: everything comes back as it was.
#include "printing/PpdFile.h"

#include <cmath>
#include <thread>

#include "harness/FolderState.h"
#include "harness/MemoryFolder.h"
#include "harness/Sanitizer.h"
#include "harness/WithoutPrivileges.h"
#include "printing/PrintRig.h"

namespace neb {
namespace {

using namespace harness;
using namespace tests;

// Worked out by hand from the layout in docs/PPD-FORMAT.md.
constexpr char GoldenHex[] =
    "4e45425050440d0a"  // NEBPPD, a line's end
    "01000000"          // version 1
    "616263"            // the picture "abc"
    "6f74686572"        // the picture "other"
    "0000000000002140"  // 8.5 in wide
    "0000000000002640"  // 11 in high
    "01000000"          // landscape
    "000000000000d03f"  // margins: left 0.25 in
    "000000000000e03f"  // top 0.5 in
    "000000000000f03f"  // right 1 in
    "0000000000000040"  // bottom 2 in
    "02000000"          // two pictures
    "0300000000000000"  // three bytes
    "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad"
    "0500000000000000"  // five bytes
    "d9298a10d1b0735837dc4bd85dac641b0f3cef27a47e5d53a54f2f3f5b2fcffa"
    "02000000"  // two pages
    "02000000"  // two pictures on the first one
    "00000000"  // "abc" at 1, 2, 3 by 4 in
    "000000000000f03f000000000000004000000000000008400000000000001040"
    "01000000"  // "other" at 4.15, 2, 1.5 by 0.1 in
    "9a999999999910400000000000000040000000000000f83f9a9999999999b93f"
    "01000000"  // one text
    "00000000"  // to the left, at 1, 6, 3 by 0.25 in
    "000000000000f03f00000000000018400000000000000840000000000000d03f"
    "020000004100e900"  // two letters
    "01000000"          // one picture on the second page
    "00000000"
    "000000000000f03f000000000000004000000000000008400000000000001040"
    "01000000"  // one text
    "01000000"  // to the right, at 7, 7.7, 3 by 0.2 in
    "0000000000001c40cdcccccccccc1e4000000000000008409a9999999999c93f"
    "0500000032002000"  // "2 / 2"
    "2f0020003200"
    "6601000000000000"  // the table's length
    "d952a2910b434a7a4641d5c5943ef2ece2b664cbfd33d9a4570d595cd780060d"
    "0d0a505044454e44";  // a line's end, PPDEND

QByteArray Golden() {
    return QByteArray::fromHex(GoldenHex);
}

class PpdFileTest : public ::testing::Test {
  protected:
    PpdFileTest() { SaveJpeg(NoSlide(), Plain(Qt::magenta, {80, 60})); }
    ~PpdFileTest() override { SetHostWatcher({}); }
    QString NoSlide() const { return Folder / u"NoSlide.jpg"_s; }
    QString Ppd() const { return Folder / u"out.ppd"_s; }
    PrintPicture StandIn() const { return {NoSlide(), {}}; }
    PrintPicture File(const QString& Name, const QByteArray& Bytes) const {
        WriteFile(Folder / Name, Bytes);
        return {Folder / Name, {}};
    }
    PrintDocument Begun(QSizeF Paper = LetterPaper) const {
        PrintDocument Document(StandIn(), Paper);
        Document.StartDoc();
        return Document;
    }
    // The one that the golden bytes hold.
    PrintDocument Small() const {
        PrintDocument Document = Begun();
        Document.SetOrientation(PageTurn::Landscape);
        Document.SetMarginLeft(u".25in"_s);
        Document.SetMarginTop(u".5in"_s);
        Document.SetMarginRight(u"1in"_s);
        Document.SetMarginBottom(u"2in"_s);
        Place(Document, {{}, "abc"}, {1, 2, 3, 4});
        Place(Document, {{}, "other"}, {4.15, 2, 1.5, 0.1});
        Document.DrawText({u"A\u00E9"_s, {1, 6, 3, 0.25}});
        Document.NewPage();
        Place(Document, {{}, "abc"}, {1, 2, 3, 4});
        Document.DrawText({u"2 / 2"_s, {7, 7.7, 3, 0.2}, TextSide::Right});
        Document.EndDoc();
        return Document;
    }
    // As many pages, each with a picture file of its own.
    PrintDocument Pages(int Count, const QByteArray& Jpeg) const {
        PrintDocument Document = Begun();
        for (int Page = 1; Page <= Count; ++Page) {
            if (Page > 1) Document.NewPage();
            Place(Document, File(u"p%1.jpg"_s.arg(Page), Jpeg + QByteArray::number(Page)),
                  {1, 1, 6.5, 4.875});
        }
        Document.EndDoc();
        return Document;
    }
    std::shared_ptr<PrintDocument> Loaded() const { return ReadPpd(Ppd(), StandIn()); }
    // Loads what was saved; it has to be saved as the very same bytes.
    std::shared_ptr<PrintDocument> SavedAndLoaded(const PrintDocument& Document) const {
        EXPECT_TRUE(WritePpd(Document, Ppd()));
        const auto Read = Loaded();
        EXPECT_TRUE(WritePpd(*Read, Folder / u"again.ppd"_s));
        EXPECT_EQ(ReadFile(Folder / u"again.ppd"_s), ReadFile(Ppd()));
        return Read;
    }

    harness::MemoryFolder Folder;
};

void ExpectSamePages(const PrintDocument& Is, const PrintDocument& Was) {
    ASSERT_EQ(Is.PageCount(), Was.PageCount());
    for (int Page = 1; Page <= Was.PageCount(); ++Page) {
        const auto Places = Is.PlacesOn(Page), Wanted = Was.PlacesOn(Page);
        ASSERT_EQ(Places.size(), Wanted.size());
        for (std::size_t I = 0; I < Places.size(); ++I) {
            EXPECT_EQ(Places[I].Picture, Wanted[I].Picture);
            EXPECT_EQ(std::memcmp(&Places[I].Place, &Wanted[I].Place, sizeof(QRectF)), 0);
        }
        const auto Texts = Is.TextsOn(Page), WantedTexts = Was.TextsOn(Page);
        ASSERT_EQ(Texts.size(), WantedTexts.size());
        for (std::size_t I = 0; I < Texts.size(); ++I) {
            EXPECT_EQ(Texts[I].Text, WantedTexts[I].Text);
            EXPECT_EQ(Texts[I].Side, WantedTexts[I].Side);
            EXPECT_EQ(std::memcmp(&Texts[I].Place, &WantedTexts[I].Place, sizeof(QRectF)), 0);
        }
    }
}

TEST_F(PpdFileTest, IsLaidOutAsTheDescriptionSays) {
    EXPECT_TRUE(WritePpd(Small(), Ppd()));
    EXPECT_EQ(ReadFile(Ppd()).toHex(), Golden().toHex());
}

TEST_F(PpdFileTest, AFileOfTheFirstVersionIsRead) {
    WriteFile(Ppd(), Golden());
    const auto Read = Loaded();
    EXPECT_EQ(Read->Paper(), LetterPaper);
    EXPECT_EQ(Read->Orientation(), PageTurn::Landscape);
    EXPECT_EQ(Read->Margins(), QMarginsF(.25, .5, 1, 2));
    EXPECT_EQ(Read->StandIn().Path, NoSlide());
    EXPECT_EQ(Read->PictureCount(), 2);
    EXPECT_EQ(FileBytesOf(Read->Picture(0)), "abc");
    EXPECT_EQ(FileBytesOf(Read->Picture(1)), "other");
    ExpectSamePages(*Read, Small());
    EXPECT_THROW(Read->NewPage(), Fault) << "it is no longer composed";
}

TEST_F(PpdFileTest, MeasuresComeBackToTheLastBit) {
    PrintDocument Document = Begun(A4Paper);
    Document.SetMarginLeft(u"-0in"_s);
    Document.SetMarginTop(u"0.1in"_s);
    Document.SetMarginRight(u"-1.3e-7in"_s);
    Document.DrawPicture({{}, "a"}, QRectF(-0.0, 0.1 + 0.2, 1.0 / 3, 5e-324));
    Document.DrawPicture({{}, "a"}, QRectF(-100000, 99999.99999, std::nextafter(1, 2), 100000));
    Document.DrawText({u"x"_s, QRectF(-0.0, 2.0 / 3, 0, -0.0)});
    Document.EndDoc();
    const auto Read = SavedAndLoaded(Document);
    ExpectSamePages(*Read, Document);
    EXPECT_EQ(Read->Paper(), A4Paper);
    EXPECT_TRUE(std::signbit(Read->Margins().left()));
    EXPECT_EQ(Read->Margins().top(), 0.1);
    EXPECT_EQ(Read->Margins().right(), -1.3e-7);
}

TEST_F(PpdFileTest, TextsComeBackToTheLastCharacter) {
    QString Odd = u"\uFEFF\u0000 a\r\n\U0001F600\uFFFF"_s;
    Odd += QChar(0xD800);  // half of a character
    PrintDocument Document = Begun();
    Document.DrawText({Odd, {1, 1, 1, 1}});
    Document.DrawText({QString(100000, u'\u00FC'), {1, 1, 1, 1}, TextSide::Right});
    Document.EndDoc();
    ExpectSamePages(*SavedAndLoaded(Document), Document);
}

TEST_F(PpdFileTest, EmptyDocumentsAndEmptyPagesComeBack) {
    PrintDocument Document(StandIn());
    EXPECT_EQ(SavedAndLoaded(Document)->PageCount(), 0);
    Document.StartDoc();
    Document.EndDoc();
    EXPECT_EQ(SavedAndLoaded(Document)->PageCount(), 1);
    Document.StartDoc();
    Document.NewPage();
    Place(Document, {{}, "a"}, {1, 1, 1, 1});
    Document.NewPage();
    Document.NewPage();
    Document.EndDoc();
    ExpectSamePages(*SavedAndLoaded(Document), Document);
}

TEST_F(PpdFileTest, EveryKindOfPictureKeepsItsOwnBytes) {
    PrintDocument Document = Begun();
    QByteArrayList Files;
    for (const char* Name : {"rgb420.jpg", "cmyk.jpg", "rgb8.png", "lab.tif", "palette8.pcx"}) {
        Files << ReadFile(PictureFile(QString::fromLatin1(Name)));
        Place(Document, {PictureFile(QString::fromLatin1(Name)), {}}, {1, 1, 1, 1});
    }
    Document.EndDoc();
    const auto Read = SavedAndLoaded(Document);
    ASSERT_EQ(Read->PictureCount(), Files.size());
    for (int I = 0; I < Files.size(); ++I) EXPECT_EQ(FileBytesOf(Read->Picture(I)), Files[I]);
}

TEST_F(PpdFileTest, APictureIsInTheFileOnceForAllItsPlacesAndNames) {
    const QByteArray Jpeg = JpegOf(Noise({300, 200}, 7));
    const PrintPicture Three[] = {File(u"a.jpg"_s, Jpeg), File(u"b.jpg"_s, Jpeg + "b"),
                                  File(u"copy of a.jpg"_s, Jpeg)};
    PrintDocument Document = Begun();
    for (int I = 0; I < 60; ++I) {
        if (I % 6 == 5) Document.NewPage();
        Place(Document, Three[I % 3], {1, 1.0 + I, 1, 1});
    }
    Document.EndDoc();
    const auto Read = SavedAndLoaded(Document);
    EXPECT_EQ(Read->PictureCount(), 2);
    EXPECT_EQ(Read->PlaceCount(), 60);
    EXPECT_EQ(FileBytesOf(Read->Picture(1)), Jpeg + "b");
    EXPECT_LT(FileSize(Ppd()), 2 * Jpeg.size() + 60 * 36 + 500);
}

TEST_F(PpdFileTest, WhatCannotBeReadIsKeptAsTheStandIn) {
    PrintDocument Document = Pages(4, JpegOf(Plain(Red, {40, 30})));
    DeleteFile(Folder / u"p2.jpg"_s);
    WriteFile(Folder / u"p3.jpg"_s, "");
    WriteFile(Folder / u"p4.jpg"_s, "no picture, but bytes");
    const auto Read = SavedAndLoaded(Document);
    ASSERT_EQ(Read->PictureCount(), 3);
    for (const int Page : {2, 3})
        EXPECT_EQ(FileBytesOf(Read->Picture(Read->PlacesOn(Page)[0].Picture)), ReadFile(NoSlide()));
    EXPECT_EQ(FileBytesOf(Read->Picture(2)), "no picture, but bytes");
    DeleteFile(NoSlide());
    const QStringList Before = Everything(Folder.Path());
    EXPECT_THROW(WritePpd(Document, Ppd()), Fault);
    EXPECT_EQ(Differences(Before, Everything(Folder.Path())), "");
}

TEST_F(PpdFileTest, WhatCannotBeShownIsStoodInForAfterLoading) {
    PrintDocument Document = Begun();
    Place(Document, {{}, "no picture"}, {1, 1, 2, 2});
    Place(Document, {{}, JpegOf(Plain(Red, {40, 40}))}, {1, 4, 2, 2});
    Document.EndDoc();
    QImage Page = Plain(Qt::white, {850, 1100});
    QPainter Painter(&Page);
    SavedAndLoaded(Document)->PaintPage(Painter, 1, 100);
    Painter.end();
    EXPECT_LT(Distance(Page.pixel(200, 200), QColor(Qt::magenta).rgb()), 8);
    EXPECT_LT(Distance(Page.pixel(200, 500), Red.rgb()), 8);
}

TEST_F(PpdFileTest, ALoadedDocumentIsSavedOverItsOwnFile) {
    const QByteArray Jpeg = JpegOf(Noise({600, 400}, 3));
    WritePpd(Pages(5, Jpeg), Ppd());
    const QByteArray Bytes = ReadFile(Ppd());
    const auto Read = Loaded();
    EXPECT_TRUE(WritePpd(*Read, Ppd()));
    EXPECT_EQ(ReadFile(Ppd()), Bytes);
    EXPECT_EQ(FileBytesOf(Read->Picture(4)), Jpeg + "5");
}

TEST_F(PpdFileTest, ALoadedDocumentIsWholeWhateverBecomesOfItsFile) {
    const QByteArray Jpeg = JpegOf(Noise({600, 400}, 3));
    WritePpd(Pages(3, Jpeg), Ppd());
    const QByteArray Bytes = ReadFile(Ppd());
    const auto First = Loaded();
    WritePpd(Small(), Ppd());
    EXPECT_EQ(Loaded()->PictureCount(), 2);
    for (int I = 0; I < 3; ++I)
        EXPECT_EQ(FileBytesOf(First->Picture(I)), Jpeg + QByteArray::number(I + 1));
    DeleteFile(Ppd());
    EXPECT_TRUE(WritePpd(*First, Ppd()));
    EXPECT_EQ(ReadFile(Ppd()), Bytes);
}

TEST_F(PpdFileTest, AFileThatIsCutOffAfterLoadingGivesAFaultAndNoRubbish) {
    WritePpd(Pages(3, JpegOf(Noise({60, 40}, 3))), Ppd());
    const auto Read = Loaded();
    WriteFile(Ppd(), ReadFile(Ppd()).left(100));
    EXPECT_THROW(FileBytesOf(Read->Picture(2)), Fault);
}

TEST_F(PpdFileTest, PicturesAreReadFromManyThreadsAtOnce) {
    const QByteArray Jpeg = JpegOf(Noise({300, 200}, 3));
    WritePpd(Pages(20, Jpeg), Ppd());
    const auto Read = Loaded();
    std::atomic<int> Right = 0;
    std::vector<std::jthread> Threads;
    for (int Thread = 0; Thread < 4; ++Thread)
        Threads.emplace_back([&, Thread] {
            for (int I = 0; I < 200; ++I) {
                const int Number = (I * 7 + Thread) % 20;
                Right +=
                    FileBytesOf(Read->Picture(Number)) == Jpeg + QByteArray::number(Number + 1);
            }
        });
    Threads.clear();
    EXPECT_EQ(Right, 800);
}

TEST_F(PpdFileTest, EveryPictureIsToldOfAndStoppingLeavesTheOldFile) {
    const PrintDocument Document = Pages(3, JpegOf(Noise({64, 48}, 9)));
    WriteFile(Ppd(), "the old one");
    const QStringList Before = Everything(Folder.Path());
    std::vector<int> Told;
    const auto UntilTwo = [&](const PrintProgress& Now) {
        EXPECT_EQ(Now.Total, 3);
        Told.push_back(Now.Done);
        return Now.Done < 2;
    };
    EXPECT_FALSE(WritePpd(Document, Ppd(), UntilTwo));
    EXPECT_EQ(Differences(Before, Everything(Folder.Path())), "");
    EXPECT_TRUE(WritePpd(Document, Ppd(), [](const PrintProgress&) { return true; }));
    EXPECT_EQ(ReadPpd(Ppd(), StandIn(), UntilTwo), nullptr);
    EXPECT_EQ(Told, (std::vector{1, 2, 1, 2}));
    EXPECT_NE(ReadPpd(Ppd(), StandIn(), [](const PrintProgress&) { return true; }), nullptr);
}

TEST_F(PpdFileTest, AFullDiskAtAnyByteLeavesTheOldFileAndNothingBeside) {
    const PrintDocument Document = Pages(3, JpegOf(Noise({900, 700}, 10)));
    WritePpd(Document, Ppd());
    const qint64 Whole = FileSize(Ppd());
    ASSERT_GT(Whole, 3000000);
    WriteFile(Ppd(), "the old one");
    const QStringList Before = Everything(Folder.Path());
    for (const qint64 Room : {qint64(0), qint64(1), Whole / 3, Whole - 400, Whole - 1}) {
        qint64 Free = Room;
        SetHostWatcher([&](HostStep Step, const QString&, qint64& Length) {
            if (Step != HostStep::Write) return;
            Length = std::min(Length, Free);
            Free -= Length;
        });
        EXPECT_THROW(WritePpd(Document, Ppd()), Fault) << Room;
        SetHostWatcher({});
        EXPECT_EQ(Differences(Before, Everything(Folder.Path())), "") << Room;
    }
}

TEST_F(PpdFileTest, AFailingStepAtTheEndLeavesTheOldFile) {
    WriteFile(Ppd(), "the old one");
    const QStringList Before = Everything(Folder.Path());
    for (const HostStep Failing : {HostStep::Sync, HostStep::Rename}) {
        SetHostWatcher([&](HostStep Step, const QString& Path, qint64&) {
            if (Step == Failing) throw Fault(u"no"_s, Path);
        });
        EXPECT_THROW(WritePpd(Small(), Ppd()), Fault);
        SetHostWatcher({});
        EXPECT_EQ(Differences(Before, Everything(Folder.Path())), "");
    }
    EXPECT_THROW(WritePpd(Small(), Folder / u"nowhere/out.ppd"_s), Fault);
}

TEST_F(PpdFileTest, AReadOnlyFileIsLoadedAndAReadOnlyFolderTellsWhy) {
    WritePpd(Small(), Ppd());
    SetReadOnly(Ppd());
    EXPECT_EQ(Loaded()->PageCount(), 2);
    const QString Closed = Folder / u"closed"_s;
    MakeDirs(Closed);
    QFile(Closed).setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    const WithoutPrivileges Ordinary;
    try {
        WritePpd(Small(), Closed + u"/out.ppd"_s);
        ADD_FAILURE() << "it was written";
    } catch (const Fault& Reason) {
        EXPECT_TRUE(Reason.File().startsWith(Closed)) << Reason.what();
    }
}

TEST_F(PpdFileTest, MeasuresThatNoFileHoldsAreRefusedBeforeItIsWritten) {
    constexpr double Far = 100000.1, NoNumber = std::numeric_limits<double>::quiet_NaN();
    const QRectF Texts[] = {{Far, 0, 1, 1}, {0, -Far, 1, 1}, {0, 0, -1, 1}, {0, 0, 1, NoNumber}};
    for (const QRectF& Each : Texts) {
        PrintDocument Document = Begun();
        Document.DrawText({u"x"_s, Each});
        EXPECT_THROW(WritePpd(Document, Ppd()), Fault) << Each.x() << ' ' << Each.y();
    }
    PrintDocument Wide = Begun();
    Place(Wide, {{}, "a"}, {1, 1, Far, 1});
    EXPECT_THROW(WritePpd(Wide, Ppd()), Fault);
    EXPECT_THROW(WritePpd(Begun({8.5, 0}), Ppd()), Fault);
    EXPECT_FALSE(NameExists(Ppd()));
}

// Bytes of this process that are in memory.
qint64 ResidentNow() {
    QFile Numbers(u"/proc/self/statm"_s);
    if (!Numbers.open(QIODevice::ReadOnly)) return 0;
    return Numbers.readAll().split(' ').value(1).toLongLong() * 4096;
}

TEST_F(PpdFileTest, AThousandPagesTakeNoMoreMemoryThanAHundred) {
    if (RunsUnderSanitizer || ResidentNow() == 0)
        GTEST_SKIP() << "freed memory is kept, or unknown";
    const QByteArray Jpeg = JpegOf(Noise({200, 150}, 11));
    ASSERT_GT(Jpeg.size(), 50000);
    const PrintDocument Document = Pages(1000, Jpeg);
    qint64 AtHundred = 0, Most = 0;
    const auto Watch = [&](const PrintProgress& Now) {
        if (Now.Done == 100) AtHundred = Most = ResidentNow();
        if (Now.Done > 100) Most = std::max(Most, ResidentNow());
        return true;
    };
    constexpr qint64 Allowed = 10 << 20;  // of the fifty million bytes that go through
    WritePpd(Document, Ppd(), Watch);
    EXPECT_LT(Most - AtHundred, Allowed);
    EXPECT_GT(FileSize(Ppd()), 1000 * Jpeg.size());
    const auto Read = ReadPpd(Ppd(), StandIn(), Watch);
    EXPECT_LT(Most - AtHundred, Allowed);
    EXPECT_EQ(Read->PageCount(), 1000);
}

}  // namespace
}  // namespace neb
