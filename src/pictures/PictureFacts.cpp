#include "pictures/PictureFacts.h"

#include <QLocale>
#include <QRegularExpression>
#include <QStringDecoder>

#include "pictures/PictureBlocks.h"
#include "pictures/XmpFacts.h"
#include "pictures/formats/ByteView.h"
#include "support/CameraNames.h"
#include "support/Fault.h"
#include "support/files/modHostFiles.h"
#include "support/modText.h"

namespace neb {
namespace {

constexpr quint16 ImageDescription = 0x010E, Changed = 0x0132, Original = 0x9003,
                  Digitized = 0x9004, UserComment = 0x9286, ChangedPart = 0x9290,
                  OriginalPart = 0x9291, DigitizedPart = 0x9292, WideTitle = 0x9C9B,
                  WideComment = 0x9C9C, WideSubject = 0x9C9F;
constexpr int FirstYear = 1800;  // before that is no photograph; cameras write the year 1 for none

// Not every program keeps to the letters that the format knows.
QString TextOf(const QByteArray& Field) {
    const qsizetype End = Field.indexOf('\0');
    const QByteArray Bytes = End < 0 ? Field : Field.first(End);
    QStringDecoder Decoder(QStringDecoder::Utf8);
    const QString Text = Decoder.decode(Bytes);
    return Decoder.hasError() ? FromAnsi(Bytes) : Text;
}

QString WideTextOf(const QByteArray& Field, bool IsBigEndian = false) {
    QStringDecoder Decoder(IsBigEndian ? QStringDecoder::Utf16BE : QStringDecoder::Utf16LE);
    const QString Text = Decoder.decode(Field);
    const qsizetype End = Text.indexOf(QChar(0));
    return End < 0 ? Text : Text.left(End);
}

// It begins with the name of its letters, in eight bytes.
QString CommentOf(const QByteArray& Field, bool IsBigEndian) {
    const QByteArray Words = Field.mid(8);
    if (Field.startsWith("UNICODE")) return WideTextOf(Words, IsBigEndian);
    if (Field.startsWith("ASCII") || Field.startsWith(QByteArray(8, '\0'))) return TextOf(Words);
    return {};
}

struct IptcFacts {
    QString Name, Headline, Caption, Day, Time;
};

// Records of a number, a kind and a length each. Words are in UTF-8 where a mark says so, but may
// be so without.
IptcFacts ReadIptc(const QByteArray& Records) {
    IptcFacts Found;
    const QHash<int, QString*> Wanted{{5, &Found.Name},
                                      {105, &Found.Headline},
                                      {120, &Found.Caption},
                                      {55, &Found.Day},
                                      {60, &Found.Time}};
    const ByteView View(Records);
    for (qint64 At = 0; View.U8(At) == 0x1C;) {
        const int Record = View.U8(At + 1), Kind = View.U8(At + 2), Length = View.U16(At + 3, true);
        if (Length & 0x8000) break;  // longer than any words
        QString* const Into = Record == 2 ? Wanted.value(Kind) : nullptr;
        if (Into && Into->isEmpty()) *Into = TextOf(Records.mid(At + 5, Length));
        At += 5 + Length;
    }
    return Found;
}

// "2003:12:24 18:30:05", "2003-12-24T18:30:05.25+01:00", "20031224" and "183005+0100" together; the
// clock as it stood there.
QDateTime TimeOf(const QString& Written, const QString& Part = {}) {
    static const QRegularExpression Form(QStringLiteral(
        "^\\s*([0-9]{4})[-:/.]?([0-9]{2})[-:/.]?([0-9]{2})(?:[T ]*([0-9]{2}):?([0-9]{2})"
        "(?::?([0-9]{2})(?:[.,]([0-9]+))?)?)?"));
    const auto Found = Form.match(Written);
    const auto Number = [&](int Which) { return Found.captured(Which).toInt(); };
    const QDate Date(Number(1), Number(2), Number(3));
    const QTime Time(Number(4), Number(5), std::min(Number(6), 59));
    if (!Date.isValid() || Date.year() < FirstYear) return {};
    const QString Fraction = Part.trimmed().isEmpty() ? Found.captured(7) : Part.trimmed();
    const int Milliseconds = Fraction.leftJustified(3, u'0').left(3).toInt();
    return {Date, Time.isValid() ? Time.addMSecs(Milliseconds) : QTime(0, 0), Qt::UTC};
}

template <class Value, class IsGood>
Value FirstGood(std::initializer_list<Value> Values, IsGood Good) {
    for (const Value& Each : Values)
        if (Good(Each)) return Each;
    return {};
}

PictureFacts FactsIn(const PictureBlocks& Blocks) {
    const auto Tag = [&](quint16 Number) { return Blocks.Exif.Values.value(Number); };
    const auto Text = [&](quint16 Number) { return TextOf(Tag(Number)); };
    const XmpFacts Xmp = ReadXmp(Blocks.Xmp);
    const IptcFacts Iptc = ReadIptc(Blocks.Iptc);
    const QString Words = FirstGood(
        {Xmp.Title, Iptc.Name, WideTextOf(Tag(WideTitle)), TextOf(Blocks.Title), Xmp.Headline,
         Iptc.Headline, Xmp.Description, Iptc.Caption, Text(ImageDescription),
         TextOf(Blocks.Description), WideTextOf(Tag(WideSubject)), WideTextOf(Tag(WideComment)),
         CommentOf(Tag(UserComment), Blocks.Exif.IsBigEndian)},
        [](const QString& Each) { return !IsCameraWords(Each); });
    const QDateTime Taken = FirstGood(
        {TimeOf(Text(Original), Text(OriginalPart)), TimeOf(Xmp.Taken), TimeOf(Xmp.Created),
         TimeOf(Iptc.Day + Iptc.Time), TimeOf(Text(Digitized), Text(DigitizedPart)),
         TimeOf(Xmp.Digitized), TimeOf(Text(Changed), Text(ChangedPart))},
        [](const QDateTime& Each) { return Each.isValid(); });
    return {Words.simplified(), Taken, {}};
}

// In the order and with the words of the language, but without the day of the week.
QString DayForm(const QLocale& Language) {
    static const QString Plain = QStringLiteral("d MMMM yyyy");
    if (Language.language() == QLocale::C || Language.language() == QLocale::English) return Plain;
    static const QRegularExpression WeekDay(QStringLiteral("^dddd[,،]?\\s*|[,،]?\\s*\\(?dddd\\)?"));
    const QString Form = Language.dateFormat(QLocale::LongFormat).remove(WeekDay).trimmed();
    return Form.contains(u'y') ? Form : Plain;
}

}  // namespace

PictureFacts FactsOf(const QByteArray& Bytes) {
    return FactsIn(BlocksOf([&](qint64 At, qint64 Length) { return Bytes.mid(At, Length); }));
}

PictureFacts FactsOfFile(const QString& File) try {
    HostReader Reader(File);
    PictureFacts Found = FactsIn(BlocksOf([&](qint64 At, qint64 Length) {
        QByteArray Bytes(Length, '\0');
        Reader.Seek(At);
        Bytes.truncate(Reader.Read(Bytes.data(), Length));
        return Bytes;
    }));
    Found.Changed = FileTime(File).value_or(QDateTime());
    return Found;
} catch (const std::exception&) {
    return {{}, {}, FileTime(File).value_or(QDateTime())};
}

QString TimeText(const QDateTime& Taken) {
    const QLocale Language;
    const QString Day = Language.toString(Taken.date(), DayForm(Language));
    const bool IsDayAlone = Taken.time() == QTime(0, 0);
    return IsDayAlone ? Day : Day + Taken.time().toString(QStringLiteral(", HH:mm"));
}

}  // namespace neb
