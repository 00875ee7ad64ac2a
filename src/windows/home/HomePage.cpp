#include "windows/home/HomePage.h"

#include "windows/gallery/AlbumPage.h"

namespace neb {

HomePage::HomePage(QWidget* Parent) : QWidget(Parent), mAlbum(new AlbumPage(this)) {
    setObjectName(QStringLiteral("HomePage"));
    mAlbum->hide();
}

HomePage::~HomePage() = default;

void HomePage::Fill() {}

void HomePage::ReceiveEvent(const QString& ObjectType, const QString& EventType,
                            const EventKeys& EventData) {
    mAlbum->ReceiveEvent(ObjectType, EventType, EventData);
}

}  // namespace neb
