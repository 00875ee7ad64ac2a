// What a transfer must not take with it: pictures that somebody still has, whatever state the
// databases and their folders are in.
#include <QDir>
#include <thread>

#include "TransferRig.h"
#include "albums/transfer/OtherDatabase.h"

namespace neb::harness {
namespace {

class TransferSafety : public TransferRig {
  protected:
    // As after a kill, or a pulled stick, between the commit and the last of its files.
    static void BreakOff(const std::function<void()>& Run, const QString& Below) {
        SetHostWatcher([Below](HostStep Step, const QString& Path, qint64&) {
            if (Step == HostStep::Rename && Path.startsWith(Below)) throw Fault(u"gone"_s, Path);
        });
        EXPECT_THROW(Run(), Fault);
        SetHostWatcher({});
    }
    static QByteArray Bytes(const QString& Path) {
        return FileExists(Path) ? ReadFile(Path) : QByteArray("none");
    }
};

// The stick was pulled at the end; at the other computer it is a source.
TEST_F(TransferSafety, PicturesThatWaitInTheSourceAreThere) {
    BreakOff(
        [&] {
            Transfer(Own.Engine, Other.Engine,
                     {.SrcAlbumID = GardenID, .NewAlbumName = u"Arrived"_s});
        },
        Other.Dir() + u"Albums/"_s);
    auto Stick = OtherDatabase::Open(Other.Dir(), OtherDatabase::Use::Source);
    ASSERT_TRUE(Stick);
    clsDBEngine& There = (*Stick)->Engine();
    QString Name = u"Arrived"_s;
    std::int32_t ArrivedID = 0;
    ASSERT_TRUE(There.LoadAlbum(ArrivedID, Name));
    QStringList Missed;
    const TransferDesk Desk{.GoOnWithout = [&](const QStringList& Missing) {
        Missed = Missing;
        return false;
    }};
    EXPECT_TRUE(
        Transfer(There, Own.Engine, {.SrcAlbumID = ArrivedID, .NewAlbumName = u"Back"_s}, Desk));
    EXPECT_EQ(0, Missed.size()) << Missed.join(u'\n').toStdString();
}

// Counters that were lost, or came from an older copy of NextIDs.dat.
TEST_F(TransferSafety, ACounterThatIsTooLowCostsNoPictureOfOnesOwn) {
    const auto Before = Tree(Own.Dir() + u"Albums/"_s);
    Own.Engine.NextSlideID = 1;
    Transfer(Other.Engine, Own.Engine,
             {.SrcAlbumID = HillsID, .DstAlbumID = GardenID, .NewAlbumName = u"Garden"_s});
    const auto Now = Tree(Own.Dir() + u"Albums/"_s);
    for (const auto& [Path, Content] : Before)
        EXPECT_TRUE(Now.contains(Path) && Now.at(Path) == Content) << Path.toStdString();
}

// A second database may share the pictures of the first by a link.
TEST_F(TransferSafety, AnAlbumThatIsALinkToTheSourceDoesNotEmptyIt) {
    const QString Town = AlbumFolder(Other.Dir(), TownID).chopped(1);
    ASSERT_TRUE(QDir(Town).removeRecursively());
    ASSERT_TRUE(QFile::link(AlbumFolder(Own.Dir(), GardenID).chopped(1), Town));
    const auto Before = Tree(Own.Dir() + u"Albums/"_s);
    try {
        Transfer(Own.Engine, Other.Engine,
                 {.SrcAlbumID = GardenID,
                  .DstAlbumID = TownID,
                  .Replace = true,
                  .NewAlbumName = u"Town"_s});
    } catch (const Fault&) {
    }
    const auto Now = Tree(Own.Dir() + u"Albums/"_s);
    for (const auto& [Path, Content] : Before)
        EXPECT_TRUE(Now.contains(Path) && Now.at(Path) == Content) << Path.toStdString();
}

TEST_F(TransferSafety, ALongNumberIsNotTakenForAShorterOneThatItBeginsWith) {
    Other.Engine.NextSlideID = 12345678;
    const std::int32_t Short = Other.AddSlide(TownID, u"short"_s).SlideID;
    Other.Engine.NextSlideID = 123456780;
    const std::int32_t Long = Other.AddSlide(TownID, u"long"_s).SlideID;
    const std::int32_t ShowID = Other.AddShow(TownID, u"Short"_s, 0, {Short}).SlideShowID;
    Other.Engine.FinalizeDB();
    ASSERT_TRUE(Transfer(Own.Engine, Other.Engine,
                         {.SrcAlbumID = GardenID,
                          .SrcSlideShowID = ShowNamed(Own.Engine, GardenID, u"Garden walk"_s),
                          .DstAlbumID = TownID,
                          .DstSlideShowID = ShowID,
                          .NewAlbumName = u"Town"_s,
                          .NewSlideShowName = u"Short"_s}));
    EXPECT_NE("none",
              Bytes(AlbumFolder(Other.Dir(), TownID) + u"Slides/"_s + FileStem(Long) + u".jpg"_s));
}

// Gigabytes take their time to go, on a slow stick above all: the windows go on meanwhile.
TEST_F(TransferSafety, WhatWasCopiedInVainGoesBesideTheCaller) {
    std::vector<std::thread::id> Dropping;
    SetHostWatcher([&](HostStep Step, const QString& Path, qint64&) {
        if (Step == HostStep::Rename && Path.endsWith(u"Records.journal"_s))
            throw Fault(u"full"_s, Path);
        if (Step == HostStep::Delete && Path.endsWith(u"Transfer/Note"_s))
            Dropping.push_back(std::this_thread::get_id());
    });
    EXPECT_THROW(
        Transfer(Own.Engine, Other.Engine, {.SrcAlbumID = GardenID, .NewAlbumName = u"Arrived"_s}),
        Fault);
    SetHostWatcher({});
    ASSERT_FALSE(Dropping.empty());
    for (const std::thread::id& Each : Dropping) EXPECT_NE(std::this_thread::get_id(), Each);
}

// The end of the program empties its folder for temporary files.
TEST_F(TransferSafety, ADatabaseIsNotMadeAmongTheFilesOfAnother) {
    for (const QString& Place : {u"Temp/"_s, u"Albums/"_s, u"Albums/1/Slides/"_s})
        EXPECT_FALSE(OtherDatabase::Open(Own.Dir() + Place, OtherDatabase::Use::Destination))
            << Place.toStdString();
}

}  // namespace
}  // namespace neb::harness
