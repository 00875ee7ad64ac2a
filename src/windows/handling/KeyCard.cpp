#include "windows/handling/KeyCard.h"

#include <QGridLayout>
#include <QLabel>

namespace neb {
namespace {

enum class ShowKind { Any, Automatic, Manual };

struct CardRow {
    const char* Keys;
    const char* Does;
    ShowKind In = ShowKind::Any;
};

constexpr CardRow CardRows[] = {
    {QT_TRANSLATE_NOOP("neb::KeyCard", "Right, Up, Page Down, Enter, N, W, 8"),
     QT_TRANSLATE_NOOP("neb::KeyCard", "next slide")},
    {QT_TRANSLATE_NOOP("neb::KeyCard", "Left, Down, Page Up, Backspace, S, 2"),
     QT_TRANSLATE_NOOP("neb::KeyCard", "previous slide")},
    {QT_TRANSLATE_NOOP("neb::KeyCard", "Home, End"),
     QT_TRANSLATE_NOOP("neb::KeyCard", "first slide, last slide")},
    {QT_TRANSLATE_NOOP("neb::KeyCard", "G"),
     QT_TRANSLATE_NOOP("neb::KeyCard", "go to a slide by its number or by words of its caption")},
    {QT_TRANSLATE_NOOP("neb::KeyCard", "Space, P"),
     QT_TRANSLATE_NOOP("neb::KeyCard", "pause, and go on"), ShowKind::Automatic},
    {QT_TRANSLATE_NOOP("neb::KeyCard", "Space, a click"),
     QT_TRANSLATE_NOOP("neb::KeyCard", "next slide"), ShowKind::Manual},
    {QT_TRANSLATE_NOOP("neb::KeyCard", "R"),
     QT_TRANSLATE_NOOP("neb::KeyCard", "stop, and show the same slide again")},
    {QT_TRANSLATE_NOOP("neb::KeyCard", "B, full stop"),
     QT_TRANSLATE_NOOP("neb::KeyCard", "black screen and back; the show waits meanwhile")},
    {QT_TRANSLATE_NOOP("neb::KeyCard", "C"),
     QT_TRANSLATE_NOOP("neb::KeyCard", "captions off and on")},
    {QT_TRANSLATE_NOOP("neb::KeyCard", "Menu, Shift+F10, right button"),
     QT_TRANSLATE_NOOP("neb::KeyCard", "menu")},
    {QT_TRANSLATE_NOOP("neb::KeyCard", "Mouse at the lower edge"),
     QT_TRANSLATE_NOOP("neb::KeyCard", "where the show stands; a click goes to that slide")},
    {QT_TRANSLATE_NOOP("neb::KeyCard", "Finger"),
     QT_TRANSLATE_NOOP("neb::KeyCard", "swipe, or tap at the right or left; hold for the menu")},
    {QT_TRANSLATE_NOOP("neb::KeyCard", "F1"),
     QT_TRANSLATE_NOOP("neb::KeyCard", "this card and back; the show waits meanwhile")},
    {QT_TRANSLATE_NOOP("neb::KeyCard", "Esc"),
     QT_TRANSLATE_NOOP("neb::KeyCard", "close this card; then end the show")},
};

}  // namespace

KeyCard::KeyCard(QWidget& Window) : ShowPanel(Window), mRows(new QGridLayout(this)) {
    setObjectName(QStringLiteral("KeyCard"));
    setAccessibleName(tr("Keys of the show"));
}

void KeyCard::OpenFor(bool Manual) {
    qDeleteAll(findChildren<QLabel*>());
    int Line = 0;
    for (const CardRow& Row : CardRows) {
        if (Row.In == (Manual ? ShowKind::Automatic : ShowKind::Manual)) continue;
        auto* Keys = new QLabel(QStringLiteral("<b>%1</b>").arg(tr(Row.Keys)), this);
        Keys->setTextFormat(Qt::RichText);
        mRows->addWidget(Keys, Line, 0);
        mRows->addWidget(new QLabel(tr(Row.Does), this), Line++, 1);
    }
    Open();
    mRows->setHorizontalSpacing(fontMetrics().height());
    Place();
}

}  // namespace neb
