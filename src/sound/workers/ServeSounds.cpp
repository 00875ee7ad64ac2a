#include "sound/workers/ServeSounds.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <new>
#include <utility>

#include "sound/workers/SoundTalk.h"
#include "support/Fault.h"
#include "support/Texts.h"

namespace neb {
namespace {

// The file, asked for piece by piece of the program, which has it open.
class BytesOfProgram : public SoundBytes {
  public:
    BytesOfProgram(LockedRoom& Room, qint64 Length, const bool& Plays)
        : mRoom(Room), mLength(Length), mPlays(Plays) {}

    qint64 Length() const override { return mLength; }
    qint64 ReadAt(qint64 At, char* Into, qint64 MaxLength) override {
        const Piece* const Its = PieceWith(At);
        if (!Its) return 0;
        const qint64 Count = std::min(MaxLength, Its->End() - At);
        std::memcpy(Into, PlaceOf(*Its) + (At - Its->At), static_cast<size_t>(Count));
        return Count;
    }

  private:
    struct Piece {
        qint64 At = 0, Length = 0;
        qint64 End() const { return At + Length; }
    };
    const std::byte* PlaceOf(const Piece& Its) const {
        return mRoom.In().data() + (&Its - mPieces.data()) * MostPiece;
    }
    const Piece* PieceWith(qint64 At) {
        for (const Piece& Each : mPieces)
            if (At >= Each.At && At < Each.End()) return &Each;
        return At < mLength ? Ask(At) : nullptr;
    }
    const Piece* Ask(qint64 At) {
        const Piece& Before = mPieces[mLast];
        const bool GoesOn = At == Before.End() && !mPlays;
        const qint64 Wanted =
            GoesOn ? std::clamp(2 * Before.Length, LeastPiece, MostPiece) : LeastPiece;
        mLast = (mLast + 1) % mPieces.size();
        Piece& Its = mPieces[mLast] = {};
        mRoom.Send(LockedMessage(SoundTalk::AskBytes,
                                 {At, Wanted, static_cast<qint64>(mLast) * MostPiece}));
        const LockedMessage Reply = mRoom.Receive();
        if (!Reply.Is(SoundTalk::Bytes)) std::_Exit(1);
        Its = {At, Reply.Numbers[0]};
        return Its.Length > 0 ? &Its : nullptr;
    }

    LockedRoom& mRoom;
    const qint64 mLength;
    const bool& mPlays;
    std::array<Piece, HeldPieces> mPieces;
    size_t mLast = 0;
};

class Worker {
  public:
    Worker(LockedRoom& Room, const SoundDecoders& Decoders) : mRoom(Room), mDecoders(Decoders) {}
    void DoNext() { mRoom.Send(AnswerTo(mRoom.Receive())); }

  private:
    LockedMessage AnswerTo(const LockedMessage& Request) try {
        return Do(Request);
    } catch (const Fault& Reason) {
        return Problem(Reason.What());
    } catch (const std::bad_alloc&) {
        return Problem(tr("There is not enough memory for the sound."));
    } catch (const std::exception&) {
        return Problem(tr("The sound is damaged and cannot be played."));
    }
    LockedMessage Do(const LockedMessage& Request) {
        const auto& [A, B, C, D, E, F] = Request.Numbers;
        if (Request.Is(SoundTalk::Open)) return Opened(A);
        if (Request.Is(SoundTalk::Read) && mSound) return Samples(A, B, C);
        if (Request.Is(SoundTalk::Tags)) return TagTexts(A);
        std::_Exit(1);
    }
    LockedMessage Opened(qint64 Length) {
        mSound.reset();
        mPlays = false;
        mSound = mDecoders.Open(std::make_unique<BytesOfProgram>(mRoom, Length, mPlays));
        mPlays = true;
        return LockedMessage(SoundTalk::Opened,
                             {mSound->Rate(), mSound->Channels(), mSound->Frames()});
    }
    LockedMessage Samples(qint64 From, qint64 Frames, qint64 Step) {
        if (From >= 0) mSound->Seek(From);
        auto* const Into = reinterpret_cast<float*>(mRoom.Out().data());
        qint64 Done = 0, Part = Step;
        for (; Done < Frames && Part == Step; Done += Part)
            Part = mSound->Read(Into + Done * mSound->Channels(), std::min(Step, Frames - Done));
        return LockedMessage(SoundTalk::Samples, {Done});
    }
    LockedMessage TagTexts(qint64 Length) {
        mPlays = false;
        const SongTags Found =
            mDecoders.Tags(std::make_unique<BytesOfProgram>(mRoom, Length, mPlays));
        const QByteArray Title = Short(Found.Title, MostTagText);
        const QByteArray Artist = Short(Found.Artist, MostTagText);
        Put(Title + Artist);
        return LockedMessage(SoundTalk::TagTexts, {Title.size(), Artist.size()});
    }
    LockedMessage Problem(const QString& Sentence) {
        const QByteArray Text = Short(Sentence, MostSoundSentence);
        Put(Text);
        return LockedMessage(SoundTalk::Problem, {Text.size()});
    }
    // A character takes three bytes at most, two of them four.
    static QByteArray Short(const QString& Text, qint64 MostBytes) {
        return Text.left(MostBytes / 3).toUtf8();
    }
    void Put(const QByteArray& Bytes) {
        std::memcpy(mRoom.Out().data(), Bytes.constData(), static_cast<size_t>(Bytes.size()));
    }

    LockedRoom& mRoom;
    const SoundDecoders& mDecoders;
    bool mPlays = false;  // what was opened
    std::unique_ptr<SoundDecoder> mSound;
};

}  // namespace

void ServeSounds(LockedRoom& Room, const SoundDecoders& Decoders) {
    Worker Here(Room, Decoders);
    for (;;) Here.DoNext();
}

}  // namespace neb
