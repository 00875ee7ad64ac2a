// Lets the name of an album or a show grow no longer than it can be kept, while it is typed: a
// letter too many is not taken, of a long text that is pasted as much as there is room for, and the
// user is told. From where the end comes near the field shows a count. For every field in which a
// name is typed.
#pragma once

#include "controls/fields/FieldCount.h"

namespace neb {

class NameCount : public FieldCount {
    Q_OBJECT

  public:
    explicit NameCount(QLineEdit* Field);  // belongs to Field, lies over its end

    // What is to be known of a name of this length; empty as long as there is nothing.
    static QString About(const QString& Name);

  protected:
    QString Words(const QString& Name) const override { return About(Name); }
    QStringList Counts(const QString& Name) const override;

  private:
    void TakeWhatFits(const QString& Whole, int Caret);
    void Say(const QString& Notice);
};

}  // namespace neb
