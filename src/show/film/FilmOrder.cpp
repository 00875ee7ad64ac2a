#include "show/film/FilmOrder.h"

#include <algorithm>

#include "support/Texts.h"
#include "support/modFUFL.h"

namespace neb {
namespace {

constexpr FilmFormatRow Formats[] = {
    {FilmFormat::Mp4, ".mp4", QT_TR_NOOP("MP4 (H.264, AAC): televisions, phones, the web")},
    {FilmFormat::WebM, ".webm", QT_TR_NOOP("WebM (VP9, Opus): the web")},
    {FilmFormat::Lossless, ".mkv", QT_TR_NOOP("Matroska, lossless (FFV1, FLAC): archives")},
};

constexpr FilmSizeRow Sizes[] = {
    {{1280, 720}, QT_TR_NOOP("HD")},
    {{1920, 1080}, QT_TR_NOOP("Full HD")},
    {{3840, 2160}, QT_TR_NOOP("Ultra HD")},
    {{1080, 1080}, QT_TR_NOOP("Square")},
    {{1080, 1920}, QT_TR_NOOP("Upright, for a phone")},
};

constexpr int Rates[] = {24, 25, 30, 50, 60};

constexpr int LeastSide = 2, LongestSide = 7680, LongestOther = 4320;

bool IsFilmSize(QSize Size) {
    const auto [Less, More] = std::minmax({Size.width(), Size.height()});
    return Less >= LeastSide && More <= LongestSide && Less <= LongestOther &&
           Size.width() % 2 == 0 && Size.height() % 2 == 0;
}

}  // namespace

std::span<const FilmFormatRow> FilmFormats() {
    return Formats;
}

std::optional<FilmFormat> FormatOfFilm(const QString& Path) {
    for (const FilmFormatRow& Row : Formats)
        if (Path.endsWith(QLatin1String(Row.Ending), Qt::CaseInsensitive)) return Row.Format;
    return std::nullopt;
}

QString SubtitlePath(const QString& Film) {
    return Film.chopped(GetFileExt(GetFileName(Film)).size()) + QStringLiteral(".srt");
}

std::span<const FilmSizeRow> FilmSizes() {
    return Sizes;
}

std::span<const int> FilmRates() {
    return Rates;
}

Answer<> CheckFilmOrder(const FilmOrder& Order) {
    const QString Title = tr("Invalid User Input");
    if (!IsFilmSize(Order.Size))
        return Refuse(tr("A film is 2 by 2 to 7680 by 4320 pixels large, upright too, "
                         "and both are even numbers."),
                      Title);
    if (std::find(std::begin(Rates), std::end(Rates), Order.Rate) == std::end(Rates))
        return Refuse(tr("A film has 24, 25, 30, 50 or 60 frames a second."), Title);
    if (Order.Quality < 1 || Order.Quality > 100)
        return Refuse(tr("The quality is a number from 1 to 100."), Title);
    if (FormatOfFilm(Order.Path) != Order.Format)
        return Refuse(tr("The name of a film ends in .mp4, .webm or .mkv."), Title);
    if (Order.First < 1 || (Order.Last != 0 && Order.Last < Order.First))
        return Refuse(tr("The first slide of the film comes before its last one."), Title);
    return Done();
}

}  // namespace neb
