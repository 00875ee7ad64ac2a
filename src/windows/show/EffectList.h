// The list of effects in preferences. The selected ones bear a check mark; a click on a name only
// goes there, so that nobody loses a selection of a hundred by looking. Typing finds a name.
#pragma once

#include <QElapsedTimer>
#include <QListWidget>

namespace neb {

// The entry that typed letters lead to: the first at or behind From, round the list, whose name
// begins with them, else the first that holds them; -1 when there is none. Case does not count.
int FindTyped(const QStringList& Names, const QString& Typed, int From);

class EffectList : public QListWidget {
    Q_OBJECT
  public:
    explicit EffectList(QWidget* Parent = nullptr);

    // Number is the entry's data; Level is shown faintly behind the name.
    void AddEffect(const QString& Name, int Number, const QString& Level);
    int Number(int Row) const;  // 0 outside the list
    void SetAllSelected(bool Selected);
    // Whether the user may turn check marks over. Where not they are grey, and entries can still be
    // gone to, found and double-clicked.
    void SetChoosable(bool Choosable);
    bool IsChoosable() const { return mChoosable; }
    // Letters typed one soon after the other belong together.
    void keyboardSearch(const QString& Typed) override;

  Q_SIGNALS:
    void NameDblClicked();  // on the current entry

  protected:
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& Index,
                                                         const QEvent* Event) const override;
    void keyPressEvent(QKeyEvent* Event) override;
    void mousePressEvent(QMouseEvent* Event) override;
    void mouseDoubleClickEvent(QMouseEvent* Event) override;

  private:
    bool IsOnCheckMark(const QModelIndex& Index, const QPoint& At) const;
    bool IsSearching() const;
    void BlankPressed();
    void SelectLike(int From, int To);
    QStringList Names() const;

    QString mTyped;
    QElapsedTimer mSinceTyped;
    bool mChoosable = true;
};

}  // namespace neb
