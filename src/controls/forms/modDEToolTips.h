// The one table of all balloon tool tips. clsDEToolTips is the door for a window; this module makes
// the balloons, enters them, and takes them away.
//
// Windows are known by numbers, never by addresses, and a number is not given twice: an entry
// cannot lead to a widget that is gone. When a control is deleted its balloon goes with it and its
// entry becomes an empty slot (TipHWnd and ControlHWnd 0), so that the indexes that the other
// controls hold stay right; empty slots at the end of the table go. When a form is deleted all its
// entries go, as by RemoveToolTips.
#pragma once

#include <QString>
#include <cstdint>
#include <vector>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace neb {

class ToolTipBalloon;

struct ToolTipEntry {
    std::int32_t TipHWnd = 0;
    std::int32_t OldWndProc = 0;  // always 0: a balloon replaces no other window's painting
    std::int32_t ParentHWnd = 0;
    std::int32_t FontSize = 0;
    QString FontName;
    std::int32_t ControlHWnd = 0;
};

const std::vector<ToolTipEntry>& ToolTipTable();
int ToolTipCount();

// The number of a widget, as the table has it: given at the first call, kept by the widget in its
// property "hwnd".
std::int32_t WindowHandle(QWidget& Window);
// The balloon of a TipHWnd; null when it is gone.
ToolTipBalloon* FindToolTip(std::int32_t TipHWnd);

// Gives a control a balloon, in place of the one that its Tag tells of, and notes it there: the
// TipHWnd in decimal, a tab, the entry's index in decimal. A Tag that is not empty says which slot
// of the table is taken, even where that is another's by now: that one loses its balloon. Where
// there is no such slot the entry comes at the end, as with an empty Tag. FontSize and FontName:
// BalloonFont.
void AddToolTip(QWidget& Control, const QString& Text, QWidget& Owner, std::int32_t FontSize,
                const QString& FontName);

// Takes away all tips of a form, by its WindowHandle; the others move up. No Tag is changed, so
// those of the others may then name a wrong slot.
void RemoveToolTips(std::int32_t ParentHWnd);

}  // namespace neb
