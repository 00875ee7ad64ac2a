// Where the host has mounted something, and word of it when that changes: a stick is plugged in, a
// share goes. Used by the list of drives.
#pragma once

#include <QObject>
#include <QStringList>
#include <QTimer>
#include <functional>
#include <vector>

namespace neb {

// A folder on which something is mounted, whatever its name, and the kind of its file system as the
// host calls it ("ext4", "nfs4"). Nothing is asked of what is mounted there.
struct Mount {
    QString Path, Kind;
};
std::vector<Mount> Mounts();  // system mounts as well

class MountWatch : public QObject {
    Q_OBJECT

  public:
    // Changed is called on this thread, once for several changes within a moment. A host that
    // does not tell is never heard of.
    MountWatch(std::function<void()> Changed, QObject* Parent);
    ~MountWatch() override;
    MountWatch(const MountWatch&) = delete;
    MountWatch& operator=(const MountWatch&) = delete;

  private:
    int mTable;  // the host's table of mounts, or -1
    QTimer mSoon;
};

}  // namespace neb
