// The room in which the main window holds its children, with a page behind them that fills it.
#pragma once

#include <QMdiArea>
#include <QMenuBar>
#include <QPointer>

namespace neb {

class Workspace : public QMdiArea {
    Q_OBJECT

  public:
    explicit Workspace(QWidget* Parent = nullptr);
    // The page behind the children, which the room owns from here on. It has the keyboard while no
    // child is open.
    void SetPage(QWidget* Page);
    // A child with a title bar that is read in every palette and as high as its font.
    QMdiSubWindow* AddChild(QWidget* Child);
    // The buttons of a maximised child come into the menu bar: they are to look like those of a
    // title.
    void LookAfter(QMenuBar& Bar);
    // Lays the children side by side, or one over the other, those that are minimised apart. None
    // gets smaller than its buttons allow: where there is no room side by side, they lie one over
    // the other.
    void TileChildren();
    void CascadeChildren();

  protected:
    void changeEvent(QEvent* Event) override;
    bool viewportEvent(QEvent* Event) override;
    bool eventFilter(QObject* Watched, QEvent* Event) override;
    void scrollContentsBy(int dx, int dy) override;

  private:
    QList<QMdiSubWindow*> LaidOut();
    void StyleMenuBar();
    void FillWithPage();
    void GiveKeyboardToPage();

    QPointer<QWidget> mPage;
    QPointer<QMenuBar> mMenuBar;
    QStyle* mTitleBars;
};

}  // namespace neb
