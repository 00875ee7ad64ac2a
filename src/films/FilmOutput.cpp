#include "films/FilmOutput.h"

#include <algorithm>
#include <cstdio>

namespace neb {

namespace {

constexpr int BufferSize = 1 << 18;

Av<AVIOContext> MakeContext(bool ForWriting, void* Opaque, int (*Read)(void*, std::uint8_t*, int),
                            int (*Write)(void*, std::uint8_t*, int),
                            std::int64_t (*Seek)(void*, std::int64_t, int)) {
    Av<void> Buffer = Had(av_malloc(BufferSize));
    auto Context = Had(avio_alloc_context(static_cast<unsigned char*>(Buffer.get()), BufferSize,
                                          ForWriting, Opaque, Read, Write, Seek));
    static_cast<void>(Buffer.release());  // the context's from now on
    return Context;
}

}  // namespace

FilmOutput::FilmOutput(FilmSink Sink)
    : mSink(std::move(Sink)),
      mWriting(MakeContext(true, this, nullptr, &WriteBytes, &SeekForWriting)) {}

void FilmOutput::ConnectTo(AVFormatContext& Film) {
    Film.pb = mWriting.get();
    Film.opaque = this;
    Film.io_open = &Open;
    Film.io_close2 = &Close;
}

void FilmOutput::Check() const {
    if (mThrown) std::rethrow_exception(mThrown);
    if (mRefused) throw std::runtime_error("The film cannot be written: its place takes no more.");
}

std::size_t FilmOutput::ReadBack(std::int64_t Place, std::uint8_t* Into, std::size_t Count) {
    const std::ptrdiff_t Read = mSink.Read(Place, Into, Count);
    mRefused |= Read < 0;
    Check();
    return static_cast<std::size_t>(Read);
}

void FilmOutput::WriteOver(std::int64_t Place, std::uint8_t Byte) {
    mRefused |= !mSink.Seek(Place) || !mSink.Write(&Byte, 1);
    Check();
}

// Nothing may be thrown through the library.
template <typename Deed>
bool FilmOutput::Dared(Deed Do) noexcept {
    try {
        if (!mRefused && Do()) return true;
    } catch (...) {
        mThrown = std::current_exception();
    }
    mRefused = true;
    return false;
}

bool FilmOutput::WriteAll(const std::uint8_t* Bytes, std::size_t Count) {
    if (!mSink.Write(Bytes, Count)) return false;
    mPlace += static_cast<std::int64_t>(Count);
    mSize = std::max(mSize, mPlace);
    return true;
}

std::int64_t FilmOutput::PlaceOf(std::int64_t Offset, int Whence, std::int64_t Now) const {
    if (Whence == SEEK_CUR) return Now + Offset;
    if (Whence == SEEK_END) return mSize + Offset;
    return Offset;
}

int FilmOutput::WriteBytes(void* Output, std::uint8_t* Bytes, int Count) {
    auto& Self = *static_cast<FilmOutput*>(Output);
    const auto Write = [&] { return Self.WriteAll(Bytes, static_cast<std::size_t>(Count)); };
    return Self.Dared(Write) ? Count : AVERROR(EIO);
}

std::int64_t FilmOutput::SeekForWriting(void* Output, std::int64_t Offset, int Whence) {
    auto& Self = *static_cast<FilmOutput*>(Output);
    if (Whence & AVSEEK_SIZE) return Self.mSize;
    const std::int64_t Place = Self.PlaceOf(Offset, Whence & ~AVSEEK_FORCE, Self.mPlace);
    if (!Self.Dared([&] { return Self.mSink.Seek(Place); })) return AVERROR(EIO);
    return Self.mPlace = Place;
}

int FilmOutput::ReadBytes(void* Back, std::uint8_t* Into, int Count) {
    auto& Self = *static_cast<Reader*>(Back);
    std::ptrdiff_t Read = -1;
    const auto Reading = [&] {
        Read = Self.Output->mSink.Read(Self.Place, Into, static_cast<std::size_t>(Count));
        return Read >= 0;
    };
    if (!Self.Output->Dared(Reading)) return AVERROR(EIO);
    Self.Place += Read;
    return Read ? static_cast<int>(Read) : AVERROR_EOF;
}

std::int64_t FilmOutput::SeekForReading(void* Back, std::int64_t Offset, int Whence) {
    auto& Self = *static_cast<Reader*>(Back);
    if (Whence & AVSEEK_SIZE) return Self.Output->mSize;
    return Self.Place = Self.Output->PlaceOf(Offset, Whence & ~AVSEEK_FORCE, Self.Place);
}

// The muxers open their own output once more to read it back; there is nothing else to open.
int FilmOutput::Open(AVFormatContext* Film, AVIOContext** Bytes, const char*, int Flags,
                     AVDictionary**) {
    auto& Self = *static_cast<FilmOutput*>(Film->opaque);
    if (Flags & AVIO_FLAG_WRITE) return AVERROR(EACCES);
    const auto Make = [&] {
        Self.mReader.emplace(Reader{&Self});
        Self.mReader->Bytes =
            MakeContext(false, &*Self.mReader, &ReadBytes, nullptr, &SeekForReading);
        return true;
    };
    if (!Self.Dared(Make)) return AVERROR(ENOMEM);
    *Bytes = Self.mReader->Bytes.get();
    return 0;
}

int FilmOutput::Close(AVFormatContext* Film, AVIOContext*) {
    static_cast<FilmOutput*>(Film->opaque)->mReader.reset();
    return 0;
}

}  // namespace neb
