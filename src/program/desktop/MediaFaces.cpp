#include "program/desktop/MediaFaces.h"

#include <QGuiApplication>
#include <QUrl>

#include "support/files/HostNames.h"

namespace neb {
namespace {

constexpr double Second = 1'000'000;  // microseconds

QString WordFor(MediaStatus::State Is) {
    switch (Is) {
        case MediaStatus::State::Playing:
            return QStringLiteral("Playing");
        case MediaStatus::State::Paused:
            return QStringLiteral("Paused");
        case MediaStatus::State::Stopped:
            break;
    }
    return QStringLiteral("Stopped");
}

QDBusObjectPath TrackOf(const MediaStatus& Status) {
    return QDBusObjectPath(QStringLiteral("/neb_slide_show/slide/%1").arg(Status.TrackNumber));
}

QVariantMap MetadataOf(const MediaStatus& Status) {
    if (Status.TrackNumber < 1) return {};
    QVariantMap Of{{QStringLiteral("mpris:trackid"), QVariant::fromValue(TrackOf(Status))},
                   {QStringLiteral("xesam:title"), Status.Title},
                   {QStringLiteral("xesam:album"), Status.Album},
                   {QStringLiteral("xesam:trackNumber"), Status.TrackNumber}};
    if (Status.Length > 0)
        Of.insert(QStringLiteral("mpris:length"), qRound64(Status.Length * Second));
    if (!Status.PictureFile.isEmpty())
        Of.insert(QStringLiteral("mpris:artUrl"),
                  UrlOfFile(Status.PictureFile).toString(QUrl::FullyEncoded));
    return Of;
}

}  // namespace

QVariantMap MediaProperties(const MediaStatus& Status) {
    return {
        {QStringLiteral("PlaybackStatus"), WordFor(Status.Is)},
        {QStringLiteral("Metadata"), MetadataOf(Status)},
        {QStringLiteral("CanGoNext"), Status.CanGo},
        {QStringLiteral("CanGoPrevious"), Status.CanGo},
        {QStringLiteral("CanPlay"), Status.CanPause || Status.Is != MediaStatus::State::Playing},
        {QStringLiteral("CanPause"), Status.CanPause}};
}

QString MediaRootFace::Identity() const {
    return QGuiApplication::applicationDisplayName();
}

QString MediaRootFace::DesktopEntry() const {
    return QGuiApplication::desktopFileName();
}

QVariant MediaPlayerFace::Told(const char* Property) const {
    return MediaProperties(mPlayer.Status()).value(QLatin1String(Property));
}

qlonglong MediaPlayerFace::Position() const {
    return qRound64(mPlayer.Position() * Second);
}

}  // namespace neb
