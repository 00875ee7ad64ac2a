#include "films/FilmNotes.h"

#include <algorithm>
#include <cmath>
#include <cstring>

#include "films/FilmMuxer.h"

namespace neb {

namespace {

constexpr AVRational Microseconds{1, AV_TIME_BASE};

std::int64_t InMicroseconds(double Seconds) {
    return std::llround(Seconds * AV_TIME_BASE);
}

void Note(AVDictionary*& Notes, const char* Name, const std::string& Value) {
    if (!Value.empty()) Tried(av_dict_set(&Notes, Name, Value.c_str(), 0), "A film's note");
}

// Some players read chapters from a list with a byte of length before each title, and what is
// longer would be cut in the middle of a character there.
constexpr std::size_t LongestTitle = 255;

std::string Shortened(const std::string& Title) {
    std::size_t Size = std::min(Title.size(), LongestTitle);
    while (Size > 0 && Size < Title.size() && (Title[Size] & 0xC0) == 0x80) --Size;
    return Title.substr(0, Size);
}

Av<AVChapter> MakeChapter(const FilmChapter& Chapter, int ID) {
    auto Made = Had(static_cast<AVChapter*>(av_mallocz(sizeof(AVChapter))));
    Made->id = ID;
    Made->time_base = Microseconds;
    Made->start = InMicroseconds(Chapter.At);
    Made->end = InMicroseconds(std::max(Chapter.At, Chapter.Until));
    Note(Made->metadata, "title", Shortened(Chapter.Title));
    return Made;
}

// The film frees its chapters, and their list, with the library's own routines.
void AddChapters(AVFormatContext& Film, const std::vector<FilmChapter>& Chapters) {
    if (Chapters.empty()) return;
    Film.chapters = static_cast<AVChapter**>(av_calloc(Chapters.size(), sizeof(AVChapter*)));
    if (!Film.chapters) throw std::bad_alloc();
    for (const FilmChapter& Chapter : Chapters) {
        const auto ID = static_cast<int>(Film.nb_chapters) + 1;
        Film.chapters[Film.nb_chapters] = MakeChapter(Chapter, ID).release();
        ++Film.nb_chapters;
    }
}

void FillCoverPicture(FilmMuxer& Muxer, AVStream& Stream, const FilmSetup& Setup) {
    Stream.codecpar->codec_type = AVMEDIA_TYPE_VIDEO;
    Stream.disposition = AV_DISPOSITION_ATTACHED_PIC;
    // no player reads these, the picture has its own; but a track without them is refused
    Stream.codecpar->width = Setup.Width;
    Stream.codecpar->height = Setup.Height;
    Av<AVPacket> Packet = MakePacket();
    Tried(av_new_packet(Packet.get(), static_cast<int>(Setup.Cover.size())), "The film's cover");
    std::memcpy(Packet->data, Setup.Cover.data(), Setup.Cover.size());
    Packet->stream_index = Stream.index;
    Packet->time_base = Microseconds;
    Packet->pts = Packet->dts = 0;
    Packet->flags |= AV_PKT_FLAG_KEY;
    Muxer.Push(std::move(Packet));
}

void FillAttachment(FilmMuxer&, AVStream& Stream, const FilmSetup& Setup) {
    AVCodecParameters& Has = *Stream.codecpar;
    Has.codec_type = AVMEDIA_TYPE_ATTACHMENT;
    Has.extradata =
        static_cast<std::uint8_t*>(av_mallocz(Setup.Cover.size() + AV_INPUT_BUFFER_PADDING_SIZE));
    if (!Has.extradata) throw std::bad_alloc();
    std::memcpy(Has.extradata, Setup.Cover.data(), Setup.Cover.size());
    Has.extradata_size = static_cast<int>(Setup.Cover.size());
    Note(Stream.metadata, "filename", "cover.jpg");
    Note(Stream.metadata, "mimetype", "image/jpeg");
}

}  // namespace

void AddNotes(AVFormatContext& Film, const FilmSetup& Setup) {
    Note(Film.metadata, "title", Setup.Title);
    Note(Film.metadata, "date", Setup.Date);
    AddChapters(Film, Setup.Chapters);
}

int AddCover(FilmMuxer& Muxer, CoverPlace Place, const FilmSetup& Setup) {
    if (Place == CoverPlace::None || Setup.Cover.empty()) return -1;
    AVStream& Stream = Muxer.AddStream();
    Stream.codecpar->codec_id = AV_CODEC_ID_MJPEG;
    (Place == CoverPlace::Picture ? FillCoverPicture : FillAttachment)(Muxer, Stream, Setup);
    return Stream.index;
}

}  // namespace neb
