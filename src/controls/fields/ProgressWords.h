// The line of words under a progress bar: which picture of how many, and how much time is left. The
// windows of long work have one each.
#pragma once

#include <QWidget>
#include <memory>

#include "support/work/TimeLeft.h"

QT_BEGIN_NAMESPACE
class QLabel;
class QProgressBar;
QT_END_NAMESPACE

namespace neb {

class ProgressWords : public QWidget {
    Q_OBJECT

  public:
    explicit ProgressWords(QWidget* Parent = nullptr);

    // "Picture 500 of 1,000"; Words: for work that counts others, with %1 and %2 for the numbers.
    void ShowCount(int Number, int Count, const QString& Words = {});
    // The time left, by what the bar shows at this moment.
    void Follow(const QProgressBar& Bar);
    // Another work begins: nothing is known of it yet.
    void Clear();
    // As TimeLeft::Skip.
    void Skip(double Ms) { mTime.Skip(Ms); }

  protected:
    void changeEvent(QEvent* Event) override;

  private:
    void KeepHeight();

    QLabel* mCount;
    QLabel* mLeft;
    TimeLeft mTime;
};

}  // namespace neb
