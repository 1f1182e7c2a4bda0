#include "evemodel.h"
#include "modalanswerer.h"
#include "sandbox.h"

#include <QApplication>
#include <QSettings>
#include <QtTest>

#include <sys/stat.h>

using L = QStringList;

class TestLoading : public QObject
{
    Q_OBJECT

    static QString bashrc() { return Sandbox::home() + "/.bashrc"; }
    // All columns of the row of that name; empty when there is none.
    static L rowOf(const EveModel &model, const QString &name)
    {
        L row;
        for (const QModelIndex &index :
             model.match(model.index(0, 0), Qt::DisplayRole, name, 1, Qt::MatchExactly)) {
            for (int column = 0; column < EveModel::ColumnCount; ++column)
                row << index.siblingAtColumn(column).data().toString();
        }
        return row;
    }

private slots:
    void row_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<L>("expected"); // Value and Origin; empty when there is no row
        const QString etc = Sandbox::system("/etc/profile"), user = bashrc();
        QTest::addRow("file only") << "ONLY" << L();
        QTest::addRow("user file wins") << "PATH" << L{"/usr/bin:/bin", user};
        QTest::addRow("system file") << "SYS" << L{"s", etc};
        QTest::addRow("commented out") << "COMM" << L{"c", user};
        QTest::addRow("no export") << "PLAIN" << L{"p", "System"};
        QTest::addRow("other case") << "CASE" << L{"k", "System"};
        QTest::addRow("invalid utf-8") << "V1" << L{"1", user};
        QTest::addRow("nul") << "V2" << L{"2", user};
        QTest::addRow("after 1 MiB line") << "V3" << L{"3", user};
        QTest::addRow("no final line end") << "V4" << L{"4", user};
        QTest::addRow("empty value") << "EMPTY" << L{"", "System"};
        QTest::addRow("dash in name") << "B" << L{"1", "System"};
        QTest::addRow("later assignment") << "a" << L{"b", "System"};
    }
    void row()
    {
        Sandbox sandbox;
        QFETCH(QString, name);
        Sandbox::writeFile(Sandbox::system("/etc/profile"),
                           "export PATH=/a\nexport SYS=1\nexport COMM=1\n");
        Sandbox::writeFile(
            bashrc(), "export PATH=/b\n# export COMM=2\nPLAIN=2\nexport case=2\nexport ONLY=2\n" +
                          QByteArrayLiteral("\xff\xfe\nexport V1=a\xff\r\n\0\nexport V2=b\0c\n") +
                          QByteArray(1 << 20, 'x') + "\nexport V3=c\nexport V4=d");
        QSettings().setValue("configFiles/bash", L{Sandbox::home() + "/missing"});
        Sandbox::setUserEnvironment({"SYS=s", "COMM=c", "PLAIN=p", "CASE=k", "V1=1", "V2=2", "V3=3",
                                     "V4=4", "EMPTY=", "A-B=1", "X-=a=b", "=x", "-=y"});
        ModalAnswerer answerer({"OK"}); // spare: no message is expected
        EveModel model;
        QVERIFY(answerer.seen.isEmpty());
        const L row = rowOf(model, name);
        QTEST(row.isEmpty() ? L() : L({row[1], row[2]}), "expected");
        QCOMPARE(model.rowCount(), 15); // HOME, LOGNAME, SHELL, PATH and eleven of the entries
    }

    void descriptions_data()
    {
        QTest::addColumn<L>("settings"); // keys under "variables/" and their values
        QTest::addColumn<QString>("name");
        QTest::addColumn<L>("expected"); // Value, Description and Vip
        const QString path = "/usr/bin:/bin";
        const QString text =
            "A colon-separated list of directories in which the shell looks for commands.";
        QTest::addRow("catalogue") << L{"path/description", "x"} << "PATH" << L{path, text, "true"};
        QTest::addRow("empty text wins")
            << L{"PATH/description", ""} << "PATH" << L{path, "", "true"};
        QTest::addRow("vip cleared") << L{"PATH/vip", ""} << "PATH" << L{path, text, ""};
        QTest::addRow("own entries") << L{"EDITOR/description", "ed", "EDITOR/vip", "true"}
                                     << "EDITOR" << L{"vim", "ed", "true"};
    }
    void descriptions()
    {
        Sandbox sandbox;
        QFETCH(L, settings);
        QFETCH(QString, name);
        for (int i = 0; i < settings.size(); i += 2)
            QSettings().setValue("variables/" + settings[i], settings[i + 1]);
        // The Value column keeps the environment's text whatever the file says.
        Sandbox::writeFile(bashrc(), "export PATH=/x\nexport EDITOR=vi\n");
        Sandbox::setUserEnvironment({"EDITOR=vim"});
        EveModel model;
        const L row = rowOf(model, name);
        QTEST(L({row[1], row[3], row[5]}), "expected");
    }

    void reloadForgetsDeletions()
    {
        Sandbox sandbox;
        Sandbox::writeFile(bashrc(), "export EDITOR=vi\n");
        Sandbox::setUserEnvironment({"EDITOR=vim"});
        EveModel model;
        const int rows = model.rowCount();
        const L editor = rowOf(model, "EDITOR");
        QCOMPARE(editor, L({"EDITOR", "vim", bashrc(), "", "local", "", ""}));
        model.removeRows(model.match(model.index(0, 0), Qt::DisplayRole, "EDITOR")[0].row(), 1);
        QCOMPARE(model.deletedRows, QList<L>{editor});
        QVERIFY(model.reload());
        QVERIFY(model.deletedRows.isEmpty());
        QCOMPARE(model.rowCount(), rows);
        QCOMPARE(rowOf(model, "EDITOR"), editor);
    }

    void unopenableFiles()
    {
        Sandbox sandbox;
        const QString dir = Sandbox::system("/etc/dir"), fifo = Sandbox::system("/etc/fifo");
        const QString next = Sandbox::system("/etc/next");
        Sandbox::blockPath(dir);
        QCOMPARE(mkfifo(QFile::encodeName(fifo).constData(), 0600), 0);
        Sandbox::writeFile(next, "export EDITOR=vi\n");
        QSettings().setValue("configFiles/system", L{dir, fifo, next});
        Sandbox::setUserEnvironment({"EDITOR=vim"});
        ModalAnswerer answerer({"OK", "OK"});
        EveModel model;
        QCOMPARE(answerer.pending(), 0);
        L boxes;
        for (const ModalAnswerer::Seen &box : qAsConst(answerer.seen))
            boxes << box.className << box.title << box.text << box.buttons;
        const QString text = "Couldn't open file: %1 !";
        QCOMPARE(boxes, L({"QMessageBox", "", text.arg(dir), "OK", "QMessageBox", "",
                           text.arg(fifo), "OK"}));
        // Loading goes on with the next file.
        QCOMPARE(rowOf(model, "EDITOR").at(2), next);
    }
};

ORV_SANDBOX_TEST_MAIN(TestLoading)
#include "tst_loading.moc"
