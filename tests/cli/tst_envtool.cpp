#include "core/save/saveplan.h"
#include "gui/model/evemodel.h"
#include "support/sandboxtest.h"
#include "support/tablehelpers.h"

#include <QStandardPaths>

// orv-admin-env-cli run as a process in the sandbox, beside the window's own
// model making the same change.
class TestEnvTool : public SandboxTest
{
    Q_OBJECT

    const QString bashrc = Sandbox::home() + "/.bashrc";
    const QByteArray startup = "# ~/.bashrc\nexport EDITOR=vi\nexport MANPATH=/usr/share/man\n"
                               "export PAGER=less\nalias ll='ls -l'\n";

    struct Run
    {
        int exitCode = -1;
        QByteArray out;
        QByteArray err;
    };
    // The program in the session the test's model sees, with `home` as HOME.
    Run run(const QStringList &arguments, const QString &home = Sandbox::home())
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("HOME", home);
        environment.insert("XDG_CONFIG_HOME", home + "/.config");
        environment.insert("XDG_DATA_HOME", home + "/.local/share");
        environment.insert("ORV_ADMIN_ENV_SYSROOT", Sandbox::sysroot());
        QProcess process;
        process.setProcessEnvironment(environment);
        process.start(ORV_ENV_PROGRAM, arguments);
        if (!process.waitForFinished(30000))
            return {};
        return {process.exitCode(), process.readAllStandardOutput(),
                process.readAllStandardError()};
    }
    // The bytes the window's save writes for the same change, the file put back after.
    QByteArray windowSave(const std::function<void(EveModel &)> &change)
    {
        EveModel model;
        change(model);
        const SavePlan plan = planSave(model.saveInput());
        return plan.files.value(0).after;
    }
    static void edit(EveModel &model, const QString &name, const QString &value)
    {
        const QStringList record = recordOf(model, name);
        model.setData(model.index(rowOf(model, name), 0), name, value,
                      record.at(EveModel::DescriptionColumn), record.at(EveModel::ScopeColumn),
                      record.at(EveModel::VipColumn), value, Qt::EditRole);
    }

private slots:
    void init()
    {
        SandboxTest::init();
        Sandbox::setUserEnvironment({"EDITOR=vi", "PAGER=less", "MANPATH=/usr/share/man"});
        Sandbox::writeFile(bashrc, startup);
    }

    void setWritesWhatTheWindowsSaveWrites_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addRow("a variable of the session goes back to its file")
            << QStringList{"set", "EDITOR", "vim"};
        QTest::addRow("a new variable is written first, quoted")
            << QStringList{"set", "NEW_ONE", "a b"};
        QTest::addRow("an unset blanks the export line") << QStringList{"unset", "PAGER"};
        QTest::addRow("several changes are one save")
            << QStringList{"set", "EDITOR", "vim", "unset", "PAGER"};
    }
    void setWritesWhatTheWindowsSaveWrites()
    {
        QFETCH(QStringList, arguments);
        const QByteArray expected = windowSave([&arguments](EveModel &model) {
            for (int i = 0; i < arguments.size();) {
                if (arguments.at(i) == "unset") {
                    model.removeRows(rowOf(model, arguments.at(i + 1)), 1);
                    i += 2;
                } else if (rowOf(model, arguments.at(i + 1)) >= 0) {
                    edit(model, arguments.at(i + 1), arguments.at(i + 2));
                    i += 3;
                } else {
                    model.insertRows(model.rowCount(), 1,
                                     {arguments.at(i + 1), arguments.at(i + 2), "", "local"});
                    i += 3;
                }
            }
        });

        const Run result = run(arguments);

        QCOMPARE(result.exitCode, 0);
        QCOMPARE(Sandbox::readFile(bashrc), expected);
        QCOMPARE(result.out, "Saved " + bashrc.toUtf8() + "\n");
    }

    void dryRunPrintsTheDiffAndWritesNothing()
    {
        const Run result = run({"--dry-run", "set", "EDITOR", "vim"});

        QCOMPARE(result.exitCode, 0);
        QCOMPARE(result.out, "--- " + bashrc.toUtf8() + "\n+++ " + bashrc.toUtf8() +
                                 "\n@@ -1,5 +1,5 @@\n # ~/.bashrc\n-export EDITOR=vi\n"
                                 "+export EDITOR=vim\n export MANPATH=/usr/share/man\n"
                                 " export PAGER=less\n alias ll='ls -l'\n");
        QCOMPARE(Sandbox::readFile(bashrc), startup);
    }

    // PATH's save rewrites MANPATH's line: asked for in so many words.
    void aChangeOfOtherVariablesIsRefusedWithoutYes()
    {
        const Run refused = run({"set", "PATH", "/opt/bin"});
        QCOMPARE(refused.exitCode, 2);
        QVERIFY2(refused.err.startsWith("This save also changes MANPATH to /opt/bin.\n"),
                 refused.err.constData());
        QCOMPARE(Sandbox::readFile(bashrc), startup);

        const Run saved = run({"--yes", "set", "PATH", "/opt/bin"});
        QCOMPARE(saved.exitCode, 0);
        QVERIFY(Sandbox::readFile(bashrc).contains("export MANPATH=/opt/bin\n"));
    }

    void badInputIsSaidAndChangesNothing_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QByteArray>("message");
        QTest::addRow("a name that is no name")
            << QStringList{"set", "MY-VAR", "1"} << 2
            << QByteArray("MY-VAR is not a variable name: letters, digits and \"_\", not "
                          "starting with a digit\n");
        QTest::addRow("a value with a line break")
            << QStringList{"set", "EDITOR", "a\nb"} << 2
            << QByteArray("The value of EDITOR cannot be written into a start-up file: it holds "
                          "a line break or another control character. Nothing was saved.\n");
        QTest::addRow("an unknown option") << QStringList{"set", "EDITOR", "vim", "--loud"} << 2
                                           << QByteArray("Unknown option: --loud\n");
        QTest::addRow("a variable the session lacks")
            << QStringList{"unset", "NOPE"} << 2
            << QByteArray("NOPE is not a variable of this session\n");
        QTest::addRow("a missing .env file")
            << QStringList{"import", Sandbox::home() + "/missing.env"} << 1
            << (Sandbox::home() + "/missing.env cannot be read: No such file or directory\n")
                   .toUtf8();
    }
    void badInputIsSaidAndChangesNothing()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QByteArray, message);
        const Run result = run(arguments);
        QTEST(result.exitCode, "exitCode");
        QVERIFY2(result.err.startsWith(message), result.err.constData());
        QCOMPARE(Sandbox::readFile(bashrc), startup);
    }

    void importSetsEveryVariableOfAnEnvFile()
    {
        Sandbox::writeFile(Sandbox::home() + "/new.env",
                           "# comment\n\nEDITOR=\"vim -p\"\nexport PAGER='most'\n");
        const Run result = run({"import", Sandbox::home() + "/new.env"});
        QCOMPARE(result.exitCode, 0);
        QCOMPARE(Sandbox::readFile(bashrc),
                 "# ~/.bashrc\nexport EDITOR=\"vim -p\"\nexport MANPATH=/usr/share/man\n"
                 "export PAGER=most\nalias ll='ls -l'\n");
    }

    void readingCommandsShowTheTable()
    {
        QCOMPARE(run({"get", "PAGER"}).out, "less\n");
        QCOMPARE(run({"where", "PAGER"}).out, bashrc.toUtf8() + ":4: export PAGER=less\n");
        QCOMPARE(run({"export", "--format", "env", "EDITOR", "MANPATH"}).out,
                 "EDITOR=vi\nMANPATH=/usr/share/man\n");
        QVERIFY(run({"list"}).out.contains("PAGER\tless\t" + bashrc.toUtf8() + "\t\t\n"));
    }

    // The playbook, run by the real Ansible against a second home holding the
    // same file, gives the bytes this program's save gives in the first.
    void theAnsiblePlaybookMakesTheSameChangeElsewhere()
    {
        const QString playbookRunner = QStandardPaths::findExecutable("ansible-playbook");
        if (playbookRunner.isEmpty())
            QSKIP("ansible-playbook is not installed (Debian: ansible-core)");
        const QString other = Sandbox::home() + "/other";
        Sandbox::writeFile(other + "/.bashrc", startup);
        const Run exported = run({"export", "--format", "ansible", "EDITOR", "NEW_ONE"});
        QCOMPARE(exported.exitCode, 2); // NEW_ONE is not in the session
        Sandbox::setUserEnvironment({"EDITOR=vim", "PAGER=less", "MANPATH=/usr/share/man"});
        const Run playbook = run({"export", "--format", "ansible", "EDITOR"});
        QCOMPARE(playbook.exitCode, 0);
        Sandbox::writeFile(Sandbox::home() + "/playbook.yml", playbook.out);
        QCOMPARE(run({"set", "EDITOR", "vim"}).exitCode, 0);

        const auto ansible = [&](const QStringList &extra) {
            QProcess process;
            QProcessEnvironment environment;
            environment.insert("HOME", other);
            environment.insert("PATH", "/usr/bin:/bin");
            environment.insert("LANG", "C.UTF-8");
            environment.insert("ANSIBLE_LOCAL_TEMP", other + "/.ansible/tmp");
            environment.insert("ANSIBLE_REMOTE_TEMP", other + "/.ansible/tmp");
            environment.insert("ANSIBLE_CONFIG", other + "/ansible.cfg");
            environment.insert("ANSIBLE_NOCOLOR", "1");
            process.setProcessEnvironment(environment);
            process.start(playbookRunner, QStringList{"-i", "localhost,", "-c", "local"} + extra +
                                              QStringList{Sandbox::home() + "/playbook.yml"});
            process.waitForFinished(120000);
            return QPair<int, QByteArray>(process.exitCode(), process.readAllStandardOutput() +
                                                                  process.readAllStandardError());
        };
        QCOMPARE(ansible({"--syntax-check"}).first, 0);
        const auto first = ansible({});
        QVERIFY2(first.first == 0, first.second.constData());
        QCOMPARE(Sandbox::readFile(other + "/.bashrc"), Sandbox::readFile(bashrc));
        const auto second = ansible({});
        QVERIFY2(second.second.contains("changed=0"), second.second.constData());
    }
};

ORV_SANDBOX_TEST_MAIN(TestEnvTool)
#include "tst_envtool.moc"
