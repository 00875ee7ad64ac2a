#include "db/modAlbumFiles.h"

#include <algorithm>

#include "support/MediaTypes.h"
#include "support/files/modHostFiles.h"
#include "support/modFUFL.h"
#include "support/modNumbers.h"

namespace neb {
namespace {

constexpr qsizetype LeastStem = 8;

// The digits at the beginning of a name as a number; 0 where they are none that can be given out.
std::int32_t NumberOf(QStringView Digits) {
    bool IsNumber = false;
    const int Number = Digits.toInt(&IsNumber);
    return IsNumber && Number > 0 && Number <= MostNumbers ? Number : 0;
}

qsizetype CountDigits(QStringView Name) {
    qsizetype Count = 0;
    while (Count < Name.size() && Name[Count] >= u'0' && Name[Count] <= u'9') ++Count;
    return Count;
}

// Ends: what may stand behind the stem, in capitals.
std::int32_t NumberInName(const QString& Name, std::initializer_list<QStringView> Ends) {
    const qsizetype Digits = CountDigits(Name);
    if (Digits < LeastStem) return 0;
    const QStringView Rest = QStringView(Name).sliced(Digits);
    const bool IsOurs =
        Rest.isEmpty() || std::any_of(Ends.begin(), Ends.end(), [&](QStringView End) {
            return Rest.startsWith(End, Qt::CaseInsensitive);
        });
    return IsOurs ? NumberOf(QStringView(Name).first(Digits)) : 0;
}

std::int32_t HighestIn(const QString& Folder, std::initializer_list<QStringView> Ends) {
    std::int32_t Highest = 0;
    for (const DirEntry& Entry : ListDir(Folder))
        Highest = std::max(Highest, NumberInName(Entry.Name, Ends));
    return Highest;
}

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
    std::set<std::int32_t> Numbers;
    for (const DirEntry& Entry : ListDir(Folder)) {
        const qsizetype Digits = CountDigits(Entry.Name);
        const std::int32_t Number = NumberOf(QStringView(Entry.Name).first(Digits));
        if (Digits >= LeastStem && Number > 0) Numbers.insert(Number);
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
    QStringList Endings{QStringLiteral(".jpg"), QStringLiteral("Small.bmp")};
    for (const QString& Sound : SoundExtensions()) Endings << Sound.toLower();
    const auto IsTaken = [&](const QString& Stem) {
        return std::any_of(Endings.cbegin(), Endings.cend(),
                           [&](const QString& Each) { return NameExists(Folder + Stem + Each); });
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

HighestNumbers NumbersInAlbums(const QString& DBPath) {
    HighestNumbers Found;
    for (const DirEntry& Entry : ListDir(DBPath + QStringLiteral("Albums/"))) {
        const bool IsNumber = CountDigits(Entry.Name) == Entry.Name.size();
        const std::int32_t AlbumID = IsNumber ? NumberOf(Entry.Name) : 0;
        if (AlbumID == 0) continue;
        Found =
            HigherOf(Found, {AlbumID, HighestIn(SlidesFolder(DBPath, AlbumID), {u".", u"Small."}),
                             HighestIn(SoundTracksFolder(DBPath, AlbumID), {u".", u"_"})});
    }
    return Found;
}

}  // namespace neb
