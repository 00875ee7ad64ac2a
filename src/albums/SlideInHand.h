// The slide that a user has in hand: what is stored of it, and what has been made of it since. The
// slide manager shows it and tells it what the user does; SlideSave.h stores it.
#pragma once

#include <QByteArray>
#include <cstdint>
#include <functional>
#include <optional>

#include "db/clsNEBSlide.h"
#include "pictures/ImgX.h"

namespace neb {

class SlideInHand {
  public:
    // What becomes of the sound at the next save: the user's last word on it counts.
    enum class Sound { AsStored, Recorded, Chosen, Cleared };
    // Makes the bytes of the slide's JPEG, fitted. It throws Fault, on any thread.
    using JpegMaker = std::function<QByteArray()>;

    // A slide as it is stored, or a new one, with nothing made of it yet. Its pixels follow.
    void Take(std::int32_t AlbumID, const clsNEBSlide& Stored);
    void TakeNew(std::int32_t AlbumID);
    // What has been made is for this slide from here on: for a new one (0) when its own has gone,
    // and for one that has just come into the album.
    void MoveTo(std::int32_t AlbumID, std::int32_t SlideID);
    // The picture as it was read, or none; gives back the one before, to be let go of where that
    // holds nobody up.
    std::optional<ImgX> SetPicture(std::optional<ImgX> Read);

    // What the user makes of it.
    void SetCaption(const QString& Caption);
    void SetPlaying(bool Override, bool Repeat);
    void ChoosePicture(const QString& Path);  // in full; its pixels follow
    std::optional<ImgX> Turn(ImgX Turned);    // turned or flipped; as SetPicture
    void Record(const QByteArray& Wave);      // the bytes of a WAV file
    // The bytes of a sound file, and the ending (".flac") that it keeps.
    void ChooseSound(const QByteArray& File, const QString& Ending);
    void ClearSound();

    std::int32_t AlbumID() const { return mAlbumID; }
    std::int32_t SlideID() const { return mNow.SlideID; }
    bool IsNew() const { return mNow.SlideID == 0; }
    // The slide that it was until that went, which may come back; 0: none.
    std::int32_t GoneID() const { return mGoneID; }
    bool IsChanged() const { return mChanged; }
    bool IsTurned() const { return mTurned; }

    const QString& Caption() const { return mNow.SlideText; }
    const std::optional<ImgX>& Picture() const { return mPicture; }
    // The picture's stored name, or the full path of a file; empty for none. A new slide has the
    // name of the slide before: one that is saved without a picture has passed the check for years.
    const QString& PictureName() const;
    // Whether its turned pixels stand by themselves: the slide whose file they came from has gone.
    bool IsPictureLoose() const;
    // How its new picture is made; none: the one that is stored stands. Pixels that were only
    // turned since they were read from a JPEG come without loss where its size allows.
    JpegMaker Jpeg(const PictureKeeping& Keeping = {}) const;

    Sound SoundState() const { return mSound; }
    bool HasSound() const { return !mNow.SoundTrackLoc.isEmpty(); }  // one is stored
    const QString& SoundName() const { return mNow.SoundTrackLoc; }  // of the one that is stored
    // Of a sound that was recorded or chosen.
    const QByteArray& NewSound() const { return mNewSound; }
    const QString& NewEnding() const { return mNewEnding; }
    bool Override() const { return mNow.Override; }
    bool Repeat() const { return mNow.Repeat; }

  private:
    void Renew(std::int32_t AlbumID, const clsNEBSlide& Now);
    void SetSound(Sound Now, const QByteArray& File, const QString& Ending);

    std::int32_t mAlbumID = 0;
    std::int32_t mGoneID = 0;
    clsNEBSlide mNow;     // SlideLoc: the stored name, or the full path of a chosen file
    QString mNameBefore;  // of the picture of the slide that was taken last
    std::optional<ImgX> mPicture;
    QByteArray mNewSound;
    QString mNewEnding;
    Sound mSound = Sound::AsStored;
    bool mTurned = false;
    bool mMoved = false;  // what was made began with another slide, or with none
    bool mChanged = false;
};

}  // namespace neb
