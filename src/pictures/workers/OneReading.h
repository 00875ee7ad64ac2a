// One picture on its way through a locked process: the request, all that the process asks for
// meanwhile, and its answer. Every number that it says may be a lie. Used by ReadingLocked.
#pragma once

#include <QByteArray>
#include <functional>
#include <optional>

#include "pictures/formats/PictureDecoder.h"
#include "pictures/workers/PixelsAhead.h"
#include "pictures/workers/WorkerTalk.h"
#include "support/locked/LockedProcess.h"

namespace neb {

// What a picture may cost. Before it has told how large it is, that of its header; then a time for
// every byte of its file and of the memory that it needs. It may take twice of what it asks for:
// what the decoders of today were seen to take is up to 1.2 times of it, greys of a JPEG the most.
// Three times the file is for libraries that copy it, and for what is written anew of it.
struct ReadingCosts {
    qint64 HeaderMemory = 192LL << 20;  // bytes
    double HeaderSeconds = 15;          // of the processor
    double BytesASecond = 12 << 20;
    double WallTimes = 4;  // so many times as long on the wall, where others are at work, too

    LockedAllowance For(qint64 File, qint64 Asked) const;
    // A metafile takes moments, unless it is made to do harm.
    ReadingCosts OfConverting() const {
        return {600LL << 20, std::min(HeaderSeconds, 3.0), BytesASecond, WallTimes};
    }
};

// Which process reads what, and how much both may say at most.
inline constexpr qint64 LargestSvg = 64LL << 20;

// Thrown when the process has not lived to its answer.
struct ReaderEnded {
    LockedEnd How;
};

class OneReading {
  public:
    struct Task {
        Talk What;
        const QByteArray& File;
        std::array<std::int64_t, 3> More = {};
        NeededSize Needed = {};  // empty: it is not asked for
        // Help with a metafile; empty: there is none for this picture.
        std::function<QByteArray(const QByteArray&)> SvgOf = {};
    };

    // Puts the request. Throws std::bad_alloc where the file finds no room.
    OneReading(LockedProcess& Process, const ReadingCosts& Costs, const Task& Its);
    ~OneReading();  // a process without its answer ends
    OneReading(const OneReading&) = delete;
    OneReading& operator=(const OneReading&) = delete;

    // Each waits for the answer. They throw the Fault that the reader tells of, or ReaderEnded.
    DecodedPicture Picture();
    std::optional<QByteArray> Bytes();

  private:
    bool HasAskedFor(QSize Size) const;
    LockedMessage Answer();
    LockedMessage Next();
    bool IsServed(const LockedMessage& Said);
    bool TellNeeded(QSize Full);
    bool GiveMemory(QSize Size, qint64 Bytes);
    bool GiveSvg(qint64 Length);
    void LetGo();
    void Say(const LockedMessage& Message);
    QByteArray FromOut(qint64 Length, qint64 Most);
    [[noreturn]] void ThrowProblem(const LockedMessage& Said);
    [[noreturn]] void EndBecause(LockedEnd How);

    LockedProcess& mProcess;
    const ReadingCosts& mCosts;
    const Task& mTask;
    const std::int64_t mTicket;
    std::optional<qint64> mHeld;  // bytes of the memory for all decoding
    PixelsAhead mAhead;
    qint64 mMostAsked = 0;
    int mQuestions = 0;
    double mWaited = 0;  // seconds, for the process alone
    bool mIsAnswered = false, mIsHelped = false;
};

}  // namespace neb
