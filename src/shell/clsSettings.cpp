#include "shell/clsSettings.h"

#define SI_NO_CONVERSION  // the file is UTF-8 and stays so
#include <SimpleIni.h>

#include "support/modFUFL.h"
#include "support/modHostFiles.h"

namespace neb {
namespace {

bool IsSettingsLine(const QByteArray& Line) {
    return Line.isEmpty() || Line.startsWith(';') || Line.startsWith('#') ||
           (Line.startsWith('[') && Line.endsWith(']')) || Line.indexOf('=') > 0;
}

bool IsSettingsText(QByteArray Bytes) {
    if (Bytes.startsWith("\xEF\xBB\xBF")) Bytes.remove(0, 3);
    for (const QByteArray& Line : Bytes.split('\n'))
        if (Line.contains('\0') || !IsSettingsLine(Line.trimmed())) return false;
    return true;
}

}  // namespace

struct clsSettings::Store {
    Store() {
        Ini.SetMultiKey(false);
        Ini.SetMultiLine(false);
        Ini.SetUnicode(true);
        Ini.SetSpaces(false);
    }
    CSimpleIniA Ini;
};

clsSettings::clsSettings() : mStore(std::make_unique<Store>()) {}
clsSettings::~clsSettings() = default;
clsSettings::clsSettings(clsSettings&&) noexcept = default;
clsSettings& clsSettings::operator=(clsSettings&&) noexcept = default;

void clsSettings::SetFileName(const QString& Path) {
    mFileName = Path;
}

QString clsSettings::GetValue(const QString& Section, const QString& Key,
                              const QString& Default) const {
    const char* Value =
        mStore->Ini.GetValue(Section.toUtf8().constData(), Key.toUtf8().constData(), nullptr);
    return Value ? QString::fromUtf8(Value) : Default;
}

void clsSettings::PutValue(const QString& Section, const QString& Key, const QString& Value) {
    mStore->Ini.SetValue(Section.toUtf8().constData(), Key.toUtf8().constData(),
                         Value.toUtf8().constData());
}

void clsSettings::Load() {
    mStore = std::make_unique<Store>();
    mDamaged = false;
    if (!FileExists(mFileName)) return;
    const QByteArray Bytes = ReadFile(mFileName);
    mDamaged = !IsSettingsText(Bytes);
    const auto Length = static_cast<size_t>(Bytes.size());
    if (mStore->Ini.LoadData(Bytes.constData(), Length) >= 0) return;
    mDamaged = true;
    mStore = std::make_unique<Store>();
}

void clsSettings::Save() {
    MakeDirs(GetFilePath(mFileName));
    if (mDamaged) CopyFile(mFileName, mFileName + QStringLiteral(".damaged"));
    mDamaged = false;
    std::string Text;
    mStore->Ini.Save(Text);
    ReplaceFile(mFileName, QByteArray::fromStdString(Text));
}

}  // namespace neb
