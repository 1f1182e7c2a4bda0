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

    // Rows as "NAME|Value|Origin|Description|Vip", sorted; the sandbox home is "~" and the
    // sandbox root "/".
    static L rowsOf(const EveModel &model)
    {
        L rows;
        for (int r = 0; r < model.rowCount(); ++r) {
            L row;
            for (int column : {0, 1, 2, 3, 5})
                row << model.index(r, column).data().toString();
            rows << row.join('|').replace(Sandbox::home(), "~").replace(Sandbox::sysroot(), "");
        }
        rows.sort();
        return rows;
    }

private slots:
    void load()
    {
        Sandbox sandbox;
        const QString dir = Sandbox::system("/etc/dir"), fifo = Sandbox::system("/etc/fifo");
        Sandbox::blockPath(dir);
        QCOMPARE(mkfifo(QFile::encodeName(fifo).constData(), 0600), 0);
        Sandbox::writeFile(Sandbox::system("/etc/next"), "export EDITOR=vi\n");
        Sandbox::writeFile(Sandbox::system("/etc/profile"),
                           "export PATH=/a\nexport SYS=1\nexport COMM=1\n");
        Sandbox::writeFile(
            Sandbox::home() + "/.bashrc",
            "export PATH=/b\n# export COMM=2\nPLAIN=2\nexport case=2\nexport ONLY=2\n" +
                QByteArrayLiteral("\xff\xfe\nexport V1=a\xff\r\n\0\nexport V2=b\0c\n") +
                QByteArray(1 << 20, 'x') + "\nexport V3=c\nexport V4=d");
        QSettings settings;
        settings.setValue("configFiles/system", L{dir, fifo, Sandbox::system("/etc/next")});
        settings.setValue("configFiles/bash", L{Sandbox::home() + "/missing"});
        settings.setValue("variables/HOME/description", "h");
        settings.setValue("variables/PATH/description", ""); // wins over the catalogue
        settings.setValue("variables/LOGNAME/vip", "");
        settings.setValue("variables/EDITOR/description", "ed");
        settings.setValue("variables/EDITOR/vip", "true");
        Sandbox::setUserEnvironment({"SYS=s", "COMM=c", "PLAIN=p", "CASE=k", "V1=1", "V2=2", "V3=3",
                                     "V4=4", "EMPTY=", "A-B=1", "=x", "-=y", "EDITOR=vim"});
        ModalAnswerer answerer({"OK", "OK", "OK", "OK", "OK"}); // one spare
        EveModel model;
        L boxes;
        for (const ModalAnswerer::Seen &box : qAsConst(answerer.seen))
            boxes << L{box.className, box.title, box.text, box.buttons.join(',')}.join('|');
        // A directory and a FIFO are not read; loading goes on with the next file.
        QCOMPARE(boxes.replaceInStrings(Sandbox::sysroot(), ""),
                 L({"QMessageBox||Couldn't open file: /etc/dir !|OK",
                    "QMessageBox||Couldn't open file: /etc/fifo !|OK"}));
        // Values come from the environment; the last file that exports a name is its Origin.
        const L rows = rowsOf(model);
        QCOMPARE(
            rows,
            L({"B|1|System||", "CASE|k|System||", "COMM|c|~/.bashrc||",
               "EDITOR|vim|/etc/next|ed|true", "EMPTY||System||", "HOME|~|System|h|true",
               "LOGNAME|tester|System|Your logname|", "PATH|/usr/bin:/bin|~/.bashrc||true",
               "PLAIN|p|System||", "SHELL|/bin/bash|System|Your shell|true", "SYS|s|/etc/profile||",
               "V1|1|~/.bashrc||", "V2|2|~/.bashrc||", "V3|3|~/.bashrc||", "V4|4|~/.bashrc||"}));
        QVERIFY(model.removeRows(0, 1) && model.deletedRows.size() == 1);
        QVERIFY(model.reload());
        QVERIFY(model.deletedRows.isEmpty());
        QCOMPARE(rowsOf(model), rows);
        QCOMPARE(answerer.seen.size(), 4);
    }
};

ORV_SANDBOX_TEST_MAIN(TestLoading)
#include "tst_loading.moc"
