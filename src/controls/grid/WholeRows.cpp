#include "controls/grid/WholeRows.h"

#include <QEvent>
#include <QLayout>
#include <QListView>
#include <algorithm>

namespace neb {
namespace {

constexpr int MostRows = 8;

class RowsWatch : public QObject {
  public:
    explicit RowsWatch(QListView& List) : QObject(&List), mList(List) {
        List.installEventFilter(this);
    }

  protected:
    // The list lays its rows out after it has heard of the new size.
    bool eventFilter(QObject*, QEvent* Event) override {
        if (Event->type() == QEvent::Resize || Event->type() == QEvent::Show ||
            Event->type() == QEvent::FontChange)
            QMetaObject::invokeMethod(this, &RowsWatch::Fit, Qt::QueuedConnection);
        return false;
    }

  private:
    void Fit() {
        const int Count = mList.model()->rowCount();
        if (Count == 0) return;
        const auto Place = [this](int Row) {
            return mList.visualRect(mList.model()->index(Row, 0));
        };
        const int Row = Place(0).height() + 2 * mList.spacing();
        const int High = Place(Count - 1).bottom() - Place(0).top() + 1 + 2 * mList.spacing();
        const int Edges = mList.height() - mList.viewport()->height();
        const int Wanted = std::min(High, MostRows * Row) + Edges;
        if (High <= 0 || Wanted == mList.height()) return;  // not laid out yet, or right
        mList.setSizePolicy(mList.sizePolicy().horizontalPolicy(), QSizePolicy::Fixed);
        mList.setFixedHeight(Wanted);
        // a window with a least size of its own has it for the rows of before
        QWidget& Window = *mList.window();
        if (Window.layout() && !Window.minimumSize().isNull())
            Window.setMinimumSize(
                Window.minimumSize().expandedTo(Window.layout()->totalMinimumSize()));
    }

    QListView& mList;
};

}  // namespace

void ShowWholeRows(QListView& List) {
    new RowsWatch(List);
}

}  // namespace neb
