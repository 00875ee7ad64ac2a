// What a further start hands over, as bytes: it comes back as it was, and no bytes do any harm.
#include "program/opening/HandOver.h"

#include <gtest/gtest.h>

#include <QtEndian>
#include <random>

#include "support/files/HostNames.h"

namespace neb {
namespace {

const HandOver Sample{{"/home/anna/Garden", "/home/anna/rose & thorn.jpg", "/x/ä.jpg"},
                      "a-token_1"};

// A message of this version with any body.
QByteArray Framed(const QByteArray& Body) {
    QByteArray Length(4, '\0');
    qToBigEndian(static_cast<quint32>(Body.size()), Length.data());
    return "NEBOPEN1" + Length + Body;
}
QByteArray Counted(const QByteArray& Bytes) {
    QByteArray Length(4, '\0');
    qToBigEndian(static_cast<quint32>(Bytes.size()), Length.data());
    return Length + Bytes;
}

TEST(HandOver, ComesBackAsItWas) {
    EXPECT_EQ(Sample, UnpackHandOver(*PackHandOver(Sample)));
    EXPECT_EQ(HandOver(), UnpackHandOver(*PackHandOver({}))) << "a start that opens nothing";
}

TEST(HandOver, KeepsNamesThatAreNoText) {
    const HandOver Strange{{HostName("/x/B\xE4ume/\xFF.jpg")}, {}};
    const auto Back = UnpackHandOver(*PackHandOver(Strange));
    ASSERT_TRUE(Back);
    EXPECT_EQ("/x/B\xE4ume/\xFF.jpg", HostBytes(Back->Paths.value(0)));
}

TEST(HandOver, IsNotMadeWhereItIsTooMuch) {
    EXPECT_FALSE(PackHandOver({QStringList(MaxHandOverPaths + 1, "/a"), {}}));
    EXPECT_FALSE(PackHandOver({QStringList(2000, "/" + QString(4000, u'a')), {}}));
    EXPECT_TRUE(PackHandOver({QStringList(MaxHandOverPaths, "/a"), {}}));
}

TEST(HandOver, ALongOrUnreadableTokenIsLeftAway) {
    for (const QByteArray& Token : {QByteArray(513, 'a'), QByteArray("a b"), QByteArray("\xE4")})
        EXPECT_EQ("", UnpackHandOver(*PackHandOver({{"/a"}, Token}))->Token);
}

TEST(HandOver, SaysHowLongItWillBe) {
    const QByteArray Whole = *PackHandOver(Sample);
    for (qsizetype Length = 0; Length < HandOverHead; ++Length)
        EXPECT_EQ(0, HandOverLength(Whole.first(Length))) << Length;
    for (qsizetype Length = HandOverHead; Length <= Whole.size(); ++Length)
        EXPECT_EQ(Whole.size(), HandOverLength(Whole.first(Length))) << Length;
}

TEST(HandOver, MayBeAsLongAsTheLongest) {
    const auto Told = [](qsizetype Length) {
        QByteArray Body(sizeof(quint32), '\0');
        qToBigEndian(static_cast<quint32>(Length - HandOverHead), Body.data());
        return HandOverLength("NEBOPEN1" + Body);
    };
    EXPECT_EQ(MaxHandOver, Told(MaxHandOver));
    EXPECT_FALSE(Told(MaxHandOver + 1));
}

TEST(HandOver, AnotherVersionOrNoMessageAtAllIsNotAwaited) {
    EXPECT_FALSE(HandOverLength("NEBOPEN2"));
    EXPECT_FALSE(HandOverLength("G"));
    EXPECT_FALSE(HandOverLength("NEBOPEN1\xFF\xFF\xFF\xFF")) << "longer than any";
}

TEST(HandOver, PathsThatNoStartWouldSendAreRefused) {
    const auto WithPath = [](const QByteArray& Path) {
        return UnpackHandOver(Framed(Counted("") + QByteArray("\0\0\0\1", 4) + Counted(Path)));
    };
    EXPECT_TRUE(WithPath("/a"));
    EXPECT_FALSE(WithPath("a/b"));
    EXPECT_FALSE(WithPath(""));
    EXPECT_FALSE(WithPath(QByteArray("/a\0b", 4)));
    EXPECT_FALSE(WithPath("/" + QByteArray(4096, 'a')));
    EXPECT_FALSE(WithPath("file:///a"));
}

TEST(HandOver, CountsThatAreNotTrueAreRefused) {
    const QByteArray One = Counted("/a");
    EXPECT_FALSE(UnpackHandOver(Framed(Counted("") + QByteArray("\0\0\0\2", 4) + One)));
    EXPECT_FALSE(UnpackHandOver(Framed(Counted("") + QByteArray("\0\0\0\0", 4) + One)));
    EXPECT_FALSE(UnpackHandOver(Framed(Counted("") + QByteArray("\xFF\xFF\xFF\xFF", 4) + One)));
    EXPECT_FALSE(UnpackHandOver(Framed(QByteArray("\xFF\xFF\xFF\xFE", 4) + "x")));
    EXPECT_FALSE(UnpackHandOver(Framed({})));
}

// What comes through has been looked at, whatever was sent.
void ExpectHarmless(const QByteArray& Message) {
    const auto What = UnpackHandOver(Message);
    if (!What) return;
    EXPECT_LE(What->Paths.size(), MaxHandOverPaths);
    for (const QString& Path : What->Paths) EXPECT_TRUE(IsWholePath(HostBytes(Path)));
}

TEST(HandOver, DamageDoesNoHarm) {
    const QByteArray Whole = *PackHandOver(Sample);
    std::mt19937 Random(18);
    for (qsizetype Length = 0; Length < Whole.size(); ++Length)
        EXPECT_FALSE(UnpackHandOver(Whole.first(Length))) << Length;
    for (int I = 0; I < 20'000; ++I) {
        QByteArray Damaged = Whole;
        for (int J = 0; J <= I % 4; ++J)
            Damaged[static_cast<qsizetype>(Random() % size_t(Damaged.size()))] = char(Random());
        ExpectHarmless(Damaged);
        QByteArray Body(qsizetype(Random() % 60), '\0');
        for (char& Each : Body) Each = char(Random());
        ExpectHarmless(Framed(Body));
    }
}

}  // namespace
}  // namespace neb
