#include "windows/rehearsal/RehearsalTable.h"

#include "show/rehearsal/CueTexts.h"
#include "support/Grouped.h"
#include "support/Texts.h"

namespace neb {
namespace {

constexpr CueColumnLook Looks[CueColumns] = {
    {QT_TR_NOOP("Slide"), 0.05, true, 6},       {QT_TR_NOOP("From"), 0.07, true, 9},
    {QT_TR_NOOP("Length"), 0.07, true, 9},      {QT_TR_NOOP("Caption"), 0.2, false, 0},
    {QT_TR_NOOP("Track"), 0.15, false, 22},     {QT_TR_NOOP("Clip"), 0.11, false, 12},
    {QT_TR_NOOP("Its sound"), 0.11, false, 14}, {QT_TR_NOOP("Problems"), 0.24, false, 0},
};

QStringList LinesOf(const QString& Head, const std::vector<RehearsalFinding>& Findings) {
    if (Findings.empty()) return {};
    QStringList Lines{QString(), Head};
    for (const RehearsalFinding& Each : Findings) Lines << Each.Text;
    return Lines;
}

}  // namespace

const CueColumnLook& LookOf(int Col) {
    return Looks[Col];
}

QStringList CueTextsOf(const RehearsalRow& Row) {
    return {QString::number(Row.SlideSeq),
            TimeText(Row.At),
            Decimal(Row.Seconds, 1) + QStringLiteral(" s"),
            Row.Caption,
            Row.Track,
            Row.Clip,
            Row.SoundText,
            Row.Problems.join(QStringLiteral("; "))};
}

TableToPrint TableOf(const RehearsalSheet& Sheet) {
    TableToPrint Table{.Title = Sheet.Show + QStringLiteral(" (") + Sheet.Album + u')'};
    Table.Intro << Sheet.Summary() + u'.';
    for (const CueColumnLook& Each : Looks)
        Table.Columns.push_back({tr(Each.Heading), Each.Share, Each.Right});
    for (const RehearsalRow& Each : Sheet.Rows) Table.Rows.push_back(CueTextsOf(Each));
    Table.Tail = LinesOf(tr("Problems"), Sheet.Findings.Problems) +
                 LinesOf(tr("Notes"), Sheet.Findings.Notes);
    return Table;
}

}  // namespace neb
