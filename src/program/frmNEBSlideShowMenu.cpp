// The menu of the main window and the children in its frame.
#include <QAction>
#include <QMdiSubWindow>
#include <QMenu>
#include <QPointer>
#include <QStatusBar>
#include <QThread>
#include <QTimer>
#include <functional>

#include "albums/transfer/OtherDatabase.h"
#include "controls/forms/Form.h"
#include "controls/forms/Tell.h"
#include "controls/speech/SpokenNotice.h"
#include "program/EditMenu.h"
#include "program/MainMenu.h"
#include "program/StepAside.h"
#include "program/Workspace.h"
#include "program/frmNEBSlideShow.h"
#include "program/opening/OpenedPaths.h"
#include "program/opening/OtherInstance.h"
#include "settings/modNEBSlideShow.h"
#include "support/Services.h"
#include "support/modText.h"
#include "windows/compose/frmSlideShowDBM.h"
#include "windows/compose/modShowManagers.h"
#include "windows/frame/AlbumInHand.h"
#include "windows/frame/Openers.h"
#include "windows/frame/WindowKeeper.h"
#include "windows/frame/modNotice.h"
#include "windows/frame/modWindowState.h"
#include "windows/home/HomePage.h"
#include "windows/import/frmQuickShow.h"
#include "windows/printing/modPrinting.h"

namespace neb {
namespace {

constexpr int NoticeMs = 10'000;
constexpr int RetryMs = 100;
constexpr int OnceReadMs = 1000;

frmQuickShow* QuickShowThat(const std::function<bool(const frmQuickShow& Window)>& Is) {
    for (const auto& Each : LoadedForms())
        if (auto* Found = dynamic_cast<frmQuickShow*>(Each.get()); Found && Is(*Found))
            return Found;
    return nullptr;
}

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
    TheOpeners().Notice = [Bar = QPointer(statusBar()),
                           Told = new SpokenNotice(*statusBar())](const QString& Text) {
        if (!Bar) return;
        Bar->showMessage(Text.simplified(), NoticeMs);
        Told->Say(Text.simplified());
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
    // which album it is about is known when its lists have been read
    QTimer::singleShot(OnceReadMs, this, [this, Opened = QPointer(&Child)] {
        const auto* Holder = dynamic_cast<const AlbumHolder*>(Opened.data());
        if (Holder && Opened->IsLoaded() && Holder->HeldAlbum() > 0)
            Q_EMIT AlbumOpened(Holder->HeldAlbum());
    });
}

void frmNEBSlideShow::ShowHome() {
    const QWidget* Focus = focusWidget();
    const bool IsThere = Focus && mHome->isAncestorOf(Focus);
    if (IsThere && mAside->ComeBack()) return;
    mAside->Step();
    mHome->TakeFocus();
}

void frmNEBSlideShow::OpenQuickShow() {
    ShowAsChild(*NewForm<frmQuickShow>());
}

// No show, no question and no work that waits for its end; no menu and no drag either.
bool frmNEBSlideShow::IsFree() const {
    return mStage == Stage::Loaded && !IsUndoing() && !QApplication::activeModalWidget() &&
           !QApplication::activePopupWidget() && QThread::currentThread()->loopLevel() <= 1;
}

void frmNEBSlideShow::OpenPaths(const QStringList& Paths) {
    if (Paths.isEmpty()) return;
    if (mStage == Stage::Loaded && !IsFree())
        ShowNotice(tr("What was opened comes as soon as the window in front has closed."));
    OpenWhenFree(Paths);
}

void frmNEBSlideShow::OpenWhenFree(const QStringList& Paths) {
    if (IsFree()) return OpenNow(SortOut(Paths));
    if (IsUp()) QTimer::singleShot(RetryMs, this, [this, Paths] { OpenWhenFree(Paths); });
}

void frmNEBSlideShow::OpenNow(const OpenedPaths& What) {
    for (const QString& Folder : What.Albums) OpenAlbums(Folder);
    if (!What.OwnAlbums.isEmpty()) {
        ShowHome();
        mHome->ShowAlbum(What.OwnAlbums.back());
    }
    if (const auto Wrong = What.Wrong()) ShowBox(*Wrong);
    for (const QString& Document : What.Prints) PreviewFile(Document);
    if (What.Named.isEmpty()) return;
    const auto IsTheSame = [&](const frmQuickShow& Is) { return Is.IsOpenedOn(What.Named); };
    if (const frmQuickShow* Opened = QuickShowThat(IsTheSame)) return BringToFront(*Opened);
    if (frmQuickShow* Waiting = QuickShowThat(&frmQuickShow::IsWaitingEmpty)) {
        BringToFront(*Waiting);
        return Waiting->Open(What.Named, What.AtPicture);
    }
    const auto Window = NewForm<frmQuickShow>();
    Window->Open(What.Named, What.AtPicture);
    ShowAsChild(*Window);
}

void frmNEBSlideShow::OpenAlbums(const QString& Folder) {
    const QString Database = DatabaseIn(Folder);
    const QString Shown = ReadableText(Folder);
    if (IsSameDatabase(Database, DBPath()))
        return ShowNotice(tr("The albums in %1 are those that are open here.").arg(Shown));
    if (OpenInOtherInstance(Database))
        return ShowNotice(tr("The albums in %1 open in a window of their own.").arg(Shown));
    MsgBox(tr("The program cannot be started once more to open the albums in %1.").arg(Shown),
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
