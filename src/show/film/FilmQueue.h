// What waits for a film's encoder, bounded by its bytes: frames of any size keep the processors
// busy, and none fills the memory. Between the thread that draws and the one that encodes. Used by
// FilmWriter alone.
#pragma once

#include <QImage>
#include <chrono>
#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <optional>
#include <vector>

#include "support/Fault.h"

namespace neb {

struct FilmPiece {
    QImage Frame;  // shared with whoever drew it; null: sound, or the end where there is none
    int Count = 1;
    std::vector<float> Sound;
};

class FilmQueue {
  public:
    // MostJoined: so many frames that are the same picture become one piece.
    explicit FilmQueue(int MostJoined) : mMostJoined(MostJoined) {}

    // Waits while it is full, and calls Meanwhile again and again, which may throw; a single piece
    // may be larger than all that it takes otherwise. Throws the fault of the other side.
    void Add(FilmPiece Piece, const std::function<void()>& Meanwhile = {});
    // For the other side: waits for the next piece; nothing when it is given up.
    std::optional<FilmPiece> Take();
    void Fail(const Fault& Problem);  // of the other side, unless it was given up
    void GiveUp();
    void End();  // of the other side, whatever came of it
    // Whether that has ended, after at most so long. Throws its fault.
    bool HasEnded(std::chrono::milliseconds Patience);

  private:
    bool Joins(const FilmPiece& Piece);
    bool HasRoomFor(qint64 Bytes) const;
    void AwaitRoom(std::unique_lock<std::mutex>& Lock, qint64 Bytes,
                   const std::function<void()>& Meanwhile);
    void Drop();
    void ThrowFault() const;

    const int mMostJoined;
    std::mutex mMutex;
    std::condition_variable mChanged;
    std::deque<FilmPiece> mPieces;
    qint64 mBytes = 0;
    bool mGivenUp = false, mEnded = false;
    std::optional<Fault> mProblem;
};

}  // namespace neb
