#include "controls/grid/EmptyHint.h"

#include <QAbstractItemView>
#include <QEvent>
#include <QLabel>

#include "controls/speech/SpokenList.h"

namespace neb {
namespace {

constexpr int Letters = 24;  // in a line, at the least

class Hint : public QLabel {
  public:
    Hint(QAbstractItemView& View, const QString& Text)
        : QLabel(Text, View.viewport()), mView(View), mAbout(AboutList(View)) {
        setTextFormat(Qt::PlainText);
        setWordWrap(true);
        setAlignment(Qt::AlignCenter);
        setForegroundRole(QPalette::PlaceholderText);
        setAttribute(Qt::WA_TransparentForMouseEvents);
        View.viewport()->installEventFilter(this);
        const int Narrow = Letters * fontMetrics().averageCharWidth();
        const int Headings = 2 * fontMetrics().height();  // and the frame
        View.setMinimumHeight(heightForWidth(Narrow) + Headings + 2 * fontMetrics().height());
        const auto* Rows = View.model();
        connect(Rows, &QAbstractItemModel::rowsInserted, this, &Hint::Follow);
        connect(Rows, &QAbstractItemModel::rowsRemoved, this, &Hint::Follow);
        connect(Rows, &QAbstractItemModel::modelReset, this, &Hint::Follow);
        Follow();
    }
    bool eventFilter(QObject*, QEvent* Event) override {
        if (Event->type() == QEvent::Resize) Place();
        return false;
    }

  private:
    void Follow() {
        const bool IsEmpty = mView.model()->rowCount() == 0;
        mView.setAccessibleDescription(IsEmpty ? text() : mAbout);
        setVisible(IsEmpty);
        Place();
    }
    void Place() {
        const int Margin = fontMetrics().averageCharWidth();
        setGeometry(mView.viewport()->rect().adjusted(Margin, 0, -Margin, 0));
    }

    QAbstractItemView& mView;
    const QString mAbout;
};

}  // namespace

void SetEmptyHint(QAbstractItemView& View, const QString& Text) {
    new Hint(View, Text);
}

}  // namespace neb
