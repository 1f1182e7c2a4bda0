#include "assignments.h"

#include <QtTest>

using Assignments::Syntax;

Q_DECLARE_METATYPE(Assignments::Syntax)

class TestAssignments : public QObject
{
    Q_OBJECT

private slots:
    void linesThatSetOrExportPager_data()
    {
        QTest::addColumn<Syntax>("syntax");
        QTest::addColumn<QString>("line");
        QTest::addColumn<bool>("found");
        QTest::addColumn<bool>("hasValue");
        QTest::addColumn<QString>("value");
        const Syntax shell = Syntax::Shell, environment = Syntax::Environment, pam = Syntax::Pam;

        QTest::addRow("an assignment after then")
            << shell << "if true; then PAGER=most; fi" << true << true << "most";
        QTest::addRow("a single-quoted value keeps its dollar")
            << shell << "PAGER='$x y'" << true << true << "$x y";
        QTest::addRow("an escaped quote inside double quotes")
            << shell << "export PAGER=\"say \\\"hi\\\"\"" << true << true << "say \"hi\"";
        QTest::addRow("a command substitution with blanks stays whole")
            << shell << "export PAGER=$(printf '%s' x y)" << true << true << "$(printf '%s' x y)";
        QTest::addRow("the last assignment of the line wins")
            << shell << "export B=1 PAGER=less; PAGER=most" << true << true << "most";
        QTest::addRow("an assignment then its export keeps the value")
            << shell << "PAGER=most; export PAGER" << true << true << "most";
        QTest::addRow("a csh setenv") << shell << "setenv PAGER most" << true << true << "most";
        QTest::addRow("the name as an argument of another command")
            << shell << "echo PAGER=most" << false << false << "";
        QTest::addRow("the name in a trailing comment")
            << shell << "export A=1 # PAGER=most" << false << false << "";

        QTest::addRow("/etc/environment's quoted form")
            << environment << "PAGER=\"less -R\"" << true << true << "less -R";
        QTest::addRow("a value with blanks runs to the end of the line")
            << environment << "PAGER=less -R " << true << true << "less -R";

        QTest::addRow("OVERRIDE wins over DEFAULT")
            << pam << "PAGER DEFAULT=less OVERRIDE=\"most -s\"" << true << true << "most -s";
        QTest::addRow("an empty OVERRIDE leaves DEFAULT")
            << pam << "PAGER DEFAULT=less OVERRIDE=" << true << true << "less";
        QTest::addRow("a name alone is named but sets nothing")
            << pam << "PAGER" << true << false << "";
    }
    void linesThatSetOrExportPager()
    {
        QFETCH(Syntax, syntax);
        QFETCH(QString, line);
        const Assignments::Match m = Assignments::match(line, "PAGER", syntax);
        QTEST(m.found, "found");
        QTEST(m.hasValue, "hasValue");
        QTEST(m.value, "value");
    }

    void homeIsExpanded_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("expanded");
        QTest::addRow("$HOME") << "$HOME/bin" << QString("/home/u/bin");
        QTest::addRow("${HOME}") << "${HOME}/bin" << QString("/home/u/bin");
        QTest::addRow("pam's @{HOME}") << "@{HOME}/bin" << QString("/home/u/bin");
        QTest::addRow("a tilde at the start and after a colon")
            << "~/bin:~/sbin" << QString("/home/u/bin:/home/u/sbin");
        QTest::addRow("a tilde inside a word stays") << "a~/b" << QString("a~/b");
        QTest::addRow("a longer name starting with HOME stays")
            << "$HOMEDIR/x" << QString("$HOMEDIR/x");
    }
    void homeIsExpanded()
    {
        QFETCH(QString, value);
        QTEST(Assignments::expandHome(value, "/home/u"), "expanded");
    }
};

QTEST_APPLESS_MAIN(TestAssignments)
#include "tst_assignments.moc"
