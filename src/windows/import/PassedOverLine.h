// A quiet line in an import window that says how many files its last reading has passed over, with
// a button that names them. Not seen while there are none.
#pragma once

#include <QWidget>

#include "windows/import/ReadingReport.h"

QT_BEGIN_NAMESPACE
class QLabel;
QT_END_NAMESPACE

namespace neb {

class PassedOverLine : public QWidget {
    Q_OBJECT

  public:
    explicit PassedOverLine(QWidget* Parent = nullptr);
    void ShowReport(const ReadingReport& Report);

  private:
    QLabel* mText;
    ReadingReport mReport;
};

}  // namespace neb
