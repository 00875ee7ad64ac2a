#include "controls/fields/ScrollWithin.h"

#include "controls/fields/BreakRows.h"

#include <QDialog>
#include <QEvent>
#include <QLayout>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <algorithm>

namespace neb {
namespace {

// As large as its content wants to be, and as small as is asked for.
class ContentArea : public QScrollArea {
  public:
    explicit ContentArea(QWidget* Content) {
        setObjectName(QStringLiteral("areContent"));
        setFrameShape(NoFrame);
        setWidgetResizable(true);
        setWidget(Content);
        setFocusPolicy(Qt::NoFocus);
        Content->setAutoFillBackground(false);
        viewport()->setAutoFillBackground(false);
    }
    QSize sizeHint() const override {
        const QSize Content = widget()->minimumSizeHint().expandedTo(widget()->sizeHint());
        const int Bar = verticalScrollBar()->sizeHint().width();
        return Content + QSize(Bar, 0);
    }
};

QMdiSubWindow* FrameOf(const QDialog& Of) {
    return qobject_cast<QMdiSubWindow*>(Of.parentWidget());
}

// What a frame takes on the desktop, where it cannot be asked yet.
QSize FrameOnDesktop(const QDialog& Of) {
    return {0, Of.style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, &Of)};
}

QSize RoomFor(const QDialog& Of) {
    const QMdiSubWindow* Frame = FrameOf(Of);
    const QMdiArea* Area = Frame ? Frame->mdiArea() : nullptr;
    if (!Area || !Area->isVisible()) return Of.screen()->availableSize() - FrameOnDesktop(Of);
    const QMargins Edges = Frame->contentsMargins();
    return Area->viewport()->size().shrunkBy(Edges);
}

// Words that wrap are higher in a window that is no wider than it must be.
QSize LeastOf(const QLayout& Content) {
    QSize Least = Content.totalMinimumSize();
    if (!Content.hasHeightForWidth()) return Least;
    const int Wide = std::max(Content.parentWidget()->width(), Least.width());
    Least.setHeight(std::max(Least.height(), Content.totalMinimumHeightForWidth(Wide)));
    return Least;
}

// The row of buttons, wherever it stands, unless it is itself too wide.
QLayout* TakeButtons(QLayout& From, int Width) {
    auto* Row = From.findChild<QLayout*>(QStringLiteral("lytButtons"));
    auto* Around = Row ? qobject_cast<QLayout*>(Row->parent()) : nullptr;
    const int Edges = From.contentsMargins().left() + From.contentsMargins().right();
    if (!Around || Row->minimumSize().width() + Edges > Width) return nullptr;
    Around->removeItem(Row);
    Row->setParent(nullptr);
    return Row;
}

void PutIntoArea(QDialog& Of, QSize Room) {
    QLayout* Content = Of.layout();
    QMargins Edges = Content->contentsMargins();
    QLayout* Buttons = TakeButtons(*Content, Room.width());
    QWidget* Menu = Content->menuBar();
    Content->setMenuBar(nullptr);
    auto* Inside = new QWidget;
    Inside->setLayout(Content);
    auto* Around = new QVBoxLayout(&Of);
    Around->setContentsMargins({});
    Around->setMenuBar(Menu);
    auto* Area = new ContentArea(Inside);
    Around->addWidget(Area);
    Area->show();
    if (!Buttons) return;
    Edges.setTop(0);
    Buttons->setContentsMargins(Edges);
    Around->addLayout(Buttons);
}

void Resize(QDialog& Of, QSize Size) {
    QMdiSubWindow* Frame = FrameOf(Of);
    if (!Frame) return Of.resize(Size);
    Frame->resize(Size.grownBy(Frame->contentsMargins()));
}

// One that has no size yet gets what it needs when it is shown.
void Enlarge(QDialog& Of, QSize Least) {
    if (!Of.testAttribute(Qt::WA_Resized) && !Of.isVisible()) return;
    const QSize Wanted = Of.size().expandedTo(Least);
    if (Wanted != Of.size()) Resize(Of, Wanted);
}

// What the layout of before has asked for counts no more.
void FillRoom(QDialog& Of, QSize Room) {
    Of.setMinimumSize(0, 0);
    Of.layout()->activate();
    Resize(Of, Of.size().expandedTo(Of.layout()->sizeHint()).boundedTo(Room));
}

class RoomWatch : public QObject {
  public:
    explicit RoomWatch(QDialog& Of) : QObject(&Of), mOf(Of) { Of.installEventFilter(this); }

    void Look() {
        if (!mOf.layout()) return;
        const QSize Room = RoomFor(mOf);
        if (mOf.layout()->totalMinimumSize().width() > Room.width())
            BreakRows(*mOf.layout(), Room.width());
        const QSize Least = LeastOf(*mOf.layout());
        if (Least.width() <= Room.width() && Least.height() <= Room.height())
            return Enlarge(mOf, Least);
        mOf.removeEventFilter(this);
        deleteLater();
        PutIntoArea(mOf, Room);
        FillRoom(mOf, Room);
    }

  protected:
    bool eventFilter(QObject*, QEvent* Event) override {
        if (Event->type() == QEvent::LayoutRequest)
            QMetaObject::invokeMethod(this, &RoomWatch::Look, Qt::QueuedConnection);
        return false;
    }

  private:
    QDialog& mOf;
};

}  // namespace

void ScrollWithinScreen(QDialog& Of) {
    Of.ensurePolished();
    (new RoomWatch(Of))->Look();
}

}  // namespace neb
