#include "program/language/SharedLetters.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QKeySequence>
#include <QLabel>
#include <QMainWindow>
#include <QMap>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>

namespace neb::harness {
namespace {

using namespace Qt::StringLiterals;

class Keys {
  public:
    void Take(const QString& Text) {
        const QKeySequence Key = QKeySequence::mnemonic(Text);
        if (Key.isEmpty()) return;
        if (mTaken.contains(Key))
            mShared << u"\"%1\" and \"%2\" share a letter"_s.arg(mTaken[Key], Text);
        mTaken.insert(Key, Text);
    }
    void TakeAll(const QList<QAction*>& Actions) {
        for (const QAction* Each : Actions) Take(Each->text());
    }
    const QStringList& Shared() const { return mShared; }

  private:
    QMap<QKeySequence, QString> mTaken;
    QStringList mShared;
};

void TakeControls(const QWidget& Window, Keys& Into) {
    for (const auto* Each : Window.findChildren<QAbstractButton*>())
        if (Each->isVisible()) Into.Take(Each->text());
    for (const auto* Each : Window.findChildren<QGroupBox*>())
        if (Each->isVisible()) Into.Take(Each->title());
    for (const auto* Each : Window.findChildren<QLabel*>())
        if (Each->isVisible() && Each->buddy()) Into.Take(Each->text());
}

QStringList OfMenus(const QMenuBar& Bar) {
    QStringList Found;
    for (const QAction* Header : Bar.actions()) {
        Keys Its;
        if (Header->menu()) Its.TakeAll(Header->menu()->actions());
        Found << Its.Shared();
    }
    return Found;
}

}  // namespace

QStringList SharedLettersIn(const QWidget& Window) {
    Keys All;
    if (qobject_cast<const QMdiSubWindow*>(Window.parentWidget()))
        All.TakeAll(static_cast<QMainWindow*>(Window.window())->menuBar()->actions());
    QStringList Found;
    for (const QMenuBar* Bar : Window.findChildren<QMenuBar*>()) {
        All.TakeAll(Bar->actions());
        Found << OfMenus(*Bar);
    }
    TakeControls(Window, All);
    return Found + All.Shared();
}

}  // namespace neb::harness
