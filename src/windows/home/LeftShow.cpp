#include "windows/home/LeftShow.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>

#include "controls/fields/Icons.h"
#include "db/clsDBEngine.h"
#include "settings/modNEBSlideShow.h"
#include "show/ShowSettings.h"
#include "support/Grouped.h"
#include "windows/home/CardPictures.h"
#include "windows/show/modSlideShows.h"

namespace neb {
namespace {

constexpr QSize CoverSize(84, 63);  // logical pixels
constexpr int LeftMargin = 6;
constexpr double LeftRadius = 8;

QLabel* NewLabel(const char* Name) {
    auto* Label = new QLabel;
    Label->setObjectName(QString::fromLatin1(Name));
    Label->setTextFormat(Qt::PlainText);
    // a long name does not make the page wider
    Label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    return Label;
}

}  // namespace

void PlayShow(const LibraryHit& Show) {
    std::int32_t AlbumID = Show.AlbumID;
    QString AlbumName;
    if (!DBEngine || !DBEngine->LoadAlbum(AlbumID, AlbumName)) return;
    MakeActiveWhereNoneIs(AlbumID, Show.SlideShowID);
    RunSlideShow(AlbumID, AlbumName, Show.SlideShowID);
}

LeftShow::LeftShow(QWidget* Parent)
    : QWidget(Parent),
      mPictures(new CardPictures(
          [this] { return std::vector<HomeCard>{{.What = HomeCard::Kind::Slide, .Of = mSlide}}; },
          this)),
      mCover(NewLabel("lblLeftCover")),
      mName(NewLabel("lblLeftName")),
      mWhere(NewLabel("lblLeftWhere")),
      mPlay(new QPushButton(tr("Play"))) {
    auto* Texts = new QVBoxLayout;
    Texts->setSpacing(2);
    Texts->addStretch();
    Texts->addWidget(mName);
    Texts->addWidget(mWhere);
    Texts->addStretch();
    auto* Row = new QHBoxLayout(this);
    Row->setContentsMargins(LeftMargin, LeftMargin, 2 * LeftMargin, LeftMargin);
    Row->setSpacing(2 * LeftMargin);
    Row->addWidget(mCover);
    Row->addLayout(Texts, 1);
    Row->addWidget(mPlay);
    mCover->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    mCover->setFixedSize(CoverSize);
    mCover->setAlignment(Qt::AlignCenter);
    QFont Bold = font();
    Bold.setBold(true);
    mName->setFont(Bold);
    mPlay->setObjectName(QStringLiteral("cmdLeftPlay"));
    mPlay->setIconSize(QSize(1, 1) * fontMetrics().height());
    mPlay->setIcon(ThemeIcon(QStringLiteral("slide-show-play"), palette()));
    mPlay->setAutoDefault(true);
    connect(mPlay, &QPushButton::clicked, this, &LeftShow::Play, Qt::QueuedConnection);
    connect(mPictures, &CardPictures::Read, this, &LeftShow::ShowCover);
    hide();
}

// A show whose place is beyond its end, or that has gone, was not left.
LeftShow::Place LeftShow::Find() {
    const clsSettings Settings = OpenSettings();
    const ActiveShow Active = ReadActiveShow(Settings);
    const clsNEBAlbum* Album = DBEngine ? DBEngine->GetAlbum(Active.AlbumID) : nullptr;
    const clsNEBSlideShow* Show = Album ? Album->GetSlideShow(Active.SlideShowID) : nullptr;
    if (!Show || Active.SlideShowID == 0) return {};
    const std::int32_t At =
        ReadShowSettings(Settings, Active.AlbumID, Active.SlideShowID).ResumeSeq;
    const clsNEBSlideShowDetail* Detail = Show->GetDetail(At);
    if (!Detail) return {};
    return {
        .Show = {.AlbumID = Active.AlbumID, .SlideShowID = Active.SlideShowID},
        .Slide = {.AlbumID = Active.AlbumID, .SlideID = Detail->SlideID},
        .Name = Show->SlideShowName,
        .Where =
            tr("Goes on at slide %1 of %2").arg(Grouped(At), Grouped(std::ssize(Show->Details)))};
}

void LeftShow::Renew() {
    const Place Now = Find();
    mShow = Now.Show;
    mSlide = Now.Slide;
    mName->setText(Now.Name);
    mWhere->setText(Now.Where);
    mPlay->setToolTip(tr("Play the slide show %1 from where it was left").arg(Now.Name));
    mPlay->setAccessibleName(tr("Play %1. %2").arg(Now.Name, Now.Where));
    mPictures->SetBox(CoverSize, devicePixelRatioF());
    if (IsThere()) ShowCover();
}

void LeftShow::RenewPicture(std::int32_t AlbumID, std::int32_t SlideID) {
    mPictures->Renew(AlbumID, SlideID);
}

void LeftShow::ShowCover() {
    const auto* Known = mPictures->Of({.What = HomeCard::Kind::Slide, .Of = mSlide});
    mCover->setPixmap(Known ? QPixmap::fromImage(Known->Cover) : QPixmap());
}

// While it is up nothing of this window can be pressed, nor closed.
void LeftShow::Play() {
    PlayShow(mShow);
    Renew();
}

void LeftShow::paintEvent(QPaintEvent*) {
    QPainter Painter(this);
    Painter.setRenderHint(QPainter::Antialiasing);
    Painter.setPen(Qt::NoPen);
    QColor Ground = palette().color(QPalette::Text);
    Ground.setAlphaF(0.07F);
    Painter.setBrush(Ground);
    Painter.drawRoundedRect(rect(), LeftRadius, LeftRadius);
}

}  // namespace neb
