#include "backups.h"
#include "eve.h"
#include "evemodel.h"
#include "safefile.h"
#include "sandboxtest.h"
#include "tablehelpers.h"

#include <dlfcn.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

// Makes one kind of system call fail on one file, through the preload
// library the tests run with (support/failio.cpp), until the object goes.
class InjectedFailure
{
public:
    InjectedFailure(const char *call, const QString &path, int error, int bytesFirst = 0,
                    int times = 1)
    {
        qputenv("ORV_FAIL_CALL", call);
        qputenv("ORV_FAIL_PATH", QFile::encodeName(QFileInfo(path).canonicalFilePath()));
        qputenv("ORV_FAIL_ERRNO", QByteArray::number(error));
        qputenv("ORV_FAIL_AFTER", QByteArray::number(bytesFirst));
        qputenv("ORV_FAIL_TIMES", QByteArray::number(times));
        reinterpret_cast<void (*)()>(::dlsym(RTLD_DEFAULT, "orv_failio_reset"))();
    }
    ~InjectedFailure() { qunsetenv("ORV_FAIL_CALL"); }
};

QString bashrc()
{
    return Sandbox::home() + "/.bashrc";
}

// A start-up file whose FOO line is long, so that saving a short value
// makes the file shorter.
QByteArray startupFile()
{
    QByteArray bytes = "# ~/.bashrc\nexport FOO=" + QByteArray(100, 'x') + "\n";
    for (int i = 0; i < 200; ++i)
        bytes += "alias l" + QByteArray::number(i) + "='ls -l'\n";
    return bytes;
}

void setValue(EveModel &model, const QString &name, const QString &value)
{
    model.setData(model.index(rowOf(model, name), EveModel::ValueColumn), value);
}

QString writeFailure(const QString &path, int error)
{
    return "Couldn't write file " + path + " for saving variable FOO: " + qt_error_string(error);
}

// Home files that cannot be opened make the local scratch file the choice.
void blockHomeFiles()
{
    for (const char *name : {"/.bashrc", "/.bash_profile", "/.profile"})
        Sandbox::blockPath(Sandbox::home() + name);
}

struct stat statusOf(const QString &path)
{
    struct stat info = {};
    ::stat(QFile::encodeName(path).constData(), &info);
    return info;
}

} // namespace

class TestSafeSave : public SandboxTest
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY2(::dlsym(RTLD_DEFAULT, "orv_failio_reset"), "the tests run with libfailio");
    }
    void init()
    {
        SandboxTest::init();
        Sandbox::setUserEnvironment({"FOO=" + QString(100, 'x')});
        Sandbox::writeFile(bashrc(), startupFile());
    }

    void failedWriteLeavesTheFileAsItWas_data()
    {
        QTest::addColumn<QByteArray>("call");
        QTest::addColumn<int>("error");
        QTest::addColumn<int>("bytesFirst");
        QTest::addRow("the disk fills up in the middle of the write")
            << QByteArray("write") << ENOSPC << 1000;
        QTest::addRow("the first byte cannot be written") << QByteArray("write") << EIO << 0;
        QTest::addRow("syncing to the disk fails") << QByteArray("fsync") << EIO << 0;
        QTest::addRow("cutting the file to its new length fails")
            << QByteArray("ftruncate") << EIO << 0;
        QTest::addRow("no room can be reserved for the new content")
            << QByteArray("fallocate") << ENOSPC << 0;
    }
    void failedWriteLeavesTheFileAsItWas()
    {
        QFETCH(QByteArray, call);
        QFETCH(int, error);
        QFETCH(int, bytesFirst);
        EveModel model;
        setValue(model, "FOO", "2");
        answerer->addAnswer("OK");

        const InjectedFailure failure(call.constData(), bashrc(), error, bytesFirst);

        QVERIFY2(!model.save(), "a save whose write failed must say so");
        QCOMPARE(Sandbox::readFile(bashrc()), startupFile());
        QCOMPARE(cellOf(model, "FOO", EveModel::PreviousColumn), QString(100, 'x'));
        QCOMPARE(answerer->seen.value(0).text, writeFailure(bashrc(), error));
    }

    void failureThatCannotBeUndoneNamesTheCopy()
    {
        EveModel model;
        setValue(model, "FOO", "2");
        answerer->addAnswer("OK");

        const InjectedFailure failure("write", bashrc(), EIO, 10, 1000);
        QVERIFY(!model.save());

        const QList<Backups::Copy> copies = Backups::list(bashrc());
        QCOMPARE(copies.size(), 1);
        QCOMPARE(Sandbox::readFile(copies.first().path), startupFile());
        QCOMPARE(answerer->seen.value(0).text, writeFailure(bashrc(), EIO) +
                                                   " Its content from before the save is kept in " +
                                                   copies.first().path + ".");
    }

    void fileThatCannotBeReadCountsAsUnopenable_data()
    {
        QTest::addColumn<int>("error");
        QTest::addColumn<int>("bytesFirst");
        QTest::addRow("reading fails at the start") << EIO << 0;
        QTest::addRow("reading fails in the middle") << EIO << 1000;
        QTest::addRow("the file ends before its size") << 0 << 1000;
    }
    void fileThatCannotBeReadCountsAsUnopenable()
    {
        QFETCH(int, error);
        QFETCH(int, bytesFirst);
        EveModel model;
        setValue(model, "FOO", "2");
        answerer->addAnswer("OK");

        const InjectedFailure failure("read", bashrc(), error, bytesFirst);

        QVERIFY(!model.save());
        QCOMPARE(Sandbox::readFile(bashrc()), startupFile());
        QCOMPARE(answerer->seen.value(0).text,
                 "Couldn't open file " + bashrc() + " for saving variable FOO");
    }

    // Without the check the write past the limit would raise SIGXFSZ, which
    // ends a process that does not ignore it.
    void fileSizeLimitFailsTheRewriteBeforeAnyWrite()
    {
        const pid_t child = ::fork();
        if (child == 0) {
            const struct rlimit limit = {rlim_t(startupFile().size()), RLIM_INFINITY};
            ::setrlimit(RLIMIT_FSIZE, &limit);
            QString error;
            bool restored;
            ::_exit(SafeFile::rewrite(bashrc(), true, startupFile(), startupFile() + "more", &error,
                                      &restored));
        }
        int status = 0;
        QCOMPARE(::waitpid(child, &status, 0), child);

        QVERIFY2(WIFEXITED(status), "the rewrite must fail, not end the process");
        QCOMPARE(WEXITSTATUS(status), 0);
        QCOMPARE(Sandbox::readFile(bashrc()), startupFile());
    }

    void fileTooLargeToReadIsNotRewritten()
    {
        const QString huge = Sandbox::system("/etc/huge");
        Sandbox::writeFile(huge, "export FOO=1\n");
        QVERIFY(QFile::resize(huge, qint64(1) << 31)); // sparse: costs no disk space
        EveModel model;
        model.setData(model.index(rowOf(model, "FOO"), EveModel::OriginColumn), huge);
        setValue(model, "FOO", "2");

        QVERIFY(model.save());

        QCOMPARE(QFileInfo(huge).size(), qint64(1) << 31);
        QFile file(huge);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.read(13), QByteArray("export FOO=1\n"));
        QVERIFY2(Sandbox::readFile(bashrc()).contains("\nexport FOO=2\n"), "the fallback file");
    }

    void deletionWhoseFileCannotBeWrittenIsSkipped()
    {
        EveModel model;
        QVERIFY(model.removeRows(rowOf(model, "FOO"), 1));
        answerer->addAnswer("OK");

        const InjectedFailure failure("write", bashrc(), ENOSPC);

        QVERIFY2(model.save(), "a deletion that fails does not fail the save");
        QCOMPARE(Sandbox::readFile(bashrc()), startupFile());
        QCOMPARE(answerer->seen.value(0).text,
                 "Couldn't write file " + bashrc() +
                     " for deleting variable FOO: " + qt_error_string(ENOSPC));
    }

    void windowReportsAFailedWriteAsAFailedSave()
    {
        Eve window;
        setValue(*window.eveModel(), "FOO", "2");
        answerer->addAnswer("OK");
        answerer->addAnswer("OK");

        const InjectedFailure failure("write", bashrc(), ENOSPC);
        window.actionSave->trigger();

        QCOMPARE(answerer->seen.value(1).text, "Unable to save changes - file access denied!");
        QCOMPARE(window.statusBar()->currentMessage(), QString());
        QVERIFY(window.actionSave->isEnabled());
    }

    void copyIsKeptBeforeTheFileChanges()
    {
        EveModel model;
        setValue(model, "FOO", "2");

        QVERIFY(model.save());

        const QList<Backups::Copy> copies = Backups::list(bashrc());
        QCOMPARE(copies.size(), 1);
        QCOMPARE(Sandbox::readFile(copies.first().path), startupFile());
        QCOMPARE(statusOf(copies.first().path).st_mode & 07777, 0600u);
        QVERIFY(copies.first().path.startsWith(Sandbox::data()));
    }

    void onlyTheNewestCopiesOfAFileAreKept()
    {
        EveModel model;
        for (int i = 0; i < Backups::keptPerFile + 2; ++i) {
            setValue(model, "FOO", QString::number(i));
            QVERIFY(model.save());
        }

        const QList<Backups::Copy> copies = Backups::list(bashrc());
        QCOMPARE(copies.size(), Backups::keptPerFile);
        // Newest first: the last save copied the value of the one before.
        QVERIFY(Sandbox::readFile(copies.first().path).contains("export FOO=20\n"));
        QVERIFY(Sandbox::readFile(copies.last().path).contains("export FOO=1\n"));
    }

    void saveGoesOnWithoutADataFolder()
    {
        Sandbox::writeFile(Sandbox::home() + "/file", "");
        qputenv("XDG_DATA_HOME", QFile::encodeName(Sandbox::home() + "/file/data"));
        EveModel model;
        setValue(model, "FOO", "2");

        const bool saved = model.save();
        qunsetenv("XDG_DATA_HOME");

        QVERIFY(saved);
        QVERIFY(Sandbox::readFile(bashrc()).contains("\nexport FOO=2\n"));
    }

    void fileKeepsItsInodeModeAndLinks()
    {
        const QString other = Sandbox::home() + "/bashrc.link";
        QVERIFY(QFile::link(bashrc(), other + ".symbolic"));
        QCOMPARE(
            ::link(QFile::encodeName(bashrc()).constData(), QFile::encodeName(other).constData()),
            0);
        QCOMPARE(::chmod(QFile::encodeName(bashrc()).constData(), 0640), 0);
        const ino_t inode = statusOf(bashrc()).st_ino;
        EveModel model;
        setValue(model, "FOO", "2");

        QVERIFY(model.save());

        QCOMPARE(statusOf(bashrc()).st_ino, inode);
        QCOMPARE(statusOf(bashrc()).st_mode & 07777, 0640u);
        QCOMPARE(Sandbox::readFile(other), Sandbox::readFile(bashrc()));
        QVERIFY(QFileInfo(other + ".symbolic").isSymLink());
    }

    void scratchFileThatIsNotOursIsNotUsed_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addRow("a symbolic link to another file") << "link";
        QTest::addRow("a file of another user") << "foreign";
        QTest::addRow("a file with a second name") << "hard link";
    }
    void scratchFileThatIsNotOursIsNotUsed()
    {
        QFETCH(QString, kind);
        const QString scratch = Sandbox::system("/tmp/orv-admin-env-localfile");
        const QString victim = Sandbox::system("/etc/victim");
        Sandbox::writeFile(victim, "precious\n");
        if (kind == "link") {
            QVERIFY(QFile::link(victim, scratch));
        } else if (kind == "hard link") {
            QCOMPARE(::link(QFile::encodeName(victim).data(), QFile::encodeName(scratch).data()),
                     0);
        } else {
            Sandbox::writeFile(scratch, "precious\n");
            QCOMPARE(::chown(QFile::encodeName(scratch).constData(), 65534, 65534), 0);
        }
        blockHomeFiles();
        EveModel model;
        setValue(model, "FOO", "2");
        answerer->addAnswer("OK");

        QVERIFY(!model.save());

        QCOMPARE(Sandbox::readFile(victim), QByteArray("precious\n"));
        QCOMPARE(Sandbox::readFile(scratch), QByteArray("precious\n"));
        QCOMPARE(answerer->seen.value(0).text,
                 "Couldn't open file " + scratch + " for saving variable FOO");
    }

    void createdScratchFileIsPrivate()
    {
        const QString scratch = Sandbox::system("/tmp/orv-admin-env-localfile");
        blockHomeFiles();
        EveModel model;
        setValue(model, "FOO", "2");

        QVERIFY(model.save());

        QCOMPARE(Sandbox::readFile(scratch), QByteArray("export FOO=2\n"));
        QCOMPARE(statusOf(scratch).st_mode & 07777, 0600u);
    }
};

ORV_SANDBOX_TEST_MAIN(TestSafeSave)
#include "tst_safesave.moc"
