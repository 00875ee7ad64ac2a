#include "pictures/workers/ReadingLocked.h"

#include <atomic>
#include <cstdlib>
#include <cstring>
#include <future>

#include "pictures/formats/DecodeHost.h"
#include "pictures/formats/PictureFaults.h"
#include "pictures/formats/PictureFormats.h"
#include "pictures/formats/PictureSniff.h"
#include "pictures/workers/WorkerTalk.h"
#include "support/MediaTypes.h"

namespace neb {
namespace {

constexpr qint64 LargestSvg = 64LL << 20;
constexpr qint64 InBytes = LargestPictureFile + LargestSvg;
constexpr qint64 OutBytes = 820LL << 20;
constexpr qint64 PhotoBytes = 48 << 20;  // of pixels

// Before a picture has told how large it is.
constexpr qint64 HeaderMemory = 192LL << 20;
constexpr double HeaderSeconds = 15, BytesASecond = 12 << 20, WallTimes = 4;

LockedAllowance AllowanceFor(qint64 File, qint64 Asked) {
    const double Seconds = HeaderSeconds + double(File + Asked) / BytesASecond;
    return {HeaderMemory + 3 * File + 2 * Asked, Seconds, Seconds * WallTimes};
}

LockedProgram Program(const char* Name, const char* Role, qint64 AheadBytes = 0) {
    return {LockedProgramPath(QString::fromLatin1(Name)), Role, InBytes, OutBytes, AheadBytes};
}

[[noreturn]] void ThrowEnded(LockedEnd How) {
    if (How == LockedEnd::TooLong)
        throw Fault(QStringLiteral("The picture cannot be read: it takes too long."), {},
                    FaultDamagedPicture);
    if (How == LockedEnd::Forbidden)
        throw Fault(
            QStringLiteral("The picture cannot be read: it tried to do what no picture may."), {},
            FaultDamagedPicture);
    throw Fault(QStringLiteral("The picture cannot be read: it brings its reader down."), {},
                FaultDamagedPicture);
}

[[noreturn]] void ThrowGivenUp() {
    throw Fault(
        QStringLiteral("The picture has brought its reader down three times and is not tried "
                       "again before the program is started anew."),
        {}, FaultDamagedPicture);
}

// What a reader says may be anything.
quint32 KnownNumber(qint64 Number) {
    for (const quint32 Each : {FaultUnknownPicture, FaultEndsEarly, FaultTooLarge})
        if (Number == Each) return Each;
    return FaultDamagedPicture;
}

QString PlainSentence(QByteArrayView Bytes) {
    QString Text = QString::fromUtf8(Bytes);
    for (QChar& Each : Text)
        if (!Each.isPrint() || Each == u'<' || Each == u'&') Each = u' ';
    return Text;
}

std::atomic<PictureReader*> Chosen = nullptr;

// Text that is drawn needs the fonts of the system, which the other processes do without.
bool IsDrawing(const QByteArray& Bytes) {
    const auto Format = FormatOf(Bytes);
    return Format == PictureFormat::Emf || Format == PictureFormat::Wmf;
}

// Memory for the pixels that are to come. What the system takes its time to give is taken while
// another process decodes, so that a picture that is waited for comes no later than from this one.
class PixelsAhead {
  public:
    PixelsAhead() = default;
    ~PixelsAhead() { std::free(mAt); }
    PixelsAhead(const PixelsAhead&) = delete;
    PixelsAhead& operator=(const PixelsAhead&) = delete;

    // Most: what has been granted to the one who decodes.
    void Take(qint64 Bytes, qint64 Most) {
        constexpr qint64 Page = 4096, Little = 1 << 20;
        if (mAt || Bytes < Little || Bytes > Most) return;
        mAt = static_cast<uchar*>(std::malloc(static_cast<size_t>(Bytes)));
        mBytes = mAt ? Bytes : 0;
        for (qint64 At = 0; At < mBytes; At += Page) mAt[At] = 0;
    }
    QImage PictureOf(QSize Size) {
        if (!mAt || PixelCount(Size) * 4 != mBytes) return QImage(Size, QImage::Format_RGB32);
        uchar* const At = std::exchange(mAt, nullptr);
        return QImage(At, Size.width(), Size.height(), qsizetype(Size.width()) * 4,
                      QImage::Format_RGB32, std::free, At);
    }

  private:
    uchar* mAt = nullptr;
    qint64 mBytes = 0;
};

// Somebody waits for it: half of a large picture is copied by another processor.
void CopyPixels(uchar* To, const uchar* From, qint64 Bytes) {
    constexpr qint64 Large = 8 << 20;
    const auto Half = static_cast<size_t>(Bytes > Large ? Bytes / 2 : 0);
    const auto Beside =
        Half ? std::async(std::launch::async, std::memcpy, To, From, Half) : std::future<void*>();
    std::memcpy(To + Half, From + Half, static_cast<size_t>(Bytes) - Half);
}

LockedMessage Request(Talk What, const QByteArray& File, std::int64_t A = 0, std::int64_t B = 0,
                      std::int64_t C = 0) {
    return LockedMessage(What, {File.size(), A, B, C});
}

}  // namespace

// One request and all that is said until its answer.
class ReadingLocked::Reading {
  public:
    Reading(ReadingLocked& Own, LockedPool& Pool, const QByteArray& File)
        : mOwn(Own), mFile(Checked(Own, File)), mProcess(Pool) {
        std::memcpy(mProcess->In(), File.constData(), static_cast<size_t>(File.size()));
    }
    ~Reading() { LetGo(); }
    Reading(const Reading&) = delete;
    Reading& operator=(const Reading&) = delete;

    LockedMessage Ask(const LockedMessage& Request, const NeededSize& Needed = {}) {
        mProcess->Allow(AllowanceFor(mFile.size(), 0));
        mProcess->Send(Request);
        for (;;) {
            const auto Said = mProcess->Receive();
            if (!Said) ThrowHowItEnded();
            if (Said->Is(Talk::Problem)) ThrowProblem(*Said);
            if (Said->Is(Talk::Picture) || Said->Is(Talk::Bytes) || Said->Is(Talk::Nothing))
                return *Said;
            if (!IsAnswered(*Said, Needed)) EndAsNonsense();
        }
    }
    DecodedPicture PictureOf(const LockedMessage& Answer) {
        const QSize Size = SizeIn(Answer, 0), Full = SizeIn(Answer, 2);
        if (!Answer.Is(Talk::Picture) || Size.isEmpty() || Full.isEmpty() ||
            PixelCount(Size) * 4 > mProcess->OutBytes())
            EndAsNonsense();
        QImage Picture = mAhead.PictureOf(Size);
        if (Picture.isNull()) ThrowTooLarge(Size);
        CopyPixels(Picture.bits(), mProcess->Out(), Picture.sizeInBytes());
        return {std::move(Picture), Full};
    }
    std::optional<QByteArray> BytesOf(const LockedMessage& Answer) {
        if (Answer.Is(Talk::Nothing)) return std::nullopt;
        if (!Answer.Is(Talk::Bytes)) EndAsNonsense();
        return FromOut(Answer.Numbers[0]);
    }

  private:
    static const QByteArray& Checked(const ReadingLocked& Own, const QByteArray& File) {
        if (File.size() > LargestPictureFile) ThrowFileTooLarge();
        if (Own.mCrashes.IsGivenUp(File)) ThrowGivenUp();
        return File;
    }
    static QSize SizeIn(const LockedMessage& Said, size_t At) {
        const auto Side = [&](size_t I) {
            const std::int64_t Length = Said.Numbers[I];
            return Length >= 0 && Length <= INT_MAX ? static_cast<int>(Length) : 0;
        };
        return {Side(At), Side(At + 1)};
    }
    bool IsAnswered(const LockedMessage& Said, const NeededSize& Needed) {
        if (Said.Is(Talk::AskNeeded)) return TellNeeded(SizeIn(Said, 0), Needed);
        if (Said.Is(Talk::AskMemory)) {
            if (!GiveMemory(SizeIn(Said, 0), Said.Numbers[2])) return false;
            if (!Needed && mHeld) mAhead.Take(PixelCount(SizeIn(Said, 0)) * 4, *mHeld);
            return true;
        }
        if (Said.Is(Talk::AskSvg)) return GiveSvg(Said.Numbers[0]);
        if (Said.Is(Talk::Release)) return LetGo(), true;
        return false;
    }
    bool TellNeeded(QSize Full, const NeededSize& Needed) {
        if (!Needed || Full.isEmpty()) return false;
        const QSize Least = Needed(Full);
        mProcess->Send(LockedMessage(Talk::Needed, {Least.width(), Least.height()}));
        return true;
    }
    // One piece at a time: two that wait for each other's memory would wait for ever.
    bool GiveMemory(QSize Size, qint64 Bytes) {
        if (mHeld || Bytes < 0) return false;
        try {
            AcquireMemory(Size, Bytes);
            mHeld = Bytes;
        } catch (const Fault&) {
            mProcess->Send(LockedMessage(Talk::Refused));
            return true;
        }
        mProcess->Allow(AllowanceFor(mFile.size(), Bytes));
        mProcess->Send(LockedMessage(Talk::Granted));
        return true;
    }
    void LetGo() {
        if (mHeld) ReleaseMemory(*mHeld);
        mHeld.reset();
    }
    bool GiveSvg(qint64 Length) {
        const QByteArray Emf = FromOut(Length);
        const qint64 At = mFile.size();
        const auto Put = [&](const QByteArray& Bytes) {
            const qint64 Fits = std::min<qint64>(Bytes.size(), mProcess->InBytes() - At);
            std::memcpy(mProcess->In() + At, Bytes.constData(), static_cast<size_t>(Fits));
            return Fits;
        };
        try {
            const QByteArray Svg = mOwn.SvgOf(Emf);
            mProcess->Allow(AllowanceFor(mFile.size(), Svg.size()));
            mProcess->Send(LockedMessage(Talk::Svg, {At, Put(Svg)}));
        } catch (const Fault& Reason) {
            const qint64 Fits = Put(Reason.What().toUtf8());
            mProcess->Send(LockedMessage(Talk::Problem, {Reason.Number(), Fits, At}));
        }
        return true;
    }
    QByteArray FromOut(qint64 Length) {
        if (Length < 0 || Length > mProcess->OutBytes()) EndAsNonsense();
        return {reinterpret_cast<const char*>(mProcess->Out()), Length};
    }
    [[noreturn]] void ThrowProblem(const LockedMessage& Said) {
        if (Said.Numbers[1] < 0 || Said.Numbers[1] > MostSentence) EndAsNonsense();
        const QByteArray Text = FromOut(Said.Numbers[1]);
        throw Fault(PlainSentence(Text), {}, KnownNumber(Said.Numbers[0]));
    }
    [[noreturn]] void EndAsNonsense() {
        mProcess->EndBecause(LockedEnd::Nonsense);
        ThrowHowItEnded();
    }
    [[noreturn]] void ThrowHowItEnded() {
        mOwn.mCrashes.Note(mFile);
        ThrowEnded(mProcess->End());
    }

    ReadingLocked& mOwn;
    const QByteArray& mFile;
    LockedPool::Lent mProcess;
    std::optional<qint64> mHeld;  // bytes of the memory for all decoding
    PixelsAhead mAhead;
};

ReadingLocked::ReadingLocked()
    : ReadingLocked(Program("neb-pictures", "pictures", PhotoBytes),
                    Program("neb-pictures", "drawings"), Program("neb-metafiles", "metafiles")) {}

ReadingLocked::ReadingLocked(const LockedProgram& Pictures, const LockedProgram& Drawings,
                             const LockedProgram& Metafiles)
    : mPictures(Pictures), mDrawings(Drawings, 1), mMetafiles(Metafiles, 1) {}

DecodedPicture ReadingLocked::Decode(const QByteArray& Bytes, const NeededSize& Needed) {
    if (Bytes.isEmpty()) ThrowEndsEarly();
    Reading Its(*this, IsDrawing(Bytes) ? mDrawings : mPictures, Bytes);
    return Its.PictureOf(
        Its.Ask(Request(Talk::Decode, Bytes, ExtraFormatsAreOn(), Needed != nullptr), Needed));
}

std::optional<QByteArray> ReadingLocked::Turned(const QByteArray& Jpeg, PictureTurn Turn) {
    Reading Its(*this, mPictures, Jpeg);
    return Its.BytesOf(Its.Ask(Request(Talk::Turn, Jpeg, Turn.Mirrored, Turn.Quarters)));
}

QByteArray ReadingLocked::NotesFor(QSize Pixels, const QByteArray& Source, bool KeepsPlace) {
    Reading Its(*this, mPictures, Source);
    const auto Answer =
        Its.Ask(Request(Talk::Notes, Source, Pixels.width(), Pixels.height(), KeepsPlace));
    return Its.BytesOf(Answer).value_or(QByteArray());
}

QByteArray ReadingLocked::WithoutPlace(const QByteArray& Jpeg) {
    Reading Its(*this, mPictures, Jpeg);
    return Its.BytesOf(Its.Ask(Request(Talk::DropPlace, Jpeg))).value_or(QByteArray());
}

QByteArray ReadingLocked::SvgOf(const QByteArray& Emf) {
    Reading Its(*this, mMetafiles, Emf);
    return Its.BytesOf(Its.Ask(Request(Talk::Convert, Emf))).value_or(QByteArray());
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
