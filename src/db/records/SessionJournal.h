// What has been changed since the record files were read: a file below Temp that only grows, entry
// by entry, so that a change is on the disk within moments of being accepted, long before the
// record files are written anew. It is bound to the records that it goes with. What an entry says
// is for SessionChanges.h; the engine keeps one while a database is open.
//
// DBPath ends in a separator everywhere.
#pragma once

#include <QByteArray>
#include <QString>
#include <memory>
#include <optional>
#include <vector>

namespace neb {

QString SessionJournalPath(const QString& DBPath);

// The records that are there now, as a check sum: of a whole journal of all of them where there is
// one, else of the eight files. Throws Fault when they cannot be read.
QByteArray SumOfRecords(const QString& DBPath);

// One that is being written, by a thread of its own: no window waits for a disk.
class SessionJournal {
  public:
    // The file comes into being with the first entry, bound to the records that are there then.
    explicit SessionJournal(const QString& DBPath);
    ~SessionJournal();  // what was added is on the disk, as far as it can be
    SessionJournal(const SessionJournal&) = delete;
    SessionJournal& operator=(const SessionJournal&) = delete;

    void Add(const QByteArray& Entry);
    // Returns when everything added is on the disk. Throws Fault when it could not be written; it
    // is tried again with the next entry.
    void Flush();
    // Deletes the file: what it says stands in other records now. The next entry begins it anew.
    void Restart();

  private:
    struct State;
    std::unique_ptr<State> mState;
};

struct SessionEntry {
    qint64 When = 0;  // milliseconds since 1970, UTC
    QByteArray Body;
};

// One that was left behind.
struct LeftSession {
    QByteArray Base;  // SumOfRecords of the records that it goes with
    std::vector<SessionEntry> Entries;
    bool IsTorn = false;  // more follows that is no whole entry
};

// Nothing when there is none, or its beginning is damaged. Changes nothing.
std::optional<LeftSession> ReadSessionJournal(const QString& DBPath);

}  // namespace neb
