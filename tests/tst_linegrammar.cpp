#include "linefile.h"
#include "linegrammar.h"
#include "sandbox.h"

#include <QApplication>
#include <QtTest>

class TestLineGrammar : public QObject
{
    Q_OBJECT

private slots:
    void text_data()
    {
        QTest::addColumn<QString>("function");
        QTest::addColumn<QString>("input");
        QTest::addColumn<QStringList>("expected"); // "match": name and value, empty for none
        const QList<QStringList> rows{
            {"match", "plain", "export EDITOR=vim", "EDITOR", "vim"},
            {"match", "commented", "# export EDITOR=vim", "EDITOR", "vim"},
            {"match", "not a word", "exported A=1"},
            {"match", "two", "export A=1 B=2", "A", "1 B=2"},
            {"match", "quoted", "export PATH=\"/usr/bin:$PATH\"", "PATH", "\"/usr/bin:$PATH"},
            {"match", "semicolon", "export A=x;", "A", "x"},
            {"match", "only non-word", "export A=/"},
            {"match", "tab", "export\tA=1", "A", "1"},
            {"match", "backslash", "export A=a\\ b", "A", "a\\ b"},
            {"split", "plain", "A=1", "A", "1"},
            {"split", "empty value", "NAME=", "NAME", ""},
            {"split", "spaces kept", "A= x ", "A", " x "},
            {"split", "dash", "A-B=1", "B", "1"},
            {"split", "later assignment", "X-=a=b", "a", "b"},
            {"split", "no name", "=x", "", ""},
            {"split", "only a dash", "-=x", "", ""},
            {"split", "no equals sign", "novalue", "", ""},
            {"split", "equals in value", "A=b=c", "A", "b=c"},
            {"quote", "space", "  a b  ", "\"a b\""},
            {"quote", "trimmed", " \tx  ", "x"},
            {"quote", "quotes", "say \"hi\"", "\"say \\\"hi\\\"\""},
            {"quote", "already quoted", "\"x y\"", "\"\\\"x y\\\"\""},
            {"quote", "tab", "a\tb", "a\tb"},
            {"quote", "backslash and dollar", "C:\\x$HOME", "C:\\x$HOME"}};
        for (const QStringList &row : rows)
            QTest::addRow("%s: %s", qPrintable(row[0]), qPrintable(row[1]))
                << row[0] << row[2] << QStringList(row.mid(3));
    }
    void text()
    {
        Sandbox sandbox;
        QFETCH(QString, function);
        QFETCH(QString, input);
        QStringList result;
        LineGrammar::ExportMatcher matcher;
        if (function == "split")
            result = LineGrammar::splitEnvironmentEntry(input);
        else if (function == "quote")
            result << LineGrammar::quoteValue(input);
        else if (matcher.match(input))
            result << matcher.name() << matcher.value();
        QTEST(result, "expected");
    }

    void lineFile()
    {
        Sandbox sandbox;
        const LineFile file = LineFile::fromBytes(QByteArrayLiteral("a\r\nx\0y\n\xff\nz"));
        QCOMPARE(file.text, QStringList({"a", QString("x") + QChar(0) + "y", "\uFFFD", "z"}));
        // Unchanged lines keep their bytes; line ends become "\n".
        QCOMPARE(file.toBytes(file.text), QByteArrayLiteral("a\nx\0y\n\xff\nz\n"));
        QStringList lines = file.text;
        lines[3] = QStringLiteral("\u00e9");
        lines.prepend(QStringLiteral("export A=1"));
        QCOMPARE(file.toBytes(lines), QByteArrayLiteral("export A=1\na\nx\0y\n\xff\n\xc3\xa9\n"));
    }
};

ORV_SANDBOX_TEST_MAIN(TestLineGrammar)
#include "tst_linegrammar.moc"
