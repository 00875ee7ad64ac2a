#include "films/TrackCodec.h"

namespace neb {

namespace {

constexpr const char* CannotEncode = "The film cannot be encoded";

const AVCodec* EncoderOf(const char* Name) {
    const AVCodec* Found = avcodec_find_encoder_by_name(Name);
    if (!Found)
        throw std::runtime_error(std::string("The encoder ") + Name + " is not on this system.");
    return Found;
}

}  // namespace

TrackCodec::TrackCodec(FilmMuxer& Muxer, const char* Name)
    : mMuxer(Muxer), mCodec(Had(avcodec_alloc_context3(EncoderOf(Name)))) {
    mCodec->flags |= AV_CODEC_FLAG_BITEXACT;
    if (mMuxer.KeepsHeadsApart()) mCodec->flags |= AV_CODEC_FLAG_GLOBAL_HEADER;
}

void TrackCodec::Open(Av<AVDictionary> Options, const char* Filter) {
    const int Answer = WithOptions(Options, [&](AVDictionary** All) {
        return avcodec_open2(mCodec.get(), mCodec->codec, All);
    });
    Tried(Answer, CannotEncode);
    mStream = &mMuxer.AddStream();
    Tried(avcodec_parameters_from_context(mStream->codecpar, mCodec.get()), CannotEncode);
    mStream->time_base = mCodec->time_base;
    if (Filter) OpenFilter(Filter);
}

void TrackCodec::OpenFilter(const char* Filter) {
    AVBSFContext* Made = nullptr;
    Tried(av_bsf_list_parse_str(Filter, &Made), CannotEncode);
    mFilter.reset(Made);
    Tried(avcodec_parameters_copy(mFilter->par_in, mStream->codecpar), CannotEncode);
    mFilter->time_base_in = mCodec->time_base;
    Tried(av_bsf_init(mFilter.get()), CannotEncode);
}

void TrackCodec::Send(const AVFrame& Frame) {
    SendTo([this](Av<AVPacket> Packet) { Write(std::move(Packet)); }, &Frame);
}

void TrackCodec::Finish() {
    SendTo([this](Av<AVPacket> Packet) { Write(std::move(Packet)); }, nullptr);
    mMuxer.End(mStream->index);
}

void TrackCodec::SendTo(const Taker& Take, const AVFrame* Frame) {
    Tried(avcodec_send_frame(mCodec.get(), Frame), CannotEncode);
    for (;;) {
        Av<AVPacket> Packet = MakePacket();
        const int Answer = avcodec_receive_packet(mCodec.get(), Packet.get());
        if (Answer == AVERROR(EAGAIN) || Answer == AVERROR_EOF) return;
        Tried(Answer, CannotEncode);
        Take(std::move(Packet));
    }
}

void TrackCodec::Write(Av<AVPacket> Packet) {
    if (mFilter) Packet = Filtered(std::move(Packet));
    Packet->stream_index = mStream->index;
    Packet->time_base = mCodec->time_base;
    if (!Packet->duration && mCodec->codec_type == AVMEDIA_TYPE_VIDEO) Packet->duration = 1;
    mMuxer.Push(std::move(Packet));
}

// One comes out for one that goes in.
Av<AVPacket> TrackCodec::Filtered(Av<AVPacket> Packet) {
    Tried(av_bsf_send_packet(mFilter.get(), Packet.get()), CannotEncode);
    Tried(av_bsf_receive_packet(mFilter.get(), Packet.get()), CannotEncode);
    return Packet;
}

}  // namespace neb
