#include "controls/forms/clsDEToolTips.h"

#include <QLabel>
#include <QList>

#include "controls/forms/Form.h"
#include "controls/forms/modDEToolTips.h"

namespace neb {
namespace {

constexpr QChar End(u'\0');

bool TakesTip(const QWidget* Control) {
    return Control && !qobject_cast<const QLabel*>(Control);
}

// Dialogs of a form, and forms in its frame, have controls of their own.
bool IsControlOf(const QWidget& Owner, const QWidget* Child) {
    for (; Child != &Owner; Child = Child->parentWidget())
        if (Child->isWindow() || qobject_cast<const Form*>(Child)) return false;
    return true;
}

QString WithEnd(const QString& Name) {
    return Name.endsWith(End) ? Name : Name + End;
}

}  // namespace

clsDEToolTips::~clsDEToolTips() {
    ParentClear();
}

void clsDEToolTips::SetFontType(const QString& Name) {
    mFontType = WithEnd(Name);
}

QString clsDEToolTips::FontType() {
    const QString Held = mFontType;
    mFontType = WithEnd(Held);
    return Held.endsWith(End) ? Held.chopped(1) : Held;
}

void clsDEToolTips::SetFontSize(std::int32_t Height) {
    mFontSize = Height;
}

std::int32_t clsDEToolTips::FontSize() const {
    return mFontSize;
}

void clsDEToolTips::ParentSet(QWidget& Owner) {
    mParent = &Owner;
}

void clsDEToolTips::ParentClear() {
    if (!mParent) return;
    RemoveToolTips(WindowHandle(*mParent));
    mParent.clear();
}

bool clsDEToolTips::AddCustomToolTip(QWidget* Control, const QString& Text) {
    if (!mParent || !TakesTip(Control)) return false;
    AddToolTip(*Control, Text, *mParent, mFontSize, mFontType);
    return true;
}

void clsDEToolTips::ImportFromForm() {
    if (!mParent) return;
    for (QWidget* Each : mParent->findChildren<QWidget*>()) {
        const QString Text = Each->toolTip();
        if (Text.isEmpty() || !IsControlOf(*mParent, Each)) continue;
        AddCustomToolTip(Each, Text);
        Each->setToolTip({});
    }
}

}  // namespace neb
