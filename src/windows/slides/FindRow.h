// The row of fields by which words are found, and replaced, in a column of a list. The bulk slide
// manager has one for the captions. It changes cells of the list and nothing else: what becomes of
// them is for the window.
#pragma once

#include <QWidget>
#include <functional>

#include "windows/slides/FindParts.h"

QT_BEGIN_NAMESPACE
class QCheckBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;
QT_END_NAMESPACE

namespace neb {

class FlexGrid;

class FindRow : public QWidget {
    Q_OBJECT

  public:
    explicit FindRow(QWidget* Parent = nullptr);

    struct Place {
        FlexGrid* Grid;
        int Col, KeyCol;    // where the words are, and what tells one row from another
        bool MayReplace;    // false: only found
        qsizetype Longest;  // a text that would become longer is left as it is
    };
    // Run: everything is done through it, as a command of the window.
    void SearchIn(const Place& Where, std::function<void(std::function<void()>)> Run);

    // Comes up, with the words that were there, in the field for what is sought or for its
    // replacement.
    void Open(bool Replacing);
    // Goes to the next row that holds it, from the top again behind the last. Without words: opens.
    void FindNext();
    void Close();

  Q_SIGNALS:
    void Replaced(const std::vector<int>& Rows);  // their texts are others now
    void Left();                                  // gone, and with it the focus

  protected:
    void keyPressEvent(QKeyEvent* Event) override;

  private:
    using Action = void (FindRow::*)();
    void AddFinding(QGridLayout& Lines);
    void AddReplacing(QGridLayout& Lines);
    QLineEdit* AddField(QGridLayout& Lines, int Line, const QString& Label, const QString& Name);
    QPushButton* NewButton(const QString& Name, const QString& Text, const QString& Tip,
                           Action Does);
    void Do(Action What);
    void Replace();
    void ReplaceAll();
    void WordsTyped();

    std::vector<TextPart> PartsIn(int Row) const;
    std::vector<int> RowsFound() const;
    bool ReplaceIn(int Row, int& Times);
    void GoTo(int Row);

    Place mPlace{};
    std::function<void(std::function<void()>)> mRun;
    QString mLastKey;  // of the row that was found last; empty: none for these words
    QLineEdit *mFind, *mReplace;
    QCheckBox* mExact;
    QList<QPushButton*> mFinding, mReplacing;
    QLabel* mFound;
};

}  // namespace neb
