// Chapter: Quick Show turns the folder into a running show.
#include <QProgressBar>

#include "Tour.h"
#include "TourControls.h"
#include "TourSteps.h"
#include "TourWatch.h"
#include "controls/forms/frmLoading.h"
#include "controls/forms/frmProgress.h"
#include "controls/picture/XShow.h"
#include "program/frmNEBSlideShow.h"
#include "windows/import/frmDirSelect.h"
#include "windows/import/frmQuickShow.h"
#include "windows/lists/frmPicturePopup.h"
#include "windows/show/frmSlideShowProjector.h"
#include "windows/show/frmSpeedTest.h"

namespace neb::demo {
namespace {

int Pictures = 1;  // in the show

FlexGrid& Grid(const char* Name) {
    return In<FlexGrid, frmQuickShow>(Name);
}

void OpenIt(Tour& Guide, frmNEBSlideShow& Window, const QString& Folder) {
    Guide.Add({"main-window", [&] { return IsInFront(Window)() && !Open<frmSpeedTest>(); },
               Keys(Window, Qt::Key_F, Qt::AltModifier)});
    Guide.Add({"file-menu", MenuIsOpen(), MenuKey(Qt::Key_Q)});
    Guide.Add({"quick-show", IsOpen<frmQuickShow>(),
               [] { PressTool(Opened<frmQuickShow>(), "mnuImportDirectory"); }});
    Guide.Do("type-the-folder", IsOpen<frmDirSelect>(),
             [Folder] { TypeDirectory(Opened<frmDirSelect>(), Folder); });
    Guide.Add({"directory-chosen", [] { return PicturesAreCounted(Opened<frmDirSelect>()); },
               Press<frmDirSelect>("cmdSelect")});
}

void ReadPictures(Tour& Guide) {
    const auto IsRead = [] { return !Open<frmLoading>() && Grid("flxSelected").Rows() > 0; };
    Guide.Look("reading-pictures", [IsRead] {
        const auto* Loading = Open<frmLoading>();
        return IsRead() || (Loading && Loading->pgbLoadingProgress()->value() > 2);
    });
    Guide.Add({"pictures-read", IsRead, [] { DoubleClickCell(Grid("flxSelected"), 0, 0); }});
    Guide.Add({"preview", IsOpen<frmPicturePopup>(),
               [] { QTest::keyClick(Open<frmPicturePopup>(), Qt::Key_Escape); }});
}

void NameAndSave(Tour& Guide) {
    Guide.Do("name-the-show", IsClosed<frmPicturePopup>(), [] {
        Pictures = Grid("flxSelected").Rows();
        Type(In<QLineEdit, frmQuickShow>("txtName"), QuickShowName);
    });
    Guide.Add({"pictures-selected", {}, Press<frmQuickShow>("cmdImport")});
    Guide.Look("importing", [] {
        const auto* Saving = Open<frmProgress>();
        return Open<frmSlideShowProjector>() ||
               (Saving && Saving->pgbLoadingProgress()->value() > 0);
    });
}

// A show of few pictures comes round.
std::function<bool()> Comes(std::function<bool()> (*To)(int), int SlideSeq) {
    return [To, SlideSeq] { return To((SlideSeq - 1) % Pictures + 1)(); };
}

void NextSlide() {
    QTest::keyClick(Open<frmSlideShowProjector>(), Qt::Key_Up);
}

void WatchTheShow(Tour& Guide) {
    Guide.Do("show-begins", IsOpen<frmSlideShowProjector>(), [] { WatchProgress(ShowView()); });
    Guide.Add({"quick-show-slide-1", Comes(&SlideStands, 1), &NextSlide});
    Guide.Look("quick-show-transition-2", Comes(&IsBetween, 2));
    Guide.Add({"quick-show-slide-2", Comes(&SlideStands, 2), &NextSlide});
    Guide.Look("quick-show-transition-3", Comes(&IsBetween, 3));
    Guide.Do("open-the-show-menu", Comes(&SlideStands, 3), [] {
        QTest::mouseClick(&ShowView(), Qt::RightButton, {}, ShowView().rect().center());
    });
    Guide.Add({"show-menu", MenuIsOpen(), MenuKey(Qt::Key_Escape)});
    Guide.Do(
        "leave-the-quick-show", [] { return !OpenMenu(); },
        [] {
            Print(QStringLiteral("Quick Show: ") + ShowView().Frames().Text());
            QTest::keyClick(Open<frmSlideShowProjector>(), Qt::Key_Escape);
        });
}

}  // namespace

void AddQuickShow(Tour& Guide, frmNEBSlideShow& Window, const Story& Told) {
    OpenIt(Guide, Window, Told.Folder);
    ReadPictures(Guide);
    NameAndSave(Guide);
    WatchTheShow(Guide);
    Guide.Do("after-the-quick-show",
             [] { return !Open<frmSlideShowProjector>() && !Open<frmQuickShow>(); }, {});
}

}  // namespace neb::demo
