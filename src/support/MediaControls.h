// What media keys, a headset or a phone want of the show that runs, and what the desktop shows of
// it. A running show is a MediaPlayer; the program's start puts the desktop's MediaControls into
// Services.
#pragma once

#include <QString>

namespace neb {

struct MediaStatus {
    enum class State { Playing, Paused, Stopped };
    State Is = State::Stopped;
    QString Title;        // the caption on the screen, or which slide it is
    QString Album;        // the show's name
    QString PictureFile;  // the slide's, a full path
    int TrackNumber = 0;  // place of the slide, from 1; 0: none has been shown
    double Length = 0;    // seconds that the slide stays up; 0: until the user goes on
    bool CanPause = false;
    bool CanGo = false;  // to the next slide and back

    bool operator==(const MediaStatus&) const = default;
};

enum class MediaCommand { Play, Pause, PlayPause, Stop, Next, Previous, Raise, Quit };

class MediaPlayer {
  public:
    virtual ~MediaPlayer() = default;
    // Returns at once; what is asked for is done when the events that wait are over.
    virtual void Obey(MediaCommand Command) = 0;
    virtual MediaStatus Status() const = 0;
    virtual double Position() const = 0;  // seconds that the slide has been up
};

class MediaControls {
  public:
    virtual ~MediaControls() = default;
    // From now until Withdraw the desktop's media keys are this player's. One that offers itself
    // while another has them gets none. Neither fails: without a desktop for it nothing happens.
    virtual void Offer(MediaPlayer& Player) = 0;
    virtual void Withdraw(MediaPlayer& Player) = 0;
    // The status may be another one than it was.
    virtual void Changed() = 0;
};

}  // namespace neb
