#include "harness/ByTheClock.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QProcess>
#include <QStringList>
#include <cstdio>
#include <ctime>
#include <set>

namespace neb::harness {
namespace {

constexpr int MostTries = 3;
constexpr char TryVariable[] = "NEB_TEST_TRY";

std::set<const testing::TestInfo*>& Clocked() {
    static std::set<const testing::TestInfo*> All;
    return All;
}

// Empty where something failed that must never.
QStringList FailedByTheClock() {
    QStringList Names;
    const auto& All = *testing::UnitTest::GetInstance();
    if (All.ad_hoc_test_result().Failed()) return {};
    for (int S = 0; S < All.total_test_suite_count(); ++S) {
        const testing::TestSuite& Suite = *All.GetTestSuite(S);
        if (Suite.ad_hoc_test_result().Failed()) return {};
        for (int I = 0; I < Suite.total_test_count(); ++I) {
            const testing::TestInfo& Test = *Suite.GetTestInfo(I);
            if (!Test.should_run() || !Test.result()->Failed()) continue;
            if (!Clocked().contains(&Test)) return {};
            Names << QStringLiteral("%1.%2").arg(QLatin1String(Test.test_suite_name()),
                                                 QLatin1String(Test.name()));
        }
    }
    return Names;
}

int RunAgain(const QString& Filter, int Try) {
    std::printf("== Once more, since they go by the clock (%d of %d): %s\n", Try, MostTries,
                qPrintable(Filter));
    std::fflush(stdout);
    qputenv(TryVariable, QByteArray::number(Try));
    return QProcess::execute(QCoreApplication::applicationFilePath(),
                             {QStringLiteral("--gtest_filter=") + Filter});
}

}  // namespace

void GoByTheClock() {
    Clocked().insert(testing::UnitTest::GetInstance()->current_test_info());
}

double WorkedMs() {
    return static_cast<double>(std::clock()) * 1e3 / CLOCKS_PER_SEC;
}

int RunTests() {
    const int Code = RUN_ALL_TESTS();
    const int Try = qMax(1, qEnvironmentVariableIntValue(TryVariable));
    const QString Filter = FailedByTheClock().join(u':');
    return Code == 0 || Filter.isEmpty() || Try == MostTries ? Code : RunAgain(Filter, Try + 1);
}

}  // namespace neb::harness
