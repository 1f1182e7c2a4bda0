#include "evemodel.h"
#include "modalanswerer.h"
#include "sandbox.h"

#include <QApplication>
#include <QtTest>

static int rowOf(const EveModel &m, const QString &name)
{
    return m.match(m.index(0, 0), Qt::DisplayRole, name, 1, Qt::MatchExactly).value(0).row();
}

// Edits a variable as the editor dialog does: updates an existing row, else adds one.
static void change(EveModel &m, const QString &name, const QString &value, const QString &scope,
                   const QString &description = QString())
{
    const int row = rowOf(m, name);
    if (row < 0)
        m.insertRows(m.rowCount(), 1, {name, value, description, scope});
    else
        m.setData(m.index(row, 0), name, value, description, scope, "", "", Qt::EditRole);
}

static QString boxes(const ModalAnswerer &answerer)
{
    QString out;
    for (const ModalAnswerer::Seen &box : answerer.seen)
        out += box.title + ": " + box.text + " [" + box.buttons.join(',') + "]\n";
    return out;
}

class TestSaving : public QObject
{
    Q_OBJECT

    static QString local() { return Sandbox::home() + "/.bashrc"; }
    static QString profile() { return Sandbox::system("/etc/profile"); }
    static QString global() { return Sandbox::system("/etc/bash.bashrc"); }

private slots:
    void saves_data()
    {
        QTest::addColumn<QString>("setup"); // environment, global (scope), block/link profile
        QTest::addColumn<QString>("edit");  // NAME=value, or -NAME to delete
        QTest::addColumn<QByteArray>("profileBefore");
        QTest::addColumn<QByteArray>("localBefore"); // null: no file
        QTest::addColumn<QString>("target");         // the one file that changes
        QTest::addColumn<QByteArray>("expected");
        QTest::addColumn<QString>("warnings");
        const auto add = [](const char *tag, const char *setup, const char *edit,
                            QByteArray profile, QByteArray local, QString target,
                            QByteArray expected, QString warn = {}) {
            QTest::newRow(tag) << setup << edit << profile << local << target << expected << warn;
        };
        const QByteArray no, ab = "export FOO=\"a b\"\n", pathAB = "export PATH=\"a b\"\n";
        add("new, empty local", "", "FOO=a b", no, "", local(), ab);
        add("new, prepended", "", "FOO=a b", no, "x=1", local(), ab + "x=1\n");
        add("MANPATH too", "global", "PATH=a b", "export MANPATH=/m\nexport PATH=/b # c\n", no,
            profile(), "export MANPATH=\"a b\"\n" + pathAB);
        add("latin-1, crlf", "", "PATH=a b", "# \xe9\r\nexport PATH=/b\r\n", no, profile(),
            "# \xe9\n" + pathAB);
        add("link kept", "link", "PATH=a b", "export PATH=/b\n", no, profile(), pathAB);
        add("origin blocked", "block", "PATH=a b", "export PATH=/b\n", no, local(), pathAB);
        add("global, user", "global", "FOO=a b", no, no, local(), ab);
        add("global, root", "LOGNAME=root global", "FOO=a b", no, no, global(), ab);
        add("trimmed", "", "FOO=  x  ", no, no, local(), "export FOO=x\n");
        add("quote", "", "FOO=a\"b", no, no, local(), "export FOO=a\\\"b\n");
        add("quoted", "", "FOO=\"x y\"", no, no, local(), "export FOO=\"\\\"x y\\\"\"\n");
        add("tab", "", "FOO=a\tb", no, no, local(), "export FOO=a\tb\n");
        add("newline", "", "FOO=a\nb\n", no, no, local(), "export FOO=a\nb\n");
        add("name A[", "", "A[=1", no, "export FOO=0\n", local(), "export A[=1\nexport FOO=0\n");
        add("name \\", "", "F\\OO=1", no, "export FOO=0\n", local(), "export F\\OO=1\n");
        add("name ^", "", "^FOO=1", no, "export FOO=0\n", local(), "export ^FOO=1\nexport FOO=0\n");
        add("deleted, only line", "FOO=1", "-FOO", "export FOO=1", no, profile(), " \n");
        add("deleted, environment only", "FOO=1", "-FOO", no, no, QString(), no);
        add("deleted, origin blocked", "FOO=1 block", "-FOO", "export FOO=1\n", no, QString(), no,
            "Warning!: Couldn't open file " + profile() + " for deleting variable FOO [OK]\n");
        add("nothing changed", "", "", "export PATH=/bin", no, QString(), no);
    }
    void saves()
    {
        Sandbox sandbox;
        QFETCH(QString, setup);
        QFETCH(QString, edit);
        QFETCH(QByteArray, profileBefore);
        QFETCH(QByteArray, localBefore);
        Sandbox::setUserEnvironment(setup.split(' ').filter("="));
        if (setup.contains("link"))
            QVERIFY(QFile::link(Sandbox::home() + "/profile.real", profile()));
        Sandbox::writeFile(profile(), profileBefore);
        if (!localBefore.isNull())
            Sandbox::writeFile(local(), localBefore);
        QDir::setCurrent(Sandbox::system("/tmp")); // where a file named "System" would go
        EveModel model;
        if (setup.contains("block"))
            Sandbox::blockPath(profile());
        const QStringList files{local(), profile(), global()};
        QByteArrayList before;
        for (const QString &file : files)
            before << Sandbox::readFile(file);
        if (edit.startsWith('-'))
            QVERIFY(model.removeRows(rowOf(model, edit.mid(1)), 1));
        else if (!edit.isEmpty())
            change(model, edit.section('=', 0, 0), edit.section('=', 1),
                   setup.contains("global") ? "global" : "local");
        ModalAnswerer answerer({"OK"});
        QVERIFY(model.save());
        QFETCH(QString, target);
        QFETCH(QByteArray, expected);
        for (int i = 0; i < files.size(); ++i)
            QCOMPARE(Sandbox::readFile(files[i]), files[i] == target ? expected : before[i]);
        QCOMPARE(QFileInfo(profile()).isSymLink(), setup.contains("link"));
        QCOMPARE(QDir().entryList(QDir::Files | QDir::Hidden), QStringList());
        QTEST(boxes(answerer), "warnings");
    }

    void failure()
    {
        Sandbox sandbox;
        Sandbox::setUserEnvironment({"FOO=1"});
        Sandbox::writeFile(profile(), "export FOO=1\n");
        EveModel model;
        model.removeRows(rowOf(model, "SHELL"), 1);
        change(model, "FOO", "2", "local", "d");
        Sandbox::blockPath(profile());
        Sandbox::blockPath(local());
        ModalAnswerer answerer({"OK"});
        QVERIFY(!model.save());
        QCOMPARE(boxes(answerer),
                 "Warning!: Couldn't open file " + local() + " for saving variable FOO [OK]\n");
        QCOMPARE(model.index(rowOf(model, "FOO"), EveModel::PreviousColumn).data().toString(), "1");
        QCOMPARE(model.deletedRows.size(), 1);
        QSettings s; // written first, so kept; none for unchanged rows
        QCOMPARE(s.allKeys().join(' ') + '=' + s.value("variables/FOO/description").toString(),
                 "variables/FOO/description variables/FOO/vip=d");
    }
};

ORV_SANDBOX_TEST_MAIN(TestSaving)
#include "tst_saving.moc"
