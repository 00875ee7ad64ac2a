#include "db/Changes.h"

#include "db/clsDBEngine.h"
#include "db/modAlbumFiles.h"
#include "support/modDEValidation.h"
#include "support/modText.h"

namespace neb {
namespace {

const char* const NoAlbum = "The Album was not found.";
const char* const NoSlide = "Slide could not be found.";

bool HasSlide(const clsDBEngine& theDB, std::int32_t SlideID) {
    return std::ranges::any_of(
        theDB.Albums, [&](const auto& Album) { return Album->GetSlide(SlideID) != nullptr; });
}

// Half a letter, which somebody may have pasted, could not be written.
void MakeValid(clsNEBSlide& Slide) {
    Slide.SlideText = ValidText(Slide.SlideText);
}

void MakeValid(clsNEBSlideShow& Show) {
    Show.SlideShowName = ValidText(ComposedName(Show.SlideShowName));
    for (const auto& Each : Show.Details) Each->SlideText = ValidText(Each->SlideText);
}

BoxRequest Missing(const char* Text) {
    return Refuse(QString::fromLatin1(Text));
}

// The show as it was before a change that could not be noted; Before is null for one that was made.
// What the session's journal has of it is overtaken by what stands here again.
void PutBack(clsDBEngine& theDB, clsNEBAlbum& Album, std::int32_t SlideShowID,
             std::unique_ptr<clsNEBSlideShow> Before) {
    using enum Change::Kind;
    const auto Kind = Before ? ShowReplaced : ShowDeleted;
    if (Before)
        *Album.GetSlideShow(SlideShowID) = std::move(*Before);
    else
        Album.TakeSlideShow(SlideShowID);
    try {
        theDB.NoteInSession({Kind, Album.AlbumID, 0, SlideShowID}, false);
    } catch (const std::exception&) {
        return;  // the fault before is the one to tell
    }
}

}  // namespace

Announcement::Announcement(const ChangeListeners* Listeners, const QObject* Asker, Change What)
    : mListeners(Listeners), mAsker(Asker), mWhat(What) {}

Announcement::Announcement(Announcement&& Other) noexcept
    : mListeners(std::exchange(Other.mListeners, nullptr)),
      mAsker(Other.mAsker),
      mWhat(Other.mWhat) {}

Announcement& Announcement::operator=(Announcement&& Other) noexcept {
    if (this == &Other) return *this;
    TellQuietly();
    mListeners = std::exchange(Other.mListeners, nullptr);
    mAsker = Other.mAsker;
    mWhat = Other.mWhat;
    return *this;
}

Announcement::~Announcement() {
    TellQuietly();
}

// Often on the way of a fault already, and nothing that goes wrong here may end the program: a
// window that was not told stays as it was until the next change.
void Announcement::TellQuietly() noexcept {
    try {
        Now();
    } catch (...) {
        return;
    }
}

void Announcement::Now() {
    const ChangeListeners* Listeners = std::exchange(mListeners, nullptr);
    if (Listeners && Listeners->Told) Listeners->Told(mWhat, mAsker);
}

Announcement Changes::Noted(Change What, With Files) {
    mDB.NoteInSession(What, Files == With::Files);
    if (mDB.Listeners.Noted) mDB.Listeners.Noted(What);
    return {mTogether ? nullptr : &mDB.Listeners, mAsker, What};
}

Announcement Changes::AsOne(Change::Kind What, std::int32_t AlbumID) {
    mTogether = true;
    return {&mDB.Listeners, mAsker, {What, AlbumID}};
}

Answer<Announcement> Changes::MakeAlbum(const QString& AlbumName) {
    std::int32_t AlbumID = 0;
    // A folder with pictures belongs to an album whose record has been lost, and to no new one.
    const std::int32_t Free = FreeAlbumID(mDB.DBPath(), mDB.NextAlbumID);
    const std::int32_t Next = std::exchange(mDB.NextAlbumID, Free);
    const Answer<> Saved = mDB.SaveAlbum(AlbumID, ValidText(ComposedName(AlbumName)));
    if (!Saved) {
        mDB.NextAlbumID = Next;
        return Saved.Refusal();
    }
    return Noted({Change::Kind::AlbumMade, AlbumID});
}

Answer<Announcement> Changes::RenameAlbum(std::int32_t AlbumID, const QString& AlbumName) {
    if (!mDB.GetAlbum(AlbumID)) return Missing(NoAlbum);
    const Answer<> Saved = mDB.SaveAlbum(AlbumID, ValidText(ComposedName(AlbumName)));
    if (!Saved) return Saved.Refusal();
    return Noted({Change::Kind::AlbumRenamed, AlbumID}, With::Nothing);
}

Answer<Announcement> Changes::DeleteAlbum(std::int32_t AlbumID) {
    mDB.DeleteAlbum(AlbumID);
    return Noted({Change::Kind::AlbumDeleted, AlbumID}, With::Nothing);
}

std::int32_t Changes::FreeSlideID(std::int32_t AlbumID) const {
    return neb::FreeSlideID(mDB.DBPath(), AlbumID, mDB.NextSlideID);
}

Answer<Announcement> Changes::EnterSlide(std::int32_t AlbumID, const clsNEBSlide& Slide) {
    clsNEBAlbum* Album = mDB.GetAlbum(AlbumID);
    if (!Album) return Missing(NoAlbum);
    if (Slide.SlideID < mDB.NextSlideID && HasSlide(mDB, Slide.SlideID))
        return Refuse(QStringLiteral("There is a slide of the number %1.").arg(Slide.SlideID));
    MakeValid(*Album->Slides.emplace_back(std::make_unique<clsNEBSlide>(Slide)));
    mDB.NextSlideID = std::max(mDB.NextSlideID, Slide.SlideID + 1);
    return Noted({Change::Kind::SlideSaved, AlbumID, Slide.SlideID});
}

Answer<Announcement> Changes::SaveSlide(std::int32_t AlbumID, const clsNEBSlide& Slide) {
    clsNEBAlbum* Album = mDB.GetAlbum(AlbumID);
    if (!Album) return Missing(NoAlbum);
    std::int32_t SlideID = Slide.SlideID;
    if (!Album->GetSlide(SlideID)) mDB.NextSlideID = FreeSlideID(AlbumID);
    Album->SaveSlide(SlideID, ValidText(Slide.SlideText), Slide.SlideLoc, Slide.SoundTrackLoc,
                     Slide.Override, Slide.Repeat, mDB);
    return Noted({Change::Kind::SlideSaved, AlbumID, SlideID});
}

Answer<Announcement> Changes::SaveCaption(std::int32_t AlbumID, std::int32_t SlideID,
                                          const QString& SlideText) {
    clsNEBAlbum* Album = mDB.GetAlbum(AlbumID);
    if (!Album) return Missing(NoAlbum);
    clsNEBSlide* Slide = Album->GetSlide(SlideID);
    if (!Slide) return Missing(NoSlide);
    return SaveCaption(AlbumID, *Slide, SlideText);
}

Announcement Changes::SaveCaption(std::int32_t AlbumID, clsNEBSlide& Slide,
                                  const QString& SlideText) {
    Slide.SlideText = ValidText(SlideText);
    return Noted({Change::Kind::SlideSaved, AlbumID, Slide.SlideID}, With::Nothing);
}

Answer<Announcement> Changes::DeleteSlide(std::int32_t AlbumID, std::int32_t SlideID) {
    clsNEBAlbum* Album = mDB.GetAlbum(AlbumID);
    if (!Album) return Missing(NoAlbum);
    const bool WasThere = Album->TakeSlide(SlideID);
    Announcement Deleted = Noted({Change::Kind::SlideDeleted, AlbumID, SlideID}, With::Nothing);
    if (WasThere && mDB.IsSessionStored()) Album->DeleteSlideFiles(SlideID, mDB);
    return Deleted;
}

std::int32_t Changes::FreeSlideShowID(std::int32_t AlbumID) const {
    return neb::FreeSlideShowID(mDB.DBPath(), AlbumID, mDB.NextSlideShowID);
}

// The object stays: who shows it goes on showing it, with its new contents. Where it cannot be
// noted nothing has changed, for its sound files are taken back then.
Answer<Announcement> Changes::SaveShow(std::int32_t AlbumID, clsNEBSlideShow Show) {
    clsNEBAlbum* Album = mDB.GetAlbum(AlbumID);
    if (!Album) return Missing(NoAlbum);
    MakeValid(Show);
    const clsNEBSlideShow* There = Album->GetSlideShow(Show.SlideShowID);
    auto Before = There ? There->Copy() : nullptr;
    if (!There) {
        const bool IsFree = Show.SlideShowID >= mDB.NextSlideShowID;
        mDB.NextSlideShowID = IsFree ? Show.SlideShowID : FreeSlideShowID(AlbumID);
    }
    Album->SaveSlideShow(Show.SlideShowID, Show.SlideShowName, Show.ProgressionMethod, mDB);
    clsNEBSlideShow& Stored = *Album->GetSlideShow(Show.SlideShowID);
    Stored.Details = std::move(Show.Details);
    Stored.SoundTracks = std::move(Show.SoundTracks);
    const auto Kind = Before ? Change::Kind::ShowReplaced : Change::Kind::ShowMade;
    try {
        return Noted({Kind, AlbumID, 0, Show.SlideShowID});
    } catch (...) {
        PutBack(mDB, *Album, Show.SlideShowID, std::move(Before));
        throw;
    }
}

// The album's object stays, as that of a show does; what it holds is new.
std::vector<Announcement> Changes::PutAlbum(AlbumToPut What, std::int32_t SlideShowID) {
    const std::int32_t AlbumID = What.Album.AlbumID;
    clsNEBAlbum* Album = mDB.GetAlbum(AlbumID);
    const auto Kind = Album ? Change::Kind::AlbumReplaced : Change::Kind::AlbumMade;
    const bool HadShow = Album && Album->GetSlideShow(SlideShowID);
    if (!Album) Album = mDB.Albums.emplace_back(std::make_unique<clsNEBAlbum>()).get();
    *Album = std::move(What.Album);
    mDB.NextAlbumID = What.Next.AlbumID;
    mDB.NextSlideID = What.Next.SlideID;
    mDB.NextSlideShowID = What.Next.SlideShowID;
    mDB.SortAlbums();
    std::vector<Announcement> Put;
    Put.push_back(Noted({Kind, AlbumID}));
    if (SlideShowID != 0)
        Put.push_back(Noted({HadShow ? Change::Kind::ShowReplaced : Change::Kind::ShowMade, AlbumID,
                             0, SlideShowID}));
    return Put;
}

Answer<Announcement> Changes::DeleteShow(std::int32_t AlbumID, std::int32_t SlideShowID) {
    clsNEBAlbum* Album = mDB.GetAlbum(AlbumID);
    if (!Album) return Missing(NoAlbum);
    const clsNEBSlideShow* There = Album->GetSlideShow(SlideShowID);
    const auto Gone = There ? There->Copy() : nullptr;
    Album->TakeSlideShow(SlideShowID);
    Announcement Deleted =
        Noted({Change::Kind::ShowDeleted, AlbumID, 0, SlideShowID}, With::Nothing);
    if (Gone && mDB.IsSessionStored()) Album->DeleteSlideShowFiles(*Gone, mDB);
    return Deleted;
}

}  // namespace neb
