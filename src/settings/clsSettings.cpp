#include "settings/clsSettings.h"

#define SI_NO_CONVERSION  // the file is UTF-8 and stays so
#include <SimpleIni.h>

#include <QStringDecoder>

#include "support/files/modHostFiles.h"
#include "support/modFUFL.h"
#include "support/modText.h"

namespace neb {
namespace {

bool IsSettingsLine(const QByteArray& Line) {
    return Line.isEmpty() || Line.startsWith(';') || Line.startsWith('#') ||
           (Line.startsWith('[') && Line.endsWith(']')) || Line.indexOf('=') > 0;
}

bool IsSettingsText(const QByteArray& Text) {
    for (const QByteArray& Line : Text.split('\n'))
        if (Line.contains('\0') || !IsSettingsLine(Line.trimmed())) return false;
    return true;
}

// Editors mark Unicode at the start of a file; what is neither marked nor valid was written in
// the code page of an older desktop.
QByteArray AsUtf8(const QByteArray& Bytes) {
    const auto Marked = QStringConverter::encodingForData(Bytes);
    QStringDecoder Decoder(Marked.value_or(QStringConverter::Utf8),
                           QStringConverter::Flag::Stateless);
    const QString Text = Decoder(Bytes);
    return (Decoder.hasError() && !Marked ? FromAnsi(Bytes) : Text).toUtf8();
}

// Behind the last line that is a setting or a section.
qsizetype EndOfSettings(const QByteArray& Text) {
    qsizetype At = 0, End = 0;
    for (const QByteArray& Line : Text.split('\n')) {
        At = qMin(At + Line.size() + 1, Text.size());
        const QByteArray Content = Line.trimmed();
        if (!Content.isEmpty() && Content[0] != ';' && Content[0] != '#') End = At;
    }
    return End;
}

bool IsQuoted(const QString& Value) {
    return Value.size() >= 2 && Value.front() == u'"' && Value.back() == u'"';
}

// A value is one line, and the file's reader cuts blanks around it: quotes keep them.
QString AsLine(QString Value) {
    for (QChar& Character : Value)
        if (Character == u'\n' || Character == u'\r' || Character.isNull()) Character = u' ';
    const bool Cut = Value.trimmed().size() < Value.size();
    return Cut || IsQuoted(Value) ? u'"' + Value + u'"' : Value;
}

QString FromLine(const QString& Line) {
    return IsQuoted(Line) ? Line.sliced(1, Line.size() - 2) : Line;
}

}  // namespace

struct clsSettings::Store {
    Store() {
        Ini.SetMultiKey(false);
        Ini.SetMultiLine(false);
        Ini.SetUnicode(true);
        Ini.SetSpaces(false);
    }
    bool Read(const QByteArray& Text) {
        const qsizetype End = EndOfSettings(Text);
        Remarks = Text.mid(End).trimmed();
        RemarksFirst = End == 0;
        return Ini.LoadData(Text.constData(), static_cast<size_t>(End)) >= 0;
    }
    QByteArray Written() const {
        std::string Settings;
        Ini.Save(Settings);
        QByteArrayList Parts{QByteArray::fromStdString(Settings)};
        if (!Remarks.isEmpty()) Parts.insert(RemarksFirst ? 0 : 1, Remarks + '\n');
        return Parts.join('\n');
    }
    CSimpleIniA Ini;
    // Comments with no setting behind them, which the library would drop.
    QByteArray Remarks;
    bool RemarksFirst = false;
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
    return Value ? FromLine(QString::fromUtf8(Value)) : Default;
}

void clsSettings::PutValue(const QString& Section, const QString& Key, const QString& Value) {
    mStore->Ini.SetValue(Section.toUtf8().constData(), Key.toUtf8().constData(),
                         AsLine(Value).toUtf8().constData());
}

void clsSettings::Load() {
    mStore = std::make_unique<Store>();
    mDamaged = false;
    if (!FileExists(mFileName)) return;
    const QByteArray Text = AsUtf8(ReadFile(mFileName));
    mDamaged = !IsSettingsText(Text);
    if (mStore->Read(Text)) return;
    mDamaged = true;
    mStore = std::make_unique<Store>();
}

void clsSettings::Save() {
    MakeDirs(GetFilePath(mFileName));
    if (mDamaged) CopyFile(mFileName, mFileName + QStringLiteral(".damaged"));
    mDamaged = false;
    ReplaceFile(mFileName, mStore->Written());
}

}  // namespace neb
