#include "controls/speech/SpokenPage.h"

#include <QAccessibleWidget>
#include <QTextBrowser>
#include <algorithm>
#include <utility>

namespace neb {
namespace {

// The toolkit tells nobody when Tab goes from link to link.
class LinkTeller : public QObject {
  public:
    explicit LinkTeller(QTextBrowser* Page) : QObject(Page), mPage(*Page) {
        Page->installEventFilter(this);
    }
    bool eventFilter(QObject*, QEvent* Event) override {
        if (Event->type() == QEvent::KeyPress)
            QMetaObject::invokeMethod(this, &LinkTeller::Tell, Qt::QueuedConnection);
        return false;
    }

  private:
    void Tell() {
        const QTextCursor Now = mPage.textCursor();
        const auto Before = std::exchange(mTold, {Now.selectionStart(), Now.selectionEnd()});
        if (!mPage.hasFocus() || !Now.hasSelection() || Before == mTold) return;
        QAccessibleTextCursorEvent Moved(&mPage, Now.selectionStart());
        QAccessible::updateAccessibility(&Moved);
        QAccessibleTextSelectionEvent Chosen(&mPage, mTold.first, mTold.second);
        QAccessible::updateAccessibility(&Chosen);
    }

    QTextBrowser& mPage;
    std::pair<int, int> mTold{0, 0};
};

// Places are those in the document; what it is drawn on is no part of it for those who hear it.
class SpokenPage : public QAccessibleWidget, public QAccessibleTextInterface {
  public:
    explicit SpokenPage(QTextBrowser* Page)
        : QAccessibleWidget(Page, QAccessible::Document), mPage(*Page) {
        new LinkTeller(Page);
    }

    using QAccessibleWidget::text;
    QAccessible::State state() const override {
        QAccessible::State Is = QAccessibleWidget::state();
        Is.readOnly = Is.multiLine = Is.selectableText = true;
        return Is;
    }
    int childCount() const override { return 0; }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    void* interface_cast(QAccessible::InterfaceType Type) override {
        if (Type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
        return QAccessibleWidget::interface_cast(Type);
    }

    QString text(int From, int To) const override {
        return mPage.toPlainText().mid(From, To < 0 ? -1 : To - From);
    }
    int characterCount() const override { return static_cast<int>(mPage.toPlainText().size()); }
    int cursorPosition() const override { return mPage.textCursor().position(); }
    void setCursorPosition(int At) override { mPage.setTextCursor(Between(At, At)); }
    QString attributes(int, int* From, int* To) const override {
        *From = 0;
        *To = characterCount();
        return {};
    }
    QRect characterRect(int At) const override {
        const QRect There = mPage.cursorRect(Between(At, At));
        return {mPage.viewport()->mapToGlobal(There.topLeft()), There.size()};
    }
    int offsetAtPoint(const QPoint& At) const override {
        return mPage.cursorForPosition(mPage.viewport()->mapFromGlobal(At)).position();
    }
    void selection(int, int* From, int* To) const override {
        *From = mPage.textCursor().selectionStart();
        *To = mPage.textCursor().selectionEnd();
    }
    int selectionCount() const override { return mPage.textCursor().hasSelection() ? 1 : 0; }
    void addSelection(int From, int To) override { mPage.setTextCursor(Between(From, To)); }
    void setSelection(int, int From, int To) override { addSelection(From, To); }
    void removeSelection(int) override { setCursorPosition(cursorPosition()); }
    void scrollToSubstring(int From, int To) override {
        setCursorPosition(To);
        setCursorPosition(From);
        mPage.ensureCursorVisible();
    }

  private:
    QTextCursor Between(int From, int To) const {
        const int Last = std::max(0, mPage.document()->characterCount() - 1);
        QTextCursor Made(mPage.document());
        Made.setPosition(std::clamp(From, 0, Last));
        Made.setPosition(std::clamp(To, 0, Last), QTextCursor::KeepAnchor);
        return Made;
    }

    QTextBrowser& mPage;
};

QAccessibleInterface* SpokenPageOf(const QString&, QObject* Object) {
    auto* Page = qobject_cast<QTextBrowser*>(Object);
    return Page ? new SpokenPage(Page) : nullptr;
}

}  // namespace

void TellPagesAsDocuments() {
    QAccessible::installFactory(&SpokenPageOf);
}

}  // namespace neb
