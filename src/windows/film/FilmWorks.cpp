#include "windows/film/FilmWorks.h"

#include <QDesktopServices>
#include <QUrl>

#include "controls/picture/PictureView.h"
#include "pictures/ImgX.h"
#include "show/film/FilmStage.h"
#include "support/Fault.h"
#include "support/files/HostNames.h"

namespace neb {
namespace {

constexpr QSize LargestLook{1920, 1920};

// As the film shows it once it stands still.
QImage FirstPicture(const FilmOrder& Order, const FilmPlan& Plan) {
    if (Plan.Sheet.Rows.empty()) return {};
    try {
        ImgX Picture;
        Picture.LoadAtLeast(Plan.Sheet.Rows.front().Picture, Order.Size);
        FilmStage Stage(Order.Size, Order.CaptionsInPicture);
        Stage.ShowSlide({.Picture = Picture.Picture(), .Caption = Plan.Sheet.Rows.front().Caption});
        return PictureView::ForScreens(Stage.FrameAt(Stage.StillFrom()), LargestLook);
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
