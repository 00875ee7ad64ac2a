// Where the user's own pictures and words for a slide come from: a file dialog, a drag, the sound
// recorder. For the slide manager.
#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

QT_BEGIN_NAMESPACE
class QMimeData;
QT_END_NAMESPACE

namespace neb {

// Asks for a picture file, in the folder of the one before (a full path) where there is one. Empty
// when the question was cancelled.
QString AskForPicture(const QString& Before);
// Asks for a sound file; empty when the question was cancelled.
QString AskForSound();
// The ending (".flac") under which a slide keeps a sound file: its own, and ".wav" for one whose
// name does not say that it is a sound; the content tells in any case.
QString SoundEnding(const QString& Path);
// Where a sound that is not yet saved is put to be heard.
QString HeardSound();
// The first picture or sound among what is dragged; empty when there is none.
QString DraggedFile(const QMimeData& Data);
// Opens the recorder: the bytes of a WAV file, or nothing when none was made. All windows record
// into one file, so the bytes are for the caller to keep.
std::optional<QByteArray> RecordSound();

}  // namespace neb
