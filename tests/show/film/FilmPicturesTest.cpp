// Pictures read ahead for a film: in any order that a show may take, and on media that hang.
#include "show/film/FilmPictures.h"

#include <gtest/gtest.h>

#include <atomic>

#include "harness/HangingFiles.h"
#include "support/Fault.h"

namespace neb::test {
namespace {

using namespace Qt::StringLiterals;

// The picture of "N" is N pixels wide; that of a word cannot be read.
class FilmPicturesAhead : public ::testing::Test {
  protected:
    ~FilmPicturesAhead() override { mFiles->GoOnAll(); }

    FilmPictures::Makers Makers() const {
        return {[Files = mFiles, Reads = mReads](const QString& Path) {
                    ++*Reads;
                    Files->Pass(Path);
                    bool IsNumber = false;
                    const int Width = Path.toInt(&IsNumber);
                    if (!IsNumber) throw Fault(u"No picture."_s, Path);
                    return Width == 0 ? QImage() : QImage(Width, 1, QImage::Format_RGB32);
                },
                [](const QImage& Picture, const QString& Caption) {
                    return Picture.copy(0, 0, Picture.width(), static_cast<int>(Caption.size()));
                }};
    }
    static std::vector<FilmPictureAhead> Numbers(int Last) {
        std::vector<FilmPictureAhead> All;
        for (int I = 1; I <= Last; ++I) All.push_back({QString::number(I), u"four"_s});
        return All;
    }

    const std::shared_ptr<harness::HangingFiles> mFiles = std::make_shared<harness::HangingFiles>();
    const std::shared_ptr<std::atomic<int>> mReads = std::make_shared<std::atomic<int>>(0);
};

TEST_F(FilmPicturesAhead, ComeAsTheyWereForeseenAndFitted) {
    FilmPictures Pictures(Numbers(9), Makers(), [] {});
    for (int I = 1; I <= 9; ++I) {
        const FilmPicture Taken = Pictures.Take(QString::number(I));
        EXPECT_EQ(I, Taken.Picture.width());
        EXPECT_EQ(QSize(I, 4), Taken.Fitted.size());
    }
    EXPECT_EQ(9, *mReads) << "each is read once";
}

TEST_F(FilmPicturesAhead, AreNeverMoreThanAFew) {
    for (int I = 1; I <= 9; ++I) mFiles->Hang(QString::number(I));
    FilmPictures Pictures(Numbers(9), Makers(), [] {});
    mFiles->GoOn(u"1"_s);
    Pictures.Take(u"1"_s);
    mFiles->GoOn(u"2"_s);
    Pictures.Take(u"2"_s);
    EXPECT_LE(mFiles->Most(), static_cast<int>(FilmPictures::MostAhead) + 1);
}

TEST_F(FilmPicturesAhead, ComeInAnotherOrderToo) {
    FilmPictures Pictures(Numbers(6), Makers(), [] {});
    for (const int I : {1, 77, 2, 4, 3, 5, 5, 6, 1})
        EXPECT_EQ(I, Pictures.Take(QString::number(I)).Picture.width()) << I;
}

TEST_F(FilmPicturesAhead, TellOfThoseThatCannotBeRead) {
    FilmPictures Pictures({{u"1"_s, {}}, {u"none"_s, {}}, {u"0"_s, {}}, {u"4"_s, {}}}, Makers(),
                          [] {});
    Pictures.Take(u"1"_s);
    EXPECT_THROW(Pictures.Take(u"none"_s), Fault);
    EXPECT_THROW(Pictures.Take(u"0"_s), Fault);
    EXPECT_EQ(4, Pictures.Take(u"4"_s).Picture.width());
}

TEST_F(FilmPicturesAhead, AreAwaitedUntilNobodyWantsToAnyMore) {
    struct Enough {};
    mFiles->Hang(u"2"_s);
    int Asked = 0;
    {
        FilmPictures Pictures(Numbers(3), Makers(), [&] {
            if (++Asked == 3) throw Enough();
        });
        Pictures.Take(u"1"_s);
        EXPECT_THROW(Pictures.Take(u"2"_s), Enough);
    }
    EXPECT_EQ(3, Asked) << "and nobody waits for the thread";
}

}  // namespace
}  // namespace neb::test
