#include "program/help/frmHelp.h"

#include <QKeyEvent>
#include <QTextBrowser>
#include <QVBoxLayout>

#include "support/files/modHostFiles.h"

namespace neb {

frmHelp::frmHelp() : mText(new QTextBrowser(this)) {
    setObjectName(QStringLiteral("frmHelp"));
    setWindowTitle(tr("NEB Slide Show Help"));
    resize(640, 520);
    auto* Layout = new QVBoxLayout(this);
    Layout->setContentsMargins(0, 0, 0, 0);
    Layout->addWidget(mText);
    mText->setObjectName(QStringLiteral("txtHelp"));
    mText->setAccessibleName(tr("Help"));
    mText->setOpenLinks(true);
}

// Where a page begins depends on how wide the lines are: known once the window stands.
void frmHelp::showEvent(QShowEvent* Event) {
    Form::showEvent(Event);
    QMetaObject::invokeMethod(
        this, [this] { mText->scrollToAnchor(mPage); }, Qt::QueuedConnection);
}

void frmHelp::keyPressEvent(QKeyEvent* Event) {
    if (Event->key() == Qt::Key_Escape)
        Unload();
    else
        Form::keyPressEvent(Event);
}

void frmHelp::SetTopic(const QString& HelpFile, const QString& Anchor) {
    mText->setHtml(QString::fromUtf8(ReadFile(HelpFile)));
    mPage = Anchor;
    mText->scrollToAnchor(mPage);
}

}  // namespace neb
