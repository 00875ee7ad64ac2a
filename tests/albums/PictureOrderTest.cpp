// In which order pictures are listed before they come into an album.
#include "albums/PictureOrder.h"

#include <gtest/gtest.h>

#include <QLocale>
#include <algorithm>
#include <random>
#include <thread>

#include "support/files/HostNames.h"

namespace neb {
namespace {

using namespace Qt::StringLiterals;

// The order does not depend on how the names stood before.
std::string Sorted(QStringList Paths) {
    std::shuffle(Paths.begin(), Paths.end(), std::mt19937(7));
    SortByName(Paths);
    for (qsizetype I = 1; I < Paths.size(); ++I) {
        EXPECT_TRUE(IsNamedBefore(Paths[I - 1], Paths[I])) << Paths[I].toStdString();
        EXPECT_FALSE(IsNamedBefore(Paths[I], Paths[I - 1])) << Paths[I].toStdString();
    }
    return Paths.join(u' ').toStdString();
}

TEST(PictureOrder, GoesByNumbersInNames) {
    EXPECT_EQ("IMG_2.jpg IMG_10.jpg IMG_0011.jpg IMG_100.jpg",
              Sorted({u"IMG_0011.jpg"_s, u"IMG_100.jpg"_s, u"IMG_10.jpg"_s, u"IMG_2.jpg"_s}));
    EXPECT_EQ("1a.jpg 01b.jpg 1c.jpg", Sorted({u"1c.jpg"_s, u"01b.jpg"_s, u"1a.jpg"_s}));
}

TEST(PictureOrder, KnowsTheDigitsOfOtherScripts) {
    EXPECT_EQ("صورة٢.jpg صورة٩.jpg صورة١٠.jpg",
              Sorted({u"صورة٢.jpg"_s, u"صورة٩.jpg"_s, u"صورة١٠.jpg"_s}));
    EXPECT_EQ("फोटो२.jpg फोटो१०.jpg", Sorted({u"फोटो२.jpg"_s, u"फोटो१०.jpg"_s}));
}

TEST(PictureOrder, PutsLettersWithMarksBesideThoseWithout) {
    EXPECT_EQ("Abend.jpg Äpfel.jpg Birne.jpg éclair.jpg Ende.jpg Zebra.jpg",
              Sorted({u"Birne.jpg"_s, u"éclair.jpg"_s, u"Äpfel.jpg"_s, u"Ende.jpg"_s,
                      u"Abend.jpg"_s, u"Zebra.jpg"_s}));
    EXPECT_EQ("Zebra.jpg Волга.jpg Лето.jpg",
              Sorted({u"Лето.jpg"_s, u"Zebra.jpg"_s, u"Волга.jpg"_s}));
}

TEST(PictureOrder, GoesByTheUsersLanguage) {
    const QLocale Before;
    QLocale::setDefault(QLocale(QLocale::Swedish));
    std::thread([] {
        EXPECT_EQ("zebra.jpg ärta.jpg", Sorted({u"zebra.jpg"_s, u"ärta.jpg"_s}));
    }).join();
    QLocale::setDefault(Before);
}

TEST(PictureOrder, PutsAShorterNameFirst) {
    EXPECT_EQ("A.jpg a.png a_1.jpg a-1.jpg",
              Sorted({u"a-1.jpg"_s, u"a_1.jpg"_s, u"a.png"_s, u"A.jpg"_s}));
}

TEST(PictureOrder, TellsNamesApartThatDifferInCaseAlone) {
    EXPECT_EQ("A.JPG A.jpg a.jpg", Sorted({u"a.jpg"_s, u"A.jpg"_s, u"A.JPG"_s}));
    EXPECT_FALSE(IsNamedBefore(u"a.jpg"_s, u"a.jpg"_s));
}

TEST(PictureOrder, PutsAFoldersOwnPicturesBeforeThoseOfItsFolders) {
    EXPECT_EQ("/p/z.jpg /p/a/9.jpg /p/a/b/1.jpg /p/a2/1.jpg /p/a10/1.jpg",
              Sorted({u"/p/a10/1.jpg"_s, u"/p/a/b/1.jpg"_s, u"/p/z.jpg"_s, u"/p/a/9.jpg"_s,
                      u"/p/a2/1.jpg"_s}));
    EXPECT_EQ("/p/A/2.jpg /p/a/1.jpg", Sorted({u"/p/a/1.jpg"_s, u"/p/A/2.jpg"_s}));
}

PictureInOrder At(const char* Name, const char* Taken = "") {
    PictureInOrder Picture{QString::fromUtf8(Name), {}};
    Picture.Facts.Taken = QDateTime::fromString(QString::fromLatin1(Taken), Qt::ISODateWithMs);
    return Picture;
}

std::string Names(const std::vector<PictureInOrder>& Pictures) {
    QStringList All;
    for (const PictureInOrder& Each : Pictures) All << Each.Path;
    return All.join(u' ').toStdString();
}

TEST(PictureOrder, ByTimeGoesByWhenPicturesWereTaken) {
    std::vector All{At("c.jpg", "2003-12-24T18:30:00"), At("a.jpg", "2020-01-01T00:00:00"),
                    At("b.jpg", "2003-12-24T18:29:59")};
    SortPictures(All, PictureOrder::ByTime);
    EXPECT_EQ("b.jpg c.jpg a.jpg", Names(All));
    SortPictures(All, PictureOrder::ByName);
    EXPECT_EQ("a.jpg b.jpg c.jpg", Names(All));
}

TEST(PictureOrder, ByTimeGoesByPartsOfASecondAndThenByNames) {
    std::vector All{At("p/10.jpg", "2003-12-24T18:30:00.250"),
                    At("p/9.jpg", "2003-12-24T18:30:00.250"),
                    At("z.jpg", "2003-12-24T18:30:00.100")};
    SortPictures(All, PictureOrder::ByTime);
    EXPECT_EQ("z.jpg p/9.jpg p/10.jpg", Names(All));
}

TEST(PictureOrder, ByTimeTakesTheNameOrTheFilesOwnTimeWhereNoneIsTold) {
    std::vector All{At("lost.jpg"), At("scan.jpg"), At("IMG-20200101-WA0001.jpg"),
                    At("a.jpg", "2021-01-01T00:00:00"), At("b.jpg", "2019-01-01T00:00:00")};
    All[1].Facts.Changed = QDateTime(QDate(2020, 6, 1), QTime(12, 0));
    SortPictures(All, PictureOrder::ByTime);
    EXPECT_EQ("b.jpg IMG-20200101-WA0001.jpg scan.jpg a.jpg lost.jpg", Names(All));
}

std::string Proposed(const char* Name, const char* Words = "", const char* Taken = "") {
    PictureFacts Facts = At(Name, Taken).Facts;
    Facts.Taken.setTimeSpec(Qt::UTC);
    Facts.Words = QString::fromUtf8(Words);
    return ProposedCaption(u"/pics/"_s + HostName(Name), Facts).toStdString();
}

TEST(ProposedCaption, IsWhatThePictureSaysThenItsNameThenItsTime) {
    EXPECT_EQ("The garden", Proposed("DSC_0001.JPG", "The garden", "2003-12-24T18:30:00"));
    EXPECT_EQ("Grandmother", Proposed("Grandmother.jpg", "", "2003-12-24T18:30:00"));
    EXPECT_EQ("24 December 2003, 18:30", Proposed("DSC_0001.JPG", "", "2003-12-24T18:30:00"));
    EXPECT_EQ("1 January 2020", Proposed("IMG-20200101-WA0001.jpg"));
    EXPECT_EQ("DSC_0001", Proposed("DSC_0001.JPG"));
}

TEST(ProposedCaption, OfANameThatIsNoTextIsInLetters) {
    EXPECT_EQ("Grüße", Proposed("Gr\xFC\xDF"
                                "e.jpg"));
}

TEST(PictureOrder, KeepsNamesApartThatAreNoText) {
    EXPECT_EQ("2.jpg 10.jpg", Sorted({u"10.jpg"_s, u"2.jpg"_s}));
    QStringList Names{HostName("\xFC.jpg"), HostName("\xDF.jpg"),
                      HostName("a\xFC"
                               "10.jpg"),
                      HostName("a\xFC"
                               "9.jpg")};
    SortByName(Names);
    EXPECT_LT(Names.indexOf(HostName("a\xFC"
                                     "9.jpg")),
              Names.indexOf(HostName("a\xFC"
                                     "10.jpg")));
    for (qsizetype I = 1; I < Names.size(); ++I)
        EXPECT_NE(IsNamedBefore(Names[I - 1], Names[I]), IsNamedBefore(Names[I], Names[I - 1]));
}

TEST(PictureOrder, OfTenThousandPicturesIsQuick) {
    std::vector<PictureInOrder> All;
    for (int I = 0; I < 10'000; ++I)
        All.push_back({u"/media/stick/DCIM/%1CANON/IMG_%2.JPG"_s.arg(I % 40).arg(I), {}});
    std::shuffle(All.begin(), All.end(), std::mt19937(7));
    SortPictures(All, PictureOrder::ByName);
    EXPECT_EQ(u"/media/stick/DCIM/0CANON/IMG_0.JPG", All.front().Path);
    EXPECT_EQ(u"/media/stick/DCIM/39CANON/IMG_9999.JPG", All.back().Path);
}

}  // namespace
}  // namespace neb
