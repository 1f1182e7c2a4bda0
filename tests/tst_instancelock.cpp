#include "qtsingleapplication.h"
#include "sandbox.h"

#include <QtTest>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
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

namespace {

const QString programName = QStringLiteral("tst_instancelock");

// Starts an instance with this runtime folder (none: the temporary folder),
// by a command that ends in the program to run, and returns what it says
// about the lock.
QByteArray startInstance(QProcess &child, const QString &runtime,
                         const QStringList &command = {QCoreApplication::applicationFilePath()})
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    if (runtime.isEmpty())
        environment.remove("XDG_RUNTIME_DIR");
    else
        environment.insert("XDG_RUNTIME_DIR", runtime);
    child.setProcessEnvironment(environment);
    child.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    child.start(command.first(), command.mid(1) + QStringList{"--child"});
    if (!child.waitForReadyRead(20000))
        return "no answer";
    return child.readLine().trimmed();
}

void stop(QProcess &child)
{
    child.closeWriteChannel();
    if (!child.waitForFinished(10000))
        child.kill();
}

QString lockFile(const QString &folder, uid_t user = ::getuid())
{
    return folder + "/qtsingleapp-" + programName + "-" + QString::number(user) + ".lock";
}

} // namespace

class TestInstanceLock : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        runtime.reset(new QTemporaryDir);
        QVERIFY(runtime->isValid());
    }
    void cleanup() { runtime.reset(); }

    void lockFileWithGarbageIsTakenOver()
    {
        Sandbox::writeFile(lockFile(runtime->path()), "not a process number\n");
        QProcess child;

        QCOMPARE(startInstance(child, runtime->path()), "first");
        stop(child);
    }

    void lockLivesInTheRuntimeFolder()
    {
        QProcess first;
        QCOMPARE(startInstance(first, runtime->path()), "first");
        stop(first);

        QVERIFY(QFile::exists(lockFile(runtime->path())));
    }

    void lockOfAnotherUserInTheSharedFolderDoesNotBlock()
    {
        // Someone else made our lock file in the shared folder and holds it.
        const QString planted = lockFile(runtime->path());
        Sandbox::writeFile(planted, "");
        QVERIFY(::chown(QFile::encodeName(planted).constData(), 65534, 65534) == 0);
        const int held = ::open(QFile::encodeName(planted).constData(), O_RDONLY | O_CLOEXEC);
        QVERIFY(held >= 0 && ::flock(held, LOCK_EX) == 0);
        qputenv("TMPDIR", QFile::encodeName(runtime->path()));
        QProcess child;

        const QByteArray said = startInstance(child, QString());
        stop(child);
        ::close(held);

        QCOMPARE(said, "first");
    }

    void twoUsersDoNotBlockEachOther()
    {
        if (::getuid() != 0 || QStandardPaths::findExecutable("setpriv").isEmpty())
            QSKIP("needs root and setpriv to run an instance as another user");
        // A shared folder like /tmp, and a copy of this program anybody may run.
        QVERIFY(::chmod(QFile::encodeName(runtime->path()).constData(), 01777) == 0);
        const QString copy = runtime->path() + "/" + programName;
        QVERIFY(QFile::copy(QCoreApplication::applicationFilePath(), copy));
        qputenv("TMPDIR", QFile::encodeName(runtime->path()));
        QProcess ours, theirs;
        QCOMPARE(startInstance(ours, QString()), "first");

        const QByteArray said =
            startInstance(theirs, QString(),
                          {"setpriv", "--reuid=65534", "--regid=65534", "--clear-groups", copy});
        stop(theirs);
        stop(ours);

        QCOMPARE(said, "first");
    }

private:
    QScopedPointer<QTemporaryDir> runtime;
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
