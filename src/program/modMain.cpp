#include "program/modMain.h"

#include <QDeadlineTimer>
#include <QLocale>
#include <QThread>
#include <QTimer>
#include <cstdio>

#include "controls/forms/Form.h"
#include "controls/forms/NebApplication.h"
#include "db/modDatabaseLock.h"
#include "db/records/modJournal.h"
#include "pictures/workers/OwnPictures.h"
#include "pictures/workers/ReadingLocked.h"
#include "program/CommandLine.h"
#include "program/DesktopServices.h"
#include "program/EditMenu.h"
#include "program/TerminationWatch.h"
#include "program/Workspace.h"
#include "program/desktop/DesktopSettings.h"
#include "program/desktop/RecentAlbums.h"
#include "program/frmNEBSlideShow.h"
#include "program/language/SpeakLanguage.h"
#include "program/opening/InstanceServer.h"
#include "program/opening/OtherInstance.h"
#include "program/opening/RaiseProgram.h"
#include "program/session/LoginSession.h"
#include "settings/modNEBSlideShow.h"
#include "sound/workers/SoundReading.h"
#include "support/Fault.h"
#include "support/Services.h"
#include "support/Texts.h"
#include "support/files/HostNames.h"
#include "support/files/modHostFiles.h"
#include "support/modFUFL.h"
#include "support/work/ProcessEnd.h"
#include "windows/film/modFilms.h"
#include "windows/home/HomePage.h"

namespace neb {
namespace {

constexpr int CloseRetryMs = 50;
constexpr int WarmUpMs = 200;
constexpr int MeanwhileMs = 1500;  // for which another program may be starting or ending

// The words as typed, which may name files by any bytes. The toolkit takes its own out of them, but
// wants a display before that.
QStringList WordsOf(int argc, char** argv) {
    QStringList Words;
    for (int I = 1; I < argc; ++I) Words.append(HostName(argv[I]));
    return Words;
}

// Answers what needs no window; the exit code, or -1 to go on.
int AnswerOnTerminal(const CommandLine& Line) {
    if (Line.WantsHelp) return std::fputs(qPrintable(CommandLineHelp()), stdout), 0;
    if (Line.WantsVersion) return std::puts("NEB Slide Show " NEB_VERSION), 0;
    if (Line.Problem.isEmpty()) return -1;
    std::fprintf(stderr, "neb-slide-show: %s\n%s", qPrintable(Line.Problem),
                 qPrintable(CommandLineHelp()));
    return 2;
}

int TellUnreadable(const std::exception& Problem) {
    MsgBox(QObject::tr("The albums cannot be read. Nothing has been changed.\n\n%1")
               .arg(QString::fromUtf8(Problem.what())),
           QObject::tr("Albums Cannot Be Read"), BoxIcon::Critical);
    return 1;
}

// Opens it in its own time: who hands it over is answered before.
bool TakeOver(frmNEBSlideShow& Window, const HandOver& What) {
    if (!Window.IsUp()) return false;
    RaiseProgram(Window, What.Token);
    QMetaObject::invokeMethod(
        &Window, [&Window, What] { Window.OpenPaths(What.Paths); }, Qt::QueuedConnection);
    return true;
}

// The first picture, or sound, that somebody wants does not wait for its reader. When the window
// stands: it is what is waited for now, and it may have wanted pictures itself.
void WarmUpReaders(frmNEBSlideShow& Window) {
    QTimer::singleShot(WarmUpMs, &Window, [] {
        TheLockedReading().WarmUp();
        TheSoundReader().WarmUp();
    });
}

SessionWishes WishesOf(frmNEBSlideShow& Window) {
    return {.Places = {Window.Area(), Window.Home()},
            .AgreeToEnd = [&Window] { return Window.AgreeToEnd(); },
            .GoOn = [&Window] { Window.GoOn(); },
            .IsUp = [&Window] { return Window.IsUp(); },
            .Close =
                [&Window] {
                    StopFilms();
                    CloseWhenIdle(Window);
                }};
}

int RunMainWindow(const CommandLine& Line, const QString& Database) {
    frmNEBSlideShow Window;
    std::optional<InstanceServer> Server;
    if (MayWriteDatabase(Database))  // several may look at one that cannot be changed
        Server.emplace(Database,
                       [&Window](const HandOver& What) { return TakeOver(Window, What); });
    try {
        if (!Window.Form_Load(Line)) return 0;
    } catch (const std::exception& Problem) {
        return TellUnreadable(Problem);
    }
    WarmUpReaders(Window);
    DesktopSettings Desktop;
    RecentAlbums Recent(Desktop);
    QObject::connect(&Window, &frmNEBSlideShow::AlbumOpened, &Window,
                     [&Recent](std::int32_t AlbumID) { Recent.Used(AlbumID); });
    LoginSession Session(WishesOf(Window), Line.Documents);
    const TerminationWatch Watch(WishesOf(Window).Close);
    QMetaObject::invokeMethod(
        &Window,
        [&] {
            Session.Restore();
            Window.OpenPaths(Line.Paths);
        },
        Qt::QueuedConnection);
    return QApplication::exec();
}

}  // namespace

namespace {

// A documents folder may be new as a whole, with all that the program makes below it. Where not
// even the folder above is there, a disk is missing rather than the albums.
bool PlaceIsThere(const QString& Database) {
    const QString Place = Database == SettingsDir() ? DocumentsPath : Database;
    return FolderExists(Place) || FolderExists(GetParentDir(Place));
}

void TellNoPlace(const QString& Database) {
    MsgBox(
        QObject::tr("The folder of the albums is not there:\n%1\n\nPerhaps it lies on a disk that "
                    "is not connected. Connect it and start the program once more, or choose "
                    "another folder by the setting DBPath in\n%2\n\nNothing has been made there.")
            .arg(Database, SettingsDir() + INIFileName()),
        QObject::tr("Albums Not Found"), BoxIcon::Critical);
}

}  // namespace

std::optional<QString> DatabaseToOpen() {
    try {
        const QString Database = DBPath();
        if (!PlaceIsThere(Database)) {
            TellNoPlace(Database);
            return std::nullopt;
        }
        MakeDir(Database);
        return Database;
    } catch (const Fault& Problem) {
        MsgBox(QObject::tr("The settings cannot be read, so that it is not known where the albums "
                           "are.\n\n%1")
                   .arg(Problem.Text()),
               QObject::tr("Settings Cannot Be Read"), BoxIcon::Critical);
        return std::nullopt;
    }
}

namespace {

// Makes way for the end: what is on top goes first, so that who opened it takes up what it was left
// with. False when the user keeps a window for its work.
bool CloseTopmost(frmNEBSlideShow& Window) {
    QWidget* Modal = QApplication::activeModalWidget();
    auto* Over = qobject_cast<Form*>(Modal);
    if (!Modal) return Window.QueryForms() && (Window.UnloadForms(), true);
    if (!Over) return Modal->close(), true;  // a box: it answers that nothing is to be done
    const auto Held = Over->shared_from_this();
    if (!Over->QueryUnload()) return false;
    try {
        Over->UnloadAsked();
    } catch (const Fault&) {
        // it has said so, or has nothing to lose
    }
    return true;
}

}  // namespace

// What runs inside a modal window works on the database, which must not go away under it: the
// windows go first, then, once their work has ended, the program. An undo has no window, and ends
// by itself.
void CloseWhenIdle(frmNEBSlideShow& Window) {
    if (!IsUndoing()) {
        if (QThread::currentThread()->loopLevel() <= 1) {
            if (Window.close()) QApplication::quit();
            return;
        }
        if (!CloseTopmost(Window)) return;
    }
    QTimer::singleShot(CloseRetryMs, &Window, [&Window] { CloseWhenIdle(Window); });
}

namespace {

bool TakeOverFrom(const QString& Machine, InstanceLock& Lock) {
    return AskYesNo(QObject::tr("These albums are open on the computer \"%1\", or the program has "
                                "crashed there.\n\nWhen two programs write the same albums, what "
                                "one of them has changed is lost. Only go on when the program is "
                                "not running there.\n\nOpen the albums here?")
                        .arg(Machine),
                    QObject::tr("Albums In Use")) &&
           Lock.TryLock(FromElsewhere::IsTakenOver);
}

bool TellUnlockable(const QString& Reason) {
    MsgBox(QObject::tr("The albums cannot be opened, as nothing can be written beside them: "
                       "%1.\n\nNothing has been changed.")
               .arg(Reason),
           QObject::tr("Albums Cannot Be Opened"), BoxIcon::Critical);
    return false;
}

// The other one may just be starting, and not listen yet, or ending, and let go of the lock soon.
LockAnswer LockOrCall(InstanceLock& Lock, const CallRunning& Call, HandedOver& Answered) {
    const QDeadlineTimer Patience(MeanwhileMs);
    LockAnswer Is = Lock.TryLock();
    while (Is.Is == LockAnswer::State::HeldHere && Call &&
           (Answered = Call()) == HandedOver::NotThere) {
        QThread::msleep(CloseRetryMs);
        Is = Lock.TryLock();
        if (Patience.hasExpired()) break;
    }
    return Is;
}

}  // namespace

bool BecomeTheInstance(InstanceLock& Lock, const CallRunning& Call) {
    HandedOver Answered = HandedOver::NotThere;
    const LockAnswer Is = LockOrCall(Lock, Call, Answered);
    if (Is) return true;
    if (Answered == HandedOver::Taken) return false;
    if (Is.Is == LockAnswer::State::HeldElsewhere) return TakeOverFrom(Is.Machine, Lock);
    if (Is.Is == LockAnswer::State::CannotLock) return TellUnlockable(Is.Reason);
    MsgBox(tr("You can only run a single instance of NEB Slide Show at a time."),
           tr("Operation Denied"), BoxIcon::Information);
    return false;
}

bool BecomeTheInstanceOn(const QString& Database, InstanceLock& Lock, const CallRunning& Call) {
    return !MayWriteDatabase(Database) || BecomeTheInstance(Lock, Call);
}

namespace {

int RunOnAlbums(const CommandLine& Line, const QByteArray& Token) {
    const std::optional<QString> Database = DatabaseToOpen();
    if (!Database) return 1;
    InstanceLock Lock(DatabaseLockPath(*Database));
    const auto Call = [&] { return HandOverTo(*Database, {SeenFromHere(Line.Paths), Token}); };
    if (!BecomeTheInstanceOn(*Database, Lock, Call)) return 0;
    TheInstanceStarter() = &StartOwnProgram;
    KeepOwnSumsIn(OwnSumsFolder());
    return RunMainWindow(Line, *Database);
}

}  // namespace

int Main(int argc, char** argv) {
    const CommandLine Asked = ParseCommandLine(WordsOf(argc, argv));
    if (Asked.WantsHelp || Asked.WantsVersion) return AnswerOnTerminal(Asked);
    const QByteArray Token = TokenOfStart();
    NebApplication App(argc, argv);
    SpeakLanguage(QLocale::system().uiLanguages());
    const DesktopServices Services;
    const CommandLine Line = ParseCommandLine(WordsOf(argc, argv));
    const int Answered = AnswerOnTerminal(Line);
    if (Answered >= 0) return Answered;

    if (!Line.Documents.isEmpty()) SetDocumentsPath(Line.Documents);
    return EndProcess(RunOnAlbums(Line, Token));
}

}  // namespace neb
