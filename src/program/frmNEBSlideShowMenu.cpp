// What the entries of the main window's menu do.
#include <QAction>
#include <QMdiSubWindow>
#include <QMenu>

#include "db/clsDBEngine.h"
#include "program/MainMenu.h"
#include "program/Workspace.h"
#include "program/frmAbout.h"
#include "program/frmHelp.h"
#include "program/frmNEBSlideShow.h"
#include "settings/modNEBSlideShow.h"
#include "show/ShowSettings.h"
#include "support/Fault.h"
#include "support/Services.h"
#include "support/files/modHostFiles.h"
#include "windows/albums/modAlbumNames.h"
#include "windows/compose/frmSlideShowDBM.h"
#include "windows/frame/Openers.h"
#include "windows/frame/modWindowState.h"
#include "windows/import/frmNewAlbumWzd1.h"
#include "windows/import/frmQuickShow.h"
#include "windows/show/modSlideShows.h"
#include "windows/slides/frmSlideDBM.h"
#include "windows/slides/frmSlideMgrBulk.h"

namespace neb {
namespace {

// The windows that come with later versions; until then their entries rest.
constexpr const char* NotYet[] = {
    "mnuAlbumExport",     "mnuAlbumImport",     "mnuAlbumPrint",
    "mnuSlideShowExport", "mnuSlideShowImport", "mnuSlideShowPrint",
};

}  // namespace

void frmNEBSlideShow::SetUpMenu() {
    mMenu = std::make_unique<MainMenu>(BuildMainMenu(*this));
    for (const char* Entry : NotYet) mMenu->Entries[QString::fromLatin1(Entry)]->setEnabled(false);
    Connect("mnuSlideMgrBulk", [] { NewForm<frmSlideMgrBulk>()->LoadAlbumMgr(0); });
    Connect("mnuAlbumRename", [] { ShowRenameAlbum(0); });
    Connect("mnuAlbumDelete", [] { ShowDeleteAlbum(0); });
    Connect("mnuQuickShow", [this] { OpenQuickShow(); });
    Connect("mnuAlbumNew", [] { NewForm<frmNewAlbumWzd1>()->ShowModal(); });
    Connect("mnuSlideMgr", [] { NewForm<frmSlideDBM>()->LoadSlideMgr(); });
    Connect("mnuSlideShowMgr", [] { TheOpeners().SlideShowMgr(0, 0); });
    Connect("mnuExit", [this] { close(); });
    Connect("mnuSlideShowPrefs", [] { EditSlideShowPreferences(); });
    Connect("mnuSlideShowViewer", [this] { PlayActiveShow(); });
    Connect("mnuCascade", [this] { mWorkspace->cascadeSubWindows(); });
    Connect("mnuTile", [this] { mWorkspace->tileSubWindows(); });
    Connect("mnuHelpContents", [this] { ShowHelp(QStringLiteral("contents")); });
    Connect("mnuHelpIndex", [this] { ShowHelp(QStringLiteral("index")); });
    Connect("mnuAbout", [] { NewForm<frmAbout>()->ShowModal(); });
    connect(mMenu->Windows, &QMenu::aboutToShow, this, &frmNEBSlideShow::ListWindows);
}

// A fault in showing a window is ignored; the window then simply does not appear. The action runs
// after the menu has closed, so that a modal window does not hold whoever pressed the entry.
void frmNEBSlideShow::Connect(const char* Entry, std::function<void()> Action) {
    const auto Run = [Action] {
        try {
            Action();
        } catch (const Fault&) {
            return;
        }
    };
    connect(mMenu->Entries[QString::fromLatin1(Entry)], &QAction::triggered, this, Run,
            Qt::QueuedConnection);
}

void frmNEBSlideShow::FillOpeners() {
    TheOpeners().ShowAsChild = [this](Form& Child) { ShowAsChild(Child); };
    TheOpeners().SlideShowMgr = [](std::int32_t AlbumID, std::int32_t SlideShowID) {
        NewForm<frmSlideShowDBM>()->LoadSlideShowMgr(AlbumID, SlideShowID);
    };
}

void frmNEBSlideShow::ShowAsChild(Form& Child) {
    const auto Held = Child.shared_from_this();
    const QSize Designed = Child.size();
    QMdiSubWindow* Frame = mWorkspace->addSubWindow(&Child);
    Frame->resize(Designed.boundedTo(mWorkspace->size()));
    Frame->setAttribute(Qt::WA_DeleteOnClose, false);
    Child.Load();
    if (!Child.IsLoaded()) return;
    PositionMDIChild(Child, 1);
    Child.ShowModeless();
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

void frmNEBSlideShow::ListWindows() {
    QMenu& Menu = *mMenu->Windows;
    for (QAction* Old : Menu.actions())
        if (Old->data().isValid() || Old->isSeparator()) delete Old;
    const QList<QMdiSubWindow*> Frames = mWorkspace->subWindowList();
    if (!Frames.isEmpty()) Menu.addSeparator();
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

void frmNEBSlideShow::PlayActiveShow() {
    ActiveShow Active = ReadActiveShow(OpenSettings());
    if (Active.SlideShowID == 0) {
        MsgBox(QStringLiteral("You must first select an Active Slide Show in Preferences!"),
               QStringLiteral("No Active Slide Show"), BoxIcon::Information);
        EditSlideShowPreferences();
        Active = ReadActiveShow(OpenSettings());
        if (Active.SlideShowID == 0) return;
    }
    QString AlbumName;
    if (Active.AlbumID > 0 && !DBEngine->LoadAlbum(Active.AlbumID, AlbumName)) return;
    RunSlideShow(Active.AlbumID, AlbumName, Active.SlideShowID);
}

void frmNEBSlideShow::ShowHelp(const QString& Anchor) {
    const auto Window = NewForm<frmHelp>();
    Window->SetTopic(AppPath() + QStringLiteral("SlideShowHelp.hlp"), Anchor);
    ShowAsChild(*Window);
}

}  // namespace neb
