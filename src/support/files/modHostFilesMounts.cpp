#include "support/files/modHostFilesMounts.h"

#include <fcntl.h>
#include <mntent.h>
#include <unistd.h>

#include <QSocketNotifier>
#include <memory>

#include "support/files/HostNames.h"

namespace neb {
namespace {

constexpr int SoonMs = 200;

}  // namespace

std::vector<Mount> Mounts() {
    std::vector<Mount> All;
    const std::unique_ptr<FILE, decltype(&endmntent)> Table(setmntent("/proc/self/mounts", "re"),
                                                            &endmntent);
    mntent Each = {};
    char Text[8192];
    while (Table && getmntent_r(Table.get(), &Each, Text, sizeof Text))
        All.push_back({HostName(Each.mnt_dir), QString::fromLatin1(Each.mnt_type)});
    return All;
}

// The host marks the table as exceptional whenever it has changed, and takes the mark away when it
// is looked at: nothing is read, and nothing happens while nothing is mounted.
MountWatch::MountWatch(std::function<void()> Changed, QObject* Parent)
    : QObject(Parent), mTable(open("/proc/self/mountinfo", O_RDONLY | O_CLOEXEC)) {
    mSoon.setSingleShot(true);
    mSoon.setInterval(SoonMs);
    connect(&mSoon, &QTimer::timeout, this, std::move(Changed));
    if (mTable < 0) return;
    auto* Marked = new QSocketNotifier(mTable, QSocketNotifier::Exception, this);
    connect(Marked, &QSocketNotifier::activated, this, [this] { mSoon.start(); });
}

MountWatch::~MountWatch() {
    qDeleteAll(findChildren<QSocketNotifier*>());
    if (mTable >= 0) close(mTable);
}

}  // namespace neb
