// Metafiles behind the door, where no file can be opened any more and no program be started: the
// same drawings, with the same letters, as without it.
#include <random>

#include "pictures/Metafiles.h"
#include "pictures/formats/PictureFaults.h"
#include "pictures/workers/HostHere.h"
#include "pictures/workers/ReadingHere.h"

using namespace neb;
using namespace neb::tests;

namespace {

struct Outcome {
    QImage Picture;
    QSize Full;
    quint32 Number = 0;
    QString Sentence;
    bool operator==(const Outcome&) const = default;
};

Outcome OutcomeOf(PictureReader& Reader, const QByteArray& Bytes) {
    try {
        const DecodedPicture Made = Reader.Decode(Bytes, {});
        return {Made.Picture, Made.Full, 0, {}};
    } catch (const Fault& Reason) {
        return {{}, {}, Reason.Number(), Reason.What()};
    }
}

Outcome Here(const QByteArray& Bytes) {
    static HostHere Host;
    SetDecodeHost(Host);
    ReadingHere Reader;
    return OutcomeOf(Reader, Bytes);
}

Outcome BehindTheDoor(const QByteArray& Bytes) {
    return OutcomeOf(TheLockedReading(), Bytes);
}

// The picture, where it is one.
QImage ExpectTheSame(const QByteArray& Bytes, const std::string& What) {
    const Outcome Locked = BehindTheDoor(Bytes), Free = Here(Bytes);
    EXPECT_EQ(Free.Number, Locked.Number) << What << ": " << Locked.Sentence.toStdString();
    EXPECT_EQ(Free.Sentence, Locked.Sentence) << What;
    EXPECT_EQ(Free.Full, Locked.Full) << What;
    EXPECT_TRUE(Free.Picture == Locked.Picture) << What;
    return Locked.Picture;
}

bool HasInk(const QImage& Picture) {
    for (int Y = 0; Y < Picture.height(); ++Y)
        for (int X = 0; X < Picture.width(); ++X)
            if (qGray(Picture.pixel(X, Y)) < 100) return true;
    return false;
}

QByteArray Sample(const char* Name) {
    return ReadFile(harness::DataFile(Name));
}
constexpr const char* Samples[] = {"draw.emf", "photo.emf", "draw.wmf", "hand.wmf"};

struct Writing {
    int Weight = 400;
    bool Italic = false;
    int Tenths = 0;
};
constexpr Writing Writings[] = {{}, {700, true}, {100, false, 300}};

QByteArray WmfWith(const char* Face, int Charset, const QByteArray& Text, const Writing& How) {
    Wmf File;
    File.Add(0x02FB, {-24, 0, How.Tenths, How.Tenths, How.Weight, How.Italic, Charset << 8, 0, 0},
             QByteArray(Face) + '\0');
    File.Select(0).Add(0x0102, {1}).Add(0x0A32, {50, 20, static_cast<int>(Text.size()), 0}, Text);
    return File.Bytes();
}

// Written as Windows would have it with the pages of codes that these belong to.
struct Script {
    int Charset;
    QByteArray Text;
} const Scripts[] = {
    {0,
     "Gr\xFC\xDF"
     "e"},
    {128, "\x93\xFA\x96\x7B"},
    {129, "\xC7\xD1\xB1\xDB"},
    {134, "\xBA\xBA\xD7\xD6"},
    {136, "\xBA\x7E\xA6\x72"},
    {161, "\xC5\xEB\xEB\xDC"},
    {177, "\xF9\xEC\xE5\xED"},
    {178, "\xD3\xE1\xC7\xE3"},
    {204, "\xD0\xF3\xF1\xF1"},
    {238, "\x8E\x6C\x75\x9D"},
    {2, "abc"},
    {222, "\xE4\xB7\xC2"},
};
constexpr const char* Faces[] = {"Arial", "DejaVu Sans", "Symbol", "No Such Letters", ""};

// A whole drawing that carries another one, whose records are broken.
QByteArray WithBrokenInside() {
    QByteArray Bytes = Sample("draw.wmf");
    const qsizetype Inner = Bytes.indexOf(" EMF") - 40;
    for (int I = 0; I < 80; ++I) Bytes[Inner + 120 + I] = char(0xFF);
    return Bytes;
}

// One whose converter is another program of ours, or none.
class WithConverter : public ReadingLocked {
  public:
    explicit WithConverter(const char* Name)
        : ReadingLocked(Part("neb-pictures", "pictures"), Part("neb-pictures", "drawings"),
                        Part(Name, "pictures")) {}

  private:
    static LockedProgram Part(const char* Name, const char* Role) {
        constexpr qint64 Room = 64 << 20;
        return {LockedProgramPath(QString::fromLatin1(Name)), Role, Room, Room};
    }
};

}  // namespace

TEST(Drawings, EverySampleHasTheSameBitsBehindTheDoor) {
    for (const char* Name : Samples) EXPECT_FALSE(ExpectTheSame(Sample(Name), Name).isNull());
}

TEST(Drawings, TheLettersOfAllPagesOfCodesAreTheSame) {
    for (const auto& [Charset, Text] : Scripts)
        for (const char* Face : Faces)
            for (const Writing& How : Writings) {
                const std::string What = std::to_string(Charset) + " " + Face;
                const QImage Picture = ExpectTheSame(WmfWith(Face, Charset, Text, How), What);
                // other fonts leave a gap for a letter that they do not have
                EXPECT_TRUE(HasInk(Picture) || qstrcmp(Face, "DejaVu Sans") != 0) << What;
            }
}

TEST(Drawings, TheLettersOfEnhancedMetafilesAreTheSame) {
    const QString Texts[] = {QStringLiteral("Grüße"),   QStringLiteral("Ελλάδα"),
                             QStringLiteral("ภาษาไทย"), QStringLiteral("漢字"),
                             QStringLiteral("שלום"),    QStringLiteral("العربية")};
    for (const char* Face : Faces) {
        QByteArray Records;
        int Index = 0;
        for (const QString& Text : Texts) {
            const Writing& How = Writings[Index % 3];
            Records +=
                EmfFont(++Index, QString::fromLatin1(Face), How.Weight, How.Italic, How.Tenths);
            Records += EmfText({20, 40 * Index}, Text);
        }
        EXPECT_TRUE(HasInk(ExpectTheSame(EmfOf(Records), Face))) << Face;
    }
}

TEST(Drawings, ColouredLettersAreTheSame) {
    const QByteArray Emf = EmfOf(EmfFont(1, QStringLiteral("Noto Color Emoji")) +
                                 EmfText({20, 40}, QStringLiteral("😀👍🏽")));
    ExpectTheSame(Emf, "emoji");
}

TEST(Drawings, GlyphsByNumberAreLookedUpInTheFontBehindTheDoor) {
    const QByteArray Emf = EmfOf(EmfFont(1, QStringLiteral("DejaVu Sans")) +
                                 EmfText({20, 40}, QStringLiteral("\u0024\u0025\u0026"), true) +
                                 EmfText({20, 90}, QStringLiteral("\u0027\u0028\u0029"), true));
    const QByteArray Svg = TheLockedReading().SvgOf(Emf);
    EXPECT_TRUE(Svg.contains("ABC")) << Svg.toStdString();
    EXPECT_TRUE(Svg.contains("DEF")) << Svg.toStdString();
}

TEST(Drawings, NothingOfADrawingIsLeftForTheNext) {
    const QByteArray First = TheLockedReading().SvgOf(Sample("draw.emf"));
    EXPECT_FALSE(First.isEmpty());
    EXPECT_EQ(First, TheLockedReading().SvgOf(Sample("draw.emf")));
}

TEST(Drawings, OddRecordsAreTheSame) {
    Wmf Unknown, Empty, Far, Turned;
    Unknown.Add(0x0777, {1, 2, 3}).Brush(Qt::red).Select(0).Box(0, 0, 50, 50);
    Far.Add(0x020C, {32767, -32768}).Brush(Qt::red).Select(0).Box(-32768, -32768, 32767, 32767);
    Turned.Add(0x0B41, {0x20, 0xCC, 2, 2, 0, 0, 100, -100, 0, 100}, QByteArray(60, '\1'));
    for (const Wmf* Each : {&Unknown, &Empty, &Far, &Turned})
        for (const bool Placeable : {true, false}) ExpectTheSame(Each->Bytes(Placeable), "odd");
    ExpectTheSame(EmfOf({}), "empty");
    ExpectTheSame(EmfOf(Record(9999, Numbers({1, 2, 3}))), "unknown");
    ExpectTheSame(EmfOf(Record(43, Numbers({0, 0, 90, 90}))).replace(" EMF", " EMX"), "no mark");
}

TEST(Drawings, WhatIsCutHasTheSameFaults) {
    for (const char* Name : Samples) {
        const QByteArray Good = Sample(Name);
        for (const int Percent : {1, 20, 60, 99})
            EXPECT_TRUE(ExpectTheSame(Good.left(Good.size() * Percent / 100), Name).isNull());
    }
}

TEST(Drawings, WhatHasFlippedBitsIsTheSame) {
    std::mt19937 Random(11);
    constexpr int Rounds = 6;
    for (const char* Name : Samples)
        for (int Round = 0; Round < Rounds; ++Round) {
            QByteArray Bytes = Sample(Name);
            for (unsigned I = 0; I <= Random() % 4; ++I) {
                const auto At = static_cast<qsizetype>(Random() % 1200);
                if (At < Bytes.size()) Bytes[At] = static_cast<char>(Bytes[At] ^ 1 << Random() % 8);
            }
            ExpectTheSame(Bytes, Name + std::to_string(Round));
        }
}

TEST(Drawings, WhatWouldBecomeTooMuchIsRefused) {
    const QByteArray Line = Record(54, Numbers({399, 299})), Back = Record(54, Numbers({0, 0}));
    const Outcome Long = BehindTheDoor(EmfOf((Line + Back).repeated(230'000)));
    EXPECT_EQ(FaultDamagedPicture, Long.Number);
    EXPECT_EQ(0U, BehindTheDoor(Sample("draw.emf")).Number);
}

TEST(Drawings, GiantSizesAreRefusedOrDrawnSmaller) {
    const QByteArray Box = Record(43, Numbers({0, 0, 90, 90}));
    const Outcome Wide = BehindTheDoor(EmfOf(Box, {2'000'000, 1'500'000}));
    EXPECT_EQ(0U, Wide.Number) << Wide.Sentence.toStdString();
    EXPECT_EQ(4096, Wide.Full.width());
    QByteArray Broken = EmfOf(Box);
    Broken.replace(8, 32, QByteArray(32, '\x7F'));
    ExpectTheSame(Broken, "bounds");
}

TEST(Drawings, AFileThatCarriesABrokenDrawingIsPlayedItself) {
    const QImage Picture = ExpectTheSame(WithBrokenInside(), "broken inside");
    ASSERT_TRUE(Picture.valid(80, 50));
    EXPECT_EQ(QColor(Qt::red).rgb(), Picture.pixel(80, 50));
}

TEST(Drawings, WithoutTheConverterItIsToldAndOtherMetafilesAreRead) {
    WithConverter Reader("neb-no-such-part");
    const Outcome Emf = OutcomeOf(Reader, Sample("draw.emf"));
    EXPECT_NE(0U, Emf.Number);
    EXPECT_TRUE(Emf.Sentence.contains(QStringLiteral("part of the program is missing")))
        << Emf.Sentence.toStdString();
    EXPECT_EQ(0U, OutcomeOf(Reader, Sample("hand.wmf")).Number);
    EXPECT_TRUE(Here(WithBrokenInside()) == OutcomeOf(Reader, Sample("draw.wmf")));
}

TEST(Drawings, AConverterThatIsBroughtDownIsOneUnreadablePicture) {
    WithConverter Reader("neb-pictures");
    const Outcome Emf = OutcomeOf(Reader, Sample("draw.emf"));
    EXPECT_EQ(FaultDamagedPicture, Emf.Number);
    EXPECT_TRUE(Emf.Sentence.contains(QStringLiteral("brings its reader down")))
        << Emf.Sentence.toStdString();
    EXPECT_TRUE(Here(WithBrokenInside()) == OutcomeOf(Reader, Sample("draw.wmf")));
}
