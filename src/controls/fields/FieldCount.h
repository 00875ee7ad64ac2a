// A count over the end of a field in which something is typed that may grow too long: what all such
// counts have in common. It is not seen as long as there is nothing to say.
#pragma once

#include <QLabel>
#include <QLineEdit>

namespace neb {

class FieldCount : public QLabel {
    Q_OBJECT

  protected:
    explicit FieldCount(QLineEdit* Field);  // belongs to Field
    void Begin();                           // at the end of what makes the count
    QLineEdit& Field() const { return *mField; }

    // What is to be known of such a text; empty as long as there is nothing.
    virtual QString Words(const QString& Text) const = 0;
    // What the count shows of it, from the most words to the fewest: a field may be narrow.
    virtual QStringList Counts(const QString& Text) const = 0;

    bool eventFilter(QObject* Watched, QEvent* Event) override;

  private:
    void Tell();
    void Place();

    QLineEdit* mField;
    QString mFieldTip;
};

}  // namespace neb
