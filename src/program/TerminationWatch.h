// A request of the system to end (a logout, a shutdown, kill) closes the program as its user
// would, so that what was changed is saved. For the entry of the program alone.
#pragma once

#include <QObject>
#include <functional>

QT_BEGIN_NAMESPACE
class QSocketNotifier;
QT_END_NAMESPACE

namespace neb {

class TerminationWatch : public QObject {
    Q_OBJECT

  public:
    // Close is called from the event loop; one watch at a time. Hosts without such signals tell
    // their windows to close by themselves.
    explicit TerminationWatch(std::function<void()> Close);
    ~TerminationWatch() override;

  private:
    void Read();

    std::function<void()> mClose;
    QSocketNotifier* mNotifier = nullptr;
};

}  // namespace neb
