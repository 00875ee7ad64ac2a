// What the tests of transfers stand on: the program's own database and another one, each with two
// albums of slides, shows, pictures and sounds, and the comparison of both before and after.
#pragma once

#include "albums/transfer/Transfer.h"
#include "harness/FilledDatabase.h"
#include "harness/MemoryFolder.h"
#include "harness/TempFolder.h"
#include "harness/TransferChecker.h"
#include "harness/UntouchedDatabases.h"
#include "settings/modNEBSlideShow.h"
#include "support/Fault.h"

namespace neb::harness {

inline TransferResult Transfer(clsDBEngine& Src, clsDBEngine& Dst, const StatedTransfer& What,
                               const TransferDesk& Desk = {}, const QObject* Asker = nullptr,
                               const QString& Adjective = u"Export"_s) {
    if (What.SrcSlideShowID == 0)
        return TransferAlbum({Src, What.SrcAlbumID, Dst, What.DstAlbumID, What.Replace,
                              What.NewAlbumName, Adjective},
                             Desk, Asker);
    return TransferSlideShow(
        {Src, What.SrcAlbumID, What.SrcSlideShowID, Dst, What.DstAlbumID, What.DstSlideShowID,
         What.NewAlbumName, What.NewSlideShowName, Adjective},
        Desk, Asker);
}

class TransferRig : public ::testing::Test {
  protected:
    TransferRig() : mBefore(DBEngine) {
        DBEngine = &Own.Engine;
        GardenID = Own.AddFilledAlbum(u"Garden"_s);
        SeaID = Own.AddFilledAlbum(u"Sea"_s);
        HillsID = Other.AddFilledAlbum(u"Hills"_s);
        Other.Engine.NextSlideID += 40;
        Other.Engine.NextSlideShowID += 10;
        TownID = Other.AddFilledAlbum(u"Town"_s);
        Own.Engine.SaveProperty(u"LastAlbum"_s.leftJustified(20), u"1"_s);
        Own.Engine.FinalizeDB();
        Other.Engine.FinalizeDB();
        Own.Engine.Listeners.Told = [this](const Change& What, const QObject* Asker) {
            Told.push_back(What);
            Askers.push_back(Asker);
        };
    }
    ~TransferRig() override {
        SetHostWatcher({});
        DBEngine = mBefore;
    }

    static std::int32_t ShowNamed(const clsDBEngine& Engine, std::int32_t AlbumID,
                                  const QString& Name) {
        for (const auto& Each : Engine.GetAlbum(AlbumID)->SlideShows)
            if (Each->SlideShowName == Name) return Each->SlideShowID;
        ADD_FAILURE() << "no show " << Name.toStdString();
        return 0;
    }
    static clsNEBSlide& SlideAt(const clsDBEngine& Engine, std::int32_t AlbumID, size_t Place) {
        return *Engine.GetAlbum(AlbumID)->Slides.at(Place);
    }

    // Runs it, writes the destination, and compares with what the rules say.
    TransferResult ExpectDone(clsDBEngine& Src, clsDBEngine& Dst, const StatedTransfer& What,
                              const TransferDesk& Desk = {}) {
        Src.FinalizeDB();
        Dst.FinalizeDB();
        const DatabaseState Source = ReadDatabase(Src.DBPath()),
                            Before = ReadDatabase(Dst.DBPath());
        const QStringList SourceFiles = WithDates(Src.DBPath());
        TransferResult Result = Transfer(Src, Dst, What, Desk);
        EXPECT_TRUE(Result);
        for (const BoxRequest& Each : Result.Boxes) ADD_FAILURE() << Each.Text.toStdString();
        ExpectAsWritten(Dst);
        Dst.FinalizeDB();
        EXPECT_EQ("", CheckTransfer(Source, Before, ReadDatabase(Dst.DBPath()), What));
        if (&Src != &Dst) {
            EXPECT_EQ("", Differences(SourceFiles, WithDates(Src.DBPath())));
        }
        return Result;
    }
    // What another program would read from the disk at this moment.
    static void ExpectAsWritten(const clsDBEngine& Engine) {
        clsDBEngine Reader;
        Reader.SetDBPath(Engine.DBPath());
        Reader.InitializeDB(Recovery::InMemory);
        EXPECT_EQ(MemoryOf(Engine), MemoryOf(Reader)) << "memory and disk disagree";
    }
    // It is refused with these boxes, one a line as "title|text", and nothing changes.
    void ExpectRefused(clsDBEngine& Src, clsDBEngine& Dst, const StatedTransfer& What,
                       const std::string& Boxes, const TransferDesk& Desk = {},
                       const QString& Adjective = u"Export"_s) {
        const Untouched Both(Src, Dst);
        const TransferResult Result = Transfer(Src, Dst, What, Desk, nullptr, Adjective);
        EXPECT_EQ(TransferResult::End::Refused, Result.Is);
        EXPECT_EQ(Boxes, BoxesOf(Result));
        EXPECT_TRUE(Result.Changes.empty());
        Both.Expect(Boxes);
    }
    static std::string BoxesOf(const TransferResult& Result) {
        static const char* const Icons[] = {"plain", "information", "question", "critical"};
        QStringList Lines;
        for (const BoxRequest& Each : Result.Boxes)
            Lines << QLatin1String(Icons[static_cast<int>(Each.Icon)]) + u'|' + Each.Title + u'|' +
                         Each.Text;
        return Lines.join(u"\n---\n"_s).toStdString();
    }

    MemoryFolder OwnFolder, OtherFolder;
    FilledDatabase Own{OwnFolder.Path(), u"own"_s}, Other{OtherFolder.Path(), u"other"_s};
    std::int32_t GardenID = 0, SeaID = 0, HillsID = 0, TownID = 0;
    std::vector<Change> Told;
    std::vector<const QObject*> Askers;

  private:
    clsDBEngine* mBefore;
};

}  // namespace neb::harness
