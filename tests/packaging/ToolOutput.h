// What a tool of the system prints, for the tests of what is packaged.
#pragma once

#include <gtest/gtest.h>

#include <QProcess>

namespace neb {

struct Output {
    int Code = -1;
    QString Out, Err;
};

inline Output OutputOf(const QString& Tool, const QStringList& Arguments,
                       const QStringList& More = {}) {
    QProcess Process;
    Process.setEnvironment(QProcess::systemEnvironment() + More);
    Process.start(Tool, Arguments);
    EXPECT_TRUE(Process.waitForFinished()) << Tool.toStdString();
    return {Process.exitCode(), QString::fromUtf8(Process.readAllStandardOutput()),
            QString::fromUtf8(Process.readAllStandardError())};
}

}  // namespace neb
