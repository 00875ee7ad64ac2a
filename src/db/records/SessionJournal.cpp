#include "db/records/SessionJournal.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QList>
#include <QtEndian>
#include <condition_variable>
#include <mutex>
#include <thread>

#include "db/records/KeptAside.h"
#include "db/records/modJournal.h"
#include "support/Fault.h"
#include "support/files/modHostFiles.h"
#include "support/files/modHostFilesCopy.h"
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

void MakeFolderOf(const QString& DBPath) {
    const QString Folder = GetFilePath(SessionJournalPath(DBPath));
    if (FolderExists(Folder)) return;
    MakeDirs(Folder);
    SyncDir(DBPath + QStringLiteral("Temp/"));
    SyncDir(DBPath);
}

}  // namespace

QString SessionJournalPath(const QString& DBPath) {
    return GetFilePath(JournalPath(DBPath)) + QStringLiteral("Session.journal");
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

    State(const QString& Path, const std::optional<SessionEnd>& From)
        : DBPath(Path), Good(From.value_or(SessionEnd())) {}

    void Run() {
        std::unique_lock Lock(Mutex);
        for (;;) {
            Changed.wait(Lock, [this] { return Ends || (!Waiting.isEmpty() && !Problem); });
            if (Waiting.isEmpty() || Problem) return;
            const QList<Item> Batch = Waiting;
            Lock.unlock();
            std::optional<Fault> Failed = Store(Batch);
            Lock.lock();
            Problem = std::move(Failed);
            if (!Problem) Waiting.remove(0, Batch.size());
            Changed.notify_all();
        }
    }
    std::optional<Fault> Store(const QList<Item>& Batch) {
        try {
            if (Good.Length > 0 && !FileExists(SessionJournalPath(DBPath))) Forget();
            if (!Writer) Open();
            if (std::ranges::any_of(Batch, &Item::WithFiles)) SyncVolume(DBPath);
            for (const Item& Entry : Batch) Put(Entry.Bytes);
            Writer->Sync();
            Good = Written;
            return std::nullopt;
        } catch (const Fault& Reason) {
            Writer.reset();
            return Reason;
        }
    }
    // What it says stands in other records, which were written meanwhile.
    void Forget() {
        Writer.reset();
        Good = {};
    }
    // Under another name first: what was flushed before a write failed is not lost meanwhile.
    void Open() {
        const QString Path = SessionJournalPath(DBPath), Beside = Path + QStringLiteral(".new");
        MakeFolderOf(DBPath);
        const QByteArray Before =
            Good.Length > 0 ? ReadFile(Path).first(Good.Length) : HeadOf(SumOfRecords(DBPath));
        Writer.emplace(Beside);
        Writer->Write(Before.constData(), Before.size());
        Writer->Sync();
        RenameFile(Beside, Path);
        SyncDir(GetFilePath(Path));
        if (Good.Length == 0) Good = {Before.size(), Before.last(CheckLength)};
        Written = Good;
    }
    void Put(const QByteArray& Entry) {
        Written.Check = CheckOf(Written.Check, Entry);
        const QByteArray Whole = Entry + Written.Check;
        Writer->Write(Whole.constData(), Whole.size());
        Written.Length += Whole.size();
    }
    void WaitUntilStored(std::unique_lock<std::mutex>& Lock) {
        Problem.reset();
        Changed.notify_all();
        Changed.wait(Lock, [this] { return Waiting.isEmpty() || Problem; });
    }

    const QString DBPath;
    std::mutex Mutex;
    std::condition_variable Changed;
    QList<Item> Waiting;
    std::optional<Fault> Problem;
    bool Ends = false;
    // of the thread, while it stores
    std::optional<HostWriter> Writer;
    SessionEnd Good, Written;  // what is on the disk; what was written
    std::thread Thread;
};

SessionJournal::SessionJournal(const QString& DBPath, const std::optional<SessionEnd>& From)
    : mState(std::make_unique<State>(DBPath, From)) {}

SessionJournal::~SessionJournal() {
    {
        const std::lock_guard Lock(mState->Mutex);
        mState->Problem.reset();  // one last try
        mState->Ends = true;
        mState->Changed.notify_all();
    }
    if (mState->Thread.joinable()) mState->Thread.join();
}

void SessionJournal::Add(const QByteArray& Entry, bool WithFiles) {
    const std::lock_guard Lock(mState->Mutex);
    const QByteArray Bytes = BytesOf(static_cast<quint32>(Entry.size())) +
                             BytesOf<qint64>(QDateTime::currentMSecsSinceEpoch()) + Entry;
    mState->Waiting.append({Bytes, WithFiles});
    mState->Problem.reset();
    if (!mState->Thread.joinable()) mState->Thread = std::thread([this] { mState->Run(); });
    mState->Changed.notify_all();
}

void SessionJournal::Flush() {
    Pause();
    const std::lock_guard Lock(mState->Mutex);
    if (mState->Problem) throw Fault(*mState->Problem);
}

void SessionJournal::Pause() {
    std::unique_lock Lock(mState->Mutex);
    if (!mState->Waiting.isEmpty()) mState->WaitUntilStored(Lock);
}

void SessionJournal::Restart() {
    Pause();
    const std::lock_guard Lock(mState->Mutex);
    mState->Waiting.clear();
    mState->Forget();
    DropSessionJournal(mState->DBPath);
}

std::optional<LeftSession> ReadSessionJournal(const QString& DBPath) {
    const QString Path = SessionJournalPath(DBPath);
    if (!FileExists(Path)) return std::nullopt;
    const QByteArray Bytes = ReadFile(Path);
    return Walk(Bytes).Run();
}

void DropSessionJournal(const QString& DBPath) {
    DeleteFile(SessionJournalPath(DBPath));
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
