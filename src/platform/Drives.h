// Where the user's pictures may lie, as roots of a search: the home directory and the volumes that
// are mounted for the user, none inside another; drive letters where the host has them. Find
// Graphics asks for them, and the directory list shows the same volumes.
#pragma once

#include <QStringList>

namespace neb {

class DriveList {
  public:
    virtual ~DriveList() = default;
    virtual QStringList Drives() const = 0;                // paths, in the order of the list
    virtual bool IsReady(const QString& Drive) const = 0;  // false for an empty removable drive
};

class DesktopDrives : public DriveList {
  public:
    QStringList Drives() const override;
    bool IsReady(const QString& Drive) const override;
};

// Media and drives that a user would look for, not the system's own mounts.
bool IsUserVolume(const QString& Root);
// Only the paths that lie in no other of them, each once, in their order.
QStringList OutermostPaths(const QStringList& Paths);

}  // namespace neb
