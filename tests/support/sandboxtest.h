#pragma once

#include "support/coresandboxtest.h"
#include "support/modalanswerer.h"

#include <QApplication>

// Base of the test classes of the gui: each test function runs in a fresh
// Sandbox, with a ModalAnswerer that rejects any modal window it has no
// answer for. A test fails when an answer it gave was never used or a window
// came unasked. A class with its own init() or cleanup() calls these from it.
class SandboxTest : public CoreSandboxTest
{
    Q_OBJECT

protected:
    QScopedPointer<ModalAnswerer> answerer;

protected slots:
    void init()
    {
        CoreSandboxTest::init();
        answerer.reset(new ModalAnswerer);
        answerer->rejectUnanswered = true;
    }
    void cleanup()
    {
        const int pending = answerer->pending();
        const QStringList unanswered = answerer->unanswered;
        answerer.reset();
        CoreSandboxTest::cleanup();
        QVERIFY2(pending == 0, "a modal window the test answered never came");
        QCOMPARE(unanswered, QStringList());
    }
};

// Use instead of QTEST_MAIN: prepares the sandbox before the application.
#define ORV_SANDBOX_TEST_MAIN(TestObject)                                                          \
    int main(int argc, char *argv[])                                                               \
    {                                                                                              \
        Sandbox::prepareProcess();                                                                 \
        QApplication app(argc, argv);                                                              \
        app.setAttribute(Qt::AA_Use96Dpi, true);                                                   \
        TestObject tc;                                                                             \
        QTEST_SET_MAIN_SOURCE_PATH                                                                 \
        return QTest::qExec(&tc, argc, argv);                                                      \
    }
