#include "support/ReasonOf.h"

#include <QRegularExpression>
#include <new>

#include "support/Fault.h"
#include "support/Texts.h"

namespace neb {
namespace {

QString OtherReason(const std::exception& Problem) {
    if (dynamic_cast<const std::bad_alloc*>(&Problem))
        return tr("There is not enough memory to do this.");
    return QString::fromUtf8(Problem.what());
}

}  // namespace

QString InUsersLanguage(const QString& Said) {
    static const QRegularExpression Number(QStringLiteral("\\d+"));
    QString Form = Said;
    QStringList Values;
    for (auto Found = Number.match(Form); Found.hasMatch();
         Found = Number.match(Form, Found.capturedStart() + 2)) {
        Values << Found.captured();
        Form.replace(Found.capturedStart(), Found.capturedLength(),
                     u'%' + QString::number(Values.size()));
    }
    QString Words = tr(Form.toUtf8().constData());
    for (const QString& Each : Values) Words = Words.arg(Each);
    return Words;
}

QString ReasonOf(const std::exception& Problem) {
    const auto* Told = dynamic_cast<const Fault*>(&Problem);
    return Told ? Told->Text() : OtherReason(Problem);
}

QString SentenceOf(const std::exception& Problem) {
    const auto* Told = dynamic_cast<const Fault*>(&Problem);
    return Told ? Told->What() : OtherReason(Problem);
}

}  // namespace neb
