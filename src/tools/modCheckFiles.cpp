#include "tools/modCheckFiles.h"

#include <set>

#include "db/SongNames.h"
#include "db/modAlbumFiles.h"
#include "support/files/CheckSums.h"
#include "support/files/modHostFiles.h"
#include "support/modFUFL.h"

namespace neb {
namespace {

// One folder of an album: what lies there and what the records name. Names differ in case freely.
class CheckedFolder {
  public:
    CheckedFolder(const QString& Path, Findings& Found) : mPath(Path), mFound(Found) {
        for (const DirEntry& Entry : ListDir(Path))
            (Entry.IsFolder ? mFolders : mFiles).insert(Entry.Name);
        for (const QString& Name : mFiles) mUpper.insert(Name.toUpper());
    }

    // Loc as a record has it: a name in this folder, or a full path outside; empty is none.
    void ExpectFile(const QString& Loc, const QString& What) {
        if (Loc.isEmpty()) return;
        if (!HoldsSeparator(Loc)) mNamed.insert(Loc.toUpper());
        const bool There = HoldsSeparator(Loc) ? FileExists(Loc) : mUpper.contains(Loc.toUpper());
        if (!There) mFound.Add(QStringLiteral("%1 is missing: %2").arg(What, FullPath(Loc)));
    }
    // What may be there and need not. What a store that was cut short has left is nobody's.
    void Allow(const QString& Name) { mNamed.insert(Name.toUpper()); }
    void ReportStrays() const {
        for (const QString& Name : mFiles)
            if (!mNamed.contains(Name.toUpper()) && !IsInTheMaking(Name))
                mFound.Add(QStringLiteral("no record names the file %1").arg(mPath + Name));
        for (const QString& Name : mFolders)
            mFound.Add(QStringLiteral("no record names the folder %1").arg(mPath + Name));
    }

  private:
    // Also what a file was whose place another has taken by now.
    bool IsInTheMaking(const QString& Name) const {
        const QString Upper = Name.toUpper(),
                      Of = Upper.chopped(std::min<qsizetype>(4, Name.size()));
        return Upper.endsWith(u".NEW") ||
               (Upper.endsWith(u".OLD") && mNamed.contains(Of) && mUpper.contains(Of));
    }
    QString FullPath(const QString& Loc) const { return HoldsSeparator(Loc) ? Loc : mPath + Loc; }

    QString mPath;
    Findings& mFound;
    std::set<QString> mFiles, mFolders, mUpper, mNamed;
};

void CheckSlide(const clsNEBSlide& Slide, const QString& Where, CheckedFolder& Folder,
                Findings& Found) {
    const QString What = QStringLiteral(" of slide %1%2").arg(Slide.SlideID).arg(Where);
    if (Slide.SlideLoc.isEmpty())
        Found.Add(
            QStringLiteral("no picture is named by slide %1%2").arg(Slide.SlideID).arg(Where));
    Folder.ExpectFile(Slide.SlideLoc, QStringLiteral("the picture") + What);
    // A picture that was not yet taken into the album need have no thumbnail.
    if (!Slide.SlideLoc.isEmpty() && !HoldsSeparator(Slide.SlideLoc))
        Folder.ExpectFile(ThumbnailName(Slide.SlideID), QStringLiteral("the thumbnail") + What);
    Folder.Allow(ThumbnailName(Slide.SlideID));
    Folder.ExpectFile(Slide.SoundTrackLoc, QStringLiteral("the sound") + What);
}

void CheckSlides(const QString& DBPath, const clsNEBAlbum& Album, const QString& Where,
                 Findings& Found) {
    CheckedFolder Folder(SlidesFolder(DBPath, Album.AlbumID), Found);
    for (const auto& Slide : Album.Slides) CheckSlide(*Slide, Where, Folder, Found);
    Folder.ReportStrays();
}

void CheckSounds(const QString& DBPath, const clsNEBAlbum& Album, const QString& Where,
                 Findings& Found) {
    CheckedFolder Folder(SoundTracksFolder(DBPath, Album.AlbumID), Found);
    for (const auto& Show : Album.SlideShows)
        for (const auto& Track : Show->SoundTracks)
            Folder.ExpectFile(Track->SoundTrackLoc, QStringLiteral("sound track %1 of show %2%3")
                                                        .arg(Track->SoundTrackSeq)
                                                        .arg(Show->SlideShowID)
                                                        .arg(Where));
    Folder.ReportStrays();
}

// The lists that an album keeps; also as one is called while it is being written.
bool IsAlbumList(const QString& Name) {
    const QString Whole = Name.endsWith(QStringLiteral(".new")) ? Name.chopped(4) : Name;
    return Whole == QLatin1String(SumsName) || Whole == QLatin1String(SongNamesFile);
}

// Whatever else lies in a directory than the folders of these names.
void ReportOthers(const QString& Path, const std::set<QString>& Known, Findings& Found) {
    for (const DirEntry& Entry : ListDir(Path)) {
        if (Entry.IsFolder && Known.contains(Entry.Name.toUpper())) continue;
        if (!Entry.IsFolder && IsAlbumList(Entry.Name)) continue;
        Found.Add((Entry.IsFolder ? QStringLiteral("no record names the folder %1")
                                  : QStringLiteral("no record names the file %1"))
                      .arg(Path + Entry.Name));
    }
}

}  // namespace

void CheckAlbumFiles(const clsDBEngine& Engine, Findings& Found, ProgressLine& Progress) {
    std::set<QString> Known;
    size_t Done = 0;
    for (const auto& Album : Engine.Albums) {
        Progress.Show(++Done, Engine.Albums.size());
        // A second album of one number owns nothing: the loader gives all to the first.
        if (!Known.insert(QString::number(Album->AlbumID)).second) continue;
        const QString Where = QStringLiteral(" in album %1").arg(Album->AlbumID);
        ReportOthers(AlbumFolder(Engine.DBPath(), Album->AlbumID),
                     {QStringLiteral("SLIDES"), QStringLiteral("SOUNDTRACKS")}, Found);
        CheckSlides(Engine.DBPath(), *Album, Where, Found);
        CheckSounds(Engine.DBPath(), *Album, Where, Found);
    }
    ReportOthers(Engine.DBPath() + QStringLiteral("Albums/"), Known, Found);
}

}  // namespace neb
