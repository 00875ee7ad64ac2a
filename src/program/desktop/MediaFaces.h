// The two interfaces that every media player has on the message bus: itself, and what it plays.
// Part of DesktopMedia.
#pragma once

#include <QDBusAbstractAdaptor>
#include <QDBusObjectPath>
#include <QStringList>
#include <QVariantMap>

#include "support/MediaControls.h"

namespace neb {

// What of the second face changes while it plays, by its names on the bus.
QVariantMap MediaProperties(const MediaStatus& Status);

class MediaRootFace : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.mpris.MediaPlayer2")
    Q_PROPERTY(bool CanQuit READ Yes)
    Q_PROPERTY(bool CanRaise READ Yes)
    Q_PROPERTY(bool HasTrackList READ No)
    Q_PROPERTY(QString Identity READ Identity)
    Q_PROPERTY(QString DesktopEntry READ DesktopEntry)
    Q_PROPERTY(QStringList SupportedUriSchemes READ NoTexts)
    Q_PROPERTY(QStringList SupportedMimeTypes READ NoTexts)

  public:
    MediaRootFace(QObject& Of, MediaPlayer& Player) : QDBusAbstractAdaptor(&Of), mPlayer(Player) {}
    bool Yes() const { return true; }
    bool No() const { return false; }
    QStringList NoTexts() const { return {}; }
    QString Identity() const;
    QString DesktopEntry() const;

  public Q_SLOTS:
    void Raise() { mPlayer.Obey(MediaCommand::Raise); }
    void Quit() { mPlayer.Obey(MediaCommand::Quit); }

  private:
    MediaPlayer& mPlayer;
};

class MediaPlayerFace : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.mpris.MediaPlayer2.Player")
    Q_PROPERTY(QString PlaybackStatus READ PlaybackStatus)
    Q_PROPERTY(QVariantMap Metadata READ Metadata)
    Q_PROPERTY(double Rate READ One)
    Q_PROPERTY(double MinimumRate READ One)
    Q_PROPERTY(double MaximumRate READ One)
    Q_PROPERTY(double Volume READ One)
    Q_PROPERTY(qlonglong Position READ Position)
    Q_PROPERTY(bool CanGoNext READ CanGo)
    Q_PROPERTY(bool CanGoPrevious READ CanGo)
    Q_PROPERTY(bool CanPlay READ CanPlay)
    Q_PROPERTY(bool CanPause READ CanPause)
    Q_PROPERTY(bool CanSeek READ No)
    Q_PROPERTY(bool CanControl READ Yes)

  public:
    MediaPlayerFace(QObject& Of, MediaPlayer& Player)
        : QDBusAbstractAdaptor(&Of), mPlayer(Player) {}
    bool Yes() const { return true; }
    bool No() const { return false; }
    double One() const { return 1; }  // a show has the one speed; how loud it is, its devices say
    QString PlaybackStatus() const { return Told("PlaybackStatus").toString(); }
    QVariantMap Metadata() const { return Told("Metadata").toMap(); }
    bool CanGo() const { return Told("CanGoNext").toBool(); }
    bool CanPlay() const { return Told("CanPlay").toBool(); }
    bool CanPause() const { return Told("CanPause").toBool(); }
    qlonglong Position() const;  // microseconds

  public Q_SLOTS:
    void Next() { mPlayer.Obey(MediaCommand::Next); }
    void Previous() { mPlayer.Obey(MediaCommand::Previous); }
    void Pause() { mPlayer.Obey(MediaCommand::Pause); }
    void PlayPause() { mPlayer.Obey(MediaCommand::PlayPause); }
    void Stop() { mPlayer.Obey(MediaCommand::Stop); }
    void Play() { mPlayer.Obey(MediaCommand::Play); }
    // A slide has no places to go to: it says so in CanSeek, and does nothing when asked.
    void Seek(qlonglong) {}
    void SetPosition(const QDBusObjectPath&, qlonglong) {}
    void OpenUri(const QString&) {}

  private:
    QVariant Told(const char* Property) const;

    MediaPlayer& mPlayer;
};

}  // namespace neb
