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
        QTest::addColumn<QString>("expected"); // results joined by '|'; "match": name and value
        const QList<QStringList> rows{
            {"match", "commented", "# export EDITOR=vim", "EDITOR|vim"},
            {"match", "not a word", "exported A=1", ""},
            {"match", "two", "export A=1 B=2", "A|1 B=2"},
            {"match", "quoted", "export PATH=\"/usr/bin:$PATH\"", "PATH|\"/usr/bin:$PATH"},
            {"match", "semicolon", "export A=x;", "A|x"},
            {"match", "only non-word", "export A=/", ""},
            {"split", "dash", "A-B=1", "B|1"},
            {"split", "empty value", "NAME=", "NAME|"},
            {"split", "no equals sign", "novalue", "|"},
            {"split", "no name", "=x", "|"},
            {"quote", "space", "  a b  ", "\"a b\""},
            {"quote", "trimmed", " \tx  ", "x"},
            {"quote", "quotes", "say \"hi\"", "\"say \\\"hi\\\"\""},
            {"quote", "tab", "a\tb", "a\tb"}};
        for (const QStringList &row : rows)
            QTest::newRow(qPrintable(row[0] + ": " + row[1])) << row[0] << row[2] << row[3];
    }
    void text()
    {
        Sandbox sandbox;
        QFETCH(QString, function);
        QFETCH(QString, input);
        LineGrammar::ExportMatcher matcher;
        const QStringList result =
            function == "split"    ? LineGrammar::splitEnvironmentEntry(input)
            : function == "quote"  ? QStringList{LineGrammar::quoteValue(input)}
            : matcher.match(input) ? QStringList{matcher.name(), matcher.value()}
                                   : QStringList();
        QTEST(result.join('|'), "expected");
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
