// What is shown and how; painting and the user's hands are in PrintViewEvents.cpp.
#include "windows/printing/PrintView.h"

#include <QActionGroup>
#include <QScrollBar>
#include <QStyle>
#include <algorithm>
#include <cmath>

#include "controls/speech/SpokenRole.h"

namespace neb {
namespace {

constexpr int ScrollStep = 40;             // pixels
constexpr qint64 MostPixels = 24'000'000;  // of one page: A4 at zoom 200 has 14 on a fine screen
constexpr PageView Views[] = {PageView::WholePage, PageView::PageWidth, PageView::TwoPages,
                              PageView::Thumbnails};

QString NameOf(PageView View) {
    const auto At = std::ranges::find(Views, View) - std::begin(Views);
    return PrintView::NavigationMenu().split(u'|').value(static_cast<int>(At)).remove(u'&');
}

}  // namespace

PrintView::PrintView(QWidget* Parent) : QAbstractScrollArea(Parent) {
    SpeakAs(*this, QAccessible::Document);
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    horizontalScrollBar()->setSingleStep(ScrollStep);
    verticalScrollBar()->setSingleStep(ScrollStep);
    MakeActions();
    Follow();
}

PrintView::~PrintView() = default;

QString PrintView::NavigationMenu() {
    return tr("Whole &Page|Page &Width|&Two Pages|Thumb&nail");
}

void PrintView::MakeActions() {
    const QStringList Texts = NavigationMenu().split(u'|');
    auto* OneOfThem = new QActionGroup(this);
    OneOfThem->setExclusionPolicy(QActionGroup::ExclusionPolicy::ExclusiveOptional);
    for (int I = 0; I < Texts.size(); ++I) {
        auto* Each = new QAction(Texts[I], OneOfThem);
        Each->setCheckable(true);
        Each->setData(static_cast<int>(Views[I]));
        connect(Each, &QAction::triggered, this, [this, I] { SetView(Views[I]); });
        addAction(Each);
    }
    auto* Line = new QAction(this);
    Line->setSeparator(true);
    mZoomIn->setShortcuts(
        {QKeySequence(Qt::CTRL | Qt::Key_Plus), QKeySequence(Qt::CTRL | Qt::Key_Equal)});
    mZoomOut->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Minus));
    connect(mZoomIn, &QAction::triggered, this, &PrintView::ZoomIn);
    connect(mZoomOut, &QAction::triggered, this, &PrintView::ZoomOut);
    addActions({Line, mZoomIn, mZoomOut});
}

void PrintView::SetDocument(std::shared_ptr<const PrintDocument> Document) {
    mDocument = std::move(Document);
    mImages = std::make_unique<PageImages>(PageImages::PainterOf(mDocument));
    connect(mImages.get(), &PageImages::Painted, viewport(), qOverload<>(&QWidget::update));
    mLook.Page = 1;
    Relayout();
    SetScrollTop(0);
    SetScrollLeft(0);
    Follow();
    Q_EMIT PageChanged();
    Q_EMIT EndOfDocument();
}

void PrintView::Change(Look Now) {
    Now.Page = std::clamp(Now.Page, 1, std::max(1, PageCount()));
    const Look Was = std::exchange(mLook, Now);
    Relayout();
    Follow();
    if (Was.Page != Now.Page) Q_EMIT PageChanged();
    if (Was.View != Now.View || Was.Zoom != Now.Zoom) Q_EMIT ViewChanged();
}

void PrintView::SetPreviewPage(int Page) {
    Look Now = mLook;
    Now.Page = Page;
    Change(Now);
    ShowInGrid();
}

// The thumbnails are no page that could be seen from its corner.
void PrintView::TurnTo(int Page) {
    SetPreviewPage(Page);
    if (IsGrid()) return;
    SetScrollTop(0);
    SetScrollLeft(0);
}

void PrintView::SetView(PageView View) {
    if (View == PageView::Thumbnails && !IsGrid()) mFormer = mLook.View;
    Look Now = mLook;
    Now.View = View;
    Change(Now);
    ShowInGrid();
}

QString PrintView::ViewName() const {
    return NameOf(mLook.View);
}

double PrintView::Zoom() const {
    if (mLook.View == PageView::ByZoom) return mLook.Zoom;
    return mLayout.Scale() * 100 / logicalDpiX();
}

void PrintView::SetZoom(double Percent) {
    const bool FromGrid = IsGrid();
    ZoomAround(Percent, Middle(), mLook.Page);
    if (FromGrid) TurnTo(mLook.Page);
}

void PrintView::ZoomBy(int Steps) {
    const double Next = ZoomBeside(Zoom(), Steps);
    if (Next != Zoom()) SetZoom(Next);
}

// What is at that point of the viewport stays there as far as the page reaches.
void PrintView::ZoomAround(double Percent, QPoint At, int Page) {
    if (!std::isfinite(Percent)) return;
    const QPointF Inches = QPointF(At - PlaceOf(Page).topLeft()) / mLayout.Scale();
    Change({PageView::ByZoom, std::clamp(Percent, LeastZoom, MostZoom), Page});
    const QPoint Now = mLayout.PlaceOf(Page).topLeft() + (Inches * mLayout.Scale()).toPoint();
    SetScrollLeft(Now.x() - At.x());
    SetScrollTop(Now.y() - At.y());
}

void PrintView::ZoomAtPointer(double Percent, QPoint At) {
    const int There = mLayout.PageAt(At + Scrolled());
    ZoomAround(Percent, At, There > 0 ? There : mLook.Page);
}

void PrintView::OpenThumbnail(int Page) {
    Change({mFormer, mLook.Zoom, Page});
    SetScrollTop(0);
    SetScrollLeft(0);
}

int PrintView::ScrollLeft() const {
    return horizontalScrollBar()->value();
}

int PrintView::ScrollTop() const {
    return verticalScrollBar()->value();
}

void PrintView::SetScrollLeft(int Pixels) {
    horizontalScrollBar()->setValue(Pixels);
}

void PrintView::SetScrollTop(int Pixels) {
    verticalScrollBar()->setValue(Pixels);
}

PrintViewState PrintView::State() const {
    PrintViewState Now{mLook.View, mLook.Zoom, mLook.Page, PageCount()};
    if (mDocument) Now.Paper = mDocument->PageSize();
    Now.Room = maximumViewportSize();
    Now.Dpi = logicalDpiX();
    Now.LabelHeight = fontMetrics().height() + 4;
    return Now;
}

void PrintView::Relayout() {
    const int Bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
    mLayout = PrintViewLayout::BesideBars(State(), Bar);
    const QSize Room = maximumViewportSize(), Extent = mLayout.Extent();
    const bool High = Extent.height() > Room.height() - (Extent.width() > Room.width() ? Bar : 0);
    const bool Wide = Extent.width() > Room.width() - (High ? Bar : 0);
    const QSize Seen(Room.width() - (High ? Bar : 0), Room.height() - (Wide ? Bar : 0));
    horizontalScrollBar()->setPageStep(Seen.width());
    verticalScrollBar()->setPageStep(Seen.height());
    horizontalScrollBar()->setRange(0, Wide ? Extent.width() - Seen.width() : 0);
    verticalScrollBar()->setRange(0, High ? Extent.height() - Seen.height() : 0);
    viewport()->update();
}

// What tells of the view without being the view.
void PrintView::Follow() {
    for (QAction* Each : actions())
        Each->setChecked(Each->data().isValid() && Each->data().toInt() == int(mLook.View));
    mZoomIn->setEnabled(ZoomBeside(Zoom(), 1) != Zoom());
    mZoomOut->setEnabled(ZoomBeside(Zoom(), -1) != Zoom());
    const QString Where = tr("Page %1 of %2").arg(mLook.Page).arg(PageCount());
    setAccessibleDescription(PageCount() > 0 ? Where : tr("There are no pages to look at."));
    ShowHand(CanScroll() && !IsGrid() ? Qt::OpenHandCursor : Qt::ArrowCursor);
}

// The page that is looked at is among the thumbnails that are seen.
void PrintView::ShowInGrid() {
    const QRect Place = mLayout.PlaceOf(mLook.Page);
    if (!IsGrid() || Place.isEmpty()) return;
    const int Around = ScrollStep, Height = verticalScrollBar()->pageStep();
    const int Most = Place.top() - Around, Least = Place.bottom() + Around - Height;
    SetScrollTop(std::clamp(ScrollTop(), std::min(Least, Most), Most));
}

bool PrintView::CanScroll() const {
    return horizontalScrollBar()->maximum() > 0 || verticalScrollBar()->maximum() > 0;
}

QRect PrintView::PlaceOf(int Page) const {
    const QRect Place = mLayout.PlaceOf(Page);
    return Place.isNull() ? Place : Place.translated(-Scrolled());
}

std::vector<PrintViewLayout::Sheet> PrintView::InSight() const {
    return mLayout.SheetsIn(viewport()->rect().translated(Scrolled()));
}

PageRequest PrintView::RequestFor(const PrintViewLayout::Sheet& Sheet) const {
    const double Ratio = devicePixelRatioF();
    const QSizeF Wanted = QSizeF(Sheet.Place.size()) * Ratio;
    const double Less = std::min(1.0, std::sqrt(MostPixels / (Wanted.width() * Wanted.height())));
    const QSize Pixels = (Wanted * Less).toSize().expandedTo({1, 1});
    return {Sheet.Page, Pixels, mLayout.Scale() * Ratio * Less};
}

std::vector<PageRequest> PrintView::RequestsFor(
    const std::vector<PrintViewLayout::Sheet>& Sheets) const {
    std::vector<PageRequest> All;
    for (const PrintViewLayout::Sheet& Each : Sheets) All.push_back(RequestFor(Each));
    return All;
}

// As many pages after those in sight as there are in sight, then as many before them.
std::vector<PrintViewLayout::Sheet> PrintView::Beside() const {
    const auto Seen = InSight();
    std::vector<PrintViewLayout::Sheet> All;
    if (Seen.empty()) return All;
    const int Count = static_cast<int>(Seen.size());
    for (int I = 1; I <= Count; ++I) All.push_back({Seen.back().Page + I, Seen.back().Place});
    for (int I = 1; I <= Count; ++I) All.push_back({Seen.front().Page - I, Seen.front().Place});
    std::erase_if(All, [&](const auto& Each) { return Each.Page < 1 || Each.Page > PageCount(); });
    return All;
}

bool PrintView::IsSharp() const {
    return std::ranges::all_of(
        InSight(), [&](const auto& Each) { return mImages->Find(RequestFor(Each)) != nullptr; });
}

}  // namespace neb
