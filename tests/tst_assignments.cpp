#include "assignments.h"

#include <QtTest>

using Assignments::Syntax;

Q_DECLARE_METATYPE(Assignments::Syntax)

class TestAssignments : public QObject
{
    Q_OBJECT

private slots:
    void linesThatSetOrExportAName_data()
    {
        QTest::addColumn<Syntax>("syntax");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("line");
        QTest::addColumn<bool>("found");
        QTest::addColumn<bool>("commented");
        QTest::addColumn<bool>("hasValue");
        QTest::addColumn<QString>("value");
        const Syntax shell = Syntax::Shell, environment = Syntax::Environment, pam = Syntax::Pam;

        QTest::addRow("an export line") << shell << "PAGER"
                                        << "export PAGER=most" << true << false << true << "most";
        QTest::addRow("an indented plain assignment")
            << shell << "PAGER"
            << "    PAGER=most" << true << false << true << "most";
        QTest::addRow("an assignment after then")
            << shell << "PAGER"
            << "if true; then PAGER=most; fi" << true << false << true << "most";
        QTest::addRow("an assignment after &&")
            << shell << "PAGER"
            << "[ -x /usr/bin/most ] && PAGER=most" << true << false << true << "most";
        QTest::addRow("a double-quoted value with a blank")
            << shell << "PAGER"
            << "export PAGER=\"less -R\"" << true << false << true << "less -R";
        QTest::addRow("a single-quoted value keeps its dollar")
            << shell << "PAGER"
            << "PAGER='$x y'" << true << false << true << "$x y";
        QTest::addRow("an escaped quote inside double quotes")
            << shell << "PAGER"
            << "export PAGER=\"say \\\"hi\\\"\"" << true << false << true << "say \"hi\"";
        QTest::addRow("a command substitution with blanks stays whole")
            << shell << "PAGER"
            << "export PAGER=$(printf '%s' x y)" << true << false << true << "$(printf '%s' x y)";
        QTest::addRow("a second assignment on an export line")
            << shell << "PAGER"
            << "export B=1 PAGER=most" << true << false << true << "most";
        QTest::addRow("the last assignment of the line wins")
            << shell << "PAGER"
            << "PAGER=less; PAGER=most" << true << false << true << "most";
        QTest::addRow("an export without a value")
            << shell << "PAGER"
            << "export PAGER" << true << false << false << "";
        QTest::addRow("an assignment then its export keeps the value")
            << shell << "PAGER"
            << "PAGER=most; export PAGER" << true << false << true << "most";
        QTest::addRow("a csh setenv") << shell << "PAGER"
                                      << "setenv PAGER most" << true << false << true << "most";
        QTest::addRow("a commented-out export")
            << shell << "PAGER"
            << "# export PAGER=most" << true << true << true << "most";
        QTest::addRow("a longer name ending in the name")
            << shell << "PAGER"
            << "export MYPAGER=most" << false << false << false << "";
        QTest::addRow("the name as an argument of another command")
            << shell << "PAGER"
            << "echo PAGER=most" << false << false << false << "";
        QTest::addRow("the name inside a quoted text")
            << shell << "PAGER"
            << "alias p='PAGER=most man'" << false << false << false << "";
        QTest::addRow("the name in a trailing comment")
            << shell << "PAGER"
            << "export A=1 # PAGER=most" << false << false << false << "";
        QTest::addRow("prose in a comment")
            << shell << "PAGER"
            << "# set PAGER so man pages scroll" << false << false << false << "";

        QTest::addRow("/etc/environment's form") << environment << "PAGER"
                                                 << "PAGER=most" << true << false << true << "most";
        QTest::addRow("/etc/environment's quoted form")
            << environment << "PATH"
            << "PATH=\"/usr/local/bin:/usr/bin\"" << true << false << true
            << "/usr/local/bin:/usr/bin";
        QTest::addRow("a value with blanks runs to the end of the line")
            << environment << "PAGER"
            << "PAGER=less -R " << true << false << true << "less -R";
        QTest::addRow("a commented-out environment line")
            << environment << "PAGER"
            << "# PAGER=most" << true << true << true << "most";
        QTest::addRow("an environment line of another name")
            << environment << "PAGER"
            << "MYPAGER=most" << false << false << false << "";
        QTest::addRow("environment.d's reference to another variable")
            << environment << "PATH"
            << "PATH=${HOME}/bin:${PATH}" << true << false << true << "${HOME}/bin:${PATH}";

        QTest::addRow("pam_environment's plain form")
            << pam << "PAGER"
            << "PAGER=most" << true << false << true << "most";
        QTest::addRow("pam_environment's DEFAULT form")
            << pam << "PAGER"
            << "PAGER DEFAULT=most" << true << false << true << "most";
        QTest::addRow("OVERRIDE wins over DEFAULT")
            << pam << "PAGER"
            << "PAGER DEFAULT=less OVERRIDE=\"most -s\"" << true << false << true << "most -s";
        QTest::addRow("an empty OVERRIDE leaves DEFAULT")
            << pam << "PAGER"
            << "PAGER DEFAULT=less OVERRIDE=" << true << false << true << "less";
        QTest::addRow("a name alone is named but sets nothing")
            << pam << "PAGER"
            << "PAGER" << true << false << false << "";
    }
    void linesThatSetOrExportAName()
    {
        QFETCH(Syntax, syntax);
        QFETCH(QString, name);
        QFETCH(QString, line);
        const Assignments::Match m = Assignments::match(line, name, syntax);
        QTEST(m.found, "found");
        QTEST(m.commented, "commented");
        QTEST(m.hasValue, "hasValue");
        QTEST(m.value, "value");
    }

    void homeIsExpanded_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("expanded");
        QTest::addRow("$HOME") << "$HOME/bin"
                               << "/home/u/bin";
        QTest::addRow("${HOME}") << "${HOME}/bin"
                                 << "/home/u/bin";
        QTest::addRow("pam's @{HOME}") << "@{HOME}/bin"
                                       << "/home/u/bin";
        QTest::addRow("a leading tilde") << "~/bin"
                                         << "/home/u/bin";
        QTest::addRow("a tilde after a colon") << "/bin:~/bin"
                                               << "/bin:/home/u/bin";
        QTest::addRow("a tilde inside a word stays") << "a~/b"
                                                     << "a~/b";
        QTest::addRow("a longer name starting with HOME stays") << "$HOMEDIR/x"
                                                                << "$HOMEDIR/x";
    }
    void homeIsExpanded()
    {
        QFETCH(QString, value);
        QTEST(Assignments::expandHome(value, "/home/u"), "expanded");
    }

    void onlyAShellCanTell_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<bool>("needsShell");
        QTest::addRow("a plain folder") << "/usr/bin" << false;
        QTest::addRow("a reference to a variable") << "/x:$PATH" << true;
        QTest::addRow("a command in backquotes") << "`hostname`" << true;
        QTest::addRow("pam's reference") << "@{SHELL}" << true;
    }
    void onlyAShellCanTell()
    {
        QFETCH(QString, value);
        QTEST(Assignments::needsShell(value), "needsShell");
    }
};

QTEST_APPLESS_MAIN(TestAssignments)
#include "tst_assignments.moc"
