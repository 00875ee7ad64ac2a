// Hands the content of a grid to Qt's views and screen readers. FlexGrid owns one; while it is
// quiet the views see the state of before, until the changes are told at once.
#pragma once

#include <QAbstractTableModel>
#include <QStringList>
#include <functional>
#include <vector>

#include "controls/grid/FlexGridStore.h"

namespace neb {

enum class FlexKind {
    Text,
    Picture,  // the cell's picture, centred, in its true shape
    Check,    // a box; the text is "True" or "False"
    List,     // chosen from a drop-down list
    Button,   // a text with a "..." button behind it
    Fixed,    // a heading at the side
};

struct FlexColumn {
    FlexKind Kind = FlexKind::Text;
    bool Editable = false;
    bool IsCaption = false;  // of a slide: what is typed is counted
    bool Stretch = false;    // takes the room that the others leave
    bool Hidden = false;
    bool IsPath = false;  // of the path of a file its end is seen in any case
    int Width = 0;        // pixels; 0: what the kind of column needs
    Qt::Alignment Align = Qt::AlignLeft;
    QString Heading;   // a grid with no headings shows no heading row
    QStringList List;  // the entries of a List column
};

class FlexGridModel : public QAbstractTableModel {
    Q_OBJECT
  public:
    using QAbstractTableModel::QAbstractTableModel;

    const FlexGridStore& Store() const { return mStore; }
    const FlexColumn& Column(int Col) const { return mColumns.at(static_cast<size_t>(Col)); }
    void SetColumn(int Col, const FlexColumn& Column);
    void SetCols(int Cols);
    bool HasHeadings() const;

    void InsertItems(int At, int Count);
    void AppendItems(const std::vector<QStringList>& Texts);
    void RemoveItems(int At, int Count);
    void MoveItem(int From, int To);
    void GiveItemsUntold(const std::vector<int>& Rows, FlexGridModel& To);
    void MoveItemsUntold(const std::vector<int>& Rows, int Before);  // only while quiet
    void SetText(int Row, int Col, const QString& Text);
    void SetCellData(int Row, int Col, const CellValue& Data);
    void SetPicture(int Row, int Col, const QImage& Picture, QSize Shape);
    void SetKeyColumn(int Col) { mStore.SetKeyColumn(Col); }
    void SetRowsDraggable(bool On) { mRowsDraggable = On; }

    bool IsQuiet() const { return mQuiet; }
    void SetQuiet(bool Quiet);  // false tells all changes at once

    int rowCount(const QModelIndex& Parent = {}) const override;
    int columnCount(const QModelIndex& Parent = {}) const override;
    QVariant data(const QModelIndex& Index, int Role) const override;
    QVariant headerData(int Section, Qt::Orientation Orientation, int Role) const override;
    bool setData(const QModelIndex& Index, const QVariant& Value, int Role) override;
    Qt::ItemFlags flags(const QModelIndex& Index) const override;

  private:
    void CellChanged(int Row, int Col, const QList<int>& Roles = {});
    void TellRowCount();
    QString Caption(int Row) const;
    QString SpokenText(int Row, int Col) const;

    FlexGridStore mStore;
    std::vector<FlexColumn> mColumns;
    bool mRowsDraggable = false;
    bool mQuiet = false;
    int mRowsToldOf = 0;
};

}  // namespace neb
