#include "qtsingleapplication.h"
#include "sandbox.h"

#include <QtTest>

// The second instance is this program run with "--child": it sends its
// stdin to the first, the test, and tells whether that worked.
static int childMain(int argc, char **argv)
{
    QtSingleApplication app(argc, argv);
    QTextStream(stdout) << "running=" << int(app.isRunning())
                        << ", sent=" << int(app.sendMessage(QTextStream(stdin).readAll()));
    return 0;
}

class TestSingleApplication : public QObject
{
    Q_OBJECT
private slots:
    void secondStartHandsItsMessageToTheFirst_data()
    {
        QTest::addColumn<QString>("message");
        QTest::addRow("the raise request") << "raise";
        QTest::addRow("a message of 1 MiB, which comes in pieces") << QString(1 << 20, 'x');
    }
    void secondStartHandsItsMessageToTheFirst()
    {
        QFETCH(QString, message);
        auto *app = static_cast<QtSingleApplication *>(qApp);
        QVERIFY(!app->isRunning());
        QVERIFY(!app->sendMessage("raise", 200));
        QWidget window, other;
        window.showMinimized();
        other.show();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        app->setActivationWindow(&window);
        QSignalSpy received(app, &QtSingleApplication::messageReceived);
        QProcess child;
        child.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        child.start(QCoreApplication::applicationFilePath(), {"--child"});
        child.write(message.toUtf8());
        child.closeWriteChannel();
        QTRY_COMPARE_WITH_TIMEOUT(child.state(), QProcess::NotRunning, 30000);
        QCOMPARE(child.readAll(), "running=1, sent=1");
        QTRY_COMPARE(received.count(), 1);
        QCOMPARE(received[0][0].toString(), message);
        QVERIFY(!window.isMinimized());
        QTRY_COMPARE(QApplication::activeWindow(), &window);
    }
};

int main(int argc, char **argv)
{
    if (argc > 1 && qstrcmp(argv[1], "--child") == 0)
        return childMain(argc, argv); // in the sandbox of the test
    Sandbox::prepareProcess();
    QtSingleApplication app(argc, argv);
    TestSingleApplication test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_singleapplication.moc"
