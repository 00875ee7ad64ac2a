#include "controls/picture/FrameCount.h"

#include <QLocale>

namespace neb {
namespace {

QString Grouped(int Number) {
    return QLocale(QLocale::English).toString(Number);
}

QString Counted(int Number, const QString& What) {
    return Grouped(Number) + u' ' + What + (Number == 1 ? QString() : QStringLiteral("s"));
}

}  // namespace

void FrameCount::Add(bool IsFirst, bool IsLate) {
    if (IsFirst) ++mTransitions;
    if (IsLate) ++mLate;
    ++mFrames;
}

QString FrameCount::Text() const {
    if (mTransitions == 0) return {};
    return QStringLiteral("%1, %2, %3 late")
        .arg(Counted(mTransitions, QStringLiteral("transition")),
             Counted(mFrames, QStringLiteral("frame")), Grouped(mLate));
}

}  // namespace neb
