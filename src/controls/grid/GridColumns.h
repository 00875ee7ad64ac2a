// The columns of a grid that take what room is left: never narrower than their headings. In a grid
// with less room they keep that width, and it scrolls. FlexGrid has one.
#pragma once

#include <QHeaderView>
#include <vector>

namespace neb {

class FlexGrid;

class GridColumns : public QObject {
    Q_OBJECT

  public:
    explicit GridColumns(FlexGrid& Grid);

  protected:
    bool eventFilter(QObject* Watched, QEvent* Event) override;

  private:
    void Share(int Room);
    void GiveLeast(std::vector<int>& Taking, int Room);
    void SetMode(int Col, QHeaderView::ResizeMode Mode);

    FlexGrid& mGrid;
};

}  // namespace neb
