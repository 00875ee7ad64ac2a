#include "windows/transfer/TransferDirectories.h"

#include <QAction>
#include <QLineEdit>
#include <QMenu>
#include <future>
#include <thread>

#include "controls/fields/Icons.h"
#include "settings/SettingKeys.h"
#include "settings/modNEBSlideShow.h"
#include "support/files/modHostFiles.h"
#include "support/files/modHostFilesSpelling.h"
#include "support/modFUFL.h"
#include "windows/frame/modWindowState.h"

namespace neb {
namespace {

constexpr std::chrono::milliseconds Patience(100);

SettingAt PlaceOf(qsizetype Number) {
    return {Setting::TransferDirectory, QString::number(Number)};
}

// One spelling for one place; what a link is called stays.
QString Tidy(const QString& Dir) {
    return WithSeparator(CleanPath(Dir));
}

// A medium that does not answer holds up nobody but the thread that asked it.
std::future<bool> LookAside(const QString& Dir,
                            const std::function<bool(const QString& Dir)>& IsThere) {
    std::packaged_task<bool()> Look([Dir, IsThere] { return IsThere(Dir); });
    std::future<bool> Answer = Look.get_future();
    std::thread(std::move(Look)).detach();
    return Answer;
}

// In a menu an ampersand marks a letter.
QString AsEntry(QString Path) {
    return Path.replace(u'&', QStringLiteral("&&"));
}

// What is taken may open a box, which lets events run: the menu, which goes with them, shall have
// come to the end of its own before.
void ShowList(QLineEdit& Field, const std::function<void(const QString& Dir)>& Take) {
    auto* Menu = new QMenu(&Field);
    Menu->setObjectName(QStringLiteral("mnuDirectories"));
    Menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const QString& Each : ThoseThere(LastDirectories(), Patience, &FolderExists))
        QObject::connect(
            Menu->addAction(AsEntry(Each)), &QAction::triggered, &Field,
            [Take, Each] { Take(Each); }, Qt::QueuedConnection);
    if (Menu->isEmpty())
        Menu->addAction(QObject::tr("No directory has been used yet"))->setEnabled(false);
    Menu->setActiveAction(Menu->actions().front());
    Menu->popup(Field.mapToGlobal(QPoint(0, Field.height())));
}

}  // namespace

QStringList LastDirectories() {
    const clsSettings Settings = OpenSettings();
    QStringList All;
    for (qsizetype Number = 0; Number < MostDirectories; ++Number)
        if (const QString Dir = ReadText(Settings, PlaceOf(Number)); !Dir.isEmpty())
            All << Tidy(Dir);
    All.removeDuplicates();
    return All;
}

QStringList ThoseThere(const QStringList& Dirs, std::chrono::milliseconds Longest,
                       const std::function<bool(const QString& Dir)>& IsThere) {
    const auto Until = std::chrono::steady_clock::now() + Longest;
    std::vector<std::future<bool>> Looked;
    for (const QString& Each : Dirs) Looked.push_back(LookAside(Each, IsThere));
    QStringList There;
    for (size_t I = 0; I < Looked.size(); ++I) {
        const bool Known = Looked[I].wait_until(Until) == std::future_status::ready;
        if (!Known || Looked[I].get()) There << Dirs[static_cast<qsizetype>(I)];
    }
    return There;
}

void NoteDirectory(const QString& Named) {
    const QString Dir = Tidy(Named);
    QStringList All = LastDirectories();
    if (All.value(0) == Dir || Dir.contains(u'\n')) return;  // a setting is one line
    All.removeAll(Dir);
    All.prepend(Dir);
    clsSettings Settings = OpenSettings();
    for (qsizetype Number = 0; Number < std::min<qsizetype>(All.size(), MostDirectories); ++Number)
        PutText(Settings, PlaceOf(Number), All[Number]);
    SaveMemory(Settings);
}

void OfferLastDirectories(QLineEdit& Field, std::function<void(const QString& Dir)> Take) {
    auto* Open = new QAction(ThemeIcon(QStringLiteral("move-down")),
                             QObject::tr("Directories used last"), &Field);
    Open->setObjectName(QStringLiteral("mnuLastDirectories"));
    Open->setToolTip(QObject::tr("Directories used last (Alt+Down)"));
    Open->setShortcut(QKeySequence(Qt::ALT | Qt::Key_Down));
    Open->setShortcutContext(Qt::WidgetShortcut);
    QObject::connect(Open, &QAction::triggered, &Field,
                     [&Field, Take = std::move(Take)] { ShowList(Field, Take); });
    Field.addAction(Open, QLineEdit::TrailingPosition);
}

}  // namespace neb
