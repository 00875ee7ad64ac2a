// Another database is opened: to be read alone, or to be written; what keeps it from being opened,
// and what is changed in it by that.
#include "TransferRig.h"
#include "albums/transfer/OtherDatabase.h"
#include "db/modDatabaseLock.h"
#include "harness/Refusals.h"

namespace neb::harness {
namespace {

using Use = OtherDatabase::Use;

class OpenedDatabase : public ::testing::Test {
  protected:
    OpenedDatabase() {
        Filled.AddFilledAlbum(u"Hills"_s);
        Filled.Engine.FinalizeDB();
    }
    ~OpenedDatabase() override { SetHostWatcher({}); }
    void ExpectRefused(Use For, const char* Title, const QString& Text) {
        const auto Before = Tree(Folder.Path());
        harness::ExpectRefused(OtherDatabase::Open(Folder.Path(), For), Text.arg(Folder.Path()),
                               QLatin1String(Title), BoxIcon::Information);
        EXPECT_EQ("", TreeDifferences(Before, Tree(Folder.Path())));
    }
    // The times of effects come from beside the program where the database has none.
    static void ExpectAlike(const clsDBEngine& One, const clsDBEngine& Other) {
        auto Wanted = MemoryOf(One), Found = MemoryOf(Other);
        Wanted.erase("EffectStats.dat");
        Found.erase("EffectStats.dat");
        EXPECT_TRUE(Wanted == Found);
    }
    // The record files have got half way.
    void BreakWrite() {
        Filled.Engine.Albums[0]->AlbumName = u"Valleys"_s;
        SetHostWatcher([](HostStep Step, const QString& Path, qint64&) {
            if (Step == HostStep::Write && Path.endsWith(u"Slides.dat")) throw Fault(u"full"_s);
        });
        EXPECT_THROW(Filled.Engine.FinalizeDB(), Fault);
        SetHostWatcher({});
    }

    MemoryFolder Folder;
    FilledDatabase Filled{Folder.Path(), u"other"_s};
    static QString ToWrite(const char* Wrong) {
        return u"The database in\n%1\nis damaged. It has not been changed.\n\n"_s +
               QLatin1String(Wrong) +
               u"\n\nOpen it with the program, which offers to bring its last good albums back or "
               "to go on with what is left."_s;
    }
    const QString Damaged =
        u"NextIDs.dat in\n%1\nis missing or damaged, so that new pictures might replace old ones. "
        "nebctl check tells more."_s;
};

TEST_F(OpenedDatabase, HoldsWhatIsThere) {
    for (const Use For : {Use::Source, Use::Destination}) {
        auto Other = OtherDatabase::Open(Folder.Path(), For);
        ASSERT_TRUE(Other);
        EXPECT_EQ(For, (*Other)->For());
        EXPECT_EQ(Folder.Path(), (*Other)->DBPath());
        ExpectAlike(Filled.Engine, (*Other)->Engine());
    }
}

TEST_F(OpenedDatabase, IsNotMadeAmongTheFilesOfAnother) {
    for (const char* Among : {"Albums/7/", "Temp/new/", "temp/"}) {
        SCOPED_TRACE(Among);
        harness::ExpectRefused(
            OtherDatabase::Open(Folder / QLatin1String(Among), Use::Destination),
            u"The directory lies among the files of the database in\n%1\nChoose one elsewhere."_s
                .arg(Folder.Path()),
            u"Invalid Directory"_s, BoxIcon::Information);
    }
}

TEST_F(OpenedDatabase, IsLockedForAsLongAsItIsOpen) {
    {
        auto Other = OtherDatabase::Open(Folder.Path(), Use::Source);
        ASSERT_TRUE(Other);
        const QString Text = u"The database in\n%1\nis in use. Close it there and try again."_s;
        ExpectRefused(Use::Source, "Database In Use", Text);
        ExpectRefused(Use::Destination, "Database In Use", Text);
    }
    EXPECT_TRUE(OtherDatabase::Open(Folder.Path(), Use::Destination));
    EXPECT_FALSE(FileExists(DatabaseLockPath(Folder.Path())));
}

TEST_F(OpenedDatabase, IsNotWrittenWhereItIsReadOnly) {
    QFile::setPermissions(Folder / u"NextIDs.dat"_s, QFileDevice::ReadOwner);
    ExpectRefused(Use::Destination, "Read-Only Database", u"The database in\n%1\nis read-only."_s);
    EXPECT_TRUE(OtherDatabase::Open(Folder.Path(), Use::Source));
}

TEST_F(OpenedDatabase, IsRefusedWithoutItsCounters) {
    QFile::remove(Folder / u"NextIDs.dat"_s);
    ExpectRefused(Use::Source, "Damaged Database", Damaged);
    ExpectRefused(Use::Destination, "Damaged Database", ToWrite("NextIDs.dat is missing."));
}

// Nor read: an album that came without its slides would take the place of one that has them.
TEST_F(OpenedDatabase, IsRefusedWhereRecordsAreLost) {
    WriteFile(Folder / u"Albums.dat"_s, {});
    for (const Use Each : {Use::Source, Use::Destination})
        ExpectRefused(Each, "Damaged Database",
                      ToWrite("Albums.dat is empty, and was not when it was written.\n"
                              "4 slides belong to an album that is not in Albums.dat.\n"
                              "2 slide shows belong to an album that is not in Albums.dat."));
}

TEST_F(OpenedDatabase, GivesNoNumberOutThatAFileBears) {
    WriteFile(Folder / u"Albums/1/Slides/00000077.jpg"_s, "without a record");
    auto Other = OtherDatabase::Open(Folder.Path(), Use::Destination);
    ASSERT_TRUE(Other);
    EXPECT_EQ(78, (*Other)->Engine().NextSlideID);
    (*Other)->Reread();
    EXPECT_EQ(78, (*Other)->Engine().NextSlideID);
}

TEST_F(OpenedDatabase, IsNotWrittenWhereACounterIsTooLow) {
    for (std::int32_t clsDBEngine::*Counter :
         {&clsDBEngine::NextAlbumID, &clsDBEngine::NextSlideID, &clsDBEngine::NextSlideShowID}) {
        --(Filled.Engine.*Counter);
        Filled.Engine.FinalizeDB();
        const auto Opened = OtherDatabase::Open(Folder.Path(), Use::Destination);
        EXPECT_FALSE(Opened);
        EXPECT_TRUE(Opened.Refusal().Text.contains(u"is taken: new pictures or sounds would"_s));
        EXPECT_TRUE(OtherDatabase::Open(Folder.Path(), Use::Source));
        ++(Filled.Engine.*Counter);
    }
    Filled.Engine.FinalizeDB();
    EXPECT_TRUE(OtherDatabase::Open(Folder.Path(), Use::Destination));
}

TEST_F(OpenedDatabase, BeginsEmptyWhereThereIsNone) {
    const QString New = Folder / u"a stick/of mine/"_s;
    auto Other = OtherDatabase::Open(New, Use::Destination);
    ASSERT_TRUE(Other);
    EXPECT_TRUE((*Other)->Engine().Albums.empty());
    ASSERT_TRUE(
        Transfer(Filled.Engine, (*Other)->Engine(), {.SrcAlbumID = 1, .NewAlbumName = u"First"_s}));
    (*Other)->Engine().FinalizeDB();
    EXPECT_EQ(4U, ReadDatabase(New).Slides.size());
}

TEST_F(OpenedDatabase, AsASourceIsReadAsItWillBeAndLeftAsItIs) {
    BreakWrite();
    const QStringList Before = Everything(Folder.Path() + u"Temp"_s) + WithDates(Folder.Path());
    auto Other = OtherDatabase::Open(Folder.Path(), Use::Source);
    ASSERT_TRUE(Other);
    EXPECT_EQ(u"Valleys"_s, (*Other)->Engine().Albums.at(0)->AlbumName);
    EXPECT_EQ(
        "", Differences(Before, Everything(Folder.Path() + u"Temp"_s) + WithDates(Folder.Path())));
}

TEST_F(OpenedDatabase, AsADestinationIsBroughtToTheEndOfItsWriteFirst) {
    BreakWrite();
    auto Other = OtherDatabase::Open(Folder.Path(), Use::Destination);
    ASSERT_TRUE(Other);
    EXPECT_EQ("Valleys", FieldText(ReadDatabase(Folder.Path()).Albums.at(0).AlbumName));
    EXPECT_TRUE(ReadDatabase(Folder.Path()).Temp.empty());
}

TEST_F(OpenedDatabase, ForgetsOnRequestWhatWasChangedInMemory) {
    auto Other = OtherDatabase::Open(Folder.Path(), Use::Destination);
    (*Other)->Engine().DeleteAlbum(1);
    (*Other)->Reread();
    ExpectAlike(Filled.Engine, (*Other)->Engine());
}

TEST_F(OpenedDatabase, IsTheSameByWhateverNames) {
    MemoryFolder Beside;
    const QString Link = Beside / u"link"_s;
    ASSERT_TRUE(QFile::link(Folder.Path().chopped(1), Link));
    for (const QString& Name : {Folder.Path().chopped(1), Link, Link + u'/',
                                Folder / u"Albums/.."_s, Folder.Path() + u'/'})
        EXPECT_TRUE(IsSameDatabase(Folder.Path(), Name)) << Name.toStdString();
    EXPECT_FALSE(IsSameDatabase(Folder.Path(), Beside.Path()));
    EXPECT_FALSE(IsSameDatabase(Folder / u"not there"_s, Beside / u"not there"_s));
}

}  // namespace
}  // namespace neb::harness
