#include "controls/fields/NameCount.h"

#include <QToolTip>
#include <QValidator>
#include <functional>

#include "support/modCharacters.h"
#include "support/modDEValidation.h"

namespace neb {
namespace {

constexpr qsizetype NearlyFull = 70;  // units of those that a name may have
constexpr int SeenMs = 6000;

qsizetype UnitsOf(const QString& Name) {
    return ComposedName(Name).size();
}

// The field goes back by itself to what it held before; but a stored name that is too long already
// stands as it is, and can be made shorter.
class NameValidator : public QValidator {
  public:
    using OnRefusal = std::function<void(const QString& Whole, int Caret)>;
    NameValidator(QObject* Owner, OnRefusal Do) : QValidator(Owner), mDo(std::move(Do)) {}
    State validate(QString& Name, int& Caret) const override {
        if (UnitsOf(Name) <= MaxName) return Acceptable;
        mDo(Name, Caret);
        return Invalid;
    }

  private:
    OnRefusal mDo;
};

}  // namespace

// The field has not gone back yet when its validator answers.
NameCount::NameCount(QLineEdit* Name) : FieldCount(Name) {
    setObjectName(QStringLiteral("lblNameCount"));
    Name->setValidator(new NameValidator(this, [this](const QString& Whole, int Caret) {
        QMetaObject::invokeMethod(
            this, [this, Whole, Caret] { TakeWhatFits(Whole, Caret); }, Qt::QueuedConnection);
    }));
    Begin();
}

QString NameCount::About(const QString& Name) {
    const qsizetype Units = UnitsOf(Name), Seen = CountCharacters(Name);
    if (Units < NearlyFull) return {};
    if (Seen == Units) return tr("%1 characters. A name has room for %2.").arg(Units).arg(MaxName);
    return tr("%1 characters, which take the room of %2 letters. A name has room for %3.")
        .arg(Seen)
        .arg(Units)
        .arg(MaxName);
}

QStringList NameCount::Counts(const QString& Name) const {
    return {tr("%1 of %2").arg(UnitsOf(Name)).arg(MaxName)};
}

// Whole is what the field would hold, with the caret behind what somebody typed or pasted.
void NameCount::TakeWhatFits(const QString& Whole, int Caret) {
    QLineEdit& Name = Field();
    if (Name.text() == Whole) return;  // nobody typed it
    const int Start = Name.hasSelectedText() ? Name.selectionStart() : Name.cursorPosition();
    const QString Added = Whole.mid(Start, std::max(0, Caret - Start));
    const qsizetype Room = MaxName - UnitsOf(Name.text()) + UnitsOf(Name.selectedText());
    const QString Fits = FirstUnits(Added, std::max<qsizetype>(0, Room));
    const qsizetype Left = CountCharacters(Added) - CountCharacters(Fits);
    if (!Fits.isEmpty()) Name.insert(Fits);
    if (Fits.isEmpty())
        Say(tr("The name is full: it has room for %1 characters.").arg(MaxName));
    else if (Left == 1)
        Say(tr("A name has room for %1 characters. The last one was left out.").arg(MaxName));
    else
        Say(tr("A name has room for %1 characters. The last %2 were left out.")
                .arg(MaxName)
                .arg(Left));
}

// A reader of the screen hears it as well.
void NameCount::Say(const QString& Notice) {
    Field().setAccessibleDescription(Notice);
    QToolTip::showText(Field().mapToGlobal(QPoint(0, Field().height())), Notice, &Field(), {},
                       SeenMs);
}

}  // namespace neb
