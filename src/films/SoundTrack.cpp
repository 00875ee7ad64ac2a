#include "films/SoundTrack.h"

#include <algorithm>

#include "films/FilmSettings.h"

namespace neb {

namespace {

constexpr const char* CannotConvert = "The film's sound cannot be converted";
// At once, so that the counts of the libraries are never exceeded.
constexpr std::size_t MostFrames = 1 << 16;

void Prepare(AVCodecContext& Codec, const FilmSetup& Setup) {
    const FilmSoundRow& Sound = FilmSound(Setup.Format);
    av_channel_layout_default(&Codec.ch_layout, 2);
    Codec.sample_fmt = Sound.Samples;
    Codec.sample_rate = Sound.Rate;
    Codec.time_base = {1, Sound.Rate};
    Codec.bit_rate = SoundBits(Setup);
    if (Sound.Samples == AV_SAMPLE_FMT_S32) Codec.bits_per_raw_sample = 24;
}

Av<SwrContext> MakeConversion(AVCodecContext& Codec) {
    SwrContext* Made = nullptr;
    const int Answer =
        swr_alloc_set_opts2(&Made, &Codec.ch_layout, Codec.sample_fmt, Codec.sample_rate,
                            &Codec.ch_layout, AV_SAMPLE_FMT_FLT, FilmSoundRate, 0, nullptr);
    Av<SwrContext> Conversion(Made);
    Tried(Answer, CannotConvert);
    Tried(swr_init(Conversion.get()), CannotConvert);
    return Conversion;
}

Av<AVFrame> MakeFrameFor(const AVCodecContext& Codec, int Samples) {
    Av<AVFrame> Frame = MakeFrame();
    Frame->format = Codec.sample_fmt;
    Frame->sample_rate = Codec.sample_rate;
    Frame->nb_samples = Samples;
    Tried(av_channel_layout_copy(&Frame->ch_layout, &Codec.ch_layout), CannotConvert);
    Tried(av_frame_get_buffer(Frame.get(), 0), CannotConvert);
    return Frame;
}

}  // namespace

SoundTrack::SoundTrack(const FilmSetup& Setup, FilmMuxer& Muxer)
    : mCodec(Muxer, FilmSound(Setup.Format).Codec) {
    AVCodecContext& Codec = mCodec.Context();
    Prepare(Codec, Setup);
    mCodec.Open({}, nullptr);
    mCodec.Stream().disposition |= AV_DISPOSITION_DEFAULT;
    mConversion = MakeConversion(Codec);
    if (FilmSound(Setup.Format).CountsPriming) mSamples = Codec.initial_padding;
    mWaiting = Had(av_audio_fifo_alloc(Codec.sample_fmt, 2, Codec.frame_size));
}

void SoundTrack::Add(const float* Samples, std::size_t Frames) {
    for (std::size_t Done = 0; Done < Frames; Done += MostFrames)
        Convert(Samples + 2 * Done, static_cast<int>(std::min(MostFrames, Frames - Done)));
}

// Without samples: what the conversion still holds back.
void SoundTrack::Convert(const float* Samples, int Frames) {
    const int Room = Tried(swr_get_out_samples(mConversion.get(), Frames), CannotConvert);
    if (Room == 0) return;
    const Av<AVFrame> Out = MakeFrameFor(mCodec.Context(), Room);
    const auto* In = reinterpret_cast<const std::uint8_t*>(Samples);
    const int Got = Tried(
        swr_convert(mConversion.get(), Out->extended_data, Room, Samples ? &In : nullptr, Frames),
        CannotConvert);
    Tried(av_audio_fifo_write(mWaiting.get(), reinterpret_cast<void**>(Out->extended_data), Got),
          CannotConvert);
    SendWhole();
}

void SoundTrack::SendWhole() {
    const int Whole = mCodec.Context().frame_size;
    while (av_audio_fifo_size(mWaiting.get()) >= Whole) Send(Whole);
}

void SoundTrack::Send(int Samples) {
    const Av<AVFrame> Frame = MakeFrameFor(mCodec.Context(), Samples);
    Tried(
        av_audio_fifo_read(mWaiting.get(), reinterpret_cast<void**>(Frame->extended_data), Samples),
        CannotConvert);
    Frame->pts = mSamples;
    mSamples += Samples;
    mCodec.Send(*Frame);
}

void SoundTrack::Finish() {
    Convert(nullptr, 0);
    if (const int Rest = av_audio_fifo_size(mWaiting.get())) Send(Rest);
    mCodec.Finish();
}

}  // namespace neb
