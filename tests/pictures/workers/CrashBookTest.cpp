#include "pictures/workers/CrashBook.h"

#include <gtest/gtest.h>

#include <thread>
#include <vector>

namespace neb {
namespace {

TEST(CrashBook, GivesAFileUpAtItsThirdCrash) {
    CrashBook Book;
    const QByteArray File(1000, 'a');
    for (int I = 0; I < CrashBook::MostCrashes; ++I) {
        EXPECT_FALSE(Book.IsGivenUp(File));
        Book.Note(File);
    }
    EXPECT_TRUE(Book.IsGivenUp(File));
}

TEST(CrashBook, TakesFilesOfOneLengthForThemselves) {
    CrashBook Book;
    for (int I = 0; I < 3; ++I) Book.Note(QByteArray(1000, char('a' + I)));
    EXPECT_FALSE(Book.IsGivenUp(QByteArray(1000, 'a')));
    EXPECT_FALSE(Book.IsGivenUp(QByteArray(1000, 'x')));
    EXPECT_FALSE(Book.IsGivenUp(QByteArray(999, 'a')));
}

TEST(CrashBook, GoesByWhatAFileHoldsNow) {
    CrashBook Book;
    QByteArray File(1000, 'a');
    for (int I = 0; I < 3; ++I) Book.Note(File);
    File[500] = 'b';
    EXPECT_FALSE(Book.IsGivenUp(File));
    File[500] = 'a';
    EXPECT_TRUE(Book.IsGivenUp(File));
}

TEST(CrashBook, CountsOnAllThreads) {
    CrashBook Book;
    const QByteArray File(1000, 'a');
    std::vector<std::thread> All;
    for (int I = 0; I < CrashBook::MostCrashes; ++I)
        All.emplace_back([&] {
            Book.Note(File);
            for (int J = 0; J < 50; ++J) Book.Note(QByteArray(J, 'b'));
        });
    for (std::thread& Each : All) Each.join();
    EXPECT_TRUE(Book.IsGivenUp(File));
    EXPECT_TRUE(Book.IsGivenUp(QByteArray(7, 'b')));
}

}  // namespace
}  // namespace neb
