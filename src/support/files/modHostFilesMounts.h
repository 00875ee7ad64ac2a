// Where the host has mounted something, and word of it when that changes: a stick is plugged in, a
// share goes. Used by the list of drives.
#pragma once

#include <QObject>
#include <QStringList>
#include <QTimer>
#include <functional>

namespace neb {

// The folders on which something is mounted, whatever their names; system mounts as well.
QStringList MountPoints();

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
