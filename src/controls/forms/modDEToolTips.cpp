#include "controls/forms/modDEToolTips.h"

#include <QCoreApplication>
#include <QHash>
#include <QPointer>
#include <QStringList>
#include <QVariant>

#include "controls/forms/ToolTipBalloon.h"

namespace neb {
namespace {

constexpr char NumberProperty[] = "hwnd";
constexpr char TagProperty[] = "Tag";

struct AllTips {
    std::vector<ToolTipEntry> Table;
    QHash<std::int32_t, QPointer<ToolTipBalloon>> Balloons;
    std::int32_t LastNumber = 0;
};

AllTips& Tips() {
    static AllTips Kept;
    return Kept;
}

struct TagParts {
    std::int32_t TipHWnd = 0;
    int Index = -1;  // none
};

TagParts ReadTag(const QWidget& Control) {
    const QStringList Parts = Control.property(TagProperty).toString().split(u'\t');
    bool Known = false;
    const int Index = Parts.value(1).toInt(&Known);
    return {Parts.front().toInt(), Known ? Index : -1};
}

void WriteTag(QWidget& Control, std::int32_t TipHWnd, std::size_t Index) {
    Control.setProperty(TagProperty, QStringLiteral("%1\t%2").arg(TipHWnd).arg(Index));
}

void Destroy(std::int32_t TipHWnd) {
    delete Tips().Balloons.take(TipHWnd).data();
}

void EmptySlotsOf(std::int32_t ControlHWnd) {
    std::vector<ToolTipEntry>& Table = Tips().Table;
    for (ToolTipEntry& Each : Table) {
        if (Each.ControlHWnd != ControlHWnd) continue;
        Destroy(Each.TipHWnd);
        Each.TipHWnd = Each.ControlHWnd = 0;
    }
    while (!Table.empty() && Table.back().TipHWnd == 0) Table.pop_back();
}

// A widget may have been a form, or a control, or both.
void WindowGone(std::int32_t Number) {
    RemoveToolTips(Number);
    EmptySlotsOf(Number);
}

std::size_t EnterAt(int Wanted, const ToolTipEntry& Entry) {
    std::vector<ToolTipEntry>& Table = Tips().Table;
    const auto Index = static_cast<std::size_t>(Wanted);
    if (Wanted < 0 || Index >= Table.size()) {
        Table.push_back(Entry);
        return Table.size() - 1;
    }
    Destroy(Table[Index].TipHWnd);
    Table[Index] = Entry;
    return Index;
}

}  // namespace

const std::vector<ToolTipEntry>& ToolTipTable() {
    return Tips().Table;
}

int ToolTipCount() {
    return static_cast<int>(Tips().Table.size());
}

std::int32_t WindowHandle(QWidget& Window) {
    const std::int32_t Known = Window.property(NumberProperty).toInt();
    if (Known != 0) return Known;
    const std::int32_t Number = ++Tips().LastNumber;
    Window.setProperty(NumberProperty, Number);
    QObject::connect(&Window, &QObject::destroyed, qApp, [Number] { WindowGone(Number); });
    return Number;
}

ToolTipBalloon* FindToolTip(std::int32_t TipHWnd) {
    return Tips().Balloons.value(TipHWnd);
}

void AddToolTip(QWidget& Control, const QString& Text, QWidget& Owner, std::int32_t FontSize,
                const QString& FontName) {
    const TagParts Before = ReadTag(Control);
    Destroy(Before.TipHWnd);
    const std::int32_t TipHWnd = ++Tips().LastNumber;
    Tips().Balloons[TipHWnd] =
        new ToolTipBalloon(Control, Owner, Text, BalloonFont(FontName, FontSize));
    WriteTag(Control, TipHWnd,
             EnterAt(Before.Index,
                     {TipHWnd, 0, WindowHandle(Owner), FontSize, FontName, WindowHandle(Control)}));
}

void RemoveToolTips(std::int32_t ParentHWnd) {
    std::vector<ToolTipEntry> Remaining, Gone;
    for (const ToolTipEntry& Each : Tips().Table)
        (Each.ParentHWnd == ParentHWnd ? Gone : Remaining).push_back(Each);
    Tips().Table.swap(Remaining);
    for (const ToolTipEntry& Each : Gone) Destroy(Each.TipHWnd);
}

}  // namespace neb
