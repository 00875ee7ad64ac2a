#include "albums/PictureOrder.h"

#include <QHash>
#include <algorithm>
#include <functional>
#include <limits>

#include "support/CameraNames.h"
#include "support/modCollation.h"
#include "support/modFUFL.h"
#include "support/modText.h"

namespace neb {
namespace {

// Pictures of one folder mostly end alike.
QCollatorSortKey EndingKey(const QString& Ending) {
    static thread_local std::pair<QString, QCollatorSortKey> Last{{}, NameOrder().sortKey({})};
    if (Last.first != Ending) Last = {Ending, NameOrder().sortKey(Ending)};
    return Last.second;
}

// The last part of a path, made ready to be compared many times. The ending counts last: "a.jpg"
// stands before "a-1.jpg".
struct NameKey {
    explicit NameKey(const QString& Whole)
        : Base(NameOrder().sortKey(GetFileBaseName(Whole))),
          Ending(EndingKey(GetFileExt(Whole))),
          Name(Whole) {}

    QCollatorSortKey Base, Ending;
    QString Name;
};

int Compare(const NameKey& A, const NameKey& B) {
    if (const int Order = A.Base.compare(B.Base)) return Order;
    if (const int Order = A.Ending.compare(B.Ending)) return Order;
    return A.Name.compare(B.Name);
}

// The folders on the way to a file, each by its own name.
std::vector<NameKey> FolderKey(const QString& Folder) {
    std::vector<NameKey> Parts;
    for (const QString& Each : Folder.split(u'/', Qt::SkipEmptyParts)) Parts.emplace_back(Each);
    return Parts;
}

int Compare(const std::vector<NameKey>& A, const std::vector<NameKey>& B) {
    for (size_t I = 0; I < A.size() && I < B.size(); ++I)
        if (const int Order = Compare(A[I], B[I])) return Order;
    return A.size() < B.size() ? -1 : A.size() > B.size();
}

// The places of folders in their order; there are few of them, however many pictures lie in them.
class FolderRanks {
  public:
    void Add(const QString& Folder) {
        if (!mRanks.contains(Folder)) mRanks.insert(Folder, 0);
    }
    void Settle() {
        std::vector<std::pair<std::vector<NameKey>, QString>> Keyed;
        for (auto Each = mRanks.cbegin(); Each != mRanks.cend(); ++Each)
            Keyed.emplace_back(FolderKey(Each.key()), Each.key());
        std::sort(Keyed.begin(), Keyed.end(), [](const auto& A, const auto& B) {
            const int Order = Compare(A.first, B.first);
            return Order != 0 ? Order < 0 : A.second < B.second;
        });
        for (size_t I = 0; I < Keyed.size(); ++I) mRanks[Keyed[I].second] = I;
    }
    size_t operator[](const QString& Folder) const { return mRanks.value(Folder); }

  private:
    QHash<QString, size_t> mRanks;
};

struct Keyed {
    qint64 Moment;  // all alike where the time does not count
    size_t Folder;
    NameKey Name;
    size_t From;  // its place before
};

bool operator<(const Keyed& A, const Keyed& B) {
    if (A.Moment != B.Moment) return A.Moment < B.Moment;
    if (A.Folder != B.Folder) return A.Folder < B.Folder;
    const int Order = Compare(A.Name, B.Name);
    return Order != 0 ? Order < 0 : A.From < B.From;
}

// Puts the items into the order of their paths, and of their moments before that.
template <class Item, class PathOf, class MomentOf>
void SortItems(std::vector<Item>& Items, PathOf Path, MomentOf Moment) {
    FolderRanks Ranks;
    for (const Item& Each : Items) Ranks.Add(GetFilePath(Path(Each)));
    Ranks.Settle();
    std::vector<Keyed> Keys;
    Keys.reserve(Items.size());
    for (const Item& Each : Items)
        Keys.push_back({Moment(Each), Ranks[GetFilePath(Path(Each))],
                        NameKey(GetFileName(Path(Each))), Keys.size()});
    std::sort(Keys.begin(), Keys.end());
    std::vector<Item> Sorted;
    Sorted.reserve(Items.size());
    for (const Keyed& Each : Keys) Sorted.push_back(std::move(Items[Each.From]));
    Items = std::move(Sorted);
}

qint64 NoMoment(const auto&) {
    return 0;
}

// What the clock on the wall showed, as cameras write it.
QDateTime AsClock(const QDateTime& Local) {
    return {Local.date(), Local.time(), Qt::UTC};
}

qint64 MomentOf(const PictureInOrder& Picture) {
    const QDateTime Named = TimeInName(GetFileBaseName(Picture.Path));
    const PictureFacts& Facts = Picture.Facts;
    const QDateTime Moment = Facts.Taken.isValid() ? Facts.Taken
                             : Named.isValid()     ? Named
                                                   : AsClock(Facts.Changed);
    return Moment.isValid() ? Moment.toMSecsSinceEpoch() : std::numeric_limits<qint64>::max();
}

}  // namespace

bool IsNamedBefore(const QString& PathA, const QString& PathB) {
    const QString FolderA = GetFilePath(PathA), FolderB = GetFilePath(PathB);
    if (FolderA != FolderB)
        if (const int Order = Compare(FolderKey(FolderA), FolderKey(FolderB))) return Order < 0;
    const int Order = Compare(NameKey(GetFileName(PathA)), NameKey(GetFileName(PathB)));
    return Order != 0 ? Order < 0 : PathA < PathB;
}

void SortByName(QStringList& Paths) {
    std::vector<QString> All(std::make_move_iterator(Paths.begin()),
                             std::make_move_iterator(Paths.end()));
    SortItems(All, std::identity(), &NoMoment<QString>);
    Paths = QStringList(std::make_move_iterator(All.begin()), std::make_move_iterator(All.end()));
}

void SortPictures(std::vector<PictureInOrder>& Pictures, PictureOrder Order) {
    const auto Path = [](const PictureInOrder& Each) -> const QString& { return Each.Path; };
    if (Order == PictureOrder::ByTime)
        SortItems(Pictures, Path, &MomentOf);
    else
        SortItems(Pictures, Path, &NoMoment<PictureInOrder>);
}

QString CaptionByName(const QString& Path) {
    return ReadableText(GetFileBaseName(Path));
}

QString ProposedCaption(const QString& Path, const PictureFacts& Facts) {
    if (!Facts.Words.isEmpty()) return Facts.Words;
    const QString Name = CaptionByName(Path);
    if (!IsCameraName(Name)) return Name;
    const QDateTime Taken = Facts.Taken.isValid() ? Facts.Taken : TimeInName(Name);
    return Taken.isValid() ? TimeText(Taken) : Name;
}

}  // namespace neb
