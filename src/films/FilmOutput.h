// The bytes of a film on their way to its sink, as the library's muxers want to write them, and to
// read back what they wrote. Used by FilmMuxer.
#pragma once

#include <exception>
#include <optional>

#include "films/Av.h"
#include "films/FilmEncoder.h"

namespace neb {

class FilmOutput {
  public:
    explicit FilmOutput(FilmSink Sink);
    FilmOutput(const FilmOutput&) = delete;
    FilmOutput& operator=(const FilmOutput&) = delete;

    // Film writes here from now on, and must not outlive this.
    void ConnectTo(AVFormatContext& Film);
    // When Film has ended: what it wrote, read and changed. Both throw when the sink refuses.
    // Bytes read, fewer at the end.
    std::size_t ReadBack(std::int64_t Place, std::uint8_t* Into, std::size_t Count);
    void WriteOver(std::int64_t Place, std::uint8_t Byte);
    // Throws when the sink has refused anything so far, or what it has thrown.
    void Check() const;

  private:
    struct Reader {
        FilmOutput* Output;
        std::int64_t Place = 0;
        Av<AVIOContext> Bytes{};
    };

    static int Open(AVFormatContext* Film, AVIOContext** Bytes, const char*, int Flags,
                    AVDictionary**);
    static int Close(AVFormatContext* Film, AVIOContext* Bytes);
    static int WriteBytes(void* Output, std::uint8_t* Bytes, int Count);
    static std::int64_t SeekForWriting(void* Output, std::int64_t Offset, int Whence);
    static int ReadBytes(void* Back, std::uint8_t* Into, int Count);
    static std::int64_t SeekForReading(void* Back, std::int64_t Offset, int Whence);

    template <typename Deed>
    bool Dared(Deed Do) noexcept;
    bool WriteAll(const std::uint8_t* Bytes, std::size_t Count);
    std::int64_t PlaceOf(std::int64_t Offset, int Whence, std::int64_t Now) const;

    FilmSink mSink;
    std::int64_t mPlace = 0, mSize = 0;
    bool mRefused = false;
    std::exception_ptr mThrown;
    Av<AVIOContext> mWriting;
    std::optional<Reader> mReader;
};

}  // namespace neb
