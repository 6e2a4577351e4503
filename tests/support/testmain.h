#pragma once

#include "isolation.h"

#include <QTemporaryDir>
#include <QTest>

namespace TestSupport {

template <typename Application, typename Test> int runTest(int argc, char **argv)
{
    const QTemporaryDir home;
    if (!home.isValid())
        return 1;
    isolateProcess(home);
    Application application(argc, argv);
    Test test;
    return QTest::qExec(&test, argc, argv);
}

} // namespace TestSupport

/// main() of a test program, with QCoreApplication or QApplication.
#define ORVEL_TEST_MAIN(Application, Test)                                                                             \
    int main(int argc, char **argv)                                                                                    \
    {                                                                                                                  \
        return TestSupport::runTest<Application, Test>(argc, argv);                                                    \
    }
