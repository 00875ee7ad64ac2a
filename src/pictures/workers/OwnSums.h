// The check sums of what this program has made itself, in files among the user's own settings: the
// lists that lie with albums (db/AlbumSums.h) can be written by whoever hands albums over, these
// cannot. Known by content alone, wherever it lies. For OwnPictures. Safe on any thread, and where
// several programs add to them.
#pragma once

#include <QByteArray>
#include <QString>
#include <mutex>

namespace neb {

class OwnSums {
  public:
    // With closing separator; made when it is needed. Empty: nothing is kept, nothing is known.
    explicit OwnSums(QString Folder) : mFolder(std::move(Folder)) {}

    // Not flushed; what cannot be kept is not known later.
    void Note(const QByteArray& Sum);
    // Asks the disk each time: a few hundred kilobytes where an album has a hundred thousand.
    bool Has(const QByteArray& Sum) const;

  private:
    QString PlaceOf(const QByteArray& Sum) const;

    const QString mFolder;
    mutable std::mutex mLock;
};

}  // namespace neb
