// What a user sends who writes of a problem: machine, speed test, settings and the end of the log,
// without a word of his own. Help, Copy Report puts it on the clipboard. In English, for who reads
// it.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include "settings/PrivateWords.h"

namespace neb {

class clsSettings;

struct ReportParts {
    QStringList Machine;  // a line a fact
    const clsSettings& Settings;
    QByteArray Log;  // as it lies on the disk, or its end
};

constexpr int ReportLogLines = 200;  // the last ones

// Lines, each with its end.
QString ReportText(const ReportParts& Parts, const PrivateWords& Private);

// What the speed test has stored, a line a class of effects.
QStringList SpeedTestLines(const clsSettings& Settings);
// Every setting that the file has, as "[section]key=value". Numbers, yes or no and words of the
// program's own stand there; for others "(a path)" or "(a name)".
QStringList SettingLines(const clsSettings& Settings);

}  // namespace neb
