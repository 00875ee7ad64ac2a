#include "db/modTables.h"

#include <QRegularExpression>
#include <cmath>

#include "db/records/RecordCodec.h"
#include "support/Fault.h"
#include "support/Texts.h"
#include "support/files/modHostFiles.h"
#include "support/modNumbers.h"

namespace neb {
namespace {

constexpr qsizetype NameWidth = 20;
constexpr qsizetype ValueWidth = 255;
constexpr size_t Growth = 100;
constexpr size_t FactoryRows = 127;

QString FixedField(const QString& Text, qsizetype Width) {
    return Text.left(Width).leftJustified(Width, u' ');
}

template <class Row>
Row& AppendRow(std::vector<Row>& Rows) {
    if (Rows.size() == Rows.capacity()) Rows.reserve(Rows.capacity() + Growth);
    return Rows.emplace_back();
}

// True when the file holds at least one record.
bool ReadEffectStatRecords(EffectStatRows& Rows, std::optional<RecordBytes> File) {
    if (!File) return false;
    const qint64 Count = RecordCount(File->Length, WidthOf<EffectStatRecord>);
    Rows.reserve(static_cast<size_t>(Count));
    ForEachRecord<EffectStatRecord>(*File, [&](EffectStatRecord&& Row) { Rows.push_back(Row); });
    return Count > 0;
}

// Numbers after the heading line, separated by commas and blanks.
void ReadFactoryTimes(EffectStatRows& Rows, const QString& Path) {
    static const QRegularExpression Between(QStringLiteral("[,\\s]+"));
    const QString Text = QString::fromLatin1(ReadFile(Path)).section(u'\n', 1);
    const QStringList Numbers = Text.split(Between, Qt::SkipEmptyParts);
    if (Numbers.size() < 2 * static_cast<qsizetype>(FactoryRows))
        throw Fault(tr("The file of effect times ends too early."), Path);
    Rows.reserve(FactoryRows);
    for (size_t I = 0; I < FactoryRows; ++I) {
        const auto Place = 2 * static_cast<qsizetype>(I);
        const double Time = std::round(Val(Numbers[Place + 1]) * 10000) / 10000;
        Rows.push_back({CInt(Val(Numbers[Place])), Time, 0});
    }
}

std::uint8_t ClassOfTime(double AvgTime) {
    if (AvgTime < 0.99) return 1;
    return AvgTime < 1.5 ? 2 : 3;
}

}  // namespace

void SetProperty(PropertyRows& Rows, const QString& Name, const QString& Value) {
    const auto Found = std::find_if(Rows.begin(), Rows.end(), [&](const PropertyRecord& Row) {
        return Row.PropertyName == Name;
    });
    PropertyRecord& Row = Found != Rows.end() ? *Found : AppendRow(Rows);
    Row.PropertyName = FixedField(Name, NameWidth);
    Row.PropertyValue = FixedField(Value, ValueWidth);
    Row.Deleted = 0;
}

QString PropertyValueOf(const PropertyRows& Rows, const QString& Name) {
    for (const PropertyRecord& Row : Rows)
        if (Row.Deleted == 0 && Row.PropertyName == Name) return Row.PropertyValue;
    return {};
}

void FillWithProperties(const PropertyRows& Rows, ComboList& Combo) {
    Combo.Clear();
    for (const PropertyRecord& Row : Rows)
        if (Row.Deleted == 0) Combo.AddItem(Row.PropertyName, 0);
}

void ReadProperties(PropertyRows& Rows, const RecordSource& Source) {
    Rows = {};
    std::optional<RecordBytes> File = Source(RecordFile::Properties);
    if (!File) return;
    Rows.reserve(static_cast<size_t>(RecordCount(File->Length, WidthOf<PropertyRecord>)) + Growth);
    ForEachRecord<PropertyRecord>(*File,
                                  [&](PropertyRecord&& Row) { Rows.push_back(std::move(Row)); });
}

void SetEffectStat(EffectStatRows& Rows, std::int32_t Effect, double AvgTime) {
    const auto Found = std::find_if(Rows.begin(), Rows.end(), [&](const EffectStatRecord& Row) {
        return Row.Effect == Effect;
    });
    (Found != Rows.end() ? *Found : AppendRow(Rows)) = {Effect, AvgTime, 0};
}

void FillWithEffectStats(const EffectStatRows& Rows, ComboList& Combo) {
    Combo.Clear();
    for (const EffectStatRecord& Row : Rows)
        if (Row.Deleted == 0)
            Combo.AddItem(QString::number(Row.Effect) + u' ' + ShortestDecimal(Row.AvgTime),
                          Row.Effect);
}

void ReadEffectStats(EffectStatRows& Rows, const RecordSource& Source, const QString& ProgramPath) {
    Rows = {};
    if (ReadEffectStatRecords(Rows, Source(RecordFile::EffectStats))) return;
    if (ProgramPath.isEmpty()) return;
    const RecordSource Factory = RecordsInDirectory(ProgramPath);
    if (ReadEffectStatRecords(Rows, Factory(RecordFile::EffectStats))) return;
    const QString Text = ProgramPath + QStringLiteral("EffectStats.txt");
    if (FileExists(Text)) ReadFactoryTimes(Rows, Text);
}

void ClassifyByTime(const EffectStatRows& Rows, std::span<std::uint8_t> Classes,
                    std::int32_t MaxEffect, std::int32_t LowerBound) {
    for (const EffectStatRecord& Row : Rows) {
        if (Row.Deleted != 0 || Row.Effect > MaxEffect || Row.Effect < LowerBound) continue;
        const auto Place = static_cast<size_t>(std::int64_t{Row.Effect} - LowerBound);
        if (Place < Classes.size()) Classes[Place] = ClassOfTime(Row.AvgTime);
    }
}

}  // namespace neb
