#include "pictures/workers/OneReading.h"

#include <atomic>
#include <chrono>
#include <future>
#include <system_error>

#include "pictures/formats/DecodeHost.h"
#include "pictures/formats/PictureFaults.h"
#include "pictures/formats/PictureFormats.h"
#include "support/ReasonOf.h"

namespace neb {
namespace {

// No decoder asks as often.
constexpr int MostQuestions = 64;
// Beside what a file of no length may become when it is turned or told of.
constexpr qint64 LeastAnswer = 16 << 20;

std::int64_t NextTicket() {
    static std::atomic<std::int64_t> Last = 0;
    return ++Last;
}

QSize SizeIn(const LockedMessage& Said, size_t At) {
    const auto Side = [&](size_t I) {
        const std::int64_t Length = Said.Numbers[I];
        return Length >= 0 && Length <= INT_MAX ? static_cast<int>(Length) : 0;
    };
    return {Side(At), Side(At + 1)};
}

bool IsPossible(QSize Size) {
    return !Size.isEmpty() && Size.width() <= LongestSide && Size.height() <= LongestSide;
}

quint32 KnownNumber(qint64 Number) {
    for (const quint32 Each : {FaultUnknownPicture, FaultEndsEarly, FaultTooLarge})
        if (Number == Each) return Each;
    return FaultDamagedPicture;
}

// It comes into boxes and lists, which would take markup for such.
QString PlainSentence(QByteArrayView Bytes) {
    QString Text = QString::fromUtf8(Bytes);
    for (QChar& Each : Text)
        if (!Each.isPrint() || Each == u'<' || Each == u'&') Each = u' ';
    return Text.trimmed();
}

// Whoever draws such a picture relies on its fourth bytes. Written: where it lies, or null.
void TakePart(const LockedProcess& Process, const uchar* Written, uchar* Pixels, qint64 Begin,
              qint64 End) {
    constexpr qint64 Piece = 1 << 18;  // is still at hand when it is gone over
    for (qint64 At = Begin; At < End; At += Piece) {
        const qint64 Length = std::min(Piece, End - At);
        if (!Written) Process.Take(At, Pixels + At, Length);
        const QRgb* const From = reinterpret_cast<const QRgb*>((Written ? Written : Pixels) + At);
        QRgb* const To = reinterpret_cast<QRgb*>(Pixels + At);
        for (qint64 I = 0; I < Length / 4; ++I) To[I] = From[I] | 0xFF000000;
    }
}

// Half of one that is waited for as long is taken by another processor.
void TakePixels(const LockedProcess& Process, QImage& Picture) {
    constexpr qint64 Large = 24 << 20;
    uchar* const Pixels = Picture.bits();
    const qint64 All = Picture.sizeInBytes(), Half = All > Large ? All / 8 * 4 : 0;
    const uchar* const Written = Process.Written(0, All);
    const auto TakeFirst = [&] { TakePart(Process, Written, Pixels, 0, Half); };
    std::future<void> Beside;
    try {
        if (Half > 0) Beside = std::async(std::launch::async, TakeFirst);
    } catch (const std::system_error&) {  // no thread to be had
        TakeFirst();
    }
    TakePart(Process, Written, Pixels, Half, All);
    if (Beside.valid()) Beside.get();
}

}  // namespace

LockedAllowance ReadingCosts::For(qint64 File, qint64 Asked) const {
    const double Seconds = HeaderSeconds + double(File + Asked) / BytesASecond;
    return {HeaderMemory + 3 * File + 2 * Asked, Seconds, Seconds * WallTimes};
}

OneReading::OneReading(LockedProcess& Process, const ReadingCosts& Costs, const Task& Its)
    : mProcess(Process),
      mCosts(Costs),
      mTask(Its),
      mTicket(Its.What == Talk::Convert ? 0 : NextTicket()) {
    mProcess.Put(0, mTask.File);
    const auto& [A, B, C] = mTask.More;
    Say(LockedMessage(mTask.What, {mTask.File.size(), A, B, C}));
}

OneReading::~OneReading() {
    LetGo();
    if (!mIsAnswered) mProcess.EndBecause(LockedEnd::Nonsense);
}

// A damaged file may have more pixels than its header has asked memory for, but not so many that it
// should have asked.
bool OneReading::HasAskedFor(QSize Size) const {
    const qint64 Most = std::max(mMostAsked, mCosts.HeaderMemory);
    return PixelCount(Size) * 4 <= std::min(Most, mProcess.OutBytes());
}

DecodedPicture OneReading::Picture() {
    const LockedMessage Said = Answer();
    const QSize Size = SizeIn(Said, 0), Full = SizeIn(Said, 2);
    if (!Said.Is(Talk::Picture) || !IsPossible(Size) || !IsPossible(Full) ||
        Size.boundedTo(Full) != Size || !HasAskedFor(Size))
        EndBecause(LockedEnd::Nonsense);
    QImage Picture = mAhead.PictureOf(Size);
    if (Picture.isNull()) ThrowTooLarge(Size);
    TakePixels(mProcess, Picture);
    return {std::move(Picture), Full};
}

std::optional<QByteArray> OneReading::Bytes() {
    const LockedMessage Said = Answer();
    if (Said.Is(Talk::Nothing)) return std::nullopt;
    if (!Said.Is(Talk::Bytes)) EndBecause(LockedEnd::Nonsense);
    const bool IsSvg = mTask.What == Talk::Convert;
    return FromOut(Said.Numbers[0], IsSvg ? LargestSvg : 4 * mTask.File.size() + LeastAnswer);
}

LockedMessage OneReading::Answer() {
    for (;;) {
        const LockedMessage Said = Next();
        if (Said.Is(Talk::Problem)) ThrowProblem(Said);
        mIsAnswered = Said.Is(Talk::Picture) || Said.Is(Talk::Bytes) || Said.Is(Talk::Nothing);
        if (mIsAnswered) return Said;
        if (++mQuestions > MostQuestions || !IsServed(Said)) EndBecause(LockedEnd::Nonsense);
    }
}

// All its answers together have the time of one: who asks again and again wins nothing by it. What
// we do ourselves, or wait for memory, does not count.
LockedMessage OneReading::Next() {
    using Clock = std::chrono::steady_clock;
    LockedAllowance Left = mCosts.For(mTask.File.size(), mMostAsked);
    Left.Seconds -= mWaited;
    if (Left.Seconds <= 0) EndBecause(LockedEnd::TooLong);
    mProcess.Allow(Left);
    const auto Began = Clock::now();
    const auto Said = mProcess.Receive();
    mWaited += std::chrono::duration<double>(Clock::now() - Began).count();
    if (!Said) throw ReaderEnded{mProcess.End()};
    if (Said->Numbers[TicketAt] != mTicket) EndBecause(LockedEnd::Nonsense);
    return *Said;
}

bool OneReading::IsServed(const LockedMessage& Said) {
    const bool Decodes = mTask.What == Talk::Decode;
    if (!Decodes && mTask.What != Talk::Turn) return false;
    if (Said.Is(Talk::AskMemory)) return GiveMemory(SizeIn(Said, 0), Said.Numbers[2]);
    if (Said.Is(Talk::Release) && mHeld) return LetGo(), true;
    if (!Decodes) return false;
    if (Said.Is(Talk::AskNeeded)) return TellNeeded(SizeIn(Said, 0));
    return Said.Is(Talk::AskSvg) && GiveSvg(Said.Numbers[0]);
}

// Of what is too large no caller knows how much he wants: it is refused when it asks for memory.
bool OneReading::TellNeeded(QSize Full) {
    if (!mTask.Needed || Full.isEmpty()) return false;
    const QSize Least = IsPossible(Full) ? mTask.Needed(Full) : Full;
    Say(LockedMessage(Talk::Needed, {Least.width(), Least.height()}));
    return true;
}

// One piece at a time: two that wait for each other's memory would wait for ever.
bool OneReading::GiveMemory(QSize Size, qint64 Bytes) {
    if (mHeld || Bytes < 0) return false;
    try {
        AcquireMemory(Size, Bytes);
    } catch (const Fault&) {
        Say(LockedMessage(Talk::Refused));
        return true;
    }
    mHeld = Bytes;
    mMostAsked = std::max(mMostAsked, Bytes);
    mProcess.Allow(mCosts.For(mTask.File.size(), mMostAsked));  // before it goes on
    Say(LockedMessage(Talk::Granted));
    // who says how much he needs gets less than all, and how much is not known yet
    const bool WantsAll = mTask.What == Talk::Decode && !mTask.Needed;
    if (WantsAll && IsPossible(Size)) mAhead.Take(PixelCount(Size) * 4, Bytes);
    return true;
}

void OneReading::LetGo() {
    if (mHeld) ReleaseMemory(*mHeld);
    mHeld.reset();
}

// Once: each help has a process and a time of its own.
bool OneReading::GiveSvg(qint64 Length) {
    if (!mTask.SvgOf || std::exchange(mIsHelped, true)) return false;
    const QByteArray Emf = FromOut(Length, LargestPictureFile);
    const qint64 At = mTask.File.size();
    try {
        const QByteArray Svg = mTask.SvgOf(Emf);
        if (Svg.size() > LargestSvg) ThrowTooLarge();
        mMostAsked = std::max<qint64>(mMostAsked, Svg.size());
        mProcess.Put(At, Svg);
        Say(LockedMessage(Talk::Svg, {At, Svg.size()}));
    } catch (const Fault& Reason) {
        const QByteArray Text = Reason.What().left(MostSentence / 4).toUtf8();
        mProcess.Put(At, Text);
        Say(LockedMessage(Talk::Problem, {Reason.Number(), Text.size(), At}));
    }
    return true;
}

void OneReading::Say(const LockedMessage& Message) {
    mProcess.Send(WithTicket(Message, mTicket));
}

QByteArray OneReading::FromOut(qint64 Length, qint64 Most) {
    if (Length < 0 || Length > std::min(Most, mProcess.OutBytes())) EndBecause(LockedEnd::Nonsense);
    QByteArray Made(Length, Qt::Uninitialized);
    mProcess.Take(0, Made.data(), Length);
    return Made;
}

void OneReading::ThrowProblem(const LockedMessage& Said) {
    const QString Sentence = PlainSentence(FromOut(Said.Numbers[1], MostSentence));
    mIsAnswered = true;
    if (Sentence.isEmpty()) ThrowDamaged();
    throw Fault(InUsersLanguage(Sentence), {}, KnownNumber(Said.Numbers[0]));
}

void OneReading::EndBecause(LockedEnd How) {
    mProcess.EndBecause(How);
    throw ReaderEnded{How};
}

}  // namespace neb
