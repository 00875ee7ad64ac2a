// What a picture says of itself: title, description, date, wherever its kind of file keeps them.
#include "pictures/PictureWords.h"

#include <gtest/gtest.h>

#include <QtEndian>
#include <random>

namespace neb {
namespace {

constexpr quint16 Description = 0x010E, Changed = 0x0132, Exif = 0x8769, Title = 0x9C9B,
                  Taken = 0x9003;
constexpr quint16 Bytes = 1, Ascii = 2, Long = 4;

struct Field {
    quint16 Tag, Type;
    QByteArray Value;
};

template <class Number>
QByteArray Put(Number Value, bool Big) {
    QByteArray Made(sizeof(Number), '\0');
    Big ? qToBigEndian(Value, Made.data()) : qToLittleEndian(Value, Made.data());
    return Made;
}

// A TIFF structure of one directory, and one behind the EXIF pointer.
QByteArray Tiff(const QList<Field>& First, const QList<Field>& Behind = {}, bool Big = false) {
    QByteArray Head = (Big ? "MM" : "II") + Put<quint16>(42, Big) + Put<quint32>(8, Big), Heap;
    const auto Size = [](qsizetype Count) { return 2 + 12 * Count + 4; };
    const qsizetype Entries = First.size() + (Behind.isEmpty() ? 0 : 1);
    const qsizetype SecondAt = 8 + Size(Entries), HeapAt = SecondAt + Size(Behind.size());
    const auto Directory = [&](const QList<Field>& Fields, const QByteArray& Pointer) {
        const bool Points = !Pointer.isEmpty();
        QByteArray Made = Put(static_cast<quint16>(Fields.size() + Points), Big);
        for (const Field& Each : Fields) {
            Made += Put(Each.Tag, Big) + Put(Each.Type, Big) +
                    Put(static_cast<quint32>(Each.Value.size()), Big);
            if (Each.Value.size() <= 4) {
                Made += Each.Value.leftJustified(4, '\0');
            } else {
                Made += Put(static_cast<quint32>(HeapAt + Heap.size()), Big);
                Heap += Each.Value;
            }
        }
        return Made + Pointer + QByteArray(4, '\0');
    };
    const QByteArray Pointer = Behind.isEmpty()
                                   ? QByteArray()
                                   : Put(Exif, Big) + Put(Long, Big) + Put<quint32>(1, Big) +
                                         Put(static_cast<quint32>(SecondAt), Big);
    const QByteArray One = Directory(First, Pointer), Two = Directory(Behind, {});
    return Head + One + Two + Heap;
}

QByteArray Jpeg(const QByteArray& Block) {
    const QByteArray Segment = QByteArray("Exif\0\0", 6) + Block;
    return "\xFF\xD8\xFF\xE0" + Put<quint16>(4, true) + "JF" + "\xFF\xE1" +
           Put(static_cast<quint16>(Segment.size() + 2), true) + Segment + "\xFF\xDA";
}

QByteArray Wide(const char16_t* Text) {
    const QString Words = QString::fromUtf16(Text);
    QByteArray Made;
    for (const QChar Each : Words) Made += Put<quint16>(Each.unicode(), false);
    return Made + QByteArray(2, '\0');
}

std::string Words(const QByteArray& File) {
    return WordsOfPicture(File).toStdString();
}

TEST(PictureWords, ATitleComesBeforeADescriptionAndThatBeforeADate) {
    const Field TheTitle{Title, Bytes, Wide(u"Käthe in Łódź")};
    const Field TheDescription{Description, Ascii, QByteArray("The  garden \0of", 15)};
    const Field Date{Taken, Ascii, QByteArray("2003:12:24 18:30:05\0", 20)};
    EXPECT_EQ("Käthe in Łódź", Words(Jpeg(Tiff({TheDescription, TheTitle}, {Date}))));
    EXPECT_EQ("The garden", Words(Jpeg(Tiff({TheDescription}, {Date}))));
    EXPECT_EQ("24 December 2003, 18:30", Words(Jpeg(Tiff({}, {Date}))));
    const Field Later{Changed, Ascii, QByteArray("2011:01:02 03:04:05\0", 20)};
    EXPECT_EQ("24 December 2003, 18:30", Words(Jpeg(Tiff({Later}, {Date}))));
    EXPECT_EQ("2 January 2011, 03:04", Words(Jpeg(Tiff({Later}))));
}

TEST(PictureWords, AreReadInEitherByteOrderAndFromTiffFilesToo) {
    const Field TheDescription{Description, Ascii, "Grandmother's house"};
    EXPECT_EQ("Grandmother's house", Words(Jpeg(Tiff({TheDescription}, {}, true))));
    EXPECT_EQ("Grandmother's house", Words(Tiff({TheDescription}, {}, true)));
    EXPECT_EQ("Grandmother's house", Words(Tiff({TheDescription})));
    EXPECT_EQ("sea", Words(Tiff({{Description, Ascii, "sea"}}))) << "short ones lie in the entry";
}

TEST(PictureWords, ByteStringsOfOldProgramsAreRead) {
    EXPECT_EQ("Fürth", Words(Jpeg(Tiff({{Description, Ascii, "F\xFCrth"}}))));
    EXPECT_EQ("Fürth", Words(Jpeg(Tiff({{Description, Ascii, "F\xC3\xBCrth"}}))));
}

TEST(PictureWords, WhatSaysNothingHasNone) {
    EXPECT_EQ("", Words({}));
    EXPECT_EQ("", Words("no picture"));
    EXPECT_EQ("", Words("\xFF\xD8\xFF\xDA"));
    EXPECT_EQ("", Words(Jpeg(Tiff({{Description, Ascii, "   "}}))));
    EXPECT_EQ("", Words(Jpeg(Tiff({{Changed, Ascii, QByteArray("0000:00:00 00:00:00\0", 20)}}))));
}

TEST(PictureWords, DamagedBlocksAreReadWithoutHarm) {
    std::mt19937 Random(4711);
    const QByteArray Whole =
        Jpeg(Tiff({{Description, Ascii, "The garden"}, {Title, Bytes, Wide(u"x")}},
                  {{Taken, Ascii, QByteArray("2003:12:24 18:30:05\0", 20)}}));
    for (int Round = 0; Round < 5000; ++Round) {
        QByteArray Damaged = Whole.left(static_cast<qsizetype>(Random() % (Whole.size() + 1)));
        for (int I = 0; I < 4 && !Damaged.isEmpty(); ++I)
            Damaged[static_cast<qsizetype>(Random() % Damaged.size())] =
                static_cast<char>(Random());
        EXPECT_LE(WordsOfPicture(Damaged).size(), Whole.size());
    }
}

}  // namespace
}  // namespace neb
