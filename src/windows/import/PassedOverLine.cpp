#include "windows/import/PassedOverLine.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace neb {

PassedOverLine::PassedOverLine(QWidget* Parent) : QWidget(Parent) {
    auto* Line = new QHBoxLayout(this);
    Line->setContentsMargins(0, 0, 0, 0);
    mText = new QLabel;
    mText->setObjectName(QStringLiteral("lblPassedOver"));
    auto* Button = new QPushButton(tr("Sh&ow ..."));
    Button->setObjectName(QStringLiteral("cmdPassedOver"));
    Button->setAccessibleName(tr("Show the files that were passed over"));
    Button->setToolTip(tr("Name the files that were passed over, and say why"));
    Button->setAutoDefault(false);
    connect(Button, &QPushButton::clicked, this, [this] { mReport.Tell(); });
    Line->addWidget(mText);
    Line->addWidget(Button);
    hide();
}

void PassedOverLine::ShowReport(const ReadingReport& Report) {
    mReport = Report;
    mText->setText(Report.IsEmpty() ? QString() : Report.Line());
    setVisible(!Report.IsEmpty());
}

}  // namespace neb
