#include "windows/slides/FindRow.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <algorithm>

#include "controls/grid/FlexGrid.h"
#include "support/Grouped.h"
#include "windows/albums/modAlbumNames.h"

namespace neb {
namespace {

enum Line { LineFind, LineReplace, LineSaid };
enum Column { ColLabel, ColField, ColFirst, ColSecond };

}  // namespace

FindRow::FindRow(QWidget* Parent) : QWidget(Parent) {
    auto* Lines = new QGridLayout(this);
    Lines->setContentsMargins(0, 0, 0, 0);
    AddFinding(*Lines);
    AddReplacing(*Lines);
    mFound = new QLabel;
    mFound->setObjectName(QStringLiteral("lblFound"));
    mFound->setTextFormat(Qt::PlainText);
    mFound->setWordWrap(true);
    Lines->addWidget(mFound, LineSaid, ColField);
    Lines->setColumnStretch(ColField, 1);
    setTabOrder(mFind, mReplace);
    connect(mFind, &QLineEdit::textChanged, this, &FindRow::WordsTyped);
    connect(mExact, &QCheckBox::toggled, this, &FindRow::WordsTyped);
    hide();
}

void FindRow::AddFinding(QGridLayout& Lines) {
    mFind = AddField(Lines, LineFind, tr("Find"), QStringLiteral("txtFind"));
    mFind->setToolTip(tr("Words to look for in the captions (Enter: the next one, Esc: close)"));
    mFinding = {NewButton(QStringLiteral("cmdFindNext"), tr("Find Ne&xt"),
                          tr("Go to the next caption that holds it (F3)"), &FindRow::FindNext)};
    Lines.addWidget(mFinding.front(), LineFind, ColFirst, 1, -1);
    mExact = new QCheckBox(tr("&Match case and accents"));
    mExact->setObjectName(QStringLiteral("chkExact"));
    mExact->setToolTip(tr("Off: garden finds Garden, and cafe finds café"));
    Lines.addWidget(mExact, LineSaid, ColFirst, 1, -1);
}

void FindRow::AddReplacing(QGridLayout& Lines) {
    mReplace = AddField(Lines, LineReplace, tr("Replace with"), QStringLiteral("txtReplace"));
    mReplace->setToolTip(tr("What comes in its place; empty: it is taken out"));
    KeepQuotesClean(*mReplace);
    mReplacing = {NewButton(QStringLiteral("cmdReplace"), tr("&Replace"),
                            tr("Replace it in this caption and go to the next"), &FindRow::Replace),
                  NewButton(QStringLiteral("cmdReplaceAll"), tr("Replace All"),
                            tr("Replace it in all captions of the list (Ctrl+Alt+Enter)"),
                            &FindRow::ReplaceAll)};
    mReplacing.back()->setShortcut(QKeySequence(Qt::CTRL | Qt::ALT | Qt::Key_Return));
    Lines.addWidget(mReplacing.front(), LineReplace, ColFirst);
    Lines.addWidget(mReplacing.back(), LineReplace, ColSecond);
}

QLineEdit* FindRow::AddField(QGridLayout& Lines, int Line, const QString& Label,
                             const QString& Name) {
    auto* Words = new QLabel(Label);
    auto* Field = new QLineEdit;
    Field->setObjectName(Name);
    Field->setAccessibleName(Label);
    Words->setBuddy(Field);
    Lines.addWidget(Words, Line, ColLabel);
    Lines.addWidget(Field, Line, ColField);
    return Field;
}

QPushButton* FindRow::NewButton(const QString& Name, const QString& Text, const QString& Tip,
                                Action Does) {
    auto* Button = new QPushButton(Text);
    Button->setObjectName(Name);
    Button->setAccessibleName(QString(Text).remove(u'&'));
    Button->setToolTip(Tip);
    Button->setAutoDefault(false);
    connect(Button, &QPushButton::clicked, this, [this, Does] { Do(Does); });
    return Button;
}

void FindRow::SearchIn(const Place& Where, std::function<void(std::function<void()>)> Run) {
    mPlace = Where;
    mRun = std::move(Run);
    mReplace->setEnabled(Where.MayReplace);
    WordsTyped();
}

void FindRow::Do(Action What) {
    mRun([this, What] { (this->*What)(); });
}

void FindRow::Open(bool Replacing) {
    show();
    QLineEdit* Field =
        Replacing && mPlace.MayReplace && !mFind->text().isEmpty() ? mReplace : mFind;
    Field->setFocus();
    Field->selectAll();
}

void FindRow::Close() {
    hide();
    Q_EMIT Left();
}

void FindRow::WordsTyped() {
    mLastKey.clear();
    mFound->clear();
    const bool Words = !mFind->text().isEmpty();
    for (QPushButton* Each : mFinding) Each->setEnabled(Words);
    for (QPushButton* Each : mReplacing) Each->setEnabled(Words && mPlace.MayReplace);
}

std::vector<TextPart> FindRow::PartsIn(int Row) const {
    return PartsLike(mPlace.Grid->TextMatrix(Row, mPlace.Col), mFind->text(),
                     mExact->isChecked() ? Likeness::Exact : Likeness::Alike);
}

std::vector<int> FindRow::RowsFound() const {
    std::vector<int> Rows;
    for (int Row = 0; Row < mPlace.Grid->Rows(); ++Row)
        if (!PartsIn(Row).empty()) Rows.push_back(Row);
    return Rows;
}

// The row on which the list stands counts, unless it was found just before.
void FindRow::FindNext() {
    if (isHidden() || mFind->text().isEmpty()) return Open(false);
    const std::vector<int> Rows = RowsFound();
    if (Rows.empty()) return mFound->setText(tr("No caption holds it."));
    const int Now = mPlace.Grid->Row();
    const bool IsLast =
        Now >= 0 && !mLastKey.isEmpty() && mPlace.Grid->TextMatrix(Now, mPlace.KeyCol) == mLastKey;
    auto Next = std::ranges::lower_bound(Rows, IsLast ? Now + 1 : Now);
    const bool Again = Next == Rows.end();
    if (Again) Next = Rows.begin();
    GoTo(*Next);
    const QString Words =
        Again ? tr("Caption %1 of %2, from the top again") : tr("Caption %1 of %2");
    mFound->setText(Words.arg(Grouped(Next - Rows.begin() + 1), Grouped(std::ssize(Rows))));
}

void FindRow::GoTo(int Row) {
    mPlace.Grid->SetRow(Row);
    mPlace.Grid->EnsureRowVisible(Row);
    mLastKey = mPlace.Grid->TextMatrix(Row, mPlace.KeyCol);
}

// False where it is not there, or there would be no room for it.
bool FindRow::ReplaceIn(int Row, int& Times) {
    const std::vector<TextPart> Parts = PartsIn(Row);
    const QString Made =
        WithPartsReplaced(mPlace.Grid->TextMatrix(Row, mPlace.Col), Parts, mReplace->text());
    if (Parts.empty() || Made.size() > mPlace.Longest) return false;
    mPlace.Grid->SetTextMatrix(Row, mPlace.Col, Made);
    Times += static_cast<int>(Parts.size());
    return true;
}

// What has just come in is not looked at again.
void FindRow::Replace() {
    const int Row = mPlace.Grid->Row();
    int Times = 0;
    if (Row >= 0 && ReplaceIn(Row, Times)) {
        mLastKey = mPlace.Grid->TextMatrix(Row, mPlace.KeyCol);
        Q_EMIT Replaced({Row});
    }
    FindNext();
}

void FindRow::ReplaceAll() {
    std::vector<int> Changed;
    int Times = 0;
    const std::vector<int> Rows = RowsFound();
    mPlace.Grid->SetRedraw(false);
    for (int Row : Rows)
        if (ReplaceIn(Row, Times)) Changed.push_back(Row);
    mPlace.Grid->SetRedraw(true);
    QString Told = Rows.empty() ? tr("No caption holds it.")
                                : tr("Replaced %1 times, in %2 captions.")
                                      .arg(Grouped(Times), Grouped(std::ssize(Changed)));
    if (Changed.size() < Rows.size())
        Told += tr(" %1 would have become too long and stay.")
                    .arg(Grouped(std::ssize(Rows) - std::ssize(Changed)));
    mFound->setText(Told);
    if (!Changed.empty()) Q_EMIT Replaced(Changed);
}

// Enter here is no Save.
void FindRow::keyPressEvent(QKeyEvent* Event) {
    const bool Enter = Event->key() == Qt::Key_Return || Event->key() == Qt::Key_Enter;
    if (Event->key() == Qt::Key_Escape) return Close();
    if (!Enter) return QWidget::keyPressEvent(Event);
    for (QPushButton* Each : mFinding + mReplacing)
        if (Each->hasFocus()) return Each->click();
    if (mFind->text().isEmpty()) return;
    Do(mReplace->hasFocus() && mPlace.MayReplace ? &FindRow::Replace : &FindRow::FindNext);
}

}  // namespace neb
