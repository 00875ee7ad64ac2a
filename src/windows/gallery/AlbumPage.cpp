#include "windows/gallery/AlbumPage.h"

namespace neb {

AlbumPage::AlbumPage(QWidget* Parent) : QWidget(Parent) {
    setObjectName(QStringLiteral("AlbumPage"));
}

AlbumPage::~AlbumPage() = default;

void AlbumPage::ShowAlbum(std::int32_t AlbumID, std::int32_t) {
    mAlbumID = AlbumID;
}

void AlbumPage::ReceiveEvent(const QString&, const QString&, const EventKeys&) {}

}  // namespace neb
