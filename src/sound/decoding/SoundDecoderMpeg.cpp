#include "sound/decoding/SoundDecoderMpeg.h"

#include <mpg123.h>

#include <algorithm>

#include "sound/decoding/SongTags.h"
#include "support/Fault.h"
#include "support/Texts.h"

namespace neb {

namespace {

// A frame may lean on bits from many frames before it when these are small, and on the sound of
// the one just before. So many are decoded unheard before the place that was asked for.
constexpr long FramesBefore = 32;

mpg123_ssize_t ReadBytes(void* Source, void* Into, size_t Count) {
    return static_cast<SoundSource*>(Source)->Read(Into, static_cast<qint64>(Count));
}

off_t SeekBytes(void* Source, off_t Offset, int Whence) {
    return static_cast<SoundSource*>(Source)->Seek(Offset, Whence);
}

bool Set(mpg123_handle* Handle, mpg123_parms What, long Value) {
    return mpg123_param(Handle, What, Value, 0) == MPG123_OK;
}

// Damage is skipped however long it is: what comes after it is music again.
bool Configure(mpg123_handle* Handle) {
    return Set(Handle, MPG123_ADD_FLAGS,
               MPG123_QUIET | MPG123_GAPLESS | MPG123_FORCE_FLOAT | MPG123_SKIP_ID3V2) &&
           Set(Handle, MPG123_RESYNC_LIMIT, -1) && Set(Handle, MPG123_PREFRAMES, FramesBefore);
}

using Handle = std::unique_ptr<mpg123_handle, decltype(&mpg123_delete)>;

// Of the older kind, a field of fixed length.
template <size_t Length>
QString FieldText(const char (&Field)[Length]) {
    return TagText(QByteArray(Field, static_cast<qsizetype>(qstrnlen(Field, Length))));
}

QString NewerText(const mpg123_string* Text) {
    return Text && Text->p && Text->fill > 0 ? TagText(QByteArray(Text->p)) : QString();
}

SongTags TagsIn(mpg123_handle* Song) {
    mpg123_id3v1* Older = nullptr;
    mpg123_id3v2* Newer = nullptr;
    if (mpg123_id3(Song, &Older, &Newer) != MPG123_OK) return {};
    SongTags Tags;
    if (Newer) Tags = {NewerText(Newer->title), NewerText(Newer->artist)};
    if (Older && Tags.Title.isEmpty()) Tags.Title = FieldText(Older->title);
    if (Older && Tags.Artist.isEmpty()) Tags.Artist = FieldText(Older->artist);
    return Tags;
}

}  // namespace

// The tags are found on the way to the first frame, or at the file's end.
SongTags MpegTags(SoundSource& Source) {
    const Handle Song(mpg123_new(nullptr, nullptr), &mpg123_delete);
    if (!Song || !Set(Song.get(), MPG123_ADD_FLAGS, MPG123_QUIET)) return {};
    Source.Seek(0, SEEK_SET);
    if (mpg123_replace_reader_handle(Song.get(), &ReadBytes, &SeekBytes, nullptr) != MPG123_OK ||
        mpg123_open_handle(Song.get(), &Source) != MPG123_OK)
        return {};
    long Rate = 0;
    int Channels = 0, Encoding = 0;
    const bool IsSong = mpg123_getformat(Song.get(), &Rate, &Channels, &Encoding) == MPG123_OK;
    return IsSong ? TagsIn(Song.get()) : SongTags();
}

MpegSound::MpegSound(std::unique_ptr<SoundSource> Source, std::vector<MpegPart> Parts)
    : mSource(std::move(Source)), mHandle(mpg123_new(nullptr, nullptr)) {
    mRate = Parts.front().First.Rate;
    mChannels = Parts.front().First.Channels;
    if (Prepare()) Measure(std::move(Parts));
    if (mFrames > 0 && Enter(0)) return;
    mpg123_delete(mHandle);
    throw Fault(tr("The sound is damaged and cannot be played."));
}

MpegSound::~MpegSound() {
    mpg123_delete(mHandle);
}

bool MpegSound::Prepare() {
    const int Channels = mChannels == 1 ? MPG123_MONO : MPG123_STEREO;
    return mHandle && Configure(mHandle) && mpg123_format_none(mHandle) == MPG123_OK &&
           mpg123_format(mHandle, mRate, Channels, MPG123_ENC_FLOAT_32) == MPG123_OK &&
           mpg123_replace_reader_handle(mHandle, &ReadBytes, &SeekBytes, nullptr) == MPG123_OK;
}

void MpegSound::Measure(std::vector<MpegPart> Parts) {
    for (MpegPart& Each : Parts) {
        const bool Opens = Open(Each.Pieces);
        mOpen = mParts.size();
        const qint64 Length = Opens ? mpg123_length(mHandle) : 0;
        if (Length <= 0) continue;
        mParts.push_back({std::move(Each.Pieces), mFrames});
        mFrames += Length;
    }
}

bool MpegSound::Open(const std::vector<SoundPiece>& Pieces) {
    mSource->Keep(Pieces);
    return mpg123_open_handle(mHandle, mSource.get()) == MPG123_OK &&
           mpg123_scan(mHandle) == MPG123_OK;
}

bool MpegSound::Enter(size_t Index) {
    if (Index == mOpen) return true;
    mOpen = Index;
    return Open(mParts[Index].Pieces);
}

qint64 MpegSound::EndOf(size_t Index) const {
    return Index + 1 < mParts.size() ? mParts[Index + 1].Start : mFrames;
}

// What the library leaves out of a damaged part is silence, so that all else is in its place.
qint64 MpegSound::Decode(float* Into, qint64 MaxFrames) {
    if (mAt == EndOf(mOpen) && (mOpen + 1 == mParts.size() || !MoveTo(mAt))) return 0;
    const qint64 Wanted = std::min(MaxFrames, EndOf(mOpen) - mAt);
    const size_t FrameBytes = sizeof(float) * static_cast<size_t>(mChannels);
    size_t Done = 0;
    int Outcome = MPG123_NEW_FORMAT;
    while (Done == 0 && Outcome == MPG123_NEW_FORMAT)
        Outcome = mpg123_read(mHandle, Into, static_cast<size_t>(Wanted) * FrameBytes, &Done);
    auto Count = static_cast<qint64>(Done / FrameBytes);
    if (Count == 0) std::fill_n(Into, (Count = Wanted) * mChannels, 0.0F);
    mAt += Count;
    return Count;
}

bool MpegSound::MoveTo(qint64 Frame) {
    const auto Next =
        std::upper_bound(mParts.begin(), mParts.end(), Frame,
                         [](qint64 Wanted, const Part& Each) { return Wanted < Each.Start; });
    const auto Its = std::prev(Next);
    mAt = Frame;
    return Enter(static_cast<size_t>(Its - mParts.begin())) &&
           mpg123_seek(mHandle, Frame - Its->Start, SEEK_SET) >= 0;
}

}  // namespace neb
