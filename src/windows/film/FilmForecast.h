// What is known of a film before it is made, found out beside the window: what comes up when and
// what is wrong with it, how it will look, how large it will become. Of several questions the last
// alone is answered. Used by frmFilm.
#pragma once

#include <QImage>
#include <QTimer>
#include <memory>

#include "show/film/FilmPlan.h"
#include "support/work/Job.h"

namespace neb {

class FilmForecast : public QObject {
    Q_OBJECT

  public:
    explicit FilmForecast(QObject* Owner);
    ~FilmForecast() override;

    // The show from now on, of which nothing is known yet: of CopyForRehearsal.
    void Follow(std::shared_ptr<const clsDBEngine> Show);
    // A film of it. Begins a moment later, so that a choice on its way to another costs nothing.
    // What is known and stays true is kept.
    void Ask(const FilmOrder& Order);
    // Nobody waits for the answer any more; what is known stays.
    void Cancel();

    std::shared_ptr<const FilmPlan> Plan() const { return mKnown.Plan; }  // null: not yet
    const QImage& FirstLook() const { return mKnown.FirstLook; }
    std::optional<qint64> Size() const { return mKnown.Size; }  // bytes; none: not yet
    bool IsUnderWay() const;

  Q_SIGNALS:
    void Changed();                      // something is known, or is no longer
    void Failed(const QString& Reason);  // nothing more will be

  private:
    struct Known {
        std::shared_ptr<const FilmPlan> Plan;
        QImage FirstLook;
        std::optional<qint64> Size;
    };
    void Begin();
    void Look();
    void Take();

    std::shared_ptr<const clsDBEngine> mShow;
    std::optional<FilmOrder> mAsked;  // last
    Known mKnown;                     // of it
    std::unique_ptr<Job<Known>> mJob;
    QTimer mBegin, mLook;
};

}  // namespace neb
