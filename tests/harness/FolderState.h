// What lies below a folder at a moment, for tests that prove that nothing was touched there.
#pragma once

#include <QDateTime>
#include <QDirIterator>
#include <QFile>
#include <string>

namespace neb::harness {

// A line for every file and folder, with its bytes and the date of its last change.
inline QStringList Everything(const QString& Folder) {
    QStringList All;
    QDirIterator Walk(Folder, QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden,
                      QDirIterator::Subdirectories);
    while (Walk.hasNext()) {
        const QFileInfo Each(Walk.next());
        QFile File(Each.filePath());
        const bool Opened = Each.isFile() && File.open(QIODevice::ReadOnly);
        All << Each.filePath() + u' ' + Each.lastModified().toString(Qt::ISODateWithMs) + u' ' +
                   QString::fromLatin1(Opened ? File.readAll().toHex() : QByteArray());
    }
    All.sort();
    return All;
}

// The beginnings of the lines that went and that came; empty when the two are alike.
inline std::string Differences(const QStringList& Before, const QStringList& Now) {
    constexpr qsizetype Shown = 200;
    QString Text;
    for (const QString& Each : Before)
        if (!Now.contains(Each)) Text += QStringLiteral("\n- ") + Each.left(Shown);
    for (const QString& Each : Now)
        if (!Before.contains(Each)) Text += QStringLiteral("\n+ ") + Each.left(Shown);
    return Text.toStdString();
}

}  // namespace neb::harness
