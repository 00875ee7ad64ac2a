// Sound files that have brought down the process that read them. Three times are enough: then a
// file is not tried again before it has changed, or the program is started anew. Safe on any
// thread.
#pragma once

#include <QDateTime>
#include <QString>
#include <map>
#include <mutex>
#include <optional>

namespace neb {

class SoundCrashes {
  public:
    static constexpr int MostCrashes = 3;

    bool IsGivenUp(const QString& Path) const;
    void Note(const QString& Path);

  private:
    // By what a file is known to be still the same.
    struct Crashed {
        qint64 Size = -1;
        std::optional<QDateTime> Time;
        int Times = 0;
    };
    static Crashed Now(const QString& Path);

    mutable std::mutex mLock;
    std::map<QString, Crashed> mByPath;
};

}  // namespace neb
