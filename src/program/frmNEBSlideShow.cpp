// The start and the end of the program; its menu is in frmNEBSlideShowMenu.cpp and MainMenu.cpp.
#include "program/frmNEBSlideShow.h"

#include <QCloseEvent>
#include <QDateTime>
#include <QLocale>
#include <QMdiSubWindow>
#include <QScreen>
#include <QStatusBar>
#include <QWindow>
#include <algorithm>
#include <functional>

#include "controls/forms/Form.h"
#include "controls/forms/ScreenPointer.h"
#include "controls/forms/Tell.h"
#include "controls/grid/FlexGrid.h"
#include "db/clsDBEngine.h"
#include "db/records/RecordSums.h"
#include "db/recovery/modRestore.h"
#include "db/undo/History.h"
#include "program/EditMenu.h"
#include "program/MainMenu.h"
#include "program/MenuKeys.h"
#include "program/StepAside.h"
#include "program/UnstoredNotice.h"
#include "program/Workspace.h"
#include "program/help/modHelp.h"
#include "program/modMachineSettings.h"
#include "program/opening/FileDrops.h"
#include "settings/SettingKeys.h"
#include "settings/clsFileSystem.h"
#include "settings/modNEBSlideShow.h"
#include "support/Fault.h"
#include "support/MediaTypes.h"
#include "support/ReasonOf.h"
#include "support/Services.h"
#include "support/Texts.h"
#include "support/files/modHostFiles.h"
#include "support/work/WorkAside.h"
#include "windows/albums/frmDamage.h"
#include "windows/frame/WindowKeeper.h"
#include "windows/frame/modBroadcast.h"
#include "windows/frame/modNotice.h"
#include "windows/frame/modWindowState.h"
#include "windows/home/HomePage.h"
#include "windows/lists/clsImageBuffer.h"

namespace neb {
namespace {

void Log(const char* Message) {
    if (DebugMode) LogMessage(QStringLiteral("Information"), QString::fromLatin1(Message));
}

// Most of the screen, on a small one nearly all of it: the widest window is to find room in it.
QSize FirstSize(const QSize& Screen) {
    constexpr QSize Useful(1100, 800), DesktopsFrame(16, 48);
    return (Screen * 0.85).expandedTo(Useful).boundedTo(Screen - DesktopsFrame);
}

// Whether a file can be made in the folder for scratch files, and so the records at the end.
void ProbeDatabaseFolder() {
    const QString Probe = DBPath() + QStringLiteral("Temp/probe.tmp");
    WriteFile(Probe, "x");
    DeleteFile(Probe);
}

clsFileSystem* TheFileSystem() {
    static clsFileSystem Files;
    return &Files;
}

QString TextOfBroughtBack(const LeftBehind& Found) {
    const QDateTime When = QDateTime::fromMSecsSinceEpoch(Found.When);
    const QString Date = QLocale().toString(When, tr("d MMMM, HH:mm"));
    return Found.Changes == 1
               ? QObject::tr("1 change of %1, was brought back.").arg(Date)
               : QObject::tr("%1 changes of %2, were brought back.").arg(Found.Changes).arg(Date);
}

void IgnoringFaults(const std::function<void()>& Action) {
    try {
        Action();
    } catch (const Fault&) {
        return;
    }
}

// All is saved; who relies on going back to the albums of before must know that these are not kept.
void TellNotKept(const QString& Reason) {
    SetScreenPointer(Pointer::Default);
    MsgBox(QObject::tr("The albums are saved. Those of before could not be kept among the earlier "
                       "ones.\n\n%1")
               .arg(Reason),
           QObject::tr("Earlier Albums"), BoxIcon::Information);
}

// How the database is once the user has had it mended where it is damaged; nothing when he ends the
// program instead. One that cannot be written stays as it is.
std::optional<DatabaseHealth> LookAtDatabase() {
    const auto Look = [] { return FinishAside([] { return LookAtHealth(DBPath()); }).get(); };
    const DatabaseHealth Health = Look();
    if (Health.IsSound() || !MayWriteDatabase(DBPath())) return Health;
    SetScreenPointer(Pointer::Default);
    if (!NewForm<frmDamage>()->MakeSound(DBPath(), Health)) return std::nullopt;
    return Look();
}

// In a folder that has no albums yet none could be kept: that must be mended first.
void TellNothingCanBeKept(const QString& Reason) {
    SetScreenPointer(Pointer::Default);
    MsgBox(
        QObject::tr("The folder of the albums cannot be written, so that nothing new can be "
                    "kept.\nGive yourself permission to write there, or choose another folder by "
                    "the setting DBPath.\n\n%1")
            .arg(Reason),
        QObject::tr("Albums Cannot Be Written"), BoxIcon::Critical);
}

void TellDamageOfReadOnly(const QStringList& Wrong) {
    SetScreenPointer(Pointer::Default);
    MsgBox(QObject::tr("The albums are damaged, and cannot be written where they lie. What is left "
                       "of them is shown; nothing is changed.\n\n%1")
               .arg(Wrong.join(u'\n')),
           QObject::tr("Damaged Albums"), BoxIcon::Information);
}

// Whether to end although the albums could not be saved. Are they kept in the session's journal, an
// end loses nothing; else it is to be asked for in so many words.
bool AskEndUnsaved(const QString& Problem, bool AreKept) {
    const QString State =
        AreKept ? QObject::tr(
                      "All changes are kept beside them in a journal, from which the next "
                      "start brings them back: nothing is lost.")
                : QObject::tr(
                      "The last changes are nowhere on the disk yet. The program stays "
                      "open, so that nothing is lost.");
    return ShowBox({.Text = QObject::tr("The albums could not be saved.\n\n%1\n\n%2 Mend what is "
                                        "wrong (make room on the disk, say, or connect it again), "
                                        "then end the program once more.")
                                .arg(Problem, State),
                    .Title = QObject::tr("Save Failed"),
                    .Icon = BoxIcon::Critical,
                    .Buttons = BoxButtons::YesNo,
                    .Default = BoxAnswer::No,
                    .YesWords = AreKept ? QObject::tr("&End, the Changes Are Kept")
                                        : QObject::tr("&End and Lose the Changes"),
                    .NoWords = QObject::tr("&Go On")}) == BoxAnswer::Yes;
}

}  // namespace

frmNEBSlideShow::frmNEBSlideShow()
    : mWorkspace(new Workspace(this)),
      mHome(new HomePage),
      mAside(std::make_unique<StepAside>(*mWorkspace)) {
    setObjectName(QStringLiteral("frmNEBSlideShow"));
    setWindowTitle(QApplication::applicationDisplayName());
    setCentralWidget(mWorkspace);
    mWorkspace->SetPage(mHome);
    // It says what a menu entry does, and takes the notices.
    new UnstoredNotice(*statusBar());
    SetUpMenu();
    mWorkspace->LookAfter(*menuBar());
    FillOpeners();
    new HelpKey(this);
    new WindowKeeper(this);
    new MenuKeys(*this);
    resize(FirstSize(screen()->availableSize()));
    new FileDrops(*this, [this](const QStringList& Paths) { OpenPaths(Paths); });
    connect(mHome, &HomePage::AlbumShown, this, &frmNEBSlideShow::AlbumOpened);
    connect(mHome, &HomePage::QuickShowWanted, this, &frmNEBSlideShow::OpenQuickShow);
}

frmNEBSlideShow::~frmNEBSlideShow() {
    if (DBEngine == mEngine.get()) DBEngine = nullptr;
    if (ImageBuffer == mImageBuffer.get()) ImageBuffer = nullptr;
    if (FileSystem == TheFileSystem()) FileSystem = nullptr;
}

bool frmNEBSlideShow::Form_Load(const CommandLine& Line) {
    DebugMode = Line.Debug;
    Log("Showing Main Form");
    mStage = Stage::Loading;
    IgnoringFaults([this] {
        ReadOnlyDB = !MayWriteDatabase(DBPath());  // which says where it is remembered
        RestoreMainWindow(*this);
    });
    show();
    DoEvents();
    // drawn once the window stands, which need not wait for it
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/neb/neb-slide-show.svg")));
    const PointerScope Working(Pointer::Hourglass);
    IgnoringFaults([] { SetExtraFormats(ReadFlag(OpenSettings(), Setting::ExtraFormats)); });
    if (!LoadDatabase()) {
        mStage = Stage::Empty;
        return false;
    }
    CheckReadOnly();
    if (!ReadOnlyDB) {
        Log("If not read-only, call Speed Tests routine.");
        IgnoringFaults([] { EnsureMachineSettings(); });  // it is tried again at the next start
    }
    Log("Attempt to make child dirs.");
    MakeChildDirs();
    Log("Load Completed Successfully.");
    FileSystem = TheFileSystem();
    CreateImageBuffer();
    mStage = Stage::Loaded;
    mHome->Fill();
    TellLeftBehind();
    return true;
}

// What was brought back is as the user left it: it needs no answer. What could not be is somewhere
// else, and he must know where.
void frmNEBSlideShow::TellLeftBehind() {
    const LeftBehind& Found = mEngine->Found();
    if (Found.Changes > 0) ShowNotice(TextOfBroughtBack(Found));
    if (!Found.NotKept.isEmpty()) TellNotKept(Found.NotKept);
    if (Found.PutAside.isEmpty()) return;
    SetScreenPointer(Pointer::Default);
    MsgBox(tr("The albums are not those that were changed when the program was last interrupted: "
              "they have been replaced meanwhile, by a backup perhaps, or are damaged. They are "
              "opened as they lie. The changes of then are kept here:\n\n%1")
               .arg(Found.PutAside.join(u'\n')),
           tr("Interrupted Changes Put Aside"), BoxIcon::Information);
}

bool frmNEBSlideShow::LoadDatabase() {
    Log("Starting Initializing and Buffering Database");
    const std::optional<DatabaseHealth> Health = LookAtDatabase();
    if (!Health) return false;
    mEngine = std::make_unique<clsDBEngine>();
    mEngine->SetDBPath(DBPath());
    mEngine->SetProgramPath(AppPath());
    ReadRecords(*Health);
    DBEngine = mEngine.get();
    BroadcastChangesOf(*DBEngine);
    Log("Completed Initializing and Buffering Database");
    return true;
}

// Pictures that a crash has left without a record may lie above the counters.
void frmNEBSlideShow::ReadRecords(const DatabaseHealth& Health) {
    if (!Health.IsSound()) {
        LoadRest(*mEngine, Health);
        return TellDamageOfReadOnly(Health.Wrong);
    }
    mEngine->InitializeDB();
    if (!MayWriteDatabase(DBPath())) return;
    if (Health.IsNew) NoteRecords(DBPath());
    RaiseCounters(*mEngine, Health.Free);
    mEngine->KeepSession();
    KeepHistory(*mEngine);
}

void frmNEBSlideShow::CheckReadOnly() {
    Log("Check if Read-Only");
    const QString Fixed = WhyNotWritable(DBPath());
    ReadOnlyDB = !Fixed.isEmpty();
    if (!ReadOnlyDB) return;
    for (const char* Name : {"mnuAlbumNew", "mnuRestore"})
        mMenu->Entries[QLatin1String(Name)]->setEnabled(false);
    if (!HoldsDatabase(DBPath())) return TellNothingCanBeKept(Fixed);
    ShowNotice(
        tr("These albums can be looked at, but not changed: %1 cannot be written.").arg(Fixed));
}

void frmNEBSlideShow::MakeChildDirs() {
    if (ReadOnlyDB) return;  // not even an empty folder comes into it
    MakeDir(DBPath() + QStringLiteral("Albums"));
    MakeDir(DBPath() + QStringLiteral("Temp"));
    try {
        ProbeDatabaseFolder();
    } catch (const Fault& Problem) {
        TellNothingCanBeKept(Problem.Text());
    }
}

void frmNEBSlideShow::CreateImageBuffer() {
    mBuffer = new FlexGrid(this);
    mBuffer->hide();
    mImageBuffer = std::make_unique<clsImageBuffer>();
    mImageBuffer->BufferGrid = mBuffer;
    mImageBuffer->UseSmallFiles = true;
    ImageBuffer = mImageBuffer.get();
}

void frmNEBSlideShow::UnloadChild(Form& Child) {
    IgnoringFaults([&] { Child.Unload(); });
}

// A fault in the saving is told by who called: the window stays with its work, and the program.
bool frmNEBSlideShow::QueryForms() {
    const auto Windows = LoadedForms();
    return std::all_of(Windows.begin(), Windows.end(),
                       [](const auto& Window) { return Window->QueryUnload(); });
}

bool frmNEBSlideShow::AgreeToEnd() {
    mIsAgreed = mStage == Stage::Empty || (mStage == Stage::Loaded && !IsUndoing() && QueryForms());
    return mIsAgreed;
}

bool frmNEBSlideShow::UnloadForms() {
    for (const auto& Window : LoadedForms()) IgnoringFaults([&] { Window->UnloadAsked(); });
    return LoadedForms().empty();
}

bool frmNEBSlideShow::Unload() {
    if (mStage != Stage::Loaded) return true;
    const bool AreAsked = std::exchange(mIsAgreed, false);
    if (IsUndoing() || (!AreAsked && !QueryForms()) || !UnloadForms()) return false;
    IgnoringFaults([this] { SaveMainWindow(*this); });
    const PointerScope Working(Pointer::Hourglass);
    IgnoringFaults([] { DeleteMask(DBPath() + QStringLiteral("Temp/*.*")); });
    if (!ReadOnlyDB && !WriteDatabase()) return false;
    FileSystem = nullptr;
    DBEngine = nullptr;
    mEngine.reset();
    ImageBuffer = nullptr;
    mImageBuffer.reset();
    mStage = Stage::Empty;
    return true;
}

// The one moment at which the records reach the disk. When that fails the user may make room and
// try again: nothing is given up unless that is asked for in so many words. Whatever else closes
// the box, a second request of the system to end among it, keeps the program open.
bool frmNEBSlideShow::WriteDatabase() {
    try {
        if (const auto NotKept = mEngine->FinalizeDB()) TellNotKept(NotKept->Text());
        return true;
    } catch (const std::exception& Problem) {
        SetScreenPointer(Pointer::Default);
        return AskEndUnsaved(ReasonOf(Problem), mEngine->IsSessionStored());
    }
}

// With a maximised child its title stands in that of the main window. The desktop shows the
// program's name behind every title: here it is not to stand in front of it as well.
void frmNEBSlideShow::changeEvent(QEvent* Event) {
    QMainWindow::changeEvent(Event);
    const auto Type = Event->type();
    if (!windowHandle() || (Type != QEvent::WindowTitleChange && Type != QEvent::ModifiedChange))
        return;
    const QString Before = QApplication::applicationDisplayName() + QStringLiteral(" - [");
    const QString Title = windowHandle()->title();
    if (Title.startsWith(Before) && Title.endsWith(u']'))
        windowHandle()->setTitle(Title.mid(Before.size()).chopped(1));
}

void frmNEBSlideShow::closeEvent(QCloseEvent* Event) {
    Event->ignore();  // a fault on the way leaves the program open
    Event->setAccepted(mStage != Stage::Loading && Unload());
}

}  // namespace neb
