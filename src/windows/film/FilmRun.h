// A film that is being made beside the window, in a thread of its own: how far it is, what is seen
// in it now, and its end. Used by frmFilm.
#pragma once

#include <QImage>
#include <QTimer>
#include <memory>

#include "show/film/FilmMaker.h"
#include "support/work/Job.h"

namespace neb {

// How far it is.
struct FilmStep {
    int Slide = 0, Slides = 0;  // of the film; 0 of 0 before the first
    double Part = 0;            // 0 to 1
    qint64 Bytes = 0;           // written
};

struct FilmWanted {
    std::shared_ptr<clsDBEngine> Copy;  // its own
    FilmOrder Order;
    std::shared_ptr<const FilmPlan> Plan;  // as far as it is known, and the size
    std::optional<qint64> Size;
};

class FilmRun : public QObject {
    Q_OBJECT

  public:
    explicit FilmRun(QObject* Owner);
    ~FilmRun() override;

    void Begin(const FilmWanted& What);
    bool IsRunning() const { return mJob != nullptr; }
    bool IsStopping() const;
    double SecondsAtWork() const;
    const FilmOrder& Order() const;  // of the film that was begun last
    // Frames are made so small, in device pixels; any time.
    void SetRoom(QSize Pixels);
    // It ends soon, and says so.
    void Stop();
    // The same, and nobody listens any more: waits a while for what it has to tidy up.
    void Abandon();
    // The film that was made last; null for none.
    const FilmReport* Made() const;
    void Forget();  // what was made

  Q_SIGNALS:
    // At most ten times a second.
    void Advanced(const neb::FilmStep& Step);
    void Seen(const QImage& Frame);
    void Ended();  // it is made, or was stopped
    void Failed(const QString& Reason);

  private:
    void Look();
    void Hand();

    struct Work;
    std::shared_ptr<Work> mWork;  // shared with the thread
    std::unique_ptr<Job<FilmReport>> mJob;
    QTimer mLook;
};

}  // namespace neb
