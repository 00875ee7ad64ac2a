// How each format is encoded, in one table: muxers, encoders, their settings, and what a quality
// means to them. Read by every track.
#pragma once

#include "films/Av.h"
#include "films/FilmEncoder.h"
#include "films/FilmNotes.h"

namespace neb {

class FilmOutput;

struct FilmFileRow {
    const char* Muxer;
    const char* Options;  // "name=value:name=value", as of all options here
    CoverPlace Cover;
    AVCodecID Subtitles;
    void (*MendSubtitles)(FilmOutput& Output);  // of the film's end; null: nothing
};

struct FilmVideoRow {
    const char* Codec;
    const char* Options;
    AVPixelFormat Pixels;
    int Profile;
    double WorstCrf, BestCrf;  // at quality 1 and 100
    double KeySeconds;         // from one frame that stands by itself to the next, at most
    const char* Filter;        // of the packets
    bool RepeatsPackets;       // the same frame is the same packet, wherever it stands
};

struct FilmSoundRow {
    const char* Codec;
    AVSampleFormat Samples;
    int Rate;                     // samples a second
    int BitsAtWorst, BitsAtBest;  // a second
    // What the encoder puts before the first sample has times of its own in the file, from 0, and
    // not such before 0.
    bool CountsPriming;
};

const FilmFileRow& FilmFile(FilmFormat Format);
const FilmVideoRow& FilmVideo(FilmFormat Format);
const FilmSoundRow& FilmSound(FilmFormat Format);

// Of the table's text.
Av<AVDictionary> ReadOptions(const char* Options);
// All that the format's encoder is told of the picture beyond its size and rate.
Av<AVDictionary> VideoOptions(const FilmSetup& Setup);
// Threads that the encoder may use, 1 or more.
int VideoThreads(const FilmSetup& Setup);
// Bits a second; 0 where they are no matter of choice.
std::int64_t SoundBits(const FilmSetup& Setup);

}  // namespace neb
