#pragma once

#include "support/modalanswerer.h"
#include "support/sandbox.h"

#include <QtTest>

// Base of the test classes: each test function runs in a fresh Sandbox, with
// a ModalAnswerer that rejects any modal window it has no answer for. A test
// fails when an answer it gave was never used or a window came unasked. A
// class with its own init() or cleanup() calls these from it.
class SandboxTest : public QObject
{
    Q_OBJECT

protected:
    QScopedPointer<Sandbox> sandbox;
    QScopedPointer<ModalAnswerer> answerer;

protected slots:
    void init()
    {
        sandbox.reset(new Sandbox);
        answerer.reset(new ModalAnswerer);
        answerer->rejectUnanswered = true;
    }
    void cleanup()
    {
        const int pending = answerer->pending();
        const QStringList unanswered = answerer->unanswered;
        answerer.reset();
        sandbox.reset();
        QVERIFY2(pending == 0, "a modal window the test answered never came");
        QCOMPARE(unanswered, QStringList());
    }
};
