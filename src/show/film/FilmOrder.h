// What film is to be made of which show: plain values, read from the words of nebctl film or from
// the controls of the film's window, and checked here.
#pragma once

#include <QDate>
#include <QSize>
#include <QString>
#include <optional>
#include <span>

#include "films/FilmEncoder.h"
#include "support/Answer.h"

namespace neb {

struct FilmOrder {
    std::int32_t AlbumID = 0, SlideShowID = 0;
    // Places of the show: as if it were begun at First, up to and with Last; 0: to its end.
    std::int32_t First = 1, Last = 0;
    QString Path;  // of the film, with an ending of FilmFormats()
    FilmFormat Format = FilmFormat::Mp4;
    QSize Size{1920, 1080};  // pixels
    int Rate = 30;           // frames a second, of FilmRates()
    int Quality = 75;        // 1 to 100
    bool CaptionsInPicture =
        true;                    // as the projector draws them; else the picture has all the room
    bool SubtitleTrack = false;  // the captions in the film, for the player to show
    bool SubtitleFile = false;   // the same as a file beside it, with the ending ".srt"
    QDate Date;                  // in the film's own data; invalid: none
    int Threads = 0;             // of the encoder; 0: as many as there are processors
};

struct FilmFormatRow {
    FilmFormat Format;
    const char* Ending;  // ".mp4"
    const char* Name;    // "MP4 (H.264, AAC)", for people
};
std::span<const FilmFormatRow> FilmFormats();
// By a file's ending, whatever its case; nothing for another ending.
std::optional<FilmFormat> FormatOfFilm(const QString& Path);

// Where the captions of a film lie beside it: ".srt" in the place of its ending.
QString SubtitlePath(const QString& Film);

struct FilmSizeRow {
    QSize Size;
    const char* Name;  // "Full HD"
};
std::span<const FilmSizeRow> FilmSizes();  // those that are offered; any even size is fine
std::span<const int> FilmRates();

// Whether sizes, rates and the ending of the path are such as a film can have; else what to say.
Answer<> CheckFilmOrder(const FilmOrder& Order);

}  // namespace neb
