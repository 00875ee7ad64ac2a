#include "show/film/FilmPlan.h"

#include "pictures/ImgX.h"
#include "pictures/JpegWriter.h"
#include "pictures/PictureKeeping.h"
#include "pictures/PictureOfFile.h"
#include "settings/modNEBSlideShow.h"
#include "support/Fault.h"
#include "support/Texts.h"

namespace neb {
namespace {

constexpr QSize CoverSize(600, 600);
constexpr int CoverQuality = 85;
constexpr int ThumbnailSelector = 4;  // the mean of the covered area: nothing of it flickers

std::string Utf8(const QString& Text) {
    return Text.toStdString();
}

double EndOf(const RehearsalCue& Cue) {
    return Cue.At + Cue.Seconds;
}

std::vector<FilmChapter> ChaptersOf(const FilmPlan& Plan) {
    std::vector<FilmChapter> Chapters;
    for (const RehearsalCue& Cue : Plan.Log.Cues) {
        const QString Title = Cue.Caption.trimmed();
        Chapters.push_back(
            {Cue.At, EndOf(Cue), Utf8(Title.isEmpty() ? tr("Slide %1").arg(Cue.SlideSeq) : Title)});
    }
    return Chapters;
}

// A film without a cover is one all the same.
std::vector<std::uint8_t> CoverOf(const FilmPlan& Plan) {
    if (Plan.Log.Cues.empty()) return {};
    try {
        ImgX Picture;
        Picture.LoadAtLeast(Plan.Log.Cues.front().Picture, CoverSize);
        const QSize Fitted = FitSize(Picture.FullSize(), CoverSize);
        Picture.Resize(Fitted.width(), Fitted.height(), ThumbnailSelector);
        const QByteArray Jpeg = EncodeJpeg(Picture.Picture(), CoverQuality);
        return {Jpeg.begin(), Jpeg.end()};
    } catch (const Fault&) {
        return {};
    }
}

QByteArray TimeOf(double Seconds) {
    const qint64 Ms = qRound64(Seconds * 1000);
    return QString::asprintf("%02lld:%02lld:%02lld,%03lld", Ms / 3600000, Ms / 60000 % 60,
                             Ms / 1000 % 60, Ms % 1000)
        .toUtf8();
}

// An empty line would end the entry.
QByteArray LinesOf(const std::string& Text) {
    QByteArray Lines;
    const QByteArray Even =
        QByteArray::fromStdString(Text).replace("\r\n", "\n").replace('\r', '\n');
    for (const QByteArray& Line : Even.split('\n'))
        if (!Line.trimmed().isEmpty()) Lines += Line + "\r\n";
    return Lines;
}

bool CanBeRead(const QString& Path) {
    try {
        PictureOfFile(Path);
        return true;
    } catch (const Fault&) {
        return false;
    }
}

}  // namespace

FilmPlan PlanFilm(clsDBEngine& Copy, const FilmOrder& Order,
                  const std::function<bool(std::int32_t)>& GoesOn) {
    RehearsalOptions Options;
    Options.GoesOn = GoesOn;
    Options.First = Order.First;
    Options.Last = Order.Last;
    // Without the stand-in a damaged picture ends the show, and the film has no more chapters.
    if (!CanBeRead(AppPath() + QStringLiteral("NoSlide.bmp"))) Options.CanReadPicture = CanBeRead;
    FilmPlan Plan;
    const QSize Captions = Order.CaptionsInPicture ? Order.Size : QSize();
    Plan.Sheet = MakeRehearsalSheet(Copy, Captions, Options, &Plan.Log);
    return Plan;
}

FilmSetup SetupOf(const FilmPlan& Plan, const FilmOrder& Order) {
    FilmSetup Setup;
    Setup.Format = Order.Format;
    Setup.Width = Order.Size.width();
    Setup.Height = Order.Size.height();
    Setup.Rate = Order.Rate;
    Setup.Quality = Order.Quality;
    Setup.Threads = Order.Threads;
    Setup.Title = Utf8(Plan.Sheet.Show);
    Setup.Date = Utf8(Order.Date.toString(Qt::ISODate));
    if (Order.Format != FilmFormat::WebM) Setup.Cover = CoverOf(Plan);
    Setup.Chapters = ChaptersOf(Plan);
    if (Order.SubtitleTrack) Setup.Subtitles = SubtitlesOf(Plan);
    return Setup;
}

std::vector<FilmSubtitle> SubtitlesOf(const FilmPlan& Plan) {
    std::vector<FilmSubtitle> Subtitles;
    for (const RehearsalCue& Cue : Plan.Log.Cues)
        if (!Cue.Caption.trimmed().isEmpty())
            Subtitles.push_back({Cue.At, EndOf(Cue), Utf8(Cue.Caption)});
    return Subtitles;
}

QByteArray SubtitleText(const std::vector<FilmSubtitle>& Subtitles) {
    QByteArray Text;
    int Number = 0;
    for (const FilmSubtitle& Each : Subtitles) {
        const QByteArray Lines = LinesOf(Each.Text);
        if (Lines.isEmpty()) continue;
        Text += QByteArray::number(++Number) + "\r\n" + TimeOf(Each.At) + " --> " +
                TimeOf(Each.Until) + "\r\n" + Lines + "\r\n";
    }
    return Text;
}

}  // namespace neb
