#include "qtsingleapplication.h"
#include "sandbox.h"

#include <QtTest>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

// The other instances are this program run with "--child": it prints "first"
// when it holds the lock, "running" when another instance does, and then
// waits for its standard input to close.
static int childMain(int argc, char **argv)
{
    QtSingleApplication app(argc, argv);
    QTextStream(stdout) << (app.isRunning() ? "running" : "first") << Qt::endl;
    QTextStream(stdin).readAll();
    return 0;
}

class TestInstanceLock : public QObject
{
    Q_OBJECT

    QScopedPointer<QTemporaryDir> runtime;
    QString lockFile;
    QProcess instances[2];

    // Starts an instance with XDG_RUNTIME_DIR set to `runtime` (empty: unset)
    // and returns what it says about the lock.
    static QByteArray startInstance(QProcess &child, const QString &runtime)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("XDG_RUNTIME_DIR", runtime);
        child.setProcessEnvironment(environment);
        child.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        child.start(QCoreApplication::applicationFilePath(), {"--child"});
        return child.waitForReadyRead(20000) ? child.readLine().trimmed() : "no answer";
    }

private slots:
    void init()
    {
        runtime.reset(new QTemporaryDir);
        QVERIFY(runtime->isValid());
        lockFile = runtime->path() + "/qtsingleapp-tst_instancelock-" +
                   QString::number(::getuid()) + ".lock";
    }
    void cleanup()
    {
        for (QProcess &instance : instances) {
            instance.closeWriteChannel();
            instance.waitForFinished();
        }
        runtime.reset();
    }

    // Nobody holds it: it has garbage in it, or its instance was killed.
    // While the instance runs, the file is locked.
    void staleLockInTheRuntimeFolderIsTakenOver()
    {
        Sandbox::writeFile(lockFile, "not a process number\n");
        QCOMPARE(startInstance(instances[0], runtime->path()), "first");
        const int fd = ::open(QFile::encodeName(lockFile).constData(), O_RDONLY | O_CLOEXEC);
        QCOMPARE(::flock(fd, LOCK_EX | LOCK_NB), -1);
        ::close(fd);

        instances[0].kill();
        instances[0].waitForFinished();

        QCOMPARE(startInstance(instances[1], runtime->path()), "first");
    }

    // Another user made our lock file in the shared temporary folder and
    // holds it: it is not ours, so it does not count.
    void lockOfAnotherUserInTheSharedFolderDoesNotBlock()
    {
        Sandbox::writeFile(lockFile, "");
        QCOMPARE(::chown(QFile::encodeName(lockFile).constData(), 65534, 65534), 0);
        const int held = ::open(QFile::encodeName(lockFile).constData(), O_RDONLY | O_CLOEXEC);
        QVERIFY(held >= 0 && ::flock(held, LOCK_EX) == 0);
        qputenv("TMPDIR", QFile::encodeName(runtime->path()));

        const QByteArray said = startInstance(instances[0], QString());
        ::close(held);

        QCOMPARE(said, "first");
    }
};

int main(int argc, char **argv)
{
    if (argc > 1 && qstrcmp(argv[1], "--child") == 0)
        return childMain(argc, argv);
    Sandbox::prepareProcess();
    QCoreApplication app(argc, argv);
    TestInstanceLock test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_instancelock.moc"
