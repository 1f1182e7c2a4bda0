#include "evemodel.h"
#include "modalanswerer.h"
#include "sandbox.h"

#include <QApplication>
#include <QtTest>

namespace {

int rowOf(const EveModel &m, const QString &name)
{
    for (int r = 0; r < m.rowCount(); ++r) {
        if (m.index(r, EveModel::VariableColumn).data().toString() == name)
            return r;
    }
    return -1;
}

QString cell(const EveModel &m, const QString &name, int column)
{
    return m.index(rowOf(m, name), column).data().toString();
}

// Edits a variable as the editor dialog does: the record update of an
// existing row, otherwise a new row.
void change(EveModel &m, const QString &name, const QString &value, const QString &scope = "local",
            const QString &description = QString(), const QString &vip = QString())
{
    const int row = rowOf(m, name);
    if (row < 0)
        m.insertRows(m.rowCount(), 1, {name, value, description, scope});
    else
        m.setData(m.index(row, 0), name, value, description, scope, vip, QString(), Qt::EditRole);
}

QString setting(const QString &key)
{
    return QSettings().value("variables/" + key, "<none>").toString();
}

void checkWarning(const ModalAnswerer &answerer, const QString &text)
{
    QCOMPARE(answerer.pending(), 0);
    QCOMPARE(answerer.seen.size(), 1);
    const ModalAnswerer::Seen &box = answerer.seen[0];
    QCOMPARE(QStringList({box.className, box.title, box.text}) + box.buttons,
             QStringList({"QMessageBox", "Warning!", text, "OK"}));
}

} // namespace

class TestSaving : public QObject
{
    Q_OBJECT

    static QString local() { return Sandbox::home() + "/.bashrc"; }
    static QString profile() { return Sandbox::system("/etc/profile"); }
    static QString global() { return Sandbox::system("/etc/bash.bashrc"); }

private slots:
    // Saves "a b" into FOO (new) or, when /etc/profile exports it, into PATH.
    void writes_data()
    {
        QTest::addColumn<QString>("setup"); // "root", "block" (the origin), "link" (/etc/profile)
        QTest::addColumn<QString>("scope");
        QTest::addColumn<QByteArray>("profileBefore");
        QTest::addColumn<QByteArray>("localBefore");
        QTest::addColumn<QString>("target");
        QTest::addColumn<QByteArray>("expected");
        const auto add = [](const char *tag, const char *setup, const char *scope,
                            const QByteArray &profileBefore, const char *localBefore,
                            const QString &target, const QByteArray &expected) {
            QTest::addRow("%s", tag)
                << setup << scope << profileBefore << QByteArray(localBefore) << target << expected;
        };
        const QByteArray none, ab = "export FOO=\"a b\"\n";
        add("empty local", "", "local", none, "", local(), ab);
        add("prepended", "", "local", none, "x=1\nexport B=1", local(), ab + "x=1\nexport B=1\n");
        add("own line", "", "local", none, "x=1\nFOO=0 # c\n", local(), "x=1\nFOO=\"a b\"\n");
        add("origin wins, MANPATH too", "", "global", "export MANPATH=/m\nexport PATH=/b # c\n", "",
            profile(), "export MANPATH=\"a b\"\nexport PATH=\"a b\"\n");
        add("latin-1", "", "local", "# \xe9t\xe9\nexport PATH=/b\n", "", profile(),
            "# \xe9t\xe9\nexport PATH=\"a b\"\n");
        add("crlf", "", "local", "# a \r\nexport PATH=/b\r\nX=1\r\n", "", profile(),
            "# a \nexport PATH=\"a b\"\nX=1\n");
        add("link", "link", "local", "export PATH=/b\n", "", profile(), "export PATH=\"a b\"\n");
        add("origin blocked", "block", "local", "export PATH=/b\n", "", local(),
            "export PATH=\"a b\"\n");
        add("global, user", "", "global", none, "", local(), ab);
        add("global, root", "root", "global", none, "", global(), ab);
        add("Global, root", "root", "Global", none, "", local(), ab);
    }
    void writes()
    {
        Sandbox sandbox;
        QFETCH(QString, setup);
        QFETCH(QByteArray, profileBefore);
        QFETCH(QString, target);
        QFETCH(QString, scope);
        if (setup == "root")
            Sandbox::setUserEnvironment({"LOGNAME=root"});
        const QString real = Sandbox::home() + "/profile.real";
        if (setup == "link")
            QVERIFY(QFile::link(real, profile()));
        if (!profileBefore.isNull())
            Sandbox::writeFile(setup == "link" ? real : profile(), profileBefore);
        QFETCH(QByteArray, localBefore);
        Sandbox::writeFile(local(), localBefore);
        EveModel model;
        if (setup == "block")
            Sandbox::blockPath(profile());
        QMap<QString, QByteArray> before;
        for (const QString &file : {local(), profile(), global()})
            before[file] = Sandbox::readFile(file);
        const QString name = profileBefore.isNull() ? "FOO" : "PATH";
        change(model, name, "a b", scope);

        QVERIFY(model.save());
        QFETCH(QByteArray, expected);
        for (const QString &file : {local(), profile(), global()})
            QCOMPARE(Sandbox::readFile(file), file == target ? expected : before[file]);
        QCOMPARE(QFileInfo(profile()).isSymLink(), setup == "link");
        QCOMPARE(cell(model, name, EveModel::PreviousColumn), "");
    }

    void quoting_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QByteArray>("expected");
        const auto add = [](const char *tag, const char *name, const char *value,
                            const char *line) {
            QTest::addRow("%s", tag) << name << value << QByteArray(line);
        };
        add("trimmed", "FOO", "  x  ", "export FOO=x\n");
        add("quotes", "FOO", "say \"hi\"", "export FOO=\"say \\\"hi\\\"\"\n");
        add("quoted", "FOO", "\"x y\"", "export FOO=\"\\\"x y\\\"\"\n");
        add("dollar", "FOO", "$HOME/bin", "export FOO=$HOME/bin\n");
        add("backslash", "FOO", "a\\1\\", "export FOO=a\\1\\\n");
        add("percent", "FOO", "%1", "export FOO=%1\n");
        add("tab", "FOO", "a\tb", "export FOO=a\tb\n");
        // Written as it stands: what follows the newline becomes a line of its own.
        add("newline", "FOO", "a\nb\n", "export FOO=a\nb\n");
        // Names the validator lets through go into the pattern unescaped.
        add("bracket", "A[", "1", "export A[=1\nexport FOO=0\n");
        add("backslash name", "F\\OO", "1", "export F\\OO=1\n");
        add("caret", "^FOO", "1", "export ^FOO=1\nexport FOO=0\n");
        // FOO=0 counts as foo's assignment already being there, so nothing is written.
        add("other case", "foo", "0", "export FOO=0\n");
    }
    void quoting()
    {
        Sandbox sandbox;
        QFETCH(QString, name);
        QFETCH(QString, value);
        Sandbox::writeFile(local(), "export FOO=0\n");
        EveModel model;
        change(model, name, value);
        QVERIFY(model.save());
        QTEST(Sandbox::readFile(local()), "expected");
        QCOMPARE(cell(model, name, EveModel::ValueColumn), value);
    }

    void deleting_data()
    {
        QTest::addColumn<QByteArray>("profileBefore"); // null: FOO lives only in the environment
        QTest::addColumn<bool>("block");
        QTest::addColumn<QByteArray>("expected");
        const auto add = [](const char *tag, const QByteArray &before, bool block,
                            const char *expected) {
            QTest::addRow("%s", tag) << before << block << QByteArray(expected);
        };
        add("only line", "export FOO=1", false, " \n");
        add("prefix kept", "x=1; export FOO=1 # c\r\nexport B=2\n", false, "x=1;  \nexport B=2\n");
        add("longer name too", "export MYFOO=2\nexport FOO=1\n", false, " \n \n");
        add("environment only", QByteArray(), false, "<unreadable>");
        add("blocked", "export FOO=1\n", true, "<unreadable>");
    }
    void deleting()
    {
        Sandbox sandbox;
        QFETCH(QByteArray, profileBefore);
        QFETCH(bool, block);
        Sandbox::setUserEnvironment({"FOO=1"});
        if (!profileBefore.isNull())
            Sandbox::writeFile(profile(), profileBefore);
        EveModel model;
        if (block)
            Sandbox::blockPath(profile());
        model.removeRows(rowOf(model, "FOO"), 1);
        QCOMPARE(model.deletedRows.size(), 1);

        QDir::setCurrent(Sandbox::home()); // where a file named after Origin "System" would go
        ModalAnswerer answerer({"OK"});
        QVERIFY(model.save());
        QTEST(Sandbox::readFile(profile()), "expected");
        QCOMPARE(QDir().entryList(QDir::Files | QDir::Hidden), QStringList{".bashrc"});
        QCOMPARE(Sandbox::readFile(local()), QByteArray());
        QCOMPARE(model.deletedRows.size(), 0);
        if (block)
            checkWarning(answerer,
                         "Couldn't open file " + profile() + " for deleting variable FOO");
        else
            QCOMPARE(answerer.pending(), 1);
    }

    void nothingChanged()
    {
        Sandbox sandbox;
        Sandbox::writeFile(profile(), "export PATH=/bin");
        EveModel model;
        const QDateTime old(QDate(2001, 1, 1), QTime(0, 0), Qt::UTC);
        QFile file(profile());
        QVERIFY(file.open(QIODevice::ReadOnly));
        QVERIFY(file.setFileTime(old, QFileDevice::FileModificationTime));
        QVERIFY(model.save());
        QCOMPARE(Sandbox::readFile(profile()), QByteArray("export PATH=/bin"));
        QCOMPARE(QFileInfo(profile()).lastModified().toUTC(), old);
        QCOMPARE(Sandbox::readFile(local()), QByteArray());
    }

    void failureThenRetry()
    {
        Sandbox sandbox;
        // As root PATH comes from the global file, FOO from /etc/profile.
        Sandbox::setUserEnvironment({"LOGNAME=root", "FOO=1"});
        Sandbox::writeFile(global(), "export PATH=/bin\n");
        Sandbox::writeFile(profile(), "export FOO=1\n");
        EveModel model;
        model.removeRows(rowOf(model, "SHELL"), 1);
        change(model, "PATH", "/opt", "local", "my dirs", "true");
        change(model, "FOO", "2");
        Sandbox::blockPath(profile());
        Sandbox::blockPath(local());

        ModalAnswerer answerer({"OK"});
        QVERIFY(!model.save());
        checkWarning(answerer, "Couldn't open file " + local() + " for saving variable FOO");
        QCOMPARE(Sandbox::readFile(global()), QByteArray("export PATH=/opt\n"));
        QCOMPARE(cell(model, "FOO", EveModel::PreviousColumn), "1");
        QCOMPARE(cell(model, "PATH", EveModel::PreviousColumn), "/usr/bin:/bin");
        QCOMPARE(model.deletedRows.size(), 1);
        // Settings come before the files, so they survive the failure.
        QCOMPARE(setting("FOO/description"), "");
        QCOMPARE(setting("PATH/description"), "my dirs");
        QCOMPARE(setting("PATH/vip"), "true");
        QCOMPARE(setting("HOME/description"), "<none>");

        QVERIFY(QDir(local()).removeRecursively());
        QVERIFY(model.save());
        QCOMPARE(Sandbox::readFile(global()), QByteArray("export PATH=/opt\n"));
        QCOMPARE(Sandbox::readFile(local()), QByteArray("export FOO=2\n"));
        QCOMPARE(model.deletedRows.size(), 0);
        QCOMPARE(answerer.seen.size(), 1);
    }
};

ORV_SANDBOX_TEST_MAIN(TestSaving)
#include "tst_saving.moc"
