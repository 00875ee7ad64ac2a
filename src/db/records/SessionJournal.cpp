#include "db/records/SessionJournal.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QList>
#include <QtEndian>
#include <condition_variable>
#include <mutex>
#include <thread>

#include "db/records/modJournal.h"
#include "support/Fault.h"
#include "support/files/modHostFiles.h"
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

// A file's name, length and content, as part of the sum.
void AddRecordFile(QCryptographicHash& Sum, const QString& Path) {
    Sum.addData(BytesOf<qint64>(FileExists(Path) ? FileSize(Path) : -1));
    if (!FileExists(Path)) return;
    HostReader Reader(Path);
    QByteArray Room(1 << 18, Qt::Uninitialized);
    for (qint64 Count; (Count = Reader.Read(Room.data(), Room.size())) > 0;)
        Sum.addData(QByteArrayView(Room).first(Count));
}

// Walks over the bytes of a journal that was left behind.
class Walk {
  public:
    explicit Walk(const QByteArray& Bytes) : mBytes(Bytes) {}

    std::optional<LeftSession> Run() {
        LeftSession Found;
        if (!TakeHead(Found)) return std::nullopt;
        for (std::optional<SessionEntry> Entry; (Entry = Next());)
            Found.Entries.push_back(std::move(*Entry));
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
    const QByteArray Journal = SumOfJournal(DBPath);
    if (!Journal.isEmpty()) return Journal;
    QCryptographicHash Sum(Method);
    for (const RecordFile File : AllRecordFiles) AddRecordFile(Sum, RecordPath(DBPath, File));
    return Sum.result();
}

// The thread works until Ends, batch by batch: what is added while one is flushed goes with the
// next.
struct SessionJournal::State {
    explicit State(const QString& Path) : DBPath(Path) {}

    void Run() {
        std::unique_lock Lock(Mutex);
        for (;;) {
            Changed.wait(Lock, [this] { return Ends || (!Waiting.isEmpty() && !Problem); });
            if (Waiting.isEmpty() || Problem) return;
            const QList<QByteArray> Batch = Waiting;
            Lock.unlock();
            std::optional<Fault> Failed = Store(Batch);
            Lock.lock();
            Problem = std::move(Failed);
            if (!Problem) Waiting.remove(0, Batch.size());
            Changed.notify_all();
        }
    }
    std::optional<Fault> Store(const QList<QByteArray>& Batch) {
        try {
            if (!Writer) Open();
            for (const QByteArray& Entry : Batch) Put(Entry);
            Writer->Sync();
            Good = Written;
            return std::nullopt;
        } catch (const Fault& Reason) {
            Writer.reset();
            return Reason;
        }
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

    struct End {
        qint64 Length = 0;
        QByteArray Check;
    };
    const QString DBPath;
    std::mutex Mutex;
    std::condition_variable Changed;
    QList<QByteArray> Waiting;  // entries with their heads
    std::optional<Fault> Problem;
    bool Ends = false;
    // of the thread, while it stores
    std::optional<HostWriter> Writer;
    End Good, Written;  // what is on the disk; what was written
    std::thread Thread;
};

SessionJournal::SessionJournal(const QString& DBPath) : mState(std::make_unique<State>(DBPath)) {}

SessionJournal::~SessionJournal() {
    {
        const std::lock_guard Lock(mState->Mutex);
        mState->Problem.reset();  // one last try
        mState->Ends = true;
        mState->Changed.notify_all();
    }
    if (mState->Thread.joinable()) mState->Thread.join();
}

void SessionJournal::Add(const QByteArray& Entry) {
    const std::lock_guard Lock(mState->Mutex);
    mState->Waiting.append(BytesOf(static_cast<quint32>(Entry.size())) +
                           BytesOf<qint64>(QDateTime::currentMSecsSinceEpoch()) + Entry);
    mState->Problem.reset();
    if (!mState->Thread.joinable()) mState->Thread = std::thread([this] { mState->Run(); });
    mState->Changed.notify_all();
}

void SessionJournal::Flush() {
    std::unique_lock Lock(mState->Mutex);
    if (!mState->Waiting.isEmpty()) mState->WaitUntilStored(Lock);
    if (mState->Problem) throw Fault(*mState->Problem);
}

void SessionJournal::Restart() {
    std::unique_lock Lock(mState->Mutex);
    if (!mState->Waiting.isEmpty()) mState->WaitUntilStored(Lock);
    mState->Waiting.clear();
    mState->Writer.reset();
    mState->Good = {};
    DeleteFile(SessionJournalPath(mState->DBPath));
}

std::optional<LeftSession> ReadSessionJournal(const QString& DBPath) {
    const QString Path = SessionJournalPath(DBPath);
    if (!FileExists(Path)) return std::nullopt;
    const QByteArray Bytes = ReadFile(Path);
    return Walk(Bytes).Run();
}

}  // namespace neb
