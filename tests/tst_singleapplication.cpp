#include "qtsingleapplication.h"
#include "sandbox.h"

#include <QtTest>

// The other instances are this program run with "--child": a first one prints
// "first" and each message it receives, a later one sends its stdin.
static int childMain(int argc, char **argv)
{
    QtSingleApplication app(argc, argv);
    QTextStream out(stdout);
    if (app.isRunning()) {
        out << "running, sent=" << int(app.sendMessage(QTextStream(stdin).readAll()));
        return 0;
    }
    out << "first" << Qt::endl;
    QObject::connect(&app, &QtSingleApplication::messageReceived,
                     [&out](const QString &message) { out << message << Qt::endl; });
    return app.exec();
}

static void start(QProcess &child, const QByteArray &input = {})
{
    child.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    child.start(QCoreApplication::applicationFilePath(), {"--child"});
    child.write(input);
    child.closeWriteChannel();
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
        start(child, message.toUtf8());
        QTRY_COMPARE_WITH_TIMEOUT(child.state(), QProcess::NotRunning, 30000);
        QCOMPARE(child.readAll(), "running, sent=1");
        QTRY_COMPARE(received.count(), 1);
        QCOMPARE(received[0][0].toString(), message);
        QVERIFY(!window.isMinimized());
        QTRY_COMPARE(QApplication::activeWindow(), &window);
    }
    void firstInstanceKilledIsReplacedByTheNextStart()
    {
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(Sandbox::home())); // children apart from us
        QProcess first, next, sender;
        start(first);
        QVERIFY(first.waitForReadyRead());
        first.kill(); // SIGKILL: the lock file and the socket stay behind
        QVERIFY(first.waitForFinished());
        start(next);
        QVERIFY(next.waitForReadyRead());
        start(sender, "after crash");
        QVERIFY(sender.waitForFinished() && next.waitForReadyRead());
        QCOMPARE(first.readAll() + next.readAll() + sender.readAll(),
                 "first\nfirst\nafter crash\nrunning, sent=1");
        next.kill();
        QVERIFY(next.waitForFinished());
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
