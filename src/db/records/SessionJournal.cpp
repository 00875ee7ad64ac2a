#include "db/records/SessionJournal.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QList>
#include <QtEndian>
#include <algorithm>
#include <condition_variable>
#include <mutex>
#include <thread>

#include "db/records/KeptAside.h"
#include "db/records/modJournal.h"
#include "support/Texts.h"
#include "support/files/modHostFiles.h"
#include "support/files/modHostFilesAccess.h"
#include "support/files/modHostFilesCopy.h"
#include "support/files/modHostFilesLines.h"
#include "support/modFUFL.h"

namespace neb {
namespace {

// Magic, the records' check sum, the head's check; then for each entry its length, its time, its
// body and a check that goes over the check before it, so that none can be missing in between.
constexpr QByteArrayView Magic = "NEBSESS1";
constexpr auto Method = QCryptographicHash::Blake2b_256;
constexpr qsizetype SumLength = 32, CheckLength = 16;
constexpr qsizetype HeadLength = 8 + SumLength + CheckLength;
constexpr qsizetype EntryHead = 4 + 8;

QByteArray CheckOf(QByteArrayView Before, QByteArrayView Bytes) {
    QCryptographicHash Sum(Method);
    Sum.addData(Before);
    Sum.addData(Bytes);
    return Sum.result().first(CheckLength);
}

template <class Number>
QByteArray BytesOf(Number Value) {
    QByteArray Bytes(sizeof(Number), Qt::Uninitialized);
    qToLittleEndian(Value, Bytes.data());
    return Bytes;
}

QByteArray HeadOf(const QByteArray& Base) {
    const QByteArray Head = Magic.toByteArray() + Base;
    return Head + CheckOf({}, Head);
}

constexpr qint64 NoFile = -1;

// A file's length and content, as part of the sum.
void AddRecordFile(QCryptographicHash& Sum, const std::optional<RecordBytes>& File) {
    Sum.addData(BytesOf<qint64>(File ? File->Length : NoFile));
    if (!File) return;
    QByteArray Room(1 << 18, Qt::Uninitialized);
    for (qint64 Count; (Count = File->Read(Room.data(), Room.size())) > 0;)
        Sum.addData(QByteArrayView(Room).first(Count));
}

// Walks over the bytes of a journal that was left behind.
class Walk {
  public:
    explicit Walk(const QByteArray& Bytes) : mBytes(Bytes) {}

    std::optional<LeftSession> Run() {
        LeftSession Found;
        if (!TakeHead(Found)) return std::nullopt;
        const qsizetype All = HeadLength + mBytes.size();
        for (std::optional<SessionEntry> Entry; (Entry = Next());)
            Found.Entries.push_back(std::move(*Entry));
        Found.End = {All - mBytes.size(), mCheck};
        Found.IsTorn = !mBytes.isEmpty();
        return Found;
    }

  private:
    bool TakeHead(LeftSession& Into) {
        if (mBytes.size() < HeadLength || !mBytes.startsWith(Magic)) return false;
        const QByteArrayView Head = mBytes.first(HeadLength - CheckLength);
        mCheck = mBytes.sliced(Head.size(), CheckLength).toByteArray();
        if (CheckOf({}, Head) != mCheck) return false;
        Into.Base = Head.last(SumLength).toByteArray();
        mBytes = mBytes.sliced(HeadLength);
        return true;
    }
    std::optional<SessionEntry> Next() {
        if (mBytes.size() < EntryHead + CheckLength) return std::nullopt;
        const auto Length = qFromLittleEndian<quint32>(mBytes.data());
        if (Length > mBytes.size() - EntryHead - CheckLength) return std::nullopt;
        const QByteArrayView Checked = mBytes.first(EntryHead + Length);
        const QByteArray Check = CheckOf(mCheck, Checked);
        if (mBytes.sliced(Checked.size(), CheckLength) != Check) return std::nullopt;
        mCheck = Check;
        mBytes = mBytes.sliced(Checked.size() + CheckLength);
        return SessionEntry{qFromLittleEndian<qint64>(Checked.data() + 4),
                            Checked.sliced(EntryHead).toByteArray()};
    }

    QByteArrayView mBytes;
    QByteArray mCheck;
};

QString UnfinishedPath(const QString& DBPath) {
    return SessionJournalPath(DBPath) + QStringLiteral(".new");
}

// Also the names of folders that somebody else has made a moment ago.
void MakeFolderOf(const QString& DBPath) {
    MakeDirsIn(DBPath, GetFilePath(SessionJournalPath(DBPath)));
    SyncDir(DBPath + QStringLiteral("Temp/"));
    SyncDir(DBPath);
}

// What changes when records are written, by whomever.
QByteArray MarkOf(const QString& DBPath) {
    return FileMark(RecordPath(DBPath, RecordFile::NextIDs)) + '/' + FileMark(JournalPath(DBPath));
}

// Of a journal that is there; empty when it is too short for one.
QByteArray BaseIn(const QByteArray& Bytes) {
    return Bytes.mid(Magic.size(), SumLength);
}

}  // namespace

QString SessionJournalPath(const QString& DBPath) {
    return GetFilePath(JournalPath(DBPath)) + QStringLiteral("Session.journal");
}

bool IsDatabaseThere(const QString& DBPath) {
    return FolderExists(DBPath + QStringLiteral("Temp/")) ||
           std::any_of(AllRecordFiles.begin(), AllRecordFiles.end(),
                       [&](RecordFile File) { return FileExists(RecordPath(DBPath, File)); });
}

QByteArray SumOfRecords(const QString& DBPath) {
    RecordImage Image;
    const bool Unfinished = ReadJournal(DBPath, &Image) == JournalState::Whole;
    const RecordSource Source =
        Unfinished ? RecordsInImage(std::move(Image)) : RecordsInDirectory(DBPath);
    QCryptographicHash Sum(Method);
    for (const RecordFile File : AllRecordFiles) AddRecordFile(Sum, Source(File));
    return Sum.result();
}

// The thread works until Ends, batch by batch: what is added while one is flushed goes with the
// next.
struct SessionJournal::State {
    struct Item {
        QByteArray Bytes;  // the entry with its head
        bool WithFiles;
    };

    State(const QString& Path, const std::optional<SessionEnd>& Before,
          std::chrono::milliseconds After)
        : DBPath(Path),
          RetryAfter(After),
          From(Before.value_or(SessionEnd())),
          WasThere(IsDatabaseThere(Path)),
          Good(From) {}

    void Run() {
        std::unique_lock Lock(Mutex);
        for (bool IsLast = false; !IsLast;) {
            WaitForWork(Lock);
            IsLast = Ends;
            if (!Waiting.isEmpty() && !IsHeld) StoreWaiting(Lock);
        }
    }
    void WaitForWork(std::unique_lock<std::mutex>& Lock) {
        const auto IsTime = [this] { return Ends || (Asked && !IsHeld && !Waiting.isEmpty()); };
        if (Problem && !IsHeld)
            Changed.wait_for(Lock, RetryAfter, IsTime);
        else
            Changed.wait(Lock, IsTime);
    }
    void StoreWaiting(std::unique_lock<std::mutex>& Lock) {
        const QList<Item> Batch = Waiting;
        Asked = false;
        IsStoring = true;
        ++Tries;
        Lock.unlock();
        std::optional<Fault> Failed = Store(Batch);
        Lock.lock();
        IsStoring = false;
        Problem = std::move(Failed);
        if (Problem) LastFailed = Tries;
        if (!Problem) Waiting.remove(0, Batch.size());
        Changed.notify_all();
    }
    std::optional<Fault> Store(const QList<Item>& Batch) {
        try {
            if (!IsAsItWas()) Writer.reset();
            if (!Writer) Open();
            if (std::ranges::any_of(Batch, &Item::WithFiles)) SyncVolume(DBPath);
            for (const Item& Entry : Batch) Put(Entry.Bytes);
            Writer->Sync();
            Good = Written;
            return std::nullopt;
        } catch (const Fault& Reason) {
            Writer.reset();
            return Reason;
        } catch (const std::exception& Reason) {  // no memory
            Writer.reset();
            return Fault(QString::fromUtf8(Reason.what()), SessionJournalPath(DBPath));
        }
    }
    // Records that were written meanwhile have all that the journal says; and it may be gone.
    bool IsAsItWas() const {
        return FileExists(SessionJournalPath(DBPath)) && MarkOf(DBPath) == Mark;
    }
    // Under another name first: what was flushed before a write failed is not lost meanwhile.
    void Open() {
        if (!FolderExists(DBPath) || (WasThere && !IsDatabaseThere(DBPath)))
            throw Fault(tr("The database is not there any more."), DBPath);
        Mark = MarkOf(DBPath);
        const QString Path = SessionJournalPath(DBPath);
        const QByteArray Before = Beginning();
        MakeFolderOf(DBPath);
        Writer.emplace(UnfinishedPath(DBPath));
        Writer->Write(Before.constData(), Before.size());
        Writer->Sync();
        RenameFile(UnfinishedPath(DBPath), Path);
        SyncDir(GetFilePath(Path));
        Good = Written = {Before.size(), Before.last(CheckLength)};
        WasThere = true;
    }
    // What stands before the next entry: all that was stored, as long as it goes with the records
    // that are there; a new head where they were written since.
    QByteArray Beginning() {
        const QByteArray Sum = SumOfRecords(DBPath);
        const QString Path = SessionJournalPath(DBPath);
        if (Good.Length > 0 && FileExists(Path)) {
            const QByteArray Bytes = ReadFile(Path);
            if (Bytes.size() >= Good.Length && BaseIn(Bytes) == Sum)
                return Bytes.first(Good.Length);
            if (ReadJournal(DBPath) != JournalState::Whole)
                throw Fault(tr("The records have been replaced by others."), DBPath);
        }
        From = Good = {};
        return HeadOf(Sum);
    }
    void Put(const QByteArray& Entry) {
        Written.Check = CheckOf(Written.Check, Entry);
        const QByteArray Whole = Entry + Written.Check;
        Writer->Write(Whole.constData(), Whole.size());
        Written.Length += Whole.size();
    }

    // Until what was added before is stored, or a try that begins from now on has failed.
    void WaitUntilStored(std::unique_lock<std::mutex>& Lock) {
        const quint64 Before = Tries;
        Asked = true;
        Changed.notify_all();
        Changed.wait(Lock, [&] { return Waiting.isEmpty() || LastFailed > Before; });
    }
    void Forget(std::unique_lock<std::mutex>& Lock) {
        Changed.wait(Lock, [this] { return !IsStoring; });
        Waiting.clear();
        Problem.reset();
        Writer.reset();
        Good = {};
    }

    // What an earlier session has left stands at the beginning of the file still, unless all
    // records have been written since.
    void CutBack() {
        if (From.Length == 0 || !FileExists(SessionJournalPath(DBPath)))
            return DropSessionJournal(DBPath);
        DeleteFile(UnfinishedPath(DBPath));
        if (FileSize(SessionJournalPath(DBPath)) > From.Length) {
            CutFile(SessionJournalPath(DBPath), From.Length);
            SyncFile(SessionJournalPath(DBPath));
        }
        Good = From;
    }

    const QString DBPath;
    const std::chrono::milliseconds RetryAfter;
    mutable std::mutex Mutex;
    std::condition_variable Changed;
    QList<Item> Waiting;
    std::optional<Fault> Problem;
    bool Ends = false, Asked = false, IsStoring = false, IsHeld = false;
    quint64 Tries = 0, LastFailed = 0;
    // of the thread, while it stores
    SessionEnd From;  // where an earlier session has ended
    bool WasThere;
    std::optional<HostWriter> Writer;
    QByteArray Mark;           // of the records when it was opened
    SessionEnd Good, Written;  // what is on the disk; what was written
    std::thread Thread;
};

SessionJournal::SessionJournal(const QString& DBPath, const std::optional<SessionEnd>& From,
                               std::chrono::milliseconds RetryAfter)
    : mState(std::make_unique<State>(DBPath, From, RetryAfter)) {}

SessionJournal::~SessionJournal() {
    {
        const std::lock_guard Lock(mState->Mutex);
        mState->Ends = true;  // after one last try
        mState->Changed.notify_all();
    }
    if (mState->Thread.joinable()) mState->Thread.join();
}

void SessionJournal::Add(const QByteArray& Entry, bool WithFiles) {
    const std::lock_guard Lock(mState->Mutex);
    const QByteArray Bytes = BytesOf(static_cast<quint32>(Entry.size())) +
                             BytesOf<qint64>(QDateTime::currentMSecsSinceEpoch()) + Entry;
    mState->Waiting.append({Bytes, WithFiles});
    mState->Asked = true;
    if (!mState->Thread.joinable()) mState->Thread = std::thread([this] { mState->Run(); });
    mState->Changed.notify_all();
}

void SessionJournal::Flush() {
    std::unique_lock Lock(mState->Mutex);
    if (!mState->Waiting.isEmpty()) mState->WaitUntilStored(Lock);
    if (mState->Problem) throw Fault(*mState->Problem);
}

void SessionJournal::Pause() {
    std::unique_lock Lock(mState->Mutex);
    if (!mState->Waiting.isEmpty()) mState->WaitUntilStored(Lock);
    mState->IsHeld = true;
    mState->Changed.wait(Lock, [this] { return !mState->IsStoring; });
}

void SessionJournal::GoOn() {
    const std::lock_guard Lock(mState->Mutex);
    mState->IsHeld = false;
    mState->Asked = true;
    mState->Changed.notify_all();
}

std::optional<Fault> SessionJournal::Problem() const {
    const std::lock_guard Lock(mState->Mutex);
    return mState->Problem;
}

void SessionJournal::Restart() {
    std::unique_lock Lock(mState->Mutex);
    mState->Forget(Lock);
    mState->From = {};
    DropSessionJournal(mState->DBPath);
}

void SessionJournal::TakeBack() {
    std::unique_lock Lock(mState->Mutex);
    mState->Forget(Lock);
    mState->CutBack();
}

std::optional<LeftSession> ReadSessionJournal(const QString& DBPath) {
    const QString Path = SessionJournalPath(DBPath);
    if (!FileExists(Path)) return std::nullopt;
    return SessionIn(ReadFile(Path));
}

std::optional<LeftSession> SessionIn(const QByteArray& Journal) {
    return Walk(Journal).Run();
}

void DropSessionJournal(const QString& DBPath) {
    const bool IsThere = FileExists(SessionJournalPath(DBPath));
    DeleteFile(UnfinishedPath(DBPath));
    DeleteFile(SessionJournalPath(DBPath));
    if (IsThere) SyncDir(GetFilePath(SessionJournalPath(DBPath)));
}

FoundSession LookForSession(const QString& DBPath) {
    using enum FoundSession::State;
    if (!FileExists(SessionJournalPath(DBPath))) return {};
    std::optional<LeftSession> Left = ReadSessionJournal(DBPath);
    if (Left && Left->Base == SumOfRecords(DBPath)) return {Goes, std::move(Left)};
    const bool IsAfter = ReadJournal(DBPath) == JournalState::Whole;
    return {Left && IsAfter ? IsStored : Foreign, std::move(Left)};
}

QStringList SettleSession(const QString& DBPath, const FoundSession& Found) {
    if (Found.Is == FoundSession::State::IsStored) DropSessionJournal(DBPath);
    if (Found.Is != FoundSession::State::Foreign) return {};
    const bool Dated = Found.Left && !Found.Left->Entries.empty();
    return {PutAside(SessionJournalPath(DBPath), Dated ? Found.Left->Entries.back().When
                                                       : QDateTime::currentMSecsSinceEpoch())};
}

}  // namespace neb
