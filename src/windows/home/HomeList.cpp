#include "windows/home/HomeList.h"

#include <QAction>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QScrollBar>
#include <QShortcut>
#include <QVBoxLayout>

#include "controls/fields/HintColour.h"
#include "controls/fields/Icons.h"
#include "controls/fields/MenuIcon.h"
#include "db/clsDBEngine.h"
#include "settings/modNEBSlideShow.h"
#include "support/Grouped.h"
#include "windows/frame/AlbumInHand.h"
#include "windows/home/Beginnings.h"
#include "windows/home/CardDeeds.h"
#include "windows/home/HomeView.h"
#include "windows/home/LeftShow.h"

namespace neb {
namespace {

using Kind = HomeCard::Kind;

constexpr size_t MostSlides = 500;  // more are not looked through; a further word finds better
constexpr int RenewMs = 100;        // what an import of a thousand slides may cost at most
constexpr int LearnMs = 20;         // between two parts, while nobody waits
constexpr int ListSpace = 12;       // logical pixels

bool IsStep(const QKeyEvent& Key) {
    return Key.key() == Qt::Key_Down || Key.key() == Qt::Key_PageDown;
}

bool IsEnter(const QKeyEvent& Key) {
    return Key.key() == Qt::Key_Return || Key.key() == Qt::Key_Enter;
}

}  // namespace

HomeList::HomeList(QWidget* Parent)
    : QWidget(Parent),
      mField(new QLineEdit),
      mSummary(new QLabel),
      mLeft(new LeftShow),
      mRow(new BeginningsRow([this] { Q_EMIT QuickShowWanted(); })),
      mFirst(new FirstDay([this] { Q_EMIT QuickShowWanted(); })),
      mView(new HomeView),
      mMenu(new QMenu(this)) {
    SetUpField();
    SetUpView();
    SetUpDeeds();
    SetUpLayout();
    mRenew.setSingleShot(true);
    mRenew.setInterval(RenewMs);
    connect(&mRenew, &QTimer::timeout, this, &HomeList::RenewChanged);
    mLearn.setInterval(LearnMs);
    connect(&mLearn, &QTimer::timeout, this, &HomeList::LearnSome);
    auto* Find = new QShortcut(QKeySequence::Find, this);
    Find->setContext(Qt::WidgetWithChildrenShortcut);
    connect(Find, &QShortcut::activated, this, &HomeList::FindNext);
}

void HomeList::SetUpField() {
    mField->setObjectName(QStringLiteral("txtHomeSearch"));
    mField->setAccessibleName(tr("Search albums, slide shows and captions"));
    mField->setToolTip(tr("Type a part of a name or of a caption (Ctrl+F)"));
    mField->setClearButtonEnabled(true);
    mField
        ->addAction(ThemeIcon(QStringLiteral("find-graphics"), palette()),
                    QLineEdit::LeadingPosition)
        ->setText(tr("Search"));
    mField->installEventFilter(this);
    connect(mField, &QLineEdit::textChanged, this, &HomeList::Search);
}

// Seen on the ground of the page in every style; and its words are whole or fewer, in every font.
void HomeList::DressField() {
    QPalette Colours = palette();
    const QColor Base = Colours.color(QPalette::Base), Text = Colours.color(QPalette::Text);
    const float Tint = Text.lightness() > Base.lightness() ? 0.1F : 0.0F;
    const auto Mix = [&](float One, float Other) { return One + (Other - One) * Tint; };
    Colours.setColor(QPalette::Base, QColor::fromRgbF(Mix(Base.redF(), Text.redF()),
                                                      Mix(Base.greenF(), Text.greenF()),
                                                      Mix(Base.blueF(), Text.blueF())));
    Colours.setColor(QPalette::PlaceholderText, HintColour(Text, Colours.color(QPalette::Base)));
    mField->setPalette(Colours);
    const QString Words = tr("Search names and captions");
    const int Room = mField->width() - 4 * mField->height();  // beside the icons
    const bool Fits = mField->fontMetrics().horizontalAdvance(Words) < Room;
    mField->setPlaceholderText(Fits ? Words : tr("Search"));
}

void HomeList::SetUpView() {
    mView->setObjectName(QStringLiteral("lstHome"));
    mMenu->setObjectName(QStringLiteral("mnuCard"));
    mView->setAccessibleName(tr("Albums and slide shows"));
    mView->setAccessibleDescription(
        tr("Enter plays a show or opens an album, the menu key offers what else can be done"));
    mView->installEventFilter(this);
    connect(mView->selectionModel(), &QItemSelectionModel::currentChanged, this, [this] {
        if (const HomeCard* Card = mView->Current()) NoteAlbumInHand(Card->Of.AlbumID);
    });
    connect(mView, &HomeView::Typed, this, &HomeList::StartSearch);
    connect(mView, &HomeView::activated, this, &HomeList::Activate, Qt::QueuedConnection);
    connect(mView, &HomeView::MenuWanted, this, &HomeList::OpenMenu);
}

void HomeList::SetUpDeeds() {
    for (const CardDeed& Each : CardDeeds()) {
        auto* Action = new QAction(tr(Each.Text), mView);
        Action->setObjectName(QString::fromLatin1(Each.Name));
        Action->setShortcut(QKeySequence(QString::fromLatin1(Each.Keys)));
        Action->setShortcutContext(Qt::WidgetShortcut);
        mView->addAction(Action);
        const auto Do = [this, &Each] {
            const HomeCard* Card = mView->Current();
            if (Card && Each.Do) return DoDeed(Each, HomeCard(*Card));
            if (Card) Activate();
        };
        connect(Action, &QAction::triggered, this, Do, Qt::QueuedConnection);
    }
}

void HomeList::SetUpLayout() {
    mSummary->setObjectName(QStringLiteral("lblHomeSummary"));
    auto* Top = new QHBoxLayout;
    Top->addWidget(mField, 1);
    Top->addStretch();
    Top->addWidget(mRow);
    auto* All = new QVBoxLayout(this);
    All->setContentsMargins(2 * ListSpace, ListSpace, ListSpace, 0);
    All->setSpacing(ListSpace);
    All->addLayout(Top);
    All->addWidget(mLeft);
    All->addWidget(mSummary);
    All->addWidget(mView, 1);
    All->addWidget(mFirst, 1);
    setTabOrder(mField, mRow);
    setTabOrder(mRow, mLeft);
    setTabOrder(mLeft, mView);
}

void HomeList::Fill() {
    mSearch.Clear();
    mView->Cards().Put(Cards());
    ShowState();
    mView->Choose(0);
    mLearn.start();
}

// Before the first letter is typed all captions are known.
void HomeList::LearnSome() {
    if (!DBEngine || mSearch.Learn(*DBEngine, LearnMs / 2)) mLearn.stop();
}

bool HomeList::IsSearching() const {
    return !mField->text().trimmed().isEmpty();
}

std::vector<HomeCard> HomeList::Cards() {
    if (!DBEngine) return {};
    if (!IsSearching()) return CardsOf(*DBEngine);
    const LibraryHits Hits = mSearch.Find(*DBEngine, mField->text(), MostSlides);
    mSlidesFound = Hits.AllSlides;
    return CardsOf(*DBEngine, Hits);
}

void HomeList::Search() {
    mView->Cards().Put(Cards());
    ShowState();
    mView->scrollToTop();
    mView->Choose(0);
}

void HomeList::StartSearch(const QString& Typed) {
    mField->setFocus(Qt::OtherFocusReason);
    mField->insert(Typed);
}

void HomeList::ClearSearch() {
    mField->clear();
    mView->setFocus();
}

void HomeList::FindNext() {
    mField->setFocus(Qt::ShortcutFocusReason);
    mField->selectAll();
}

void HomeList::TakeFocus() {
    mFirst->isHidden() ? mView->setFocus(Qt::OtherFocusReason) : mFirst->TakeFocus();
}

// What is found, and the covers, are of the album alone that has changed.
void HomeList::ReceiveEvent(const QString& ObjectType, const QString&, const EventKeys& EventData) {
    if (EventData.empty()) return;
    mSearch.Forget(EventData[0]);
    const bool IsOneSlide = ObjectType == u"Album" && EventData.size() > 1;
    const std::int32_t SlideID = IsOneSlide ? EventData[1] : 0;
    mView->Pictures().Renew(EventData[0], SlideID);
    mLeft->RenewPicture(EventData[0], SlideID);
    if (!mRenew.isActive()) mRenew.start();
}

// A show that somebody has left tells nobody: its place is looked at when the window is back.
bool HomeList::event(QEvent* Event) {
    if (Event->type() == QEvent::WindowActivate) mRenew.start();
    return QWidget::event(Event);
}

void HomeList::RenewChanged() {
    const int Place = mView->verticalScrollBar()->value();
    const QWidget* Focus = window()->focusWidget();
    mView->Cards().Follow(Cards());
    ShowState();
    mView->doItemsLayout();
    mView->verticalScrollBar()->setValue(Place);
    if (!mView->Current()) mView->Choose(0);
    if (Focus && isAncestorOf(Focus) && !Focus->isVisibleTo(this)) TakeFocus();
    mView->viewport()->update();
}

// The first day lasts until there is something to look for.
void HomeList::ShowState() {
    const bool IsFirst = !DBEngine || DBEngine->Albums.empty();
    const auto Now = mView->Cards().All();
    mFirst->ShowWhatWorks();
    mFirst->setVisible(IsFirst);
    for (QWidget* Each : std::initializer_list<QWidget*>{mField, mSummary, mView})
        Each->setVisible(!IsFirst);
    mRow->setVisible(!IsFirst && !ReadOnlyDB);
    mLeft->Renew();
    mLeft->setVisible(!IsFirst && !IsSearching() && mLeft->IsThere());
    mSummary->setText(SummaryOf(Now));
    mView->SetEmptyText(
        tr("No album, slide show or caption has \u201c%1\u201d in it.").arg(mField->text()));
}

QString HomeList::SummaryOf(const std::vector<HomeCard>& Cards) const {
    const auto Count = [&](Kind What) {
        return static_cast<int>(std::ranges::count(Cards, What, &HomeCard::What));
    };
    const int Albums = Count(Kind::Album), Shows = Count(Kind::Show), Slides = Count(Kind::Slide);
    QStringList Parts;
    if (Albums > 0) Parts << CountWords(Albums, tr("1 album"), tr("%1 albums"));
    if (Shows > 0) Parts << CountWords(Shows, tr("1 slide show"), tr("%1 slide shows"));
    if (Slides > 0) Parts << CountWords(mSlidesFound, tr("1 slide"), tr("%1 slides"));
    if (Slides > 0 && Slides < mSlidesFound)
        Parts << tr("of which %1 are shown; another word finds fewer").arg(Grouped(Slides));
    return Parts.join(tr(", "));
}

void HomeList::Activate() {
    const HomeCard* Card = mView->Current();
    if (!Card) return;
    const LibraryHit Of = Card->Of;
    if (Card->What != Kind::Show) return Q_EMIT AlbumWanted(Of.AlbumID, Of.SlideID);
    PlayShow(Of);
    ShowState();
}

void HomeList::OpenMenu(const QPoint& At) {
    const HomeCard* Card = mView->Current();
    if (!Card) return;
    mMenu->clear();
    for (const CardDeed& Each : CardDeeds()) {
        auto* Action = mView->findChild<QAction*>(QString::fromLatin1(Each.Name));
        if (!IsOffered(Each, *Card)) continue;
        Action->setIcon(
            MenuIcon(ThemeIcon(QString::fromLatin1(Each.Icon), palette()), mMenu->palette()));
        mMenu->addAction(Action);
        if (!Each.Do) mMenu->setDefaultAction(Action);
        if (Each.EndsGroup) mMenu->addSeparator();
    }
    mMenu->popup(At);
}

// From the field into what was found, and back by Esc.
bool HomeList::eventFilter(QObject* Watched, QEvent* Event) {
    if (Event->type() != QEvent::KeyPress) return QWidget::eventFilter(Watched, Event);
    const auto& Key = *static_cast<QKeyEvent*>(Event);
    const bool IsField = Watched == mField;
    if (Key.key() == Qt::Key_Escape && !mField->text().isEmpty()) return ClearSearch(), true;
    if (IsField && IsStep(Key)) return mView->setFocus(), true;
    if (IsField && IsEnter(Key)) return IsSearching() ? Activate() : mView->setFocus(), true;
    return QWidget::eventFilter(Watched, Event);
}

void HomeList::changeEvent(QEvent* Event) {
    QWidget::changeEvent(Event);
    if (Event->type() == QEvent::PaletteChange || Event->type() == QEvent::FontChange) DressField();
    const bool IsBack = Event->type() == QEvent::ActivationChange && isActiveWindow();
    if (IsBack && isVisible()) ShowState();
}

void HomeList::resizeEvent(QResizeEvent* Event) {
    QWidget::resizeEvent(Event);
    layout()->activate();
    DressField();
}

void HomeList::showEvent(QShowEvent* Event) {
    QWidget::showEvent(Event);
    DressField();
    if (!Event->spontaneous()) ShowState();
}

}  // namespace neb
