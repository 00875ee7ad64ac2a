#include "db/records/StagedFiles.h"

#include <QDataStream>
#include <QIODevice>
#include <optional>
#include <set>

#include "support/Fault.h"
#include "support/files/modHostFiles.h"
#include "support/modFUFL.h"

namespace neb {
namespace {

constexpr char Magic[] = "NEBSTAGE1";

struct Note {
    QByteArray JournalSum;  // empty: it waits, whatever the journal
    StagedChange Change;
};

QString NotePath(const QString& DBPath) {
    return StagingFolder(DBPath) + QStringLiteral("Note");
}

QDataStream& operator<<(QDataStream& Out, const StagedChange::Move& Row) {
    return Out << Row.Staged << Row.To;
}

QDataStream& operator>>(QDataStream& In, StagedChange::Move& Row) {
    return In >> Row.Staged >> Row.To;
}

QByteArray BytesOf(const Note& Noted) {
    QByteArray Bytes;
    QDataStream Out(&Bytes, QIODevice::WriteOnly);
    Out.setVersion(QDataStream::Qt_6_0);
    Out << QByteArray(Magic) << Noted.JournalSum << Noted.Change.Folders << Noted.Change.Drops;
    Out << static_cast<quint32>(Noted.Change.Moves.size());
    for (const StagedChange::Move& Row : Noted.Change.Moves) Out << Row;
    return Bytes;
}

std::optional<Note> NoteIn(const QByteArray& Bytes) {
    QDataStream In(Bytes);
    In.setVersion(QDataStream::Qt_6_0);
    QByteArray Head;
    Note Noted;
    quint32 Count = 0;
    In >> Head >> Noted.JournalSum >> Noted.Change.Folders >> Noted.Change.Drops >> Count;
    if (Head != QByteArray(Magic)) return std::nullopt;
    for (quint32 I = 0; I < Count && In.status() == QDataStream::Ok; ++I)
        In >> Noted.Change.Moves.emplace_back();
    if (In.status() != QDataStream::Ok) return std::nullopt;
    return Noted;
}

// A note comes into being whole, under another name first.
std::optional<Note> ReadNote(const QString& DBPath) {
    if (!FileExists(NotePath(DBPath))) return std::nullopt;
    return NoteIn(ReadFile(NotePath(DBPath)));
}

// What a note says that somebody else has written must not reach beyond the database.
bool IsInside(const QString& Place) {
    return !Place.isEmpty() && !Place.startsWith(u'/') &&
           !(u'/' + Place + u'/').contains(QStringLiteral("/../")) && !Place.contains(u'\\');
}

bool IsName(const QString& Staged) {
    return !Staged.isEmpty() && !HoldsSeparator(Staged) && Staged != u"..";
}

void DropIfPossible(const QString& Path) {
    try {
        DeleteFile(Path);
    } catch (const Fault&) {
        return;  // no record names it
    }
}

void WriteNote(const QString& DBPath, const Note& Noted) {
    ReplaceFile(NotePath(DBPath), BytesOf(Noted));
    SyncDir(StagingFolder(DBPath));
}

// Into the place, also where that lies on another disk. LeaveNewer: what has come there since then
// stays, and what was staged for it goes.
void PutInPlace(const QString& From, const QString& To, bool LeaveNewer) {
    if (LeaveNewer && FileExists(To) && FileTime(To) > FileTime(From)) return DropIfPossible(From);
    try {
        RenameFile(From, To);
    } catch (const Fault&) {
        CopyFile(From, To);
        DropIfPossible(From);
    }
}

// Moves, to begin with, what is staged; what could not be moved is left over.
class Settling {
  public:
    Settling(const QString& DBPath, const Note& Noted)
        : mDBPath(DBPath),
          mStaging(StagingFolder(DBPath)),
          mChange(Noted.Change),
          mWaited(Noted.JournalSum.isEmpty()) {}

    // Why something waits still, if it does.
    std::optional<Fault> Run() {
        for (const QString& Folder : mChange.Folders)
            if (IsInside(Folder)) Try([&] { MakeFolder(mDBPath + Folder); });
        for (const StagedChange::Move& Row : mChange.Moves)
            if (!Try([&] { Move(Row); })) mLeft.Moves.push_back(Row);
        for (const QString& Place : mChange.Drops)
            if (IsInside(Place)) Drop(mDBPath + Place);
        for (const QString& Folder : mTouched) SyncDir(Folder);
        SyncDir(mStaging);
        return mLeft.Moves.empty() ? std::nullopt : mProblem;
    }
    const StagedChange& Left() const { return mLeft; }

  private:
    template <class Part>
    bool Try(const Part& Do) {
        try {
            Do();
            return true;
        } catch (const Fault& Problem) {
            if (!mProblem) mProblem = Problem;
            return false;
        }
    }
    void MakeFolder(const QString& Folder) {
        MakeDirsIn(mDBPath, Folder);
        for (QString Each = Folder; Each.size() > mDBPath.size(); Each = GetParentDir(Each))
            mTouched.insert(Each);
        mTouched.insert(mDBPath);
    }
    // One that is not staged any more is in its place already: an earlier try was cut short.
    void Move(const StagedChange::Move& Row) {
        if (!IsName(Row.Staged) || !IsInside(Row.To) || !FileExists(mStaging + Row.Staged)) return;
        MakeFolder(GetFilePath(mDBPath + Row.To));
        PutInPlace(mStaging + Row.Staged, mDBPath + Row.To, mWaited);
    }
    void Drop(const QString& Path) {
        DropIfPossible(Path);
        mTouched.insert(GetFilePath(Path));
    }

    const QString mDBPath, mStaging;
    const StagedChange& mChange;
    const bool mWaited;
    StagedChange mLeft;
    std::set<QString> mTouched;
    std::optional<Fault> mProblem;  // the first
};

// Nobody's doing of ours: what it leads to is not entered, and the link goes.
bool IsForeign(const QString& DBPath) {
    return IsLink(StagingFolder(DBPath));
}

bool IsOfThisState(const Note& Noted, const QByteArray& JournalSum) {
    return Noted.JournalSum.isEmpty() || Noted.JournalSum == JournalSum;
}

}  // namespace

QString StagingFolder(const QString& DBPath) {
    return DBPath + QStringLiteral("Temp/Transfer/");
}

void NoteStagedChange(const QString& DBPath, const StagedChange& Change,
                      const QByteArray& JournalSum) {
    MakeDirsIn(DBPath, StagingFolder(DBPath));
    WriteNote(DBPath, {JournalSum, Change});
    SyncDir(DBPath + QStringLiteral("Temp/"));
    SyncDir(DBPath);
}

bool HasStagedFiles(const QString& DBPath) {
    return FolderExists(StagingFolder(DBPath));
}

std::optional<Fault> SettleStagedFiles(const QString& DBPath, const QByteArray& JournalSum) {
    if (!HasStagedFiles(DBPath)) return std::nullopt;
    const std::optional<Note> Noted = IsForeign(DBPath) ? std::nullopt : ReadNote(DBPath);
    if (!Noted || !IsOfThisState(*Noted, JournalSum)) {
        DropStagedFiles(DBPath);
        return std::nullopt;
    }
    Settling Work(DBPath, *Noted);
    const auto Problem = Work.Run();
    if (Problem)
        WriteNote(DBPath, {{}, Work.Left()});
    else
        DropStagedFiles(DBPath);
    return Problem;
}

std::map<QString, QString> StagedPlaces(const QString& DBPath, const QByteArray& JournalSum) {
    std::map<QString, QString> Places;
    if (!HasStagedFiles(DBPath) || IsForeign(DBPath)) return Places;
    const std::optional<Note> Noted = ReadNote(DBPath);
    if (!Noted || !IsOfThisState(*Noted, JournalSum)) return Places;
    for (const StagedChange::Move& Row : Noted->Change.Moves)
        if (const QString Path = StagingFolder(DBPath) + Row.Staged;
            IsName(Row.Staged) && FileExists(Path))
            Places.emplace((DBPath + Row.To).toUpper(), Path);
    return Places;
}

// The note first: without it nothing that is left here can be taken for a change.
void DropStagedFiles(const QString& DBPath) {
    if (IsForeign(DBPath)) return DeleteFolder(StagingFolder(DBPath));
    DropIfPossible(NotePath(DBPath));
    DeleteTree(StagingFolder(DBPath));
}

}  // namespace neb
