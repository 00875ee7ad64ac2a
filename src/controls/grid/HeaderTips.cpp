#include "controls/grid/HeaderTips.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QToolTip>

#include "controls/grid/FlexGrid.h"

namespace neb {
namespace {

class TipsOfHeader : public QObject {
  public:
    TipsOfHeader(QHeaderView& Header, QStringList Tips)
        : QObject(&Header), mHeader(Header), mTips(std::move(Tips)) {
        Header.viewport()->installEventFilter(this);
    }
    bool eventFilter(QObject*, QEvent* Event) override {
        if (Event->type() != QEvent::ToolTip) return false;
        const auto* Help = static_cast<QHelpEvent*>(Event);
        const QString Tip = mTips.value(mHeader.logicalIndexAt(Help->pos()));
        if (Tip.isEmpty()) return false;
        QToolTip::showText(Help->globalPos(), Tip, &mHeader);
        return true;
    }

  private:
    QHeaderView& mHeader;
    QStringList mTips;
};

}  // namespace

void SetHeaderTips(FlexGrid& Grid, const QStringList& Tips) {
    new TipsOfHeader(*Grid.horizontalHeader(), Tips);
}

}  // namespace neb
