#include "show/film/FilmQueue.h"

namespace neb {
namespace {

constexpr qint64 MostBytes = 20 << 20;  // two frames of 1920 by 1080, and sound
constexpr std::chrono::milliseconds BetweenCalls(50);

qint64 BytesOf(const FilmPiece& Piece) {
    return Piece.Frame.sizeInBytes() + static_cast<qint64>(Piece.Sound.size() * sizeof(float));
}

}  // namespace

void FilmQueue::Add(FilmPiece Piece, const std::function<void()>& Meanwhile) {
    const qint64 Bytes = BytesOf(Piece);
    std::unique_lock Lock(mMutex);
    if (Joins(Piece)) return;
    AwaitRoom(Lock, Bytes, Meanwhile);
    ThrowFault();
    mBytes += Bytes;
    mPieces.push_back(std::move(Piece));
    mChanged.notify_all();
}

// On a disk that hangs there never will be any.
void FilmQueue::AwaitRoom(std::unique_lock<std::mutex>& Lock, qint64 Bytes,
                          const std::function<void()>& Meanwhile) {
    const auto Goes = [&] { return mProblem || mGivenUp || HasRoomFor(Bytes); };
    while (!mChanged.wait_for(Lock, BetweenCalls, Goes)) {
        Lock.unlock();
        if (Meanwhile) Meanwhile();
        Lock.lock();
    }
}

// Sound in between keeps them apart, and with it within reach of its frames.
bool FilmQueue::Joins(const FilmPiece& Piece) {
    if (mPieces.empty() || Piece.Frame.isNull()) return false;
    FilmPiece& Last = mPieces.back();
    if (Last.Frame.cacheKey() != Piece.Frame.cacheKey()) return false;
    if (Last.Count + Piece.Count > mMostJoined) return false;
    Last.Count += Piece.Count;
    return true;
}

bool FilmQueue::HasRoomFor(qint64 Bytes) const {
    return mPieces.empty() || mBytes + Bytes <= MostBytes;
}

std::optional<FilmPiece> FilmQueue::Take() {
    std::unique_lock Lock(mMutex);
    mChanged.wait(Lock, [this] { return mGivenUp || !mPieces.empty(); });
    if (mGivenUp) return std::nullopt;
    FilmPiece Next = std::move(mPieces.front());
    mPieces.pop_front();
    mBytes -= BytesOf(Next);
    mChanged.notify_all();
    return Next;
}

void FilmQueue::Drop() {
    mPieces.clear();
    mBytes = 0;
    mChanged.notify_all();
}

void FilmQueue::Fail(const Fault& Problem) {
    const std::lock_guard Lock(mMutex);
    if (!mGivenUp) mProblem = Problem;
    Drop();
}

void FilmQueue::GiveUp() {
    const std::lock_guard Lock(mMutex);
    mGivenUp = true;
    Drop();
}

void FilmQueue::End() {
    const std::lock_guard Lock(mMutex);
    mEnded = true;
    mChanged.notify_all();
}

bool FilmQueue::HasEnded(std::chrono::milliseconds Patience) {
    std::unique_lock Lock(mMutex);
    mChanged.wait_for(Lock, Patience, [this] { return mEnded; });
    if (mEnded) ThrowFault();
    return mEnded;
}

void FilmQueue::ThrowFault() const {
    if (mProblem) throw *mProblem;
}

}  // namespace neb
