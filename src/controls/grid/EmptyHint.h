// What a list that is empty says: what it is for, and what to do next. FlexGrid has its own
// (SetEmptyText); this is for the toolkit's lists and trees.
#pragma once

class QAbstractItemView;
class QString;

namespace neb {

// Shown in the middle of View, wrapped, for as long as it has no rows; screen readers read it as
// the list's description.
void SetEmptyHint(QAbstractItemView& View, const QString& Text);

}  // namespace neb
