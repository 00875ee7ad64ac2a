// What a transfer is going to do, decided from the records of both databases without touching
// anything: which slides and shows come in under which new numbers, which files are copied to
// where, what goes for them. Transfer makes one, TransferRun carries it out.
#pragma once

#include <set>
#include <unordered_map>

#include "db/Changes.h"
#include "db/clsDBEngine.h"
#include "db/modClearRecords.h"

namespace neb {

struct FileToCopy {
    enum class Kind { Picture, Thumbnail, SlideSound, Track };
    Kind Is;
    QString From;  // full path
    QString To;    // relative to the destination's directory, with "/"
    size_t Of;     // the slide, of a track the show, as it stands in the plan
};

struct TransferPlan {
    QString SrcDBPath;
    std::int32_t SrcAlbumID = 0;
    std::int32_t AlbumID = 0;  // of the destination, as it will be
    QString AlbumName;
    bool IsNewAlbum = false;
    bool ClearsAlbum = false;
    bool IsOfShow = false;            // of one show, which stands in Shows alone
    bool IsWithinAlbum = false;       // the source is the album itself
    std::int32_t ReplacedShowID = 0;  // 0: none
    IDCounters Base;                  // the destination's counters on which the numbers stand
    IDCounters Next;                  // and what they are afterwards
    // Numbers that files of the album bear already: no new ones.
    std::set<std::int32_t> TakenSlides, TakenShows;
    std::vector<clsNEBSlide> Slides;
    std::vector<clsNEBSlideShow> Shows;
    std::vector<FileToCopy> Files;
    Clearing Gone;

    // Leaves out a file of Files that is not there: the slide stands without a picture or a sound;
    // a track has no meaning without one.
    void GoWithout(const FileToCopy& Missing);
};

// Fills a plan with slides and shows of one source album. The plan's album is known by then.
class TransferPlanner {
  public:
    // Old to new numbers of slides.
    using SlideMap = std::unordered_map<std::int32_t, std::int32_t>;

    TransferPlanner(const clsDBEngine& SrcDB, std::int32_t SrcAlbumID, TransferPlan& Plan)
        : mSrcDB(SrcDB), mSrcAlbumID(SrcAlbumID), mPlan(Plan) {
        Plan.SrcDBPath = SrcDB.DBPath();
        Plan.SrcAlbumID = SrcAlbumID;
    }

    // All slides and all shows, each under a new number.
    void AddAlbum(const clsNEBAlbum& Source);
    // Once for each number.
    void AddSlide(const clsNEBSlide& Source);
    // The slide is shared with the source and keeps its number.
    void ShareSlide(std::int32_t SlideID) { mMap.emplace(SlideID, SlideID); }
    // A show under this name and number (0: the next free one); places whose slide is not known are
    // left out. Taken: names of sounds, upper-cased, that others in the album play.
    void AddShow(const clsNEBSlideShow& Source, const QString& Name, std::int32_t SlideShowID,
                 std::set<QString> Taken = {});

  private:
    std::int32_t NextSlide() const;
    std::int32_t NextShow() const;
    void AddThumbnail(const QString& Picture, std::int32_t SlideID);
    void AddSlideSound(const clsNEBSlide& Source, clsNEBSlide& Copy);
    void AddFile(FileToCopy::Kind Is, const QString& From, const QString& Folder,
                 const QString& Name);
    QString SourcePath(const QString& Folder, const QString& Loc) const;

    const clsDBEngine& mSrcDB;
    const std::int32_t mSrcAlbumID;
    TransferPlan& mPlan;
    SlideMap mMap;
    QString mThumbnail;  // of the slide before: stays where a picture's path has no dot at all
};

}  // namespace neb
