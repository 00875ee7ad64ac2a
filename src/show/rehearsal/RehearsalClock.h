// The clock of a rehearsal: a number drives it, and it begins at ten in the morning of a fixed day,
// so that every rehearsal of a show is alike.
#pragma once

#include "support/Services.h"

namespace neb {

class RehearsalClock : public Clock {
  public:
    QDateTime Now() const override { return mBegin.addMSecs(mMilliseconds); }
    double Ticks() const override { return static_cast<double>(mMilliseconds); }

    qint64 Milliseconds() const { return mMilliseconds; }  // since the beginning
    double Seconds() const { return static_cast<double>(mMilliseconds) / 1000; }
    void AdvanceTo(qint64 Milliseconds) { mMilliseconds = std::max(mMilliseconds, Milliseconds); }

  private:
    // No time zone: it would cost most of a rehearsal's time, and no hour may be left out.
    const QDateTime mBegin = QDateTime(QDate(2004, 5, 6), QTime(10, 0), Qt::UTC);
    qint64 mMilliseconds = 0;
};

}  // namespace neb
