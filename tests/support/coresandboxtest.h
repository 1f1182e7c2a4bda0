#pragma once

#include "support/sandbox.h"

#include <QtTest>

// Base of the test classes of core: each test function runs in a fresh
// Sandbox. A class with its own init() or cleanup() calls these from it.
class CoreSandboxTest : public QObject
{
    Q_OBJECT

protected:
    QScopedPointer<Sandbox> sandbox;

protected slots:
    void init() { sandbox.reset(new Sandbox); }
    void cleanup() { sandbox.reset(); }
};

// Use instead of QTEST_GUILESS_MAIN: prepares the sandbox before the application.
#define ORV_SANDBOX_CORE_TEST_MAIN(TestObject)                                                     \
    int main(int argc, char *argv[])                                                               \
    {                                                                                              \
        Sandbox::prepareProcess();                                                                 \
        QCoreApplication app(argc, argv);                                                          \
        TestObject tc;                                                                             \
        QTEST_SET_MAIN_SOURCE_PATH                                                                 \
        return QTest::qExec(&tc, argc, argv);                                                      \
    }
