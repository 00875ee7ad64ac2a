#include "windows/rehearsal/RehearsalTable.h"

#include "show/rehearsal/CueTexts.h"

namespace neb {
namespace {

constexpr CueColumnLook Looks[CueColumns] = {
    {"Slide", 0.05, true, 6},       {"From", 0.07, true, 9},      {"Length", 0.07, true, 9},
    {"Caption", 0.2, false, 0},     {"Track", 0.15, false, 22},   {"Clip", 0.11, false, 12},
    {"Its sound", 0.11, false, 14}, {"Problems", 0.24, false, 0},
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
            QString::number(Row.Seconds, 'f', 1) + QStringLiteral(" s"),
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
        Table.Columns.push_back({QLatin1String(Each.Heading), Each.Share, Each.Right});
    for (const RehearsalRow& Each : Sheet.Rows) Table.Rows.push_back(CueTextsOf(Each));
    Table.Tail = LinesOf(QStringLiteral("Problems"), Sheet.Findings.Problems) +
                 LinesOf(QStringLiteral("Notes"), Sheet.Findings.Notes);
    return Table;
}

}  // namespace neb
