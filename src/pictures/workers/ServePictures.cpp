#include "pictures/workers/ServePictures.h"

#include <malloc.h>

#include <cstring>
#include <new>
#include <utility>

#include "pictures/formats/DecodeHost.h"
#include "pictures/formats/PictureFaults.h"
#include "pictures/workers/WorkerTalk.h"
#include "support/MediaTypes.h"
#include "support/Texts.h"

namespace neb {
namespace {

// The program in front of the door.
class BeforeTheDoor : public DecodeHost {
  public:
    explicit BeforeTheDoor(LockedRoom& Room) : mRoom(Room) {}

    // What is said from here on belongs to the request.
    LockedMessage NextRequest() {
        const LockedMessage Request = mRoom.Receive();
        mTicket = Request.Numbers[TicketAt];
        mPlaceIsTaken = false;
        return Request;
    }
    void Say(const LockedMessage& Message) { mRoom.Send(WithTicket(Message, mTicket)); }

    QSize Needed(QSize Full) {
        Say(LockedMessage(Talk::AskNeeded, {Full.width(), Full.height()}));
        const LockedMessage Reply = mRoom.Receive();
        return {static_cast<int>(Reply.Numbers[0]), static_cast<int>(Reply.Numbers[1])};
    }
    void Acquire(QSize Size, qint64 Bytes) override {
        Say(LockedMessage(Talk::AskMemory, {Size.width(), Size.height(), Bytes}));
        if (!mRoom.Receive().Is(Talk::Granted)) ThrowTooLarge(Size);
    }
    void Release(QSize, qint64) override { Say(LockedMessage(Talk::Release)); }
    QByteArray SvgOf(const QByteArray& Emf) override {
        PutBytes(Emf);
        Say(LockedMessage(Talk::AskSvg, {Emf.size()}));
        const LockedMessage Reply = mRoom.Receive();
        if (Reply.Is(Talk::Problem)) {
            const QByteArray Text = Taken(Reply.Numbers[2], Reply.Numbers[1]);
            throw Fault(QString::fromUtf8(Text), {}, static_cast<quint32>(Reply.Numbers[0]));
        }
        return Taken(Reply.Numbers[0], Reply.Numbers[1]);
    }

    // Where the program finds them, too. Once for each request: a drawing may hold many pictures.
    uchar* PlaceFor(qint64 Bytes) override {
        const auto Room = mRoom.Out();
        if (std::exchange(mPlaceIsTaken, true) || Bytes > qint64(Room.size())) return nullptr;
        return reinterpret_cast<uchar*>(Room.data());
    }

    void PutBytes(QByteArrayView Bytes) {
        if (Bytes.data() == reinterpret_cast<const char*>(mRoom.Out().data())) return;
        if (static_cast<size_t>(Bytes.size()) > mRoom.Out().size()) ThrowTooLarge();
        std::memcpy(mRoom.Out().data(), Bytes.data(), static_cast<size_t>(Bytes.size()));
    }
    QByteArray Taken(qint64 At, qint64 Length) const {
        const auto Part = mRoom.In().subspan(static_cast<size_t>(At), static_cast<size_t>(Length));
        return {reinterpret_cast<const char*>(Part.data()), static_cast<qsizetype>(Part.size())};
    }
    // As it lies there: nobody writes it before we have answered.
    QByteArray Request(qint64 Length) const {
        const auto Part = mRoom.In().first(static_cast<size_t>(Length));
        return QByteArray::fromRawData(reinterpret_cast<const char*>(Part.data()),
                                       static_cast<qsizetype>(Part.size()));
    }

  private:
    LockedRoom& mRoom;
    std::int64_t mTicket = 0;
    bool mPlaceIsTaken = false;
};

class Worker {
  public:
    Worker(LockedRoom& Room, PictureReader& Reader) : mReader(Reader), mDoor(Room) {
        SetDecodeHost(mDoor);
    }
    void DoNext() {
        const LockedMessage Request = mDoor.NextRequest();
        mDoor.Say(AnswerTo(Request));
        if (Request.Numbers[0] > LargeBytes) ::malloc_trim(0);
    }

  private:
    // Of a photograph the next one has use for the same memory.
    static constexpr qint64 LargeBytes = 24 << 20;

    LockedMessage AnswerTo(const LockedMessage& Request) try {
        return Do(Request);
    } catch (const Fault& Reason) {
        return Problem(Reason.Number(), Reason.What());
    } catch (const std::bad_alloc&) {
        return Problem(FaultTooLarge, tr("There is not enough memory for the picture."));
    } catch (const std::exception& Reason) {
        return Problem(FaultDamagedPicture, QString::fromLocal8Bit(Reason.what()));
    }
    LockedMessage Do(const LockedMessage& Request) {
        const auto& [Length, A, B, C, D, E] = Request.Numbers;
        const QByteArray File = mDoor.Request(Length);
        if (Request.Is(Talk::Decode)) return Decoded(File, A != 0, B != 0);
        if (Request.Is(Talk::Turn)) {
            const auto Turned = mReader.Turned(File, {A != 0, static_cast<int>(B)});
            return Turned ? Bytes(*Turned) : LockedMessage(Talk::Nothing);
        }
        if (Request.Is(Talk::Notes))
            return Bytes(
                mReader.NotesFor({static_cast<int>(A), static_cast<int>(B)}, File, C != 0));
        if (Request.Is(Talk::DropPlace)) return Bytes(mReader.WithoutPlace(File));
        if (Request.Is(Talk::Profile))
            return mReader.IsScreenProfile(File) ? Bytes({}) : LockedMessage(Talk::Nothing);
        std::_Exit(1);
    }
    LockedMessage Decoded(const QByteArray& File, bool WithExtraFormats, bool Asks) {
        SetExtraFormats(WithExtraFormats);
        const NeededSize Needed = [this](QSize Full) { return mDoor.Needed(Full); };
        const DecodedPicture Made = mReader.Decode(File, Asks ? Needed : NeededSize());
        const QImage Picture = Made.Picture.convertToFormat(QImage::Format_RGB32);
        mDoor.PutBytes({Picture.constBits(), Picture.sizeInBytes()});
        return LockedMessage(Talk::Picture, {Picture.width(), Picture.height(), Made.Full.width(),
                                             Made.Full.height()});
    }
    LockedMessage Bytes(const QByteArray& Made) {
        mDoor.PutBytes(Made);
        return LockedMessage(Talk::Bytes, {Made.size()});
    }
    LockedMessage Problem(quint32 Number, const QString& Sentence) {
        const QByteArray Text = Sentence.left(MostSentence / 4).toUtf8();
        mDoor.PutBytes(Text);
        return LockedMessage(Talk::Problem, {Number, Text.size()});
    }

    PictureReader& mReader;
    BeforeTheDoor mDoor;
};

}  // namespace

void ServePictures(LockedRoom& Room, PictureReader& Reader,
                   const std::function<void()>& BeforeEach) {
    Worker Here(Room, Reader);
    for (;;) {
        if (BeforeEach) BeforeEach();
        Here.DoNext();
    }
}

}  // namespace neb
