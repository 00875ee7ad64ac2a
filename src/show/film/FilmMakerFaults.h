// What is missing in a film, in words for the people who made it: each picture and each sound once,
// with the first slide that lacks it. Used by FilmMaker.
#pragma once

#include <QMap>
#include <QSet>

#include "show/rehearsal/RehearsalFindings.h"

namespace neb {

class FilmMakerFaults {
  public:
    // A picture could not be read, for the slide that comes up next.
    void PictureFailed(const QString& Path, const QString& Why);
    void SlideIsUp(std::int32_t SlideSeq);
    // The run has ended. Next: the slide that was to come up when it did; 0: none. Sounds: why
    // sounds failed, by their paths.
    void TakeRun(const RehearsalLog& Log, const QMap<QString, QString>& Sounds,
                 std::int32_t Next = 0);
    void Note(std::int32_t SlideSeq, const QString& Text);

    // In the order of the slides.
    std::vector<RehearsalFinding> Taken();

  private:
    void OfSlide(std::int32_t SlideSeq, const QString& Text);
    void TakeSound(const RehearsalCue& Cue, const QMap<QString, QString>& Sounds);
    void TakeBox(const RehearsalBox& Box);

    struct Picture {
        QString Path, Why;
    };
    std::vector<Picture> mComing;  // of the slide that is on its way
    QSet<QString> mNamed;          // files
    QSet<std::int32_t> mSilent;    // slides whose sound has been named
    std::vector<RehearsalFinding> mFound;
};

}  // namespace neb
