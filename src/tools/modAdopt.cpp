#include "tools/modAdopt.h"

#include "albums/StrayPictures.h"
#include "support/Fault.h"
#include "support/files/modHostFiles.h"
#include "tools/modHistory.h"
#include "tools/words/ToolDatabase.h"
#include "tools/words/modDirectories.h"
#include "tools/words/modWords.h"

namespace neb {
namespace {

class PictureAdoption {
  public:
    PictureAdoption(clsDBEngine& Engine, ToolIO& IO) : mEngine(Engine), mIO(IO) {}

    int Run() {
        const std::vector<StrayPicture> Strays = FindStrayPictures(mEngine);
        if (Strays.empty()) {
            PrintLine(
                mIO.Out,
                QStringLiteral("Every picture in %1 belongs to a slide.").arg(mEngine.DBPath()));
            return ExitDone;
        }
        for (const StrayPicture& Each : Strays) Adopt(Each);
        if (mAdopted > 0) TellNotKept(mIO, mEngine.FinalizeDB());
        PrintLine(mIO.Out, Counted(mAdopted, "picture") + QStringLiteral(" adopted."));
        return mLeft == 0 ? ExitDone : ExitFound;
    }

  private:
    // What cannot be read is named and stays; a disk that is full ends it.
    void Adopt(const StrayPicture& Stray) {
        TellOfAlbum(Stray);
        try {
            Tell(Stray, mAdoption.Adopt(Stray));
            ++mAdopted;
        } catch (const Fault& Problem) {
            if (!CanReadFile(Stray.Path) || Problem.File() == Stray.Path) {
                Fail(mIO,
                     QStringLiteral("left where it is: %1: %2").arg(Stray.Path, Problem.What()));
                ++mLeft;
                return;
            }
            throw;
        }
    }
    void TellOfAlbum(const StrayPicture& Stray) {
        if (Stray.HasAlbum || Stray.AlbumID == mToldOf) return;
        mToldOf = Stray.AlbumID;
        PrintLine(mIO.Out, QStringLiteral("There is no record of album %1; its pictures come into "
                                          "the album \"%2\".")
                               .arg(Stray.AlbumID)
                               .arg(QLatin1String(RecoveredAlbum)));
    }
    void Tell(const StrayPicture& Stray, const AdoptedPicture& Made) {
        PrintLine(mIO.Out, QStringLiteral("%1: slide %2 of the album \"%3\", \"%4\"")
                               .arg(Stray.Path)
                               .arg(Made.SlideID)
                               .arg(mEngine.GetAlbum(Made.AlbumID)->AlbumName, Made.Caption));
    }

    clsDBEngine& mEngine;
    Changes mDoor{mEngine};
    Adoption mAdoption{mEngine, mDoor};
    ToolIO& mIO;
    int mAdopted = 0, mLeft = 0;
    std::int32_t mToldOf = 0;  // the album without a record that was named last
};

}  // namespace

int RunAdopt(const QStringList& Arguments, ToolIO& IO) {
    QStringList Words = Arguments;
    const std::optional<OpenWays> How = TakeWays(Words, IO);
    const std::optional<QString> Dir = How ? OneDirectory(Words, IO) : std::nullopt;
    const auto Database = Dir ? ToolDatabase::Open(*Dir, *How, IO) : nullptr;
    if (!Database) return ExitFailed;
    Database->Engine().KeepSession();
    return PictureAdoption(Database->Engine(), IO).Run();
}

}  // namespace neb
