#include "albums/StrayPictures.h"

#include <map>
#include <set>

#include "albums/modImport.h"
#include "db/AlbumSums.h"
#include "db/clsDBEngine.h"
#include "db/modAlbumFiles.h"
#include "pictures/ImgX.h"
#include "pictures/PictureWords.h"
#include "pictures/formats/PictureSniff.h"
#include "support/Fault.h"
#include "support/MediaTypes.h"
#include "support/files/modHostFiles.h"
#include "support/modDEValidation.h"
#include "support/modFUFL.h"

namespace neb {
namespace {

constexpr qint64 HeadLength = 4096;
constexpr qsizetype FewestDigits = 8;

// The number with which a slide's files begin, when that is all of the name before its ending; 0:
// it is none.
std::int32_t NumberIn(const QString& Name) {
    const QString Stem = GetFileBaseName(Name);
    const bool IsDigits = Stem.size() >= FewestDigits &&
                          std::all_of(Stem.begin(), Stem.end(),
                                      [](QChar Each) { return Each >= u'0' && Each <= u'9'; });
    return IsDigits && FileStem(Stem.toInt()) == Stem ? Stem.toInt() : 0;
}

bool IsThumbnail(const QString& Name) {
    const QString Ending = QStringLiteral("Small.bmp");
    return Name.endsWith(Ending, Qt::CaseInsensitive) &&
           NumberIn(Name.chopped(Ending.size()) + QStringLiteral(".bmp")) != 0;
}

bool IsPicture(const QString& Path) {
    if (IsPictureName(Path)) return true;
    if (Path.endsWith(QStringLiteral(".new"), Qt::CaseInsensitive)) return false;
    try {
        return LooksLikePicture(ReadFileHead(Path, HeadLength));
    } catch (const Fault&) {
        return false;
    }
}

// Full paths, upper-cased, that slides name.
std::set<QString> NamedPictures(const clsDBEngine& theDB) {
    std::set<QString> Named;
    for (const auto& Album : theDB.Albums)
        for (const auto& Slide : Album->Slides)
            for (const QString& Loc : {Slide->SlideLoc, Slide->SoundTrackLoc})
                Named.insert(SlidePath(theDB.DBPath(), Album->AlbumID, Loc).toUpper());
    return Named;
}

// By the numbers of the albums, which the folders bear.
std::map<std::int32_t, QString> AlbumFolders(const QString& DBPath) {
    std::map<std::int32_t, QString> Folders;
    for (const DirEntry& Entry : ListDir(DBPath + QStringLiteral("Albums/"))) {
        const std::int32_t Number = Entry.Name.toInt();
        if (Entry.IsFolder && Number > 0 && QString::number(Number) == Entry.Name)
            Folders[Number] = SlidesFolder(DBPath, Number);
    }
    return Folders;
}

}  // namespace

std::vector<StrayPicture> FindStrayPictures(const clsDBEngine& theDB) {
    std::vector<StrayPicture> Found;
    const std::set<QString> Named = NamedPictures(theDB);
    for (const auto& [AlbumID, Folder] : AlbumFolders(theDB.DBPath()))
        for (const DirEntry& Entry : ListDir(Folder)) {
            const QString Path = Folder + Entry.Name;
            if (!Entry.IsFolder && !Named.contains(Path.toUpper()) && !IsThumbnail(Entry.Name) &&
                IsPicture(Path))
                Found.push_back({Path, AlbumID, theDB.GetAlbum(AlbumID) != nullptr});
        }
    return Found;
}

std::int32_t Adoption::AlbumFor(const StrayPicture& Stray) {
    if (Stray.HasAlbum) return Stray.AlbumID;
    std::int32_t AlbumID = 0;
    QString Name = QLatin1String(RecoveredAlbum);
    if (mDB.LoadAlbum(AlbumID, Name)) return AlbumID;
    Answer<Announcement> Made = NewAlbum(mDoor, mDB, Name);
    if (!Made) throw Fault(Made.Refusal().Text);
    return Made->What().AlbumID;
}

bool Adoption::HasSlide(std::int32_t SlideID) const {
    return std::ranges::any_of(
        mDB.Albums, [&](const auto& Album) { return Album->GetSlide(SlideID) != nullptr; });
}

std::int32_t Adoption::NumberFor(const StrayPicture& Stray, std::int32_t AlbumID) const {
    const std::int32_t Own = NumberIn(GetFileName(Stray.Path));
    const bool IsAtHome = Stray.AlbumID == AlbumID;
    const bool MayHave =
        Own > 0 && !HasSlide(Own) && (IsAtHome || FreeSlideID(mDB.DBPath(), AlbumID, Own) == Own);
    return MayHave ? Own : mDoor.FreeSlideID(AlbumID);
}

QString Adoption::CaptionOf(const QString& Path) {
    const QString Words = CleanText(WordsOfPicture(ReadFile(Path)));
    return Words.isEmpty() ? QStringLiteral("Recovered picture %1").arg(++mNameless) : Words;
}

AdoptedPicture Adoption::Adopt(const StrayPicture& Stray) {
    const QImage Thumbnail = MakeThumbnail(Stray.Path);
    AdoptedPicture Made;
    Made.AlbumID = AlbumFor(Stray);
    Made.SlideID = NumberFor(Stray, Made.AlbumID);
    Made.Caption = CaptionOf(Stray.Path);
    const QString Folder = SlidesFolder(mDB.DBPath(), Made.AlbumID);
    clsNEBSlide Slide;
    Slide.SlideID = Made.SlideID;
    Slide.SlideText = Made.Caption;
    Slide.SlideLoc = FileStem(Made.SlideID) + GetFileExt(GetFileName(Stray.Path));
    const QString Place = Folder + Slide.SlideLoc;
    const bool Stays = ResolvePath(Place) == ResolvePath(Stray.Path);
    if (Stays)
        ListStored(Place);
    else
        StoreNew(Place, ReadFile(Stray.Path));
    const Answer<Announcement> Entered = mDoor.EnterSlide(Made.AlbumID, Slide);
    if (!Entered) throw Fault(Entered.Refusal().Text);
    if (!Stays && mDB.IsSessionStored()) DropStored({Stray.Path});
    StoreAnew(Folder + ThumbnailName(Made.SlideID), ThumbnailBmp(Thumbnail));
    return Made;
}

}  // namespace neb
