// What has been changed since the record files were read: a file below Temp that only grows, entry
// by entry, so that a change is on the disk within moments of being accepted, long before the
// record files are written anew. It is bound to the records that it goes with. What an entry says
// is for SessionChanges.h; the engine keeps one while a database is open.
//
// DBPath ends in a separator everywhere.
#pragma once

#include <QByteArray>
#include <QStringList>
#include <chrono>
#include <memory>
#include <optional>
#include <vector>

#include "support/Fault.h"

namespace neb {

QString SessionJournalPath(const QString& DBPath);

// Whether there is anything of a database: a disk that was taken away leaves an empty directory, in
// which nobody would look for what is written there.
bool IsDatabaseThere(const QString& DBPath);

// The records that are there now, as a check sum over the content of all eight files: as a whole
// journal has them where there is one, for they are written from it. Whole texts beside them, which
// are bound to them anyway, do not count: a session that goes with the records is brought back
// whatever has become of those. Throws Fault when they cannot
// be read.
QByteArray SumOfRecords(const QString& DBPath);

// Where a journal ends behind its last whole entry, so that it can go on there.
struct SessionEnd {
    qint64 Length = 0;  // bytes
    QByteArray Check;
};

// One that is being written, by a thread of its own: no window waits for a disk.
class SessionJournal {
  public:
    // Goes on at the end of the one that is there, or begins it anew: with the first entry, bound
    // to the records that are there then. What cannot be written is tried again after so long.
    explicit SessionJournal(const QString& DBPath, const std::optional<SessionEnd>& From = {},
                            std::chrono::milliseconds RetryAfter = std::chrono::seconds(3));
    ~SessionJournal();  // what was added is on the disk, as far as it can be
    SessionJournal(const SessionJournal&) = delete;
    SessionJournal& operator=(const SessionJournal&) = delete;

    // WithFiles: what was written to the database's files before is on the disk before the entry.
    void Add(const QByteArray& Entry, bool WithFiles = false);
    // Returns when everything added is on the disk. Throws Fault when it could not be written; it
    // is tried again with the next entry, and now and then.
    void Flush();
    // Stores what can be stored, and then nothing until GoOn: while all records are written, which
    // may delete the file. What is stored after that begins it anew.
    void Pause();
    void GoOn();
    // Why what was added is not on the disk, if it cannot be written at present. Never waits for a
    // disk.
    std::optional<Fault> Problem() const;
    // Deletes the file: what it says stands in other records now. The next entry begins it anew.
    void Restart();
    // Ends it as though nothing had been added since it was begun: the file is as From had it, on
    // the disk, or gone. What is added after that goes on there. Throws Fault; then the file may
    // still say all that was added.
    void TakeBack();

  private:
    struct State;
    std::unique_ptr<State> mState;
};

// While all records are written. No journal: nothing is paused.
class SessionPause {
  public:
    explicit SessionPause(SessionJournal* Journal) : mJournal(Journal) {
        if (mJournal) mJournal->Pause();
    }
    ~SessionPause() {
        if (mJournal) mJournal->GoOn();
    }
    SessionPause(const SessionPause&) = delete;
    SessionPause& operator=(const SessionPause&) = delete;

  private:
    SessionJournal* const mJournal;
};

struct SessionEntry {
    qint64 When = 0;  // milliseconds since 1970, UTC
    QByteArray Body;
};

// One that was left behind.
struct LeftSession {
    QByteArray Base;  // SumOfRecords of the records that it goes with
    std::vector<SessionEntry> Entries;
    SessionEnd End;
    bool IsTorn = false;  // more follows that is no whole entry
};

// Nothing when there is none, or its beginning is damaged. Changes nothing.
std::optional<LeftSession> ReadSessionJournal(const QString& DBPath);
std::optional<LeftSession> SessionIn(const QByteArray& Journal);
// From here on it does not count; its name is gone from the disk, too. Throws Fault.
void DropSessionJournal(const QString& DBPath);

struct FoundSession {
    enum class State {
        None,
        Goes,      // with the records that are there: it is to be carried out
        IsStored,  // in the whole journal of all records that was begun after it
        Foreign    // the records have been replaced by others, or it is damaged
    };
    State Is = State::None;
    std::optional<LeftSession> Left = {};
};
// Changes nothing. To be asked before a journal of all records is carried out.
FoundSession LookForSession(const QString& DBPath);
// Deletes one that is stored, and keeps a foreign one under a name with the date of its last entry,
// whose path is the answer; nothing is replaced. One that goes stays.
QStringList SettleSession(const QString& DBPath, const FoundSession& Found);

// What the opening of a database made of it.
struct LeftBehind {
    int Changes = 0;       // that were brought back
    qint64 When = 0;       // the last of them; milliseconds since 1970, UTC
    QStringList PutAside;  // files of changes that do not go with these records
    QString NotKept;       // why the records of before are no earlier state now; empty: they are
};

}  // namespace neb
