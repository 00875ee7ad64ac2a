// The desktop's list of what was used last, as its text: entries of ours come in and go, and every
// other byte stays as it is. The form is XBEL, as the desktop keeps bookmarks.
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <optional>

namespace neb {

struct RecentItem {
    QString Uri;    // encoded, as it stands in the list
    QString Title;  // that people read
    QString MimeType;
    QDateTime When;
};

// The list with the item in it, once; others who have used it stay named. An empty list is a new
// one. Nothing where the list cannot be understood: it is to be left alone.
std::optional<QByteArray> WithRecent(const QByteArray& List, const RecentItem& Item);
// The list without what this program has noted of that address; an entry that others have made
// stays, without us. Nothing where there is none, or the list cannot be understood.
std::optional<QByteArray> WithoutRecent(const QByteArray& List, const QString& Uri);

}  // namespace neb
