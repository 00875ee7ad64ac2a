#include "program/help/frmHelp.h"

#include <QKeyEvent>
#include <QListWidget>
#include <QPushButton>
#include <QShortcut>
#include <QTreeWidgetItemIterator>

#include "controls/grid/EmptyHint.h"
#include "settings/SettingKeys.h"
#include "settings/modNEBSlideShow.h"
#include "support/modFind.h"
#include "ui_frmHelp.h"
#include "windows/frame/modWindowState.h"

namespace neb {
namespace {

constexpr int PageRole = Qt::UserRole;
constexpr int ShareOfLists = 2, ShareOfPage = 5;

QListWidgetItem* AddLine(QListWidget& List, const QString& Text, const QString& Page) {
    auto* Item = new QListWidgetItem(Text, &List);
    Item->setData(PageRole, Page);
    return Item;
}

void ShowOnly(QListWidget& List, const QString& Words) {
    for (int I = 0; I < List.count(); ++I)
        List.item(I)->setHidden(!Words.trimmed().isEmpty() &&
                                !FoundIn(List.item(I)->text(), Words));
}

// The first line that is not hidden.
void EnterList(QListWidget& List) {
    for (int I = 0; I < List.count(); ++I)
        if (!List.item(I)->isHidden()) {
            List.setCurrentRow(I);
            return List.setFocus();
        }
}

}  // namespace

frmHelp::frmHelp() : mUi(std::make_unique<Ui::frmHelp>()) {
    mUi->setupUi(this);
    mUi->splMain->setStretchFactor(0, ShareOfLists);
    mUi->splMain->setStretchFactor(1, ShareOfPage);
    mUi->pnlFind->hide();
    SetEmptyHint(*mUi->lstFound,
                 tr("Pages that have all words of the field above are listed here."));
    for (QLineEdit* Field : {mUi->txtIndex, mUi->txtSearch}) Field->installEventFilter(this);
    ConnectTools();
    ConnectLists();
    AddKeys();
}

frmHelp::~frmHelp() = default;

void frmHelp::ConnectTools() {
    HelpView* const Text = mUi->txtHelp;
    const auto Join = [this](QPushButton* Button, auto Do) {
        connect(Button, &QPushButton::clicked, this, Do);
    };
    Join(mUi->cmdBack, [Text] { Text->backward(); });
    Join(mUi->cmdForward, [Text] { Text->forward(); });
    Join(mUi->cmdStart, [this] { ShowPage(QStringLiteral("contents")); });
    Join(mUi->cmdFind, [this] { FindOnPage(); });
    Join(mUi->cmdSmaller, [Text] { Text->SetZoom(Text->Zoom() - 1); });
    Join(mUi->cmdLarger, [Text] { Text->SetZoom(Text->Zoom() + 1); });
    Join(mUi->cmdFindNext, [this] { FindNext(false); });
    Join(mUi->cmdFindPrevious, [this] { FindNext(true); });
    connect(Text, &HelpView::backwardAvailable, mUi->cmdBack, &QWidget::setEnabled);
    connect(Text, &HelpView::forwardAvailable, mUi->cmdForward, &QWidget::setEnabled);
    connect(Text, &HelpView::sourceChanged, this, &frmHelp::PageTurned);
    mUi->cmdBack->setEnabled(false);
    mUi->cmdForward->setEnabled(false);
}

void frmHelp::ConnectLists() {
    const auto Open = [this](const auto* Item) { OpenFound(Item); };
    for (const QListWidget* List : {mUi->lstIndex, mUi->lstFound}) {
        connect(List, &QListWidget::itemActivated, this, Open);
        connect(List, &QListWidget::itemClicked, this, Open);
    }
    const auto Turn = [this](const QTreeWidgetItem* Item) {
        if (Item && !Item->data(0, PageRole).isNull()) ShowPage(Item->data(0, PageRole).toString());
    };
    connect(mUi->trvContents, &QTreeWidget::itemActivated, this, Turn);
    connect(mUi->trvContents, &QTreeWidget::itemClicked, this, Turn);
    connect(mUi->txtIndex, &QLineEdit::textChanged, this,
            [this](const QString& Words) { ShowOnly(*mUi->lstIndex, Words); });
    connect(mUi->txtSearch, &QLineEdit::textChanged, this, &frmHelp::Search);
    connect(mUi->tabParts, &QTabWidget::currentChanged, this, &frmHelp::EnterLists);
    connect(mUi->txtFind, &QLineEdit::returnPressed, this, [this] { FindNext(false); });
}

void frmHelp::AddKeys() {
    const auto Add = [this](const char* Keys, auto Do) {
        for (const QKeySequence& Each : QKeySequence::listFromString(QLatin1String(Keys)))
            connect(new QShortcut(Each, this, nullptr, nullptr, Qt::WidgetWithChildrenShortcut),
                    &QShortcut::activated, this, Do);
    };
    HelpView* const Text = mUi->txtHelp;
    Add("Alt+Left; Back", [Text] { Text->backward(); });
    Add("Alt+Right; Forward", [Text] { Text->forward(); });
    Add("Ctrl++; Ctrl+=", [Text] { Text->SetZoom(Text->Zoom() + 1); });
    Add("Ctrl+-", [Text] { Text->SetZoom(Text->Zoom() - 1); });
    Add("Ctrl+0", [Text] { Text->SetZoom(0); });
    Add("Ctrl+F", [this] { FindOnPage(); });
    Add("F3", [this] { FindNext(false); });
    Add("Shift+F3", [this] { FindNext(true); });
    Add("F6", [this] { ChangeSides(); });
}

void frmHelp::Form_Load() {
    mUi->txtHelp->SetZoom(ReadNumber(OpenMemory(), Setting::HelpZoom));
}

bool frmHelp::Form_Unload() {
    clsSettings Settings = OpenMemory();
    if (ReadNumber(Settings, Setting::HelpZoom) == mUi->txtHelp->Zoom()) return true;
    PutNumber(Settings, Setting::HelpZoom, mUi->txtHelp->Zoom());
    SaveMemory(Settings);
    return true;
}

// Where a place of a page is depends on how wide the lines are: known once the window stands.
void frmHelp::showEvent(QShowEvent* Event) {
    Form::showEvent(Event);
    const QString Place = mPlace.section(u'#', 1);
    if (Place.isEmpty()) return;
    QMetaObject::invokeMethod(
        this, [this, Place] { mUi->txtHelp->scrollToAnchor(Place); }, Qt::QueuedConnection);
}

bool frmHelp::IsInLists() const {
    return mUi->tabParts->isAncestorOf(focusWidget());
}

void frmHelp::ChangeSides() {
    IsInLists() ? mUi->txtHelp->setFocus() : EnterLists();
}

void frmHelp::EnterLists() {
    const QList<QWidget*> First{mUi->trvContents, mUi->txtIndex, mUi->txtSearch};
    First[mUi->tabParts->currentIndex()]->setFocus();
}

void frmHelp::keyPressEvent(QKeyEvent* Event) {
    if (Event->key() != Qt::Key_Escape)
        Form::keyPressEvent(Event);
    else if (mUi->pnlFind->isVisible())
        CloseFinding();
    else
        Unload();
}

// From a field down into the list below it; Enter opens its first line.
bool frmHelp::eventFilter(QObject* Watched, QEvent* Event) {
    if (Event->type() != QEvent::KeyPress) return Form::eventFilter(Watched, Event);
    const int Key = static_cast<const QKeyEvent*>(Event)->key();
    QListWidget& List = Watched == mUi->txtIndex ? *mUi->lstIndex : *mUi->lstFound;
    const bool Opens = Key == Qt::Key_Return || Key == Qt::Key_Enter;
    if (!Opens && Key != Qt::Key_Down) return Form::eventFilter(Watched, Event);
    EnterList(List);
    if (Opens && List.hasFocus()) OpenFound(List.currentItem());
    return true;
}

void frmHelp::SetTopic(const QString& HelpFile, const QString& Page) {
    if (mHelpFile != HelpFile) {
        mBook = HelpBook(HelpFile, tr("en", "the language of the help: the folder of its pages"));
        mHelpFile = HelpFile;
        FillContents();
        FillIndex();
    }
    ShowPage(Page);
    const bool IsIndex = Page == u"index";
    mUi->tabParts->setCurrentWidget(IsIndex ? mUi->tabIndex : mUi->tabContents);
    (IsIndex ? static_cast<QWidget*>(mUi->txtIndex) : mUi->txtHelp)->setFocus();
}

QString frmHelp::Page() const {
    return mBook.PageAt(mUi->txtHelp->source().toLocalFile());
}

void frmHelp::FillContents() {
    mUi->trvContents->clear();
    for (const HelpSection& Section : mBook.Contents()) {
        auto* Head = new QTreeWidgetItem(mUi->trvContents, {Section.Title});
        for (const HelpLink& Link : Section.Links)
            (new QTreeWidgetItem(Head, {Link.Title}))->setData(0, PageRole, Link.Page);
    }
    mUi->trvContents->expandAll();
}

void frmHelp::FillIndex() {
    mUi->lstIndex->clear();
    for (const HelpSection& Letter : mBook.Index())
        for (const HelpLink& Link : Letter.Links) AddLine(*mUi->lstIndex, Link.Title, Link.Page);
}

void frmHelp::ShowPage(const QString& Page) {
    mPlace = Page;
    const QString Anchor = Page.section(u'#', 1);
    mUi->txtHelp->Show(mBook.FileOf(Page) + (Anchor.isEmpty() ? QString() : u'#' + Anchor));
}

void frmHelp::OpenFound(const QListWidgetItem* Item) {
    if (!Item) return;
    ShowPage(Item->data(PageRole).toString());
    if (Item->listWidget() == mUi->lstFound)
        mUi->txtHelp->Mark(mUi->txtSearch->text().split(u' ', Qt::SkipEmptyParts));
}

// The page that is read is the current one of the contents, whichever way led to it.
void frmHelp::PageTurned(const QUrl& Source) {
    const QString Turned = mBook.PageAt(Source.toLocalFile());
    for (QTreeWidgetItemIterator At(mUi->trvContents); *At; ++At)
        if ((*At)->data(0, PageRole).toString() == Turned)
            return mUi->trvContents->setCurrentItem(*At);
    mUi->trvContents->setCurrentItem(nullptr);
}

void frmHelp::Search() {
    mUi->lstFound->clear();
    for (const HelpFind& Each : mBook.Find(mUi->txtSearch->text()))
        AddLine(*mUi->lstFound, Each.Link.Title + u'\n' + Each.Excerpt, Each.Link.Page);
}

void frmHelp::FindOnPage() {
    mUi->pnlFind->show();
    mUi->txtFind->setFocus();
    mUi->txtFind->selectAll();
}

void frmHelp::CloseFinding() {
    mUi->pnlFind->hide();
    mUi->txtHelp->setFocus();
}

void frmHelp::FindNext(bool Backward) {
    if (mUi->txtFind->text().isEmpty()) return FindOnPage();
    const bool Found = mUi->txtHelp->FindNext(mUi->txtFind->text(), Backward);
    mUi->lblFind->setText(Found ? QString() : tr("Not on this page."));
}

}  // namespace neb
