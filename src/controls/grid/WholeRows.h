// Short lists of choices that flow in rows are seen whole: none of their rows is cut in two.
#pragma once

class QListView;

namespace neb {

// List becomes as high as its rows ask for at its width, now and whenever the width or the letters
// change; a list of more than eight rows scrolls. For lists that are filled by the time they show.
void ShowWholeRows(QListView& List);

}  // namespace neb
