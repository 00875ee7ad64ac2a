// The file of texts that records cannot hold: its bytes, and what is no such file.
#include "db/records/WordsFile.h"

#include <gtest/gtest.h>

#include <QCryptographicHash>
#include <random>

#include "Fixtures.h"
#include "fuzz/WordsFuzzEntry.h"

namespace neb {
namespace {

using namespace harness;
using State = WordsFound::State;

std::vector<WholeText> SomeTexts() {
    return {{RecordFile::Albums, 0, {7}, "Leto", u"Лето"_s},
            {RecordFile::Slides, 2, {258, 7}, "", u"/home/音/猫.wav"_s},
            {RecordFile::SlideShowDetails, 0, {3, 7, 258, -1}, "?", u"🐈"_s}};
}

QByteArray Sealed(const QByteArray& Bytes) {
    return Bytes + QCryptographicHash::hash(Bytes, QCryptographicHash::Sha256);
}

TEST(WordsFile, IsMadeLikeThis) {
    const QByteArray Expected = "NEBWORD1" + Hex("03000000") +
                                // an album's name
                                Hex("0300 0400 07000000 00000000 00000000 00000000 08000000") +
                                "Leto" + Hex("d09bd0b5d182d0be") +
                                // a slide's sound; the record holds nothing of its name
                                Hex("0402 0000 02010000 07000000 00000000 00000000 11000000") +
                                "/home/" + Hex("e99fb3") + '/' + Hex("e78cab") + ".wav" +
                                // a caption at a place of a show
                                Hex("0600 0100 03000000 07000000 02010000 ffffffff 04000000") +
                                '?' + Hex("f09f9088");
    EXPECT_EQ(WordsFileOf(SomeTexts()).chopped(32).toHex(), Expected.toHex());
    EXPECT_EQ(
        WordsFileOf(SomeTexts()).last(32),
        QCryptographicHash::hash(WordsFileOf(SomeTexts()).chopped(32), QCryptographicHash::Sha256));
    const WordsFound Found = WordsIn(WordsFileOf(SomeTexts()));
    EXPECT_EQ(Found.Is, State::Sound);
    EXPECT_EQ(Found.Texts, SomeTexts());
}

TEST(WordsFile, ThereIsNoneWithoutTexts) {
    EXPECT_TRUE(WordsFileOf({}).isEmpty());
    EXPECT_EQ(WordsOf(InMemory({})).Is, State::None);
    EXPECT_EQ(WordsOf(InMemory({{RecordFile::Words, WordsFileOf(SomeTexts())}})).Texts,
              SomeTexts());
}

// A QString made of it would be empty for the mark that some programs put in front of a text.
QString Of(char32_t Code) {
    QString Letter;
    for (const char16_t Unit : QChar::fromUcs4(Code)) Letter += QChar(Unit);
    return Letter;
}

TEST(WordsFile, ATextMayBeginWithAnyLetter) {
    std::vector<WholeText> Texts;
    for (char32_t Code = 1; Code <= QChar::LastValidCodePoint; ++Code)
        if (!QChar::isSurrogate(Code)) Texts.push_back({RecordFile::Albums, 0, {1}, {}, Of(Code)});
    Texts.push_back({RecordFile::Albums, 0, {1}, {}, Of(0xFEFF) + Of(0xFEFF)});
    const WordsFound Found = WordsIn(WordsFileOf(Texts));
    ASSERT_EQ(Found.Is, State::Sound);
    EXPECT_TRUE(Found.Texts == Texts);
}

TEST(WordsFile, CutAnywhereItIsDamaged) {
    const QByteArray Whole = WordsFileOf(SomeTexts());
    for (qsizetype Length = 0; Length < Whole.size(); ++Length)
        EXPECT_EQ(WordsIn(Whole.first(Length)).Is, State::Damaged) << Length;
    EXPECT_EQ(WordsIn(Whole + '\0').Is, State::Damaged);
}

TEST(WordsFile, AnyFlippedBitIsSeen) {
    const QByteArray Whole = WordsFileOf(SomeTexts());
    for (qsizetype Bit = 0; Bit < Whole.size() * 8; ++Bit) {
        QByteArray Bytes = Whole;
        Bytes[Bit / 8] = static_cast<char>(Bytes[Bit / 8] ^ (1 << Bit % 8));
        const WordsFound Found = WordsIn(Bytes);
        EXPECT_FALSE(Found.IsUsable()) << Bit;
        EXPECT_TRUE(Found.Texts.empty()) << Bit;
    }
}

TEST(WordsFile, ThatOfALaterVersionIsToldFromADamagedOne) {
    EXPECT_EQ(WordsIn("NEBWORD2 and what only that version knows").Is, State::Later);
    EXPECT_EQ(WordsIn("NEBWORD9").Is, State::Damaged) << "not even that";
    EXPECT_EQ(WordsIn("NEBWORD0 was never written").Is, State::Damaged);
    EXPECT_EQ(WordsIn("NEBWORDS as somebody has typed them").Is, State::Damaged);
}

// With a check sum that is right, as only a program could have made it.
TEST(WordsFile, WhatCannotBeIsDamage) {
    const auto Of = [](const WholeText& Each) { return WordsFileOf({Each}); };
    const WholeText Sound{RecordFile::Slides, 2, {1, 1}, "a", u"ж"_s};
    ASSERT_EQ(WordsIn(Of(Sound)).Is, State::Sound);
    const auto With = [&](const auto& Change) {
        WholeText Each = Sound;
        Change(Each);
        return WordsIn(Of(Each)).Is;
    };
    EXPECT_EQ(With([](auto& Each) { Each.File = RecordFile::NextIDs; }), State::Damaged);
    EXPECT_EQ(With([](auto& Each) { Each.File = RecordFile::Words; }), State::Damaged);
    EXPECT_EQ(With([](auto& Each) { Each.Field = 3; }), State::Damaged);
    EXPECT_EQ(With([](auto& Each) { Each.File = RecordFile::Albums; }), State::Damaged);
    EXPECT_EQ(With([](auto& Each) { Each.Stored = QByteArray(256, 'x'); }), State::Damaged);
    EXPECT_EQ(With([](auto& Each) { Each.Stored = QByteArray("a\0b", 3); }), State::Damaged);
    EXPECT_EQ(With([](auto& Each) { Each.Text.clear(); }), State::Damaged);
    EXPECT_EQ(With([](auto& Each) { Each.Text = QString(u'ж') + QChar(0); }), State::Damaged);
    const QByteArray Body = Of(Sound).chopped(32);
    EXPECT_EQ(WordsIn(Sealed(Body)).Is, State::Sound);
    EXPECT_EQ(WordsIn(Sealed(Body + 'x')).Is, State::Damaged) << "more than it says";
    EXPECT_EQ(
        WordsIn(Sealed(Body + Of({RecordFile::NextIDs, 0, {}, "a", u"ж"_s}).sliced(12).chopped(32)))
            .Is,
        State::Damaged)
        << "another, which cannot be, behind as many as it says";
    EXPECT_EQ(WordsIn(Sealed(Body.chopped(1))).Is, State::Damaged) << "less than it says";
    EXPECT_EQ(WordsIn(Sealed(Body.chopped(1) + '\xff')).Is, State::Damaged) << "no UTF-8";
    EXPECT_EQ(WordsIn(Sealed(QByteArray(Body).replace(8, 1, "\2"))).Is, State::Damaged)
        << "two, of which one is there";
}

TEST(WordsFile, DamagedOnesAreReadWithoutHarm) {
    const QByteArray Whole = WordsFileOf({{RecordFile::Albums, 0, {1}, "?", u"茶"_s},
                                          {RecordFile::Slides, 0, {1, 1}, "?", u"酒"_s},
                                          {RecordFile::SlideShows, 0, {1, 1}, "?", u"水"_s}});
    ASSERT_EQ(Whole, fuzz::SealedWords(Whole));
    std::mt19937 Random(4711);
    for (int Round = 0; Round < 3000; ++Round) {
        QByteArray Bytes = Whole;
        const auto Place = [&] { return static_cast<qsizetype>(Random()) % Bytes.size(); };
        for (unsigned Times = Random() % 4; Times-- > 0;)
            Bytes[Place()] = static_cast<char>(Random() % (Random() % 2 ? 256 : 4));
        if (Random() % 4 == 0) Bytes.remove(Place(), Random() % 40);
        if (Random() % 4 == 0) Bytes.insert(Place(), Whole.mid(Place(), Random() % 90));
        ASSERT_TRUE(fuzz::RunWords(Bytes)) << "round " << Round;
    }
    EXPECT_TRUE(fuzz::RunWords({}));
}

}  // namespace
}  // namespace neb
