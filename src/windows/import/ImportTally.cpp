#include "windows/import/ImportTally.h"

#include <algorithm>

#include "controls/forms/Tell.h"
#include "support/Texts.h"

namespace neb {

std::int32_t ImportTally::PlaceOf(int Row) const {
    const auto Found = std::find(Entered.begin(), Entered.end(), Row);
    return Found == Entered.end() ? 0 : static_cast<std::int32_t>(Found - Entered.begin()) + 1;
}

QString ImportTally::Text() const {
    QString Told = tr("%1 slides successfully imported.").arg(Entered.size());
    if (!Problem.isEmpty())
        Told = QObject::tr("%1\n\n%2 of %3 slides were imported before.")
                   .arg(Problem)
                   .arg(Entered.size())
                   .arg(Of);
    if (IsStopped())
        Told = QObject::tr(
                   "%1 of %2 slides were imported before you stopped.\nThe others stay "
                   "selected.")
                   .arg(Entered.size())
                   .arg(Of);
    if (!LeftOut.isEmpty()) Told += tr("\n%1 slides discarded.").arg(LeftOut.size());
    return Told;
}

QString ImportTally::Details() const {
    if (LeftOut.isEmpty()) return {};
    return QObject::tr("These stay selected, and can be imported when they are mended:") + u'\n' +
           LeftOut.join(u'\n');
}

void ImportTally::Tell() const {
    BoxRequest Box{.Text = Text(), .Details = Details()};
    if (!Problem.isEmpty()) {
        Box.Title = tr("Operation Failed");
        Box.Icon = BoxIcon::Critical;
    }
    ShowBox(Box);
}

}  // namespace neb
