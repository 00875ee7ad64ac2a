// Golden records of every type, written by hand byte for byte: read field by field, written
// again to the same bytes.
#include <gtest/gtest.h>
#include <QFile>

#include "Fixtures.h"
#include "db/modLoadRecords.h"
#include "db/records/RecordCodec.h"
#include "support/Fault.h"
#include "support/modText.h"

namespace neb {
namespace {

using namespace harness;

template <class Record>
Record OnlyRecord(const QByteArray& File) {
    std::vector<Record> All;
    ForEachRecord<Record>(File, [&](Record&& Row) { All.push_back(std::move(Row)); });
    EXPECT_EQ(All.size(), 1U);
    return All.empty() ? Record() : std::move(All[0]);
}

template <class Record>
QByteArray Written(const Record& Row) {
    PackedRecords Out;
    EncodeRecord(Out, Row);
    Out.Finish();
    EXPECT_EQ(Out.Length(), WidthOf<Record>);
    return Out.Unpack();
}

TEST(RecordFiles, AnAlbumRecordIsReadAndWrittenToTheSameBytes) {
    const QByteArray Golden = Hex("07000000"                     // AlbumID
                                  "53 6f 6d 6d 65 72 20 f6 00")  // AlbumName, NUL
                              + Blanks(71) + Hex("0000");
    ASSERT_EQ(Golden.size(), 86);
    const auto Row = OnlyRecord<AlbumRecord>(Golden);
    EXPECT_EQ(Row.AlbumID, 7);
    EXPECT_EQ(Row.AlbumName, u"Sommer ö");
    EXPECT_EQ(Written(Row), Golden);
}

TEST(RecordFiles, ASlideRecordIsReadAndWrittenToTheSameBytes) {
    const QByteArray Golden = Hex("7b000000"
                                  "02010000"               // SlideID, AlbumID
                                  "80 33 30 93 61 94 00")  // SlideText: €30“a”
                              + Blanks(73) +
                              Hex("30 30 30 30 30 31 32 33 2e 4a 50 47 00")  // SlideLoc
                              + Blanks(242) + Hex("00") + Blanks(254) +      // SoundTrackLoc
                              Hex("ffff"
                                  "0000"
                                  "0000");
    ASSERT_EQ(Golden.size(), 604);
    const auto Row = OnlyRecord<SlideRecord>(Golden);
    EXPECT_EQ(Row.SlideID, 123);
    EXPECT_EQ(Row.AlbumID, 258);
    EXPECT_EQ(Row.SlideText, u"€30“a”");
    EXPECT_EQ(Row.SlideLoc, u"00000123.JPG");
    EXPECT_EQ(Row.SoundTrackLoc, u"");
    EXPECT_TRUE(Row.Override);
    EXPECT_FALSE(Row.Repeat);
    EXPECT_EQ(Written(Row), Golden);
}

TEST(RecordFiles, ASlideShowRecordIsReadAndWrittenToTheSameBytes) {
    const QByteArray Golden = Hex("ffffffff"
                                  "01000000"
                                  "4100") +
                              Blanks(78) +
                              Hex("feff"  // ProgressionMethod -2 in 16 bits
                                  "0000");
    ASSERT_EQ(Golden.size(), 92);
    const auto Row = OnlyRecord<SlideShowRecord>(Golden);
    EXPECT_EQ(Row.SlideShowID, -1);
    EXPECT_EQ(Row.AlbumID, 1);
    EXPECT_EQ(Row.SlideShowName, u"A");
    EXPECT_EQ(Row.ProgressionMethod, -2);
    EXPECT_EQ(Written(Row), Golden);
}

TEST(RecordFiles, ADetailRecordIsReadAndWrittenToTheSameBytes) {
    const QByteArray Golden = Hex("03000000"
                                  "04000000"
                                  "05000000"
                                  "06000000"
                                  "00") +
                              Blanks(79) + Hex("0000");
    ASSERT_EQ(Golden.size(), 98);
    const auto Row = OnlyRecord<SlideShowDetailRecord>(Golden);
    EXPECT_EQ(Row.SlideShowID, 3);
    EXPECT_EQ(Row.AlbumID, 4);
    EXPECT_EQ(Row.SlideID, 5);
    EXPECT_EQ(Row.SlideSeq, 6);
    EXPECT_EQ(Row.SlideText, u"");
    EXPECT_EQ(Written(Row), Golden);
}

TEST(RecordFiles, ASoundTrackRecordIsReadAndWrittenToTheSameBytes) {
    const QByteArray First = Hex("03000000"
                                 "04000000"
                                 "01000000"
                                 "612e6d703300") +
                             Blanks(249) +
                             Hex("02000000"
                                 "09000000"
                                 "0000"
                                 "ffff"
                                 "0000"
                                 "0000");
    ASSERT_EQ(First.size(), 283);
    const auto Row = OnlyRecord<SlideShowSoundTrackRecord>(First);
    EXPECT_EQ(Row.SlideShowID, 3);
    EXPECT_EQ(Row.AlbumID, 4);
    EXPECT_EQ(Row.SoundTrackSeq, 1);
    EXPECT_EQ(Row.SoundTrackLoc, u"a.mp3");
    EXPECT_EQ(Row.SlideSeqStart, 2);
    EXPECT_EQ(Row.SlideSeqEnd, 9);
    EXPECT_FALSE(Row.Repeat);
    EXPECT_TRUE(Row.FitToSong);
    EXPECT_FALSE(Row.Fade);
    EXPECT_EQ(Written(Row), First);
}

TEST(RecordFiles, TheSecondSoundTrackBeginsAtAnOddByte) {
    const QByteArray One = Hex("03000000"
                               "04000000"
                               "01000000"
                               "00") +
                           Blanks(254) +
                           Hex("02000000"
                               "09000000"
                               "ffff"
                               "0000"
                               "0000"
                               "0000");
    QByteArray Two = One;
    Two[8] = 2;
    std::vector<std::int32_t> Numbers;
    ForEachRecord<SlideShowSoundTrackRecord>(
        One + Two, [&](SlideShowSoundTrackRecord&& Row) { Numbers.push_back(Row.SoundTrackSeq); });
    EXPECT_EQ(Numbers, (std::vector<std::int32_t>{1, 2}));
}

TEST(RecordFiles, APropertyRecordKeepsItsPadding) {
    const QByteArray Golden = "Background" + Blanks(10) + "blue" + Blanks(251) + Hex("0000");
    ASSERT_EQ(Golden.size(), 277);
    const auto Row = OnlyRecord<PropertyRecord>(Golden);
    EXPECT_EQ(Row.PropertyName, u"Background"_s.leftJustified(20));
    EXPECT_EQ(Row.PropertyValue, u"blue"_s.leftJustified(255));
    EXPECT_EQ(Written(Row), Golden);
}

TEST(RecordFiles, AnEffectTimeLiesAtOffsetFour) {
    const QByteArray Golden =
        Hex("7f000000"
            "000000000000f83f"
            "0000");  // 127, 1.5
    ASSERT_EQ(Golden.size(), 14);
    const auto Row = OnlyRecord<EffectStatRecord>(Golden);
    EXPECT_EQ(Row.Effect, 127);
    EXPECT_EQ(Row.AvgTime, 1.5);
    EXPECT_EQ(Written(Row), Golden);
}

TEST(RecordFiles, TheCountersAreThreeNumbers) {
    const QByteArray Golden =
        Hex("02000000"
            "39300000"
            "00000080");
    const auto Row = DecodeFirst<NextIDsRecord>(Golden);
    EXPECT_EQ(Row.NextAlbumID, 2);
    EXPECT_EQ(Row.NextSlideID, 12345);
    EXPECT_EQ(Row.NextSlideShowID, std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(Written(Row), Golden);
}

TEST(RecordFiles, ATextOfFullWidthHasNoNul) {
    const QString Full = u"x"_s.repeated(80);
    const QByteArray Bytes = Written(AlbumRecord{1, Full, 0});
    EXPECT_EQ(Bytes.mid(4, 80), QByteArray(80, 'x'));
    EXPECT_EQ(OnlyRecord<AlbumRecord>(Bytes).AlbumName, Full);
}

TEST(RecordFiles, ATextOneShortOfFullWidthHasANulAndNoFill) {
    const QByteArray Bytes = Written(AlbumRecord{1, u"x"_s.repeated(79), 0});
    EXPECT_EQ(Bytes.mid(4, 80), QByteArray(79, 'x') + '\0');
}

TEST(RecordFiles, ALongerTextIsCut) {
    const QByteArray Bytes = Written(AlbumRecord{1, u"ä"_s.repeated(90), 0});
    EXPECT_EQ(Bytes.mid(4, 80), QByteArray(80, '\xe4'));
    EXPECT_EQ(Bytes.mid(84), Hex("0000"));
    const PropertyRecord Long{u"n"_s.repeated(21), u"v"_s.repeated(300), 0};
    EXPECT_EQ(Written(Long), QByteArray(20, 'n') + QByteArray(255, 'v') + Hex("0000"));
}

TEST(RecordFiles, ATextWithoutNulIsTheWholeFieldWithItsBlanks) {
    const QByteArray Bytes = Hex("01000000") + "ab" + Blanks(78) + Hex("0000");
    EXPECT_EQ(OnlyRecord<AlbumRecord>(Bytes).AlbumName, u"ab"_s.leftJustified(80));
}

TEST(RecordFiles, ATextThatBeginsWithNulIsEmpty) {
    const QByteArray Bytes = Hex("01000000 00") + "left over" + Blanks(70) + Hex("0000");
    EXPECT_EQ(OnlyRecord<AlbumRecord>(Bytes).AlbumName, u"");
}

TEST(RecordFiles, AnEmptySoundIsANulAndBlanks) {
    const QByteArray Bytes = Written(SlideShowSoundTrackRecord{});
    EXPECT_EQ(Bytes.mid(12, 255), QByteArray(1, '\0') + Blanks(254));
}

TEST(RecordFiles, CharactersOutsideTheCodePageAreReplaced) {
    const QByteArray Bytes = Written(AlbumRecord{1, u"Łódź 東"_s, 0});
    EXPECT_TRUE(Bytes.mid(4).startsWith(Hex("4c f3 64 7a 20"))) << Bytes.toHex().toStdString();
}

TEST(RecordFiles, PathsHoldBackslashesOnDiskAndTheHostsSeparatorInMemory) {
    SlideRecord Row;
    Row.SlideLoc = u"/home/me/picture.jpg"_s;
    const QByteArray Bytes = Written(Row);
    EXPECT_TRUE(Bytes.mid(88).startsWith("\\home\\me\\picture.jpg"));
    EXPECT_EQ(OnlyRecord<SlideRecord>(Bytes).SlideLoc, Row.SlideLoc);
}

TEST(RecordFiles, AFlagOfAnyOtherValueIsTrueAndIsWrittenAsMinusOne) {
    QByteArray Bytes = Written(SlideRecord{});
    Bytes[598] = 1;
    Bytes[601] = '\x40';
    const auto Row = OnlyRecord<SlideRecord>(Bytes);
    EXPECT_TRUE(Row.Override);
    EXPECT_TRUE(Row.Repeat);
    EXPECT_EQ(Written(Row).mid(598, 4), Hex("ffff ffff"));
}

TEST(RecordFiles, OfALongTextTheFirstBytesAreStored) {
    for (const QString& Text :
         {u"Десять тысяч слов о лете. "_s.repeated(80), u"茶と猫 "_s.repeated(400),
          u"👨‍👩‍👧‍👦"_s.repeated(200),
          u"e\u0301\u0302\u0303\u0304\u0306\u0307"_s.repeated(120), QString(400, u'x'),
          QString(1000, u'\u200B') + u"behind"_s}) {
        SlideRecord Row;
        Row.SlideText = Text;
        EXPECT_EQ(Written(Row).mid(8, 80).toHex(),
                  Written(AlbumRecord{0, FromAnsi(ToAnsi(Text).left(80))}).mid(4, 80).toHex());
    }
}

TEST(RecordFiles, TheProgressionMethodIsNarrowedToSixteenBits) {
    EXPECT_EQ(Written(SlideShowRecord{1, 1, {}, 0x12345, 0}).mid(88, 2), Hex("4523"));
}

TEST(RecordFiles, ATailCountsFromHalfARecordWithTiesToEven) {
    EXPECT_EQ(RecordCount(0, 86), 0);
    EXPECT_EQ(RecordCount(42, 86), 0);
    EXPECT_EQ(RecordCount(43, 86), 0);  // half: to the even 0
    EXPECT_EQ(RecordCount(44, 86), 1);
    EXPECT_EQ(RecordCount(129, 86), 2);  // one and a half: to the even 2
    EXPECT_EQ(RecordCount(128, 86), 1);
    EXPECT_EQ(RecordCount(283 + 141, 283), 1);
    EXPECT_EQ(RecordCount(283 + 142, 283), 2);
}

TEST(RecordFiles, TheMissingBytesOfATailReadAsZero) {
    const QByteArray Whole =
        Written(SlideRecord{9, 1, u"caption"_s, u"a.jpg"_s, {}, true, true, 5});
    const auto Row = OnlyRecord<SlideRecord>(Whole.left(320));
    EXPECT_EQ(Row.SlideID, 9);
    EXPECT_EQ(Row.SlideLoc, u"a.jpg");
    EXPECT_EQ(Row.SoundTrackLoc, u"");
    EXPECT_FALSE(Row.Override);
    EXPECT_EQ(Row.Deleted, 0);
}

TEST(RecordFiles, ARecordMarkedAsDeletedIsPassedOver) {
    const QByteArray File =
        Written(AlbumRecord{1, u"a"_s, 0}) + Written(AlbumRecord{2, u"b"_s, 1}) +
        Written(AlbumRecord{3, u"c"_s, -1}) + Written(AlbumRecord{4, u"d"_s, 0});
    std::vector<std::int32_t> Keys;
    ForEachRecord<AlbumRecord>(File, [&](AlbumRecord&& Row) { Keys.push_back(Row.AlbumID); });
    EXPECT_EQ(Keys, (std::vector<std::int32_t>{1, 4}));
}

TEST(PackedRecords, UnpackToTheirBytesAlsoWhenTheyAreMany) {
    PackedRecords Out;
    QByteArray Expected;
    for (std::int32_t I = 0; I < 9000; ++I) {
        const SlideRecord Row{
            I, 1, u"t"_s.repeated(I % 90), u"/x"_s.repeated(I % 130), {}, I % 2 == 0, false, 0};
        EncodeRecord(Out, Row);
        if (I % 1000 == 0) Expected += Written(Row);
    }
    Out.Finish();
    const QByteArray All = Out.Unpack();
    ASSERT_EQ(All.size(), 9000 * 604);
    for (qsizetype I = 0; I < 9; ++I)
        EXPECT_EQ(All.mid(I * 1000 * 604, 604), Expected.mid(I * 604, 604));
    EXPECT_LT(Out.Bytes().size(), All.size() / 2);
    const auto Again = PackedRecords::FromBytes(Out.Bytes(), Out.Length());
    ASSERT_TRUE(Again);
    EXPECT_EQ(Again->Unpack(), All);
}

TEST(RecordSource, AnythingButAFileUnderTheNameIsAFaultAndNotMissingRecords) {
    TempFolder Dir;
    const RecordSource Source = RecordsInDirectory(Dir.Path());
    EXPECT_FALSE(Source(RecordFile::Albums));
    MakeDirs(Dir / "Albums.dat");
    EXPECT_THROW(Source(RecordFile::Albums), Fault);
    QFile::link("unplugged/Slides.dat", Dir / "Slides.dat");
    EXPECT_THROW(Source(RecordFile::Slides), Fault);
}

TEST(PackedRecords, LongRunsWithoutBlanksAreKept) {
    PackedRecords Out;
    QByteArray Expected;
    for (int I = 0; I < 1000; ++I) {
        const QByteArray Bytes(255, static_cast<char>('a' + I % 26));
        Out.BeginRecord(255);
        Out.Literal(Bytes.constData(), 255);
        Expected += Bytes;
    }
    Out.Finish();
    EXPECT_EQ(Out.Unpack(), Expected);
}

TEST(PackedRecords, DamagedFormsAreRefused) {
    PackedRecords Out;
    EncodeRecord(Out, AlbumRecord{1, u"name"_s, 0});
    Out.Finish();
    EXPECT_FALSE(PackedRecords::FromBytes(Out.Bytes(), Out.Length() + 1));
    EXPECT_FALSE(PackedRecords::FromBytes(Out.Bytes().chopped(1), Out.Length()));
    EXPECT_FALSE(PackedRecords::FromBytes("\xff\xff", 0));
}

}  // namespace
}  // namespace neb
