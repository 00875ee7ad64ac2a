// The names of the songs of the slide show manager (show/SongName.h), read beside the window, as
// their folders may not answer. Used by TrackList.
#pragma once

#include <QHash>
#include <QStringList>
#include <QTimer>
#include <memory>

#include "support/work/Job.h"

namespace neb {

class SongReading : public QObject {
    Q_OBJECT

  public:
    explicit SongReading(QObject* Owner);

    // In place of what was asked before.
    void Ask(const QStringList& Paths);
    // As far as they have been read.
    const QHash<QString, QString>& Names() const { return mNames; }

  Q_SIGNALS:
    void Read();  // names of all that were asked for are there

  private:
    void Look();

    QHash<QString, QString> mNames;
    std::unique_ptr<Job<QHash<QString, QString>>> mJob;
    QTimer mLook;
};

}  // namespace neb
