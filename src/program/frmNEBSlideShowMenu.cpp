// The menu of the main window and the children in its frame.
#include <QAction>
#include <QMdiSubWindow>
#include <QMenu>
#include <QPointer>
#include <QStatusBar>

#include "albums/transfer/OtherDatabase.h"
#include "controls/forms/Form.h"
#include "program/EditMenu.h"
#include "program/MainMenu.h"
#include "program/OtherInstance.h"
#include "program/StepAside.h"
#include "program/Workspace.h"
#include "program/frmNEBSlideShow.h"
#include "settings/modNEBSlideShow.h"
#include "support/Services.h"
#include "support/files/modHostFiles.h"
#include "windows/compose/frmSlideShowDBM.h"
#include "windows/compose/modShowManagers.h"
#include "windows/frame/Openers.h"
#include "windows/frame/WindowKeeper.h"
#include "windows/frame/modNotice.h"
#include "windows/frame/modWindowState.h"
#include "windows/home/HomePage.h"
#include "windows/import/frmQuickShow.h"

namespace neb {
namespace {

constexpr int NoticeMs = 10'000;

}  // namespace

void frmNEBSlideShow::SetUpMenu() {
    mMenu = std::make_unique<MainMenu>(BuildMainMenu(*this));
    connect(mMenu->Windows, &QMenu::aboutToShow, this, &frmNEBSlideShow::ListWindows);
    new EditMenu(*this, mMenu->Entries);
}

void frmNEBSlideShow::FillOpeners() {
    TheOpeners().ShowAsChild = [this](Form& Child) { ShowAsChild(Child); };
    TheOpeners().SlideShowMgr = [](std::int32_t AlbumID, std::int32_t SlideShowID) {
        NewForm<frmSlideShowDBM>()->LoadSlideShowMgr(AlbumID, SlideShowID);
    };
    TheOpeners().SlideOfShow = &ShowSlideInManager;
    TheOpeners().Notice = [Bar = QPointer(statusBar())](const QString& Text) {
        if (Bar) Bar->showMessage(Text.simplified(), NoticeMs);
    };
}

void frmNEBSlideShow::ShowAsChild(Form& Child) {
    const auto Held = Child.shared_from_this();
    const QSize Designed = Child.size();
    QMdiSubWindow* Frame = mWorkspace->AddChild(&Child);
    Frame->resize(Designed.boundedTo(mWorkspace->size()));
    Child.Load();
    if (!Child.IsLoaded()) return;
    // what its content needs is known now, and may be more than it was designed for, or even more
    // than there is room for: the area scrolls then
    Frame->resize(Frame->size().expandedTo(Frame->minimumSizeHint()));
    RestoreKept(Child);
    PlaceChild(Child);
    Child.ShowModeless();
}

void frmNEBSlideShow::ShowHome() {
    const QWidget* Focus = focusWidget();
    const bool IsThere = Focus && mHome->isAncestorOf(Focus);
    if (IsThere && mAside->ComeBack()) return;
    mAside->Step();
    mHome->TakeFocus();
}

// The keys do something in the home again.
void frmNEBSlideShow::LastChildLeft() {
    const QWidget* Focus = focusWidget();
    const bool IsThere = Focus && mHome->isAncestorOf(Focus);
    if (!IsThere && mStage == Stage::Loaded && !mAside->IsAnyUp()) mHome->TakeFocus();
}

void frmNEBSlideShow::OpenQuickShow(const QString& Folder) {
    if (!Folder.isEmpty() && !FolderExists(Folder)) {
        MsgBox(tr("There is no folder %1.").arg(Folder), tr("No Such Folder"), BoxIcon::Critical);
        return;
    }
    const auto Window = NewForm<frmQuickShow>();
    if (!Folder.isEmpty()) Window->SetImportDir(AbsolutePath(Folder));
    ShowAsChild(*Window);
}

void frmNEBSlideShow::OpenFolder(const QString& Folder) {
    const QString Database = DatabaseIn(Folder);
    if (!HoldsDatabase(Database)) return OpenQuickShow(Folder);
    if (IsSameDatabase(Database, DBPath()))
        return ShowNotice(tr("The albums in %1 are those that are open here.").arg(Folder));
    if (OpenInOtherInstance(Database))
        return ShowNotice(tr("The albums in %1 open in a window of their own.").arg(Folder));
    MsgBox(tr("The program cannot be started once more to open the albums in %1.").arg(Folder),
           tr("Albums Cannot Be Opened"), BoxIcon::Critical);
}

void frmNEBSlideShow::ListWindows() {
    QMenu& Menu = *mMenu->Windows;
    for (QAction* Old : Menu.actions())
        if (Old->data().isValid()) delete Old;
    const QList<QMdiSubWindow*> Frames = mWorkspace->subWindowList();
    if (!Frames.isEmpty()) Menu.addSeparator()->setData(-1);
    for (int I = 0; I < Frames.size(); ++I) {
        QMdiSubWindow* Frame = Frames[I];
        QAction* Entry = Menu.addAction(
            QStringLiteral("&%1 %2").arg(I + 1).arg(Frame->windowTitle().replace("&", "&&")));
        Entry->setData(I);
        Entry->setCheckable(true);
        Entry->setChecked(Frame == mWorkspace->activeSubWindow());
        connect(Entry, &QAction::triggered, Frame,
                [this, Frame] { mWorkspace->setActiveSubWindow(Frame); });
    }
}

}  // namespace neb
