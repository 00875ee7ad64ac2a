#include "windows/gallery/AlbumPage.h"

#include <QPointer>
#include <QShortcut>

#include "controls/fields/Icons.h"
#include "db/clsDBEngine.h"
#include "settings/SettingKeys.h"
#include "settings/modNEBSlideShow.h"
#include "support/Grouped.h"
#include "support/Texts.h"
#include "support/modCharacters.h"
#include "ui_AlbumPage.h"
#include "windows/frame/AlbumInHand.h"
#include "windows/frame/modWindowState.h"
#include "windows/gallery/SlideCommands.h"
#include "windows/gallery/SlideModel.h"
#include "windows/gallery/frmSlideScreen.h"

namespace neb {
namespace {

constexpr int KeepAfterMs = 500;  // a slider that is drawn passes by many sizes
constexpr double SizeStep = 1.25;
constexpr double TitleScale = 1.3;

const std::vector<SlideEntry> PageEntries{
    {"Screen", QT_TR_NOOP("Show on &Full Screen"), "Enter", "slide-show-play", false, true},
    {"Edit", QT_TR_NOOP("&Edit Caption"), "F2", "new", true, true},
    {"Manager", QT_TR_NOOP("Open in the &Slide Manager"), "", "slide-manager", false, true},
    {"", "", "", "", false, false},
    {"Left", QT_TR_NOOP("Turn &Left"), "Ctrl+Shift+L", "rotate-left", true, false},
    {"Right", QT_TR_NOOP("Turn &Right"), "Ctrl+Shift+R", "rotate-right", true, false},
    {"", "", "", "", false, false},
    {"Print", QT_TR_NOOP("&Print..."), "Ctrl+P", "print", false, false},
    {"Sheet", QT_TR_NOOP("Print a S&heet of this Slide..."), "", "print-sheet", false, true},
    {"", "", "", "", false, false},
    {"Delete", QT_TR_NOOP("&Delete"), "Del", "delete", true, false},
};

}  // namespace

// Name: of the menu's entry. Keys: those that the view of the slides does not know itself.
struct AlbumPage::Command {
    const char* Name;
    const char* Keys;
    void (AlbumPage::*Do)();
};

const AlbumPage::Command AlbumPage::Commands[] = {
    {"", "Esc", &AlbumPage::Leave},
    {"", "Alt+Left", &AlbumPage::Leave},
    {"Screen", "", &AlbumPage::OpenScreen},
    {"Edit", "", &AlbumPage::EditCaption},
    {"Manager", "", &AlbumPage::OpenManager},
    {"Left", "Ctrl+Shift+L", &AlbumPage::TurnLeft},
    {"Right", "Ctrl+Shift+R", &AlbumPage::TurnRight},
    {"Print", "Ctrl+P", &AlbumPage::Print},
    {"Sheet", "", &AlbumPage::PrintSheet},
    {"Delete", "", &AlbumPage::Delete},
};

AlbumPage::AlbumPage(QWidget* Parent)
    : QWidget(Parent),
      mUi(std::make_unique<Ui::AlbumPage>()),
      mSlides(std::make_shared<SlideModel>()) {
    mUi->setupUi(this);
    setAutoFillBackground(true);
    SetUpSlides();
    SetUpKeys();
    ShowLooks();
    mFollow.setSingleShot(true);
    connect(&mFollow, &QTimer::timeout, this, &AlbumPage::FollowNow);
    mKeepSize.setSingleShot(true);
    mKeepSize.setInterval(KeepAfterMs);
    connect(&mKeepSize, &QTimer::timeout, this, &AlbumPage::KeepSize);
    connect(mUi->cmdBack, &QPushButton::clicked, this, &AlbumPage::Leave);
}

AlbumPage::~AlbumPage() = default;

void AlbumPage::SetUpSlides() {
    SlideTiles& Tiles = *mUi->lvwSlides;
    mUi->sldSize->setValue(ReadNumber(OpenSettings(), Setting::GalleryPictures));
    Tiles.Show(*mSlides, mUi->sldSize->value());
    Tiles.SetEmptyText(
        tr("This album has no slides yet.\n"
           "The slide manager (Ctrl+E) takes pictures into it."));
    setFocusProxy(&Tiles);
    connect(&Tiles, &SlideTiles::Opened, this, &AlbumPage::OpenScreen);
    connect(&Tiles, &SlideTiles::DeletePressed, this, &AlbumPage::Delete);
    connect(&Tiles, &SlideTiles::EditRefused, this, [] { MayChangeSlides(); });
    connect(&Tiles, &SlideTiles::MenuAsked, this, &AlbumPage::AskInMenuAt);
    connect(&Tiles, &SlideTiles::SizeAsked, this, &AlbumPage::SizeAsked);
    connect(&Tiles, &SlideTiles::CaptionTyped, this,
            [this](const QModelIndex& Index, const QString& Caption) {
                StoreCaption(AlbumID(), mSlides->SlideID(Index.row()), Caption);
            });
    connect(mUi->sldSize, &QSlider::valueChanged, this, [this](int Side) {
        mUi->lvwSlides->SetSide(Side);
        mKeepSize.start();
    });
}

void AlbumPage::SetUpKeys() {
    const auto Add = [this](const QKeySequence& Keys, auto Do) {
        connect(new QShortcut(Keys, this, nullptr, nullptr, Qt::WidgetWithChildrenShortcut),
                &QShortcut::activated, this, Do);
    };
    for (const Command& Each : Commands)
        if (*Each.Keys) Add(QKeySequence(QString::fromLatin1(Each.Keys)), Each.Do);
    for (const auto Key : {Qt::Key_Plus, Qt::Key_Equal})
        Add(QKeySequence(Qt::CTRL | Key), [this] { SizeAsked(1); });
    Add(QKeySequence(Qt::CTRL | Qt::Key_Minus), [this] { SizeAsked(-1); });
}

void AlbumPage::ShowLooks() {
    mUi->cmdBack->setIcon(ThemeIcon(QStringLiteral("slide-previous"), palette()));
    QFont Title = font();
    Title.setPointSizeF(Title.pointSizeF() * TitleScale);
    Title.setBold(true);
    if (mUi->lblAlbum->font() != Title) mUi->lblAlbum->setFont(Title);
}

void AlbumPage::ShowAlbum(std::int32_t AlbumID, std::int32_t SlideID) {
    mUi->lvwSlides->FinishEdit();
    mFollow.stop();
    NoteAlbumInHand(AlbumID);
    mSlides->ShowAlbum(AlbumID);
    ShowTitle();
    if (mSlides->Count() > 0) mUi->lvwSlides->ChooseRow(std::max(0, mSlides->RowOf(SlideID)));
    mUi->lvwSlides->setFocus();
}

std::int32_t AlbumPage::AlbumID() const {
    return mSlides->AlbumID();
}

// The count has its room, the name what is left.
void AlbumPage::ShowTitle() {
    const clsNEBAlbum* Album = DBEngine ? DBEngine->GetAlbum(AlbumID()) : nullptr;
    const QString Name = Album ? InOwnDirection(Album->AlbumName) : QString();
    const int Count = mSlides->Count();
    const QString Slides =
        QStringLiteral("  ") + (Count == 1 ? tr("1 slide") : tr("%1 slides").arg(Grouped(Count)));
    QLabel& Label = *mUi->lblAlbum;
    const int Room = Label.width() - Label.fontMetrics().horizontalAdvance(Slides);
    Label.setText(Label.fontMetrics().elidedText(Name, Qt::ElideRight, Room) + Slides);
    Label.setAccessibleName(Name + QStringLiteral(", ") + Slides.trimmed());
    mUi->lvwSlides->setAccessibleName(tr("Slides of %1").arg(Name));
}

void AlbumPage::ReceiveEvent(const QString& ObjectType, const QString& EventType,
                             const EventKeys& EventData) {
    if (ObjectType != u"Album" || AlbumID() == 0) return;
    if (EventData.empty() || EventData[0] != AlbumID()) return;
    if (EventType == u"Delete") {
        mSlides->ShowAlbum(0);
        return Q_EMIT Left();
    }
    const std::int32_t SlideID = EventData.size() > 1 ? EventData[1] : 0;
    if (EventType == u"Update" || (EventType == u"Add Slides" && SlideID != 0))
        mSlides->RenewPicture(SlideID);
    mFollow.start();  // a thousand changes in a row are followed once
}

// The slide in hand stays in view, wherever its caption takes it; where it has gone, what has come
// to its place is in hand.
void AlbumPage::FollowNow() {
    SlideTiles& Tiles = *mUi->lvwSlides;
    const int Before = Tiles.currentIndex().row(), First = Tiles.FirstChosen();
    const std::int32_t SlideID = InHand();
    mSlides->Follow();
    ShowTitle();
    const int Now = mSlides->RowOf(SlideID);
    if (Now < 0 && mSlides->Count() > 0)
        Tiles.ChooseRow(std::clamp(First, 0, mSlides->Count() - 1));
    else if (Now != Before)
        Tiles.scrollTo(Tiles.currentIndex());
}

void AlbumPage::SizeAsked(int Steps) {
    const int Side = mUi->sldSize->value();
    mUi->sldSize->setValue(qRound(Steps > 0 ? Side * SizeStep : Side / SizeStep));
}

void AlbumPage::KeepSize() {
    mKeepSize.stop();
    clsSettings Settings = OpenSettings();
    if (ReadNumber(Settings, Setting::GalleryPictures) == mUi->sldSize->value()) return;
    PutNumber(Settings, Setting::GalleryPictures, mUi->sldSize->value());
    SaveMemory(Settings);
}

void AlbumPage::showEvent(QShowEvent* Event) {
    QWidget::showEvent(Event);
    window()->installEventFilter(this);
    mUi->lvwSlides->setFocus();
    ShowTitle();
}

void AlbumPage::hideEvent(QHideEvent* Event) {
    QWidget::hideEvent(Event);
    mUi->lvwSlides->FinishEdit();
    if (mKeepSize.isActive()) KeepSize();
}

void AlbumPage::resizeEvent(QResizeEvent* Event) {
    QWidget::resizeEvent(Event);
    ShowTitle();
}

void AlbumPage::changeEvent(QEvent* Event) {
    QWidget::changeEvent(Event);
    if (Event->type() != QEvent::PaletteChange && Event->type() != QEvent::FontChange) return;
    ShowLooks();
    ShowTitle();
}

// The end of the program finds what is being typed stored.
bool AlbumPage::eventFilter(QObject* Watched, QEvent* Event) {
    if (Event->type() == QEvent::Close && Watched == window()) mUi->lvwSlides->FinishEdit();
    return QWidget::eventFilter(Watched, Event);
}

std::vector<std::int32_t> AlbumPage::Selected() const {
    return mUi->lvwSlides->SelectedSlides();
}

std::int32_t AlbumPage::InHand() const {
    const QModelIndex At = mUi->lvwSlides->currentIndex();
    return At.isValid() ? mSlides->SlideID(At.row()) : 0;
}

void AlbumPage::AskInMenuAt(const QPoint& GlobalPos) {
    if (Selected().size() == 1) mUi->lvwSlides->ChooseRow(mSlides->RowOf(Selected().front()));
    const QPointer<AlbumPage> Here(this);
    const QString Chosen = AskInMenu(*this, PageEntries, GlobalPos, Selected().size() == 1);
    for (const Command& Each : Commands)
        if (Here && *Each.Name && Chosen == QLatin1String(Each.Name)) (this->*Each.Do)();
}

void AlbumPage::Leave() {
    mUi->lvwSlides->FinishEdit();
    Q_EMIT Left();
}

void AlbumPage::OpenScreen() {
    const int Row = mSlides->RowOf(InHand());
    if (Row < 0) return;
    const QPointer<AlbumPage> Here(this);
    const auto Screen = NewForm<frmSlideScreen>(mSlides);
    Screen->ShowFrom(Row, *this);
    if (Here && Screen->Row() < mSlides->Count() && mSlides->Count() > 0)
        mUi->lvwSlides->ChooseRow(Screen->Row());
}

void AlbumPage::EditCaption() {
    mUi->lvwSlides->EditCaption(mUi->lvwSlides->currentIndex());
}

void AlbumPage::TurnLeft() {
    TurnSlides(AlbumID(), Selected(), -1);
}

void AlbumPage::TurnRight() {
    TurnSlides(AlbumID(), Selected(), 1);
}

void AlbumPage::Delete() {
    DeleteSlidesAsked(*this, AlbumID(), Selected());
}

void AlbumPage::Print() {
    PrintSlides(AlbumID(), Selected());
}

void AlbumPage::PrintSheet() {
    if (Selected().size() == 1) PrintSlideSheet(AlbumID(), Selected().front());
}

void AlbumPage::OpenManager() {
    if (Selected().size() == 1) OpenInSlideManager(AlbumID(), Selected().front());
}

}  // namespace neb
