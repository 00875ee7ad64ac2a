// Which pages are painted when, and which of them are kept: with a painter of the test's own.
#include "windows/printing/PageImages.h"

#include <gtest/gtest.h>

#include <QMutex>
#include <QTest>
#include <QWaitCondition>
#include <set>

#include "support/Fault.h"

namespace neb {
namespace {

constexpr QSize Small(10, 10);  // 400 bytes
constexpr qint64 SmallBytes = 400;

// Pages of which each is painted when the test says so. Lives as long as a thread that paints.
struct Easel {
    QMutex Mutex;
    QWaitCondition Changed;
    bool IsOpen = true;
    std::set<int> Held;  // pages that wait all the same
    std::vector<int> Begun;

    QImage Paint(const PageRequest& Wanted) {
        QMutexLocker Lock(&Mutex);
        Begun.push_back(Wanted.Page);
        while (!IsOpen || Held.contains(Wanted.Page)) Changed.wait(&Mutex);
        if (Wanted.Page == 13) throw Fault(QStringLiteral("No page 13."));
        if (Wanted.Page == 14) throw std::bad_alloc();
        QImage Made(Wanted.Pixels, QImage::Format_RGB32);
        Made.fill(Wanted.Page);
        return Made;
    }
    void Let(bool Open, std::set<int> But = {}) {
        const QMutexLocker Lock(&Mutex);
        IsOpen = Open;
        Held = std::move(But);
        Changed.wakeAll();
    }
    std::vector<int> Pages() {
        const QMutexLocker Lock(&Mutex);
        return Begun;
    }
};

class PreviewImages : public ::testing::Test {
  protected:
    ~PreviewImages() override { Painter->Let(true); }

    std::unique_ptr<PageImages> Make(qint64 Budget = PageImages::UsualBudget) {
        return std::make_unique<PageImages>(
            [Mine = Painter](const PageRequest& Wanted) { return Mine->Paint(Wanted); }, Budget);
    }
    static PageRequest Page(int Number, QSize Pixels = Small) { return {Number, Pixels, 96}; }
    static std::vector<PageRequest> Pages(std::initializer_list<int> Numbers) {
        std::vector<PageRequest> All;
        for (const int Each : Numbers) All.push_back(Page(Each));
        return All;
    }
    static bool Await(const PageImages& Images, int Number) {
        return QTest::qWaitFor([&] { return Images.Find(Page(Number)) != nullptr; }, 5000);
    }
    bool AwaitBegun(std::size_t Count) {
        return QTest::qWaitFor([&] { return Painter->Pages().size() >= Count; }, 5000);
    }
    bool IsBegun(int Number) { return std::ranges::count(Painter->Pages(), Number) > 0; }

    std::shared_ptr<Easel> Painter = std::make_shared<Easel>();
};

TEST_F(PreviewImages, ArePaintedOnceAndThenKept) {
    const auto Images = Make();
    EXPECT_EQ(nullptr, Images->Find(Page(3)));
    for (int I = 0; I < 5; ++I) Images->Want(Pages({3}), {});
    ASSERT_TRUE(Await(*Images, 3));
    Images->Want(Pages({3}), {});
    QTest::qWait(30);
    EXPECT_EQ(std::vector<int>{3}, Painter->Pages());
    EXPECT_EQ(3U, Images->Find(Page(3))->Pixels.pixel(5, 5) & 0xFF);
    EXPECT_EQ(nullptr, Images->Find(Page(3, {20, 20}))) << "of another size";
    EXPECT_EQ(Small, Images->StandIn(3).size());
    EXPECT_TRUE(Images->StandIn(4).isNull());
}

TEST_F(PreviewImages, TheOneThatIsLookedAtComesWhileOthersAreStillBusy) {
    const auto Images = Make();
    Painter->Let(true, {1});
    Images->Want(Pages({1}), Pages({2}));
    ASSERT_TRUE(AwaitBegun(1));
    Images->Want(Pages({900}), Pages({901}));
    EXPECT_TRUE(Await(*Images, 900));
    EXPECT_EQ(nullptr, Images->Find(Page(1)));
}

TEST_F(PreviewImages, WhatIsNoLongerWantedIsNeverBegun) {
    const auto Images = Make();
    Painter->Let(false);
    for (int First = 1; First < 200; ++First) Images->Want(Pages({First}), Pages({First + 1}));
    const std::size_t Busy = Painter->Pages().size();
    Images->Want(Pages({900}), {});
    Painter->Let(true);
    EXPECT_TRUE(Await(*Images, 900));
    EXPECT_LE(Busy, 4U);
    EXPECT_LE(Painter->Pages().size(), 5U);
    EXPECT_FALSE(IsBegun(150));
}

TEST_F(PreviewImages, AreReadAheadOneByOneBehindWhatIsLookedAt) {
    const auto Images = Make();
    Painter->Let(true, {5, 6});
    Images->Want(Pages({5}), Pages({6, 4}));
    ASSERT_TRUE(AwaitBegun(1));
    QTest::qWait(30);
    EXPECT_EQ(std::vector<int>{5}, Painter->Pages());
    Painter->Let(true, {6});
    ASSERT_TRUE(AwaitBegun(2));
    QTest::qWait(30);
    EXPECT_EQ((std::vector<int>{5, 6}), Painter->Pages());
    Painter->Let(true);
    EXPECT_TRUE(Await(*Images, 4));
}

TEST_F(PreviewImages, KeepToTheBudgetAndDropThoseOfLongAgo) {
    const auto Images = Make(5 * SmallBytes);
    for (const int Each : {1, 2, 3, 4, 5, 1, 6, 7}) {
        Images->Want(Pages({Each}), {});
        ASSERT_TRUE(Await(*Images, Each));
        EXPECT_LE(Images->Bytes(), 5 * SmallBytes);
    }
    EXPECT_NE(nullptr, Images->Find(Page(1))) << "looked at again";
    EXPECT_EQ(nullptr, Images->Find(Page(2)));
    EXPECT_EQ(nullptr, Images->Find(Page(3)));
    EXPECT_NE(nullptr, Images->Find(Page(4)));
}

TEST_F(PreviewImages, ReadAheadOnlyWhatHasRoom) {
    const auto Images = Make(3 * SmallBytes);
    Images->Want(Pages({5}), Pages({6, 4, 7, 3}));
    EXPECT_TRUE(Await(*Images, 4));
    QTest::qWait(50);
    EXPECT_FALSE(IsBegun(7));
    for (const int Each : {5, 6, 4}) EXPECT_NE(nullptr, Images->Find(Page(Each))) << Each;
}

TEST_F(PreviewImages, WhatIsLookedAtStaysHoweverLargeItIs) {
    const auto Images = Make(2 * SmallBytes);
    Images->Want(Pages({1, 2, 3, 4}), {});
    for (const int Each : {1, 2, 3, 4}) EXPECT_TRUE(Await(*Images, Each)) << Each;
    QTest::qWait(30);
    EXPECT_EQ(4U, Painter->Pages().size());
    Images->Want(Pages({5}), {});
    EXPECT_TRUE(Await(*Images, 5));
    EXPECT_LE(Images->Bytes(), 2 * SmallBytes);
}

TEST_F(PreviewImages, OfPagesThatCannotBePaintedSayWhy) {
    const auto Images = Make();
    Images->Want(Pages({13, 14}), {});
    ASSERT_TRUE(Await(*Images, 13) && Await(*Images, 14));
    EXPECT_EQ("No page 13.", Images->Find(Page(13))->Fault.toStdString());
    EXPECT_EQ("This page cannot be painted.", Images->Find(Page(14))->Fault.toStdString());
    Images->Want(Pages({13}), {});
    QTest::qWait(30);
    EXPECT_EQ(2U, Painter->Pages().size()) << "tried again and again";
}

TEST_F(PreviewImages, AreNotWaitedForAtTheEnd) {
    auto Images = Make();
    Painter->Let(false);
    Images->Want(Pages({1, 2}), {});
    ASSERT_TRUE(AwaitBegun(2));
    Images.reset();  // would never come back
    EXPECT_GT(Painter.use_count(), 1) << "those at work hold what they use";
    Painter->Let(true);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Painter.use_count() == 1; }, 5000));
}

}  // namespace
}  // namespace neb
