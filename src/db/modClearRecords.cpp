#include "db/modClearRecords.h"

#include <set>
#include <unordered_set>

#include "db/AlbumSums.h"
#include "db/clsDBEngine.h"
#include "db/modAlbumFiles.h"
#include "support/Fault.h"
#include "support/Texts.h"
#include "support/files/modHostFiles.h"
#include "support/modFUFL.h"

namespace neb {
namespace {

// The slides of the show that no other show of the album uses, each once, in the show's order.
std::vector<std::int32_t> OrphansOf(const clsNEBAlbum& Album, const clsNEBSlideShow& Show) {
    std::unordered_set<std::int32_t> Taken;
    for (const auto& Other : Album.SlideShows)
        if (Other.get() != &Show)
            for (const auto& Detail : Other->Details) Taken.insert(Detail->SlideID);
    std::vector<std::int32_t> Orphans;
    for (const auto& Detail : Show.Details)
        if (Taken.insert(Detail->SlideID).second) Orphans.push_back(Detail->SlideID);
    return Orphans;
}

Answer<> DeleteOrphans(clsNEBAlbum& Album, const std::vector<std::int32_t>& Orphans,
                       const clsDBEngine& Engine) {
    for (const std::int32_t SlideID : Orphans)
        if (!Album.DeleteSlide(SlideID, Engine))
            return Refuse(tr("Error clearing orphan slides in destination album."));
    return Done();
}

// The sounds of the show in the database; one outside it is not ours to delete, and one that
// another show of the album plays as well is still wanted.
QStringList OwnSounds(const clsNEBAlbum& Album, const clsNEBSlideShow& Show) {
    QStringList Sounds;
    for (const auto& Track : Show.SoundTracks)
        if (!HoldsSeparator(Track->SoundTrackLoc)) Sounds.append(Track->SoundTrackLoc);
    const std::set<QString> Wanted = SoundsOfOthers(Album, Show.SlideShowID);
    Sounds.removeIf([&](const QString& Sound) { return Wanted.contains(Sound.toUpper()); });
    return Sounds;
}

// Goes on past failures, then throws the first.
void DeleteListed(const QStringList& Files) {
    std::optional<Fault> First;
    for (const QString& File : Files) try {
            DeleteFile(File);
        } catch (const Fault& Problem) {
            if (!First) First = Problem;
        }
    ForgetStored(Files);
    if (First) throw *First;
}

// Runs the work; a fault becomes a refusal.
Answer<> Told(const QString& Title, const QString& Sentence,
              const std::function<Answer<>()>& Work) {
    try {
        return Work();
    } catch (const Fault& Problem) {
        return BoxRequest{
            .Text = Sentence + u'\n' + Problem.Text(), .Title = Title, .Icon = BoxIcon::Critical};
    }
}

}  // namespace

std::set<QString> SoundsOfOthers(const clsNEBAlbum& theAlbum, std::int32_t SlideShowID) {
    std::set<QString> Names;
    for (const auto& Show : theAlbum.SlideShows)
        if (Show->SlideShowID != SlideShowID)
            for (const auto& Track : Show->SoundTracks)
                Names.insert(Track->SoundTrackLoc.toUpper());
    return Names;
}

Clearing ClearingOf(const clsDBEngine& theDB, const clsNEBAlbum& theAlbum) {
    Clearing All;
    for (const auto& Slide : theAlbum.Slides) All.Slides.push_back(Slide->SlideID);
    All.Folders = {SoundTracksFolder(theDB.DBPath(), theAlbum.AlbumID),
                   SlidesFolder(theDB.DBPath(), theAlbum.AlbumID)};
    return All;
}

Clearing ClearingOf(const clsDBEngine& theDB, const clsNEBAlbum& theAlbum,
                    const clsNEBSlideShow& theSlideShow) {
    Clearing Own{.Slides = OrphansOf(theAlbum, theSlideShow)};
    const QString Sounds = SoundTracksFolder(theDB.DBPath(), theAlbum.AlbumID);
    const QString Slides = SlidesFolder(theDB.DBPath(), theAlbum.AlbumID);
    for (const QString& Sound : OwnSounds(theAlbum, theSlideShow)) Own.Files << Sounds + Sound;
    for (const std::int32_t SlideID : Own.Slides) Own.Stems << Slides + FileStem(SlideID);
    return Own;
}

// Behind the number of a slide anything may stand but more of a longer number.
QStringList FilesOf(const Clearing& What) {
    QStringList Found;
    for (const QString& File : What.Files)
        if (FileExists(File)) Found << File;
    for (const QString& Folder : What.Folders)
        for (const QString& Name : ListMask(Folder + QStringLiteral("*.*"))) Found << Folder + Name;
    for (const QString& Stem : What.Stems) {
        const qsizetype Length = GetFileName(Stem).size();
        for (const QString& Name : ListMask(Stem + u'*'))
            if (Name.size() == Length || !Name[Length].isDigit()) Found << GetFilePath(Stem) + Name;
    }
    return Found;
}

Answer<> ClearAlbumContents(const clsDBEngine& theDB, clsNEBAlbum& theAlbum) {
    return Told(tr("Clear Album Failed"), tr("Failed to clear the album."), [&] {
        const Clearing All = ClearingOf(theDB, theAlbum);
        theAlbum.ClearContents();
        DeleteListed(FilesOf(All));
        return Answer<>(Done());
    });
}

Answer<> ClearSlideShowContents(const clsDBEngine& theDB, clsNEBAlbum& theAlbum,
                                clsNEBSlideShow& theSlideShow) {
    return Told(tr("Clear Slide Show Failed"), tr("Failed to clear the slide show."), [&] {
        const Clearing Own = ClearingOf(theDB, theAlbum, theSlideShow);
        theSlideShow.ClearContents();
        Answer<> Emptied = DeleteOrphans(theAlbum, Own.Slides, theDB);
        if (!Emptied) return Emptied;
        DeleteListed(FilesOf(Own));
        return Emptied;
    });
}

}  // namespace neb
