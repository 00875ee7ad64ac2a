#include "settings/ProblemReport.h"

#include <QRegularExpression>

#include "settings/SettingKeys.h"
#include "settings/clsSettings.h"

namespace neb {
namespace {

constexpr Setting OfSpeedTest[] = {Setting::Delay, Setting::Step, Setting::TestTimeout,
                                   Setting::AvgTime};

bool IsOfSpeedTest(Setting Which) {
    return std::ranges::find(OfSpeedTest, Which) != std::end(OfSpeedTest);
}

// The user may have written anything into the file.
bool IsOfItsType(const QString& Value, SettingType Type) {
    static const QRegularExpression Flag(QStringLiteral(R"(^(?i:true|false|yes|no|-?[01])$)")),
        Choice(QStringLiteral(R"(^\.?[A-Za-z0-9]{1,12}$)")),
        Number(QStringLiteral(R"(^[-+0-9.,eE]*$|^N/A$)"));
    switch (Type) {
        case SettingType::Text:
            return false;
        case SettingType::Flag:
            return Flag.match(Value).hasMatch();
        case SettingType::Choice:
            return Choice.match(Value).hasMatch();
        default:
            return Number.match(Value).hasMatch();
    }
}

QString Told(const clsSettings& Settings, const SettingRow& Row, const QString& Member) {
    const QString Value = ReadText(Settings, {Row.Which, Member});
    if (IsOfItsType(Value, Row.Type)) return Value;
    const bool IsPath = Value.contains(u'/') || Value.contains(u'\\');
    return IsPath ? QStringLiteral("(a path)") : QStringLiteral("(a name)");
}

QString Place(const SettingRow& Row, const QString& Member) {
    return u'[' + SectionOf(Row, Member) + u']' + KeyOf(Row, Member);
}

// A line for each would be most of the report.
QString EffectsLine(const clsSettings& Settings, const SettingRow& Row) {
    QStringList Off;
    bool IsThere = false;
    for (const QString& Member : MembersOf(Row)) {
        if (!HasSetting(Settings, {Row.Which, Member})) continue;
        IsThere = true;
        if (!ReadFlag(Settings, {Row.Which, Member})) Off << Member;
    }
    if (!IsThere) return {};
    return Place(Row, QStringLiteral("*")) + QStringLiteral("=all") +
           (Off.isEmpty() ? QString() : QStringLiteral(" but ") + Off.join(u' '));
}

void AddSettings(const clsSettings& Settings, const SettingRow& Row, QStringList& To) {
    if (Row.Which == Setting::EffectSelected) {
        const QString Line = EffectsLine(Settings, Row);
        if (!Line.isEmpty()) To << Line;
        return;
    }
    for (const QString& Member : MembersOf(Row))
        if (HasSetting(Settings, {Row.Which, Member}))
            To << Place(Row, Member) + u'=' + Told(Settings, Row, Member);
}

// The time and the level before its text are the program's own.
QString LogLine(const QString& Line, const PrivateWords& Private) {
    static const QRegularExpression Begin(
        QStringLiteral(R"(^\d\d-\d\d-\d{4} \d\d:\d\d\t[A-Za-z]+\t)"));
    const QString Head = Begin.match(Line).captured();
    return Head + Private.WithoutAll(Line.mid(Head.size()));
}

QStringList LogLines(const QByteArray& Log, const PrivateWords& Private) {
    QStringList Lines = QString::fromUtf8(Log).split(u'\n', Qt::SkipEmptyParts);
    Lines = Lines.mid(std::max<qsizetype>(0, Lines.size() - ReportLogLines));
    for (QString& Each : Lines) Each = LogLine(Each, Private);
    return Lines;
}

QString Part(const QString& Title, const QStringList& Lines) {
    const QString Body = Lines.isEmpty() ? QStringLiteral("(none)\n") : Lines.join(u'\n') + u'\n';
    return u'\n' + Title + u'\n' + Body;
}

}  // namespace

QStringList SpeedTestLines(const clsSettings& Settings) {
    QStringList All;
    for (const QString& Level : MembersOf(RowOf(Setting::Step))) {
        QStringList Values;
        for (const Setting Each : OfSpeedTest)
            if (HasSetting(Settings, {Each, Level}))
                Values << KeyOf(RowOf(Each), Level) + u'=' + Told(Settings, RowOf(Each), Level);
        if (!Values.isEmpty()) All << Values.join(u' ');
    }
    return All;
}

QStringList SettingLines(const clsSettings& Settings) {
    QStringList All;
    for (const SettingRow& Row : SettingRows())
        if (!IsOfSpeedTest(Row.Which)) AddSettings(Settings, Row, All);
    return All;
}

QString ReportText(const ReportParts& Parts, const PrivateWords& Private) {
    QStringList Machine;
    for (const QString& Each : Parts.Machine) Machine << Private.WithoutNames(Each);
    return Machine.join(u'\n') + u'\n' +
           Part(QStringLiteral("Speed test"), SpeedTestLines(Parts.Settings)) +
           Part(QStringLiteral("Settings"), SettingLines(Parts.Settings)) +
           Part(QStringLiteral("Log"), LogLines(Parts.Log, Private));
}

}  // namespace neb
