// Chapter: the New Album wizard, the import of a folder, and more pictures by Find Graphics.
#include "Tour.h"
#include "TourControls.h"
#include "TourSteps.h"
#include "controls/forms/frmLoading.h"
#include "controls/forms/frmProgress.h"
#include "program/frmNEBSlideShow.h"
#include "windows/import/frmDirSelect.h"
#include "windows/import/frmFindGraphics.h"
#include "windows/import/frmImportFilter.h"
#include "windows/import/frmNewAlbumWzd1.h"

namespace neb::demo {
namespace {

constexpr int Taken = 7;  // of the folder; the others are found

FlexGrid& Grid(const char* Name) {
    return In<FlexGrid, frmImportFilter>(Name);
}

FlexGrid& Results() {
    return In<FlexGrid, frmFindGraphics>("flxResults");
}

void UseWizard(Tour& Guide, frmNEBSlideShow& Window, const QString& Folder) {
    Guide.Do("open-the-wizard", IsInFront(Window), Keys(Window, Qt::Key_N, Qt::ControlModifier));
    Guide.Do("name-the-album", IsOpen<frmNewAlbumWzd1>(), [Folder] {
        Type(In<QLineEdit, frmNewAlbumWzd1>("txtAlbumName"), FirstAlbumName);
        TypeDirectory(Opened<frmNewAlbumWzd1>(), Folder);
    });
    Guide.Add({"new-album-wizard", [] { return PicturesAreCounted(Opened<frmNewAlbumWzd1>()); },
               Press<frmNewAlbumWzd1>("cmdNext")});
}

// The first pictures of the folder, by a click and a click with Shift.
void SelectSome(Tour& Guide) {
    Guide.Do(
        "select-some",
        [] {
            return Open<frmImportFilter>() && !Open<frmLoading>() &&
                   Grid("flxNonSelected").Rows() > Taken;
        },
        [] {
            ClickCell(Grid("flxNonSelected"), 0, 1);
            ClickCell(Grid("flxNonSelected"), Taken - 1, 1, Qt::ShiftModifier);
        });
    Guide.Add({"some-selected", {}, Press<frmImportFilter>("cmdMoveRightOne")});
    Guide.Add(
        {"import-filter", [] { return Grid("flxSelected").Rows() == Taken; },
         [] { QTest::keyClick(&Opened<frmImportFilter>(), Qt::Key_F, Qt::ControlModifier); }});
    Guide.Answer("discard-remaining",
                 "Do you want to discard the remaining non-selected graphics?");
}

void ChooseWhereToLook(Tour& Guide, const QString& Folder) {
    Guide.Do("browse", IsOpen<frmFindGraphics>(), [] {
        Choose(In<QComboBox, frmFindGraphics>("cboSearchPath"), QStringLiteral("Browse"));
    });
    Guide.Do("type-where-to-look", IsOpen<frmDirSelect>(), [Folder] {
        TypeDirectory(Opened<frmDirSelect>(), Folder);
        PressButton(Opened<frmDirSelect>(), "cmdSelect");
    });
}

void FindMore(Tour& Guide) {
    Guide.Do("search", IsClosed<frmDirSelect>(), [] {
        Type(In<QLineEdit, frmFindGraphics>("txtFilter"), QStringLiteral("M"));
        PressButton(Opened<frmFindGraphics>(), "cmdSearch");
    });
    Guide.Do(
        "select-what-was-found",
        [] {
            return In<QPushButton, frmFindGraphics>("cmdImport").isEnabled() &&
                   Results().Rows() > 0;
        },
        [] {
            ClickCell(Results(), 0, 0);
            QTest::keyClick(&Results(), Qt::Key_A, Qt::ControlModifier);
        });
    Guide.Add({"find-graphics", [] { return Results().SelectedRows() == Results().Rows(); },
               Press<frmFindGraphics>("cmdImport")});
}

void SaveAlbum(Tour& Guide) {
    Guide.Do(
        "take-what-was-found",
        [] {
            return !Open<frmFindGraphics>() && !Open<frmLoading>() &&
                   Grid("flxNonSelected").Rows() == 2;
        },
        Press<frmImportFilter>("cmdMoveRightAll"));
    Guide.Add({"found-graphics", [] { return Grid("flxSelected").Rows() == Taken + 2; },
               Press<frmImportFilter>("cmdImport")});
    Guide.Answer("album-made", QStringLiteral("%1 slides successfully imported.").arg(Taken + 2));
}

}  // namespace

void AddNewAlbum(Tour& Guide, frmNEBSlideShow& Window, const Story& Told) {
    UseWizard(Guide, Window, Told.Folder);
    SelectSome(Guide);
    ChooseWhereToLook(Guide, Told.Folder);
    FindMore(Guide);
    SaveAlbum(Guide);
    Guide.Do("after-the-wizard",
             [] { return !Open<frmImportFilter>() && !Open<frmNewAlbumWzd1>(); }, {});
}

}  // namespace neb::demo
