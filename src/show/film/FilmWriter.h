// A film on its way to the disk: encodes on a thread of its own, beside whoever draws the frames,
// and writes to a file of another name, which takes the film's name when all of it is there. Used
// by FilmMaker and, without a file, by FilmEstimate.
#pragma once

#include <QImage>
#include <memory>

#include "show/film/FilmOrder.h"

namespace neb {

class LeftThread;

class FilmWriter {
  public:
    // Begins the file. Throws Fault where it cannot be made, or the encoders are not there.
    FilmWriter(const QString& Path, const FilmSetup& Setup);
    // Into nowhere: what it would come to is counted.
    explicit FilmWriter(const FilmSetup& Setup);
    // What is not finished is given up, and its file goes.
    ~FilmWriter();
    FilmWriter(const FilmWriter&) = delete;
    FilmWriter& operator=(const FilmWriter&) = delete;

    // The captions as a file beside the film, which comes with it: ".srt" in the place of its
    // ending. Before the first frame. Throws Fault where it cannot be made.
    void PutBeside(const QByteArray& Subtitles);
    // Both wait while too much lies before the encoder, and throw Fault when it or the disk has
    // failed: nothing but the end may follow then.
    // Format_RGB32, of the film's size; seen for so many frames.
    void AddFrame(const QImage& Frame, int Count = 1);
    // Pairs of samples, -1 to 1, FilmSoundRate a second. Sound and frames keep within a second of
    // each other.
    void AddSound(std::vector<float> Samples);
    // Waits for the encoder; the film is on the disk, under its name. GoesOn is asked all the
    // while; where it says no the answer may be false: the film was given up, and nothing of it is
    // left, or goes as soon as a disk that hangs lets it.
    bool Finish(const std::function<bool()>& GoesOn = {});
    // Called again and again while AddFrame and AddSound wait: on a disk that hangs they wait for
    // ever. What it throws comes out of them, and nothing but the end may follow.
    void SetMeanwhile(std::function<void()> Do) { mMeanwhile = std::move(Do); }
    qint64 BytesWritten() const;  // so far; on any thread

  private:
    struct Work;
    void Begin();
    void GiveUp();

    std::shared_ptr<Work> mWork;  // with the thread
    std::unique_ptr<LeftThread> mThread;
    std::function<void()> mMeanwhile;
};

// The film's own encoder, from the module; loaded once. Throws Fault where that is not there.
std::unique_ptr<FilmEncoder> MakeFilmEncoder(const FilmSetup& Setup, FilmSink Sink);

}  // namespace neb
