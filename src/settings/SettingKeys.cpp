#include "settings/SettingKeys.h"

#include <algorithm>
#include <limits>

#include "settings/clsSettings.h"
#include "support/FlagText.h"
#include "support/modNumbers.h"

namespace neb {
namespace {

using S = Setting;
using T = SettingType;

constexpr char Levels[] = "H M L";  // intense, normal, lite
constexpr char EffectNumbers[] = "000-127";
constexpr char Columns[] = "0-3";
constexpr char LastTen[] = "0-9";
constexpr char Find[] = "Find Graphics Window";
// The windows that remember their size, their place and whether they were maximised.
constexpr char Windows[] =
    "frmNEBSlideShow frmSlideDBM frmPicturePopup frmPrintPreview frmSlideShowDBM frmImportFilter "
    "frmQuickShow frmSlideMgrBulk frmRehearsal frmAlbumView frmSlideShowView frmHelp frmDiscFolder "
    "frmAlbumImport frmAlbumExport frmSlideShowImport frmSlideShowExport frmPreferences "
    "frmCheckPictures frmRestore frmDirSelect frmNewAlbumWzd1 frmPrintAlbum frmPrintSlideShow "
    "frmPrintSlide frmPrintSheet frmAlbumRename frmAlbumDelete frmGetObjectName frmInputBox "
    "frmSoundRecorder frmFilm";

constexpr double AboveZero = std::numeric_limits<double>::denorm_min();
constexpr std::nullopt_t Any = std::nullopt;
constexpr SettingFallback None;

// Sizes of 0 are none: the window then has its own (WindowMemory), or stays as it is.
// clang-format off
constexpr SettingRow Table[] = {
    // key            section              name               members        type        preferences        show              least, most     unmeasured  who reads it
    {S::DBPath,          "General",           "DBPath",          "",            T::Text,    None,              None,             Any, Any,       nullptr, "every start; written by the user alone"},
    {S::ActiveAlbum,     "",                  "ActiveAlbum",     "",            T::Number,  {"0", "0"},        {"0"},            0, Any,         nullptr, "preferences, Play Slide Show; a show: whether it goes on where it was left"},
    {S::ActiveSlideShow, "",                  "ActiveSlideShow", "",            T::Number,  {"0", "0"},        {"0"},            0, Any,         nullptr, "as ActiveAlbum"},
    {S::NextSlideSeq,    "",                  "NextSlideSeq",    "",            T::Number,  {"0", "0"},        {"0"},            0, Any,         nullptr, "preferences, a show; written at the end of each show as well"},
    {S::Timeout,         "",                  "Timeout",         "",            T::Seconds, {"20", "20"},      {"10", "10"},     AboveZero, Any, "10",    "preferences, a show; the first start, which measures when there is none"},
    {S::UseEffectLevel,  "",                  "UseEffectLevel",  "",            T::Flag,    {"True"},          {"True"},         Any, Any,       nullptr, "preferences, a show"},
    {S::MaxEffectLevel,  "",                  "MaxEffectLevel",  "",            T::Number,  {"1", "1"},        {"1", "0"},       0, 3,           "0",     "preferences, a show; a show that has just shown preferences reads as they do"},
    {S::Delay,           "",                  "Delay*",          Levels,        T::Number,  {"1000", "1000"},  {"1000", "1000"}, 1, Any,         "1000",  "preferences, a show"},
    {S::Step,            "",                  "Step*",           Levels,        T::Number,  {"25", "20"},      {"25", "20"},     1, Any,         "33",    "preferences, a show"},
    {S::TestTimeout,     "",                  "Timeout*",        Levels,        T::Seconds, None,              None,             Any, Any,       "10",    "nobody"},
    {S::AvgTime,         "",                  "AvgTime*",        Levels,        T::Seconds, None,              None,             Any, Any,       "N/A",   "nobody"},
    {S::EffectSelected,  "Effect Selections", "Effect.*",        EffectNumbers, T::Flag,    None,              None,             Any, Any,       nullptr, "preferences, a show; number 0 is no effect, but kept"},
    {S::ShowScreen,      "",                  "ShowScreen",      "",            T::Text,    None,              None,             Any, Any,       nullptr, "preferences, a show, the speed test; absent: the program's own screen"},
    {S::KeepPictures,    "Pictures",          "KeepAtMost",      "",            T::Choice,  {"1024x768"},      {"1024x768"},     Any, Any,       nullptr, "all windows that take pictures; a new installation has Screen"},
    {S::KeepPlace,       "Pictures",          "KeepPlace",       "",            T::Flag,    {"True"},          {"True"},         Any, Any,       nullptr, "all windows that take pictures"},
    {S::ExtraFormats,    "Pictures",          "ExtraFormats",    "",            T::Flag,    {"True"},          {"True"},         Any, Any,       nullptr, "every start"},
    {S::PictureOrder,    "Pictures",          "Order",           "",            T::Choice,  {"Name"},          {"Name"},         Any, Any,       nullptr, "the import windows"},
    {S::PictureCaptions, "Pictures",          "Captions",        "",            T::Flag,    {"True"},          {"True"},         Any, Any,       nullptr, "the import windows"},
    {S::GalleryPictures, "Home",              "Pictures",        "",            T::Number,  {"160", "160"},    {"160"},          72, 512,       nullptr, "an album that is looked through"},
    {S::WindowHeight,    "*",                 "Height",          Windows,       T::Twips,   None,              None,             Any, Any,       nullptr, "RestoreWindow"},
    {S::WindowWidth,     "*",                 "Width",           Windows,       T::Twips,   None,              None,             Any, Any,       nullptr, "RestoreWindow"},
    {S::WindowState,     "*",                 "WindowState",     Windows,       T::Number,  None,              None,             Any, Any,       nullptr, "RestoreWindow"},
    {S::WindowLeft,      "*",                 "Left",            Windows,       T::Twips,   None,              None,             Any, Any,       nullptr, "ShowAsChild, RestoreWindow"},
    {S::WindowTop,       "*",                 "Top",             Windows,       T::Twips,   None,              None,             Any, Any,       nullptr, "ShowAsChild, RestoreWindow"},
    {S::FindState,       Find,                "WindowState",     "",            T::Number,  None,              None,             Any, Any,       nullptr, "Find Graphics"},
    {S::FindWidth,       Find,                "WindowWidth",     "",            T::Twips,   None,              None,             Any, Any,       nullptr, "Find Graphics"},
    {S::FindHeight,      Find,                "WindowHeight",    "",            T::Twips,   None,              None,             Any, Any,       nullptr, "Find Graphics"},
    {S::FindLeft,        Find,                "WindowLeft",      "",            T::Twips,   None,              None,             Any, Any,       nullptr, "Find Graphics"},
    {S::FindTop,         Find,                "WindowTop",       "",            T::Twips,   None,              None,             Any, Any,       nullptr, "Find Graphics"},
    {S::FindColumn,      Find,                "Col*.Width",      Columns,       T::Twips,   None,              None,             Any, Any,       nullptr, "Find Graphics"},
    {S::SoundFolder,     "Sounds",            "Folder",          "",            T::Text,    None,              None,             Any, Any,       nullptr, "the slide show manager"},
    {S::FilmFolder,      "Film",              "Folder",          "",            T::Text,    None,              None,             Any, Any,       nullptr, "the window of films"},
    {S::FilmFormat,      "Film",              "Format",          "",            T::Choice,  {".mp4"},          {".mp4"},         Any, Any,       nullptr, "the window of films"},
    {S::FilmSize,        "Film",              "Size",            "",            T::Choice,  {"1920x1080"},     {"1920x1080"},    Any, Any,       nullptr, "the window of films"},
    {S::FilmRate,        "Film",              "Rate",            "",            T::Number,  {"30"},            {"30"},           Any, Any,       nullptr, "the window of films"},
    {S::FilmQuality,     "Film",              "Quality",         "",            T::Number,  {"75", "75"},      {"75"},           1, 100,         nullptr, "the window of films"},
    {S::FilmCaptions,    "Film",              "CaptionsInPicture", "",            T::Flag,    {"True"},          {"True"},         Any, Any,       nullptr, "the window of films"},
    {S::FilmSubtitleTrack, "Film",              "SubtitleTrack",   "",            T::Flag,    {"False"},         {"False"},        Any, Any,       nullptr, "the window of films"},
    {S::FilmSubtitleFile, "Film",              "SubtitleFile",    "",            T::Flag,    {"False"},         {"False"},        Any, Any,       nullptr, "the window of films"},
    {S::HelpZoom,        "frmHelp",           "Zoom",            "",            T::Number,  {"0", "0"},        {"0"},            -4, 12,          nullptr, "the help: by how much its letters are larger"},
    {S::RecentAlbums,      "Desktop",         "RecentAlbums",    "",            T::Flag,    {"True"},          {"True"},         Any, Any,       nullptr, "the main window; written by the user alone"},
    {S::TransferDirectory, "Transfer",        "Directory*",      LastTen,       T::Text,    None,              None,             Any, Any,       nullptr, "the transfer windows"},
};
// clang-format on

QString Filled(const char* Pattern, const QString& Member) {
    return QString::fromLatin1(Pattern).replace(u'*', Member);
}

QStringList RunOfNumbers(const QString& First, const QString& Last) {
    QStringList All;
    for (int Each = First.toInt(); Each <= Last.toInt(); ++Each)
        All << QString::number(Each).rightJustified(First.size(), u'0');
    return All;
}

const SettingFallback& FallbackFor(Setting Which, SettingReader Reader) {
    const SettingRow& Row = RowOf(Which);
    return Reader == SettingReader::Show ? Row.InShow : Row.InPreferences;
}

bool IsWithin(const SettingRow& Row, double Value) {
    return Value >= Row.Least.value_or(Value) && Value <= Row.Most.value_or(Value);
}

double Corrected(double Value, Setting Which, SettingReader Reader) {
    const char* Refused = FallbackFor(Which, Reader).Refused;
    return Refused && !IsWithin(RowOf(Which), Value) ? Val(QString::fromLatin1(Refused)) : Value;
}

}  // namespace

std::span<const SettingRow> SettingRows() {
    return Table;
}

const SettingRow& RowOf(Setting Which) {
    return *std::find_if(std::begin(Table), std::end(Table),
                         [&](const SettingRow& Row) { return Row.Which == Which; });
}

QStringList MembersOf(const SettingRow& Row) {
    const QString Text = QString::fromLatin1(Row.Members);
    const QStringList Ends = Text.split(u'-');
    return Ends.size() == 2 ? RunOfNumbers(Ends[0], Ends[1]) : Text.split(u' ');
}

QString SectionOf(const SettingRow& Row, const QString& Member) {
    return Filled(Row.Section, Member);
}

QString KeyOf(const SettingRow& Row, const QString& Member) {
    return Filled(Row.Key, Member);
}

bool HasSetting(const clsSettings& Settings, const SettingAt& At) {
    const SettingRow& Row = RowOf(At.Which);
    return !Settings.GetValue(SectionOf(Row, At.Of), KeyOf(Row, At.Of), {}).isEmpty();
}

QString ReadText(const clsSettings& Settings, const SettingAt& At, SettingReader Reader) {
    const SettingRow& Row = RowOf(At.Which);
    return Settings.GetValue(SectionOf(Row, At.Of), KeyOf(Row, At.Of),
                             QLatin1String(FallbackFor(At.Which, Reader).Missing));
}

double ReadDecimal(const clsSettings& Settings, const SettingAt& At, SettingReader Reader) {
    return Corrected(Val(ReadText(Settings, At, Reader)), At.Which, Reader);
}

std::int32_t ReadNumber(const clsSettings& Settings, const SettingAt& At, SettingReader Reader) {
    const std::int32_t Rounded = CInt(Val(ReadText(Settings, At, Reader)));
    return CInt(Corrected(Rounded, At.Which, Reader));
}

bool ReadFlag(const clsSettings& Settings, const SettingAt& At) {
    return FlagValue(ReadText(Settings, At));
}

void PutText(clsSettings& Settings, const SettingAt& At, const QString& Value) {
    const SettingRow& Row = RowOf(At.Which);
    Settings.PutValue(SectionOf(Row, At.Of), KeyOf(Row, At.Of), Value);
}

void PutDecimal(clsSettings& Settings, const SettingAt& At, double Value) {
    PutText(Settings, At, ShortestDecimal(Value));
}

void PutNumber(clsSettings& Settings, const SettingAt& At, std::int32_t Value) {
    PutText(Settings, At, QString::number(Value));
}

void PutFlag(clsSettings& Settings, const SettingAt& At, bool Value) {
    PutText(Settings, At, FlagText(Value));
}

}  // namespace neb
