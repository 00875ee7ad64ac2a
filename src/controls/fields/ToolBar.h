// The tool bar of the manager windows: buttons with an icon and a text beside it, known by name,
// within reach of the keyboard.
#pragma once

#include <QHash>
#include <QKeySequence>
#include <QToolBar>

namespace neb {

class ToolBar : public QToolBar {
    Q_OBJECT
  public:
    explicit ToolBar(QWidget* Parent = nullptr);

    // Name is what ToolClicked reports; IconName is one of Icons.h, or empty.
    QAction* AddTool(const QString& Name, const QString& Caption, const QString& ToolTip,
                     const QString& IconName, const QKeySequence& Shortcut = {});
    QAction* Tool(const QString& Name) const;  // null when there is none
    void SetToolEnabled(const QString& Name, bool Enabled);
    bool IsToolEnabled(const QString& Name) const;  // false when there is none

  Q_SIGNALS:
    void ToolClicked(const QString& Name);

  protected:
    bool eventFilter(QObject* Watched, QEvent* Event) override;
    void changeEvent(QEvent* Event) override;

  private:
    void MakeReachable(QAction* Action, const QString& Name);
    bool MoveFocus(QObject* From, int Key);
    void LoadIcons();

    struct Entry {
        QAction* Action;
        QString IconName;
    };
    QHash<QString, Entry> mTools;
};

}  // namespace neb
