#include "controls/fields/ToolBar.h"

#include <QAction>
#include <QEvent>
#include <QKeyEvent>

#include "controls/fields/Icons.h"

namespace neb {

ToolBar::ToolBar(QWidget* Parent) : QToolBar(Parent) {
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    setMovable(false);
    setAccessibleName(tr("Tools"));
    setContextMenuPolicy(Qt::PreventContextMenu);  // a bar that is switched off is hard to get back
}

QAction* ToolBar::AddTool(const QString& Name, const QString& Caption, const QString& ToolTip,
                          const QString& IconName, const QKeySequence& Shortcut) {
    QAction* Action = addAction(ThemeIcon(IconName, palette()), Caption);
    Action->setObjectName(Name);
    Action->setShortcut(Shortcut);
    const QString Keys = Shortcut.toString(QKeySequence::NativeText);
    Action->setToolTip(Keys.isEmpty() ? ToolTip : QStringLiteral("%1 (%2)").arg(ToolTip, Keys));
    connect(Action, &QAction::triggered, this, [this, Name] { Q_EMIT ToolClicked(Name); });
    mTools.insert(Name, {Action, IconName});
    MakeReachable(Action, Name);
    return Action;
}

// Buttons of a tool bar take no focus by themselves.
void ToolBar::MakeReachable(QAction* Action, const QString& Name) {
    QWidget* Button = widgetForAction(Action);
    Button->setObjectName(Name);
    Button->setFocusPolicy(Qt::TabFocus);
    Button->setAccessibleName(Action->iconText());
    Button->installEventFilter(this);
}

QAction* ToolBar::Tool(const QString& Name) const {
    return mTools.value(Name).Action;
}

void ToolBar::SetToolEnabled(const QString& Name, bool Enabled) {
    if (QAction* Action = Tool(Name)) Action->setEnabled(Enabled);
}

bool ToolBar::IsToolEnabled(const QString& Name) const {
    const QAction* Action = Tool(Name);
    return Action && Action->isEnabled();
}

bool ToolBar::eventFilter(QObject* Watched, QEvent* Event) {
    if (Event->type() == QEvent::KeyPress &&
        MoveFocus(Watched, static_cast<QKeyEvent*>(Event)->key()))
        return true;
    return QToolBar::eventFilter(Watched, Event);
}

// The arrow keys go from button to button; Return presses one, as the space bar does.
bool ToolBar::MoveFocus(QObject* From, int Key) {
    const QList<QAction*> All = actions();
    const auto Here = std::find_if(All.begin(), All.end(),
                                   [&](QAction* Each) { return widgetForAction(Each) == From; });
    if (Here == All.end()) return false;
    if (Key == Qt::Key_Return || Key == Qt::Key_Enter) {
        (*Here)->trigger();
        return true;
    }
    if (Key != Qt::Key_Left && Key != Qt::Key_Right) return false;
    const qsizetype Step = (Key == Qt::Key_Right) != isRightToLeft() ? 1 : -1;
    for (qsizetype I = Here - All.begin() + Step; I >= 0 && I < All.size(); I += Step) {
        QWidget* Next = widgetForAction(All[I]);
        if (!Next->isEnabled() || !Next->isVisible() || Next->focusPolicy() == Qt::NoFocus)
            continue;
        Next->setFocus(Qt::TabFocusReason);
        break;
    }
    return true;
}

void ToolBar::changeEvent(QEvent* Event) {
    QToolBar::changeEvent(Event);
    const auto Type = Event->type();
    if (Type == QEvent::PaletteChange || Type == QEvent::ThemeChange) LoadIcons();
}

void ToolBar::LoadIcons() {
    for (const Entry& Each : std::as_const(mTools))
        Each.Action->setIcon(ThemeIcon(Each.IconName, palette()));
}

}  // namespace neb
