#include "program/desktop/ToolkitSettings.h"

#include <QStandardPaths>

#include "support/Fault.h"
#include "support/files/modHostFiles.h"

namespace neb {

QString ToolkitSetting(const QByteArray& File, const char* Key) {
    for (const QByteArray& Line : File.split('\n')) {
        const qsizetype Is = Line.indexOf('=');
        if (Is > 0 && Line.left(Is).trimmed() == Key)
            return QString::fromUtf8(Line.mid(Is + 1).trimmed());
    }
    return {};
}

QString ToolkitSettingIn(const QString& ConfigFolder, const char* Key) {
    for (const char* Name : {"/gtk-4.0/settings.ini", "/gtk-3.0/settings.ini"}) {
        try {
            const QString Path = ConfigFolder + QLatin1String(Name);
            const QString Value =
                FileExists(Path) ? ToolkitSetting(ReadFile(Path), Key) : QString();
            if (!Value.isEmpty()) return Value;
        } catch (const Fault&) {
            continue;
        }
    }
    return {};
}

QString ToolkitSetting(const char* Key) {
    return ToolkitSettingIn(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation),
                            Key);
}

}  // namespace neb
