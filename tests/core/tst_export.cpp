#include "core/export/ansibleplaybook.h"
#include "core/export/dotenv.h"
#include "support/coresandboxtest.h"

Q_DECLARE_METATYPE(QList<DotEnv::Entry>)

bool operator==(const DotEnv::Entry &a, const DotEnv::Entry &b)
{
    return a.name == b.name && a.value == b.value && a.line == b.line;
}

// What the command line hands to other tools: .env files and playbooks.
class TestExport : public CoreSandboxTest
{
    Q_OBJECT

    static SavePlan planFor(const QByteArray &file, const SaveInput &input)
    {
        return planSave(input, [file](const QString &) -> Result<SafeFile::Contents> {
            return SafeFile::Contents{true, file};
        });
    }
    static SaveInput editorSetTo(const QString &value)
    {
        return {{{"EDITOR", value, "/home/ann/.bashrc", "", "local", "", "vi"}},
                {},
                false,
                "/home/ann/.bashrc",
                "/etc/profile",
                "System"};
    }

private slots:
    void envFilesAreReadAsDotenvToolsReadThem_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QList<DotEnv::Entry>>("entries");
        QTest::addRow("comments and blank lines are passed over")
            << QByteArray("# a comment\n\nA=1\n") << QList<DotEnv::Entry>{{"A", "1", 3}};
        QTest::addRow("double quotes undo their escapes")
            << QByteArray("A=\"x \\\"y\\\"\\n\\\\\"\n")
            << QList<DotEnv::Entry>{{"A", "x \"y\"\n\\", 1}};
        QTest::addRow("single quotes keep everything")
            << QByteArray("export A='$HOME \\n'\n") << QList<DotEnv::Entry>{{"A", "$HOME \\n", 1}};
        QTest::addRow("a bare value ends at a comment")
            << QByteArray("A = value # why\r\n") << QList<DotEnv::Entry>{{"A", "value", 1}};
    }
    void envFilesAreReadAsDotenvToolsReadThem()
    {
        QFETCH(QByteArray, file);
        QTEST(DotEnv::parse(file, "x.env").value(), "entries");
    }

    void aLineThatIsNoAssignmentIsNamed()
    {
        const auto parsed = DotEnv::parse("A=1\nnot an assignment\n", "x.env");
        QVERIFY(!parsed);
        QCOMPARE(parsed.failure().reason, "line 2: not NAME=VALUE");
    }

    void aWrittenLineReadsBack()
    {
        const QString value = "a \"b\"\t$c\\\nd";
        const QString line = DotEnv::line("A", value);
        QCOMPARE(DotEnv::parse(line.toUtf8(), "x.env")->value(0).value, value);
        QCOMPARE(DotEnv::line("P", "/usr/bin:/bin"), "P=/usr/bin:/bin");
    }

    // Where the save rewrites one line, line-by-line tasks give its bytes;
    // where it rewrites several, only a block can be written.
    void theSavesEditsBecomeLineTasksWhereTheyGiveItsBytes_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<bool>("lineByLine");
        QTest::addRow("one export of the name") << QByteArray("export EDITOR=vi\n") << true;
        QTest::addRow("no line of the name yet") << QByteArray("alias l=ls\n") << true;
        QTest::addRow("two lines of the name")
            << QByteArray("export EDITOR=vi\n# export EDITOR=ed\n") << false;
        QTest::addRow("line ends the save changes")
            << QByteArray("export EDITOR=vi\r\nalias l=ls\r\n") << false;
    }
    void theSavesEditsBecomeLineTasksWhereTheyGiveItsBytes()
    {
        QFETCH(QByteArray, file);
        QFETCH(bool, lineByLine);
        const SaveInput input = editorSetTo("vim");
        QList<AnsiblePlaybook::Task> tasks;
        const QByteArray playbook =
            AnsiblePlaybook::of(planFor(file, input), input, "/home/ann", &tasks);
        QCOMPARE(tasks.size(), 1);
        QCOMPARE(tasks.first().lineByLine, lineByLine);
        QCOMPARE(playbook.contains("ansible.builtin.blockinfile"), !lineByLine);
        QVERIFY(playbook.contains("path: '~/.bashrc'"));
    }
};

ORV_SANDBOX_CORE_TEST_MAIN(TestExport)
#include "tst_export.moc"
