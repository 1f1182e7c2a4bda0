#include "core/preview/shellcheck.h"
#include "core/shell/linegrammar.h"
#include "support/coresandboxtest.h"

#include <QProcess>

// How a value is written into a start-up file, asked of the shells that read
// the file: what bash and sh read back must be the value itself.
class TestQuoting : public CoreSandboxTest
{
    Q_OBJECT

    // What `shell` reads from the line the save writes for the value.
    static QString readBack(const QString &shell, const QString &written)
    {
        QProcess process;
        process.setProcessEnvironment(QProcessEnvironment());
        process.start(shell, {"-c", "export V=" + written + "\nprintf '%s' \"$V\"\n"});
        if (!process.waitForFinished(10000) || process.exitCode() != 0)
            return "(failed: " + QString::fromLocal8Bit(process.readAllStandardError()) + ")";
        return QString::fromUtf8(process.readAllStandardOutput());
    }

private slots:
    void valuesWithoutHazardsKeepTheirBytes_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("written");
        QTest::addRow("a plain value stays bare") << "/usr/bin"
                                                  << "/usr/bin";
        QTest::addRow("a space calls for double quotes") << "a b"
                                                         << "\"a b\"";
        QTest::addRow("a double quote gets a backslash") << "a\"b"
                                                         << "a\\\"b";
        QTest::addRow("a value in double quotes keeps them, escaped") << "\"x y\""
                                                                      << "\"\\\"x y\\\"\"";
        QTest::addRow("references to other variables stay to expand") << "$HOME/bin:${PATH}"
                                                                      << "$HOME/bin:${PATH}";
        QTest::addRow("a command substitution stays to run") << "$(hostname)"
                                                             << "$(hostname)";
        QTest::addRow("a backslash inside double quotes before a plain letter stays")
            << "C:\\my dir"
            << "\"C:\\my dir\"";
    }
    void valuesWithoutHazardsKeepTheirBytes()
    {
        QFETCH(QString, value);
        QTEST(LineGrammar::quoteValue(value), "written");
    }

    void theShellsReadTheValueBack_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addRow("a backslash at the end does not escape the closing quote") << "C:\\my dir\\";
        QTest::addRow("an escaped quote does not end the quotes early") << "a\\\" b; cmd #";
        QTest::addRow("a bare backslash is kept") << "C:\\dir";
        QTest::addRow("a lone backslash") << "\\";
        QTest::addRow("backslashes in pairs stay pairs") << "a\\\\b c";
        QTest::addRow("a single quote does not open a quote") << "it's";
        QTest::addRow("a semicolon runs no command") << "a;b";
        QTest::addRow("a pipe and redirections run nothing") << "p|q<r>s";
        QTest::addRow("a tab does not split the value") << "a\tb";
        QTest::addRow("braces are not expanded by bash") << "x{a,b}";
        QTest::addRow("a single quote inside spaces") << "a'b c";
    }
    void theShellsReadTheValueBack()
    {
        QFETCH(QString, value);
        const QString written = LineGrammar::quoteValue(value);
        QCOMPARE(LineGrammar::valueRefusal(value), QString());
        QCOMPARE(readBack("bash", written), value);
        QCOMPARE(readBack("sh", written), value);
    }

    void aValueThatCannotBeOneWordIsRefused_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("reason");
        const QString control = "it holds a line break or another control character";
        const QString unclosed = "it opens a $(, ${ or ` that it does not close";
        QTest::addRow("a line break") << "a\nb" << control;
        QTest::addRow("a carriage return") << "a\rb" << control;
        QTest::addRow("an unclosed command substitution") << "$(date" << unclosed;
        QTest::addRow("an unclosed reference") << "${HOME/bin" << unclosed;
        QTest::addRow("an unclosed backquote") << "`date" << unclosed;
    }
    void aValueThatCannotBeOneWordIsRefused()
    {
        QFETCH(QString, value);
        QTEST(LineGrammar::valueRefusal(value), "reason");
    }

    void theSyntaxCheckTellsABrokenFile()
    {
        const ShellCheck check = ShellCheck::run("bash", "if true; then\n  export A=1\n");
        QCOMPARE(check.outcome, ShellCheck::Fails);
        QVERIFY2(check.sentence().startsWith("bash -n: the file would no longer parse: bash: "),
                 qPrintable(check.sentence()));
    }
};

ORV_SANDBOX_CORE_TEST_MAIN(TestQuoting)
#include "tst_quoting.moc"
