#include "program/UnstoredNotice.h"

#include <QLabel>
#include <QStatusBar>
#include <chrono>

#include "controls/speech/SpokenRole.h"
#include "db/clsDBEngine.h"
#include "settings/modNEBSlideShow.h"
#include "support/Fault.h"

namespace neb {

UnstoredNotice::UnstoredNotice(QStatusBar& Bar) : QTimer(&Bar), mLabel(new QLabel(&Bar)) {
    mLabel->setObjectName(QStringLiteral("lblUnstored"));
    mLabel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    SpeakAs(*mLabel, QAccessible::Notification);  // it is said as soon as it is seen
    Bar.addWidget(mLabel, 1);
    mLabel->hide();
    connect(this, &QTimer::timeout, this, &UnstoredNotice::Look);
    start(std::chrono::seconds(1));
}

void UnstoredNotice::Look() {
    const auto Problem = DBEngine ? DBEngine->SessionProblem() : std::nullopt;
    if (!Problem) return mLabel->hide();
    const QString Why = Problem->Text();
    mLabel->setText(tr("The last changes are not on the disk yet, and are tried again. %1")
                        .arg(Why.section(u'\n', 0, 0)));
    mLabel->setToolTip(Why);
    mLabel->show();
}

}  // namespace neb
