#include "films/VideoTrack.h"

#include <cmath>

#include "films/FilmSettings.h"

namespace neb {

namespace {

constexpr const char* NoMemory = "There is not enough memory for a frame";

// What players go by who would otherwise guess by the size: other colours for small films.
void TellColours(AVCodecContext& Codec) {
    if (Codec.pix_fmt != AV_PIX_FMT_YUV420P) return;
    Codec.color_primaries = AVCOL_PRI_BT709;
    Codec.color_trc = AVCOL_TRC_BT709;
    Codec.colorspace = AVCOL_SPC_BT709;
    Codec.color_range = AVCOL_RANGE_MPEG;
    Codec.chroma_sample_location = AVCHROMA_LOC_LEFT;
}

void TellThreads(AVCodecContext& Codec, const FilmSetup& Setup, bool FrameByFrame) {
    Codec.thread_count = VideoThreads(Setup);
    if (FrameByFrame) Codec.thread_type = FF_THREAD_SLICE;
}

void TellShape(AVCodecContext& Codec, const FilmSetup& Setup) {
    Codec.width = Setup.Width;
    Codec.height = Setup.Height;
    Codec.sample_aspect_ratio = {1, 1};
    Codec.time_base = {1, Setup.Rate};
    Codec.framerate = {Setup.Rate, 1};
}

void Prepare(AVCodecContext& Codec, const FilmSetup& Setup) {
    const FilmVideoRow& Video = FilmVideo(Setup.Format);
    TellShape(Codec, Setup);
    Codec.pix_fmt = Video.Pixels;
    Codec.profile = Video.Profile;
    Codec.gop_size = std::max(1, static_cast<int>(std::lround(Video.KeySeconds * Setup.Rate)));
    TellColours(Codec);
    TellThreads(Codec, Setup, Video.RepeatsPackets);
}

Av<AVFrame> MakeFrameFor(const AVCodecContext& Codec) {
    Av<AVFrame> Frame = MakeFrame();
    Frame->width = Codec.width;
    Frame->height = Codec.height;
    Frame->format = Codec.pix_fmt;
    Frame->colorspace = Codec.colorspace;
    Frame->color_range = Codec.color_range;
    Frame->color_primaries = Codec.color_primaries;
    Frame->color_trc = Codec.color_trc;
    Frame->chroma_location = Codec.chroma_sample_location;
    Tried(av_frame_get_buffer(Frame.get(), 0), NoMemory);
    return Frame;
}

}  // namespace

VideoTrack::VideoTrack(const FilmSetup& Setup, FilmMuxer& Muxer)
    : mRepeatsPackets(FilmVideo(Setup.Format).RepeatsPackets),
      mCodec(Muxer, FilmVideo(Setup.Format).Codec) {
    Prepare(mCodec.Context(), Setup);
    mCodec.Open(VideoOptions(Setup), FilmVideo(Setup.Format).Filter);
    mCodec.Stream().avg_frame_rate = mCodec.Stream().r_frame_rate = {Setup.Rate, 1};
    mCodec.Stream().disposition |= AV_DISPOSITION_DEFAULT;
    mFrame = MakeFrameFor(mCodec.Context());
}

void VideoTrack::Add(const std::uint8_t* Pixels, std::ptrdiff_t Stride, int Count) {
    // some encoders keep the last one
    if (!av_frame_is_writable(mFrame.get())) mFrame = MakeFrameFor(mCodec.Context());
    mConversion.Convert(Pixels, Stride, *mFrame);
    mRepeatsPackets ? WriteRepeated(Count) : SendEach(Count);
}

void VideoTrack::SendEach(int Count) {
    for (int Shown = 0; Shown < Count; ++Shown) {
        mFrame->pts = mFrames++;
        mCodec.Send(*mFrame);
    }
}

void VideoTrack::WriteRepeated(int Count) {
    const auto Write = [&](Av<AVPacket> Packet) {
        for (int Shown = 0; Shown < Count; ++Shown) {
            Av<AVPacket> Same = Had(av_packet_clone(Packet.get()));
            Same->pts = Same->dts = mFrames++;
            mCodec.Write(std::move(Same));
        }
    };
    mFrame->pts = mFrames;
    mCodec.SendTo(Write, mFrame.get());
}

void VideoTrack::Finish() {
    mCodec.Finish();
}

}  // namespace neb
