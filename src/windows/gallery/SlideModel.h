// The slides of one album in the album's own order, as the page that shows them sees them. It
// follows the album without losing the place of any slide: what is chosen stays chosen, and a field
// in which something is being typed stays open. Used by AlbumPage and the full screen.
#pragma once

#include <QAbstractListModel>
#include <QSet>
#include <cstdint>
#include <vector>

namespace neb {

class SlideModel : public QAbstractListModel {
    Q_OBJECT

  public:
    // The slides of another album of the program's database, from the beginning.
    void ShowAlbum(std::int32_t AlbumID);
    // Brings them up to date with the album; one that has gone has no slides.
    void Follow();
    // The picture of a slide is another one; 0: that of all.
    void RenewPicture(std::int32_t SlideID);

    std::int32_t AlbumID() const { return mAlbumID; }
    int Count() const { return static_cast<int>(mRows.size()); }
    int RowOf(std::int32_t SlideID) const;  // -1: none
    // Of a row that there is.
    std::int32_t SlideID(int Row) const { return At(Row).SlideID; }
    const QString& Caption(int Row) const { return At(Row).Caption; }
    const QString& Path(int Row) const { return At(Row).Path; }
    // Of its picture: another one whenever that may be another picture than before, also of an
    // album that is shown again.
    int Edition(int Row) const { return At(Row).Edition; }
    // "Slide 12 of 300, Garden in June"
    QString Words(int Row) const;

    int rowCount(const QModelIndex& Parent = {}) const override;
    QVariant data(const QModelIndex& Index, int Role) const override;
    Qt::ItemFlags flags(const QModelIndex& Index) const override;

  private:
    struct Entry {
        std::int32_t SlideID = 0;
        QString Caption, Path;
        int Edition = 0;
    };
    using Entries = std::vector<Entry>;
    const Entry& At(int Row) const { return mRows[static_cast<size_t>(Row)]; }
    Entries Now() const;
    void Leave(const QSet<std::int32_t>& There);
    void Enter(const Entries& Wanted);
    void Order(const Entries& Wanted);
    void TakeOver(const Entries& Wanted);

    std::int32_t mAlbumID = 0;
    int mEditions = 0;  // so many by now, of all albums
    Entries mRows;
};

}  // namespace neb
