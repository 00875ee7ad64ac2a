#include "support/work/AheadQueue.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QThread>
#include <atomic>

#include "harness/ByTheClock.h"
#include "support/Fault.h"

using namespace neb;

namespace {

std::vector<int> UpTo(int Count) {
    std::vector<int> Items;
    for (int I = 0; I < Count; ++I) Items.push_back(I);
    return Items;
}

}  // namespace

TEST(AheadQueue, HandsResultsOutInTheOrderOfTheList) {
    AheadQueue<int, int> Queue(UpTo(200), [](int I) {
        QThread::usleep(static_cast<unsigned long>((I * 37) % 11) * 100);
        return I * I;
    });
    for (int I = 0; I < 200; ++I) {
        EXPECT_EQ(I, Queue.Next());
        EXPECT_EQ(I * I, Queue.Take());
    }
    EXPECT_TRUE(Queue.AtEnd());
}

TEST(AheadQueue, NeverBeginsMoreThanItsWindowAhead) {
    auto Begun = std::make_shared<std::atomic<int>>(0);
    AheadQueue<int, int> Queue(
        UpTo(100), [Begun](int I) { return ++*Begun, I; }, 3);
    for (int I = 0; I < 100; ++I) {
        QThread::usleep(300);
        EXPECT_LE(*Begun, I + 3);
        Queue.Take();
    }
    EXPECT_EQ(100, *Begun);
}

TEST(AheadQueue, ThrowsWhatTheWorkThrewAtItsItemAndGoesOn) {
    AheadQueue<int, int> Queue(UpTo(5), [](int I) {
        if (I == 2) throw Fault(QStringLiteral("two"), {}, 22);
        return I;
    });
    EXPECT_EQ(0, Queue.Take());
    EXPECT_EQ(1, Queue.Take());
    try {
        Queue.Take();
        FAIL();
    } catch (const Fault& Reason) {
        EXPECT_EQ(22U, Reason.Number());
    }
    EXPECT_EQ(3, Queue.Take());
    EXPECT_EQ(4, Queue.Take());
}

TEST(AheadQueue, TheCallerCanWaitInSmallSteps) {
    AheadQueue<int, int> Queue({7}, [](int I) {
        QThread::msleep(120);
        return I;
    });
    EXPECT_FALSE(Queue.Ready());
    int Steps = 0;
    while (!Queue.Wait(10)) ++Steps;
    EXPECT_GE(Steps, 3);
    EXPECT_TRUE(Queue.Ready());
    EXPECT_EQ(7, Queue.Take());
}

TEST(AheadQueue, LeavingInTheMiddleIsQuickAndTheRestIsNeverBegun) {
    harness::GoByTheClock();
    auto Begun = std::make_shared<std::atomic<int>>(0);
    QElapsedTimer Time;
    {
        AheadQueue<int, int> Queue(UpTo(1000), [Begun](int I) {
            ++*Begun;
            QThread::msleep(800);
            return I;
        });
        QThread::msleep(20);
        Time.start();
    }
    EXPECT_LT(Time.elapsed(), 600);
    AheadThreads().waitForDone();
    EXPECT_LE(*Begun, AheadThreads().maxThreadCount());
}

TEST(AheadQueue, UsesSeveralProcessors) {
    QThreadPool& Pool = AheadThreads();
    const int Before = Pool.maxThreadCount();
    Pool.setMaxThreadCount(std::max(2, Before));
    auto Threads = std::make_shared<std::atomic<int>>(0);
    auto Most = std::make_shared<std::atomic<int>>(0);
    AheadQueue<int, int> Queue(UpTo(8), [=](int I) {
        const int Now = ++*Threads;
        if (Now > *Most) *Most = Now;
        QThread::msleep(20);
        --*Threads;
        return I;
    });
    while (!Queue.AtEnd()) Queue.Take();
    Pool.setMaxThreadCount(Before);
    EXPECT_GE(*Most, 2);
}

TEST(AheadQueue, AnEmptyListIsAtItsEnd) {
    AheadQueue<int, int> Queue({}, [](int I) { return I; });
    EXPECT_TRUE(Queue.AtEnd());
    EXPECT_TRUE(Queue.Wait(1000));
}
