#include "program/UnstoredNotice.h"

#include <QLabel>
#include <QStatusBar>
#include <chrono>

#include "db/clsDBEngine.h"
#include "settings/modNEBSlideShow.h"
#include "support/Fault.h"

namespace neb {

UnstoredNotice::UnstoredNotice(QStatusBar& Bar) : QTimer(&Bar), mLabel(new QLabel(&Bar)) {
    mLabel->setObjectName(QStringLiteral("lblUnstored"));
    mLabel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    Bar.addWidget(mLabel, 1);
    mLabel->hide();
    connect(this, &QTimer::timeout, this, &UnstoredNotice::Look);
    start(std::chrono::seconds(1));
}

void UnstoredNotice::Look() {
    const auto Problem = DBEngine ? DBEngine->SessionProblem() : std::nullopt;
    mLabel->setVisible(Problem.has_value());
    if (!Problem) return;
    const QString Why = Problem->Text();
    mLabel->setText(tr("The last changes are not on the disk yet, and are tried again. %1")
                        .arg(Why.section(u'\n', 0, 0)));
    mLabel->setToolTip(Why);
}

}  // namespace neb
