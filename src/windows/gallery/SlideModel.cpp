#include "windows/gallery/SlideModel.h"

#include <QHash>
#include <algorithm>

#include "db/clsDBEngine.h"
#include "db/modAlbumFiles.h"
#include "settings/modNEBSlideShow.h"
#include "support/Grouped.h"
#include "support/modCharacters.h"

namespace neb {

SlideModel::Entries SlideModel::Now() const {
    Entries Wanted;
    clsNEBAlbum* Album = DBEngine ? DBEngine->GetAlbum(mAlbumID) : nullptr;
    if (!Album) return Wanted;
    QHash<std::int32_t, const clsNEBSlide*> Slides;
    for (const auto& Each : Album->Slides) Slides.insert(Each->SlideID, Each.get());
    Album->SortSlides();
    for (const NameIndexEntry& Row : Album->SlideIndex)
        if (const clsNEBSlide* Slide = Slides.take(Row.ID))
            Wanted.push_back({Row.ID, Slide->SlideText,
                              SlidePath(DBEngine->DBPath(), mAlbumID, Slide->SlideLoc), mEditions});
    return Wanted;
}

void SlideModel::ShowAlbum(std::int32_t AlbumID) {
    beginResetModel();
    mAlbumID = AlbumID;
    ++mEditions;
    mRows = Now();
    endResetModel();
}

void SlideModel::Follow() {
    const Entries Wanted = Now();
    QSet<std::int32_t> There;
    for (const Entry& Each : Wanted) There.insert(Each.SlideID);
    Leave(There);
    Enter(Wanted);
    Order(Wanted);
    TakeOver(Wanted);
}

// Runs of neighbours go together.
void SlideModel::Leave(const QSet<std::int32_t>& There) {
    for (int Last = Count() - 1; Last >= 0; --Last) {
        if (There.contains(SlideID(Last))) continue;
        int First = Last;
        while (First > 0 && !There.contains(SlideID(First - 1))) --First;
        beginRemoveRows({}, First, Last);
        mRows.erase(mRows.begin() + First, mRows.begin() + Last + 1);
        endRemoveRows();
        Last = First;
    }
}

void SlideModel::Enter(const Entries& Wanted) {
    QSet<std::int32_t> Known;
    for (const Entry& Each : mRows) Known.insert(Each.SlideID);
    Entries New;
    for (const Entry& Each : Wanted)
        if (!Known.contains(Each.SlideID)) New.push_back(Each);
    if (New.empty()) return;
    beginInsertRows({}, Count(), Count() + static_cast<int>(New.size()) - 1);
    mRows.insert(mRows.end(), New.begin(), New.end());
    endInsertRows();
}

void SlideModel::Order(const Entries& Wanted) {
    if (std::ranges::equal(mRows, Wanted, {}, &Entry::SlideID, &Entry::SlideID)) return;
    Q_EMIT layoutAboutToBeChanged();
    QHash<std::int32_t, int> Places;
    for (size_t Row = 0; Row < Wanted.size(); ++Row)
        Places.insert(Wanted[Row].SlideID, static_cast<int>(Row));
    const QModelIndexList Before = persistentIndexList();
    QModelIndexList After;
    for (const QModelIndex& Each : Before) After << index(Places.value(SlideID(Each.row())));
    std::ranges::sort(mRows, {}, [&](const Entry& Each) { return Places.value(Each.SlideID); });
    changePersistentIndexList(Before, After);
    Q_EMIT layoutChanged();
}

void SlideModel::TakeOver(const Entries& Wanted) {
    for (size_t Row = 0; Row < Wanted.size(); ++Row) {
        Entry& Mine = mRows[Row];
        const bool Moved = Mine.Path != Wanted[Row].Path;
        if (!Moved && Mine.Caption == Wanted[Row].Caption) continue;
        Mine = {Mine.SlideID, Wanted[Row].Caption, Wanted[Row].Path,
                Moved ? ++mEditions : Mine.Edition};
        const QModelIndex Changed = index(static_cast<int>(Row));
        Q_EMIT dataChanged(Changed, Changed);
    }
}

void SlideModel::RenewPicture(std::int32_t SlideID) {
    for (int Row = 0; Row < Count(); ++Row) {
        if (SlideID != 0 && this->SlideID(Row) != SlideID) continue;
        mRows[static_cast<size_t>(Row)].Edition = ++mEditions;
        Q_EMIT dataChanged(index(Row), index(Row), {Qt::DecorationRole});
    }
}

int SlideModel::RowOf(std::int32_t SlideID) const {
    const auto Found = std::ranges::find(mRows, SlideID, &Entry::SlideID);
    return Found == mRows.end() ? -1 : static_cast<int>(Found - mRows.begin());
}

QString SlideModel::Words(int Row) const {
    const QString Place = tr("Slide %1 of %2").arg(Grouped(Row + 1), Grouped(Count()));
    const QString& Text = Caption(Row);
    return Text.isEmpty() ? Place : Place + QStringLiteral(", ") + InOwnDirection(Text);
}

int SlideModel::rowCount(const QModelIndex& Parent) const {
    return Parent.isValid() ? 0 : Count();
}

QVariant SlideModel::data(const QModelIndex& Index, int Role) const {
    if (!Index.isValid() || Index.row() >= Count()) return {};
    if (Role == Qt::DisplayRole || Role == Qt::EditRole) return Caption(Index.row());
    if (Role == Qt::AccessibleTextRole) return Words(Index.row());
    return {};
}

Qt::ItemFlags SlideModel::flags(const QModelIndex& Index) const {
    return QAbstractListModel::flags(Index) | Qt::ItemIsEditable | Qt::ItemNeverHasChildren;
}

}  // namespace neb
