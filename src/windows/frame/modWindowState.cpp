#include "windows/frame/modWindowState.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QScreen>

#include "controls/forms/Form.h"
#include "controls/forms/modTwips.h"
#include "settings/SettingKeys.h"
#include "settings/modNEBSlideShow.h"
#include "support/Fault.h"
#include "windows/frame/modNotice.h"

namespace neb {
namespace {

constexpr int CascadeStep = 330;  // twips
constexpr int CascadeTolerance = 90;
enum WindowState { Normal = 0, Minimised = 1, Maximised = 2 };

// What moves and has a size: the frame of a child window, else the window itself.
const QWidget& FrameOf(const Form& Window) {
    const auto* Frame = qobject_cast<const QMdiSubWindow*>(Window.parentWidget());
    return Frame ? static_cast<const QWidget&>(*Frame) : Window;
}

QWidget& FrameOf(Form& Window) {
    return const_cast<QWidget&>(FrameOf(static_cast<const Form&>(Window)));
}

int StateOf(const QWidget& Frame) {
    return Frame.isMinimized() ? Minimised : Frame.isMaximized() ? Maximised : Normal;
}

int ReadPixels(const clsSettings& Settings, const SettingAt& At, int Default) {
    const std::int32_t Twips = ReadNumber(Settings, At);
    return ToPixels(Twips > 0 ? Twips : Default);  // no window is worth opening without a size
}

void PutPixels(clsSettings& Settings, const SettingAt& At, int Pixels) {
    PutNumber(Settings, At, ToTwips(Pixels));
}

void PutSize(clsSettings& Settings, const WindowMemory& Memory, const QWidget& Frame) {
    PutPixels(Settings, {Setting::WindowHeight, Memory.Section}, Frame.height());
    if (Memory.DefaultWidth)
        PutPixels(Settings, {Setting::WindowWidth, Memory.Section}, Frame.width());
    PutPixels(Settings, {Setting::WindowLeft, Memory.Section}, Frame.x());
    PutPixels(Settings, {Setting::WindowTop, Memory.Section}, Frame.y());
}

// A child of the main window keeps within the room that is there, so that its buttons are seen.
QSize WithinRoom(const QWidget& Frame, QSize Wanted) {
    const QScreen* On = Frame.screen();
    const QSize Size = On ? Wanted.boundedTo(On->availableSize()) : Wanted;
    const auto* Child = qobject_cast<const QMdiSubWindow*>(&Frame);
    const QMdiArea* Area = Child ? Child->mdiArea() : nullptr;
    if (!Area || !Area->isVisible()) return Size;
    return Size.boundedTo(Area->viewport()->size()).expandedTo(Frame.minimumSizeHint());
}

QPoint TwipsPlace(const QWidget& Frame) {
    return {ToTwips(Frame.x()), ToTwips(Frame.y())};
}

// The places of the visible children of the main window but one.
std::vector<QPoint> OtherPlaces(const Form& But) {
    std::vector<QPoint> Places;
    for (const auto& Window : LoadedForms()) {
        const auto* Frame = qobject_cast<const QMdiSubWindow*>(Window->parentWidget());
        if (Frame && Window.get() != &But && Frame->isVisible())
            Places.push_back(TwipsPlace(*Frame));
    }
    return Places;
}

QPoint CascadePlace(const std::vector<QPoint>& Others) {
    QPoint Greatest(-1, -1);
    for (const QPoint& Place : Others)
        Greatest = {std::max(Greatest.x(), Place.x()), std::max(Greatest.y(), Place.y())};
    return {Greatest.x() < 0 ? 0 : Greatest.x() + CascadeStep,
            Greatest.y() < 0 ? 0 : Greatest.y() + CascadeStep};
}

QPoint FreePlace(const std::vector<QPoint>& Others) {
    QPoint Candidate(0, 0);
    const auto Taken = [&](const QPoint& Place) {
        return std::abs(Place.x() - Candidate.x()) < CascadeTolerance &&
               std::abs(Place.y() - Candidate.y()) < CascadeTolerance;
    };
    while (std::any_of(Others.begin(), Others.end(), Taken))
        Candidate += QPoint(CascadeStep, CascadeStep);
    return Candidate;
}

}  // namespace

void RestoreWindow(Form& Window, const WindowMemory& Memory) {
    const clsSettings Settings = OpenSettings();
    QWidget& Frame = FrameOf(Window);
    QSize Size = Frame.size();
    Size.setHeight(
        ReadPixels(Settings, {Setting::WindowHeight, Memory.Section}, Memory.DefaultHeight));
    if (Memory.DefaultWidth)
        Size.setWidth(
            ReadPixels(Settings, {Setting::WindowWidth, Memory.Section}, Memory.DefaultWidth));
    Frame.resize(WithinRoom(Frame, Size));
    if (!Memory.DefaultWidth) return;
    if (ReadNumber(Settings, {Setting::WindowState, Memory.Section}) == Maximised)
        Frame.setWindowState(Qt::WindowMaximized);
}

void SaveWindow(const Form& Window, const WindowMemory& Memory) {
    const QWidget& Frame = FrameOf(Window);
    const int State = StateOf(Frame);
    if (State == Minimised) return;
    clsSettings Settings = OpenSettings();
    if (Memory.DefaultWidth) PutNumber(Settings, {Setting::WindowState, Memory.Section}, State);
    if (State == Normal) PutSize(Settings, Memory, Frame);
    SaveMemory(Settings);
}

void SaveMemory(clsSettings& Settings) {
    if (ReadOnlyDB) return;
    try {
        Settings.Save();
    } catch (const Fault& Problem) {
        ShowNotice(Problem.Text());  // the window will open as it did before
    }
}

QPoint ChildPlace(const Form& Window, int Mode) {
    const std::vector<QPoint> Others = OtherPlaces(Window);
    return Mode == 1 ? CascadePlace(Others) : FreePlace(Others);
}

void PositionMDIChild(Form& Window, int Mode) {
    const QPoint Place = ChildPlace(Window, Mode);
    QWidget& Frame = FrameOf(Window);
    // A maximised window keeps the frame filled; the place is for its normal size. The state of
    // any other is left alone: the frame would go back to an earlier size.
    const Qt::WindowStates State = Frame.windowState();
    const bool Filled = State.testFlag(Qt::WindowMaximized);
    if (Filled) Frame.setWindowState(State & ~Qt::WindowMaximized);
    Frame.move(ToPixels(Place.x()), ToPixels(Place.y()));
    if (Filled) Frame.setWindowState(State);
}

void BringToFront(const Form& Window) {
    auto* const Frame = qobject_cast<QMdiSubWindow*>(Window.parentWidget());
    if (!Frame || !Frame->mdiArea()) return;
    if (Frame->isMinimized()) Frame->showNormal();
    Frame->mdiArea()->setActiveSubWindow(Frame);
}

}  // namespace neb
