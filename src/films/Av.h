// The libraries' objects, each with who frees it, and their faults as exceptions. Used by every
// source of this room.
#pragma once

#include <memory>
#include <stdexcept>
#include <string>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavcodec/bsf.h>
#include <libavformat/avformat.h>
#include <libavutil/audio_fifo.h>
#include <libavutil/opt.h>
#include <libswresample/swresample.h>
}

namespace neb {

struct AvFreed {
    void operator()(AVFrame* Frame) const { av_frame_free(&Frame); }
    void operator()(AVPacket* Packet) const { av_packet_free(&Packet); }
    void operator()(AVCodecContext* Codec) const { avcodec_free_context(&Codec); }
    void operator()(AVBSFContext* Filter) const { av_bsf_free(&Filter); }
    void operator()(AVFormatContext* Film) const { avformat_free_context(Film); }
    void operator()(SwrContext* Sound) const { swr_free(&Sound); }
    void operator()(AVAudioFifo* Fifo) const { av_audio_fifo_free(Fifo); }
    void operator()(AVDictionary* Options) const { av_dict_free(&Options); }
    void operator()(AVIOContext* Bytes) const {
        av_freep(&Bytes->buffer);
        avio_context_free(&Bytes);
    }
    void operator()(void* Memory) const { av_free(Memory); }
};
template <typename T>
using Av = std::unique_ptr<T, AvFreed>;

// What a library answered, unless it is a fault: that is thrown, as what could not be done.
inline int Tried(int Answer, const char* What) {
    if (Answer >= 0) return Answer;
    char Reason[AV_ERROR_MAX_STRING_SIZE] = {};
    av_strerror(Answer, Reason, sizeof Reason);
    throw std::runtime_error(std::string(What) + ": " + Reason);
}

template <typename T>
Av<T> Had(T* Made) {
    if (!Made) throw std::runtime_error("There is not enough memory for the film.");
    return Av<T>(Made);
}

inline Av<AVPacket> MakePacket() {
    return Had(av_packet_alloc());
}
inline Av<AVFrame> MakeFrame() {
    return Had(av_frame_alloc());
}

// Of an option that is a name and a value.
inline void SetOption(Av<AVDictionary>& Options, const char* Name, const std::string& Value) {
    AVDictionary* All = Options.release();
    const int Answer = av_dict_set(&All, Name, Value.c_str(), 0);
    Options.reset(All);
    Tried(Answer, "The film's settings cannot be kept");
}

// To one of the libraries, which takes what it knows.
template <typename Opening>
int WithOptions(Av<AVDictionary>& Options, Opening Open) {
    AVDictionary* All = Options.release();
    const int Answer = Open(&All);
    Options.reset(All);
    return Answer;
}

}  // namespace neb
