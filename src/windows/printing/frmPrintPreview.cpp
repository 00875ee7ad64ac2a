#include "windows/printing/frmPrintPreview.h"

#include <QKeyEvent>
#include <QMenuBar>
#include <QScreen>

#include "controls/fields/Icons.h"
#include "controls/fields/MenuIcon.h"
#include "controls/forms/modTwips.h"
#include "support/modCharacters.h"
#include "ui_frmPrintPreview.h"
#include "windows/frame/modWindowState.h"
#include "windows/printing/PrintView.h"

namespace neb {
namespace {

constexpr QSize UsualLeast(900, 700);
constexpr double ShareOfScreen = 0.9;
constexpr int ZoomAtLoad = 2;  // its place in the list

// Until the user has chosen a size, pages have most of the screen.
WindowMemory MemoryOn(const QScreen& Screen) {
    const QSize Free = Screen.availableSize();
    const QSize Size =
        (QSizeF(Free) * ShareOfScreen).toSize().expandedTo(UsualLeast.boundedTo(Free));
    return {QStringLiteral("frmPrintPreview"), ToTwips(Size.height()), ToTwips(Size.width())};
}

// The name of a view is no hint of what to choose: it is what is chosen.
void ShowNamesInFull(QComboBox& Box) {
    const QColor Text = Box.palette().color(QPalette::ButtonText);
    if (Box.palette().color(QPalette::PlaceholderText) == Text) return;
    QPalette Colours;
    Colours.setColor(QPalette::PlaceholderText, Text);
    Box.setPalette(Colours);
}

}  // namespace

frmPrintPreview::frmPrintPreview() : mUi(std::make_unique<Ui::frmPrintPreview>()) {
    mUi->setupUi(this);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    mUi->lblNotice->setMinimumHeight(fontMetrics().height());  // its place is kept
    ShowNamesInFull(*mUi->cboZoom);
    MakeMenu();
    ConnectButtons();
    ShowIcons();
}

frmPrintPreview::~frmPrintPreview() = default;

PrintView& frmPrintPreview::VSPrinter1() {
    return *mUi->VSPrinter1;
}

void frmPrintPreview::ShowDocument(std::shared_ptr<const PrintDocument> Document) {
    const QString Title = Document ? Document->Title() : QString();
    setWindowTitle(Title.isEmpty() ? tr("Print Preview")
                                   : tr("Print Preview - %1").arg(InOwnDirection(Title)));
    mUi->VSPrinter1->SetDocument(std::move(Document));
}

bool frmPrintPreview::ShowPreview() {
    mPrinted = false;
    ShowModal();
    return mPrinted;
}

void frmPrintPreview::Form_Load() {
    for (const int Each : PreviewZooms) mUi->cboZoom->addItem(QString::number(Each));
    mUi->cboZoom->setCurrentIndex(ZoomAtLoad);
    mUi->lblCurPage->setText(QStringLiteral("1"));
    FollowPage();
    RestoreWindow(*this, MemoryOn(*screen()));
    mUi->VSPrinter1->setFocus();
}

void frmPrintPreview::KeepSize() {
    SaveWindow(*this, MemoryOn(*screen()));
}

void frmPrintPreview::MakeMenu() {
    auto* Bar = new QMenuBar(this);
    QMenu* File = Bar->addMenu(tr("&File"));
    QMenu* View = Bar->addMenu(tr("&View", "a menu"));
    File->setObjectName(QStringLiteral("mnuFile"));
    View->setObjectName(QStringLiteral("mnuView"));
    File->addActions({mUi->mnuOpen, mUi->mnuSave, mUi->mnuPrint, mUi->mnuMail});
    File->addSeparator();
    File->addAction(mUi->mnuExit);
    View->addActions(mUi->VSPrinter1->actions());
    mUi->lytMain->setMenuBar(Bar);
}

void frmPrintPreview::ConnectButtons() {
    On(mUi->cmdPrint, &QPushButton::clicked, &frmPrintPreview::PrintNow);
    On(mUi->cmdSave, &QPushButton::clicked, &frmPrintPreview::Save);
    On(mUi->cmdLoad, &QPushButton::clicked, &frmPrintPreview::LoadDocument);
    On(mUi->cmdEmail, &QPushButton::clicked, &frmPrintPreview::Mail);
    On(mUi->cmdExit, &QPushButton::clicked, &frmPrintPreview::Close);
    On(mUi->mnuPrint, &QAction::triggered, &frmPrintPreview::PrintByDialog);
    On(mUi->mnuSave, &QAction::triggered, &frmPrintPreview::Save);
    On(mUi->mnuOpen, &QAction::triggered, &frmPrintPreview::LoadDocument);
    On(mUi->mnuMail, &QAction::triggered, &frmPrintPreview::Mail);
    On(mUi->mnuExit, &QAction::triggered, &frmPrintPreview::Close);
    On(mUi->cmdMoveFirst, &QPushButton::clicked, &frmPrintPreview::MoveFirst);
    On(mUi->cmdPrevPage, &QPushButton::clicked, &frmPrintPreview::PrevPage);
    On(mUi->cmdNextPage, &QPushButton::clicked, &frmPrintPreview::NextPage);
    On(mUi->cmdMoveLast, &QPushButton::clicked, &frmPrintPreview::MoveLast);
    On(mUi->cboZoom, &QComboBox::currentIndexChanged, &frmPrintPreview::ZoomChosen);
    connect(mUi->VSPrinter1, &PrintView::EndOfDocument, this, &frmPrintPreview::EndOfDocument);
    connect(mUi->VSPrinter1, &PrintView::PageChanged, this, &frmPrintPreview::FollowPage);
    connect(mUi->VSPrinter1, &PrintView::ViewChanged, this, &frmPrintPreview::FollowView);
    connect(this, &QDialog::finished, this, &frmPrintPreview::KeepSize);
}

void frmPrintPreview::ShowIcons() {
    const struct {
        QPushButton* Button;
        QAction* Entry;
        const char* Icon;
    } Icons[] = {
        {mUi->cmdPrint, mUi->mnuPrint, "print"},
        {mUi->cmdSave, mUi->mnuSave, "save"},
        {mUi->cmdLoad, mUi->mnuOpen, "open"},
        {mUi->cmdEmail, mUi->mnuMail, "mail"},
        {mUi->cmdExit, mUi->mnuExit, "exit"},
        {mUi->cmdMoveFirst, nullptr, "move-left-all"},
        {mUi->cmdPrevPage, nullptr, "move-left-one"},
        {mUi->cmdNextPage, nullptr, "move-right-one"},
        {mUi->cmdMoveLast, nullptr, "move-right-all"},
    };
    for (const auto& Each : Icons) {
        const QIcon Icon = ThemeIcon(QLatin1String(Each.Icon), palette());
        Each.Button->setIcon(Icon);
        if (Each.Entry) Each.Entry->setIcon(MenuIcon(Icon, palette()));
    }
}

void frmPrintPreview::changeEvent(QEvent* Event) {
    Form::changeEvent(Event);
    if (Event->type() != QEvent::PaletteChange) return;
    ShowNamesInFull(*mUi->cboZoom);
    ShowIcons();
}

// No button is pressed by Enter but the one that has the focus: a page that is looked at must not
// be printed by a key pressed once too often.
void frmPrintPreview::keyPressEvent(QKeyEvent* Event) {
    auto* Button = qobject_cast<QPushButton*>(focusWidget());
    const bool IsEnter = Event->key() == Qt::Key_Return || Event->key() == Qt::Key_Enter;
    if (Button && IsEnter)
        Button->click();
    else
        Form::keyPressEvent(Event);
}

void frmPrintPreview::EndOfDocument() {
    const QString Total = QString::number(mUi->VSPrinter1->PageCount());
    mUi->lblTotalPages->setText(Total);
    // the buttons stay where they are while pages are turned
    mUi->lblCurPage->setMinimumWidth(fontMetrics().horizontalAdvance(Total));
    FollowPage();
}

// A button that can do nothing more leaves the focus to the pages.
void frmPrintPreview::FollowPage() {
    const PrintView& View = *mUi->VSPrinter1;
    mUi->lblCurPage->setText(QString::number(View.PreviewPage()));
    const bool Back = View.PreviewPage() >= 2, On = View.PreviewPage() < View.PageCount();
    for (QPushButton* Each :
         {mUi->cmdMoveFirst, mUi->cmdPrevPage, mUi->cmdNextPage, mUi->cmdMoveLast}) {
        const bool Acts = Each == mUi->cmdMoveFirst || Each == mUi->cmdPrevPage ? Back : On;
        if (!Acts && Each->hasFocus()) mUi->VSPrinter1->setFocus();
        Each->setEnabled(Acts);
    }
}

// A zoom that is none of the list, and any other view, is named in the place of an entry.
void frmPrintPreview::FollowView() {
    const PrintView& View = *mUi->VSPrinter1;
    const bool ByZoom = View.View() == PageView::ByZoom;
    const QString Name = ByZoom ? QString::number(View.Zoom()) : View.ViewName();
    const QSignalBlocker Quiet(mUi->cboZoom);
    mUi->cboZoom->setPlaceholderText(Name);
    mUi->cboZoom->setCurrentIndex(ByZoom ? mUi->cboZoom->findText(Name) : -1);
}

void frmPrintPreview::ZoomChosen() {
    if (mUi->cboZoom->currentIndex() < 0) return;
    mUi->VSPrinter1->SetZoom(mUi->cboZoom->currentText().toDouble());
}

void frmPrintPreview::MoveFirst() {
    if (mUi->VSPrinter1->PreviewPage() >= 2) mUi->VSPrinter1->TurnTo(1);
}

void frmPrintPreview::PrevPage() {
    const int Page = mUi->VSPrinter1->PreviewPage();
    if (Page >= 2) mUi->VSPrinter1->TurnTo(Page - 1);
}

void frmPrintPreview::NextPage() {
    const int Page = mUi->VSPrinter1->PreviewPage();
    if (Page < mUi->VSPrinter1->PageCount()) mUi->VSPrinter1->TurnTo(Page + 1);
}

void frmPrintPreview::MoveLast() {
    const int Count = mUi->VSPrinter1->PageCount();
    if (mUi->VSPrinter1->PreviewPage() < Count) mUi->VSPrinter1->TurnTo(Count);
}

}  // namespace neb
