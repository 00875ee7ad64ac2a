#include "films/FilmMuxer.h"

#include "films/FilmNotes.h"
#include "films/FilmSettings.h"

namespace neb {

namespace {

constexpr const char* CannotWrite = "The film cannot be written";

Av<AVFormatContext> MakeContext(const char* Name) {
    AVFormatContext* Made = nullptr;
    Tried(avformat_alloc_output_context2(&Made, nullptr, Name, nullptr),
          "There is no such kind of film");
    return Av<AVFormatContext>(Made);
}

}  // namespace

FilmMuxer::FilmMuxer(const FilmSetup& Setup, FilmSink Sink)
    : mOutput(std::move(Sink)), mFilm(MakeContext(FilmFile(Setup.Format).Muxer)) {
    mOutput.ConnectTo(*mFilm);
    // the same film is the same bytes, whenever and by whichever version it is made
    mFilm->flags |= AVFMT_FLAG_BITEXACT | AVFMT_FLAG_CUSTOM_IO;
    // What a sound encoder puts before the first sample is told apart in the file; the pictures
    // must not be put off for it.
    mFilm->avoid_negative_ts = AVFMT_AVOID_NEG_TS_DISABLED;
}

AVStream& FilmMuxer::AddStream() {
    AVStream* Stream = avformat_new_stream(mFilm.get(), nullptr);
    if (!Stream) throw std::bad_alloc();
    mPackets.AddTrack();
    return *Stream;
}

bool FilmMuxer::KeepsHeadsApart() const {
    return mFilm->oformat->flags & AVFMT_GLOBALHEADER;
}

void FilmMuxer::Begin(const FilmSetup& Setup) {
    AddNotes(*mFilm, Setup);
    const FilmFileRow& File = FilmFile(Setup.Format);
    const int Cover = AddCover(*this, File.Cover, Setup);
    Av<AVDictionary> Options = ReadOptions(File.Options);
    const int Answer = WithOptions(
        Options, [&](AVDictionary** All) { return avformat_write_header(mFilm.get(), All); });
    mOutput.Check();
    Tried(Answer, CannotWrite);
    mBegun = true;
    if (!Setup.Subtitles.empty()) mMend = File.MendSubtitles;
    if (Cover >= 0) End(Cover);
    WriteReady();
}

void FilmMuxer::Push(Av<AVPacket> Packet) {
    mPackets.Push(std::move(Packet));
    WriteReady();
}

void FilmMuxer::End(int Stream) {
    mPackets.End(Stream);
    WriteReady();
}

void FilmMuxer::WriteReady() {
    while (Av<AVPacket> Packet = mBegun ? mPackets.Next() : nullptr) Write(*Packet);
}

void FilmMuxer::Write(AVPacket& Packet) {
    const AVStream& Stream = *mFilm->streams[Packet.stream_index];
    av_packet_rescale_ts(&Packet, Packet.time_base, Stream.time_base);
    Packet.time_base = Stream.time_base;
    const int Answer = av_write_frame(mFilm.get(), &Packet);
    mOutput.Check();
    Tried(Answer, CannotWrite);
}

void FilmMuxer::Finish() {
    WriteReady();
    const int Answer = av_write_trailer(mFilm.get());
    avio_flush(mFilm->pb);
    mOutput.Check();
    Tried(Answer, CannotWrite);
    if (mMend) mMend(mOutput);
}

}  // namespace neb
