#include "windows/gallery/SlideCommands.h"

#include <QAction>
#include <QKeySequence>
#include <QMenu>

#include "albums/BulkSlides.h"
#include "controls/fields/Icons.h"
#include "controls/forms/Tell.h"
#include "db/clsDBEngine.h"
#include "db/modAlbumFiles.h"
#include "settings/modNEBSlideShow.h"
#include "support/Services.h"
#include "support/Texts.h"
#include "support/modDEValidation.h"
#include "windows/gallery/AlbumPage.h"
#include "windows/gallery/SlideTurning.h"
#include "windows/printing/frmPrintAlbum.h"
#include "windows/printing/frmPrintSheet.h"
#include "windows/printing/frmPrintSlide.h"
#include "windows/slides/SlideDeletion.h"
#include "windows/slides/frmSlideDBM.h"

namespace neb {
namespace {

constexpr size_t Few = 20;  // are gone before a window with a bar would be up

const clsNEBSlide* SlideOf(std::int32_t AlbumID, std::int32_t SlideID) {
    clsNEBAlbum* Album = DBEngine ? DBEngine->GetAlbum(AlbumID) : nullptr;
    return Album ? Album->GetSlide(SlideID) : nullptr;
}

SlideTally Deleted(const QWidget& Window, std::int32_t AlbumID,
                   const std::vector<std::int32_t>& SlideIDs) {
    const auto IsWanted = [AlbumID] { return DBEngine && DBEngine->GetAlbum(AlbumID); };
    if (SlideIDs.size() > Few) return SlideDeletion(Window, AlbumID, SlideIDs, IsWanted).Run();
    return DeleteSlides(*DBEngine, &Window, AlbumID, SlideIDs, IsWanted);
}

}  // namespace

bool MayChangeSlides() {
    if (!ReadOnlyDB) return true;
    MsgBox(AlbumPage::tr("The database is read-only:\nits slides cannot be changed."),
           AlbumPage::tr("Read-Only Database"), BoxIcon::Information);
    return false;
}

void StoreCaption(std::int32_t AlbumID, std::int32_t SlideID, const QString& Caption) {
    const clsNEBSlide* Slide = SlideOf(AlbumID, SlideID);
    const QString Cleaned = CleanText(Caption);
    if (ReadOnlyDB || !Slide || Slide->SlideText == Cleaned) return;
    Answer<Announcement> Saved = Changes(*DBEngine).SaveCaption(AlbumID, SlideID, Cleaned);
    if (Tell(Saved)) Saved->Now();
}

void DeleteSlidesAsked(const QWidget& Window, std::int32_t AlbumID,
                       const std::vector<std::int32_t>& SlideIDs) {
    if (SlideIDs.empty() || !MayChangeSlides()) return;
    const QString Question = tr("Are you sure you want to delete the selected slides?");
    if (!AskYesNo(Question, tr("Delete Confirmation")) || !DBEngine) return;
    const SlideTally Tally = Deleted(Window, AlbumID, SlideIDs);
    if (Tally.Failed == 0) return;
    MsgBox(Tally.Text(QStringLiteral("deleted"), QStringLiteral("delete")),
           tr("Operation Completed"), BoxIcon::Information);
}

void TurnSlides(std::int32_t AlbumID, const std::vector<std::int32_t>& SlideIDs, int Quarters) {
    if (!SlideIDs.empty() && MayChangeSlides()) SlideTurning(AlbumID, SlideIDs, Quarters).Run();
}

void PrintSlides(std::int32_t AlbumID, const std::vector<std::int32_t>& SlideIDs) {
    if (SlideIDs.size() > 1) return NewForm<frmPrintAlbum>()->PrintSlides(AlbumID, SlideIDs);
    if (SlideIDs.empty()) return;
    if (const clsNEBSlide* Slide = SlideOf(AlbumID, SlideIDs.front()))
        NewForm<frmPrintSlide>()->PrintSlide(
            SlidePath(DBEngine->DBPath(), AlbumID, Slide->SlideLoc));
}

void PrintSlideSheet(std::int32_t AlbumID, std::int32_t SlideID) {
    if (const clsNEBSlide* Slide = SlideOf(AlbumID, SlideID))
        NewForm<frmPrintSheet>()->PrintSlide(
            SlidePath(DBEngine->DBPath(), AlbumID, Slide->SlideLoc), Slide->SlideText);
}

void OpenInSlideManager(std::int32_t AlbumID, std::int32_t SlideID) {
    NewForm<frmSlideDBM>()->LoadSlideMgr(AlbumID, SlideID);
}

QString AskInMenu(QWidget& Window, const std::vector<SlideEntry>& Entries, const QPoint& GlobalPos,
                  bool IsOne) {
    QMenu Menu(&Window);
    for (const SlideEntry& Each : Entries) {
        if (!*Each.Name) {
            Menu.addSeparator();
            continue;
        }
        const QString Keys =
            QKeySequence(QLatin1String(Each.Keys)).toString(QKeySequence::NativeText);
        QAction* Made = Menu.addAction(ThemeIcon(QString::fromLatin1(Each.Icon), Window.palette()),
                                       tr(Each.Text) + (Keys.isEmpty() ? QString() : u'\t' + Keys));
        Made->setObjectName(QString::fromLatin1(Each.Name));
        Made->setEnabled((!Each.Changes || !ReadOnlyDB) && (!Each.IsForOne || IsOne));
    }
    const QAction* Chosen = Menu.exec(GlobalPos);
    return Chosen ? Chosen->objectName() : QString();
}

}  // namespace neb
