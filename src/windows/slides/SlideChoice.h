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
// The first picture among what is dragged; empty when there is none.
QString DraggedPicture(const QMimeData& Data);
// Opens the recorder: the bytes of a WAV file, or nothing when none was made. All windows record
// into one file, so the bytes are for the caller to keep.
std::optional<QByteArray> RecordSound();

}  // namespace neb
