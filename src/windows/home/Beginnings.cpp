#include "windows/home/Beginnings.h"

#include <QApplication>
#include <QBoxLayout>
#include <QEvent>
#include <QLabel>
#include <QToolButton>

#include "controls/fields/Icons.h"
#include "settings/modNEBSlideShow.h"
#include "support/Fault.h"
#include "support/Texts.h"
#include "windows/frame/Openers.h"
#include "windows/frame/modNotice.h"
#include "windows/home/BigButton.h"
#include "windows/import/frmNewAlbumWzd1.h"
#include "windows/transfer/frmAlbumImport.h"

namespace neb {
namespace {

constexpr double Larger = 1.6;
constexpr int IconSide = 64, Space = 12;  // logical pixels

// Without letters to press with Alt: these belong to the windows before the home.
struct Beginning {
    const char* Name;
    const char* Text;
    const char* Words;
    const char* Icon;
    void (*Run)();  // nullptr: the quick show
};

void MakeAlbum() {
    NewForm<frmNewAlbumWzd1>()->ShowModal();
}

void ImportAlbum() {
    if (TheOpeners().ShowAsChild) TheOpeners().ShowAsChild(*NewForm<frmAlbumImport>());
}

constexpr Beginning Beginnings[] = {
    {"cmdBeginQuickShow", QT_TR_NOOP("Quick Show"),
     QT_TR_NOOP("Turn a folder of pictures into a running show"), "quick-show", nullptr},
    {"cmdBeginAlbum", QT_TR_NOOP("New Album"),
     QT_TR_NOOP("Collect pictures from folders and drives"), "album-new", &MakeAlbum},
    {"cmdBeginImport", QT_TR_NOOP("Import"),
     QT_TR_NOOP("Bring in an album from another computer or a disc"), "import", &ImportAlbum},
};

// Queued, as an entry of the menu is: a window that opens does not hold the button.
void Connect(QAbstractButton& Button, const Beginning& Of, const std::function<void()>& QuickShow) {
    const auto Run = [&Of, QuickShow] {
        if (QApplication::activeModalWidget()) return;
        try {
            Of.Run ? Of.Run() : QuickShow();
        } catch (const Fault& Problem) {
            ShowNotice(Problem.Text());
        }
    };
    QObject::connect(&Button, &QAbstractButton::clicked, &Button, Run, Qt::QueuedConnection);
    Button.setObjectName(QString::fromLatin1(Of.Name));
    Button.setToolTip(QObject::tr(Of.Words));
}

QLabel* AddLabel(QBoxLayout& Into, const QString& Name, const QString& Text) {
    auto* Label = new QLabel(Text);
    Label->setObjectName(Name);
    Label->setAlignment(Qt::AlignCenter);
    Label->setWordWrap(true);
    Into.addWidget(Label);
    return Label;
}

}  // namespace

FirstDay::FirstDay(const std::function<void()>& BeginQuickShow, QWidget* Parent) : QWidget(Parent) {
    auto* Column = new QVBoxLayout(this);
    Column->setSpacing(Space);
    Column->addStretch(2);
    QLabel* Icon = AddLabel(*Column, QStringLiteral("lblProgramIcon"), {});
    Icon->setPixmap(QApplication::windowIcon().pixmap(QSize(IconSide, IconSide)));
    AddLabel(*Column, QStringLiteral("lblProgram"), tr("NEB Slide Show"));
    for (const Beginning& Each : Beginnings) {
        auto* Button = new BigButton(tr(Each.Text), tr(Each.Words));
        Connect(*Button, Each, BeginQuickShow);
        Column->addWidget(Button, 0, Qt::AlignHCenter);
    }
    AddLabel(*Column, QStringLiteral("lblDrop"), {});
    Column->addStretch(3);
    ShowWhatWorks();
    QEvent Now(QEvent::PaletteChange);
    changeEvent(&Now);
}

void FirstDay::TakeFocus() {
    if (auto* First = findChild<BigButton*>()) First->setFocus();
}

void FirstDay::ShowWhatWorks() {
    for (BigButton* Each : findChildren<BigButton*>()) Each->setVisible(!ReadOnlyDB);
    findChild<QLabel*>(QStringLiteral("lblDrop"))
        ->setText(ReadOnlyDB ? tr("There are no albums here, and none can be made: their folder "
                                  "cannot be written.")
                             : tr("or drop a folder here"));
}

void FirstDay::changeEvent(QEvent* Event) {
    QWidget::changeEvent(Event);
    if (Event->type() != QEvent::PaletteChange && Event->type() != QEvent::FontChange) return;
    QFont Title = font();
    Title.setPointSizeF(Title.pointSizeF() * Larger);
    if (auto* Label = findChild<QLabel*>(QStringLiteral("lblProgram"))) Label->setFont(Title);
    const auto Buttons = findChildren<BigButton*>();
    for (qsizetype I = 0; I < Buttons.size(); ++I)
        Buttons[I]->setIcon(ThemeIcon(QString::fromLatin1(Beginnings[I].Icon), palette()));
}

BeginningsRow::BeginningsRow(const std::function<void()>& BeginQuickShow, QWidget* Parent)
    : QWidget(Parent) {
    auto* Row = new QHBoxLayout(this);
    Row->setContentsMargins({});
    for (const Beginning& Each : Beginnings) {
        auto* Button = new QToolButton;
        Connect(*Button, Each, BeginQuickShow);
        Button->setText(tr(Each.Text));
        Button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        Button->setFocusPolicy(Qt::StrongFocus);
        Button->setAutoRaise(true);
        Row->addWidget(Button);
    }
    Dress();
}

void BeginningsRow::Dress() {
    const int Side = fontMetrics().height();
    const auto Buttons = findChildren<QToolButton*>();
    for (qsizetype I = 0; I < Buttons.size(); ++I) {
        Buttons[I]->setIcon(ThemeIcon(QString::fromLatin1(Beginnings[I].Icon), palette()));
        Buttons[I]->setIconSize({Side, Side});
    }
}

void BeginningsRow::changeEvent(QEvent* Event) {
    QWidget::changeEvent(Event);
    if (Event->type() == QEvent::PaletteChange || Event->type() == QEvent::FontChange) Dress();
}

}  // namespace neb
