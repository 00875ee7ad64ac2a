// Everything below a folder as one list of texts: a test that compares two of them sees whether
// anything was changed.
#pragma once

#include <QDateTime>
#include <QDirIterator>
#include <QStringList>

#include "support/modHostFiles.h"

namespace neb::harness {

// Every file and folder below a folder with its bytes and its date.
inline QStringList Everything(const QString& Folder) {
    using namespace Qt::StringLiterals;
    QStringList All;
    QDirIterator Walk(Folder, QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot | QDir::Hidden,
                      QDirIterator::Subdirectories);
    while (Walk.hasNext()) {
        const QFileInfo Each(Walk.next());
        const QByteArray Bytes = Each.isFile() ? ReadFile(Each.filePath()) : QByteArray();
        All << Each.filePath() + u' ' + Each.lastModified().toString(Qt::ISODateWithMs) + u' ' +
                   QString::number(qHash(Bytes));
    }
    All.sort();
    return All;
}

}  // namespace neb::harness
