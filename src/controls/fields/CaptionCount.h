// A count in the field in which a caption is typed, from where it matters: a caption may be longer
// than the letters of it that earlier versions of the program show. Nothing is said as long as they
// show all of it. Used by the slide manager and by the cells in which captions are typed.
#pragma once

#include "controls/fields/FieldCount.h"

namespace neb {

class CaptionCount : public FieldCount {
    Q_OBJECT

  public:
    // Belongs to Field, lies over its end, and lets no caption be longer than MaxCaption.
    explicit CaptionCount(QLineEdit* Field);

    // What is to be known of a caption of this text; empty as long as there is nothing.
    static QString About(const QString& Caption);

  protected:
    QString Words(const QString& Caption) const override { return About(Caption); }
    QStringList Counts(const QString& Caption) const override;
};

}  // namespace neb
