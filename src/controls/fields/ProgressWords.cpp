#include "controls/fields/ProgressWords.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <algorithm>

#include "support/Grouped.h"
#include "support/Services.h"

namespace neb {
namespace {

// Screen readers read a label that has no name of its own by its text, which is what changes.
QLabel* AddLabel(QHBoxLayout& Line, const QString& Name, Qt::Alignment Align) {
    auto* Label = new QLabel;
    Label->setObjectName(Name);
    Label->setAlignment(Align | Qt::AlignVCenter);
    Label->setTextFormat(Qt::PlainText);
    Line.addWidget(Label, 1);
    return Label;
}

}  // namespace

ProgressWords::ProgressWords(QWidget* Parent) : QWidget(Parent) {
    auto* Line = new QHBoxLayout(this);
    Line->setContentsMargins(0, 0, 0, 0);
    mCount = AddLabel(*Line, QStringLiteral("lblCount"), Qt::AlignLeft);
    mLeft = AddLabel(*Line, QStringLiteral("lblTimeLeft"), Qt::AlignRight);
    KeepHeight();
}

void ProgressWords::ShowCount(int Number, int Count, const QString& Words) {
    mCount->setText((Words.isEmpty() ? tr("Picture %1 of %2") : Words)
                        .arg(Grouped(std::min(Number, Count)), Grouped(Count)));
}

void ProgressWords::Follow(const QProgressBar& Bar) {
    const int Whole = Bar.maximum() - Bar.minimum();
    if (Whole < 1) return;
    mTime.Note(double(Bar.value() - Bar.minimum()) / Whole, TheServices().Time->Ticks());
    mLeft->setText(mTime.Text());
}

void ProgressWords::Clear() {
    mCount->clear();
    mLeft->clear();
    mTime = {};
}

// An empty line takes its room already: the window would jump when the first words come.
void ProgressWords::KeepHeight() {
    setMinimumHeight(fontMetrics().lineSpacing());
}

void ProgressWords::changeEvent(QEvent* Event) {
    QWidget::changeEvent(Event);
    if (Event->type() == QEvent::FontChange) KeepHeight();
}

}  // namespace neb
