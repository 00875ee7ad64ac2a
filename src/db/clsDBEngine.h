// The whole database in memory: read from its directory once by InitializeDB, written back once
// by FinalizeDB, asked and changed in between. The program owns one; a transfer makes a second
// one on another directory.
//
// Boolean results are true on success; an Answer that refuses says why. Reading and writing throw
// Fault. Albums, slides and shows are changed through db/Changes.
#pragma once

#include "db/Change.h"
#include "db/clsNEBAlbum.h"
#include "db/modTables.h"
#include "db/records/SessionJournal.h"
#include "support/Answer.h"
#include "support/Fault.h"

namespace neb {

struct RecordImage;

// What InitializeDB does about the journal of a write that did not come to its end.
enum class Recovery {
    CarryOut,  // finishes the write; in a read-only database as InMemory
    InMemory,  // reads the new records from the journal and changes nothing on the disk
};

class clsDBEngine {
  public:
    clsDBEngine();
    clsDBEngine(clsDBEngine&&) noexcept;
    clsDBEngine& operator=(clsDBEngine&&) noexcept;
    ~clsDBEngine();

    std::int32_t NextAlbumID = 0;
    std::int32_t NextSlideID = 0;
    std::int32_t NextSlideShowID = 0;
    std::vector<std::unique_ptr<clsNEBAlbum>> Albums;
    std::vector<NameIndexEntry> AlbumIndex;  // sorted by name; row N lies at N - 1
    PropertyRows Properties;
    EffectStatRows EffectStats;
    ChangeListeners Listeners;  // who follows what db/Changes does here

    const QString& DBPath() const { return mDBPath; }  // with closing separator
    void SetDBPath(const QString& Path);
    // Where the factory times of the effects lie; none when it is not set.
    void SetProgramPath(const QString& Path);

    // A directory without NextIDs.dat is a new database: all counters 1 and nothing else.
    // Changes that a session left behind are brought back.
    void InitializeDB(Recovery How = Recovery::CarryOut);
    const LeftBehind& Found() const { return mFound; }
    void LoadFrom(const RecordSource& Source);  // the same from any source of record files
    // Leaves either the old or the new database on the disk, whatever happens (modJournal.h). Why
    // the old one could not be kept among the earlier states, where that was to be done.
    std::optional<Fault> FinalizeDB();
    // Other records in the place of all that is held, on the disk and here, or nothing changed; but
    // a Fault behind which these stand here means that the next start has to finish the writing.
    // Whatever points to an album, slide or show is void afterwards. modRestore asks for it.
    void ReplaceBy(const RecordImage& Records);

    // From here on what db/Changes does is on the disk within moments, until FinalizeDB writes it.
    void KeepSession();
    // Before files of it go: none of it is on the disk then, nor kept from here on. Throws Fault.
    void TakeBackSession();
    // For db/Changes. WithFiles: files were written for it, and go to the disk before it does.
    void NoteInSession(const Change& What, bool WithFiles);
    // Waits until all changes are on the disk, before files go that the records of before name.
    // False where that fails: then the files are to stay. Without a session it is true.
    bool IsSessionStored();
    // Why changes are not on the disk at present, if so; tried again by and by. Never waits.
    std::optional<Fault> SessionProblem() const;

    // Whether the next numbers are above all that records have: else new pictures replace old.
    bool CountersAreSound() const;

    // Creates an album (ID 0 or unknown; AlbumID is the new one afterwards) or renames one.
    Answer<> SaveAlbum(std::int32_t& AlbumID, const QString& AlbumName);
    // Whether the album of this ID (0: a new one) may bear this name.
    Answer<> CheckAlbumName(std::int32_t AlbumID, const QString& AlbumName) const;
    // The part of that which asks for no other album: neither blank nor too long.
    static Answer<> CheckAlbumText(const QString& AlbumName);
    void LoadAlbumsCombo(ComboList& cboAlbums, bool WithAddOption) const;
    // With an ID gives the name; with ID 0 gives the ID of the first album of that name, case
    // ignored. False, and nothing changed, when there is none.
    bool LoadAlbum(std::int32_t& AlbumID, QString& AlbumName) const;
    bool FindAlbum(std::int32_t AlbumID, const QString& AlbumName) const;
    bool DeleteAlbum(std::int32_t AlbumID);  // always true; touches no files
    clsNEBAlbum* GetAlbum(std::int32_t AlbumID) const;

    // Forwarded to the album or the show. Saving into one that is not there is refused; a
    // list is left empty.
    Answer<> SaveSlide(std::int32_t SlideID, std::int32_t AlbumID, const QString& SlideText,
                       const QString& SlideLoc, const QString& SoundTrackLoc, bool Override,
                       bool Repeat);
    void LoadSlidesCombo(ComboList& cboSlides, std::int32_t AlbumID);
    Answer<> SaveSlideShow(std::int32_t SlideShowID, std::int32_t AlbumID,
                           const QString& SlideShowName, std::int32_t ProgressionMethod);
    void LoadSlideShowsCombo(ComboList& cboSlideShows, std::int32_t AlbumID);
    Answer<> SaveSlideShowDetail(std::int32_t SlideShowID, std::int32_t AlbumID,
                                 std::int32_t SlideID, std::int32_t SlideSeq,
                                 const QString& SlideText);
    void LoadSlideShowDetailsCombo(ComboList& cboSlideShowDetails, std::int32_t AlbumID,
                                   std::int32_t SlideShowID);
    Answer<> SaveSlideShowSoundTrack(std::int32_t SlideShowID, std::int32_t AlbumID,
                                     std::int32_t SoundTrackSeq, const QString& SoundTrackLoc,
                                     std::int32_t SlideSeqStart, std::int32_t SlideSeqEnd,
                                     bool Repeat, bool FitToSong, bool Fade);
    // Looks for the show in all albums.
    void LoadSlideShowSoundTracksCombo(ComboList& cboSoundTracks, std::int32_t SlideShowID);

    // A name matches only when it is padded with blanks to 20 characters; values are padded to
    // 255. An unknown name has the empty value.
    void SaveProperty(const QString& PropertyName, const QString& PropertyValue);
    QString LoadPropertyValue(const QString& PropertyName) const;
    void LoadPropertiesCombo(ComboList& cboProperties) const;
    void SaveEffectStat(std::int32_t Effect, double AvgTime);  // seconds
    void LoadEffectStatsCombo(ComboList& cboEffectStats) const;
    // Sets 1 (light), 2 or 3 (heavy) for each measured effect up to MaxEffect; the first element
    // of EffectClasses belongs to the effect LowerBound.
    void ClassifyEffects(std::span<std::uint8_t> EffectClasses, std::int32_t MaxEffect,
                         std::int32_t LowerBound = 0) const;

    // For transfers: empty an album or a show, with the files; a show takes the slides along that
    // no other show of the album uses. The emptied object stays.
    Answer<> ClearAlbumData(clsNEBAlbum& theAlbum);
    Answer<> ClearSlideShowData(clsNEBAlbum& theAlbum, clsNEBSlideShow& theSlideShow);

    // The current counter, which then goes up by one. For albums and shows, not for windows.
    std::int32_t AllocateAlbumID();
    std::int32_t AllocateSlideID();
    std::int32_t AllocateSlideShowID();

    void SortAlbums();  // rebuilds AlbumIndex; without albums it stays as it was

  private:
    Answer<clsNEBAlbum*> FoundAlbum(std::int32_t AlbumID) const;
    Answer<clsNEBSlideShow*> FoundSlideShow(std::int32_t AlbumID, std::int32_t SlideShowID) const;

    void LoadRecords(Recovery How);

    QString mDBPath;
    QString mProgramPath;
    LeftBehind mFound;
    bool mWasThere = false;           // something of it lay on the disk
    std::optional<SessionEnd> mLeft;  // where the journal of the session before goes on
    std::unique_ptr<SessionJournal> mSession;
    bool mHasNewFiles = false;  // that records name, since all was written
};

}  // namespace neb
