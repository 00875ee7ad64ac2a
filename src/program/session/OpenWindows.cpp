#include "program/session/OpenWindows.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <algorithm>

#include "db/clsDBEngine.h"
#include "program/help/modHelp.h"
#include "settings/modNEBSlideShow.h"
#include "support/Fault.h"
#include "support/files/modHostFiles.h"
#include "windows/compose/frmSlideShowDBM.h"
#include "windows/disc/frmDiscFolder.h"
#include "windows/frame/AlbumInHand.h"
#include "windows/frame/Openers.h"
#include "windows/gallery/AlbumPage.h"
#include "windows/home/HomePage.h"
#include "windows/import/frmQuickShow.h"
#include "windows/rehearsal/modRehearsals.h"
#include "windows/slides/frmSlideDBM.h"
#include "windows/slides/frmSlideMgrBulk.h"
#include "windows/transfer/frmAlbumExport.h"
#include "windows/transfer/frmAlbumImport.h"
#include "windows/transfer/frmSlideShowExport.h"
#include "windows/transfer/frmSlideShowImport.h"

namespace neb {
namespace {

template <class Window>
void OpenChild(const WindowPlaces&, const OpenWindow&) {
    TheOpeners().ShowAsChild(*NewForm<Window>());
}

void OpenQuickShow(const WindowPlaces&, const OpenWindow& Was) {
    const auto Window = NewForm<frmQuickShow>();
    if (!Was.Folder.isEmpty() && FolderExists(Was.Folder)) Window->SetImportDir(Was.Folder);
    TheOpeners().ShowAsChild(*Window);
}

struct Row {
    const char* Name;
    void (*Open)(const WindowPlaces& Places, const OpenWindow& Was);
    enum class About { Nothing, Album, Show } Is = About::Nothing;
};

constexpr Row Rows[] = {
    {"HomePage", [](auto& Places, auto& Was) { Places.Home.ShowAlbum(Was.AlbumID); },
     Row::About::Album},
    {"frmSlideDBM", [](auto&, auto& Was) { NewForm<frmSlideDBM>()->LoadSlideMgr(Was.AlbumID); }},
    {"frmSlideMgrBulk",
     [](auto&, auto& Was) { NewForm<frmSlideMgrBulk>()->LoadAlbumMgr(Was.AlbumID); }},
    {"frmSlideShowDBM",
     [](auto&, auto& Was) { TheOpeners().SlideShowMgr(Was.AlbumID, Was.SlideShowID); }},
    {"frmRehearsal", [](auto&, auto& Was) { ShowRehearsal(Was.AlbumID, Was.SlideShowID); },
     Row::About::Show},
    {"frmQuickShow", &OpenQuickShow},
    {"frmAlbumImport", &OpenChild<frmAlbumImport>},
    {"frmAlbumExport", &OpenChild<frmAlbumExport>},
    {"frmSlideShowImport", &OpenChild<frmSlideShowImport>},
    {"frmSlideShowExport", &OpenChild<frmSlideShowExport>},
    {"frmDiscFolder", &OpenChild<frmDiscFolder>},
    {"frmHelp", [](auto&, auto&) { ShowHelp(QStringLiteral("contents")); }},
};

const Row* RowOf(const QString& Name) {
    const auto* Found = std::ranges::find_if(
        Rows, [&](const Row& Each) { return Name == QLatin1String(Each.Name); });
    return Found == std::end(Rows) ? nullptr : Found;
}

OpenWindow NoteOf(const QMdiSubWindow& Frame) {
    OpenWindow Noted{.Name = Frame.widget()->objectName(), .IsMaximised = Frame.isMaximized()};
    if (const auto* Holder = dynamic_cast<const AlbumHolder*>(Frame.widget())) {
        Noted.AlbumID = Holder->HeldAlbum();
        Noted.SlideShowID = Holder->HeldShow();
    }
    if (const auto* Quick = dynamic_cast<const frmQuickShow*>(Frame.widget()))
        Noted.Folder = Quick->ImportDir();
    return Noted;
}

// What is about one that has gone is not opened; others open on what is left.
bool IsThere(const OpenWindow& Was, const Row& Its) {
    if (Its.Is == Row::About::Nothing) return true;
    const clsNEBAlbum* Album = DBEngine->GetAlbum(Was.AlbumID);
    return Album && (Its.Is == Row::About::Album || Album->GetSlideShow(Was.SlideShowID));
}

void Reopen(const WindowPlaces& Places, const OpenWindow& Was, const Row& Its) {
    const QList<QMdiSubWindow*> Before = Places.Area.subWindowList();
    Its.Open(Places, Was);
    for (QMdiSubWindow* Frame : Places.Area.subWindowList())
        if (!Before.contains(Frame) && Was.IsMaximised) Frame->showMaximized();
}

}  // namespace

QList<OpenWindow> WindowsOpenIn(const WindowPlaces& Places) {
    QList<OpenWindow> All;
    const AlbumPage* Album = Places.Home.Album();
    if (Album && Album->isVisibleTo(&Places.Home))
        All << OpenWindow{.Name = QStringLiteral("HomePage"), .AlbumID = Album->AlbumID()};
    for (const QMdiSubWindow* Frame : Places.Area.subWindowList(QMdiArea::ActivationHistoryOrder))
        if (Frame->widget() && Frame->isVisible() && RowOf(Frame->widget()->objectName()))
            All << NoteOf(*Frame);
    return All;
}

void OpenAgain(const WindowPlaces& Places, const QList<OpenWindow>& Windows) {
    if (!DBEngine) return;
    for (const OpenWindow& Each : Windows) {
        const Row* Its = RowOf(Each.Name);
        try {
            if (Its && IsThere(Each, *Its)) Reopen(Places, Each, *Its);
        } catch (const Fault&) {
            continue;  // the others can be opened all the same
        }
    }
}

QByteArray Packed(const QList<OpenWindow>& Windows, const QString& Database) {
    QJsonArray All;
    for (const OpenWindow& Each : Windows)
        All << QJsonObject{{QStringLiteral("Name"), Each.Name},
                           {QStringLiteral("Album"), Each.AlbumID},
                           {QStringLiteral("Show"), Each.SlideShowID},
                           {QStringLiteral("Folder"), Each.Folder},
                           {QStringLiteral("Maximised"), Each.IsMaximised}};
    return QJsonDocument(
               QJsonObject{{QStringLiteral("Albums"), Database}, {QStringLiteral("Windows"), All}})
        .toJson();
}

QList<OpenWindow> Unpacked(const QByteArray& Text, const QString& Database) {
    const QJsonObject Whole = QJsonDocument::fromJson(Text).object();
    QList<OpenWindow> All;
    if (Whole.value(QStringLiteral("Albums")).toString() != Database) return All;
    const QJsonArray Windows = Whole.value(QStringLiteral("Windows")).toArray();
    for (const auto Each : Windows)
        All << OpenWindow{
            Each[QStringLiteral("Name")].toString(), Each[QStringLiteral("Album")].toInt(),
            Each[QStringLiteral("Show")].toInt(), Each[QStringLiteral("Folder")].toString(),
            Each[QStringLiteral("Maximised")].toBool()};
    return All;
}

}  // namespace neb
