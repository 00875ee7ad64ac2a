// Where the user's pictures may lie, as roots of a search: the home directory and the volumes that
// are mounted for the user, none inside another; drive letters where the host has them. Find
// Graphics asks for them, and the directory list shows the same volumes.
#pragma once

#include <QStringList>
#include <functional>
#include <vector>

#include "support/files/modHostFilesMounts.h"

QT_BEGIN_NAMESPACE
class QObject;
QT_END_NAMESPACE

namespace neb {

struct Volume {
    QString Name;  // as the user knows it
    QString Root;  // its path
};

class DriveList {
  public:
    virtual ~DriveList() = default;
    virtual QStringList Drives() const = 0;                // paths, in the order of the list
    virtual bool IsReady(const QString& Drive) const = 0;  // false for an empty removable drive
    // On a network: the search of all drives leaves it out.
    virtual bool IsFar(const QString&) const { return false; }
    // The volumes that are mounted for the user and can be read, by themselves.
    virtual std::vector<Volume> Volumes() const { return {}; }
    // Calls Changed soon after a volume has come or gone, as long as Owner lives.
    virtual void Watch(QObject&, std::function<void()>) const {}
};

class DesktopDrives : public DriveList {
  public:
    QStringList Drives() const override;
    bool IsReady(const QString& Drive) const override;
    bool IsFar(const QString& Drive) const override;
    std::vector<Volume> Volumes() const override;
    void Watch(QObject& Owner, std::function<void()> Changed) const override;
};

// Those of a list that can be read now; a list that is not there (nullptr) has none.
QStringList ReadyDrives(const DriveList* Drives);

// Media and drives that a user would look for, not the system's own mounts.
bool IsUserVolume(const QString& Root);
// The same of other mounts of the host: a disk of the user's own in a place of its own, "/data",
// but no network, none of the host's own, and nothing that is no disk.
bool IsUserDisk(const Mount& Each);
bool IsNetwork(const Mount& Each);
// Only the paths that lie in no other of them, each once, in their order.
QStringList OutermostPaths(const QStringList& Paths);

}  // namespace neb
