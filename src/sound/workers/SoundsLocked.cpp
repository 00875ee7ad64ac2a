#include "sound/workers/SoundsLocked.h"

#include <algorithm>
#include <chrono>
#include <cstring>
#include <utility>
#include <vector>

#include "sound/decoding/SoundDecoderCounted.h"
#include "sound/decoding/SoundFormat.h"
#include "sound/workers/SoundFile.h"
#include "sound/workers/SoundTalk.h"
#include "support/Fault.h"
#include "support/ReasonOf.h"
#include "support/Texts.h"

namespace neb {
namespace {

// However many sounds are open, the next one is opened at once; of those that wait for work a few
// are kept.
constexpr int MostOpen = 10000, MostIdle = 4;
constexpr std::chrono::seconds Rest(30);

// What a file may cost: to be opened or searched, and to be played on for a moment.
constexpr qint64 BaseMemory = 96 << 20, MostMemory = 1 << 30;
constexpr double BaseSeconds = 10, BytesASecond = 2 << 20, WallTimes = 3;
// The file's bytes that one request may ask for, over and over again.
constexpr qint64 BaseAsked = 256 << 20, TimesAsked = 32;
// A disk or a network that takes longer for a piece takes it from nobody's time.
constexpr std::chrono::milliseconds LongReading(100);

constexpr int MostRate = 1000000, MostChannels = 8;
constexpr qint64 MostFrames = qint64(1) << 40;

LockedAllowance AllowanceFor(qint64 Length, double Patience) {
    const double Seconds = Patience * BaseSeconds + double(Length) / BytesASecond;
    return {std::min(BaseMemory + 3 * Length, MostMemory), Seconds, Seconds * WallTimes};
}

QString SentenceOf(LockedEnd How) {
    if (How == LockedEnd::TooLong)
        return tr("The sound cannot be played: it takes too long to be read.");
    if (How == LockedEnd::Forbidden)
        return tr("The sound cannot be played: it tried to do what no sound may.");
    return tr("The sound cannot be played: it brings its reader down.");
}

// What a decoder says may be anything.
QString PlainSentence(const QByteArray& Bytes) {
    QString Text = QString::fromUtf8(Bytes);
    for (QChar& Each : Text)
        if (!Each.isPrint() || Each == u'<' || Each == u'&') Each = u' ';
    return Text;
}

}  // namespace

// A file and the process that reads it.
class SoundsLocked::Line {
  public:
    Line(SoundsLocked& Own, const QString& Path, LockedPool::Wanted Which)
        : mOwn(Own),
          mPath(Checked(Own, Path)),
          mFile(Path),
          mAllowance(AllowanceFor(mFile.Length(), Own.mPatience)),
          mLent(Own.mPool, Which) {}

    qint64 Length() const { return mFile.Length(); }
    [[noreturn]] void Throw(const QString& Sentence) const { throw Fault(Sentence, mPath); }
    [[noreturn]] void ThrowEnded() const { Throw(SentenceOf(mProcess.End())); }

    // Whether another process may fare better: this one was ended by somebody else, or had read
    // other files before, one of which may have spoilt it. Time is not spent twice.
    bool IsWorthAnother() const {
        if (mProcess.End() == LockedEnd::Killed) return true;
        return mProcess.End() != LockedEnd::TooLong && !mLent.IsFresh();
    }
    void SetOpen() { mIsOpen = true; }  // from now on there is no second try
    // Nothing when the process has ended.
    std::optional<LockedMessage> Ask(const LockedMessage& Request) {
        if (mProcess.End() != LockedEnd::None) return {};
        mAsked = 0;
        mProcess.Allow(mAllowance);
        mProcess.Send(Request);
        for (;;) {
            const auto Said = mProcess.Receive();
            if (!Said) Note();
            if (!Said || !Said->Is(SoundTalk::AskBytes)) return Said;
            if (!Give(Said->Numbers[0], Said->Numbers[1], Said->Numbers[2]))
                return EndAsNonsense(), std::nullopt;
        }
    }
    // So many bytes from a place of what it has written.
    const uchar* Written(qint64 At, qint64 Length, qint64 Most) {
        if (At < 0 || Length < 0 || Length > Most || At > mProcess.OutBytes() - Length)
            return EndAsNonsense(), nullptr;
        return mProcess.Out() + At;
    }
    QByteArray Text(qint64 At, qint64 Length, qint64 Most) {
        const uchar* const From = Written(At, Length, Most);
        return From ? QByteArray(reinterpret_cast<const char*>(From), Length) : QByteArray();
    }
    void EndAsNonsense() {
        if (mProcess.End() != LockedEnd::None) return;
        mProcess.EndBecause(LockedEnd::Nonsense);
        Note();
    }

  private:
    void Note() const {
        if (mIsOpen || !IsWorthAnother()) mOwn.mCrashes.Note(mPath);
    }
    static const QString& Checked(const SoundsLocked& Own, const QString& Path) {
        if (!Own.mCrashes.IsGivenUp(Path)) return Path;
        throw Fault(tr("The sound has brought its reader down three times and is not "
                       "tried again before the program is started anew."),
                    Path);
    }
    bool Give(qint64 At, qint64 Count, qint64 To) {
        mAsked += std::max(Count, LeastPiece);
        if (At < 0 || Count <= 0 || Count > MostPiece || To < 0 ||
            To > mProcess.InBytes() - Count || mAsked > BaseAsked + TimesAsked * Length())
            return false;
        const auto Start = std::chrono::steady_clock::now();
        const qint64 Read = mFile.ReadAt(At, reinterpret_cast<char*>(mProcess.In() + To), Count);
        if (std::chrono::steady_clock::now() - Start > LongReading) mProcess.Allow(mAllowance);
        mProcess.Send(LockedMessage(SoundTalk::Bytes, {Read}));
        return true;
    }

    SoundsLocked& mOwn;
    const QString mPath;
    SoundFile mFile;
    const LockedAllowance mAllowance;
    LockedPool::Lent mLent;
    LockedProcess& mProcess = *mLent;
    bool mIsOpen = false;
    qint64 mAsked = 0;  // bytes, since the request
};

// Its samples come in blocks, decoded in the very steps in which they are asked for: what a damaged
// file gives depends on these.
class SoundsLocked::Sound : public CountedSound {
  public:
    Sound(std::unique_ptr<Line> Its, const LockedMessage& Opened) : mLine(std::move(Its)) {
        mRate = static_cast<int>(Opened.Numbers[0]);
        mChannels = static_cast<int>(Opened.Numbers[1]);
        mFrames = Opened.Numbers[2];
    }

  protected:
    qint64 Decode(float* Into, qint64 MaxFrames) override {
        if (mTaken == mHeld && !Fetch(MaxFrames)) return 0;
        const qint64 Count = std::min(MaxFrames, mHeld - mTaken);
        std::copy_n(mBlock.data() + mTaken * mChannels, Count * mChannels, Into);
        mTaken += Count;
        return Count;
    }
    // With the next samples that are asked for.
    bool MoveTo(qint64 Frame) override {
        mNext = mGoTo = Frame;
        mHeld = mTaken = 0;
        mSteps = 1;
        mEnds = false;
        return true;
    }

  private:
    bool Fetch(qint64 Asked) {
        if (std::exchange(mEnds, false)) return false;
        const qint64 Step = std::min(Asked, SoundOutBytes / FrameBytes());
        const qint64 Block =
            std::min({Step * mSteps, SoundOutBytes / FrameBytes(), mFrames - mNext});
        const auto Said =
            mLine->Ask(LockedMessage(SoundTalk::Read, {std::exchange(mGoTo, -1), Block, Step}));
        const qint64 Count = Said ? Taken(*Said, Block) : 0;
        if (Step * mSteps * 2 <= std::min(MostBlock, SoundOutBytes / FrameBytes())) mSteps *= 2;
        mEnds = Count < Block;
        mNext += Count;
        mHeld = Count;
        mTaken = 0;
        return Count > 0 || (mEnds = false);
    }
    qint64 Taken(const LockedMessage& Said, qint64 Most) {
        const qint64 Count = Said.Numbers[0];
        if (!Said.Is(SoundTalk::Samples) || Count < 0 || Count > Most)
            return mLine->EndAsNonsense(), 0;
        const uchar* const From = mLine->Written(0, Count * FrameBytes(), SoundOutBytes);
        if (!From) return 0;
        mBlock.resize(static_cast<size_t>(Count * mChannels));
        std::memcpy(mBlock.data(), From, static_cast<size_t>(Count * FrameBytes()));
        return Count;
    }
    qint64 FrameBytes() const { return mChannels * static_cast<qint64>(sizeof(float)); }

    const std::unique_ptr<Line> mLine;
    std::vector<float> mBlock;
    qint64 mTaken = 0, mHeld = 0;  // frames of the block
    qint64 mNext = 0;              // the frame behind it
    qint64 mGoTo = -1;             // where the process has yet to go
    qint64 mSteps = 1;             // to be decoded at a time: little at first, so that it begins
    bool mEnds = false;            // the block was shorter than asked for
};

namespace {

bool IsSound(const LockedMessage& Said) {
    const auto& [Rate, Channels, Frames, D, E, F] = Said.Numbers;
    return Said.Is(SoundTalk::Opened) && Rate >= kLeastRate && Rate <= MostRate && Channels >= 1 &&
           Channels <= MostChannels && Frames >= 0 && Frames <= MostFrames;
}

}  // namespace

SoundsLocked::SoundsLocked() : SoundsLocked(LockedProgramPath(QStringLiteral("neb-sounds")), "") {}

SoundsLocked::SoundsLocked(const QString& ProgramPath, const QByteArray& Role, double Patience)
    : mPatience(Patience),
      mPool({ProgramPath, Role, SoundInBytes, SoundOutBytes}, MostOpen, Rest, MostIdle) {}

// The line to a process that has answered; Take says whether the answer makes sense. A second
// process where another may fare better. Throws Fault where there is none.
template <class Taker>
std::unique_ptr<SoundsLocked::Line> SoundsLocked::Asked(const QString& Path, SoundTalk What,
                                                        Taker Take) {
    for (const auto Which : {LockedPool::Wanted::Any, LockedPool::Wanted::Fresh}) {
        auto Its = std::make_unique<Line>(*this, Path, Which);
        const auto Said = Its->Ask(LockedMessage(What, {Its->Length()}));
        if (Said && Take(*Its, *Said)) return Its->SetOpen(), std::move(Its);
        Its->EndAsNonsense();
        if (Which == LockedPool::Wanted::Fresh || !Its->IsWorthAnother()) Its->ThrowEnded();
    }
    return nullptr;
}

std::unique_ptr<SoundDecoder> SoundsLocked::Open(const QString& Path) {
    LockedMessage Opened;
    QString Refusal;
    auto Its = Asked(Path, SoundTalk::Open, [&](Line& By, const LockedMessage& Said) {
        Opened = Said;
        if (Said.Is(SoundTalk::Problem))
            Refusal = PlainSentence(By.Text(0, Said.Numbers[0], MostSoundSentence));
        return IsSound(Said) || !Refusal.isEmpty();
    });
    if (!Refusal.isEmpty()) Its->Throw(InUsersLanguage(Refusal));
    mPool.WarmUp();
    return std::make_unique<Sound>(std::move(Its), Opened);
}

SongTags SoundsLocked::Tags(const QString& Path) {
    SongTags Tags;
    Asked(Path, SoundTalk::Tags, [&](Line& By, const LockedMessage& Said) {
        const auto [Title, Artist] = std::pair(Said.Numbers[0], Said.Numbers[1]);
        if (Said.Is(SoundTalk::Problem)) return Title >= 0 && Title <= MostSoundSentence;
        if (!Said.Is(SoundTalk::TagTexts) || !By.Written(0, Title, MostTagText) ||
            !By.Written(Title, Artist, MostTagText))
            return false;
        Tags = {TagText(By.Text(0, Title, MostTagText)),
                TagText(By.Text(Title, Artist, MostTagText))};
        return true;
    });
    return Tags;
}

// Never ended: its processes end with the program, whatever threads still do.
SoundsLocked& TheLockedSounds() {
    static auto* const Its = new SoundsLocked;
    return *Its;
}

}  // namespace neb
