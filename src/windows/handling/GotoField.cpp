#include "windows/handling/GotoField.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>
#include <utility>

namespace neb {

GotoField::GotoField(QWidget& Window, std::function<ShowCaptions()> Captions)
    : ShowPanel(Window),
      mCaptions(std::move(Captions)),
      mAsks(new QLabel(this)),
      mWanted(new QLineEdit(this)),
      mSays(new QLabel(this)) {
    setObjectName(QStringLiteral("GotoField"));
    setAttribute(Qt::WA_NoMousePropagation);
    mWanted->setObjectName(QStringLiteral("txtGoto"));
    mSays->setObjectName(QStringLiteral("lblGotoSays"));
    mAsks->setBuddy(mWanted);
    auto* Column = new QVBoxLayout(this);
    for (QWidget* Row : {static_cast<QWidget*>(mAsks), static_cast<QWidget*>(mWanted),
                         static_cast<QWidget*>(mSays)})
        Column->addWidget(Row);
    connect(mWanted, &QLineEdit::returnPressed, this, &GotoField::Look);
    connect(mWanted, &QLineEdit::textEdited, this, [this] { Say({}); });
}

void GotoField::OpenAt(std::int32_t Present) {
    mPresent = Present;
    mAsks->setText(tr("Go to slide (1 to %1), or words of its caption:").arg(mCaptions().Count()));
    mWanted->setAccessibleName(mAsks->text());
    mWanted->clear();
    Say({});
    Open();
    mWanted->setFocus();
}

void GotoField::Close() {
    hide();
    parentWidget()->setFocus();
}

// A slide that is not found leaves the field as it is, to be typed over.
void GotoField::Look() {
    const QString Wanted = mWanted->text().trimmed();
    if (Wanted.isEmpty()) return Close();
    const std::int32_t Found = mCaptions().Find(Wanted, mPresent);
    if (Found == 0) {
        Say(tr("There is no such number or caption."));
        return mWanted->selectAll();
    }
    Close();
    Q_EMIT Chosen(Found);
}

void GotoField::Say(const QString& Text) {
    mSays->setText(Text);
    mWanted->setAccessibleDescription(Text);
    if (isVisible()) Place();
}

// No key of the field is one of the show behind it.
void GotoField::keyPressEvent(QKeyEvent* Event) {
    if (Event->key() == Qt::Key_Escape) Close();
    Event->accept();
}

}  // namespace neb
