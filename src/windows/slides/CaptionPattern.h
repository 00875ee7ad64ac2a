// One text for many captions: what a user types once, with a number that counts on and the caption
// of now in it. For the window that sets the captions of many slides at once.
#pragma once

#include <QString>
#include <QStringList>

namespace neb {

// Stands for the caption of now. A # stands for the number, ## for one of at least two digits.
inline constexpr char16_t CaptionNow[] = u"<caption>";

struct CaptionPattern {
    QString Text;
    int First = 1;  // the number of the first caption

    // Cut to the most that a caption may have, without blanks at its ends; Index counts from 0.
    QString CaptionFor(const QString& Present, int Index) const;
    QStringList CaptionsFor(const QStringList& Present) const;
};

}  // namespace neb
