// Encoders for tests of what stands around one: what they are given they write down in plain words,
// so that a test sees what came, in which order and on which thread.
#pragma once

#include <gtest/gtest.h>

#include <condition_variable>
#include <mutex>
#include <stdexcept>

#include "harness/TempFolder.h"
#include "show/film/FilmCodec.h"
#include "show/film/FilmWriter.h"
#include "support/Fault.h"
#include "support/files/modHostFiles.h"

namespace neb::test {

using namespace Qt::StringLiterals;

inline QImage Frame(int Side, QRgb Colour) {
    QImage Picture(Side, Side, QImage::Format_RGB32);
    Picture.fill(Colour);
    return Picture;
}

// Of square frames.
inline FilmSetup SquareFilm(int Side) {
    FilmSetup Setup;
    Setup.Width = Setup.Height = Side;
    return Setup;
}

// What a test sees of its encoder, and does with it; on any thread.
class Watched {
  public:
    void Note(const QString& What) {
        const std::lock_guard Lock(mMutex);
        mNoted << What;
        mChanged.notify_all();
    }
    QStringList Noted() {
        const std::lock_guard Lock(mMutex);
        return mNoted;
    }
    // The encoder stands still until it may go on.
    void Hold() {
        const std::lock_guard Lock(mMutex);
        mHeld = true;
    }
    void GoOn() {
        const std::lock_guard Lock(mMutex);
        mHeld = false;
        mChanged.notify_all();
    }
    void Pass() {
        std::unique_lock Lock(mMutex);
        mIsInside = true;
        mChanged.notify_all();
        mChanged.wait(Lock, [this] { return !mHeld; });
        mIsInside = false;
    }
    void AwaitInside() {
        std::unique_lock Lock(mMutex);
        mChanged.wait(Lock, [this] { return mIsInside; });
    }

  private:
    std::mutex mMutex;
    std::condition_variable mChanged;
    QStringList mNoted;
    bool mHeld = false, mIsInside = false;
};

// Each frame and each sound is a line; at the end the first line is written anew with what the
// whole came to, as an encoder does that puts the table of contents to the front.
class PlainEncoder : public FilmEncoder {
  public:
    PlainEncoder(FilmSink Sink, std::shared_ptr<Watched> Seen)
        : mSink(std::move(Sink)), mSeen(std::move(Seen)) {
        Put("----------\n");
    }
    ~PlainEncoder() override { mSeen->Note(u"gone"_s); }

    void AddFrame(const std::uint8_t* Pixels, std::ptrdiff_t, int Count) override {
        mSeen->Pass();
        mSeen->Note(u"frame %1 x%2"_s.arg(Pixels[0]).arg(Count));
        Put("frame " + std::to_string(Pixels[0]) + " x" + std::to_string(Count) + "\n");
    }
    void AddSound(const float* Samples, std::size_t Frames) override {
        mSeen->Note(u"sound %1"_s.arg(Frames));
        Put("sound " + std::to_string(Samples[0]) + " x" + std::to_string(Frames) + "\n");
    }
    void Finish() override {
        mSeen->Pass();
        std::uint8_t First[5];
        if (mSink.Read(11, First, 5) != 5) throw std::runtime_error("Nothing can be read back.");
        if (!mSink.Seek(0)) throw std::runtime_error("There is no way back.");
        Put(std::string(First, First + 5));
    }

  private:
    void Put(const std::string& Text) {
        if (!mSink.Write(reinterpret_cast<const std::uint8_t*>(Text.data()), Text.size()))
            throw std::runtime_error("The encoder could not write.");
    }
    FilmSink mSink;
    std::shared_ptr<Watched> mSeen;
};

class FilmRig : public ::testing::Test {
  protected:
    FilmRig() {
        SetFilmEncoderMaker([Watcher = Seen](const FilmSetup&, FilmSink Sink) {
            return std::make_unique<PlainEncoder>(std::move(Sink), Watcher);
        });
    }
    ~FilmRig() override {
        Seen->GoOn();
        SetHostWatcher({});
        SetFilmEncoderMaker({});
    }
    QStringList Names() const {
        QStringList All;
        for (const DirEntry& Each : ListDir(Dir.Path())) All << Each.Name;
        return All;
    }

    const harness::TempFolder Dir;
    const QString Path = Dir / u"Holiday.mp4"_s;
    const std::shared_ptr<Watched> Seen = std::make_shared<Watched>();
};

// What it throws; a text that no fault has where it does not.
template <class Work>
Fault FaultOf(const Work& Do) {
    try {
        Do();
    } catch (const Fault& Problem) {
        return Problem;
    }
    return Fault(u"nothing was thrown"_s);
}

}  // namespace neb::test
