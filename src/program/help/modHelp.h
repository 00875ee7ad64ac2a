// The way to the help from everywhere: one window, which opens at the page of the window that asks.
#pragma once

#include <QObject>
#include <QString>

namespace neb {

// Opens the help at a page, or takes the window that is open to it. Above a modal window, which
// lets nobody reach the others, it opens on top. Throws Fault when the help file is missing.
void ShowHelp(const QString& Page);

// The page that tells of a window, by its class such as "frmQuickShow"; empty where none does.
QString HelpPageOf(const QString& Class);
// That of a window, "contents" for one that has none of its own.
QString HelpPageOf(const QWidget* Window);

// F1 in modal windows, which no menu reaches; the main window has one. In a running show F1 has
// another meaning, and while work is under way nothing opens over it.
class HelpKey : public QObject {
    Q_OBJECT

  public:
    explicit HelpKey(QObject* Parent);
    bool eventFilter(QObject* Watched, QEvent* Event) override;
};

}  // namespace neb
