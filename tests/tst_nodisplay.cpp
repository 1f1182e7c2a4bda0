#include "nodisplay.h"

#include <QtTest>

namespace {

QStringList received;

void receive(QtMsgType, const QMessageLogContext &context, const QString &message)
{
    received << QString::fromUtf8(context.category) + ": " + message;
}

} // namespace

class TestNoDisplay : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        received.clear();
        previous = qInstallMessageHandler(receive);
    }
    void cleanup() { qInstallMessageHandler(previous); }

    void recognisesQtsDisplayFailures_data()
    {
        QTest::addColumn<bool>("fatal");
        QTest::addColumn<QString>("message");
        QTest::addColumn<bool>("failure");
        QTest::addRow("no platform plugin could start")
            << true
            << "This application failed to start because no Qt platform plugin could be "
               "initialized. Reinstalling the application may fix this problem."
            << true;
        QTest::addRow("the X connection failed")
            << true << "QXcbConnection: Could not connect to display :7" << true;
        QTest::addRow("another fatal error is not about the display")
            << true << "ASSERT: \"row >= 0\" in file evemodel.cpp" << false;
        QTest::addRow("the warning before the failure is only a warning")
            << false << "could not connect to display :7" << false;
    }
    void recognisesQtsDisplayFailures()
    {
        QFETCH(bool, fatal);
        QFETCH(QString, message);
        QFETCH(bool, failure);

        QCOMPARE(isDisplayFailure(fatal ? QtFatalMsg : QtWarningMsg, message), failure);
    }

    void holdsWarningsUntilTheApplicationStarted()
    {
        NoDisplayGuard guard;
        qCWarning(QLoggingCategory("qt.qpa.xcb")) << "slow X server";
        qWarning("plain warning");
        QCOMPARE(received, QStringList());

        guard.release();

        QCOMPARE(received, QStringList({"qt.qpa.xcb: slow X server", "default: plain warning"}));
    }

    void givesThePreviousHandlerBackOnRelease()
    {
        {
            NoDisplayGuard guard;
        }
        qWarning("after the guard");

        QCOMPARE(received, QStringList({"default: after the guard"}));
    }

private:
    QtMessageHandler previous = nullptr;
};

QTEST_GUILESS_MAIN(TestNoDisplay)
#include "tst_nodisplay.moc"
