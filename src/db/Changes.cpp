#include "db/Changes.h"

#include <algorithm>

#include "db/AlbumSums.h"
#include "db/clsDBEngine.h"
#include "db/modAlbumFiles.h"
#include "support/Texts.h"
#include "support/files/modHostFiles.h"
#include "support/modDEValidation.h"
#include "support/modText.h"

namespace neb {
namespace {

constexpr char NoAlbum[] = QT_TR_NOOP("The Album was not found.");
constexpr char NoSlide[] = QT_TR_NOOP("Slide could not be found.");

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
    return Refuse(tr(Text));
}

// The first thing of this number, taken from where it is.
template <class Thing>
ThingAt<Thing> TakeOut(std::vector<std::unique_ptr<Thing>>& From, std::int32_t ID,
                       std::int32_t Thing::*Key) {
    const auto Its = std::find_if(From.begin(), From.end(),
                                  [&](const auto& Each) { return (*Each).*Key == ID; });
    if (ID == 0 || Its == From.end()) return {.ID = ID};
    ThingAt<Thing> Taken{ID, static_cast<size_t>(Its - From.begin()), std::move(*Its)};
    From.erase(Its);
    return Taken;
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

Changes::Changes(clsDBEngine& theDB, const QObject* Asker)
    : mDB(theDB), mAsker(Asker), mStep(Keeper() ? Keeper()->NextStep() : 0) {}

ChangeKeeper* Changes::Keeper() const {
    return mDB.Listeners.Keeper.get();
}

void Changes::Call(const QString& Verb) {
    if (mStep != 0) Keeper()->Call(mStep, Verb);
}

// What was made goes by a deletion of its own.
void Changes::KeepSlide(std::int32_t AlbumID, ThingAt<clsNEBSlide> Before, const clsNEBSlide* Now) {
    if (mStep == 0) return;
    if (!Before.Was) return Spoil();
    Keeper()->SlideChanged(mStep, AlbumID, std::move(Before), Now);
}

void Changes::KeepShow(std::int32_t AlbumID, ThingAt<clsNEBSlideShow> Before,
                       const clsNEBSlideShow* Now) {
    if (mStep == 0) return;
    if (!Before.Was) return Spoil();
    Keeper()->ShowChanged(mStep, AlbumID, std::move(Before), Now);
}

bool Changes::KeepAway(const QString& Path) {
    return mStep != 0 && Keeper()->Take(mStep, Path);
}

void Changes::DropFiles(const QStringList& Paths) {
    for (const QString& Path : Paths) KeepAway(Path);
    DropStored(Paths);
}

void Changes::StoreFile(const QString& Path, const QByteArray& Bytes) {
    if (mStep == 0) return StoreAnew(Path, Bytes);
    const bool WasThere = NameExists(Path);
    const QString Held = WasThere ? Keeper()->Hold(Path) : QString();
    try {
        StoreAnew(Path, Bytes);
    } catch (...) {
        Keeper()->LetGo(Held);
        throw;
    }
    if (WasThere && Held.isEmpty()) return Spoil();
    Keeper()->Replaced(mStep, Path, Held);
}

void Changes::FileReplaced(const QString& Path, const QString& Beside) {
    if (mStep == 0) return;
    if (Beside.isEmpty())
        Keeper()->Replaced(mStep, Path, {});
    else
        Keeper()->ReplacedBeside(mStep, Path, Beside);
}

void Changes::Spoil() {
    if (mStep != 0) Keeper()->Spoil(mStep);
}

Announcement Changes::Noted(Change What, With Files) {
    mDB.NoteInSession(What, Files == With::Files);
    if (mDB.Listeners.Noted) mDB.Listeners.Noted(What);
    if (Keeper()) Keeper()->Changed(What);
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
    Announcement Made = Noted({Change::Kind::AlbumMade, AlbumID});
    Spoil();
    return Made;
}

Answer<Announcement> Changes::RenameAlbum(std::int32_t AlbumID, const QString& AlbumName) {
    const clsNEBAlbum* Album = mDB.GetAlbum(AlbumID);
    if (!Album) return Missing(NoAlbum);
    const QString Before = Album->AlbumName;
    const Answer<> Saved = mDB.SaveAlbum(AlbumID, ValidText(ComposedName(AlbumName)));
    if (!Saved) return Saved.Refusal();
    Announcement Renamed = Noted({Change::Kind::AlbumRenamed, AlbumID}, With::Nothing);
    if (mStep != 0) Keeper()->AlbumRenamed(mStep, AlbumID, Before, Album->AlbumName);
    return Renamed;
}

Answer<Announcement> Changes::DeleteAlbum(std::int32_t AlbumID) {
    ThingAt<clsNEBAlbum> Gone = TakeOut(mDB.Albums, AlbumID, &clsNEBAlbum::AlbumID);
    mDB.DeleteAlbum(AlbumID);  // none of its number is left, and the others are sorted
    Announcement Deleted = Noted({Change::Kind::AlbumDeleted, AlbumID}, With::Nothing);
    if (mStep != 0 && Gone.Was) Keeper()->AlbumDeleted(mStep, std::move(Gone));
    return Deleted;
}

std::int32_t Changes::FreeSlideID(std::int32_t AlbumID) const {
    return neb::FreeSlideID(mDB.DBPath(), AlbumID, mDB.NextSlideID);
}

Answer<Announcement> Changes::EnterSlide(std::int32_t AlbumID, const clsNEBSlide& Slide) {
    clsNEBAlbum* Album = mDB.GetAlbum(AlbumID);
    if (!Album) return Missing(NoAlbum);
    if (Slide.SlideID < mDB.NextSlideID && HasSlide(mDB, Slide.SlideID))
        return Refuse(tr("There is a slide of the number %1.").arg(Slide.SlideID));
    MakeValid(*Album->Slides.emplace_back(std::make_unique<clsNEBSlide>(Slide)));
    mDB.NextSlideID = std::max(mDB.NextSlideID, Slide.SlideID + 1);
    Announcement Entered = Noted({Change::Kind::SlideSaved, AlbumID, Slide.SlideID});
    Spoil();
    return Entered;
}

Answer<Announcement> Changes::SaveSlide(std::int32_t AlbumID, const clsNEBSlide& Slide) {
    clsNEBAlbum* Album = mDB.GetAlbum(AlbumID);
    if (!Album) return Missing(NoAlbum);
    std::int32_t SlideID = Slide.SlideID;
    const clsNEBSlide* There = Album->GetSlide(SlideID);
    ThingAt<clsNEBSlide> Before{SlideID, 0,
                                There ? std::make_unique<clsNEBSlide>(*There) : nullptr};
    if (!There) mDB.NextSlideID = FreeSlideID(AlbumID);
    Album->SaveSlide(SlideID, ValidText(Slide.SlideText), Slide.SlideLoc, Slide.SoundTrackLoc,
                     Slide.Override, Slide.Repeat, mDB);
    Announcement Saved = Noted({Change::Kind::SlideSaved, AlbumID, SlideID});
    KeepSlide(AlbumID, std::move(Before), Album->GetSlide(SlideID));
    return Saved;
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
    ThingAt<clsNEBSlide> Before{Slide.SlideID, 0, std::make_unique<clsNEBSlide>(Slide)};
    Slide.SlideText = ValidText(SlideText);
    Announcement Saved = Noted({Change::Kind::SlideSaved, AlbumID, Slide.SlideID}, With::Nothing);
    if (Before.Was->SlideText != Slide.SlideText) KeepSlide(AlbumID, std::move(Before), &Slide);
    return Saved;
}

Answer<Announcement> Changes::DeleteSlide(std::int32_t AlbumID, std::int32_t SlideID) {
    clsNEBAlbum* Album = mDB.GetAlbum(AlbumID);
    if (!Album) return Missing(NoAlbum);
    ThingAt<clsNEBSlide> Gone = TakeOut(Album->Slides, SlideID, &clsNEBSlide::SlideID);
    const bool WasThere = Gone.Was != nullptr;
    Announcement Deleted = Noted({Change::Kind::SlideDeleted, AlbumID, SlideID}, With::Nothing);
    if (!WasThere) return Deleted;
    KeepSlide(AlbumID, std::move(Gone), nullptr);
    if (mDB.IsSessionStored()) DropFiles(Album->SlideFiles(SlideID, mDB));
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
    ThingAt<clsNEBSlideShow> Was{Show.SlideShowID, 0, There && mStep ? There->Copy() : nullptr};
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
        Announcement Saved = Noted({Kind, AlbumID, 0, Show.SlideShowID});
        KeepShow(AlbumID, std::move(Was), &Stored);
        return Saved;
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
    ThingAt<clsNEBSlideShow> Gone =
        TakeOut(Album->SlideShows, SlideShowID, &clsNEBSlideShow::SlideShowID);
    Announcement Deleted =
        Noted({Change::Kind::ShowDeleted, AlbumID, 0, SlideShowID}, With::Nothing);
    if (!Gone.Was) return Deleted;
    const QStringList Sounds = Album->SlideShowFiles(*Gone.Was, mDB);
    KeepShow(AlbumID, std::move(Gone), nullptr);
    if (mDB.IsSessionStored()) DropFiles(Sounds);
    return Deleted;
}

}  // namespace neb
