#include "backups.h"
#include "eve.h"
#include "evemodel.h"
#include "modalanswerer.h"
#include "safefile.h"
#include "sandbox.h"

#include <QtTest>

#include <dlfcn.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

// Makes one kind of system call fail on one file, through the preload
// library the tests run with, until the object goes.
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
        reset();
    }
    ~InjectedFailure()
    {
        for (const char *name : {"ORV_FAIL_CALL", "ORV_FAIL_PATH", "ORV_FAIL_ERRNO",
                                 "ORV_FAIL_AFTER", "ORV_FAIL_TIMES"})
            qunsetenv(name);
    }
    static bool available() { return ::dlsym(RTLD_DEFAULT, "orv_failio_reset") != nullptr; }

private:
    static void reset()
    {
        reinterpret_cast<void (*)()>(::dlsym(RTLD_DEFAULT, "orv_failio_reset"))();
    }
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

int rowOf(const EveModel &model, const QString &name)
{
    return model.match(model.index(0, 0), Qt::DisplayRole, name, 1, Qt::MatchExactly)
        .value(0)
        .row();
}

QString previousValueOf(const EveModel &model, const QString &name)
{
    return model.index(rowOf(model, name), EveModel::PreviousColumn).data().toString();
}

void setValue(EveModel &model, const QString &name, const QString &value)
{
    model.setData(model.index(rowOf(model, name), EveModel::ValueColumn), value);
}

QString boxText(const ModalAnswerer &answerer)
{
    return answerer.seen.value(0).title + ": " + answerer.seen.value(0).text;
}

QString writeFailure(const QString &path, const QString &name, int error)
{
    return "Warning!: Couldn't write file " + path + " for saving variable " + name + ": " +
           qt_error_string(error);
}

mode_t modeOf(const QString &path)
{
    struct stat info;
    return ::stat(QFile::encodeName(path).constData(), &info) == 0 ? info.st_mode & 07777 : 0;
}

ino_t inodeOf(const QString &path)
{
    struct stat info;
    return ::stat(QFile::encodeName(path).constData(), &info) == 0 ? info.st_ino : 0;
}

// Makes the home useless for a start-up file, so the local scratch file is chosen.
void blockHomeFiles()
{
    for (const char *name : {"/.bashrc", "/.bash_profile", "/.profile"})
        Sandbox::blockPath(Sandbox::home() + name);
}

} // namespace

class TestSafeSave : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY2(InjectedFailure::available(), "tests run with libfailio"); }

    void init()
    {
        sandbox.reset(new Sandbox);
        Sandbox::setUserEnvironment({"FOO=" + QString(100, 'x')});
        Sandbox::writeFile(bashrc(), startupFile());
    }
    void cleanup() { sandbox.reset(); }

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
        ModalAnswerer answerer({"OK"});

        const InjectedFailure failure(call.constData(), bashrc(), error, bytesFirst);
        const bool saved = model.save();

        QVERIFY2(!saved, "a save whose write failed must say so");
        QCOMPARE(Sandbox::readFile(bashrc()), startupFile());
        QCOMPARE(previousValueOf(model, "FOO"), QString(100, 'x'));
        QCOMPARE(boxText(answerer), writeFailure(bashrc(), "FOO", error));
        QCOMPARE(answerer.pending(), 0);
    }

    void failureThatCannotBeUndoneNamesTheCopy()
    {
        EveModel model;
        setValue(model, "FOO", "2");
        ModalAnswerer answerer({"OK"});

        const InjectedFailure failure("write", bashrc(), EIO, 10, 1000);
        QVERIFY(!model.save());

        const QList<Backups::Copy> copies = Backups::list(bashrc());
        QCOMPARE(copies.size(), 1);
        QCOMPARE(Sandbox::readFile(copies.first().path), startupFile());
        QCOMPARE(boxText(answerer), writeFailure(bashrc(), "FOO", EIO) +
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
        ModalAnswerer answerer({"OK"});

        const InjectedFailure failure("read", bashrc(), error, bytesFirst);
        const bool saved = model.save();

        QVERIFY(!saved);
        QCOMPARE(Sandbox::readFile(bashrc()), startupFile());
        QCOMPARE(boxText(answerer),
                 "Warning!: Couldn't open file " + bashrc() + " for saving variable FOO");
        QCOMPARE(answerer.pending(), 0);
    }

    // Without the check the write past the limit would raise SIGXFSZ, which
    // ends a process that does not ignore it.
    void fileSizeLimitNeverEndsTheProgram()
    {
        const pid_t child = ::fork();
        if (child == 0) {
            const struct rlimit limit = {rlim_t(startupFile().size()), RLIM_INFINITY};
            ::setrlimit(RLIMIT_FSIZE, &limit);
            QString error;
            bool restored;
            const bool written = SafeFile::rewrite(bashrc(), true, startupFile(),
                                                   startupFile() + "more", &error, &restored);
            ::_exit(written ? 1 : 0);
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
        const QModelIndex origin = model.index(rowOf(model, "FOO"), EveModel::OriginColumn);
        model.setData(origin, huge); // as if the large file exported it
        setValue(model, "FOO", "2");

        QVERIFY(model.save());

        QCOMPARE(QFileInfo(huge).size(), qint64(1) << 31);
        QFile file(huge);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.read(13), QByteArray("export FOO=1\n"));
        QVERIFY(Sandbox::readFile(bashrc()).contains("\nexport FOO=2\n"));
    }

    void deletionWhoseFileCannotBeWrittenIsSkipped()
    {
        EveModel model;
        QVERIFY(model.removeRows(rowOf(model, "FOO"), 1));
        ModalAnswerer answerer({"OK"});

        const InjectedFailure failure("write", bashrc(), ENOSPC);
        const bool saved = model.save();

        QVERIFY2(saved, "a deletion that fails does not fail the save");
        QCOMPARE(Sandbox::readFile(bashrc()), startupFile());
        QCOMPARE(boxText(answerer), "Warning!: Couldn't write file " + bashrc() +
                                        " for deleting variable FOO: " + qt_error_string(ENOSPC));
        QCOMPARE(model.deletedRows.size(), 0);
    }

    void windowReportsAFailedWriteAsAFailedSave()
    {
        Eve window;
        setValue(*window.eveModel(), "FOO", "2");
        ModalAnswerer answerer({"OK", "OK"});

        const InjectedFailure failure("write", bashrc(), ENOSPC);
        window.actionSave->trigger();

        QCOMPARE(answerer.seen.size(), 2);
        QCOMPARE(answerer.seen.at(1).text, "Unable to save changes - file access denied!");
        QCOMPARE(window.statusBar()->currentMessage(), QString());
        QVERIFY(window.actionSave->isEnabled());
        QCOMPARE(Sandbox::readFile(bashrc()), startupFile());
    }

    void copyIsKeptBeforeTheFileChanges()
    {
        EveModel model;
        setValue(model, "FOO", "2");

        QVERIFY(model.save());

        const QList<Backups::Copy> copies = Backups::list(bashrc());
        QCOMPARE(copies.size(), 1);
        QCOMPARE(copies.first().original, bashrc());
        QCOMPARE(Sandbox::readFile(copies.first().path), startupFile());
        QCOMPARE(modeOf(copies.first().path), mode_t(0600));
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

        QVERIFY(saved);
        QVERIFY(Sandbox::readFile(bashrc()).contains("\nexport FOO=2\n"));
    }

    void fileKeepsItsInodeModeAndLinks()
    {
        const QString other = Sandbox::home() + "/bashrc.link";
        QVERIFY(::link(QFile::encodeName(bashrc()).constData(),
                       QFile::encodeName(other).constData()) == 0);
        QVERIFY(::chmod(QFile::encodeName(bashrc()).constData(), 0640) == 0);
        const ino_t inode = inodeOf(bashrc());
        EveModel model;
        setValue(model, "FOO", "2");

        QVERIFY(model.save());

        QCOMPARE(inodeOf(bashrc()), inode);
        QCOMPARE(modeOf(bashrc()), mode_t(0640));
        QCOMPARE(Sandbox::readFile(other), Sandbox::readFile(bashrc()));
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
        blockHomeFiles();
        const QString scratch = Sandbox::system("/tmp/orv-admin-env-localfile");
        const QString victim = Sandbox::system("/etc/victim");
        Sandbox::writeFile(victim, "precious\n");
        if (kind == "link") {
            QVERIFY(QFile::link(victim, scratch));
        } else if (kind == "hard link") {
            QVERIFY(::link(QFile::encodeName(victim).constData(),
                           QFile::encodeName(scratch).constData()) == 0);
        } else {
            Sandbox::writeFile(scratch, "precious\n");
            QVERIFY(::chown(QFile::encodeName(scratch).constData(), 65534, 65534) == 0);
        }
        EveModel model;
        setValue(model, "FOO", "2");
        ModalAnswerer answerer({"OK"});

        QVERIFY(!model.save());

        QCOMPARE(Sandbox::readFile(victim), QByteArray("precious\n"));
        QCOMPARE(Sandbox::readFile(scratch), QByteArray("precious\n"));
        QCOMPARE(boxText(answerer),
                 "Warning!: Couldn't open file " + scratch + " for saving variable FOO");
    }

    void createdScratchFileIsPrivate()
    {
        blockHomeFiles();
        const QString scratch = Sandbox::system("/tmp/orv-admin-env-localfile");
        EveModel model;
        setValue(model, "FOO", "2");

        QVERIFY(model.save());

        QCOMPARE(Sandbox::readFile(scratch), QByteArray("export FOO=2\n"));
        QCOMPARE(modeOf(scratch), mode_t(0600));
    }

private:
    QScopedPointer<Sandbox> sandbox;
};

ORV_SANDBOX_TEST_MAIN(TestSafeSave)
#include "tst_safesave.moc"
