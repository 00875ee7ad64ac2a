#include "films/SubtitleTrack.h"

#include <algorithm>
#include <cmath>
#include <cstring>

#include "films/FilmSettings.h"

namespace neb {

namespace {

constexpr AVRational Milliseconds{1, 1000};

std::string AsItIs(const std::string& Text) {
    return Text;
}

// Its length stands before the text, the larger byte first.
std::string AsTimedText(const std::string& Text) {
    std::string Made = Text.substr(0, 0xFFFF);
    while (Made.size() < Text.size() && !Made.empty() && (Text[Made.size()] & 0xC0) == 0x80)
        Made.pop_back();  // no character in halves
    const auto Size = static_cast<unsigned>(Made.size());
    return std::string{static_cast<char>(Size >> 8), static_cast<char>(Size)} + Made;
}

std::string AsWebText(const std::string& Text) {
    std::string Made;
    for (const char Each : Text)
        Made += Each == '&'   ? "&amp;"
                : Each == '<' ? "&lt;"
                : Each == '>' ? "&gt;"
                              : std::string(1, Each);
    return Made;
}

// How a timed text looks where the player does not know better: white, at the bottom, centred, no
// box; and its one font.
constexpr std::uint8_t TimedTextHead[] = {
    0, 0,    0, 0,                                               // flags
    1, 0xFF,                                                     // centred, bottom
    0, 0,    0, 0,                                               // behind it
    0, 0,    0, 0,  0,   0,   0,   0,                            // the box
    0, 0,    0, 0,  0,   1,   0,   18,  0xFF, 0xFF, 0xFF, 0xFF,  // the style
    0, 0,    0, 18, 'f', 't', 'a', 'b', 0,    1,    0,    1,    5, 'S', 'e', 'r', 'i', 'f'};

struct TextRow {
    AVCodecID Codec;
    std::string (*Write)(const std::string& Text);
    std::size_t HeadSize;
};
constexpr TextRow Texts[] = {{AV_CODEC_ID_MOV_TEXT, AsTimedText, sizeof TimedTextHead},
                             {AV_CODEC_ID_WEBVTT, AsWebText, 0},
                             {AV_CODEC_ID_SUBRIP, AsItIs, 0}};

void SetHead(AVCodecParameters& Has, std::size_t Size) {
    if (Size == 0) return;
    Has.extradata = static_cast<std::uint8_t*>(av_mallocz(Size + AV_INPUT_BUFFER_PADDING_SIZE));
    if (!Has.extradata) throw std::bad_alloc();
    std::memcpy(Has.extradata, TimedTextHead, Size);
    Has.extradata_size = static_cast<int>(Size);
}

int AddStream(FilmMuxer& Muxer, const TextRow& Row) {
    AVStream& Stream = Muxer.AddStream();
    Stream.codecpar->codec_type = AVMEDIA_TYPE_SUBTITLE;
    Stream.codecpar->codec_id = Row.Codec;
    Stream.time_base = Milliseconds;
    SetHead(*Stream.codecpar, Row.HeadSize);
    return Stream.index;
}

std::int64_t InMilliseconds(double Seconds) {
    return std::llround(Seconds * 1000);
}

Av<AVPacket> MakePacketOf(const std::string& Text, std::int64_t At, std::int64_t Until) {
    Av<AVPacket> Packet = MakePacket();
    Tried(av_new_packet(Packet.get(), static_cast<int>(Text.size())), "A subtitle of the film");
    std::memcpy(Packet->data, Text.data(), Text.size());
    Packet->time_base = Milliseconds;
    Packet->pts = Packet->dts = At;
    Packet->duration = Until - At;
    Packet->flags |= AV_PKT_FLAG_KEY;
    return Packet;
}

// One is over when the next begins.
std::int64_t EndOf(const std::vector<FilmSubtitle>& All, std::size_t Index) {
    const std::int64_t Until = InMilliseconds(All[Index].Until);
    if (Index + 1 == All.size()) return Until;
    return std::min(Until, InMilliseconds(All[Index + 1].At));
}

}  // namespace

void AddSubtitleTrack(FilmMuxer& Muxer, const FilmSetup& Setup) {
    if (Setup.Subtitles.empty()) return;
    const TextRow& Row =
        *std::ranges::find(Texts, FilmFile(Setup.Format).Subtitles, &TextRow::Codec);
    const int Stream = AddStream(Muxer, Row);
    for (std::size_t Index = 0; Index < Setup.Subtitles.size(); ++Index) {
        const FilmSubtitle& Each = Setup.Subtitles[Index];
        const std::int64_t At = InMilliseconds(Each.At), Until = EndOf(Setup.Subtitles, Index);
        if (Each.Text.empty() || Until <= At) continue;
        Av<AVPacket> Packet = MakePacketOf(Row.Write(Each.Text), At, Until);
        Packet->stream_index = Stream;
        Muxer.Push(std::move(Packet));
    }
    Muxer.End(Stream);
}

}  // namespace neb
