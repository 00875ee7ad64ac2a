#include "controls/directories/DirectoryProposals.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QLineEdit>
#include <QStringListModel>

#include "support/files/modHostFilesWalk.h"
#include "support/modFUFL.h"

namespace neb {
namespace {

constexpr int ProposalLookMs = 10;

}  // namespace

DirectoryProposals::DirectoryProposals(QLineEdit* Field)
    : QObject(Field), mField(Field), mModel(new QStringListModel(this)) {
    auto* Completer = new QCompleter(mModel, Field);
    Completer->setCaseSensitivity(Qt::CaseInsensitive);
    Field->setCompleter(Completer);
    connect(Field, &QLineEdit::textEdited, this, &DirectoryProposals::Typed);
    connect(&mLook, &QTimer::timeout, this, &DirectoryProposals::LookAtNames);
}

void DirectoryProposals::End() {
    mBeginning.clear();
    mNames.reset();
    mLook.stop();
    mModel->setStringList({});
    mField->completer()->popup()->hide();
}

void DirectoryProposals::Typed(const QString& Text) {
    const QString Beginning = GetFilePath(Text);
    if (Beginning == mBeginning) return;
    mBeginning = Beginning;
    mModel->setStringList({});
    mNames.reset();
    if (!Beginning.startsWith(u'/')) return;
    mNames =
        std::make_unique<AheadQueue<QString, QStringList>>(std::vector{Beginning}, &ListFolders);
    mLook.start(ProposalLookMs);
}

void DirectoryProposals::LookAtNames() {
    if (!mNames || !mNames->Ready()) return;
    QStringList Paths = mNames->Take();
    mNames.reset();
    mLook.stop();
    for (QString& Path : Paths) Path.prepend(mBeginning);
    mModel->setStringList(Paths);
    if (!mField->hasFocus() || Paths.isEmpty()) return;
    mField->completer()->setCompletionPrefix(mField->text());
    mField->completer()->complete();
}

}  // namespace neb
