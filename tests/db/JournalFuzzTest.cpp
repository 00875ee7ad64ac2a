// True journals with a few thousand random damages through the same door as the fuzz programs', in
// every build.
#include <gtest/gtest.h>

#include <random>

#include "Fixtures.h"
#include "db/Changes.h"
#include "fuzz/JournalFuzzEntry.h"
#include "harness/MemoryFolder.h"
#include "support/Fault.h"

namespace neb {
namespace {

using namespace harness;

// Small numbers often, and now and then a piece that is missing or there twice.
QByteArray Damaged(const QByteArray& Whole, std::mt19937& Random) {
    QByteArray Bytes = Whole;
    const auto Place = [&] { return static_cast<qsizetype>(Random()) % Bytes.size(); };
    for (unsigned Times = Random() % 4; Times-- > 0;)
        Bytes[Place()] = static_cast<char>(Random() % (Random() % 2 ? 256 : 3));
    if (Random() % 4 == 0) Bytes.remove(Place(), Random() % 40);
    if (Random() % 4 == 0) Bytes.insert(Place(), Whole.mid(Place(), Random() % 400));
    return Bytes;
}

// A session of one of everything, and the journal of an end that broke off.
struct Journals {
    QByteArray Session, Records;

    Journals() {
        MemoryFolder Dir;
        const auto Engine = OpenEngine(Dir.Path());
        FillDatabase(*Engine, u"old"_s);
        Engine->KeepSession();
        Changes(*Engine).SaveCaption(1, 1, u"Łódź"_s);
        Changes(*Engine).MakeAlbum(u"Garden"_s);
        Changes(*Engine).SaveSlide(1, {0, u"slide"_s});
        Changes(*Engine).DeleteSlide(1, 1);
        Changes(*Engine).DeleteShow(1, 1);
        Changes(*Engine).DeleteAlbum(2);
        EXPECT_TRUE(Engine->IsSessionStored());
        Session = ReadFile(SessionJournalPath(Dir.Path()));
        SetHostWatcher([](HostStep Step, const QString& Path, qint64&) {
            if (Step == HostStep::Delete && Path.endsWith(u".journal"_s)) throw Fault(u"Gone."_s);
        });
        EXPECT_THROW(Engine->FinalizeDB(), Fault);
        SetHostWatcher({});
        Records = ReadFile(JournalPath(Dir.Path()));
    }
};

TEST(JournalFuzz, DamagedJournalsOfSessionsAreReadWithoutHarm) {
    const QByteArray Whole = Journals().Session;
    ASSERT_EQ(6u, SessionIn(Whole)->Entries.size());
    ASSERT_EQ(Whole, fuzz::SealedSession(Whole));
    std::mt19937 Random(4711);
    for (int Round = 0; Round < 3000; ++Round)
        ASSERT_TRUE(fuzz::RunSession(Damaged(Whole, Random))) << "round " << Round;
}

TEST(JournalFuzz, DamagedJournalsOfRecordsAreReadWithoutHarm) {
    const QByteArray Whole = Journals().Records;
    ASSERT_TRUE(RecordsInJournal(Whole));
    ASSERT_EQ(Whole, fuzz::SealedJournal(Whole));
    std::mt19937 Random(4711);
    for (int Round = 0; Round < 3000; ++Round)
        ASSERT_TRUE(fuzz::RunJournal(Damaged(Whole, Random))) << "round " << Round;
}

TEST(JournalFuzz, AnEmptyInputIsRead) {
    EXPECT_TRUE(fuzz::RunSession({}));
    EXPECT_TRUE(fuzz::RunJournal({}));
}

}  // namespace
}  // namespace neb
