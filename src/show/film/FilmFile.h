// Where the bytes of a film go: to the disk, beside its place until all of it is there, with an eye
// on the room that is left; or nowhere, when they are only counted. Used by FilmWriter alone.
#pragma once

#include <atomic>
#include <mutex>
#include <optional>

#include "films/FilmEncoder.h"
#include "support/Fault.h"
#include "support/files/FileInTheMaking.h"

namespace neb {

class FilmTarget {
  public:
    virtual ~FilmTarget() = default;
    // The captions beside it, ".srt", which take their name together with the film. Throws Fault.
    virtual void PutBeside(const QByteArray& Subtitles) = 0;
    // For the encoder, which must not outlive this.
    virtual FilmSink Sink() = 0;
    // All that was written is a film from now on. False where it was given up. Throws Fault.
    virtual bool Finish() = 0;
    // Nothing is left, and nothing more is taken. On any thread; waits for a disk that hangs.
    virtual void GiveUp() = 0;
    // Why the sink refused; nothing where it did not.
    virtual std::optional<Fault> Problem() const = 0;
    qint64 Length() const { return mLength; }  // bytes so far; on any thread

  protected:
    void NoteLength(qint64 Length) { mLength = std::max(mLength.load(), Length); }

  private:
    std::atomic<qint64> mLength = 0;
};

// Bytes of so many free ones that a film leaves to others, for a full disk is in everybody's way: a
// quarter, and no more than this. Room below 0: not known.
constexpr qint64 MostToLeave = 64 << 20;
qint64 RoomToLeave(qint64 Room);

// The room on the disk of a file that is to be; negative where that is not known. Throws Fault
// where less than Reserve is left, or the folder has gone.
qint64 RoomForFile(const QString& Path, qint64 Reserve);

class FilmFile : public FilmTarget {
  public:
    // Throws Fault with this path, as all of it does.
    explicit FilmFile(const QString& Path);
    FilmFile(const QString& Path, qint64 Reserve);

    void PutBeside(const QByteArray& Subtitles) override;
    FilmSink Sink() override;
    bool Finish() override;
    void GiveUp() override;
    bool IsGivenUp() const { return mGivenUp; }
    std::optional<Fault> Problem() const override;

  private:
    bool Try(const std::function<void(FileInTheMaking&)>& Step);
    void Write(FileInTheMaking& File, const char* Bytes, qint64 Count);

    const QString mPath;
    const qint64 mReserve;
    std::atomic<bool> mGivenUp = false;
    mutable std::mutex mOneByOne;
    std::optional<FileInTheMaking> mFile, mSubtitles;
    std::optional<Fault> mProblem;
    qint64 mUnwatched = 0;  // bytes since the room was looked at
};

class FilmCount : public FilmTarget {
  public:
    void PutBeside(const QByteArray&) override {}
    FilmSink Sink() override;
    bool Finish() override { return true; }
    void GiveUp() override {}
    std::optional<Fault> Problem() const override { return std::nullopt; }

  private:
    qint64 mPlace = 0;
};

}  // namespace neb
