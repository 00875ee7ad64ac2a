// Headings of a grid are short; the pointer that rests on one brings up what it means. Used where
// headings do not explain themselves.
#pragma once

#include <QStringList>

namespace neb {

class FlexGrid;

// Tips: by column; an empty one leaves the grid's own.
void SetHeaderTips(FlexGrid& Grid, const QStringList& Tips);

}  // namespace neb
