#include "core/shell/characters.h"
#include "core/shell/shelllexer.h"
#include "support/coresandboxtest.h"

#include <algorithm>

// One line of shell text split into words as sh splits a simple command,
// nothing expanded, and the kinds of character that decide it.
class TestShellLexer : public CoreSandboxTest
{
    Q_OBJECT

private slots:
    void splitsALineIntoWords_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QStringList>("words");    // quotes and escapes removed
        QTest::addColumn<QList<int>>("operators"); // their places among the words
        QTest::addRow("blanks and tabs separate words")
            << "a  b\tc" << QStringList{"a", "b", "c"} << QList<int>();
        QTest::addRow("quotes are removed and keep their blanks")
            << "x=\"a b\"'c d' e" << QStringList{"x=a bc d", "e"} << QList<int>();
        QTest::addRow("a backslash makes the next character plain")
            << "a\\ b\\;c" << QStringList{"a b;c"} << QList<int>();
        QTest::addRow("in double quotes a backslash escapes only $, `, \" and itself")
            << "\"\\$\\`\\\"\\\\\\n\"" << QStringList{"$`\"\\\\n"} << QList<int>();
        QTest::addRow("in single quotes a backslash stays")
            << "'a\\b'" << QStringList{"a\\b"} << QList<int>();
        QTest::addRow("$(...) is part of its word as written, nested and with blanks")
            << "x=$(cat $(ls) | wc) y" << QStringList{"x=$(cat $(ls) | wc)", "y"} << QList<int>();
        QTest::addRow("${...} is part of its word as written")
            << "${A:-a b}c" << QStringList{"${A:-a b}c"} << QList<int>();
        QTest::addRow("a backquoted command is part of its word as written")
            << "x=`date +%s`;" << QStringList{"x=`date +%s`", ";"} << QList<int>{1};
        QTest::addRow("operators are words of their own, blanks or not")
            << "a;b&&c|d>e" << QStringList{"a", ";", "b", "&", "&", "c", "|", "d", ">", "e"}
            << QList<int>{1, 3, 4, 6, 8};
        QTest::addRow("a quoted operator is an ordinary word")
            << "echo ';'" << QStringList{"echo", ";"} << QList<int>();
        QTest::addRow("a # starts a comment only at the start of a word")
            << "a#b # c" << QStringList{"a#b"} << QList<int>();
        QTest::addRow("an unclosed quote runs to the end of the line")
            << "a \"b c" << QStringList{"a", "b c"} << QList<int>();
    }
    void splitsALineIntoWords()
    {
        QFETCH(QString, line);
        QFETCH(QStringList, words);
        QFETCH(QList<int>, operators);
        QStringList texts;
        QList<int> operatorPlaces;
        for (const ShellLexer::Word &word : ShellLexer::words(line)) {
            if (word.isOperator)
                operatorPlaces << texts.size();
            texts << word.text;
        }
        QCOMPARE(texts, words);
        QCOMPARE(operatorPlaces, operators);
    }

    void wordEndAt_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<int>("pos");
        QTest::addColumn<int>("end"); // -1: in a comment
        QTest::addRow("a word ends at a blank outside quotes") << "x=\"a b\" c" << 0 << 7;
        QTest::addRow("a place inside quotes is in the quoted word") << "x=\"a b\" c" << 4 << 7;
        QTest::addRow("an operator ends right after itself") << "a;b" << 1 << 2;
        QTest::addRow("a place after a # that starts a word is in a comment")
            << "a # b=c" << 5 << -1;
        QTest::addRow("a # inside a word starts no comment") << "a#b=c" << 3 << 5;
    }
    void wordEndAt()
    {
        QFETCH(QString, line);
        QFETCH(int, pos);
        QTEST(ShellLexer::wordEndAt(line, pos), "end");
    }

    // An assignment starts a line, or follows a blank or an operator.
    void assignmentsStartWhereWordsDo()
    {
        const QString line = "A=1 B=2;C=3 xD=4";
        QList<int> starts;
        for (int pos = 0; pos < line.size(); ++pos) {
            if (line.at(pos).isUpper() && ShellLexer::startsWord(line, pos))
                starts << pos;
        }
        QCOMPARE(starts, QList<int>({0, 4, 8}));
    }

    void leadingCommentMarksAreSkippedAndTold()
    {
        bool commented = true;
        QCOMPARE(ShellLexer::skipCommentMarks("export A=1", &commented), 0);
        QVERIFY(!commented);
        QCOMPARE(ShellLexer::skipCommentMarks(" # #export A=1", &commented), 4);
        QVERIFY(commented);
    }

    void namesAreAsciiLettersDigitsAndUnderscores_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("name");
        QTest::addColumn<bool>("patternWord"); // every character a \w of the export pattern
        QTest::addRow("letters, digits and underscores") << "_a1Z" << true << true;
        QTest::addRow("a leading digit") << "1A" << false << true;
        QTest::addRow("no character at all") << "" << false << true;
        QTest::addRow("a letter beyond ASCII") << "\u00e9" << false << true;
        QTest::addRow("a combining mark") << "e\u0301" << false << true;
        QTest::addRow("a superscript digit") << "x\u00b2" << false << true;
        QTest::addRow("a hyphen") << "a-b" << false << false;
        QTest::addRow("a non-breaking space") << "a\u00a0" << false << false;
    }
    void namesAreAsciiLettersDigitsAndUnderscores()
    {
        QFETCH(QString, text);
        QTEST(ShellCharacters::isName(text), "name");
        QTEST(std::all_of(text.cbegin(), text.cend(), ShellCharacters::isPatternWordChar),
              "patternWord");
    }
};

ORV_SANDBOX_CORE_TEST_MAIN(TestShellLexer)
#include "tst_shelllexer.moc"
