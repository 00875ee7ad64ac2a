#include "sound/devices/SoundShelf.h"

#include <QMutex>
#include <QWaitCondition>
#include <algorithm>
#include <deque>
#include <utility>

#include "support/Fault.h"
#include "support/files/modHostFiles.h"

namespace neb {

namespace {

constexpr size_t MostKept = 4;

// By what a file is known to be still the same.
struct Stamp {
    QString Path;
    qint64 Size = -1;
    std::optional<QDateTime> Time;

    bool operator==(const Stamp&) const = default;
};

Stamp StampOf(const QString& Path) {
    const QString Its = ResolvePath(Path);
    return {Its, FileSize(Its), FileTime(Its)};
}

// A sound and the file's stamp when it was opened: it may change while the sound is on loan.
class StampedSound : public SoundDecoder {
  public:
    StampedSound(const QString& Path, const SoundShelf::Opener& Open)
        : mStamp(StampOf(Path)), mSound(Open(Path)) {}

    const Stamp& Its() const { return mStamp; }
    int Rate() const override { return mSound->Rate(); }
    int Channels() const override { return mSound->Channels(); }
    qint64 Frames() const override { return mSound->Frames(); }
    qint64 Read(float* Into, qint64 MaxFrames) override { return mSound->Read(Into, MaxFrames); }
    void Seek(qint64 Frame) override { mSound->Seek(Frame); }

  private:
    const Stamp mStamp;
    const std::unique_ptr<SoundDecoder> mSound;
};

using Sound = std::unique_ptr<StampedSound>;

}  // namespace

// Its thread holds it, too: it may be left behind in a file that does not open.
struct SoundShelf::State {
    explicit State(Opener Way) : OpenFile(std::move(Way)) {}
    const Opener OpenFile;
    QMutex Mutex;
    QWaitCondition Asked, Opened;
    std::deque<QString> Wanted;  // paths as they were given, the oldest first
    QString Opening;             // the path that the thread is busy with
    bool Busy = false;
    bool Unwanted = false;  // what it opens
    bool Ending = false;
    std::deque<Sound> Kept;  // the oldest first

    void Keep(Sound Fresh);
    Sound Find(const Stamp& Its);
    bool Holds(const Stamp& Its);
    std::optional<QString> Begin();
    void End(Sound Fresh);
    void Open(const QString& Path);
    void Work();
};

// The mutex is held, in these three.
void SoundShelf::State::Keep(Sound Fresh) {
    Kept.push_back(std::move(Fresh));
    if (Kept.size() > MostKept) Kept.pop_front();
}

// A sound of that file; one of an earlier state of the file goes.
Sound SoundShelf::State::Find(const Stamp& Its) {
    std::erase_if(Kept, [&](const Sound& Each) {
        return Each->Its().Path == Its.Path && !(Each->Its() == Its);
    });
    const auto Place = std::find_if(Kept.begin(), Kept.end(),
                                    [&](const Sound& Each) { return Each->Its() == Its; });
    if (Place == Kept.end()) return {};
    Sound Found = std::move(*Place);
    Kept.erase(Place);
    return Found;
}

bool SoundShelf::State::Holds(const Stamp& Its) {
    Sound Found = Find(Its);
    const bool Has = Found != nullptr;
    if (Has) Keep(std::move(Found));
    return Has;
}

// Waits for the next that is wanted; nothing at the end.
std::optional<QString> SoundShelf::State::Begin() {
    const QMutexLocker Lock(&Mutex);
    while (Wanted.empty() && !Ending) Asked.wait(&Mutex);
    if (Ending) return {};
    Opening = Wanted.front();
    Wanted.pop_front();
    Busy = true;
    Unwanted = false;
    return Opening;
}

// What comes after the end, or after all was let go of, is not kept.
void SoundShelf::State::End(Sound Fresh) {
    const QMutexLocker Lock(&Mutex);
    if (Fresh && !Ending && !Unwanted) Keep(std::move(Fresh));
    Busy = false;
    Opened.wakeAll();
}

void SoundShelf::State::Open(const QString& Path) {
    Sound Fresh;
    try {
        const Stamp Now = StampOf(Path);
        QMutexLocker Lock(&Mutex);
        const bool Has = Holds(Now);
        Lock.unlock();
        if (!Has) Fresh = std::make_unique<StampedSound>(Path, OpenFile);
    } catch (const std::exception&) {
        // Whoever wants the sound opens it again and hears what is wrong with it.
    }
    End(std::move(Fresh));
}

void SoundShelf::State::Work() {
    while (const auto Path = Begin()) Open(*Path);
}

SoundShelf::SoundShelf(Opener Open)
    : mState(std::make_shared<State>(std::move(Open))), mThread([Its = mState] { Its->Work(); }) {}

SoundShelf::~SoundShelf() {
    const QMutexLocker Lock(&mState->Mutex);
    mState->Ending = true;
    mState->Kept.clear();
    mState->Asked.wakeAll();
}

void SoundShelf::Clear() {
    std::deque<Sound> Gone;
    const QMutexLocker Lock(&mState->Mutex);
    mState->Wanted.clear();
    mState->Unwanted = true;
    Gone.swap(mState->Kept);
}

void SoundShelf::Prepare(const QString& Path) {
    const QMutexLocker Lock(&mState->Mutex);
    auto& Wanted = mState->Wanted;
    if (mState->Busy && mState->Opening == Path) return;
    if (std::find(Wanted.begin(), Wanted.end(), Path) != Wanted.end()) return;
    Wanted.push_back(Path);
    if (Wanted.size() > MostKept) Wanted.pop_front();
    mState->Asked.wakeAll();
}

std::unique_ptr<SoundDecoder> SoundShelf::Take(const QString& Path) {
    const Stamp Now = StampOf(Path);
    QMutexLocker Lock(&mState->Mutex);
    std::erase(mState->Wanted, Path);
    while (mState->Busy && mState->Opening == Path) mState->Opened.wait(&mState->Mutex);
    if (Sound Found = mState->Find(Now)) return Found;
    Lock.unlock();
    return std::make_unique<StampedSound>(Path, mState->OpenFile);
}

void SoundShelf::Put(const QString&, std::unique_ptr<SoundDecoder> Decoder) {
    if (!dynamic_cast<StampedSound*>(Decoder.get())) return;
    Sound Back(static_cast<StampedSound*>(Decoder.release()));
    Back->Seek(0);
    const QMutexLocker Lock(&mState->Mutex);
    mState->Keep(std::move(Back));
}

}  // namespace neb
