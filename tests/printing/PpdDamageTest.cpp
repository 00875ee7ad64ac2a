// ".ppd" files that are damaged, cut off or made to harm: each is refused in words.
#include <random>

#include "fuzz/PpdFuzzEntry.h"
#include "harness/MemoryFolder.h"
#include "printing/PrintRig.h"

namespace neb {
namespace {

using namespace tests;
using fuzz::PpdLayout;

template <class Number>
QByteArray Little(Number Value) {
    QByteArray Bytes(sizeof(Number), '\0');
    qToLittleEndian(Value, Bytes.data());
    return Bytes;
}

// Of two pages: the pictures "abc" and "other", "abc" again; one text.
QByteArray SmallFile(const QString& Folder) {
    PrintDocument Document({});
    Document.StartDoc();
    Place(Document, {{}, "abc"}, {1, 2, 3, 4});
    Place(Document, {{}, "other"}, {4.15, 2, 1.5, 0.1});
    Document.DrawText({u"Hi"_s, {1, 6, 3, 0.25}});
    Document.NewPage();
    Place(Document, {{}, "abc"}, {1, 2, 3, 4});
    Document.EndDoc();
    WritePpd(Document, Folder + u"small.ppd"_s);
    return ReadFile(Folder + u"small.ppd"_s);
}

class PpdDamageTest : public ::testing::Test {
  protected:
    PpdDamageTest() : Small(SmallFile(Folder.Path())), Table(PpdLayout::Header + 8) {}

    // What is said about a file; empty when it is read.
    QString Said(const QByteArray& Bytes) const {
        WriteFile(Folder / u"in.ppd"_s, Bytes);
        try {
            ReadPpd(Folder / u"in.ppd"_s, {});
            return {};
        } catch (const Fault& Reason) {
            EXPECT_EQ(Reason.File(), Folder / u"in.ppd"_s);
            return Reason.What();
        }
    }
    // The same for the small file with other bytes at a place of its table, sums put right.
    QString SaidWith(qsizetype At, const QByteArray& Bytes) const {
        QByteArray File = Small;
        File.replace(Table + At, Bytes.size(), Bytes);
        return Said(fuzz::Sealed(File));
    }

    harness::MemoryFolder Folder;
    const QByteArray Small;
    const qsizetype Table;  // where it starts
    const QString Damaged = u"The print document is damaged or not whole."_s;
};

// Places in the table of the small file.
enum At : qsizetype {
    Width = 0,
    Height = 8,
    Turn = 16,
    Margin = 20,
    Pictures = PpdLayout::Count,
    FirstLength = Pictures + 4,
    FirstSum = FirstLength + 8,
    SecondLength = FirstLength + PpdLayout::Entry,
    PageCount = FirstLength + 2 * PpdLayout::Entry,
    PlaceCount = PageCount + 4,
    FirstPicture = PlaceCount + 4,
    FirstPlace = FirstPicture + 4,
    SecondPicture = FirstPlace + 32,
    TextCount = SecondPicture + 36,
    Side = TextCount + 4,
    TextPlace = Side + 4,
    TextLength = TextPlace + 32,
    SecondPage = TextLength + 4 + 4
};

TEST_F(PpdDamageTest, TheSmallFileIsReadBeforeItIsDamaged) {
    EXPECT_EQ(Said(Small), "");
    EXPECT_EQ(fuzz::Sealed(Small), Small);
    EXPECT_EQ(SaidWith(Width, Little(9.5)), "") << "sums are put right";
    EXPECT_EQ(SaidWith(FirstPlace + 16, Little(7.25)), "");
    EXPECT_EQ(SaidWith(TextLength + 4, Little(quint16(u'y'))), "");
    EXPECT_EQ(SaidWith(SecondPage + 4, Little(quint32(1))), "") << "the other picture";
}

TEST_F(PpdDamageTest, EveryFileThatIsCutOffIsRefused) {
    for (qsizetype Length = 0; Length < Small.size(); ++Length)
        ASSERT_NE(Said(Small.left(Length)), "") << Length;
}

TEST_F(PpdDamageTest, EveryFlippedBitIsNoticed) {
    for (qsizetype At = 0; At < Small.size(); ++At) {
        for (int Bit = 0; Bit < 8; ++Bit) {
            QByteArray File = Small;
            File[At] = static_cast<char>(File[At] ^ 1 << Bit);
            ASSERT_NE(Said(File), "") << At << ' ' << Bit;
        }
    }
}

TEST_F(PpdDamageTest, EveryBytePutInOrTakenAwayIsNoticed) {
    for (qsizetype At = 0; At <= Small.size(); ++At) {
        ASSERT_NE(Said(Small.left(At) + '\0' + Small.mid(At)), "") << At;
        if (At < Small.size()) {
            ASSERT_NE(Said(Small.left(At) + Small.mid(At + 1)), "") << At;
        }
    }
}

TEST_F(PpdDamageTest, WhatIsNoPrintDocumentIsToldApart) {
    const QString Foreign = u"The file is no print document of this program."_s;
    for (const char* Bytes : {"", "NEB", "%PDF-1.5 and more of it", "\xFF\xD8\xFF\xE0"})
        EXPECT_EQ(Said(Bytes), Foreign) << Bytes;
    QByteArray AsText = Small;
    AsText.replace("\r\n", "\n");
    EXPECT_EQ(Said(AsText), Foreign) << "sent as a text";
    EXPECT_EQ(Said(Small.left(10)), Damaged);
    EXPECT_THROW(ReadPpd(Folder / u"nowhere.ppd"_s, {}), Fault);
    EXPECT_THROW(ReadPpd(Folder.Path(), {}), Fault);
}

TEST_F(PpdDamageTest, ALaterVersionIsToldApartWhateverFollows) {
    QByteArray Later = Small;
    Later.replace(8, 4, Little(quint32(2)));
    const QString Text = u"The print document was saved by a later version of this program."_s;
    EXPECT_EQ(Said(Later), Text);
    EXPECT_EQ(Said(fuzz::Sealed(Later)), Text);
    EXPECT_EQ(Said(Later.left(12)), Text);
    Later.replace(8, 4, Little(quint32(0)));
    EXPECT_EQ(Said(fuzz::Sealed(Later)), Damaged) << "there is none before the first";
}

TEST_F(PpdDamageTest, ADamagedPictureIsToldByItsNumber) {
    QByteArray File = Small;
    File[PpdLayout::Header + 4] = '!';
    EXPECT_EQ(Said(File), u"Picture 2 of the print document is damaged.");
}

TEST_F(PpdDamageTest, MeasuresThatAreNoneAreRefused) {
    constexpr double Infinite = std::numeric_limits<double>::infinity();
    constexpr double NoNumber = std::numeric_limits<double>::quiet_NaN();
    for (const double Wrong : {Infinite, -Infinite, NoNumber, 100001.0, 1e300})
        for (const At Place : {Width, Height, Margin, FirstPlace, TextPlace})
            for (int Field = 0; Field < (Place <= Height ? 1 : 4); ++Field)
                EXPECT_EQ(SaidWith(Place + 8 * Field, Little(Wrong)), Damaged)
                    << Wrong << ' ' << Place;
    for (const double Wrong : {0.0, -1.0}) {
        for (const qsizetype Size : {Width + 0, Height + 0, FirstPlace + 16, FirstPlace + 24})
            EXPECT_EQ(SaidWith(Size, Little(Wrong)), Damaged) << Wrong << ' ' << Size;
    }
    for (const qsizetype Size : {Width + 0, Height + 0})
        EXPECT_EQ(SaidWith(Size, Little(5e-324)), Damaged) << "paper that nobody could see";
    EXPECT_EQ(SaidWith(TextPlace + 16, Little(-1.0)), Damaged);
}

TEST_F(PpdDamageTest, NumbersOutOfRangeAreRefused) {
    struct Row {
        qsizetype Place;
        quint32 Wrong;
    };
    const Row Rows[] = {{Turn, 2},          {Turn, 0x80000000}, {Side, 2},
                        {FirstPicture, 1},  {FirstPicture, 2},  {FirstPicture, 0xFFFFFFFF},
                        {SecondPicture, 2}, {SecondPicture, 0},  // then one is never shown
                        {PageCount, 0},     {PageCount, 1},     {PageCount, 3},
                        {PlaceCount, 1},    {PlaceCount, 3},    {TextCount, 0},
                        {TextCount, 2},     {TextLength, 0},    {TextLength, 1},
                        {TextLength, 3},    {SecondPage, 0},    {SecondPage, 2}};
    for (const Row& Each : Rows)
        EXPECT_EQ(SaidWith(Each.Place, Little(Each.Wrong)), Damaged)
            << Each.Place << ' ' << Each.Wrong;
}

TEST_F(PpdDamageTest, CountsBeyondTheFileAreRefusedBeforeAnythingIsMadeForThem) {
    for (const At Place : {Pictures, PageCount, PlaceCount, TextCount, TextLength, SecondPage})
        for (const quint32 Wrong : {0x7FFFFFFFU, 0x80000000U, 0xFFFFFFFFU})
            EXPECT_EQ(SaidWith(Place, Little(Wrong)), Damaged) << Place;
    const auto Trailer = Small.size() - PpdLayout::Trailer - Table;
    for (const quint64 Wrong : {quint64(0), quint64(1) << 40, ~quint64(0), quint64(1) << 63}) {
        QByteArray File = Small;
        File.replace(Table + Trailer, 8, Little(Wrong));
        EXPECT_EQ(Said(File), Damaged) << Wrong;
    }
}

TEST_F(PpdDamageTest, PicturesThatDoNotFillTheirPartOfTheFileAreRefused) {
    const auto Sealed = [](const QByteArray& File, qsizetype From) {
        const qsizetype End = File.size() - PpdLayout::Trailer;
        QByteArray Right = File;
        const QByteArray Length = Little(quint64(End - From));
        Right.replace(End, 8, Length);
        return Right.replace(End + 8, 32,
                             fuzz::Sha256(File.left(12) + File.mid(From, End - From) + Length));
    };
    EXPECT_EQ(Said(Sealed(Small, Table)), "");
    for (const quint64 Wrong :
         {quint64(0), quint64(2), quint64(4), quint64(1) << 40, ~quint64(0)}) {
        QByteArray File = Small;
        File.replace(Table + FirstLength, 8, Little(Wrong));
        EXPECT_EQ(Said(Sealed(File, Table)), Damaged) << Wrong;
    }
    QByteArray Gap = Small;
    EXPECT_EQ(Said(Sealed(Gap.insert(Table, '\0'), Table + 1)), Damaged);
}

TEST_F(PpdDamageTest, APictureThatIsThereTwiceIsRefused) {
    QByteArray File = Small;
    File.replace(PpdLayout::Header + 3, 5, "abc")
        .replace(Table - 2 + SecondLength, 8, Little(quint64(3)));
    EXPECT_EQ(Said(fuzz::Sealed(File)), Damaged);
    File.replace(PpdLayout::Header + 3, 3, "abd");
    EXPECT_EQ(Said(fuzz::Sealed(File)), "") << "another one of three bytes";
}

TEST_F(PpdDamageTest, PicturesAndTextsOfNoLengthAreRefused) {
    QByteArray File = Small;
    File.replace(Table + FirstLength, 8, Little(quint64(0))).remove(PpdLayout::Header, 3);
    EXPECT_EQ(Said(fuzz::Sealed(File)), Damaged);
    File = Small;
    File.replace(Table + TextLength, 4, Little(quint32(0))).remove(Table + TextLength + 4, 4);
    EXPECT_EQ(Said(fuzz::Sealed(File)), Damaged);
    File = Small;
    File.replace(Table + TextLength, 4, Little(quint32(1))).remove(Table + TextLength + 4, 2);
    EXPECT_EQ(Said(fuzz::Sealed(File)), "") << "one letter";
}

TEST_F(PpdDamageTest, APictureTooLargeToBeShownIsRefusedBeforeItIsRead) {
    constexpr qint64 TooLarge = (450LL << 20) + 1;
    const QByteArray Length = Little(quint64(Small.size() - PpdLayout::Trailer - Table));
    QByteArray Rest = Small.mid(Table);
    Rest.replace(FirstLength, 8, Little(quint64(TooLarge)));
    const QByteArray Body = Rest.chopped(PpdLayout::Trailer);
    Rest.replace(Body.size() + 8, 32, fuzz::Sha256(Small.left(12) + Body + Length));
    QFile File(Folder / u"large.ppd"_s);
    ASSERT_TRUE(File.open(QIODevice::WriteOnly));
    File.write(Small.left(12));
    File.seek(12 + TooLarge + 5);  // nothing is there, and it takes no room
    File.write(Rest);
    File.close();
    try {
        ReadPpd(File.fileName(), {});
        ADD_FAILURE() << "it was read";
    } catch (const Fault& Reason) {
        EXPECT_EQ(Reason.What(), Damaged);
    }
}

TEST_F(PpdDamageTest, RandomChangesAreRefusedOrSavedAsTheVerySameBytes) {
    std::mt19937 Random(4711);
    for (int Round = 0; Round < 3000; ++Round) {
        QByteArray File = Small;
        for (unsigned Change = Random() % 4 + 1; Change > 0; --Change) {
            const auto At = static_cast<qsizetype>(Random() % static_cast<unsigned>(File.size()));
            const unsigned Kind = Random() % 8;
            if (Kind == 0) File.remove(At, Random() % 40);
            if (Kind == 1) File.insert(At, File.mid(At, Random() % 80));
            if (Kind > 1)
                File[std::min(At, File.size() - 1)] =
                    static_cast<char>(Random() % (Kind % 2 ? 256 : 3));
        }
        ASSERT_TRUE(fuzz::RunPpd(File, Folder.Path())) << "round " << Round;
    }
}

TEST_F(PpdDamageTest, PicturesAtTheFarthestPlacesArePainted) {
    PrintDocument Document({});
    Document.StartDoc();
    const PrintPicture Red{{}, JpegOf(Plain(tests::Red, {40, 40}))};
    Document.DrawPicture(Red, {-100000, -100000, 100000, 100000});
    Document.DrawPicture(Red, {100000, 100000, 100000, 100000});
    Document.DrawPicture(Red, {1, 1, 5e-324, 5e-324});
    Document.DrawPicture(Red, {0, 0, 100000, 100000});
    Document.EndDoc();
    WritePpd(Document, Folder / u"far.ppd"_s);
    QImage Page = Plain(Qt::white, {200, 200});
    QPainter Painter(&Page);
    ReadPpd(Folder / u"far.ppd"_s, {})->PaintPage(Painter, 1, 200);
    Painter.end();
    EXPECT_LT(Distance(Page.pixel(100, 100), tests::Red.rgb()), 8);
}

}  // namespace
}  // namespace neb
