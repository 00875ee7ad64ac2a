#include "program/Workspace.h"

#include <QAccessibleWidget>
#include <QAction>
#include <QApplication>
#include <QMdiSubWindow>
#include <QMenu>
#include <algorithm>

#include "program/TitleBarStyle.h"
#include "windows/frame/VisiblePlace.h"
#include "windows/frame/modNotice.h"
#include "windows/frame/modWindowState.h"

namespace neb {
namespace {

constexpr double ShareInCascade = 0.75;  // of the room, each way

// The toolkit tells screen readers of the children of such a room alone, not of the page.
QAccessibleInterface* ToldWhole(const QString&, QObject* Object) {
    auto* Room = qobject_cast<Workspace*>(Object);
    return Room ? new QAccessibleWidget(Room, QAccessible::LayeredPane) : nullptr;
}

}  // namespace

Workspace::Workspace(QWidget* Parent) : QMdiArea(Parent), mTitleBars(new TitleBarStyle(this)) {
    static const bool IsTold = (QAccessible::installFactory(&ToldWhole), true);
    Q_UNUSED(IsTold)
    setBackground(palette().brush(QPalette::Base));
    setActivationOrder(ActivationHistoryOrder);    // a viewer leaves the window it was opened from
    setOption(DontMaximizeSubWindowOnActivation);  // each child has a state of its own
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    connect(this, &QMdiArea::subWindowActivated, this, &Workspace::GiveKeyboardToPage,
            Qt::QueuedConnection);
}

void Workspace::SetPage(QWidget* Page) {
    mPage = Page;
    mPage->setParent(viewport());
    FillWithPage();
    mPage->show();
}

QMdiSubWindow* Workspace::AddChild(QWidget* Child) {
    QMdiSubWindow* Frame = addSubWindow(Child);
    Frame->setStyle(mTitleBars);
    Frame->setAttribute(Qt::WA_DeleteOnClose, false);
    Frame->setFocusPolicy(Qt::ClickFocus);  // Tab goes on to what can be used
    connect(Frame, &QMdiSubWindow::windowStateChanged, this, &Workspace::StyleMenuBar);
    // the menu's Close has these keys, on every desktop the same
    for (QAction* Each : Frame->systemMenu()->actions()) Each->setShortcuts(QList<QKeySequence>());
    return Frame;
}

void Workspace::LookAfter(QMenuBar& Bar) {
    mMenuBar = &Bar;
    connect(this, &QMdiArea::subWindowActivated, this, &Workspace::StyleMenuBar);
}

// They are there once a child is maximised; set anew, they are as large as their style wants.
void Workspace::StyleMenuBar() {
    QWidget* Buttons = mMenuBar ? mMenuBar->cornerWidget(Qt::TopRightCorner) : nullptr;
    if (!Buttons || Buttons->style() == mTitleBars) return;
    Buttons->setStyle(mTitleBars);
    mMenuBar->setCornerWidget(Buttons, Qt::TopRightCorner);
}

// Those that are laid out, the one used last at the end and so on top.
QList<QMdiSubWindow*> Workspace::LaidOut() {
    QList<QMdiSubWindow*> Children;
    for (QMdiSubWindow* Each : subWindowList(ActivationHistoryOrder)) {
        if (!Each->isVisible() || Each->isMinimized()) continue;
        if (Each->isMaximized()) Each->showNormal();
        Children.append(Each);
    }
    return Children;
}

void Workspace::TileChildren() {
    QList<QMdiSubWindow*> Children = LaidOut();
    std::reverse(Children.begin(), Children.end());
    std::vector<QSize> Least;
    for (const QMdiSubWindow* Each : Children) Least.push_back(Each->minimumSizeHint());
    const QRect Room = VisibleRoom(*this);
    const std::vector<QRect> Places = TiledPlaces(Least, Room);
    const auto Fits = [&](const QRect& Place) { return Room.contains(Place); };
    if (!std::ranges::all_of(Places, Fits)) {
        CascadeChildren();
        return ShowNotice(tr("There is no room for all windows side by side."));
    }
    for (size_t I = 0; I < Places.size(); ++I) Children[int(I)]->setGeometry(Places[I]);
}

void Workspace::CascadeChildren() {
    const QList<QMdiSubWindow*> Children = LaidOut();
    const QRect Room = VisibleRoom(*this);
    std::vector<WindowExtent> Extents;
    for (const QMdiSubWindow* Each : Children)
        Extents.push_back({Room.size() * ShareInCascade, Each->minimumSizeHint()});
    const std::vector<QRect> Places = CascadedPlaces(
        Extents, Room,
        CascadeStep(QFontMetrics(QApplication::font("QMdiSubWindowTitleBar")).height()));
    for (size_t I = 0; I < Places.size(); ++I) {
        QMdiSubWindow& Each = *Children[int(I)];
        Each.setGeometry(Places[I]);
        // words that wrap need more height in a window that is narrower now
        Each.resize(Each.size().expandedTo(Each.minimumSizeHint()));
        Each.raise();
    }
}

// Whatever scrolls and whoever is put behind the others, it fills what is seen, behind all.
void Workspace::FillWithPage() {
    if (!mPage) return;
    mPage->setGeometry(viewport()->rect());
    mPage->lower();
}

void Workspace::GiveKeyboardToPage() {
    if (!mPage || activeSubWindow()) return;
    for (const QMdiSubWindow* Each : subWindowList())
        if (Each->isVisible() && !Each->isMinimized()) return;
    QWidget* Last = mPage->focusWidget();
    (Last ? Last : mPage.data())->setFocus(Qt::OtherFocusReason);
}

bool Workspace::viewportEvent(QEvent* Event) {
    const bool Handled = QMdiArea::viewportEvent(Event);
    if (Event->type() == QEvent::Resize || Event->type() == QEvent::ChildAdded) FillWithPage();
    return Handled;
}

bool Workspace::eventFilter(QObject* Watched, QEvent* Event) {
    const bool Handled = QMdiArea::eventFilter(Watched, Event);
    if (mPage && Watched != mPage && Event->type() == QEvent::ZOrderChange) mPage->lower();
    return Handled;
}

void Workspace::changeEvent(QEvent* Event) {
    QMdiArea::changeEvent(Event);
    if (Event->type() == QEvent::PaletteChange) setBackground(palette().brush(QPalette::Base));
}

void Workspace::scrollContentsBy(int dx, int dy) {
    QMdiArea::scrollContentsBy(dx, dy);
    FillWithPage();
}

}  // namespace neb
