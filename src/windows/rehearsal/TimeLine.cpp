#include "windows/rehearsal/TimeLine.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyle>
#include <QToolTip>
#include <algorithm>

#include "controls/speech/SpokenRole.h"
#include "show/rehearsal/CueTexts.h"
#include "support/modCharacters.h"
#include "windows/rehearsal/SlidePictures.h"

namespace neb {
namespace {

constexpr double SlideWidth = 110;   // pixels, of one that stays up as long as the others
constexpr double Longest = 1 << 24;  // pixels, of a show of any length
constexpr int Margin = 4;
constexpr int PictureHeight = 72;
const QColor Wrong(0xc6, 0x28, 0x28);

// Seconds from mark to mark, so that the times have room.
double RulerStep(double Scale, int Room) {
    for (const double Step : {1.0, 2.0, 5.0, 10.0, 15.0, 30.0, 60.0, 120.0, 300.0, 600.0, 1800.0})
        if (Step * Scale >= Room) return Step;
    return 3600;
}

bool IsHeardOrWanted(const RehearsalRow& Its) {
    return Its.Sound.Kind != CueSoundKind::Silent && Its.Sound.Kind != CueSoundKind::Over;
}

}  // namespace

TimeLine::TimeLine(QWidget* Parent)
    : QAbstractScrollArea(Parent), mPictures(new SlidePictures(this)) {
    SpeakAs(*this, QAccessible::Chart);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setFocusPolicy(Qt::StrongFocus);
    connect(mPictures, &SlidePictures::Read, viewport(), qOverload<>(&QWidget::update));
    FitBars();
}

TimeLine::Lanes TimeLine::LanesNow() const {
    const int Line = fontMetrics().height() + Margin;
    const int Texts = Line + PictureHeight + Margin;
    return {Line, Texts, Texts + Line, Texts + 2 * Line, Texts + 3 * Line};
}

void TimeLine::ShowSheet(std::shared_ptr<const RehearsalSheet> Sheet) {
    mSheet = std::move(Sheet);
    mPictures->Forget();
    mCurrent = Rows() > 0 ? 0 : -1;
    setAccessibleDescription(mCurrent < 0 ? QString() : TipOf(mCurrent));
    horizontalScrollBar()->setValue(0);
    FitBars();
    viewport()->update();
}

int TimeLine::Rows() const {
    return mSheet ? static_cast<int>(mSheet->Rows.size()) : 0;
}

const RehearsalRow& TimeLine::Row(int Index) const {
    return mSheet->Rows[static_cast<size_t>(Index)];
}

double TimeLine::Scale() const {
    const double Seconds = mSheet ? std::max(mSheet->RunningTime, 0.1) : 1;
    return std::min(SlideWidth * std::max(Rows(), 1), Longest) / Seconds;
}

bool TimeLine::GoesOn(int Index) const {
    return Row(Index).Sound.Kind == CueSoundKind::GoesOn;
}

int TimeLine::X(double Seconds) const {
    return qRound(Seconds * Scale()) - horizontalScrollBar()->value();
}

void TimeLine::FitBars() {
    const int Whole = mSheet ? qRound(mSheet->RunningTime * Scale()) : 0;
    horizontalScrollBar()->setPageStep(viewport()->width());
    horizontalScrollBar()->setSingleStep(qRound(SlideWidth / 2));
    horizontalScrollBar()->setRange(0, std::max(0, Whole - viewport()->width()));
    setFixedHeight(LanesNow().End + Margin + horizontalScrollBar()->sizeHint().height() +
                   2 * frameWidth());
}

QRect TimeLine::PlaceOf(int Index) const {
    if (Index < 0 || Index >= Rows()) return {};
    const int Left = X(Row(Index).At), Right = X(Row(Index).At + Row(Index).Seconds);
    return {Left, LanesNow().Pictures, std::max(Right - Left, 2), PictureHeight};
}

int TimeLine::RowAt(const QPoint& Place) const {
    for (auto [Index, Last] = RowsSeen(); Index <= Last; ++Index) {
        const QRect Room = PlaceOf(Index);
        if (Place.x() >= Room.left() && Place.x() <= Room.right()) return Index;
    }
    return -1;
}

// First and last of those in view; none: the last lies before the first.
std::pair<int, int> TimeLine::RowsSeen() const {
    if (Rows() == 0) return {0, -1};
    const double From = horizontalScrollBar()->value() / Scale();
    const double To = From + viewport()->width() / Scale();
    const auto& All = mSheet->Rows;
    const auto First = std::partition_point(
        All.begin(), All.end(), [&](const auto& Each) { return Each.At + Each.Seconds < From; });
    const auto End =
        std::partition_point(First, All.end(), [&](const auto& Each) { return Each.At <= To; });
    return {static_cast<int>(First - All.begin()), static_cast<int>(End - All.begin()) - 1};
}

void TimeLine::SetCurrent(int Index) {
    if (Index == mCurrent || Index < 0 || Index >= Rows()) return;
    mCurrent = Index;
    setAccessibleDescription(TipOf(Index));
    const QRect Room = PlaceOf(Index);
    QScrollBar& Bar = *horizontalScrollBar();
    if (Room.left() < 0) Bar.setValue(Bar.value() + Room.left());
    if (Room.right() >= viewport()->width())
        Bar.setValue(Bar.value() + std::min(Room.left(), Room.right() - viewport()->width() + 1));
    viewport()->update();
    Q_EMIT CurrentChanged(Index);
}

void TimeLine::AskPictures() {
    QStringList Paths;
    for (auto [Index, Last] = RowsSeen(); Index <= Last; ++Index) Paths << Row(Index).Picture;
    mPictures->Ask(Paths, devicePixelRatioF());
}

void TimeLine::paintEvent(QPaintEvent*) {
    QPainter Painter(viewport());
    PaintRuler(Painter);
    for (auto [Index, Last] = RowsSeen(); Index <= Last; ++Index) PaintSlide(Painter, Index);
    PaintNames(Painter);
    AskPictures();
}

void TimeLine::PaintRuler(QPainter& Painter) const {
    if (Rows() == 0) return;
    const double Step =
        RulerStep(Scale(), fontMetrics().horizontalAdvance(QStringLiteral("00:00.0 ")));
    const double From = horizontalScrollBar()->value() / Scale();
    const double To = From + viewport()->width() / Scale();
    Painter.setPen(palette().color(QPalette::PlaceholderText));
    for (double At = std::floor(From / Step) * Step; At <= To; At += Step) {
        Painter.drawLine(X(At), 0, X(At), LanesNow().Pictures - 1);
        Painter.drawText(X(At) + Margin, fontMetrics().ascent() + Margin / 2, TimeText(At));
    }
}

void TimeLine::PaintSlide(QPainter& Painter, int Index) const {
    const QRect Room = PlaceOf(Index);
    const QRect Whole(Room.left(), Room.top(), Room.width(), LanesNow().End - Room.top());
    if (Index == mCurrent) {
        QColor Back = palette().color(QPalette::Highlight);
        Back.setAlpha(hasFocus() ? 110 : 60);
        Painter.fillRect(Whole, Back);
    }
    Painter.setPen(palette().color(QPalette::Mid));
    Painter.drawLine(Room.left(), Room.top(), Room.left(), LanesNow().End);
    PaintPicture(Painter, Index, Room.adjusted(Margin, 1, -Margin, -1));
    PaintText(Painter, Index);
    PaintSound(Painter, Index);
}

void TimeLine::PaintPicture(QPainter& Painter, int Index, const QRect& Room) const {
    const QImage Picture = mPictures->Of(Row(Index).Picture);
    if (Picture.isNull() || Room.width() < 1) return;
    const QSize Size = Picture.size().scaled(Room.size(), Qt::KeepAspectRatio);
    Painter.setRenderHint(QPainter::SmoothPixmapTransform);
    Painter.drawImage(QStyle::alignedRect(layoutDirection(), Qt::AlignCenter, Size, Room), Picture);
}

// Number and caption; where something is wrong, marked.
void TimeLine::PaintText(QPainter& Painter, int Index) const {
    const RehearsalRow& Its = Row(Index);
    const QRect Place = PlaceOf(Index);
    QRect Room(Place.left() + Margin, LanesNow().Texts, Place.width() - Margin,
               fontMetrics().height());
    if (!Its.Problems.isEmpty()) {
        const QRect Mark(Room.topLeft(), QSize(Room.height(), Room.height()));
        Painter.setRenderHint(QPainter::Antialiasing);
        Painter.setPen(Qt::NoPen);
        Painter.setBrush(Wrong);
        Painter.drawEllipse(Mark.adjusted(1, 1, -1, -1));
        Painter.setPen(Qt::white);
        Painter.drawText(Mark, Qt::AlignCenter, QStringLiteral("!"));
        Room.setLeft(Mark.right() + Margin);
    }
    Painter.setPen(palette().color(QPalette::Text));
    const QString Text =
        QString::number(Its.SlideSeq) + QStringLiteral("  ") + InOwnDirection(Its.Caption);
    Painter.drawText(Room, Qt::AlignLeft | Qt::AlignVCenter,
                     fontMetrics().elidedText(Text, Qt::ElideRight, Room.width()));
}

// As long as it is heard while the slide is up; red where it should be and is not.
void TimeLine::PaintSound(QPainter& Painter, int Index) const {
    const RehearsalRow& Its = Row(Index);
    if (!IsHeardOrWanted(Its)) return;
    const bool Heard = Its.Sound.Kind != CueSoundKind::Unplayed;
    const QRect Bar = BarOf(Its, Its);
    QColor Back = Heard ? palette().color(QPalette::Highlight) : Wrong;
    Back.setAlpha(Its.ClipSounds ? 200 : 120);
    Painter.fillRect(Bar, Heard ? QBrush(Back) : QBrush(Back, Qt::BDiagPattern));
}

// From the beginning of one slide to the end of what is heard with another.
QRect TimeLine::BarOf(const RehearsalRow& First, const RehearsalRow& Last) const {
    const double End = Last.Sound.EndsAt >= 0 ? Last.Sound.EndsAt : Last.At + Last.Seconds;
    const Lanes Tops = LanesNow();
    return {X(First.At), (First.ClipSounds ? Tops.Clips : Tops.Tracks) + 1,
            std::max(X(End) - X(First.At), 2), fontMetrics().height() + 2};
}

// Above all the slides: a name takes the room of all through which its sound goes on, and stays in
// sight when the first of them is not.
void TimeLine::PaintNames(QPainter& Painter) const {
    auto [Index, Seen] = RowsSeen();
    while (Index > 0 && Index <= Seen && GoesOn(Index)) --Index;
    while (Index <= Seen) {
        const int First = Index++;
        while (Index < Rows() && GoesOn(Index)) ++Index;
        if (IsHeardOrWanted(Row(First))) PaintName(Painter, First, Index - 1);
    }
}

void TimeLine::PaintName(QPainter& Painter, int First, int Last) const {
    const RehearsalRow& Its = Row(First);
    QRect Bar = BarOf(Its, Row(Last));
    Bar.setLeft(std::max(Bar.left(), 0) + Margin);
    Painter.setPen(palette().color(QPalette::Text));
    Painter.drawText(Bar, Qt::AlignLeft | Qt::AlignVCenter,
                     fontMetrics().elidedText(Its.ClipSounds ? Its.Clip : Its.Track, Qt::ElideRight,
                                              Bar.width()));
}

QString TimeLine::TipOf(int Index) const {
    const RehearsalRow& Its = Row(Index);
    QStringList Lines{tr("Slide %1 at %2").arg(Its.SlideSeq).arg(TimeText(Its.At))};
    if (!Its.Caption.isEmpty()) Lines << Its.Caption;
    const QString& Song = Its.ClipSounds ? Its.Clip : Its.Track;
    if (!Song.isEmpty()) Lines << Song + QStringLiteral(": ") + Its.SoundText;
    return (Lines + Its.Problems).join(u'\n');
}

bool TimeLine::viewportEvent(QEvent* Event) {
    if (Event->type() != QEvent::ToolTip) return QAbstractScrollArea::viewportEvent(Event);
    const auto& Help = static_cast<QHelpEvent&>(*Event);
    const int Index = RowAt(Help.pos());
    QToolTip::showText(Help.globalPos(), Index < 0 ? toolTip() : TipOf(Index), this);
    return true;
}

void TimeLine::resizeEvent(QResizeEvent*) {
    FitBars();
}

void TimeLine::mousePressEvent(QMouseEvent* Event) {
    if (Event->button() == Qt::LeftButton) SetCurrent(RowAt(Event->position().toPoint()));
}

void TimeLine::mouseDoubleClickEvent(QMouseEvent* Event) {
    const int Index = RowAt(Event->position().toPoint());
    if (Event->button() == Qt::LeftButton && Index >= 0) Q_EMIT Activated(Index);
}

void TimeLine::keyPressEvent(QKeyEvent* Event) {
    const int Key = Event->key(), Last = Rows() - 1;
    if (Key == Qt::Key_Right || Key == Qt::Key_Down) return SetCurrent(mCurrent + 1);
    if (Key == Qt::Key_Left || Key == Qt::Key_Up) return SetCurrent(mCurrent - 1);
    if (Key == Qt::Key_Home) return SetCurrent(0);
    if (Key == Qt::Key_End) return SetCurrent(Last);
    const bool Goes = Key == Qt::Key_Return || Key == Qt::Key_Enter;
    if (!Goes) return QAbstractScrollArea::keyPressEvent(Event);
    if (mCurrent >= 0) Q_EMIT Activated(mCurrent);
}

void TimeLine::changeEvent(QEvent* Event) {
    QAbstractScrollArea::changeEvent(Event);
    if (Event->type() == QEvent::FontChange) FitBars();
}

}  // namespace neb
