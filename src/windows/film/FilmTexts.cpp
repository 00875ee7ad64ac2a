#include "windows/film/FilmTexts.h"

#include <QObject>

#include "support/Grouped.h"
#include "support/Texts.h"
#include "support/files/modHostFiles.h"
#include "support/modFUFL.h"
#include "support/modText.h"

namespace neb {
namespace {

// "m:ss", or "h:mm:ss" for a long one.
QString LengthText(double Seconds) {
    const qint64 Whole = qRound64(Seconds), Minutes = Whole / 60;
    const auto Two = [](qint64 Number) {
        return QStringLiteral("%1").arg(Number, 2, 10, QChar(u'0'));
    };
    if (Minutes < 60) return QStringLiteral("%1:%2").arg(Minutes).arg(Two(Whole % 60));
    return QStringLiteral("%1:%2:%3").arg(Minutes / 60).arg(Two(Minutes % 60), Two(Whole % 60));
}

}  // namespace

Answer<> CheckFilmFile(const FilmOrder& Order) {
    if (GetFileName(Order.Path).isEmpty())
        return Refuse(QObject::tr("You must first name the file of the film."),
                      tr("Missing User Input"));
    const QString Folder = GetFilePath(Order.Path);
    if (!Folder.isEmpty() && !FolderExists(Folder))
        return Refuse(QObject::tr("There is no folder of this name:\n%1").arg(Folder),
                      tr("Invalid User Input"));
    if (FolderExists(Order.Path))
        return Refuse(QObject::tr("There is a folder of this name:\n%1").arg(Order.Path),
                      tr("Invalid User Input"));
    return CheckFilmOrder(Order);
}

QStringList FilesToReplace(const FilmOrder& Order) {
    QStringList Files{Order.Path};
    if (Order.SubtitleFile) Files << SubtitlePath(Order.Path);
    Files.removeIf([](const QString& Each) { return !NameExists(Each); });
    return Files;
}

QString ReplaceText(const QStringList& There) {
    const QString Words = There.size() == 1 ? QObject::tr("%1\nis there already. Replace it?")
                                            : QObject::tr("%1\nare there already. Replace them?");
    return Words.arg(There.join(u'\n'));
}

QString FindingOutSize() {
    return QObject::tr("How large it will be is being found out ...");
}

QString MadeText(const QString& Path, const FilmReport& Report) {
    return QObject::tr("The film is made: %1, %2, %3")
        .arg(ReadableText(GetFileName(Path)), LengthText(Report.Seconds), ShortSize(Report.Bytes));
}

}  // namespace neb
