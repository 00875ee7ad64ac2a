#include "show/film/FilmFile.h"

#include <algorithm>
#include <cstring>

#include "show/film/FilmOrder.h"
#include "support/Grouped.h"
#include "support/Texts.h"
#include "support/files/modHostFiles.h"
#include "support/files/modHostFilesCopy.h"
#include "support/modFUFL.h"

namespace neb {
namespace {

constexpr qint64 BetweenLooks = 4 << 20;  // bytes; the room is looked at so often

QString FolderOf(const QString& Path) {
    const QString Dir = GetFilePath(ResolvePath(Path));
    return Dir.isEmpty() ? QStringLiteral(".") : Dir;
}

}  // namespace

qint64 RoomToLeave(qint64 Room) {
    return Room < 0 ? 0 : std::min(MostToLeave, Room / 4);
}

qint64 RoomForFile(const QString& Path, qint64 Reserve) {
    const QString Dir = FolderOf(Path);
    const qint64 Room = FreeSpace(Dir);
    if (Room < 0 && !FolderExists(Dir))
        throw Fault(tr("The folder of the file is not there any more."), Path);
    if (Room >= 0 && Room < Reserve)
        throw Fault(tr("The disk is full: %1 are left on it, and the film leaves %2 "
                       "free.")
                        .arg(ShortSize(Room), ShortSize(Reserve)),
                    Path);
    return Room;
}

FilmFile::FilmFile(const QString& Path) : FilmFile(Path, RoomToLeave(FreeSpace(FolderOf(Path)))) {}

FilmFile::FilmFile(const QString& Path, qint64 Reserve) : mPath(Path), mReserve(Reserve) {
    mFile.emplace(Path);
    RoomForFile(Path, Reserve);
}

void FilmFile::PutBeside(const QByteArray& Subtitles) {
    const std::lock_guard Lock(mOneByOne);
    mSubtitles.emplace(SubtitlePath(mPath));
    mSubtitles->Write(Subtitles.constData(), Subtitles.size());
}

// The first fault is the one that tells why.
bool FilmFile::Try(const std::function<void(FileInTheMaking&)>& Step) {
    const std::lock_guard Lock(mOneByOne);
    if (!mFile || mProblem || mGivenUp) return false;
    try {
        Step(*mFile);
        NoteLength(mFile->Length());
        return true;
    } catch (const Fault& Problem) {
        mProblem = Problem;
        return false;
    }
}

void FilmFile::Write(FileInTheMaking& File, const char* Bytes, qint64 Count) {
    mUnwatched += Count;
    if (mUnwatched >= BetweenLooks) RoomForFile(mPath, mReserve + Count);
    if (mUnwatched >= BetweenLooks) mUnwatched = 0;
    File.Write(Bytes, Count);
}

FilmSink FilmFile::Sink() {
    FilmSink Into;
    Into.Write = [this](const std::uint8_t* Bytes, std::size_t Count) {
        return Try([&](FileInTheMaking& File) {
            Write(File, reinterpret_cast<const char*>(Bytes), static_cast<qint64>(Count));
        });
    };
    Into.Seek = [this](std::int64_t Place) {
        return Try([&](FileInTheMaking& File) { File.Seek(Place); });
    };
    Into.Read = [this](std::int64_t Place, std::uint8_t* To, std::size_t Count) {
        std::ptrdiff_t Done = -1;
        Try([&](FileInTheMaking& File) {
            Done = File.Read(Place, reinterpret_cast<char*>(To), static_cast<qint64>(Count));
        });
        return Done;
    };
    return Into;
}

bool FilmFile::Finish() {
    const std::lock_guard Lock(mOneByOne);
    if (mProblem) throw *mProblem;
    if (!mFile) return false;
    mFile->Sync();
    if (mSubtitles) mSubtitles->Sync();
    if (mGivenUp) return false;  // bringing gigabytes to the disk takes its time
    mFile->TakeName();
    if (mSubtitles) mSubtitles->TakeName();
    mFile.reset();
    mSubtitles.reset();
    return true;
}

void FilmFile::GiveUp() {
    mGivenUp = true;
    const std::lock_guard Lock(mOneByOne);
    mFile.reset();
    mSubtitles.reset();
}

std::optional<Fault> FilmFile::Problem() const {
    const std::lock_guard Lock(mOneByOne);
    return mProblem;
}

// What is read back is only copied to another place: any bytes do.
FilmSink FilmCount::Sink() {
    FilmSink Into;
    Into.Write = [this](const std::uint8_t*, std::size_t Count) {
        mPlace += static_cast<qint64>(Count);
        NoteLength(mPlace);
        return true;
    };
    Into.Seek = [this](std::int64_t Place) {
        mPlace = Place;
        return true;
    };
    Into.Read = [this](std::int64_t Place, std::uint8_t* To, std::size_t Count) {
        const auto Left =
            std::clamp<std::int64_t>(Length() - Place, 0, static_cast<std::int64_t>(Count));
        std::memset(To, 0, static_cast<std::size_t>(Left));
        return static_cast<std::ptrdiff_t>(Left);
    };
    return Into;
}

}  // namespace neb
