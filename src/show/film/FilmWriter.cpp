#include "show/film/FilmWriter.h"

#include "show/film/FilmFile.h"
#include "show/film/FilmQueue.h"
#include "support/ReasonOf.h"
#include "support/Texts.h"
#include "support/work/LargeBlocks.h"
#include "support/work/LeftThread.h"
#include "support/work/ProcessEnd.h"

namespace neb {
namespace {

using namespace std::chrono_literals;

constexpr auto BetweenQuestions = 50ms;
constexpr auto Moments = 1000ms;

// Sound and frames are to keep within a second of each other.
int MostJoined(const FilmSetup& Setup) {
    return std::max(1, Setup.Rate / 2);
}

}  // namespace

// Shared with the thread, which may be left to itself on a disk that hangs.
struct FilmWriter::Work {
    Work(const QString& ThePath, const FilmSetup& Setup, std::unique_ptr<FilmTarget> Into)
        : Path(ThePath),
          Size(Setup.Width, Setup.Height),
          Target(std::move(Into)),
          Queue(MostJoined(Setup)),
          Encoder(MakeEncoder(Setup)) {}

    // The disk's own fault is why the encoder has failed.
    Fault FaultOf(const std::exception& Problem) const {
        if (const auto OfDisk = Target->Problem()) return *OfDisk;
        if (const auto* Told = dynamic_cast<const Fault*>(&Problem);
            Told && !Told->File().isEmpty())
            return *Told;
        return Fault(SentenceOf(Problem), Path);
    }
    std::unique_ptr<FilmEncoder> MakeEncoder(const FilmSetup& Setup) {
        try {
            return MakeFilmEncoder(Setup, Target->Sink());
        } catch (const std::exception& Problem) {
            throw FaultOf(Problem);
        }
    }

    void Run() {
        try {
            while (auto Piece = Queue.Take())
                if (!Encode(*Piece)) break;
        } catch (const std::exception& Problem) {
            Queue.Fail(FaultOf(Problem));
        }
        Encoder.reset();
        Target->GiveUp();  // what is not finished
        Queue.End();
    }
    // Whether more is to come.
    bool Encode(const FilmPiece& Piece) {
        if (!Piece.Frame.isNull())
            Encoder->AddFrame(Piece.Frame.constBits(), Piece.Frame.bytesPerLine(), Piece.Count);
        else if (!Piece.Sound.empty())
            Encoder->AddSound(Piece.Sound.data(), Piece.Sound.size() / 2);
        else
            Finish();
        return !Piece.Frame.isNull() || !Piece.Sound.empty();
    }
    void Finish() {
        Encoder->Finish();
        Encoder.reset();
        IsMade = Target->Finish();
    }

    const QString Path;
    const QSize Size;
    const std::unique_ptr<FilmTarget> Target;
    FilmQueue Queue;
    std::unique_ptr<FilmEncoder> Encoder;  // once the thread has begun, its own
    std::atomic<bool> IsMade = false;
};

FilmWriter::FilmWriter(const QString& Path, const FilmSetup& Setup)
    : mWork(std::make_shared<Work>(Path, Setup, std::make_unique<FilmFile>(Path))) {
    Begin();
}

FilmWriter::FilmWriter(const FilmSetup& Setup)
    : mWork(std::make_shared<Work>(QString(), Setup, std::make_unique<FilmCount>())) {
    Begin();
}

void FilmWriter::Begin() {
    GiveLargeBlocksBack();
    mThread = std::make_unique<LeftThread>(
        [Mine = mWork, Counted = std::make_shared<WorkOnThread>()] { Mine->Run(); });
}

// The encoder may be busy for long with what it has, and the disk may hang: the file goes at once
// where the disk lets it, and nobody waits for more than moments.
FilmWriter::~FilmWriter() {
    if (!mWork->IsMade) GiveUp();
}

void FilmWriter::GiveUp() {
    mWork->Queue.GiveUp();
    LeftThread([Mine = mWork] { Mine->Target->GiveUp(); });
}

void FilmWriter::PutBeside(const QByteArray& Subtitles) {
    mWork->Target->PutBeside(Subtitles);
}

void FilmWriter::AddFrame(const QImage& Frame, int Count) {
    if (Frame.size() != mWork->Size || Frame.format() != QImage::Format_RGB32)
        throw Fault(tr("A frame is of another kind than the film."), mWork->Path);
    if (Count > 0) mWork->Queue.Add({Frame, Count, {}}, mMeanwhile);
}

void FilmWriter::AddSound(std::vector<float> Samples) {
    if (!Samples.empty()) mWork->Queue.Add({{}, 1, std::move(Samples)}, mMeanwhile);
}

bool FilmWriter::Finish(const std::function<bool()>& GoesOn) {
    mWork->Queue.Add({}, mMeanwhile);
    while (!mWork->Queue.HasEnded(BetweenQuestions)) {
        if (!GoesOn || GoesOn()) continue;
        GiveUp();
        // it may have had its name a moment before
        mWork->Queue.HasEnded(Moments);
        break;
    }
    return mWork->IsMade;
}

qint64 FilmWriter::BytesWritten() const {
    return mWork->Target->Length();
}

}  // namespace neb
