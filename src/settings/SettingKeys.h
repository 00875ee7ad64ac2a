// The settings file as one table: every key that the program knows, with its section, its type,
// what stands in for a missing or a senseless value, and who reads it. Every reader and writer of
// the file goes through the routines below; a new setting is a new row in SettingKeys.cpp.
#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>
#include <optional>
#include <span>

namespace neb {

class clsSettings;

enum class Setting {
    DBPath,
    ActiveAlbum,
    ActiveSlideShow,
    NextSlideSeq,
    Timeout,
    UseEffectLevel,
    MaxEffectLevel,
    Delay,           // of a level: "H", "M" or "L"
    Step,            // the same
    TestTimeout,     // the same
    AvgTime,         // the same
    EffectSelected,  // of an effect: "000" to "127"
    ShowScreen,      // as show/ScreenChoice reads it
    KeepPictures,    // the size at which pictures are kept at most: "1024x768" and so on, "Screen",
                     // "Own"
    KeepPlace,       // where a picture was taken stays in its file
    ExtraFormats,    // HEIC, AVIF, WebP, GIF and JPEG 2000 count as pictures
    PictureOrder,    // in which pictures are listed before they come in: "Name" or "Taken"
    GalleryPictures,  // how large the pictures of an album are that is looked through, logical
                      // pixels
    PictureCaptions,  // captions come from the pictures' own words
    WindowHeight,     // of a window, by its class name; so the next four
    WindowWidth,
    WindowState,
    WindowLeft,
    WindowTop,
    FindState,
    FindWidth,
    FindHeight,
    FindLeft,
    FindTop,
    FindColumn,    // of a column: "0" to "3"
    SoundFolder,   // in which a sound track was chosen last
    FilmFolder,    // in which a film was made last; so the next ones: how
    FilmFormat,    // the ending: ".mp4" and so on
    FilmSize,      // "1920x1080"
    FilmRate,      // frames a second
    FilmQuality,   // 1 to 100
    FilmCaptions,  // in the picture
    FilmSubtitleTrack,
    FilmSubtitleFile,
    HelpZoom,           // by how many steps the letters of the help are larger
    RecentAlbums,       // albums that are used are told to the desktop
    TransferDirectory,  // the last one first: "0" to "9"
};

// Choice: one of a few words of the program's own. Text: anything, of the user's own words, too.
enum class SettingType { Text, Choice, Number, Seconds, Flag, Twips };

// Some keys have two readers that take different values where the file says nothing useful. Show: a
// running show. Preferences: that window, and everybody else.
enum class SettingReader { Preferences, Show };

struct SettingFallback {
    const char* Missing = "";       // for a key that is not there
    const char* Refused = nullptr;  // for a number out of range; nullptr: it is taken as it stands
};

struct SettingRow {
    Setting Which;
    const char* Section;  // "": the head of the file
    const char* Key;      // a "*" here or in the section stands for one of Members
    const char* Members;  // separated by blanks; "0-3" is a run of numbers
    SettingType Type;
    SettingFallback InPreferences, InShow;
    std::optional<double> Least, Most;  // the range of a number
    const char* Unmeasured;  // written by the first start where the speed test found nothing
    const char* Readers;     // for people
};

std::span<const SettingRow> SettingRows();
const SettingRow& RowOf(Setting Which);
// Of a row with a "*"; else one that is empty.
QStringList MembersOf(const SettingRow& Row);
QString SectionOf(const SettingRow& Row, const QString& Member);
QString KeyOf(const SettingRow& Row, const QString& Member);

// A place in the file: a key, and of a family the member that is meant.
struct SettingAt {
    SettingAt(Setting What, QString Member = {}) : Which(What), Of(std::move(Member)) {}
    Setting Which;
    QString Of;
};

// Whether the file has a value that is not empty.
bool HasSetting(const clsSettings& Settings, const SettingAt& At);
// The stored value, or what its row has for this reader where it is missing or out of range.
QString ReadText(const clsSettings& Settings, const SettingAt& At,
                 SettingReader Reader = SettingReader::Preferences);
double ReadDecimal(const clsSettings& Settings, const SettingAt& At,
                   SettingReader Reader = SettingReader::Preferences);
// The same rounded first, halves to even.
std::int32_t ReadNumber(const clsSettings& Settings, const SettingAt& At,
                        SettingReader Reader = SettingReader::Preferences);
bool ReadFlag(const clsSettings& Settings, const SettingAt& At);

// Put into memory; the caller saves the file when it has put all.
void PutText(clsSettings& Settings, const SettingAt& At, const QString& Value);
void PutDecimal(clsSettings& Settings, const SettingAt& At, double Value);
void PutNumber(clsSettings& Settings, const SettingAt& At, std::int32_t Value);
void PutFlag(clsSettings& Settings, const SettingAt& At, bool Value);

}  // namespace neb
