// What picture files of every kind tell of their pictures: words of people, and when they were
// taken.
#include "pictures/PictureFacts.h"

#include <gtest/gtest.h>

#include <QLocale>
#include <QtEndian>
#include <random>

#include "harness/TempFolder.h"
#include "pictures/BlockDirectories.h"
#include "support/files/HostNames.h"
#include "support/files/modHostFiles.h"

namespace neb {
namespace {

using namespace Qt::StringLiterals;

constexpr quint16 Description = 0x010E, Changed = 0x0132, PacketTag = 0x02BC, Records = 0x83BB,
                  Original = 0x9003, Digitized = 0x9004, Comment = 0x9286, OriginalPart = 0x9291,
                  WideTitle = 0x9C9B, WideSubject = 0x9C9F;

QByteArray Number(quint64 Value, int Width) {
    QByteArray Made;
    for (int I = Width - 1; I >= 0; --I) Made.append(static_cast<char>(Value >> 8 * I & 255));
    return Made;
}

struct Field {
    quint16 Tag;
    QByteArray Value;
};

// A structure of TIFF in the order of the network: one directory, and that of EXIF behind it.
// Padding keeps the directories away from the head.
QByteArray Tiff(const QList<Field>& First, const QList<Field>& Exif = {}, qsizetype Padding = 0) {
    const qsizetype Entries = First.size() + (Exif.isEmpty() ? 0 : 1), At = 8 + Padding;
    const qsizetype ExifAt = At + 2 + 12 * Entries + 4;
    qsizetype HeapAt = ExifAt + 2 + 12 * Exif.size() + 4;
    QByteArray Heap;
    const auto Directory = [&](const QList<Field>& Fields, const QByteArray& More) {
        QByteArray Made = Number(static_cast<quint64>(Fields.size() + (More.isEmpty() ? 0 : 1)), 2);
        for (const Field& Each : Fields) {
            Made += Number(Each.Tag, 2) + Number(1, 2) +
                    Number(static_cast<quint64>(Each.Value.size()), 4);
            const bool Fits = Each.Value.size() <= 4;
            Made += Fits ? Each.Value.leftJustified(4, '\0')
                         : Number(static_cast<quint64>(HeapAt + Heap.size()), 4);
            if (!Fits) Heap += Each.Value;
        }
        return Made + More + QByteArray(4, '\0');
    };
    const QByteArray Pointer =
        Number(0x8769, 2) + Number(4, 2) + Number(1, 4) + Number(static_cast<quint64>(ExifAt), 4);
    const QByteArray One = Directory(First, Exif.isEmpty() ? QByteArray() : Pointer);
    const QByteArray Two = Directory(Exif, {});
    return "MM" + Number(42, 2) + Number(static_cast<quint64>(At), 4) + QByteArray(Padding, '\0') +
           One + Two + Heap;
}

QByteArray Segment(char Marker, const QByteArray& Bytes) {
    return QByteArray("\xFF") + Marker + Number(static_cast<quint64>(Bytes.size() + 2), 2) + Bytes;
}

QByteArray ExifSegment(const QByteArray& Block) {
    return Segment('\xE1', QByteArray("Exif\0\0", 6) + Block);
}

QByteArray XmpSegment(const QByteArray& Xmp) {
    return Segment('\xE1', QByteArray("http://ns.adobe.com/xap/1.0/\0", 29) + Xmp);
}

QByteArray Iptc(const QList<std::pair<int, QByteArray>>& Fields) {
    QByteArray Made("\x1C\x01\x5A\x00\x03\x1B%G", 8);
    for (const auto& [Kind, Words] : Fields)
        Made += "\x1C\x02" + Number(static_cast<quint64>(Kind), 1) +
                Number(static_cast<quint64>(Words.size()), 2) + Words;
    return Made;
}

QByteArray Resource(int Kind, const QByteArray& Bytes) {
    QByteArray Made = "8BIM" + Number(static_cast<quint64>(Kind), 2) + QByteArray(2, '\0') +
                      Number(static_cast<quint64>(Bytes.size()), 4) + Bytes;
    if (Bytes.size() % 2 != 0) Made += '\0';
    return Made;
}

QByteArray IptcSegment(const QList<std::pair<int, QByteArray>>& Fields) {
    return Segment('\xED', QByteArray("Photoshop 3.0\0", 14) + Resource(0x0425, "sum") +
                               Resource(0x0404, Iptc(Fields)));
}

QByteArray Jpeg(const QByteArray& Segments) {
    return "\xFF\xD8" + Segment('\xE0', "JFIF") + Segments + "\xFF\xDA picture";
}

QByteArray Xmp(const QByteArray& Inside, const QByteArray& Attributes = {}) {
    return "<?xpacket begin='' id='W5M0MpCehiHzreSzNTczkc9d'?><x:xmpmeta xmlns:x='adobe:ns:meta/'>"
           "<rdf:RDF xmlns:rdf='http://www.w3.org/1999/02/22-rdf-syntax-ns#'><rdf:Description "
           "xmlns:dc='http://purl.org/dc/elements/1.1/' xmlns:exif='http://ns.adobe.com/exif/1.0/' "
           "xmlns:xmp='http://ns.adobe.com/xap/1.0/' "
           "xmlns:photoshop='http://ns.adobe.com/photoshop/1.0/' " +
           Attributes + ">" + Inside +
           "</rdf:Description></rdf:RDF></x:xmpmeta><?xpacket end='w'?>";
}

QByteArray Alt(const char* Name, const QByteArray& Items) {
    return QByteArray("<dc:") + Name + "><rdf:Alt>" + Items + "</rdf:Alt></dc:" + Name + '>';
}

QByteArray Item(const char* Language, const QByteArray& Words) {
    return QByteArray("<rdf:li xml:lang='") + Language + "'>" + Words + "</rdf:li>";
}

QByteArray Wide(const QString& Words) {
    QByteArray Made;
    for (const QChar Each : Words + QChar(0)) {
        Made += static_cast<char>(Each.unicode() & 255);
        Made += static_cast<char>(Each.unicode() >> 8);
    }
    return Made;
}

std::string Words(const QByteArray& File) {
    return FactsOf(File).Words.toStdString();
}

std::string Taken(const QByteArray& File) {
    return FactsOf(File).Taken.toString(u"yyyy-MM-dd HH:mm:ss.zzz"_s).toStdString();
}

const QByteArray Dune = "Die D\xC3\xBCne";

TEST(PictureFacts, WordsComeFromXmp) {
    EXPECT_EQ("Die Düne", Words(Jpeg(XmpSegment(Xmp(Alt("title", Item("x-default", Dune)))))));
    EXPECT_EQ("Die Düne",
              Words(Jpeg(XmpSegment(Xmp(Alt("description", Item("x-default", Dune)))))));
    EXPECT_EQ("At last", Words(Jpeg(XmpSegment(Xmp({}, "photoshop:Headline='At  last'")))));
}

TEST(PictureFacts, WordsInSeveralLanguagesAreThoseOfTheUser) {
    const QByteArray File = Jpeg(XmpSegment(Xmp(Alt(
        "title", Item("fr-FR", "La dune") + Item("x-default", "The dune") + Item("de-DE", Dune)))));
    EXPECT_EQ("The dune", Words(File));
    const QLocale Before;
    QLocale::setDefault(QLocale(QLocale::German));
    EXPECT_EQ("Die Düne", Words(File));
    QLocale::setDefault(Before);
}

TEST(PictureFacts, WordsComeFromIptcInItsLetters) {
    EXPECT_EQ("Die Düne", Words(Jpeg(IptcSegment({{120, Dune}}))));
    EXPECT_EQ("Die Düne", Words(Jpeg(IptcSegment({{120,
                                                   "Die D\xFC"
                                                   "ne"}}))))
        << "of old programs";
    EXPECT_EQ("Name", Words(Jpeg(IptcSegment({{120, Dune}, {105, "Head"}, {5, "Name"}}))));
    EXPECT_EQ("Head", Words(Jpeg(IptcSegment({{120, Dune}, {105, "Head"}}))));
}

TEST(PictureFacts, WordsComeFromExif) {
    EXPECT_EQ("Garden", Words(Jpeg(ExifSegment(Tiff({{Description, "Garden"}})))));
    EXPECT_EQ("Łódź", Words(Jpeg(ExifSegment(Tiff({{WideTitle, Wide(u"Łódź"_s)}})))));
    EXPECT_EQ("Łódź", Words(Jpeg(ExifSegment(Tiff({{WideSubject, Wide(u"Łódź"_s)}})))));
    const auto Said = [](const QByteArray& Value) {
        return Words(Jpeg(ExifSegment(Tiff({}, {{Comment, Value}}))));
    };
    EXPECT_EQ("sea", Said(QByteArray("ASCII\0\0\0sea", 11)));
    EXPECT_EQ("sea", Said(QByteArray("UNICODE\0\0s\0e\0a", 14)));
    EXPECT_EQ("", Said(QByteArray("JIS\0\0\0\0\0sea", 11))) << "letters that nobody writes";
    EXPECT_EQ("", Said(QByteArray("ASCII\0\0\0", 8)));
}

TEST(PictureFacts, ATitleComesBeforeAHeadlineAndThatBeforeADescription) {
    const QByteArray Title = XmpSegment(Xmp(Alt("title", Item("x-default", "A title"))));
    const QByteArray Other = IptcSegment({{120, "A caption"}, {105, "A headline"}});
    const QByteArray Exif = ExifSegment(Tiff({{Description, "In words"}}));
    EXPECT_EQ("A title", Words(Jpeg(Exif + Other + Title)));
    EXPECT_EQ("A headline", Words(Jpeg(Exif + Other)));
    EXPECT_EQ("A caption", Words(Jpeg(Exif + IptcSegment({{120, "A caption"}}))));
    EXPECT_EQ("In words", Words(Jpeg(Exif)));
}

TEST(PictureFacts, WhatCamerasWriteForWantOfWordsIsNone) {
    for (const char* Said :
         {"OLYMPUS DIGITAL CAMERA         ", "SONY DSC", "DCIM\\100MEDIA\\DJI_0001.JPG", "Default",
          "   ", "SAMSUNG CAMERA PICTURES", "KONICA MINOLTA DIGITAL CAMERA", "ASCII", "cof", "hdr",
          "mde", "edf", "untitled", "Maker:Huawei, Date:2017-1-1", "DSC_0001.JPG", "sdr_HDRB"})
        EXPECT_EQ("Dune", Words(Jpeg(ExifSegment(Tiff({{Description, Said}})) +
                                     IptcSegment({{5, Said}, {120, "Dune"}}))))
            << Said;
    EXPECT_EQ("", Words(Jpeg(ExifSegment(Tiff({{Description, "OLYMPUS DIGITAL CAMERA"}})))));
}

TEST(PictureFacts, WordsStandOnOneLine) {
    EXPECT_EQ("One two", Words(Jpeg(ExifSegment(Tiff({{Description, " One\r\n  two\n"}})))));
}

const QByteArray Noon = "2003:12:24 12:00:05";

TEST(PictureFacts, TheTimeIsWhenTheShutterOpened) {
    const QByteArray Block =
        Tiff({{Changed, "2011:01:02 03:04:05"}},
             {{Digitized, "2004:01:02 03:04:05"}, {Original, Noon}, {OriginalPart, "25"}});
    EXPECT_EQ("2003-12-24 12:00:05.250", Taken(Jpeg(ExifSegment(Block))));
    const QByteArray Scanned =
        Tiff({{Changed, "2011:01:02 03:04:05"}}, {{Digitized, "2004:01:02 03:04:05"}});
    EXPECT_EQ("2004-01-02 03:04:05.000", Taken(Jpeg(ExifSegment(Scanned))));
    EXPECT_EQ("2011-01-02 03:04:05.000",
              Taken(Jpeg(ExifSegment(Tiff({{Changed, "2011:01:02 03:04:05"}})))));
}

TEST(PictureFacts, WhatAPersonWroteOfAScannedPictureComesBeforeTheScan) {
    const QByteArray Scan = ExifSegment(Tiff({}, {{Digitized, "2004:01:02 03:04:05"}}));
    EXPECT_EQ("1965-07-01 00:00:00.000",
              Taken(Jpeg(Scan + XmpSegment(Xmp({}, "photoshop:DateCreated='1965-07-01'")))));
    EXPECT_EQ("1965-07-01 15:30:00.000",
              Taken(Jpeg(Scan + IptcSegment({{55, "19650701"}, {60, "153000+0100"}}))));
}

TEST(PictureFacts, TimesOfXmpAreThoseOfTheClockThere) {
    EXPECT_EQ("2003-12-24 18:30:05.250",
              Taken(Jpeg(XmpSegment(Xmp("<exif:DateTimeOriginal>2003-12-24T18:30:05.25+05:00"
                                        "</exif:DateTimeOriginal>")))));
    EXPECT_EQ("2003-12-24 18:30:00.000",
              Taken(Jpeg(XmpSegment(Xmp({}, "xmp:CreateDate='2003-12-24T18:30Z'")))));
}

TEST(PictureFacts, TimesThatAreNoneAreNotTold) {
    for (const char* None : {"0000:00:00 00:00:00", "    :  :     :  :  ", "0001:01:01 00:00:00",
                             "2003:13:24 12:00:00", "2003:02:30 12:00:00", "", "yesterday"})
        EXPECT_FALSE(FactsOf(Jpeg(ExifSegment(Tiff({}, {{Original, None}})))).Taken.isValid())
            << None;
}

QByteArray Chunk(const char* Name, const QByteArray& Bytes) {
    return Number(static_cast<quint64>(Bytes.size()), 4) + Name + Bytes + QByteArray(4, '\0');
}

TEST(PictureFacts, AreReadFromPngFiles) {
    const auto Png = [](const QByteArray& Chunks) {
        return "\x89PNG\r\n\x1A\n" + Chunk("IHDR", QByteArray(13, '\0')) +
               Chunk("IDAT", QByteArray(300'000, 'x')) + Chunks + Chunk("IEND", {});
    };
    EXPECT_EQ("Fürth", Words(Png(Chunk("tEXt", QByteArray("Title\0F\xFCrth", 11)))));
    EXPECT_EQ("Die Düne",
              Words(Png(Chunk("iTXt", QByteArray("Description\0\0\0de\0Text\0", 22) + Dune))));
    EXPECT_EQ("Die Düne",
              Words(Png(Chunk("iTXt", QByteArray("XML:com.adobe.xmp\0\0\0\0\0", 22) +
                                          Xmp(Alt("title", Item("x-default", Dune)))))));
    EXPECT_EQ("2003-12-24 12:00:05.000", Taken(Png(Chunk("eXIf", Tiff({}, {{Original, Noon}})))));
}

TEST(PictureFacts, AreReadFromWebpFiles) {
    const auto Part = [](const char* Name, const QByteArray& Bytes) {
        QByteArray Length = Number(static_cast<quint64>(Bytes.size()), 4);
        std::reverse(Length.begin(), Length.end());
        return Name + Length + Bytes + QByteArray(Bytes.size() % 2, '\0');
    };
    const QByteArray File = QByteArray("RIFF\0\0\0\0WEBP", 12) + Part("VP8 ", "odd") +
                            Part("EXIF", QByteArray("Exif\0\0", 6) + Tiff({}, {{Original, Noon}})) +
                            Part("XMP ", Xmp(Alt("title", Item("x-default", Dune))));
    EXPECT_EQ("Die Düne", Words(File));
    EXPECT_EQ("2003-12-24 12:00:05.000", Taken(File));
}

TEST(PictureFacts, AreReadFromTiffFilesWhereverTheirDirectoryLies) {
    const QByteArray File = Tiff({{PacketTag, Xmp(Alt("title", Item("x-default", Dune)))},
                                  {Records, Iptc({{120, "A caption"}})}},
                                 {{Original, Noon}}, 3'000'000);
    EXPECT_EQ("Die Düne", Words(File));
    EXPECT_EQ("2003-12-24 12:00:05.000", Taken(File));
    EXPECT_EQ("A caption", Words(Tiff({{Records, Iptc({{120, "A caption"}})}})));
}

TEST(PictureFacts, AreReadFromPsdFiles) {
    const QByteArray Resources =
        Resource(0x0404, Iptc({{5, "Name"}})) + Resource(0x0422, Tiff({}, {{Original, Noon}}));
    const QByteArray File = "8BPS" + QByteArray(22, '\0') + Number(3, 4) + "abc" +
                            Number(static_cast<quint64>(Resources.size()), 4) + Resources;
    EXPECT_EQ("Name", Words(File));
    EXPECT_EQ("2003-12-24 12:00:05.000", Taken(File));
}

QByteArray Box(const char* Type, const QByteArray& Bytes) {
    return Number(static_cast<quint64>(Bytes.size() + 8), 4) + Type + Bytes;
}

// A file of HEIC with nothing but its items; of one the bytes lie in its own list.
QByteArray Heic(const QByteArray& Exif, const QByteArray& Packet) {
    const auto Entry = [](int Which, const QByteArray& Type) {
        return Box("infe", Number(0x02000000, 4) + Number(static_cast<quint64>(Which), 2) +
                               Number(0, 2) + Type + '\0');
    };
    const QByteArray Names = Number(0, 4) + Number(3, 2) + Entry(1, "hvc1") + Entry(2, "Exif") +
                             Entry(3, QByteArray("mime\0application/rdf+xml", 24));
    const auto Build = [&](quint64 ExifAt) {
        const auto Place = [](int Which, int Method, quint64 At, qsizetype Length) {
            return Number(static_cast<quint64>(Which), 2) +
                   Number(static_cast<quint64>(Method), 2) + Number(0, 2) + Number(1, 2) +
                   Number(At, 4) + Number(static_cast<quint64>(Length), 4);
        };
        const QByteArray Places = Number(0x01000000, 4) + Number(0x4400, 2) + Number(3, 2) +
                                  Place(1, 0, 0, 5) + Place(2, 0, ExifAt, Exif.size() + 4) +
                                  Place(3, 1, 0, Packet.size());
        return Box("ftyp", "heic" + Number(0, 4)) +
               Box("meta", Number(0, 4) + Box("hdlr", QByteArray(20, '\0')) + Box("iinf", Names) +
                               Box("iloc", Places) + Box("idat", Packet)) +
               Box("mdat", {});
    };
    const auto At = static_cast<quint64>(Build(0).size());
    return Build(At) + Number(0, 4) + Exif;
}

TEST(PictureFacts, AreReadFromHeicFiles) {
    const QByteArray File =
        Heic(Tiff({}, {{Original, Noon}}), Xmp(Alt("title", Item("x-default", Dune))));
    EXPECT_EQ("Die Düne", Words(File));
    EXPECT_EQ("2003-12-24 12:00:05.000", Taken(File));
}

TEST(PictureFacts, OfAHeicFileThatNamesOneBlockAThousandTimesDoNotFillTheMemory) {
    const quint32 Length = 3 << 20;
    QByteArray Places = Number(0x01000000, 4) + Number(0x4400, 2) + Number(1000, 2);
    for (int I = 0; I < 1000; ++I)
        Places +=
            Number(2, 2) + Number(0, 4) + Number(1, 2) + Number(1 << 20, 4) + Number(Length, 4);
    const QByteArray Name =
        Box("infe", Number(0x02000000, 4) + Number(2, 2) + Number(0, 2) + "Exif" + '\0');
    const QByteArray File =
        Box("meta", Number(0, 4) + Box("iinf", Number(1, 6) + Name) + Box("iloc", Places));
    qint64 Asked = 0;
    const auto Items = ReadHeifItems([&](qint64 At, qint64 Most) {
        if (At >= 1 << 20) Asked += Most;
        return File.mid(At, Most);
    });
    EXPECT_GE(Asked, Length);
    EXPECT_LE(Asked, 10 << 20);
    EXPECT_EQ(1000U, Items.size());
}

TEST(PictureFacts, WordsAreReadHoweverDeepAFileHidesThem) {
    const int Deep = 400'000;
    const QByteArray Hidden =
        QByteArray("<b>").repeated(Deep) + "Dune" + QByteArray("</b>").repeated(Deep);
    const QByteArray File = Tiff({{PacketTag, Xmp(Alt("title", Item("x-default", Hidden)))}});
    EXPECT_EQ("Dune", Words(File));
}

TEST(PictureFacts, OfAFileAreThoseOfItsBytesAndItsOwnTime) {
    harness::TempFolder Dir;
    const QString Path = Dir / HostName("Gr\xFC\xDF.tif");
    WriteFile(Path, Tiff({{Description, "Garden"}}, {{Original, Noon}}, 3'000'000));
    const PictureFacts Facts = FactsOfFile(Path);
    EXPECT_EQ(u"Garden", Facts.Words);
    EXPECT_EQ(FileTime(Path), Facts.Changed);
    EXPECT_FALSE(FactsOfFile(Dir / u"none"_s).Changed.isValid());
    EXPECT_EQ(QString(), FactsOfFile(Dir.Path()).Words);
    DeleteFile(Path);
}

// Bytes at random places of whole files, and files cut anywhere: nothing is read beyond an end, and
// nothing takes long.
TEST(PictureFacts, OfDamagedFilesAreReadWithoutHarm) {
    const QByteArray Xmp_ = Xmp(Alt("title", Item("x-default", Dune)));
    const QByteArray Block =
        Tiff({{Description, "Garden"}, {Records, Iptc({{120, Dune}})}}, {{Original, Noon}});
    const QByteArray Files[] = {
        Jpeg(ExifSegment(Block) + XmpSegment(Xmp_) + IptcSegment({{120, Dune}})), Block,
        Heic(Block, Xmp_),
        "8BPS" + QByteArray(22, '\0') + Number(0, 4) + Number(500, 4) +
            Resource(0x0404, Iptc({{5, "Name"}})),
        "\x89PNG\r\n\x1A\n" + Chunk("eXIf", Block) +
            Chunk("iTXt", QByteArray("Title\0\0\0\0\0x", 11))};
    std::mt19937 Random(4711);
    for (const QByteArray& Whole : Files) {
        EXPECT_FALSE(FactsOf(Whole).Words.isEmpty());
        for (int Round = 0; Round < 3000; ++Round) {
            QByteArray Damaged = Whole.left(static_cast<qsizetype>(Random() % (Whole.size() + 1)));
            for (int I = 0; I < 4 && !Damaged.isEmpty(); ++I)
                Damaged[static_cast<qsizetype>(Random() % Damaged.size())] =
                    static_cast<char>(Random());
            ASSERT_LE(FactsOf(Damaged).Words.size(), Whole.size());
        }
    }
}

TEST(PictureFacts, ATimeIsWrittenInTheUsersLanguage) {
    const QDateTime Moment(QDate(2003, 12, 24), QTime(18, 30), Qt::UTC);
    EXPECT_EQ("24 December 2003, 18:30", TimeText(Moment).toStdString());
    EXPECT_EQ("24 December 2003", TimeText(Moment.date().startOfDay(Qt::UTC)).toStdString());
    const QLocale Before;
    for (const auto& [Language, Text] :
         {std::pair{QLocale::German, "24. Dezember 2003, 18:30"},
          std::pair{QLocale::French, "24 décembre 2003, 18:30"},
          std::pair{QLocale::Japanese, "2003年12月24日, 18:30"},
          std::pair{QLocale::Spanish, "24 de diciembre de 2003, 18:30"}}) {
        QLocale::setDefault(QLocale(Language));
        EXPECT_EQ(Text, TimeText(Moment).toStdString());
    }
    QLocale::setDefault(Before);
}

}  // namespace
}  // namespace neb
