// The room in which the main window holds its children, with a page behind them that fills it.
#pragma once

#include <QMdiArea>

namespace neb {

class Workspace : public QMdiArea {
    Q_OBJECT

  public:
    explicit Workspace(QWidget* Parent = nullptr);
    // The page behind the children, which the room owns from here on.
    void SetPage(QWidget* Page);

  protected:
    bool viewportEvent(QEvent* Event) override;

  private:
    QWidget* mPage = nullptr;
};

}  // namespace neb
