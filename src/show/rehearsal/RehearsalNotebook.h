// Where the checks of a rehearsed show look things up and put down what they find. Used by
// RehearsalFindings and its parts alone.
#pragma once

#include <QHash>
#include <QSet>

#include "db/clsNEBAlbum.h"
#include "show/rehearsal/RehearsalFindings.h"

namespace neb {

// "12.5 s"
QString SecondsText(double Seconds);
// "slide 3", "slides 3 to 5"
QString SlidesText(std::int32_t First, std::int32_t Last);

enum class SoundState { Sound, Missing, Unplayable, Empty };
struct SoundFacts {
    SoundState State = SoundState::Sound;
    double Length = 0;  // seconds
    QString Problem;    // what is wrong with the file, as the end of a sentence; empty: nothing
};

class RehearsalNotebook {
  public:
    explicit RehearsalNotebook(const RehearsedShow& Show);

    const RehearsedShow& Show;
    clsNEBAlbum& Album;
    const clsNEBSlideShow& SlideShow;
    const bool IsManual;
    // The details by their places, each place's first; the places in their order.
    QHash<std::int32_t, const clsNEBSlideShowDetail*> Details;
    std::vector<std::int32_t> Places;

    // What is said of a place that the rehearsal was not to come to is left out.
    void Problem(std::int32_t SlideSeq, const QString& Text);
    void Note(std::int32_t SlideSeq, const QString& Text);
    void OfSlide(std::int32_t SlideSeq, const QString& Text);  // "slide 3: " before it

    // A problem says why such boxes come up at this place.
    void Explain(std::int32_t SlideSeq, RehearsalBoxFrom From);
    bool IsExplained(const RehearsalBox& Box) const;

    const clsNEBSlide* SlideAt(std::int32_t SlideSeq) const;
    const RehearsalCue* CueAt(std::int32_t SlideSeq) const;  // null: it did not come up
    // The track that is heard at a place; null: none.
    const clsNEBSlideShowSoundTrack* TrackAt(std::int32_t SlideSeq) const;
    // The path of a file as a record names it; Folder is SlidesFolder or SoundTracksFolder.
    QString AlbumFile(QString (*Folder)(const QString&, std::int32_t), const QString& Loc) const;
    SoundFacts LookAtSound(const QString& Path);

    RehearsalFindings Taken();

  private:
    bool IsWanted(std::int32_t SlideSeq) const;

    RehearsalFindings mFound;
    QSet<std::pair<std::int32_t, int>> mExplained;
    QHash<std::int32_t, const RehearsalCue*> mCues;
    QHash<QString, SoundFacts> mSounds;
};

// The parts, one file each.
void CheckTracks(RehearsalNotebook& Notebook);

}  // namespace neb
