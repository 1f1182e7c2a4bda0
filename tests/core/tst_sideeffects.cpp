#include "core/preview/frozenreferences.h"
#include "core/preview/sideeffects.h"
#include "core/save/saveplan.h"
#include "support/coresandboxtest.h"

Q_DECLARE_METATYPE(QList<FrozenReference>)

namespace {

const QString bashrc = "/home/ann/.bashrc";

// A changed row as the table holds it: new rows come from the environment
// ("System"), edited ones from the file that exports them.
QStringList changed(const QString &name, const QString &value, const QString &origin = bashrc)
{
    return {name, value, origin, QString(), "local", QString(), "old"};
}

QStringList deleted(const QString &name)
{
    return {name, QString(), bashrc, QString(), "local", QString(), QString()};
}

SavePlan planFor(const QByteArray &file, const QList<QStringList> &rows,
                 const QList<QStringList> &deletions = {})
{
    const auto read = [file](const QString &) -> Result<SafeFile::Contents> {
        return SafeFile::Contents{true, file};
    };
    return planSave({rows, deletions, false, bashrc, "/etc/profile", "System"}, read);
}

const QByteArray goFile = "export PATH=/usr/bin:/bin\n"
                          "export GOPATH=$HOME/go\n"
                          "# export MANPATH=/opt/man\n"
                          "export MANPATH=/usr/share/man\n"
                          "export A=1 B=2\n"
                          "export EDITOR=vi\n";

} // namespace

// What a save changes beyond what it was asked to, and the sentence that
// asks before it does.
class TestSideEffects : public CoreSandboxTest
{
    Q_OBJECT

private slots:
    void theSentenceNamesWhatElseChanges_data()
    {
        QTest::addColumn<QList<QStringList>>("rows");
        QTest::addColumn<QList<QStringList>>("deletions");
        QTest::addColumn<QString>("sentence");
        QTest::addRow("changing only the edited variable asks nothing")
            << QList<QStringList>{changed("EDITOR", "vim")} << QList<QStringList>() << QString();
        QTest::addRow("a new name that ends other names lands in their lines")
            << QList<QStringList>{changed("TH", "/opt/th", "System")} << QList<QStringList>()
            << "This save also changes PATH, GOPATH and MANPATH to /opt/th and rewrites the "
               "commented-out line 3 of ~/.bashrc.";
        QTest::addRow("an assignment after the edited one on its line is lost")
            << QList<QStringList>{changed("A", "5")} << QList<QStringList>()
            << "This save also removes B.";
        QTest::addRow("the edited variable's commented-out line counts too")
            << QList<QStringList>{changed("MANPATH", "/man")} << QList<QStringList>()
            << "This save also rewrites the commented-out line 3 of ~/.bashrc.";
        QTest::addRow("deleting a variable blanks the others of its export")
            << QList<QStringList>() << QList<QStringList>{deleted("A")}
            << "This save also removes B.";
    }
    void theSentenceNamesWhatElseChanges()
    {
        QFETCH(QList<QStringList>, rows);
        QFETCH(QList<QStringList>, deletions);
        const SideEffects effects = SideEffects::of(planFor(goFile, rows, deletions));
        QTEST(effects.sentence("/home/ann"), "sentence");
    }

    void changedVariablesCarryTheirNewValueAndLine()
    {
        const SideEffects effects =
            SideEffects::of(planFor(goFile, {changed("TH", "/opt/th", "System")}));
        QCOMPARE(effects.variables.size(), 3);
        const SideEffects::Variable &gopath = effects.variables.at(1);
        QCOMPARE(gopath.name, "GOPATH");
        QCOMPARE(gopath.value, "/opt/th");
        QCOMPARE(gopath.line, 2);
        QVERIFY(gopath.isSet);
    }

    void differentValuesAreSaidApart()
    {
        SideEffects effects;
        effects.variables = {{bashrc, 1, "PATH", "/a", true},
                             {bashrc, 2, "GOPATH", "/b", true},
                             {bashrc, 3, "MANPATH", "/a", true},
                             {bashrc, 0, "B", "", false}};
        QCOMPARE(effects.sentence("/home/ann"),
                 "This save also changes PATH and MANPATH to /a, changes GOPATH to /b and "
                 "removes B.");
    }

    void frozenReferencesAreFound_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QList<FrozenReference>>("frozen");
        QTest::addRow("the session's value replaces $HOME")
            << QByteArray("export GOPATH=$HOME/go\n") << "/home/ann/go"
            << QList<FrozenReference>{{1, "$HOME", "/home/ann/go"}};
        QTest::addRow("braces are named as written")
            << QByteArray("x=1\nexport GOPATH=\"${HOME}/go:$GOROOT\"\n") << "/home/ann/go:$GOROOT"
            << QList<FrozenReference>{{2, "${HOME}", "/home/ann/go:$GOROOT"}};
        QTest::addRow("a value that keeps the reference freezes nothing")
            << QByteArray("export GOPATH=$HOME/go\n") << "${HOME}/src" << QList<FrozenReference>();
        QTest::addRow("a reference in a comment is no assignment")
            << QByteArray("# export GOPATH=$HOME/go\nexport GOPATH=/go\n") << "/home/ann/go"
            << QList<FrozenReference>();
    }
    void frozenReferencesAreFound()
    {
        QFETCH(QByteArray, file);
        QFETCH(QString, value);
        const SavePlan plan = planFor(file, {changed("GOPATH", value)});
        QTEST(FrozenReference::find(file, plan.files.first().after, {"GOPATH"}), "frozen");
    }
};

ORV_SANDBOX_CORE_TEST_MAIN(TestSideEffects)
#include "tst_sideeffects.moc"
