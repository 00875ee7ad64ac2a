#include "windows/gallery/frmSlideScreen.h"

#include <QContextMenuEvent>
#include <QLabel>
#include <QLineEdit>

#include "controls/picture/PictureView.h"
#include "show/captions/CaptionFit.h"
#include "show/captions/CaptionText.h"
#include "support/Grouped.h"
#include "support/Texts.h"
#include "support/modCharacters.h"
#include "support/modFUFL.h"
#include "windows/gallery/CaptionField.h"
#include "windows/gallery/SlideCommands.h"
#include "windows/show/CaptionLabel.h"
#include "windows/show/ShowScreen.h"

namespace neb {
namespace {

constexpr int PatienceMs = 250;  // in which the slide before may stand for the one that comes
constexpr int WheelNotch = 120;  // eighths of a degree
constexpr int CaptionShare = 3;  // of the screen's height, for a caption of many lines at most
constexpr int Margin = 12;       // pixels
constexpr QColor FieldGround(38, 38, 38);
constexpr int FieldShare = 2;  // of the screen's width

const std::vector<SlideEntry> ScreenEntries{
    {"Edit", QT_TR_NOOP("&Edit Caption"), "F2", "new", true, true},
    {"", "", "", "", false, false},
    {"Left", QT_TR_NOOP("Turn &Left"), "L", "rotate-left", true, true},
    {"Right", QT_TR_NOOP("Turn &Right"), "R", "rotate-right", true, true},
    {"", "", "", "", false, false},
    {"Print", QT_TR_NOOP("&Print..."), "Ctrl+P", "print", false, true},
    {"Delete", QT_TR_NOOP("&Delete"), "Del", "delete", true, true},
    {"", "", "", "", false, false},
    {"Back", QT_TR_NOOP("&Back to the Album"), "Esc", "exit", false, true},
};

}  // namespace

// Name: of the menu's entry.
struct frmSlideScreen::Command {
    int Key;
    bool WithCtrl;
    void (frmSlideScreen::*Do)();
    const char* Name = "";
};

const frmSlideScreen::Command frmSlideScreen::Commands[] = {
    {Qt::Key_Right, false, &frmSlideScreen::Next},
    {Qt::Key_Down, false, &frmSlideScreen::Next},
    {Qt::Key_PageDown, false, &frmSlideScreen::Next},
    {Qt::Key_Space, false, &frmSlideScreen::Next},
    {Qt::Key_MediaNext, false, &frmSlideScreen::Next},
    {Qt::Key_Left, false, &frmSlideScreen::Previous},
    {Qt::Key_Up, false, &frmSlideScreen::Previous},
    {Qt::Key_PageUp, false, &frmSlideScreen::Previous},
    {Qt::Key_Backspace, false, &frmSlideScreen::Previous},
    {Qt::Key_MediaPrevious, false, &frmSlideScreen::Previous},
    {Qt::Key_Home, false, &frmSlideScreen::First},
    {Qt::Key_End, false, &frmSlideScreen::Last},
    {Qt::Key_F2, false, &frmSlideScreen::EditCaption, "Edit"},
    {Qt::Key_L, false, &frmSlideScreen::TurnLeft, "Left"},
    {Qt::Key_R, false, &frmSlideScreen::TurnRight, "Right"},
    {Qt::Key_P, true, &frmSlideScreen::Print, "Print"},
    {Qt::Key_Delete, false, &frmSlideScreen::Delete, "Delete"},
    {Qt::Key_Return, false, &frmSlideScreen::Leave},
    {Qt::Key_Enter, false, &frmSlideScreen::Leave},
    {Qt::Key_Escape, false, &frmSlideScreen::Leave, "Back"},
};

frmSlideScreen::frmSlideScreen(std::shared_ptr<SlideModel> Slides)
    : mSlides(std::move(Slides)),
      mView(new PictureView(this)),
      mCaption(new CaptionLabel(this)),
      mPlace(new QLabel(this)),
      mField(NewCaptionField(this)),
      mPictures(new ScreenPictures(this)),
      mPointer(*this, [this] { return mField->isVisible(); }) {
    SetUpLooks();
    mPatience.setSingleShot(true);
    mPatience.setInterval(PatienceMs);
    connect(&mPatience, &QTimer::timeout, this, &frmSlideScreen::ShowPicture);
    connect(mPictures, &ScreenPictures::Came, this, [this] {
        if (IsThere() && mPictures->Of(OrderOf(mWalk.Row))) ShowPicture();
    });
    mField->installEventFilter(this);
    FollowSlides();
}

frmSlideScreen::~frmSlideScreen() = default;

void frmSlideScreen::FollowSlides() {
    for (const auto Changed : {&QAbstractItemModel::rowsRemoved, &QAbstractItemModel::rowsInserted})
        connect(mSlides.get(), Changed, this, &frmSlideScreen::Follow);
    connect(mSlides.get(), &QAbstractItemModel::layoutChanged, this, &frmSlideScreen::Follow);
    connect(mSlides.get(), &QAbstractItemModel::dataChanged, this, [this](const QModelIndex& At) {
        if (qAbs(At.row() - mWalk.Row) <= 1) Follow();
    });
    connect(mSlides.get(), &QAbstractItemModel::modelReset, this, [this] { Unload(); });
}

// White on black, whatever the desktop's colours are.
void frmSlideScreen::SetUpLooks() {
    setObjectName(QStringLiteral("frmSlideScreen"));
    setWindowTitle(tr("Slide"));
    QPalette Dark;
    Dark.setColor(QPalette::Window, Qt::black);
    Dark.setColor(QPalette::Base, FieldGround);
    for (const auto Role : {QPalette::WindowText, QPalette::Text}) Dark.setColor(Role, Qt::white);
    Dark.setColor(QPalette::PlaceholderText, QColor(200, 200, 200));
    setPalette(Dark);
    setAutoFillBackground(true);
    mView->setObjectName(QStringLiteral("imgSlide"));
    mView->setFocusPolicy(Qt::StrongFocus);
    setFocusProxy(mView);
    mCaption->setObjectName(QStringLiteral("lblCaption"));
    mPlace->setObjectName(QStringLiteral("lblPlace"));
    mPlace->setTextFormat(Qt::PlainText);
    mPlace->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    mPlace->setForegroundRole(QPalette::PlaceholderText);
    mField->setAccessibleName(tr("Caption"));
    const QFont Words =
        CaptionFont(StandardCaption({}, {0, screen()->size().height(), 0}, this).Points);
    mView->setFont(Words);
    mField->setFont(Words);
    mField->hide();
}

void frmSlideScreen::ShowFrom(int Row, const QWidget& Over) {
    mWalk.At = mSlides->index(Row);
    mWalk.Row = Row;
    FillScreen(*this, Over.screen());
    ShowModal();
}

void frmSlideScreen::Form_Activate() {
    mPointer.Attach();
    Follow();
}

bool frmSlideScreen::Form_Unload() {
    mPatience.stop();
    return true;
}

void frmSlideScreen::FinishEdits() {
    EndEdit(true);
}

void frmSlideScreen::GoTo(int Row) {
    const int Wanted = std::clamp(Row, 0, mSlides->Count() - 1);
    if (Wanted == mWalk.Row) return;
    mWalk.Step = Wanted > mWalk.Row ? 1 : -1;
    mWalk.At = mSlides->index(Wanted);
    Follow();
}

// The slide may have another place; where it has gone the one that has come to its place is looked
// at.
void frmSlideScreen::Follow() {
    if (!IsLoaded()) return;
    if (mSlides->Count() == 0) return void(Unload());
    if (!mWalk.At.isValid())
        mWalk.At = mSlides->index(std::clamp(mWalk.Row, 0, mSlides->Count() - 1));
    mWalk.Row = mWalk.At.row();
    mPlace->setText(PlaceWords(mWalk.Row + 1));
    mView->setAccessibleName(mSlides->Words(mWalk.Row));
    setWindowTitle(mSlides->Words(mWalk.Row));
    WantPictures();
    if (mPictures->Of(OrderOf(mWalk.Row))) return ShowPicture();
    if (!mPatience.isActive()) mPatience.start();
}

QString frmSlideScreen::PlaceWords(int Place) const {
    return tr("%1 of %2").arg(Grouped(Place), Grouped(mSlides->Count()));
}

// The same for all slides, so that the room of the next one is known.
int frmSlideScreen::PlaceWidth() const {
    const QString Widest = PlaceWords(mSlides->Count());
    return mPlace->fontMetrics().horizontalAdvance(Widest) + 2 * Margin;
}

// What is left when the caption, of which there may be none, has its lines.
ScreenPictures::Order frmSlideScreen::OrderOf(int Row) const {
    const QString Text = ShownCaptionText(FixCaptionText(mSlides->Caption(Row)));
    const CaptionSpace Space{width() - 2 * PlaceWidth(), height(), height() / CaptionShare};
    const QSize Room(width(), height() - FitCaption(Text, Space, this).Height);
    return {mSlides->SlideID(Row), mSlides->Edition(Row), mSlides->Path(Row), Room,
            devicePixelRatioF()};
}

void frmSlideScreen::WantPictures() {
    const auto [At, Row, Step, Typed] = mWalk;
    std::vector<ScreenPictures::Order> Orders;
    for (const int Each : {Row, Row + Step, Row - Step})
        if (Each >= 0 && Each < mSlides->Count()) Orders.push_back(OrderOf(Each));
    mPictures->Want(Orders);
}

void frmSlideScreen::ShowCaption() {
    const int Side = PlaceWidth(), Width = width() - 2 * Side;
    mCaption->setText(FixCaptionText(mSlides->Caption(mWalk.Row)));
    const int Height = mCaption->FitTo(Width, height(), height() / CaptionShare);
    mCaption->setGeometry(Side, height() - Height, Width, Height);
    mPlace->setGeometry(width() - Side, height() - Height, Side - Margin, Height);
    mView->setGeometry(0, 0, width(), height() - Height);
}

// What there is by now: the picture, or words in its place.
void frmSlideScreen::ShowPicture() {
    mPatience.stop();
    if (!IsThere()) return;
    ShowCaption();
    const ScreenPictures::Picture* Read = mPictures->Of(OrderOf(mWalk.Row));
    mView->SetPicture(Read ? Read->Fitted : QImage());
    const QString File = InOwnDirection(GetFileName(mSlides->Path(mWalk.Row)));
    if (!Read) return ShowWords(tr("Reading %1 ...").arg(File));
    ShowWords(Read->Problem.isEmpty()
                  ? QString()
                  : tr("This picture cannot be shown.") + QStringLiteral("\n\n") + Read->Problem);
}

void frmSlideScreen::ShowWords(const QString& Words) {
    mView->SetEmptyText(Words);
    mView->setAccessibleDescription(Words);
}

void frmSlideScreen::keyPressEvent(QKeyEvent* Event) {
    const bool WithCtrl = Event->modifiers() & Qt::ControlModifier;
    const bool WithOther = Event->modifiers() & (Qt::AltModifier | Qt::MetaModifier);
    for (const Command& Each : Commands)
        if (!WithOther && Each.Key == Event->key() && Each.WithCtrl == WithCtrl)
            return Form::Command([&] { (this->*Each.Do)(); });
    Event->ignore();
}

// A wheel of fine steps turns as far as a coarse one.
void frmSlideScreen::wheelEvent(QWheelEvent* Event) {
    mTurned += Event->angleDelta().y();
    const int Notches = mTurned / WheelNotch;
    mTurned -= Notches * WheelNotch;
    Event->accept();
    if (Notches == 0) return;
    EndEdit(true);
    GoTo(mWalk.Row - Notches);
}

void frmSlideScreen::mouseDoubleClickEvent(QMouseEvent* Event) {
    if (Event->button() == Qt::LeftButton) Unload();
}

void frmSlideScreen::contextMenuEvent(QContextMenuEvent* Event) {
    const bool ByMouse = Event->reason() == QContextMenuEvent::Mouse;
    const QPoint At = ByMouse ? Event->globalPos() : mapToGlobal(rect().center());
    Form::Command([&] { AskInMenuAt(At); });
}

void frmSlideScreen::AskInMenuAt(const QPoint& GlobalPos) {
    mPointer.Wake();
    const QString Chosen = AskInMenu(*this, ScreenEntries, GlobalPos, true);
    for (const Command& Each : Commands)
        if (*Each.Name && Chosen == QLatin1String(Each.Name)) (this->*Each.Do)();
}

void frmSlideScreen::resizeEvent(QResizeEvent* Event) {
    Form::resizeEvent(Event);
    if (IsLoaded()) Follow();
}

// What is typed is for the slide that is seen.
void frmSlideScreen::EditCaption() {
    if (!MayChangeSlides()) return;
    ShowPicture();
    mWalk.SlideID = mSlides->SlideID(mWalk.Row);
    mField->setText(mSlides->Caption(mWalk.Row));
    mField->selectAll();
    mField->resize(width() / FieldShare, mField->sizeHint().height());
    mField->move((width() - mField->width()) / 2, height() - mField->height() - Margin);
    mField->show();
    mField->raise();
    mField->setFocus();
    mPointer.Wake();
}

void frmSlideScreen::EndEdit(bool Store) {
    if (mField->isHidden()) return;
    mField->hide();
    setFocus();
    if (Store && mField->isModified())
        StoreCaption(mSlides->AlbumID(), mWalk.SlideID, mField->text());
}

bool frmSlideScreen::eventFilter(QObject* Watched, QEvent* Event) {
    const CaptionKey Asked = Watched == mField ? CaptionKeyOf(*Event) : CaptionKey::None;
    if (Asked == CaptionKey::None) return Form::eventFilter(Watched, Event);
    EndEdit(Asked != CaptionKey::Leave);
    const int Before = mWalk.Row;
    if (Asked == CaptionKey::StoreAndNext) Next();
    if (Asked == CaptionKey::StoreAndPrevious) Previous();
    if (mWalk.Row != Before) EditCaption();
    return true;
}

void frmSlideScreen::TurnLeft() {
    TurnSlides(mSlides->AlbumID(), {mSlides->SlideID(mWalk.Row)}, -1);
}

void frmSlideScreen::TurnRight() {
    TurnSlides(mSlides->AlbumID(), {mSlides->SlideID(mWalk.Row)}, 1);
}

void frmSlideScreen::Print() {
    PrintSlides(mSlides->AlbumID(), {mSlides->SlideID(mWalk.Row)});
}

void frmSlideScreen::Delete() {
    DeleteSlidesAsked(*this, mSlides->AlbumID(), {mSlides->SlideID(mWalk.Row)});
}

}  // namespace neb
