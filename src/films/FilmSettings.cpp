#include "films/FilmSettings.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <thread>

#include "films/Mp4Tracks.h"

extern "C" {
#include <libavutil/cpu.h>
}

namespace neb {

namespace {

struct FormatRow {
    FilmFormat Format;
    FilmFileRow File;
    FilmVideoRow Video;
    FilmSoundRow Sound;
};

constexpr FormatRow Formats[] = {
    {FilmFormat::Mp4,
     {"mp4", "movflags=+faststart", CoverPlace::Picture, AV_CODEC_ID_MOV_TEXT, UnmarkSubtitles},
     {"libx264", "preset=veryfast", AV_PIX_FMT_YUV420P, FF_PROFILE_H264_HIGH, 38, 8, 3,
      // the encoder's own name and settings, which stand before the first frame
      "filter_units=remove_types=6", false},
     {"aac", AV_SAMPLE_FMT_FLTP, 44100, 96000, 224000, false}},
    {FilmFormat::WebM,
     {"webm", "default_mode=infer_no_subs", CoverPlace::None, AV_CODEC_ID_WEBVTT, nullptr},
     {"libvpx-vp9", "deadline=realtime:cpu-used=6:row-mt=1:lag-in-frames=0", AV_PIX_FMT_YUV420P,
      FF_PROFILE_VP9_0, 56, 8, 3, nullptr, false},
     {"libopus", AV_SAMPLE_FMT_FLT, 48000, 64000, 192000, true}},
    {FilmFormat::Lossless,
     {"matroska", "default_mode=infer_no_subs", CoverPlace::Attachment, AV_CODEC_ID_SUBRIP,
      nullptr},
     {"ffv1", "level=3:slicecrc=1", AV_PIX_FMT_BGR0, FF_PROFILE_UNKNOWN, 0, 0, 0, nullptr, true},
     {"flac", AV_SAMPLE_FMT_S32, 44100, 0, 0, true}},
};

const FormatRow& RowOf(FilmFormat Format) {
    return *std::ranges::find(Formats, Format, &FormatRow::Format);
}

// What large pictures need, lest they take more memory or time than a machine has: the first row
// that a film has room in.
struct SizeRow {
    std::int64_t Pixels;
    int Slices;   // of FFV1: each on a thread, and each readable when another is damaged
    int Threads;  // at most
    const char* X264;
};
constexpr SizeRow Sizes[] = {
    {352 * 288, 4, 2, "rc-lookahead=10"},
    {1920 * 1200, 4, 8, "rc-lookahead=10"},
    {4096 * 2304, 9, 8, "rc-lookahead=6"},
    {INT64_MAX, 16, 4, "rc-lookahead=2:bf=1:refs=1"},
};

const SizeRow& SizeOf(const FilmSetup& Setup) {
    const std::int64_t Pixels = std::int64_t{Setup.Width} * Setup.Height;
    return *std::ranges::find_if(Sizes, [&](const SizeRow& Row) { return Pixels <= Row.Pixels; });
}

double ByQuality(const FilmSetup& Setup, double Worst, double Best) {
    return std::lerp(Worst, Best, (std::clamp(Setup.Quality, 1, 100) - 1) / 99.0);
}

std::string Crf(const FilmSetup& Setup, double Step) {
    const FilmVideoRow& Video = FilmVideo(Setup.Format);
    const double Crf = ByQuality(Setup, Video.WorstCrf, Video.BestCrf);
    return std::to_string(std::round(Crf / Step) * Step);
}

// What the players of such films read at most: a television of Full HD knows nothing beyond the
// level 4.2, one of Ultra HD nothing beyond 5.2, and a film that could need more bits a second than
// its level has is marked with a higher one, which they refuse. The first row that has the pixels.
struct LevelRow {
    std::int64_t PixelsASecond, Bits;
};
constexpr LevelRow Levels[] = {
    {522'240 * 256, 62'500'000}, {2'073'600 * 256, 300'000'000}, {INT64_MAX, 1'000'000'000}};

std::int64_t MostBits(const FilmSetup& Setup) {
    const std::int64_t Pixels = std::int64_t{Setup.Width} * Setup.Height * Setup.Rate;
    const LevelRow& Level = *std::ranges::find_if(
        Levels, [&](const LevelRow& Row) { return Pixels <= Row.PixelsASecond; });
    return std::clamp<std::int64_t>(Pixels * 4 / 5, 4'000'000, Level.Bits);
}

// The encoder's widest instructions take eight blocks of 16 pixels at once, and what lies behind
// the last of a row with them: the same film would be other bytes each time.
bool OverreadsRows(const FilmSetup& Setup) {
    return (Setup.Width + 15) / 16 % 8 != 0 && av_get_cpu_flags() & AV_CPU_FLAG_AVX512;
}

void AddX264(Av<AVDictionary>& Options, const FilmSetup& Setup) {
    SetOption(Options, "crf", Crf(Setup, 0.1));
    SetOption(Options, "maxrate", std::to_string(MostBits(Setup)));
    SetOption(Options, "bufsize", std::to_string(MostBits(Setup)));
    if (OverreadsRows(Setup)) SetOption(Options, "x264-params", "asm=AVX2,FMA3,BMI1,BMI2,LZCNT");
    Av<AVDictionary> More = ReadOptions(SizeOf(Setup).X264);
    AVDictionary* All = Options.release();
    const int Answer = av_dict_copy(&All, More.get(), 0);
    Options.reset(All);
    Tried(Answer, "The film's settings cannot be kept");
}

void AddVp9(Av<AVDictionary>& Options, const FilmSetup& Setup) {
    SetOption(Options, "crf", Crf(Setup, 1));
    SetOption(Options, "b", "0");
    SetOption(Options, "tile-columns", std::to_string(Setup.Width / 512 > 3 ? 2 : 1));
}

// The encoder has no slices for smaller pictures than these.
bool IsInOnePiece(const FilmSetup& Setup) {
    return Setup.Width <= 352 && Setup.Height <= 288;
}

void AddFfv1(Av<AVDictionary>& Options, const FilmSetup& Setup) {
    const int Slices = IsInOnePiece(Setup) ? 1 : SizeOf(Setup).Slices;
    SetOption(Options, "slices", std::to_string(Slices));
}

struct AddingRow {
    FilmFormat Format;
    void (*Add)(Av<AVDictionary>&, const FilmSetup&);
};
constexpr AddingRow Adding[] = {
    {FilmFormat::Mp4, AddX264}, {FilmFormat::WebM, AddVp9}, {FilmFormat::Lossless, AddFfv1}};

}  // namespace

const FilmFileRow& FilmFile(FilmFormat Format) {
    return RowOf(Format).File;
}
const FilmVideoRow& FilmVideo(FilmFormat Format) {
    return RowOf(Format).Video;
}
const FilmSoundRow& FilmSound(FilmFormat Format) {
    return RowOf(Format).Sound;
}

Av<AVDictionary> ReadOptions(const char* Options) {
    AVDictionary* Read = nullptr;
    const int Answer = av_dict_parse_string(&Read, Options, "=", ":", 0);
    Av<AVDictionary> Kept(Read);
    Tried(Answer, "The film's settings cannot be read");
    return Kept;
}

Av<AVDictionary> VideoOptions(const FilmSetup& Setup) {
    Av<AVDictionary> Options = ReadOptions(FilmVideo(Setup.Format).Options);
    std::ranges::find(Adding, Setup.Format, &AddingRow::Format)->Add(Options, Setup);
    return Options;
}

int VideoThreads(const FilmSetup& Setup) {
    const auto Processors = static_cast<int>(std::thread::hardware_concurrency());
    const int Wanted = Setup.Threads > 0 ? Setup.Threads : Processors;
    return std::clamp(Wanted, 1, SizeOf(Setup).Threads);
}

std::int64_t SoundBits(const FilmSetup& Setup) {
    const FilmSoundRow& Sound = FilmSound(Setup.Format);
    return std::llround(ByQuality(Setup, Sound.BitsAtWorst, Sound.BitsAtBest) / 1000) * 1000;
}

}  // namespace neb
