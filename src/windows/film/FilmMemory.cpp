#include "windows/film/FilmMemory.h"

#include <QRegularExpression>
#include <QStandardPaths>
#include <algorithm>

#include "settings/SettingKeys.h"
#include "settings/modNEBSlideShow.h"
#include "support/files/modHostFiles.h"
#include "support/modFUFL.h"
#include "support/modText.h"
#include "windows/frame/modWindowState.h"

namespace neb {
namespace {

constexpr qsizetype LongestName = 100;  // letters; with those of four bytes a name still fits

QString UsersFilms() {
    for (const auto Place : {QStandardPaths::MoviesLocation, QStandardPaths::DocumentsLocation})
        if (const QString Dir = QStandardPaths::writableLocation(Place); FolderExists(Dir))
            return WithSeparator(Dir);
    return WithSeparator(QStandardPaths::writableLocation(QStandardPaths::HomeLocation));
}

QString LastFolder(const clsSettings& Settings) {
    const QString Kept = ReadText(Settings, Setting::FilmFolder);
    return !Kept.isEmpty() && FolderExists(Kept) ? WithSeparator(Kept) : UsersFilms();
}

QString SizeText(QSize Size) {
    return QStringLiteral("%1x%2").arg(Size.width()).arg(Size.height());
}

// What cannot be a size is refused later, with all that is typed.
QSize SizeIn(const QString& Text, QSize Else) {
    static const QRegularExpression Sides(QStringLiteral("^(\\d{1,4})x(\\d{1,4})$"));
    const auto Found = Sides.match(Text);
    return Found.hasMatch() ? QSize(Found.captured(1).toInt(), Found.captured(2).toInt()) : Else;
}

int RateIn(const clsSettings& Settings, int Else) {
    const int Kept = ReadNumber(Settings, Setting::FilmRate);
    return std::ranges::find(FilmRates(), Kept) == FilmRates().end() ? Else : Kept;
}

}  // namespace

FilmOrder RememberedFilm() {
    const clsSettings Settings = OpenMemory();
    FilmOrder Order;
    Order.Path = LastFolder(Settings);
    Order.Format = FormatOfFilm(ReadText(Settings, Setting::FilmFormat)).value_or(Order.Format);
    Order.Size = SizeIn(ReadText(Settings, Setting::FilmSize), Order.Size);
    Order.Rate = RateIn(Settings, Order.Rate);
    Order.Quality = ReadNumber(Settings, Setting::FilmQuality);
    Order.CaptionsInPicture = ReadFlag(Settings, Setting::FilmCaptions);
    Order.SubtitleTrack = ReadFlag(Settings, Setting::FilmSubtitleTrack);
    Order.SubtitleFile = ReadFlag(Settings, Setting::FilmSubtitleFile);
    return Order;
}

void RememberFilm(const FilmOrder& Order) {
    clsSettings Settings = OpenMemory();
    const QString Folder = GetFilePath(Order.Path);
    if (!Folder.isEmpty() && !Folder.contains(u'\n'))  // a setting is one line
        PutText(Settings, Setting::FilmFolder, Folder);
    PutText(Settings, Setting::FilmFormat, QLatin1String(RowOf(Order.Format).Ending));
    PutText(Settings, Setting::FilmSize, SizeText(Order.Size));
    PutNumber(Settings, Setting::FilmRate, Order.Rate);
    PutNumber(Settings, Setting::FilmQuality, Order.Quality);
    PutFlag(Settings, Setting::FilmCaptions, Order.CaptionsInPicture);
    PutFlag(Settings, Setting::FilmSubtitleTrack, Order.SubtitleTrack);
    PutFlag(Settings, Setting::FilmSubtitleFile, Order.SubtitleFile);
    SaveMemory(Settings);
}

const FilmFormatRow& RowOf(FilmFormat Format) {
    return *std::ranges::find(FilmFormats(), Format, &FilmFormatRow::Format);
}

QString FilmNameOf(const QString& ShowName) {
    static const QRegularExpression NotInNames(QStringLiteral("[\\x00-\\x1F/\\\\:*?\"<>|]+"));
    static const QRegularExpression AtTheEnds(QStringLiteral("^[\\s.]+|[\\s.]+$"));
    const QString Name = ValidText(ShowName).replace(NotInNames, QStringLiteral(" ")).simplified();
    const QString Fit = Name.left(LongestName).remove(AtTheEnds);
    return Fit.isEmpty() ? QStringLiteral("Film") : Fit;
}

QString WithFilmEnding(const QString& Path, FilmFormat Format) {
    static const QRegularExpression OfLetters(QStringLiteral("\\.[A-Za-z][A-Za-z0-9]{1,3}$"));
    const QString Name = GetFileName(Path), Ending = QLatin1String(RowOf(Format).Ending);
    if (Name.isEmpty()) return Path;
    const auto Its = FormatOfFilm(Name);
    if (Its == Format) return Path;
    if (Its) return Path.chopped(qsizetype(std::strlen(RowOf(*Its).Ending))) + Ending;
    return OfLetters.match(Name).hasMatch() ? Path : Path + Ending;
}

}  // namespace neb
