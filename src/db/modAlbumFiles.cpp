#include "db/modAlbumFiles.h"

#include "support/files/modHostFiles.h"
#include "support/modFUFL.h"
#include "support/modNumbers.h"

namespace neb {
namespace {

bool HasFiles(const QString& Folder) {
    return !ListDir(Folder).empty();
}

}  // namespace

QString AlbumFolder(const QString& DBPath, std::int32_t AlbumID) {
    return DBPath + QStringLiteral("Albums/%1/").arg(AlbumID);
}

QString SlidesFolder(const QString& DBPath, std::int32_t AlbumID) {
    return AlbumFolder(DBPath, AlbumID) + QStringLiteral("Slides/");
}

QString SoundTracksFolder(const QString& DBPath, std::int32_t AlbumID) {
    return AlbumFolder(DBPath, AlbumID) + QStringLiteral("SoundTracks/");
}

QString FileStem(std::int32_t ID) {
    return Format(ID, "00000000");
}

QString SlidePath(const QString& DBPath, std::int32_t AlbumID, const QString& SlideLoc) {
    return HoldsSeparator(SlideLoc) ? SlideLoc : SlidesFolder(DBPath, AlbumID) + SlideLoc;
}

std::set<std::int32_t> NumbersIn(const QString& Folder) {
    constexpr qsizetype FewestDigits = 8;
    std::set<std::int32_t> Numbers;
    for (const DirEntry& Entry : ListDir(Folder)) {
        qsizetype Digits = 0;
        while (Digits < Entry.Name.size() && Entry.Name[Digits].isDigit()) ++Digits;
        bool Fits = false;
        const std::int32_t Number = QStringView(Entry.Name).left(Digits).toInt(&Fits);
        if (Fits && Digits >= FewestDigits) Numbers.insert(Number);
    }
    return Numbers;
}

std::int32_t FreeAlbumID(const QString& DBPath, std::int32_t From) {
    while (HasFiles(SlidesFolder(DBPath, From)) || HasFiles(SoundTracksFolder(DBPath, From)))
        ++From;
    return From;
}

std::int32_t FreeSlideID(const QString& DBPath, std::int32_t AlbumID, std::int32_t From) {
    const QString Folder = SlidesFolder(DBPath, AlbumID);
    const auto IsTaken = [&Folder](const QString& Stem) {
        return NameExists(Folder + Stem + QStringLiteral(".jpg")) ||
               NameExists(Folder + Stem + QStringLiteral(".wav")) ||
               NameExists(Folder + Stem + QStringLiteral("Small.bmp"));
    };
    while (IsTaken(FileStem(From))) ++From;
    return From;
}

std::int32_t FreeSlideShowID(const QString& DBPath, std::int32_t AlbumID, std::int32_t From) {
    const std::set<std::int32_t> Taken = NumbersIn(SoundTracksFolder(DBPath, AlbumID));
    while (Taken.contains(From)) ++From;
    return From;
}

QString ThumbnailName(std::int32_t SlideID) {
    return FileStem(SlideID) + QStringLiteral("Small.bmp");
}

}  // namespace neb
