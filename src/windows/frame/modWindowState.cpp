#include "windows/frame/modWindowState.h"

#include <QApplication>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QScreen>
#include <QScrollBar>
#include <functional>
#include <optional>

#include "controls/forms/Form.h"
#include "controls/forms/StandOver.h"
#include "controls/forms/modTwips.h"
#include "settings/SettingKeys.h"
#include "settings/modNEBSlideShow.h"
#include "support/Fault.h"
#include "windows/frame/VisiblePlace.h"
#include "windows/frame/WindowSize.h"
#include "windows/frame/modNotice.h"

namespace neb {
namespace {

constexpr int CascadeTolerance = 90;  // twips
constexpr double ShareOfScreen = 0.9;
constexpr double ShareInCascade = 2.0 / 3;  // of its size, before it leaves its step
constexpr QSize DesktopsFrame(16, 40);      // what a desktop may draw around a window, pixels
enum WindowState { Normal = 0, Minimised = 1, Maximised = 2 };

// What moves and has a size: the frame of a child window, else the window itself.
const QWidget& FrameOf(const Form& Window) {
    const auto* Frame = qobject_cast<const QMdiSubWindow*>(Window.parentWidget());
    return Frame ? static_cast<const QWidget&>(*Frame) : Window;
}

QWidget& FrameOf(Form& Window) {
    return const_cast<QWidget&>(FrameOf(static_cast<const Form&>(Window)));
}

const QMdiArea* AreaOf(const QWidget& Frame) {
    const auto* Child = qobject_cast<const QMdiSubWindow*>(&Frame);
    return Child ? Child->mdiArea() : nullptr;
}

// A window of its own that needs more than the screen has scrolls.
QSize LeastOf(const QWidget& Frame) {
    const QSize Least = Frame.minimumSizeHint().expandedTo(Frame.minimumSize());
    return Frame.isWindow() ? Least.boundedTo(Frame.screen()->availableSize()) : Least;
}

int StateOf(const QWidget& Frame) {
    return Frame.isMinimized() ? Minimised : Frame.isMaximized() ? Maximised : Normal;
}

int ReadPixels(const clsSettings& Settings, const SettingAt& At, int Default) {
    const std::int32_t Twips = ReadNumber(Settings, At);
    return Twips > 0 ? ToPixels(Twips) : Default;  // no window is worth opening without a size
}

void PutPixels(clsSettings& Settings, const SettingAt& At, int Pixels) {
    PutNumber(Settings, At, ToTwips(Pixels));
}

bool HasSize(const clsSettings& Settings, const QString& Section) {
    return ReadNumber(Settings, {Setting::WindowHeight, Section}) > 0;
}

QSize ReadSize(const clsSettings& Settings, const QString& Section, const QSize& Default) {
    return {ReadPixels(Settings, {Setting::WindowWidth, Section}, Default.width()),
            ReadPixels(Settings, {Setting::WindowHeight, Section}, Default.height())};
}

std::optional<QPoint> ReadPlace(const clsSettings& Settings, const QString& Section) {
    const SettingAt Left(Setting::WindowLeft, Section), Top(Setting::WindowTop, Section);
    if (!HasSetting(Settings, Left) || !HasSetting(Settings, Top)) return std::nullopt;
    return QPoint(ToPixels(ReadNumber(Settings, Left)), ToPixels(ReadNumber(Settings, Top)));
}

void ReadState(const clsSettings& Settings, const QString& Section, QWidget& Frame) {
    if (ReadNumber(Settings, {Setting::WindowState, Section}) == Maximised)
        Frame.setWindowState(Qt::WindowMaximized);
}

void PutPlaceAndSize(clsSettings& Settings, const QString& Section, const QWidget& Frame) {
    PutPixels(Settings, {Setting::WindowHeight, Section}, Frame.height());
    PutPixels(Settings, {Setting::WindowWidth, Section}, Frame.width());
    PutPixels(Settings, {Setting::WindowLeft, Section}, Frame.x());
    PutPixels(Settings, {Setting::WindowTop, Section}, Frame.y());
}

void SaveFrame(const QWidget& Frame, const QString& Section) {
    const int State = StateOf(Frame);
    if (State == Minimised) return;
    clsSettings Settings = OpenMemory();
    PutNumber(Settings, {Setting::WindowState, Section}, State);
    if (State == Normal) PutPlaceAndSize(Settings, Section, Frame);
    SaveMemory(Settings);
}

// The room in which a window opens, so that its buttons are seen: that of the main window's area
// for a child, else most of the screen. Empty where there is none yet.
QSize RoomFor(const QWidget& Frame) {
    const QMdiArea* Area = AreaOf(Frame);
    if (Area && Area->isVisible()) return VisibleRoom(*Area).size();
    const QScreen* On = Frame.screen();
    return On ? (QSizeF(On->availableSize()) * ShareOfScreen).toSize() : QSize();
}

// One that has a size of the user's keeps it as far as there is room.
QSize SizeToOpen(const QWidget& Frame, const WindowMemory& Memory, const clsSettings& Settings) {
    const QSize Designed(Memory.DefaultWidth > 0 ? ToPixels(Memory.DefaultWidth) : Frame.width(),
                         ToPixels(Memory.DefaultHeight));
    const QSize Room = RoomFor(Frame);
    if (HasSize(Settings, Memory.Section))
        return ReadSize(Settings, Memory.Section, Designed).boundedTo(Room);
    return OpeningSize(AskedBy(Memory.Section), Designed, Frame.fontMetrics().height(), Room);
}

QPoint TwipsPlace(const QWidget& Frame) {
    return {ToTwips(Frame.x()), ToTwips(Frame.y())};
}

std::vector<const Form*> OtherChildren(const Form& But) {
    std::vector<const Form*> Others;
    for (const auto& Window : LoadedForms()) {
        const auto* Frame = qobject_cast<const QMdiSubWindow*>(Window->parentWidget());
        if (Frame && Window.get() != &But && Frame->isVisible() && !Frame->isMinimized())
            Others.push_back(Window.get());
    }
    return Others;
}

// The places of the visible children of the main window but one.
std::vector<QPoint> OtherPlaces(const Form& But) {
    std::vector<QPoint> Places;
    for (const Form* Each : OtherChildren(But)) Places.push_back(TwipsPlace(FrameOf(*Each)));
    return Places;
}

int StepTwips() {
    return ToTwips(CascadeStep(QFontMetrics(QApplication::font("QMdiSubWindowTitleBar")).height()));
}

QPoint CascadePlace(const std::vector<QPoint>& Others) {
    QPoint Greatest(-1, -1);
    for (const QPoint& Place : Others)
        Greatest = {std::max(Greatest.x(), Place.x()), std::max(Greatest.y(), Place.y())};
    return {Greatest.x() < 0 ? 0 : Greatest.x() + StepTwips(),
            Greatest.y() < 0 ? 0 : Greatest.y() + StepTwips()};
}

bool IsTaken(const QPoint& Candidate, const std::vector<QPoint>& Others) {
    return std::any_of(Others.begin(), Others.end(), [&](const QPoint& Place) {
        return std::abs(Place.x() - Candidate.x()) < CascadeTolerance &&
               std::abs(Place.y() - Candidate.y()) < CascadeTolerance;
    });
}

QPoint FreePlace(const std::vector<QPoint>& Others) {
    QPoint Candidate(0, 0);
    while (IsTaken(Candidate, Others)) Candidate += QPoint(StepTwips(), StepTwips());
    return Candidate;
}

// One that stands under another, or beside one of its kind, would not be seen to have opened.
std::optional<QPoint> OwnPlace(const Form& Window) {
    const auto Place = ReadPlace(OpenMemory(), Window.objectName());
    const auto Others = OtherChildren(Window);
    const auto IsAlike = [&](const Form* Each) {
        return Each->objectName() == Window.objectName();
    };
    if (!Place || std::any_of(Others.begin(), Others.end(), IsAlike)) return std::nullopt;
    return IsTaken(*Place * TwipsPerPixel, OtherPlaces(Window)) ? std::nullopt : Place;
}

// A maximised window keeps its frame filled; the place is for its normal size. The state of any
// other is left alone: the frame would go back to an earlier size.
void WhileNotFilled(QWidget& Frame, const std::function<void()>& Place) {
    const Qt::WindowStates State = Frame.windowState();
    const bool Filled = State.testFlag(Qt::WindowMaximized);
    if (Filled) Frame.setWindowState(State & ~Qt::WindowMaximized);
    Place();
    if (Filled) Frame.setWindowState(State);
}

// Where a window is wider or higher than there is room, a scroll bar comes that takes room as well.
QRect RoomBesideBars(const QMdiArea& Area, const QSize& Least) {
    const QRect Room = VisibleRoom(Area);
    const QSize Bars(Area.verticalScrollBar()->sizeHint().width(),
                     Area.horizontalScrollBar()->sizeHint().height());
    const int Right = Least.height() > Room.height() ? Bars.width() : 0;
    const int Bottom = Least.width() > Room.width() ? Bars.height() : 0;
    return Room.adjusted(0, 0, -Right, -Bottom);
}

// Under which a window on the screen opens, itself when there is no other.
const QScreen* ScreenInUse(const QWidget& Window) {
    const QWidget* Below = WindowInUse();
    return Below ? Below->screen() : Window.screen();
}

const QScreen* ScreenAt(const QWidget& Window, const QPoint& Place) {
    const QScreen* At = QGuiApplication::screenAt(QRect(Place, Window.size()).center());
    return At ? At : QGuiApplication::screenAt(Place);
}

}  // namespace

void RestoreWindow(Form& Window, const WindowMemory& Memory) {
    const clsSettings Settings = OpenMemory();
    QWidget& Frame = FrameOf(Window);
    Frame.resize(SizeToOpen(Frame, Memory, Settings).expandedTo(LeastOf(Frame)));
    const auto Place = Frame.isWindow() ? ReadPlace(Settings, Memory.Section) : std::nullopt;
    if (Place && ScreenAt(Frame, *Place) == ScreenInUse(Frame)) PlaceOnScreen(Frame, *Place);
    ReadState(Settings, Memory.Section, Frame);
}

void SaveWindow(const Form& Window, const WindowMemory& Memory) {
    SaveFrame(FrameOf(Window), Memory.Section);
}

void RestoreMainWindow(QWidget& Window) {
    const clsSettings Settings = OpenMemory();
    const QSize Kept = ReadSize(Settings, Window.objectName(), Window.size());
    const auto Place = ReadPlace(Settings, Window.objectName());
    // a size that no screen has would be none that the window can be worked with
    Window.resize(Place ? Kept : Kept.boundedTo(Window.screen()->availableSize()));
    if (Place) PlaceOnScreen(Window, *Place);
    ReadState(Settings, Window.objectName(), Window);
}

void SaveMainWindow(const QWidget& Window) {
    SaveFrame(Window, Window.objectName());
}

void SaveMemory(clsSettings& Settings) {
    if (!MayRememberIn(Settings)) return;
    try {
        Settings.Save();
    } catch (const Fault& Problem) {
        // the window will open as it did before; of a medium that is read-only all know that
        if (!ReadOnlyDB) ShowNotice(Problem.Text());
    }
}

void PlaceOnScreen(QWidget& Window, const QPoint& Place) {
    const QScreen* At = ScreenAt(Window, Place);
    const QRect Room = (At ? At : Window.screen())->availableGeometry();
    const QRect Inside = BroughtInside({Place, Window.size()}, LeastOf(Window),
                                       {Room.topLeft(), Room.size() - DesktopsFrame});
    Window.resize(Inside.size());
    Window.move(Inside.topLeft());
}

QPoint ChildPlace(const Form& Window, int Mode) {
    const std::vector<QPoint> Others = OtherPlaces(Window);
    return Mode == 1 ? CascadePlace(Others) : FreePlace(Others);
}

void PositionMDIChild(Form& Window, int Mode) {
    const QPoint Place = ChildPlace(Window, Mode);
    QWidget& Frame = FrameOf(Window);
    WhileNotFilled(Frame, [&] { Frame.move(ToPixels(Place.x()), ToPixels(Place.y())); });
}

void PlaceChild(Form& Window) {
    QWidget& Frame = FrameOf(Window);
    const QMdiArea* Area = AreaOf(Frame);
    if (!Area) return;
    const std::optional<QPoint> Own = OwnPlace(Window);
    if (!Own) PositionMDIChild(Window, 1);
    WhileNotFilled(Frame, [&] {
        const QSize Least = LeastOf(Frame);
        const QRect Room = RoomBesideBars(*Area, Least);
        const QRect Wanted(Own.value_or(Frame.pos()), Frame.size());
        Frame.setGeometry(Own ? BroughtInside(Wanted, Least, Room)
                              : CutIntoRoom(Wanted, Wanted.size() * ShareInCascade, Least, Room));
    });
}

QRect VisibleRoom(const QMdiArea& Area) {
    std::vector<QRect> Bars;
    for (const QMdiSubWindow* Each : Area.subWindowList())
        if (Each->isVisible() && Each->isMinimized()) Bars.push_back(Each->geometry());
    return FreeRoom(Area.viewport()->rect(), Bars);
}

void BringToFront(const Form& Window) {
    auto* const Frame = qobject_cast<QMdiSubWindow*>(Window.parentWidget());
    if (!Frame || !Frame->mdiArea()) return;
    if (Frame->isMinimized()) Frame->showNormal();
    Frame->mdiArea()->setActiveSubWindow(Frame);
}

}  // namespace neb
