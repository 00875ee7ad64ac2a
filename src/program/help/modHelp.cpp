#include "program/help/modHelp.h"

#include <QApplication>
#include <QKeyEvent>
#include <algorithm>

#include "program/help/frmHelp.h"
#include "settings/modNEBSlideShow.h"
#include "support/Fault.h"
#include "windows/frame/Openers.h"
#include "windows/frame/modNotice.h"
#include "windows/frame/modWindowState.h"

namespace neb {
namespace {

constexpr char HelpFile[] = "SlideShowHelp.hlp";
constexpr char Contents[] = "contents";

struct HelpRow {
    const char* Class;
    const char* Page;
};

constexpr HelpRow HelpRows[] = {
    {"frmNEBSlideShow", "start/home"},
    {"frmAbout", "start/about"},
    {"frmHelp", "start/help"},
    {"frmQuickShow", "start/quick-show"},
    {"frmNewAlbumWzd1", "albums/new-album"},
    {"frmImportFilter", "albums/import-pictures"},
    {"frmDirSelect", "albums/choose-folder"},
    {"frmFindGraphics", "albums/find-graphics"},
    {"frmAlbumRename", "albums/rename-album"},
    {"frmAlbumDelete", "albums/delete-album"},
    {"frmGetObjectName", "albums/give-a-name"},
    {"frmSlideDBM", "albums/slide-manager"},
    {"frmSlideMgrBulk", "albums/bulk-slide-manager"},
    {"frmSetCaptions", "albums/set-captions"},
    {"frmSoundRecorder", "albums/sound-recorder"},
    {"frmPicturePopup", "albums/picture-preview"},
    {"frmSlideScreen", "albums/whole-screen"},
    {"frmAlbumView", "albums/album-viewer"},
    {"frmSlideShowView", "shows/show-viewer"},
    {"frmSlideShowDBM", "shows/slide-show-manager"},
    {"frmRehearsal", "shows/rehearsal"},
    {"frmFilm", "shows/film"},
    {"frmPreferences", "shows/preferences"},
    {"frmSpeedTest", "shows/speed-test"},
    {"frmSlideShowProjector", "shows/running-show"},
    {"frmPopup", "shows/show-menu"},
    {"frmAlbumExport", "places/export-album"},
    {"frmAlbumImport", "places/import-album"},
    {"frmSlideShowExport", "places/export-show"},
    {"frmSlideShowImport", "places/import-show"},
    {"frmTransferProgress", "places/transfer-progress"},
    {"frmDiscFolder", "places/disc-folder"},
    {"frmPrintPreview", "paper/print-preview"},
    {"frmInputBox", "paper/mail-address"},
    {"frmPrintAlbum", "paper/print-album"},
    {"frmPrintSlideShow", "paper/print-show"},
    {"frmPrintSlide", "paper/print-slide"},
    {"frmPrintSheet", "paper/print-slide-sheet"},
    {"frmRestore", "safety/restore"},
    {"frmDamage", "safety/damaged-albums"},
    {"frmCheckPictures", "safety/check-pictures"},
    {"frmLoading", "start/work-under-way"},
    {"frmProgress", "start/work-under-way"},
    {"frmMsgBoxEx", "start/messages"},
};

// Those over which nothing opens: they say how far work is, fill the screen with pictures that
// move, or have a meaning of their own for F1.
constexpr const char* Undisturbed[] = {"frmLoading", "frmProgress",           "frmTransferProgress",
                                       "frmPopup",   "frmSlideShowProjector", "frmSpeedTest"};

QString ClassOf(const QWidget& Window) {
    return QString::fromLatin1(Window.metaObject()->className()).section(QStringLiteral("::"), -1);
}

bool IsUndisturbed(const QString& Class) {
    return std::ranges::any_of(Undisturbed,
                               [&](const char* Each) { return Class == QLatin1String(Each); });
}

// Those that are shown modally live until they are closed; the other one is known among the forms.
std::shared_ptr<frmHelp> OpenHelp() {
    for (const auto& Each : LoadedForms())
        if (auto Found = std::dynamic_pointer_cast<frmHelp>(Each)) return Found;
    return nullptr;
}

void ShowPage(frmHelp& Window, const QString& Page) {
    Window.SetTopic(AppPath() + QLatin1String(HelpFile), Page);
}

// The one that is open already takes the page; one behind the modal window comes before it.
void ShowAbove(const QString& Page) {
    const auto Open = OpenHelp();
    if (Open && Open->isModal()) return ShowPage(*Open, Page);
    if (Open) Open->Unload();
    const auto Window = NewForm<frmHelp>();
    ShowPage(*Window, Page);
    Window->ShowModal();
}

// A queued call must not let a fault out: there is nobody above it.
void ShowHelpLater(const QString& Page) {
    QMetaObject::invokeMethod(
        qApp,
        [Page] {
            try {
                ShowHelp(Page);
            } catch (const Fault& Problem) {
                ShowNotice(Problem.Text());
            }
        },
        Qt::QueuedConnection);
}

bool IsHelpKey(const QEvent& Event) {
    if (Event.type() != QEvent::KeyPress) return false;
    const auto& Key = static_cast<const QKeyEvent&>(Event);
    return Key.key() == Qt::Key_F1 && Key.modifiers() == Qt::NoModifier;
}

}  // namespace

void ShowHelp(const QString& Page) {
    if (QApplication::activeModalWidget()) return ShowAbove(Page);
    if (const auto Open = OpenHelp()) {
        ShowPage(*Open, Page);
        return BringToFront(*Open);
    }
    const auto Window = NewForm<frmHelp>();
    ShowPage(*Window, Page);
    TheOpeners().ShowAsChild(*Window);
}

QString HelpPageOf(const QString& Class) {
    const auto* Row = std::ranges::find_if(
        HelpRows, [&](const HelpRow& Each) { return Class == QLatin1String(Each.Class); });
    return Row == std::end(HelpRows) ? QString() : QString::fromLatin1(Row->Page);
}

QString HelpPageOf(const QWidget* Window) {
    const QString Page = HelpPageOf(Window ? ClassOf(*Window) : QStringLiteral("frmNEBSlideShow"));
    return Page.isEmpty() ? QString::fromLatin1(Contents) : Page;
}

HelpKey::HelpKey(QObject* Parent) : QObject(Parent) {
    qApp->installEventFilter(this);
}

bool HelpKey::eventFilter(QObject*, QEvent* Event) {
    if (!IsHelpKey(*Event)) return false;
    const QWidget* Modal = QApplication::activeModalWidget();
    const QString Page = Modal ? HelpPageOf(ClassOf(*Modal)) : QString();
    if (Page.isEmpty() || IsUndisturbed(ClassOf(*Modal))) return false;
    ShowHelpLater(Page);
    return true;
}

}  // namespace neb
