#include "core/files/backups.h"
#include "gui/app/eve.h"
#include "gui/model/evemodel.h"
#include "support/sandboxtest.h"
#include "support/tablehelpers.h"
#include "support/windowhelpers.h"

#include <dlfcn.h>
#include <sys/resource.h>
#include <unistd.h>

namespace {

// The FOO line is long, so that saving a short value makes the file shorter.
QByteArray startupFile(const QByteArray &foo = QByteArray(100, 'x'))
{
    QByteArray bytes = "# ~/.bashrc\nexport FOO=" + foo + "\n";
    for (int i = 0; i < 200; ++i)
        bytes += "alias l" + QByteArray::number(i) + "='ls -l'\n";
    return bytes;
}

} // namespace

class TestSafeSave : public SandboxTest
{
    Q_OBJECT

    const QString bashrc = Sandbox::home() + "/.bashrc";
    QScopedPointer<Eve> window;

    EveModel &model() { return *modelOf(*window); }
    // Makes one kind of call on ~/.bashrc fail from now until cleanup(),
    // through the preload library the tests run with (support/failio.cpp).
    void injectFailure(const char *call, int error, int bytesFirst = 0, int times = 1)
    {
        qputenv("ORV_FAIL_CALL", call);
        qputenv("ORV_FAIL_PATH", QFile::encodeName(bashrc));
        qputenv("ORV_FAIL_ERRNO", QByteArray::number(error));
        qputenv("ORV_FAIL_AFTER", QByteArray::number(bytesFirst));
        qputenv("ORV_FAIL_TIMES", QByteArray::number(times));
        reinterpret_cast<void (*)()>(::dlsym(RTLD_DEFAULT, "orv_failio_reset"))();
    }
    void setFoo(const QString &value)
    {
        model().setData(model().index(rowOf(model(), "FOO"), EveModel::ValueColumn), value);
    }
    QString writeFailure(int error)
    {
        return "Couldn't write file " + bashrc +
               " for saving variable FOO: " + qt_error_string(error);
    }
    // Saves from the window, which must report the reason and a failed save,
    // and keep the file and the row's mark.
    void checkFailedSave(const QString &reason)
    {
        answerer->addAnswer("OK");
        answerer->addAnswer("OK");
        window->actionSave->trigger();
        QCOMPARE(answerer->seen.value(0).text, reason);
        QCOMPARE(answerer->seen.value(1).text, "Unable to save changes - file access denied!");
        QCOMPARE(window->statusBar()->currentMessage(), QString());
        QCOMPARE(Sandbox::readFile(bashrc), startupFile());
        QCOMPARE(cellOf(model(), "FOO", EveModel::PreviousColumn), QString(100, 'x'));
    }

private slots:
    void initTestCase()
    {
        QVERIFY2(::dlsym(RTLD_DEFAULT, "orv_failio_reset"), "the tests run with libfailio");
    }
    void init()
    {
        SandboxTest::init();
        Sandbox::setUserEnvironment({"FOO=" + QString(100, 'x')});
        Sandbox::writeFile(bashrc, startupFile());
        window.reset(new Eve);
    }
    void cleanup()
    {
        qunsetenv("ORV_FAIL_CALL");
        window.reset();
        SandboxTest::cleanup();
    }

    void failedCallLeavesTheFileAsItWasAndTheSaveFails_data()
    {
        QTest::addColumn<QByteArray>("call");
        QTest::addColumn<int>("error");
        QTest::addColumn<int>("bytesFirst");
        QTest::addRow("the disk fills up in the middle of the write")
            << QByteArray("pwrite") << ENOSPC << 1000;
        QTest::addRow("syncing to the disk fails") << QByteArray("fsync") << EIO << 0;
        QTest::addRow("cutting the file to its new length fails")
            << QByteArray("ftruncate") << EIO << 0;
        QTest::addRow("no room can be reserved for the new content")
            << QByteArray("fallocate") << ENOSPC << 0;
        QTest::addRow("reading fails in the middle") << QByteArray("pread") << EIO << 1000;
        QTest::addRow("the file ends before its size") << QByteArray("pread") << 0 << 1000;
    }
    void failedCallLeavesTheFileAsItWasAndTheSaveFails()
    {
        QFETCH(QByteArray, call);
        QFETCH(int, error);
        QFETCH(int, bytesFirst);
        setFoo("2");
        injectFailure(call.constData(), error, bytesFirst);

        checkFailedSave(call == "pread"
                            ? "Couldn't open file " + bashrc + " for saving variable FOO"
                            : writeFailure(error));
    }

    // A write past the limit would also end the program by SIGXFSZ.
    void fileSizeLimitFailsTheSave()
    {
        setFoo(QString(200, 'y'));
        struct rlimit limit;
        QCOMPARE(::getrlimit(RLIMIT_FSIZE, &limit), 0);
        const struct rlimit small = {rlim_t(startupFile().size()), limit.rlim_max};
        QCOMPARE(::setrlimit(RLIMIT_FSIZE, &small), 0);

        checkFailedSave(writeFailure(EFBIG));
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }

    // The copy is checked against the limit before a byte of it is written:
    // SIGXFSZ, which is not ignored here, would end the test.
    void copyThatWouldPassTheSizeLimitIsNotStarted()
    {
        setFoo("2");
        struct rlimit limit;
        QCOMPARE(::getrlimit(RLIMIT_FSIZE, &limit), 0);
        const struct rlimit small = {rlim_t(startupFile().size() - 1), limit.rlim_max};
        QCOMPARE(::setrlimit(RLIMIT_FSIZE, &small), 0);

        checkFailedSave(writeFailure(EFBIG));
        ::setrlimit(RLIMIT_FSIZE, &limit);
        QCOMPARE(Backups::list(bashrc)->size(), 0);
    }

    // Copies made while the clock was an hour ahead are older all the same;
    // the copy a save has just made is never the one pruned.
    void copiesArePrunedInTheOrderTheyWereMade()
    {
        const QDateTime ahead = QDateTime::currentDateTimeUtc().addSecs(3600);
        for (int i = 0; i < Backups::keptPerFile; ++i)
            Sandbox::writeFile(Backups::directory() + '/' +
                                   Backups::fileName(bashrc, ahead.addSecs(i)),
                               "earlier " + QByteArray::number(i));

        setFoo("2");
        QVERIFY(model().save());

        const QList<Backups::Copy> copies = Backups::list(bashrc).value();
        QCOMPARE(copies.size(), Backups::keptPerFile);
        QCOMPARE(Sandbox::readFile(copies.first().path), startupFile());
        QCOMPARE(copies.first().number, 1);
        QCOMPARE(Sandbox::readFile(copies.last().path), "earlier 1"); // "earlier 0" went
    }

    // A copy is written under another name and renamed once whole; what a
    // program that died while writing one left behind is cleared away.
    void aCopyCutShortIsNeverListed()
    {
        QProcess gone;
        gone.start("true", QStringList());
        const qint64 pid = gone.processId();
        QVERIFY(gone.waitForFinished());
        const QString abandoned = Backups::directory() + QStringLiteral("/.partial-%1-0").arg(pid);
        const QString running =
            Backups::directory() + QStringLiteral("/.partial-%1-7").arg(::getppid());
        Sandbox::writeFile(abandoned, "cut");
        Sandbox::writeFile(running, "in the making");

        setFoo("2");
        QVERIFY(model().save());

        QCOMPARE(Backups::list().value().size(), 1);
        QVERIFY(!QFileInfo::exists(abandoned));
        QVERIFY(QFileInfo::exists(running));
    }

    void failureThatCannotBeUndoneNamesTheCopy()
    {
        setFoo("2");
        answerer->addAnswer("OK");
        injectFailure("pwrite", EIO, 10, 1000);

        QVERIFY(!model().save());

        const QString copy = Backups::list(bashrc)->value(0).path;
        QCOMPARE(answerer->seen.value(0).text,
                 writeFailure(EIO) + " Its content from before the save is kept in " + copy + ".");
    }

    void fileTooLargeToReadIsNotRewritten()
    {
        QVERIFY(QFile::resize(bashrc, qint64(1) << 31)); // sparse: costs no disk space
        setFoo("2");
        answerer->addAnswer("OK");

        QVERIFY(!model().save());
        QCOMPARE(QFileInfo(bashrc).size(), qint64(1) << 31);
    }

    void deletionWhoseFileCannotBeWrittenIsSkipped()
    {
        QVERIFY(model().removeRows(rowOf(model(), "FOO"), 1));
        answerer->addAnswer("OK");
        injectFailure("pwrite", ENOSPC);

        QVERIFY2(model().save(), "a deletion that fails does not fail the save");
        QCOMPARE(Sandbox::readFile(bashrc), startupFile());
        QCOMPARE(answerer->seen.value(0).text,
                 "Couldn't write file " + bashrc +
                     " for deleting variable FOO: " + qt_error_string(ENOSPC));
    }

    // Through a symbolic link, into the same inode, each time after a
    // private copy, of which the newest are kept.
    void saveRewritesTheFileInPlaceAfterCopyingIt()
    {
        const QString target = Sandbox::home() + "/dotfiles/bashrc";
        Sandbox::writeFile(target, startupFile());
        QVERIFY(QFile::remove(bashrc) && QFile::link(target, bashrc));
        const ino_t inode = Sandbox::statusOf(target).st_ino;

        for (int i = 0; i <= Backups::keptPerFile + 1; ++i) {
            setFoo(QString::number(i));
            QVERIFY(model().save());
        }

        QVERIFY(QFileInfo(bashrc).isSymLink());
        QCOMPARE(Sandbox::readFile(target), startupFile("21"));
        QCOMPARE(Sandbox::statusOf(target).st_ino, inode);
        const QList<Backups::Copy> copies = Backups::list(bashrc).value();
        QCOMPARE(copies.size(), Backups::keptPerFile);
        QCOMPARE(Sandbox::statusOf(copies.first().path).st_mode & 07777, 0600u);
        // Newest first: the last save copied the value of the one before.
        QCOMPARE(Sandbox::readFile(copies.first().path), startupFile("20"));
        QCOMPARE(Sandbox::readFile(copies.last().path), startupFile("1"));
    }

    // It says so: the content from before the save then exists nowhere.
    void saveGoesOnWithoutADataFolderAndSaysSo()
    {
        QVERIFY(QDir(Sandbox::data()).removeRecursively());
        Sandbox::writeFile(Sandbox::data(), "");
        setFoo("2");
        answerer->addAnswer("OK");

        QVERIFY(model().save());
        QCOMPARE(Sandbox::readFile(bashrc), startupFile("2"));
        QCOMPARE(answerer->seen.value(0).text,
                 "Saved " + bashrc + " without a copy: " + qt_error_string(ENOTDIR));
    }

    void scratchFileIsUsedOnlyWhenItIsOurs_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addRow("a symbolic link to another file") << "link";
        QTest::addRow("a file of another user") << "foreign";
        QTest::addRow("a file with a second name") << "hard link";
    }
    // Once the planted file is gone, the save creates a private one.
    void scratchFileIsUsedOnlyWhenItIsOurs()
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
        // Home files that cannot be opened make the scratch file the choice.
        for (const char *name : {"/.bashrc", "/.bash_profile", "/.profile"})
            Sandbox::blockPath(Sandbox::home() + name);
        window.reset(new Eve);
        setFoo("2");
        answerer->addAnswer("OK");

        QVERIFY(!model().save());

        QCOMPARE(Sandbox::readFile(scratch), QByteArray("precious\n")); // the victim, if linked
        QCOMPARE(answerer->seen.value(0).text,
                 "Couldn't open file " + scratch + " for saving variable FOO");

        QVERIFY(QFile::remove(scratch));
        QVERIFY(model().save());
        QCOMPARE(Sandbox::readFile(scratch), QByteArray("export FOO=2\n"));
        QCOMPARE(Sandbox::statusOf(scratch).st_mode & 07777, 0600u);
    }
};

ORV_SANDBOX_TEST_MAIN(TestSafeSave)
#include "tst_safesave.moc"
