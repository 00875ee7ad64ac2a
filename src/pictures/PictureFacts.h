// What a picture's file tells of the picture: words that people gave it, and when it was taken. The
// import orders pictures and proposes captions by it.
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

namespace neb {

struct PictureFacts {
    QString Words;    // title, caption or description, on one line; empty: none
    QDateTime Taken;  // by the camera's clock; invalid: not told
};

// Never throws; nothing is told where nothing can be read. Safe on worker threads.
PictureFacts FactsOf(const QByteArray& Bytes);
PictureFacts FactsOfFile(const QString& File);

}  // namespace neb
