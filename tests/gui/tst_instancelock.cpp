#include "platform/qtsingleapplication.h"
#include "support/sandbox.h"

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

// The sandbox gives the instances a private runtime folder and a temporary one.
class TestInstanceLock : public QObject
{
    Q_OBJECT

    QProcess instances[2];
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();

    QByteArray start(QProcess &instance)
    {
        instance.setProcessEnvironment(environment);
        instance.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        instance.start(QCoreApplication::applicationFilePath(), {"--child"});
        return instance.waitForReadyRead(20000) ? instance.readLine().trimmed() : "no answer";
    }
    static QString lockFileIn(const QString &folder)
    {
        return folder + "/qtsingleapp-tst_instancelock-" + QString::number(::getuid()) + ".lock";
    }

private slots:
    void cleanup()
    {
        for (QProcess &instance : instances) {
            instance.closeWriteChannel();
            instance.waitForFinished();
        }
        environment = QProcessEnvironment::systemEnvironment();
    }

    // Nobody holds it: it has garbage in it, or its instance was killed.
    void staleLockInTheRuntimeFolderIsTakenOver()
    {
        const QString lockFile = lockFileIn(environment.value("XDG_RUNTIME_DIR"));
        Sandbox::writeFile(lockFile, "not a process number\n");
        QCOMPARE(start(instances[0]), "first");
        const int fd = ::open(QFile::encodeName(lockFile).constData(), O_RDONLY | O_CLOEXEC);
        QCOMPARE(::flock(fd, LOCK_EX | LOCK_NB), -1);
        ::close(fd);

        instances[0].kill();
        instances[0].waitForFinished();

        QCOMPARE(start(instances[1]), "first");
    }

    // Another user made our lock file in the shared temporary folder and
    // holds it: it is not ours, so it does not count.
    void lockOfAnotherUserInTheSharedFolderDoesNotBlock()
    {
        const QString lockFile = lockFileIn(environment.value("TMPDIR"));
        Sandbox::writeFile(lockFile, "");
        QCOMPARE(::chown(QFile::encodeName(lockFile).constData(), 65534, 65534), 0);
        const int held = ::open(QFile::encodeName(lockFile).constData(), O_RDONLY | O_CLOEXEC);
        QVERIFY(held >= 0 && ::flock(held, LOCK_EX) == 0);
        environment.remove("XDG_RUNTIME_DIR");

        QCOMPARE(start(instances[0]), "first");
        QCOMPARE(start(instances[1]), "running");
        ::close(held);
    }

    // A runtime folder that cannot hold files: the lock moves on, and still
    // only one instance runs.
    void unwritableRuntimeFolderStillAllowsOneInstance()
    {
        environment.insert("XDG_RUNTIME_DIR", Sandbox::home() + "/missing/runtime");

        QCOMPARE(start(instances[0]), "first");
        QCOMPARE(start(instances[1]), "running");
    }

    // Another user holds every place the lock could go: no instance can be
    // sure it is the only one, so each says so and counts as a second one.
    void noPlaceForALockRefusesToRunWithAMessage()
    {
        if (::geteuid() != 0)
            QSKIP("only root can make files of another user");
        const QString tmp = environment.value("TMPDIR");
        const QString lockFile = lockFileIn(tmp);
        const QString privateFolder = lockFile.chopped(5) + ".d";
        Sandbox::writeFile(lockFile, "");
        QVERIFY(QDir().mkpath(privateFolder));
        for (const QString &path : {lockFile, privateFolder})
            QCOMPARE(::chown(QFile::encodeName(path).constData(), 65534, 65534), 0);
        environment.remove("XDG_RUNTIME_DIR");

        QProcess &instance = instances[0];
        instance.setProcessEnvironment(environment);
        instance.setProcessChannelMode(QProcess::SeparateChannels);
        instance.start(QCoreApplication::applicationFilePath(), {"--child"});
        instance.closeWriteChannel();
        QVERIFY(instance.waitForFinished(20000));

        QCOMPARE(instance.readAllStandardOutput().trimmed(), "running");
        const QByteArray said = instance.readAllStandardError();
        QVERIFY2(said.contains("cannot make sure that only one instance runs: no folder of " +
                               tmp.toUtf8()),
                 "it says why");
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
