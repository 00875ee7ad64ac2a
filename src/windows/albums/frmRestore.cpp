#include "windows/albums/frmRestore.h"

#include <QHeaderView>
#include <QScopeGuard>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <algorithm>
#include <functional>

#include "controls/fields/Icons.h"
#include "controls/forms/ScreenPointer.h"
#include "controls/forms/Tell.h"
#include "controls/grid/EmptyHint.h"
#include "db/recovery/StateDifferences.h"
#include "db/recovery/modRestore.h"
#include "pictures/PictureFacts.h"
#include "settings/modNEBSlideShow.h"
#include "support/ReasonOf.h"
#include "support/Services.h"
#include "support/Texts.h"
#include "support/work/WorkAside.h"
#include "ui_frmRestore.h"
#include "windows/frame/modNotice.h"
#include "windows/lists/clsImageBuffer.h"

namespace neb {
namespace {

enum Column { ColSaved, ColAlbums, ColSlides, ColShows, ColCount };

QString TextOfTime(const Generation& Each) {
    return TimeText(QDateTime::fromMSecsSinceEpoch(Each.Saved));
}

QTreeWidgetItem* NewItem(const Generation& Each) {
    auto* Item =
        new QTreeWidgetItem({TextOfTime(Each), QString::number(Each.Albums),
                             QString::number(Each.Slides), QString::number(Each.SlideShows)});
    for (int Col = ColAlbums; Col < ColCount; ++Col)
        Item->setTextAlignment(Col, Qt::AlignRight | Qt::AlignVCenter);
    return Item;
}

QString MissingText(const QStringList& Missing) {
    if (Missing.isEmpty()) return {};
    return Missing.size() == 1 ? QObject::tr("1 picture or sound of them is missing by now.")
                               : QObject::tr("%1 pictures or sounds of them are missing by now.")
                                     .arg(Missing.size());
}

QString Behind(const QString& Text) {
    return Text.isEmpty() ? QString() : QStringLiteral("\n\n") + Text;
}

// What is to be said of a state before it comes back.
struct Looked {
    std::unique_ptr<clsDBEngine> Then;  // none: it is damaged or gone
    QStringList Differences;
    QStringList Missing;

    QString Text() const {
        if (!Then) return QObject::tr("The file of these albums is damaged or gone.");
        const QString Gone = MissingText(Missing);
        return Differences.join(u'\n') +
               (Gone.isEmpty() ? Gone : Behind(Gone) + u'\n' + Missing.join(u'\n'));
    }
};

Looked LookInto(const Generation& Which, const clsDBEngine& Now) {
    Looked Found{OpenGeneration(Which, Now.DBPath()), {}, {}};
    if (!Found.Then) return Found;
    Found.Differences = Compare(*Found.Then, Now).Sentences();
    Found.Missing = MissingFiles(*Found.Then);
    return Found;
}

std::shared_ptr<Looked> LookAside(const Generation& Which) {
    const PointerScope Working(Pointer::Hourglass);
    return FinishAside([&Which] { return std::make_shared<Looked>(LookInto(Which, *DBEngine)); })
        .get();
}

// What goes wrong in a window is told before the box, and it stays.
bool Agreed(const std::function<bool()>& Does) {
    try {
        return Does();
    } catch (const std::exception& Problem) {
        MsgBox(ReasonOf(Problem), QObject::tr("Operation Failed"), BoxIcon::Critical);
        return false;
    }
}

// The numbers of the albums whose thumbnails may be held.
std::vector<std::int32_t> NumbersOfAlbums() {
    std::vector<std::int32_t> Numbers;
    for (const auto& Album : DBEngine->Albums) Numbers.push_back(Album->AlbumID);
    return Numbers;
}

}  // namespace

frmRestore::frmRestore() : mUi(std::make_unique<Ui::frmRestore>()) {
    mUi->setupUi(this);
    mUi->cmdRestore->setIcon(ThemeIcon(QStringLiteral("import")));
    mUi->cmdClose->setIcon(ThemeIcon(QStringLiteral("cancel")));
    SetUpTree();
    On(mUi->cmdRestore, &QPushButton::clicked, &frmRestore::Restore);
    On(mUi->cmdClose, &QPushButton::clicked, &frmRestore::Close);
    On(mUi->trvStates, &QTreeWidget::itemSelectionChanged, &frmRestore::ShowChosen);
}

frmRestore::~frmRestore() = default;

void frmRestore::SetUpTree() {
    QTreeWidget& Tree = *mUi->trvStates;
    SetEmptyHint(Tree, tr("Earlier albums are listed here once the program has kept some."));
    Tree.setColumnCount(ColCount);
    Tree.setHeaderLabels({tr("Saved"), tr("Albums"), tr("Slides"), tr("Slide shows")});
    for (int Col = ColAlbums; Col < ColCount; ++Col) {
        Tree.headerItem()->setTextAlignment(Col, Qt::AlignRight | Qt::AlignVCenter);
        Tree.header()->setSectionResizeMode(Col, QHeaderView::ResizeToContents);
    }
    Tree.header()->setStretchLastSection(false);
    Tree.header()->setSectionResizeMode(ColSaved, QHeaderView::Stretch);
}

void frmRestore::Form_Load() {
    ListStates();
}

void frmRestore::ListStates() {
    {
        const QSignalBlocker Quiet(mUi->trvStates);
        const PointerScope Working(Pointer::Hourglass);
        mStates = FinishAside([] { return ListGenerations(DBEngine->DBPath()); }).get();
        mUi->trvStates->clear();
        for (const Generation& Each : mStates) mUi->trvStates->addTopLevelItem(NewItem(Each));
        if (!mStates.empty()) mUi->trvStates->setCurrentItem(mUi->trvStates->topLevelItem(0));
    }
    ShowChosen();
}

const Generation* frmRestore::Chosen() const {
    const QList<QTreeWidgetItem*> Rows = mUi->trvStates->selectedItems();
    if (Rows.isEmpty()) return nullptr;
    return &mStates[static_cast<size_t>(mUi->trvStates->indexOfTopLevelItem(Rows[0]))];
}

void frmRestore::ShowChosen() {
    const QScopedValueRollback<bool> Working(mWorking, true);
    const Generation* const Which = Chosen();
    mUi->cmdRestore->setEnabled(Which && !ReadOnlyDB);
    if (Which) return mUi->txtDifferences->setPlainText(LookAside(*Which)->Text());
    mUi->txtDifferences->setPlainText(
        mStates.empty() ? tr("There are no earlier albums yet. Whenever the program ends and "
                             "something has been changed, the albums of before are kept.")
                        : tr("Choose when the albums were saved that you want back."));
}

void frmRestore::Restore() {
    const Generation* const There = Chosen();
    if (!There) return;
    const Generation Which = *There;
    const std::shared_ptr<Looked> Found = LookAside(Which);
    if (!Found->Then) return ListStates();
    if (!IsSure(Which, Found->Missing) || !CloseOthers()) return;
    try {
        Carry(*Found->Then);
    } catch (const std::exception& Problem) {
        const bool Waits = ReadJournal(DBEngine->DBPath()) == JournalState::Whole;
        MsgBox((Waits ? tr("The albums are back, but they are not all written yet. The end of the "
                           "program, or its next start, will do it.\n\n%1")
                      : tr("The albums could not be restored. Nothing has changed.\n\n%1"))
                   .arg(ReasonOf(Problem)),
               tr("Operation Failed"), BoxIcon::Critical);
        return ListStates();
    }
    ListStates();
    TellDone(Which, Found->Missing);
}

bool frmRestore::IsSure(const Generation& Which, const QStringList& Missing) {
    return ShowBox({.Text = tr("Do you want all albums and slide shows back as they were saved on "
                               "%1?\nThose of now are kept among the earlier ones. All windows are "
                               "closed first.")
                                .arg(TextOfTime(Which)) +
                            Behind(MissingText(Missing)),
                    .Title = tr("Restore Confirmation"),
                    .Icon = BoxIcon::Question,
                    .Buttons = BoxButtons::YesNo,
                    .Default = BoxAnswer::No,
                    .Details = Missing.join(u'\n')}) == BoxAnswer::Yes;
}

// They show albums that will be others; each asks by itself what becomes of the work in it. All are
// asked before the first of them goes: who keeps one keeps them all.
bool frmRestore::CloseOthers() {
    auto Others = LoadedForms();
    std::erase_if(Others, [this](const auto& Window) { return Window.get() == this; });
    const auto Agrees = [](const auto& Window) {
        return Agreed([&] { return Window->QueryUnload(); });
    };
    const auto Goes = [](const auto& Window) {
        return Agreed([&] { return Window->UnloadAsked(); });
    };
    if (std::ranges::all_of(Others, Agrees) && std::ranges::all_of(Others, Goes)) return true;
    ShowNotice(tr("Nothing was restored: a window stayed open."));
    return false;
}

void frmRestore::Carry(clsDBEngine& Then) {
    const QScopedValueRollback<bool> Working(mWorking, true);
    const PointerScope Hourglass(Pointer::Hourglass);
    if (ImageBuffer)
        for (const std::int32_t AlbumID : NumbersOfAlbums()) ImageBuffer->ClearAlbum(AlbumID);
    setEnabled(false);
    const auto Usable = qScopeGuard([this] { setEnabled(true); });
    FinishAside([&Then] { RestoreState(*DBEngine, Then); }).get();
}

void frmRestore::TellDone(const Generation& Which, const QStringList& Missing) {
    ShowBox({.Text = tr("The albums are as they were saved on %1.").arg(TextOfTime(Which)) +
                     Behind(MissingText(Missing)),
             .Title = tr("Operation Completed"),
             .Icon = BoxIcon::Information,
             .Details = Missing.join(u'\n')});
}

}  // namespace neb
