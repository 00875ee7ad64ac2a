#include "windows/handling/WordsOfFailure.h"

#include <QLabel>
#include <QVBoxLayout>

namespace neb {

WordsOfFailure::WordsOfFailure(QWidget& Window) : ShowPanel(Window), mWords(new QLabel(this)) {
    setObjectName(QStringLiteral("WordsOfFailure"));
    auto* Column = new QVBoxLayout(this);
    auto* Leaving = new QLabel(tr("Press Esc to leave, F1 for the keys."), this);
    Column->addWidget(mWords);
    Column->addWidget(Leaving);
    for (QLabel* Line : {mWords, Leaving}) {
        Line->setAlignment(Qt::AlignCenter);
        Line->setTextFormat(Qt::PlainText);
    }
}

void WordsOfFailure::Say(const QString& Words) {
    mWords->setText(Words);
    setAccessibleName(Words);
    Open();
}

}  // namespace neb
