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
    const char* Page;  // an anchor of the help file
};

constexpr HelpRow HelpRows[] = {
    {"frmQuickShow", "quick"},          {"frmNewAlbumWzd1", "albums"},
    {"frmImportFilter", "albums"},      {"frmDirSelect", "albums"},
    {"frmFindGraphics", "albums"},      {"frmAlbumRename", "albums"},
    {"frmAlbumDelete", "albums"},       {"frmRestore", "earlier"},
    {"frmDamage", "damaged"},           {"frmCheckPictures", "checking"},
    {"frmGetObjectName", "albums"},     {"frmSlideDBM", "albums"},
    {"frmSlideMgrBulk", "albums"},      {"frmSoundRecorder", "albums"},
    {"frmSetCaptions", "albums"},       {"frmSlideScreen", "home"},
    {"frmPicturePopup", "albums"},      {"frmAlbumView", "home"},
    {"frmSlideShowView", "home"},       {"frmSlideShowDBM", "compose"},
    {"frmRehearsal", "rehearse"},       {"frmPreferences", "prefs"},
    {"frmAlbumExport", "transfer"},     {"frmAlbumImport", "transfer"},
    {"frmSlideShowExport", "transfer"}, {"frmSlideShowImport", "transfer"},
    {"frmDiscFolder", "transfer"},      {"frmPrintPreview", "print"},
    {"frmInputBox", "print"},           {"frmPrintAlbum", "print"},
    {"frmPrintSlideShow", "print"},     {"frmPrintSlide", "print"},
    {"frmPrintSheet", "print"},         {"frmFilm", "film"},
};

QString ClassOf(const QWidget& Window) {
    return QString::fromLatin1(Window.metaObject()->className()).section(QStringLiteral("::"), -1);
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

void ShowAbove(const QString& Page) {
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
    const QString Page = Window ? HelpPageOf(ClassOf(*Window)) : QStringLiteral("home");
    return Page.isEmpty() ? QString::fromLatin1(Contents) : Page;
}

HelpKey::HelpKey(QObject* Parent) : QObject(Parent) {
    qApp->installEventFilter(this);
}

bool HelpKey::eventFilter(QObject*, QEvent* Event) {
    if (!IsHelpKey(*Event)) return false;
    const QWidget* Modal = QApplication::activeModalWidget();
    const QString Page = Modal ? HelpPageOf(ClassOf(*Modal)) : QString();
    if (Page.isEmpty()) return false;
    ShowHelpLater(Page);
    return true;
}

}  // namespace neb
