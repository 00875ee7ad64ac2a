#include "db/clsNEBAlbum.h"

#include <algorithm>
#include <set>

#include "db/AlbumSums.h"
#include "db/NamedSounds.h"
#include "db/clsDBEngine.h"
#include "db/modAlbumFiles.h"
#include "db/modNameIndex.h"
#include "support/Fault.h"
#include "support/Texts.h"
#include "support/files/modHostFiles.h"
#include "support/modFUFL.h"
#include "support/modNumbers.h"

namespace neb {
namespace {

// The ID in a row of a view, the rows counted from 1.
std::int32_t IdInRow(const std::vector<NameIndexEntry>& Index, std::int32_t Row) {
    if (static_cast<size_t>(Row) > Index.size())
        throw Fault(tr("There is no row %1 in the list.").arg(Row));
    return Index[static_cast<size_t>(Row) - 1].ID;
}

// Full paths; what cannot be listed has none.
QStringList FilesLike(const QString& Folder, const QString& Mask) {
    QStringList Paths;
    for (const QString& Name : ListMask(Folder + Mask)) Paths << Folder + Name;
    return Paths;
}

}  // namespace

void clsNEBAlbum::SortSlides() {
    SlideIndex.clear();
    for (const auto& Slide : Slides) SlideIndex.push_back({Slide->SlideText, Slide->SlideID});
    SortByName(SlideIndex, NameTies::ByID);
}

void clsNEBAlbum::SortSlideShows() {
    if (SlideShows.empty()) return;
    SlideShowIndex.clear();
    for (const auto& Show : SlideShows)
        SlideShowIndex.push_back({Show->SlideShowName, Show->SlideShowID});
    SortByName(SlideShowIndex, NameTies::AsTheyFall);
}

void clsNEBAlbum::LoadSlidesCombo(ComboList& cboSlides) {
    cboSlides.Clear();
    SortSlides();
    for (const NameIndexEntry& Row : SlideIndex)
        cboSlides.AddItem(Format(Row.ID, "000000") + u' ' + Row.Name, Row.ID);
}

void clsNEBAlbum::LoadSlideShowsCombo(ComboList& cboSlideShows) {
    cboSlideShows.Clear();
    SortSlideShows();
    if (SlideShows.empty()) return;
    for (const NameIndexEntry& Row : SlideShowIndex) cboSlideShows.AddItem(Row.Name, Row.ID);
}

bool clsNEBAlbum::SaveSlide(std::int32_t& SlideID, const QString& SlideText,
                            const QString& SlideLoc, const QString& SoundTrackLoc, bool Override,
                            bool Repeat, clsDBEngine& theDB) {
    return SaveSlide2(SlideID, SlideText, SlideLoc, SoundTrackLoc, Override, Repeat, theDB);
}

clsNEBSlide* clsNEBAlbum::SaveSlide2(std::int32_t& SlideID, const QString& SlideText,
                                     const QString& SlideLoc, const QString& SoundTrackLoc,
                                     bool Override, bool Repeat, clsDBEngine& theDB) {
    clsNEBSlide* Slide = SlideID != 0 ? GetSlide(SlideID) : nullptr;
    if (!Slide) {
        Slide = Slides.emplace_back(std::make_unique<clsNEBSlide>()).get();
        Slide->SlideID = SlideID = theDB.AllocateSlideID();
    }
    Slide->Override = Override;
    Slide->Repeat = Repeat;
    Slide->SlideLoc = SlideLoc;
    Slide->SlideText = SlideText;
    Slide->SoundTrackLoc = SoundTrackLoc;
    return Slide;
}

bool clsNEBAlbum::SaveSlideShow(std::int32_t& SlideShowID, const QString& SlideShowName,
                                std::int32_t ProgressionMethod, clsDBEngine& theDB) {
    clsNEBSlideShow* Show = SlideShowID != 0 ? GetSlideShow(SlideShowID) : nullptr;
    if (!Show) {
        Show = SlideShows.emplace_back(std::make_unique<clsNEBSlideShow>()).get();
        Show->SlideShowID = SlideShowID = theDB.AllocateSlideShowID();
    }
    Show->SlideShowName = SlideShowName;
    Show->ProgressionMethod = ProgressionMethod;
    return true;
}

clsNEBSlide* clsNEBAlbum::GetSlide(std::int32_t SlideID, std::int32_t SlideIdx) {
    if (SlideIdx > 0 && SlideIndex.empty()) SortSlides();
    const std::int32_t Wanted = SlideIdx > 0 ? IdInRow(SlideIndex, SlideIdx) : SlideID;
    for (const auto& Slide : Slides)
        if (Slide->SlideID == Wanted) return Slide.get();
    return nullptr;
}

clsNEBSlideShow* clsNEBAlbum::GetSlideShow(std::int32_t SlideShowID,
                                           std::int32_t SlideShowIdx) const {
    const std::int32_t Wanted =
        SlideShowIdx > 0 ? IdInRow(SlideShowIndex, SlideShowIdx) : SlideShowID;
    for (const auto& Show : SlideShows)
        if (Show->SlideShowID == Wanted) return Show.get();
    return nullptr;
}

bool clsNEBAlbum::TakeSlide(std::int32_t SlideID) {
    if (SlideID == 0) return false;
    const auto Found = std::find_if(Slides.begin(), Slides.end(),
                                    [&](const auto& Slide) { return Slide->SlideID == SlideID; });
    if (Found == Slides.end()) return false;
    Slides.erase(Found);
    return true;
}

QStringList clsNEBAlbum::SlideFiles(std::int32_t SlideID, const clsDBEngine& theDB) const {
    const QString Folder = SlidesFolder(theDB.DBPath(), AlbumID), Stem = FileStem(SlideID);
    return FilesLike(Folder, Stem + QStringLiteral(".*")) +
           FilesLike(Folder, Stem + QStringLiteral("Small.*"));
}

void clsNEBAlbum::DeleteSlideFiles(std::int32_t SlideID, const clsDBEngine& theDB) const {
    DropStored(SlideFiles(SlideID, theDB));
}

bool clsNEBAlbum::DeleteSlide(std::int32_t SlideID, const clsDBEngine& theDB) {
    if (TakeSlide(SlideID)) DeleteSlideFiles(SlideID, theDB);
    return true;
}

bool clsNEBAlbum::TakeSlideShow(std::int32_t SlideShowID) {
    if (SlideShowID == 0) return false;
    const auto Found = std::find_if(SlideShows.begin(), SlideShows.end(), [&](const auto& Show) {
        return Show->SlideShowID == SlideShowID;
    });
    if (Found == SlideShows.end()) return false;
    SlideShows.erase(Found);
    return true;
}

// What begins with its number, and what it played besides: a show that was saved from another one
// may have been left with that one's files.
QStringList clsNEBAlbum::SlideShowFiles(const clsNEBSlideShow& Gone,
                                        const clsDBEngine& theDB) const {
    const QString Folder = SoundTracksFolder(theDB.DBPath(), AlbumID);
    const std::set<QString> Wanted = SoundsNamedBesides(theDB, AlbumID, Gone.SlideShowID);
    QStringList Names = ListMask(Folder + FileStem(Gone.SlideShowID) + QStringLiteral("*.*"));
    for (const auto& Track : Gone.SoundTracks)
        if (!HoldsSeparator(Track->SoundTrackLoc)) Names.append(Track->SoundTrackLoc.trimmed());
    QStringList Paths;
    for (const QString& Name : Names)
        if (!Name.isEmpty() && !Wanted.contains(Name.toUpper())) Paths << Folder + Name;
    return Paths;
}

void clsNEBAlbum::DeleteSlideShowFiles(const clsNEBSlideShow& Gone,
                                       const clsDBEngine& theDB) const {
    DropStored(SlideShowFiles(Gone, theDB));
}

// The show goes before its sounds: never a show without them.
bool clsNEBAlbum::DeleteSlideShow(std::int32_t SlideShowID, const clsDBEngine& theDB) {
    const clsNEBSlideShow* There = GetSlideShow(SlideShowID);
    if (!There) return true;
    const auto Gone = There->Copy();
    if (TakeSlideShow(SlideShowID)) DeleteSlideShowFiles(*Gone, theDB);
    return true;
}

std::unique_ptr<clsNEBAlbum> clsNEBAlbum::Part(
    const std::vector<std::int32_t>& SlideShowIDs) const {
    auto Made = std::make_unique<clsNEBAlbum>();
    Made->AlbumID = AlbumID;
    Made->AlbumName = AlbumName;
    const bool Whole = SlideShowIDs.empty();
    std::set<std::int32_t> Used;
    for (const auto& Show : SlideShows) {
        if (!Whole && std::ranges::find(SlideShowIDs, Show->SlideShowID) == SlideShowIDs.end())
            continue;
        for (const auto& Detail : Show->Details) Used.insert(Detail->SlideID);
        Made->SlideShows.push_back(Show->Copy());
    }
    for (const auto& Slide : Slides)
        if (Whole || Used.contains(Slide->SlideID))
            Made->Slides.push_back(std::make_unique<clsNEBSlide>(*Slide));
    return Made;
}

bool clsNEBAlbum::ClearContents() {
    Slides.clear();
    SlideShows.clear();
    return true;
}

}  // namespace neb
