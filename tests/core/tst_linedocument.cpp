#include "core/save/linedocument.h"
#include "core/shell/linegrammar.h"
#include "support/coresandboxtest.h"
#include "support/randomlines.h"

namespace {

struct Edit
{
    QString name;
    QString value;
    bool blank = false; // blank the variable's export instead
};

// The save's edits as the patterns state them, one file rewrite per edit:
// read the lines (a '\r' before the line end dropped, every '\r' gone from
// the text), replace, write every line with "\n", unchanged lines with their
// bytes.
QByteArray editOneAtATime(QByteArray bytes, const QList<Edit> &edits)
{
    for (const Edit &edit : edits) {
        const QString assignment = edit.name + '=' + edit.value;
        const QRegExp rx(edit.blank ? "export.*" + edit.name + "=.*" : edit.name + "=.*");
        QByteArrayList lines = bytes.split('\n');
        if (bytes.isEmpty() || bytes.endsWith('\n'))
            lines.removeLast();
        bool holding = false;
        bytes.clear();
        for (QByteArray &line : lines) {
            if (line.endsWith('\r'))
                line.chop(1);
            const QString text = QString::fromUtf8(line).remove('\r');
            const QString edited = QString(text).replace(rx, edit.blank ? " " : assignment);
            holding = holding || edited.contains(assignment, Qt::CaseInsensitive);
            bytes += (edited == text ? line : edited.toUtf8()) + '\n';
        }
        if (!edit.blank && !holding)
            bytes.prepend(("export " + assignment + '\n').toUtf8());
    }
    return bytes;
}

// Names and values of random edits: names that end in the same letters or
// in those of "export", one with a pattern character; quotes, line breaks
// and carriage returns in values.
const QStringList names{"PATH", "TH", "MANPATH", "A", "a", "PA.H", "EXPORT", "rt", "e\u00e9", ""};
const QStringList valuePieces{"1", "x y", "\"q\"", "a\nb", "c\r", "\r\n", "2\\1", "", "\u00e9"};

} // namespace

class TestLineDocument : public CoreSandboxTest
{
    Q_OBJECT

private slots:
    // Enough edits per document that its index of names is built and used.
    void manyEditsGiveTheBytesOfOneRewriteEach()
    {
        RandomLines files(20261123);
        QRandomGenerator random(7);
        for (int round = 0; round < 5000; ++round) {
            const QByteArray before = files.fileBytes();
            LineDocument document = LineDocument::fromBytes(before);
            QList<Edit> edits;
            for (int n = 1 + random.bounded(10); n > 0; --n) {
                const QString name = names.at(random.bounded(names.size()));
                QString value;
                for (int pieces = random.bounded(4); pieces > 0; --pieces)
                    value += valuePieces.at(random.bounded(valuePieces.size()));
                if (random.bounded(4) == 0) {
                    edits.append({name, QString(), true});
                    document.blankExport(name);
                } else {
                    edits.append({name, LineGrammar::quoteValue(value)});
                    document.writeAssignment(name, edits.last().value);
                }
            }
            QCOMPARE(document.toBytes(), editOneAtATime(before, edits));
        }
    }
};

ORV_SANDBOX_CORE_TEST_MAIN(TestLineDocument)
#include "tst_linedocument.moc"
