#include "program/opening/OtherInstance.h"

#include <QCoreApplication>
#include <QProcess>

namespace neb {

InstanceStarter& TheInstanceStarter() {
    static InstanceStarter Starter;
    return Starter;
}

bool StartOwnProgram(const QStringList& Arguments) {
    return QProcess::startDetached(QCoreApplication::applicationFilePath(), Arguments);
}

bool OpenInOtherInstance(const QString& Database) {
    return TheInstanceStarter() && TheInstanceStarter()({QStringLiteral("--documents"), Database});
}

}  // namespace neb
