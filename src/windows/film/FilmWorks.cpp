#include "windows/film/FilmWorks.h"

#include <QDesktopServices>
#include <QUrl>

#include "pictures/ImgX.h"
#include "support/Fault.h"
#include "support/files/HostNames.h"

namespace neb {
namespace {

QImage FirstPicture(const FilmOrder& Order, const FilmPlan& Plan) {
    if (Plan.Sheet.Rows.empty()) return {};
    try {
        ImgX Picture;
        Picture.LoadAtLeast(Plan.Sheet.Rows.front().Picture, Order.Size);
        return Picture.Picture();
    } catch (const Fault&) {
        return {};  // the problems say so
    }
}

void OpenOnDesktop(const QString& Path) {
    QDesktopServices::openUrl(UrlOfFile(Path));
}

}  // namespace

FilmWorks OwnFilmWorks() {
    FilmWorks Works;
    Works.FirstLook = &FirstPicture;
    Works.Open = &OpenOnDesktop;
    return Works;
}

FilmWorks& TheFilmWorks() {
    static FilmWorks Works = OwnFilmWorks();
    return Works;
}

}  // namespace neb
