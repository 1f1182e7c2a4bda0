#include "qtsingleapplication.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QWidget>

#include <cstdio>
#include <cstring>

// Only one QtSingleApplication fits in a process, so this executable doubles
// as the other instance: run with "--child <mode>" it plays that part.
//   send  reads a message from stdin, prints "running"/"first", then "sent=0|1"
//   hold  prints "running"/"first", then "received:<msg>" for each message

namespace {

const int processTimeout = 30000;

void printLine(const QString &line)
{
    std::fputs(line.toUtf8().append('\n').constData(), stdout);
    std::fflush(stdout);
}

int childMain(int argc, char **argv)
{
    const QByteArray mode = argc > 2 ? QByteArray(argv[2]) : QByteArray();
    QByteArray message;
    if (mode == "send") {
        QFile in;
        if (!in.open(stdin, QIODevice::ReadOnly))
            return 2;
        message = in.readAll();
    }

    QtSingleApplication app(argc, argv);
    printLine(app.isRunning() ? QStringLiteral("running") : QStringLiteral("first"));
    if (mode == "send") {
        const bool sent = app.sendMessage(QString::fromUtf8(message));
        printLine(QStringLiteral("sent=%1").arg(int(sent)));
        return 0;
    }
    if (mode == "hold") {
        QObject::connect(&app, &QtSingleApplication::messageReceived,
                         [](const QString &m) { printLine(QStringLiteral("received:") + m); });
        return app.exec();
    }
    return 2;
}

} // namespace

class TestSingleApplication : public QObject
{
    Q_OBJECT
public:
    explicit TestSingleApplication(const QString &sandbox)
        : m_sandbox(sandbox)
    {}

private slots:
    void firstInstanceIsNotRunning();
    void secondInstanceDeliversMessage_data();
    void secondInstanceDeliversMessage();
    void killedFirstInstanceIsReplaced();

private:
    static QtSingleApplication *app() { return static_cast<QtSingleApplication *>(qApp); }
    static void startChild(QProcess &process, const char *mode);
    static QString readLine(QProcess &process);

    QString m_sandbox;
};

void TestSingleApplication::startChild(QProcess &process, const char *mode)
{
    process.setProgram(QCoreApplication::applicationFilePath());
    process.setArguments({QStringLiteral("--child"), QString::fromLatin1(mode)});
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start();
}

// Blocks this process's event loop, so use it only with children that do not
// talk to us.
QString TestSingleApplication::readLine(QProcess &process)
{
    while (!process.canReadLine()) {
        if (!process.waitForReadyRead(processTimeout))
            return QStringLiteral("<no output>");
    }
    return QString::fromUtf8(process.readLine()).trimmed();
}

void TestSingleApplication::firstInstanceIsNotRunning()
{
    // The fresh TMPDIR leaves this test process as the only instance, and a
    // first instance has nobody to send to.
    QVERIFY(!app()->isRunning());
    QVERIFY(!app()->sendMessage(QStringLiteral("raise"), 200));
}

void TestSingleApplication::secondInstanceDeliversMessage_data()
{
    QTest::addColumn<QString>("message");
    QTest::addColumn<bool>("activate");

    QTest::newRow("raise") << QStringLiteral("raise") << true;
    QTest::newRow("raise, no activation") << QStringLiteral("raise") << false;
    QTest::newRow("empty") << QString() << true;
    QTest::newRow("non-ascii") << QStringLiteral("Grüße ✓ 环境 %1").arg(QChar(0x1F600)) << true;
    // Far larger than a socket buffer, so it arrives in many pieces.
    QTest::newRow("1 MiB") << QString(1 << 20, QLatin1Char('x')) << true;
}

void TestSingleApplication::secondInstanceDeliversMessage()
{
    QFETCH(QString, message);
    QFETCH(bool, activate);

    QWidget window;
    window.setWindowTitle(QStringLiteral("activation window"));
    window.setWindowState(Qt::WindowMinimized);
    window.show();
    QWidget other;
    other.setWindowTitle(QStringLiteral("other window"));
    other.show();
    other.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&other));
    app()->setActivationWindow(&window, activate);
    QCOMPARE(app()->activationWindow(), &window);

    QSignalSpy received(app(), &QtSingleApplication::messageReceived);
    QProcess child;
    startChild(child, "send");
    child.write(message.toUtf8());
    child.closeWriteChannel();
    // Our event loop has to run while the child talks to us.
    QTRY_COMPARE_WITH_TIMEOUT(child.state(), QProcess::NotRunning, processTimeout);
    QCOMPARE(child.exitStatus(), QProcess::NormalExit);
    QCOMPARE(child.exitCode(), 0);
    QCOMPARE(QString::fromUtf8(child.readAllStandardOutput()), QStringLiteral("running\nsent=1\n"));
    QTRY_COMPARE(received.count(), 1);
    QCOMPARE(received.at(0).at(0).toString(), message);

    if (activate) {
        QVERIFY(!(window.windowState() & Qt::WindowMinimized));
        QVERIFY(window.isVisible());
        QTRY_COMPARE(QApplication::activeWindow(), &window);
    } else {
        QVERIFY(window.windowState() & Qt::WindowMinimized);
        QCOMPARE(QApplication::activeWindow(), &other);
    }
    app()->setActivationWindow(nullptr);
}

void TestSingleApplication::killedFirstInstanceIsReplaced()
{
    // Children here get a TMPDIR of their own, so they compete with each
    // other and not with this process.
    const QString tmp = m_sandbox + QStringLiteral("/crash");
    QVERIFY(QDir().mkpath(tmp));
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("TMPDIR"), tmp);

    QProcess first;
    first.setProcessEnvironment(env);
    startChild(first, "hold");
    QCOMPARE(readLine(first), QStringLiteral("first"));
    first.kill(); // SIGKILL: no chance to clean up
    QVERIFY(first.waitForFinished(processTimeout));
    QCOMPARE(first.exitStatus(), QProcess::CrashExit);
    // The dead instance's lock file and socket are still there.
    QVERIFY(!QDir(tmp).entryList(QDir::Files | QDir::System | QDir::Hidden).isEmpty());

    QProcess next;
    next.setProcessEnvironment(env);
    startChild(next, "hold");
    QCOMPARE(readLine(next), QStringLiteral("first"));

    // The replacement really listens on the recovered socket.
    QProcess sender;
    sender.setProcessEnvironment(env);
    startChild(sender, "send");
    sender.write("after crash");
    sender.closeWriteChannel();
    QVERIFY(sender.waitForFinished(processTimeout));
    QCOMPARE(QString::fromUtf8(sender.readAllStandardOutput()),
             QStringLiteral("running\nsent=1\n"));
    QCOMPARE(readLine(next), QStringLiteral("received:after crash"));

    next.kill();
    QVERIFY(next.waitForFinished(processTimeout));

    // Nobody runs now: the next start is first and has nobody to send to.
    QProcess alone;
    alone.setProcessEnvironment(env);
    startChild(alone, "send");
    alone.write("raise");
    alone.closeWriteChannel();
    QVERIFY(alone.waitForFinished(processTimeout));
    QCOMPARE(alone.exitCode(), 0);
    QCOMPARE(QString::fromUtf8(alone.readAllStandardOutput()), QStringLiteral("first\nsent=0\n"));
}

int main(int argc, char **argv)
{
    if (argc > 2 && std::strcmp(argv[1], "--child") == 0)
        return childMain(argc, argv); // environment inherited from the test

    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Keep the lock, the socket and any settings away from the real system.
    QTemporaryDir sandbox;
    if (!sandbox.isValid())
        return 1;
    const QString root = sandbox.path();
    for (const char *dir : {"home", "config", "runtime", "tmp"}) {
        if (!QDir(root).mkdir(QString::fromLatin1(dir)))
            return 1;
    }
    QFile::setPermissions(root + QStringLiteral("/runtime"),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    qputenv("HOME", QFile::encodeName(root + QStringLiteral("/home")));
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(root + QStringLiteral("/config")));
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(root + QStringLiteral("/runtime")));
    qputenv("TMPDIR", QFile::encodeName(root + QStringLiteral("/tmp")));

    QtSingleApplication app(argc, argv);
    TestSingleApplication test(root);
    return QTest::qExec(&test, argc, argv);
}

#include "tst_singleapplication.moc"
