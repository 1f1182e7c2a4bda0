#include "linedocument.h"
#include "linegrammar.h"

#include <QRandomGenerator>
#include <QRegExp>
#include <QtTest>

namespace {

struct Edit
{
    QString name;
    QString value; // null: blank the variable's export instead
};

// The save's edits as the patterns state them, one file rewrite per edit:
// read the lines (a '\r' before the line end dropped, every '\r' gone from
// the text), replace, write every line with "\n", unchanged lines with their
// bytes.
QByteArray editOneAtATime(QByteArray bytes, const QList<Edit> &edits)
{
    for (const Edit &edit : edits) {
        QByteArrayList raw = bytes.split('\n');
        if (bytes.isEmpty() || bytes.endsWith('\n'))
            raw.removeLast();
        QStringList text;
        for (QByteArray &line : raw) {
            if (line.endsWith('\r'))
                line.chop(1);
            text << QString::fromUtf8(line).remove('\r');
        }
        QStringList lines = text;
        if (edit.value.isNull()) {
            const QRegExp rx("export.*" + edit.name + "=.*");
            for (QString &line : lines)
                line.replace(rx, " ");
        } else {
            const QString assignment = edit.name + '=' + edit.value;
            const QRegExp rx(edit.name + "=.*");
            int holding = 0;
            for (QString &line : lines)
                holding += line.replace(rx, assignment).contains(assignment, Qt::CaseInsensitive);
            if (holding == 0)
                lines.prepend("export " + assignment);
        }
        const int added = lines.size() - text.size();
        bytes.clear();
        for (int i = 0; i < lines.size(); ++i) {
            const bool unchanged = i >= added && lines[i] == text[i - added];
            bytes += (unchanged ? raw[i - added] : lines[i].toUtf8()) + '\n';
        }
    }
    return bytes;
}

QByteArray editInMemory(const QByteArray &bytes, const QList<Edit> &edits)
{
    LineDocument document = LineDocument::fromBytes(bytes);
    for (const Edit &edit : edits) {
        if (edit.value.isNull())
            document.blankExport(edit.name);
        else
            document.writeAssignment(edit.name, edit.value);
    }
    return document.toBytes();
}

// Pieces that random lines and edits are made of: several "export" words,
// names that end in the same letters, a name with pattern characters, quotes,
// line breaks and carriage returns in values, no "=" at all.
const QStringList namePieces{"PATH", "TH",     "MANPATH", "A",       "a",
                             "A.B",  "EXPORT", "rt",      "e\u00e9", ""};
const QStringList linePieces{"export ", "export", " ",   "=",  "PATH", "TH",   "MAN",
                             "A",       "a",      "x",   "#",  "\t",   ";",    "\"",
                             "\r",      "\u00e9", "A.B", "B=", "1 ",   "exp ", "\U0001F600"};
const QStringList valuePieces{"1", "x y", "\"q\"", "a\nb", "c\r", "\r\n", "2\\1", "", "\u00e9"};

QString pick(QRandomGenerator &random, const QStringList &pieces, int most)
{
    QString text;
    for (int n = random.bounded(most + 1); n > 0; --n)
        text += pieces.at(random.bounded(pieces.size()));
    return text;
}

// Lines with "\n" or "\r\n", some with a byte that is not UTF-8, the last
// one often without a line end.
QByteArray randomFile(QRandomGenerator &random)
{
    QByteArray bytes;
    for (int n = random.bounded(8); n > 0; --n) {
        bytes += pick(random, linePieces, 7).toUtf8();
        bytes += random.bounded(10) == 0 ? "\xff" : "";
        bytes += random.bounded(6) == 0 ? "\r\n" : "\n";
    }
    return bytes + pick(random, linePieces, 2).toUtf8();
}

} // namespace

class TestLineDocument : public QObject
{
    Q_OBJECT

private slots:
    // Enough edits per document that its index of names is built and used.
    void manyEditsGiveTheBytesOfOneRewriteEach()
    {
        QRandomGenerator random(20261123);
        for (int round = 0; round < 5000; ++round) {
            const QByteArray before = randomFile(random);
            QList<Edit> edits;
            for (int n = 1 + random.bounded(10); n > 0; --n) {
                const QString name = namePieces.at(random.bounded(namePieces.size()));
                const QString value = random.bounded(4) == 0
                                          ? QString()
                                          : LineGrammar::quoteValue(pick(random, valuePieces, 3));
                edits.append({name, value});
            }
            QCOMPARE(editInMemory(before, edits), editOneAtATime(before, edits));
        }
    }
};

QTEST_APPLESS_MAIN(TestLineDocument)
#include "tst_linedocument.moc"
