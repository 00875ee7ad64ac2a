#include "windows/home/HomePage.h"

#include <QStackedLayout>

#include "db/clsDBEngine.h"
#include "settings/modNEBSlideShow.h"
#include "windows/gallery/AlbumPage.h"
#include "windows/home/HomeList.h"

namespace neb {

HomePage::HomePage(QWidget* Parent) : QWidget(Parent) {
    setObjectName(QStringLiteral("HomePage"));
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
}

HomePage::~HomePage() = default;

void HomePage::Fill() {
    if (!mList) {
        auto* Pages = new QStackedLayout(this);
        Pages->addWidget(mList = new HomeList);
        connect(mList, &HomeList::AlbumWanted, this, &HomePage::ShowAlbum);
        connect(mList, &HomeList::QuickShowWanted, this, &HomePage::QuickShowWanted);
    }
    mList->Fill();
    LeaveAlbum();
    const QWidget* Focus = window()->focusWidget();
    if (!Focus || Focus->isAncestorOf(this)) TakeFocus();  // no window has taken the keys
}

void HomePage::TakeFocus() {
    if (!mList) return;
    if (mList->isVisibleTo(this)) return mList->TakeFocus();
    mAlbum->setFocus(Qt::OtherFocusReason);
}

void HomePage::focusInEvent(QFocusEvent* Event) {
    QWidget::focusInEvent(Event);
    TakeFocus();
}

// The album page is made for the first album: the start need not wait for it.
void HomePage::ShowAlbum(std::int32_t AlbumID, std::int32_t SlideID) {
    if (!mList || !DBEngine || !DBEngine->GetAlbum(AlbumID)) return;
    auto* Pages = static_cast<QStackedLayout*>(layout());
    if (!mAlbum) {
        Pages->addWidget(mAlbum = new AlbumPage);
        connect(mAlbum, &AlbumPage::Left, this, &HomePage::LeaveAlbum);
    }
    mAlbum->ShowAlbum(AlbumID, SlideID);
    Pages->setCurrentWidget(mAlbum);
    if (!mAlbum->isAncestorOf(window()->focusWidget())) mAlbum->setFocus(Qt::OtherFocusReason);
    Q_EMIT AlbumShown(AlbumID);
}

void HomePage::LeaveAlbum() {
    auto* Pages = static_cast<QStackedLayout*>(layout());
    if (Pages->currentWidget() == mList) return;
    const QWidget* Focus = window()->focusWidget();
    const bool HadFocus = !Focus || isAncestorOf(Focus);
    Pages->setCurrentWidget(mList);
    if (HadFocus) mList->TakeFocus();
}

// What is not read yet has nothing to follow. An album that has gone is not looked through.
void HomePage::ReceiveEvent(const QString& ObjectType, const QString& EventType,
                            const EventKeys& EventData) {
    if (!mList) return;
    mList->ReceiveEvent(ObjectType, EventType, EventData);
    if (!mAlbum) return;
    mAlbum->ReceiveEvent(ObjectType, EventType, EventData);
    const std::int32_t Shown = mAlbum->AlbumID();
    if (DBEngine && Shown != 0 && !DBEngine->GetAlbum(Shown)) LeaveAlbum();
}

}  // namespace neb
