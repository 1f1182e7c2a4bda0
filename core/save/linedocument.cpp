#include "core/save/linedocument.h"

#include "core/shell/linegrammar.h"

#include <algorithm>

namespace {

// Characters before an "=" that the index remembers.
constexpr int indexedLength = 8;
// Edits a document takes by plain scanning before it builds its index.
constexpr int scannedEdits = 2;

quint64 mix(quint64 hash, QChar c)
{
    // FNV-1a over the folded character.
    return (hash ^ c.toCaseFolded().unicode()) * 1099511628211ULL;
}

constexpr quint64 emptyHash = 14695981039346656037ULL;

bool hasSurrogates(const QString &text)
{
    return std::any_of(text.cbegin(), text.cend(), [](QChar c) { return c.isSurrogate(); });
}

QString withoutCarriageReturns(QString text)
{
    return text.remove(QLatin1Char('\r'));
}

} // namespace

LineDocument LineDocument::fromBytes(const QByteArray &bytes)
{
    LineDocument document;
    int start = 0;
    while (start < bytes.size()) {
        int end = bytes.indexOf('\n', start);
        if (end < 0)
            end = bytes.size();
        Line line;
        line.bytes = bytes.mid(start, end - start);
        line.text = withoutCarriageReturns(QString::fromUtf8(line.bytes));
        document.body.append(line);
        start = end + 1;
    }
    return document;
}

QByteArray LineDocument::toBytes() const
{
    QByteArray bytes;
    const auto append = [&bytes, this](const Line &line) {
        // Every read after the line was written dropped one '\r' before its end.
        int length = line.bytes.size();
        for (int reads = edits - line.written; reads > 0 && length > 0; --reads) {
            if (line.bytes.at(length - 1) != '\r')
                break;
            --length;
        }
        bytes.append(line.bytes.constData(), length);
        bytes.append('\n');
    };
    for (auto it = front.crbegin(); it != front.crend(); ++it)
        append(*it);
    for (const Line &line : body)
        append(line);
    return bytes;
}

QStringList LineDocument::lines() const
{
    QStringList result;
    result.reserve(front.size() + body.size());
    for (auto it = front.crbegin(); it != front.crend(); ++it)
        result.append(it->text);
    for (const Line &line : body)
        result.append(line.text);
    return result;
}

template <typename Visit>
void LineDocument::forEachLine(Visit visit)
{
    for (int i = front.size() - 1; i >= 0; --i)
        visit(-i - 1);
    for (int i = 0; i < body.size(); ++i)
        visit(i);
}

template <typename Visit>
void LineDocument::forLinesWith(const LineGrammar::LineEdits &lineEdits, const QString &name,
                                Visit visit)
{
    if (lineEdits.isLiteral() && edits > scannedEdits && !hasSurrogates(name)) {
        const QVector<LineRef> refs = candidates(name);
        for (const LineRef ref : refs)
            visit(ref);
    } else {
        forEachLine(visit);
    }
}

void LineDocument::indexLine(LineRef ref)
{
    const QString &text = line(ref).text;
    for (int at = text.indexOf(QLatin1Char('=')); at >= 0;
         at = text.indexOf(QLatin1Char('='), at + 1)) {
        quint64 hash = emptyHash;
        index[hash].append(ref);
        for (int length = 1; length <= indexedLength && length <= at; ++length) {
            hash = mix(hash, text.at(at - length));
            index[hash].append(ref);
        }
    }
}

void LineDocument::buildIndex()
{
    index.clear();
    forEachLine([this](LineRef ref) { indexLine(ref); });
    indexed = true;
}

QVector<LineDocument::LineRef> LineDocument::candidates(const QString &name)
{
    if (!indexed)
        buildIndex();
    quint64 hash = emptyHash;
    for (int length = 1; length <= indexedLength && length <= name.size(); ++length)
        hash = mix(hash, name.at(name.size() - length));
    QVector<LineRef> refs = index.value(hash);
    std::sort(refs.begin(), refs.end());
    refs.erase(std::unique(refs.begin(), refs.end()), refs.end());
    return refs;
}

void LineDocument::setText(LineRef ref, const QString &text)
{
    line(ref).text = text;
    if (indexed)
        indexLine(ref);
}

void LineDocument::prepend(const QString &text)
{
    Line line;
    line.text = text;
    front.append(line);
    if (indexed)
        indexLine(-front.size());
}

void LineDocument::writeAssignment(const QString &name, const QString &quotedValue)
{
    ++edits;
    const QString assignment = name + QLatin1Char('=') + quotedValue;
    const LineGrammar::LineEdits lineEdits(name);
    QVector<LineRef> changed;
    bool matched = false;
    forLinesWith(lineEdits, name, [&](LineRef ref) {
        QString text = line(ref).text;
        const auto result = lineEdits.rewriteAssignment(text, assignment);
        matched = matched || result != LineGrammar::LineEdits::NoMatch;
        if (result == LineGrammar::LineEdits::Changed) {
            setText(ref, text);
            changed.append(ref);
        }
    });
    // A rewritten line holds the assignment; others may in another case.
    bool found = matched;
    if (!found) {
        forLinesWith(lineEdits, name, [&](LineRef ref) {
            found = found || line(ref).text.contains(assignment, Qt::CaseInsensitive);
        });
    }
    if (!found) {
        prepend(QStringLiteral("export ") + assignment);
        changed.append(-front.size());
    }

    // What reading the written file back would give.
    std::sort(changed.begin(), changed.end(), [](LineRef a, LineRef b) {
        // Splitting a line moves the lines behind it in its vector: go from
        // the back of each.
        return (a < 0) == (b < 0) ? (a < 0 ? a < b : a > b) : a < b;
    });
    for (const LineRef ref : qAsConst(changed)) {
        const QStringList pieces = line(ref).text.split(QLatin1Char('\n'));
        QVector<Line> lines;
        for (const QString &piece : pieces) {
            Line read;
            read.bytes = piece.toUtf8();
            read.text = withoutCarriageReturns(piece);
            read.written = edits;
            lines.append(read);
        }
        if (lines.size() == 1) {
            line(ref) = lines.first();
            continue;
        }
        if (ref >= 0) {
            body.replace(ref, lines.first());
            for (int i = 1; i < lines.size(); ++i)
                body.insert(ref + i, lines.at(i));
        } else {
            const int at = -ref - 1;
            front.replace(at, lines.last());
            for (int i = lines.size() - 2; i >= 0; --i)
                front.insert(at + lines.size() - 1 - i, lines.at(i));
        }
        index.clear();
        indexed = false;
    }
}

void LineDocument::blankExport(const QString &name)
{
    ++edits;
    const LineGrammar::LineEdits lineEdits(name);
    forLinesWith(lineEdits, name, [&](LineRef ref) {
        QString text = line(ref).text;
        if (lineEdits.blankExport(text)) {
            // One space and what stood before "export": nothing to re-read.
            setText(ref, text);
            line(ref).bytes = text.toUtf8();
            line(ref).written = edits;
        }
    });
}
