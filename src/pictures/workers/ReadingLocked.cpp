#include "pictures/workers/ReadingLocked.h"

#include <atomic>

#include "pictures/formats/PictureFaults.h"
#include "pictures/formats/PictureSniff.h"
#include "support/MediaTypes.h"
#include "support/Texts.h"

namespace neb {
namespace {

constexpr qint64 InBytes = LargestPictureFile + LargestSvg;
constexpr qint64 OutBytes = 820LL << 20;
// What has been put into a process is not given back to the system; one that had a file as large
// is not kept for that.
constexpr qint64 LargeFile = 64 << 20;

struct Ending {
    LockedEnd How;
    quint32 Number;
    QString Why;
};

// The picture itself is not to blame for want of memory.
const Ending& EndingBy(LockedEnd How) {
    static const Ending All[] = {
        {LockedEnd::TooLong, FaultDamagedPicture,
         tr("The picture cannot be read: it takes too long.")},
        {LockedEnd::Forbidden, FaultDamagedPicture,
         tr("The picture cannot be read: it tried to do what no picture may.")},
        {LockedEnd::Nonsense, FaultDamagedPicture,
         tr("The picture cannot be read: its reader talks nonsense.")},
        {LockedEnd::Killed, FaultTooLarge,
         tr("The picture could not be read: its reader was ended from outside, as "
            "happens when there is not enough memory.")},
        {LockedEnd::Crashed, FaultDamagedPicture,
         tr("The picture cannot be read: it brings its reader down.")}};
    for (const Ending& Each : All)
        if (Each.How == How) return Each;
    return *std::rbegin(All);
}

[[noreturn]] void ThrowEnded(LockedEnd How) {
    const Ending& Its = EndingBy(How);
    throw Fault(Its.Why, {}, Its.Number);
}

[[noreturn]] void ThrowGivenUp() {
    throw Fault(tr("The picture has brought its reader down three times and is not tried "
                   "again before the program is started anew."),
                {}, FaultDamagedPicture);
}

// Whether a second process may fare better: the first was ended by somebody else, or had read other
// pictures before, one of which may have spoilt it. Time is not spent twice.
bool IsWorthAnother(LockedEnd How, bool WasFresh) {
    if (How == LockedEnd::Killed) return true;
    return How != LockedEnd::TooLong && !WasFresh;
}

std::atomic<PictureReader*> Chosen = nullptr;

// Text that is drawn needs the fonts of the system, which the other processes do without.
bool IsDrawing(const QByteArray& Bytes) {
    const auto Format = FormatOf(Bytes);
    return Format == PictureFormat::Emf || Format == PictureFormat::Wmf;
}

LockedProgram Converter() {
    return {LockedProgramPath(QStringLiteral("neb-metafiles")), "metafiles", LargestPictureFile,
            LargestSvg};
}

LockedProgram Program(const char* Name, const char* Role) {
    return ReadingLocked::ProgramAt(LockedProgramPath(QString::fromLatin1(Name)), Role);
}

}  // namespace

ReadingLocked::ReadingLocked()
    : ReadingLocked(Program("neb-pictures", "pictures"), Program("neb-pictures", "drawings"),
                    Converter()) {}

ReadingLocked::ReadingLocked(const LockedProgram& Pictures, const LockedProgram& Drawings,
                             const LockedProgram& Metafiles, const ReadingCosts& Costs)
    : mCosts(Costs), mPictures(Pictures), mDrawings(Drawings, 1), mMetafiles(Metafiles, 1) {}

LockedProgram ReadingLocked::ProgramAt(const QString& Path, const QByteArray& Role) {
    return {Path, Role, InBytes, OutBytes};
}

template <class Take>
auto ReadingLocked::Read(LockedPool& Pool, const OneReading::Task& Task, Take Result) {
    if (Task.File.size() > LargestPictureFile) ThrowFileTooLarge();
    if (mCrashes.IsGivenUp(Task.File)) ThrowGivenUp();
    const bool Converts = Task.What == Talk::Convert;
    const ReadingCosts Costs = Converts ? mCosts.OfConverting() : mCosts;
    auto Which = LockedPool::Wanted::Any;
    for (bool IsLast = false;; IsLast = true, Which = LockedPool::Wanted::Fresh) {
        bool IsFresh = true;
        try {
            LockedPool::Lent Process(Pool, Which);
            IsFresh = Process.IsFresh();
            // No other drawing shall find what this one has left with the converter.
            if (Converts || Task.File.size() > LargeFile) Process.Retire();
            OneReading Its(*Process, Costs, Task);
            return Result(Its);
        } catch (const ReaderEnded& End) {
            if (!IsLast && IsWorthAnother(End.How, IsFresh)) continue;
            if (End.How != LockedEnd::Killed) mCrashes.Note(Task.File);
            ThrowEnded(End.How);
        }
    }
}

std::optional<QByteArray> ReadingLocked::BytesOf(LockedPool& Pool, const OneReading::Task& Task) {
    return Read(Pool, Task, [](OneReading& Its) { return Its.Bytes(); });
}

DecodedPicture ReadingLocked::Decode(const QByteArray& Bytes, const NeededSize& Needed) {
    if (Bytes.isEmpty()) ThrowEndsEarly();
    const bool Draws = IsDrawing(Bytes);
    OneReading::Task Task{
        Talk::Decode, Bytes, {ExtraFormatsAreOn(), Needed != nullptr}, Needed, {}};
    if (Draws) Task.SvgOf = [this](const QByteArray& Emf) { return SvgOf(Emf); };
    return Read(Draws ? mDrawings : mPictures, Task, [](OneReading& Its) { return Its.Picture(); });
}

std::optional<QByteArray> ReadingLocked::Turned(const QByteArray& Jpeg, PictureTurn Turn) {
    return BytesOf(mPictures, {Talk::Turn, Jpeg, {Turn.Mirrored, Turn.Quarters}});
}

QByteArray ReadingLocked::NotesFor(QSize Pixels, const QByteArray& Source, bool KeepsPlace) {
    return BytesOf(mPictures, {Talk::Notes, Source, {Pixels.width(), Pixels.height(), KeepsPlace}})
        .value_or(QByteArray());
}

QByteArray ReadingLocked::WithoutPlace(const QByteArray& Jpeg) {
    return BytesOf(mPictures, {Talk::DropPlace, Jpeg}).value_or(QByteArray());
}

bool ReadingLocked::IsScreenProfile(const QByteArray& Profile) {
    return BytesOf(mPictures, {Talk::Profile, Profile}).has_value();
}

QByteArray ReadingLocked::SvgOf(const QByteArray& Emf) {
    return BytesOf(mMetafiles, {Talk::Convert, Emf}).value_or(QByteArray());
}

std::vector<NamedLock> ReadingLocked::Reports() {
    return {{QStringLiteral("Pictures"), mPictures.Report()},
            {QStringLiteral("Drawings"), mDrawings.Report()},
            {QStringLiteral("Metafiles"), mMetafiles.Report()}};
}

// Never ended: its processes end with the program, whatever threads still do.
ReadingLocked& TheLockedReading() {
    static auto* const Its = new ReadingLocked;
    return *Its;
}

PictureReader& ThePictureReader() {
    PictureReader* const Other = Chosen;
    return Other ? *Other : TheLockedReading();
}

void SetPictureReader(PictureReader* Other) {
    Chosen = Other;
}

}  // namespace neb
