#include "films/FilmPlayed.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>
#include <cmath>
#include <cstring>
#include <memory>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/opt.h>
#include <libswscale/swscale.h>
}

namespace neb::filmtest {

namespace {

struct Freed {
    void operator()(AVFormatContext* Film) const { avformat_close_input(&Film); }
    void operator()(AVCodecContext* Codec) const { avcodec_free_context(&Codec); }
    void operator()(AVFrame* Frame) const { av_frame_free(&Frame); }
    void operator()(AVPacket* Packet) const { av_packet_free(&Packet); }
    void operator()(SwsContext* Scaler) const { sws_freeContext(Scaler); }
};
template <typename T>
using Held = std::unique_ptr<T, Freed>;

QString Kept(const harness::TempFolder& Folder, const std::vector<std::uint8_t>& Film) {
    const QString Path = Folder / QStringLiteral("film");
    QFile File(Path);
    EXPECT_TRUE(File.open(QIODevice::WriteOnly));
    File.write(reinterpret_cast<const char*>(Film.data()), qint64(Film.size()));
    return Path;
}

Held<AVFormatContext> Opened(const QString& Path) {
    AVFormatContext* Film = nullptr;
    if (avformat_open_input(&Film, Path.toUtf8().constData(), nullptr, nullptr) < 0) return {};
    Held<AVFormatContext> Owned(Film);
    avformat_find_stream_info(Film, nullptr);
    return Owned;
}

Held<AVCodecContext> DecoderOf(const AVStream& Stream) {
    Held<AVCodecContext> Codec(
        avcodec_alloc_context3(avcodec_find_decoder(Stream.codecpar->codec_id)));
    avcodec_parameters_to_context(Codec.get(), Stream.codecpar);
    Codec->pkt_timebase = Stream.time_base;
    EXPECT_GE(avcodec_open2(Codec.get(), Codec->codec, nullptr), 0);
    return Codec;
}

void SetScaler(SwsContext* Scaler, const AVFrame& Frame) {
    const std::pair<const char*, std::int64_t> Options[] = {
        {"srcw", Frame.width},
        {"dstw", Frame.width},
        {"srch", Frame.height},
        {"dsth", Frame.height},
        {"src_format", Frame.format},
        {"dst_format", AV_PIX_FMT_BGR0},
        {"src_h_chr_pos", Frame.format == AV_PIX_FMT_YUV420P ? 0 : -513},
        {"src_v_chr_pos", Frame.format == AV_PIX_FMT_YUV420P ? 128 : -513},
        {"sws_flags", SWS_BICUBIC | SWS_ACCURATE_RND | SWS_FULL_CHR_H_INT | SWS_FULL_CHR_H_INP}};
    for (const auto& [Name, Value] : Options) av_opt_set_int(Scaler, Name, Value, 0);
}

QImage AsPicture(const AVFrame& Frame) {
    QImage Picture(Frame.width, Frame.height, QImage::Format_RGB32);
    Picture.fill(Qt::black);
    std::uint8_t* Into[] = {Picture.bits()};
    const int Step[] = {static_cast<int>(Picture.bytesPerLine())};
    if (Frame.format == AV_PIX_FMT_BGR0) {
        for (int Y = 0; Y < Frame.height; ++Y)
            std::memcpy(Picture.scanLine(Y), Frame.data[0] + Y * Frame.linesize[0],
                        std::size_t(Frame.width) * 4);
        return Picture;
    }
    const Held<SwsContext> Scaler(sws_alloc_context());
    SetScaler(Scaler.get(), Frame);
    EXPECT_GE(sws_init_context(Scaler.get(), nullptr, nullptr), 0);
    const int* Colours = sws_getCoefficients(SWS_CS_ITU709);
    sws_setColorspaceDetails(Scaler.get(), Colours, 0, Colours, 1, 0, 1 << 16, 1 << 16);
    sws_scale(Scaler.get(), Frame.data, Frame.linesize, 0, Frame.height, Into, Step);
    return Picture;
}

float SampleAt(const AVFrame& Frame, int Channel, int Index) {
    const bool Planar = av_sample_fmt_is_planar(AVSampleFormat(Frame.format));
    const std::uint8_t* From = Frame.extended_data[Planar ? Channel : 0];
    const int Place = Planar ? Index : 2 * Index + Channel;
    if (av_get_packed_sample_fmt(AVSampleFormat(Frame.format)) == AV_SAMPLE_FMT_FLT)
        return reinterpret_cast<const float*>(From)[Place];
    EXPECT_EQ(Frame.format, AV_SAMPLE_FMT_S32);
    return static_cast<float>(reinterpret_cast<const std::int32_t*>(From)[Place] / 2147483648.0);
}

// What libraries cut from frames at the beginning and the end of a sound.
void TakeSound(const AVFrame& Frame, PlayedFilm& Film) {
    Film.SoundRate = Frame.sample_rate;
    for (int Index = 0; Index < Frame.nb_samples; ++Index)
        for (int Channel = 0; Channel < 2; ++Channel)
            Film.Sound.push_back(SampleAt(Frame, Channel, Index));
}

void TakeFrame(const AVFrame& Frame, const AVStream& Stream, PlayedFilm& Film) {
    if (Stream.codecpar->codec_type == AVMEDIA_TYPE_AUDIO) return TakeSound(Frame, Film);
    Film.Frames.push_back(AsPicture(Frame));
    Film.FrameTimes.push_back(double(Frame.best_effort_timestamp) * av_q2d(Stream.time_base));
}

void Decode(AVCodecContext& Codec, const AVStream& Stream, const AVPacket* Packet,
            PlayedFilm& Film) {
    EXPECT_GE(avcodec_send_packet(&Codec, Packet), 0);
    const Held<AVFrame> Frame(av_frame_alloc());
    while (avcodec_receive_frame(&Codec, Frame.get()) >= 0) TakeFrame(*Frame, Stream, Film);
}

void PlayStream(const QString& Path, AVMediaType Kind, PlayedFilm& Film) {
    const auto Input = Opened(Path);
    ASSERT_TRUE(Input);
    const int Number = av_find_best_stream(Input.get(), Kind, -1, -1, nullptr, 0);
    if (Number < 0) return;
    const AVStream& Stream = *Input->streams[Number];
    const auto Codec = DecoderOf(Stream);
    const Held<AVPacket> Packet(av_packet_alloc());
    while (av_read_frame(Input.get(), Packet.get()) >= 0) {
        if (Packet->stream_index == Number) Decode(*Codec, Stream, Packet.get(), Film);
        av_packet_unref(Packet.get());
    }
    Decode(*Codec, Stream, nullptr, Film);
}

QJsonObject FirstOf(const QJsonArray& All, const std::function<bool(const QJsonObject&)>& Is) {
    for (const auto& Each : All)
        if (Is(Each.toObject())) return Each.toObject();
    return {};
}

bool IsCover(const QJsonObject& Stream) {
    return Stream[QStringLiteral("disposition")].toObject()[QStringLiteral("attached_pic")] == 1;
}

}  // namespace

PlayedFilm Play(const std::vector<std::uint8_t>& Film) {
    av_log_set_level(AV_LOG_QUIET);
    const harness::TempFolder Folder;
    const QString Path = Kept(Folder, Film);
    PlayedFilm Played;
    PlayStream(Path, AVMEDIA_TYPE_VIDEO, Played);
    PlayStream(Path, AVMEDIA_TYPE_AUDIO, Played);
    return Played;
}

ProbedFilm Probe(const std::vector<std::uint8_t>& Film) {
    const harness::TempFolder Folder;
    QProcess Program;
    Program.start(QStringLiteral("ffprobe"),
                  {QStringLiteral("-v"), QStringLiteral("quiet"), QStringLiteral("-count_packets"),
                   QStringLiteral("-show_streams"), QStringLiteral("-show_format"),
                   QStringLiteral("-show_chapters"), QStringLiteral("-show_packets"),
                   QStringLiteral("-of"), QStringLiteral("json"), Kept(Folder, Film)});
    EXPECT_TRUE(Program.waitForFinished());
    EXPECT_EQ(Program.exitCode(), 0);
    return {QJsonDocument::fromJson(Program.readAllStandardOutput()).object()};
}

QJsonObject ProbedFilm::Stream(const char* Kind) const {
    return FirstOf(All[QStringLiteral("streams")].toArray(), [&](const QJsonObject& Each) {
        return Each[QStringLiteral("codec_type")] == QLatin1String(Kind) && !IsCover(Each);
    });
}

QJsonObject ProbedFilm::Cover() const {
    return FirstOf(All[QStringLiteral("streams")].toArray(), IsCover);
}

QStringList ProbedFilm::SubtitleTimes() const {
    QStringList Times;
    for (const auto& Each : All[QStringLiteral("packets")].toArray()) {
        const QJsonObject Packet = Each.toObject();
        if (Packet[QStringLiteral("codec_type")] != QLatin1String("subtitle")) continue;
        Times << Packet[QStringLiteral("pts_time")].toString().left(5) + u'+' +
                     Packet[QStringLiteral("duration_time")].toString().left(5);
    }
    return Times;
}

double Psnr(const QImage& One, const QImage& Other) {
    qint64 Sum = 0;
    for (int Y = 0; Y < One.height(); ++Y) {
        const uchar *A = One.constScanLine(Y), *B = Other.constScanLine(Y);
        for (int Byte = 0; Byte < One.width() * 4; ++Byte)
            if (Byte % 4 != 3) Sum += (A[Byte] - B[Byte]) * (A[Byte] - B[Byte]);
    }
    const double All = 3.0 * One.width() * One.height();
    return Sum == 0 ? 99 : 10 * std::log10(65025 * All / double(Sum));
}

}  // namespace neb::filmtest
