#include "exportmatcher.h"

#include <QByteArray>

#include <cstring>

namespace LineGrammar {

namespace {

const QLatin1String keyword("export");

// QRegExp's word characters (\w, and the sides of \b).
inline bool isWordChar(QChar c)
{
    const char16_t u = c.unicode();
    if (u < 128)
        return (u >= 'a' && u <= 'z') || (u >= 'A' && u <= 'Z') || (u >= '0' && u <= '9') ||
               u == '_';
    return c.isLetterOrNumber() || c.isMark();
}

const char *findBytes(const char *from, const char *end, const char *what, size_t length)
{
    return static_cast<const char *>(memmem(from, size_t(end - from), what, length));
}

const char *findByte(const char *from, const char *end, char what)
{
    return static_cast<const char *>(memchr(from, what, size_t(end - from)));
}

} // namespace

bool findExport(QStringView line, ExportSpan *span)
{
    const QChar *s = line.data();
    const int n = int(line.size());
    for (int from = 0;;) {
        const int at = int(line.indexOf(keyword, from));
        if (at < 0)
            return false;
        from = at + 1;

        // "\bexport\b\s+": a whole word and white space after it.
        if (at > 0 && isWordChar(s[at - 1]))
            continue;
        int i = at + keyword.size();
        if (i >= n || !s[i].isSpace())
            continue;
        while (i < n && s[i].isSpace())
            ++i;

        // "\b(\w+)=": all the word characters after the space, then "=".
        const int nameStart = i;
        while (i < n && isWordChar(s[i]))
            ++i;
        if (i == nameStart || i >= n || s[i] != QLatin1Char('='))
            continue;

        // "(.+)\b": at least one character, up to the last word boundary.
        const int valueStart = i + 1;
        int end = n;
        bool after = false; // beyond the line is no word character
        for (; end > valueStart; --end) {
            const bool before = isWordChar(s[end - 1]);
            if (before != after)
                break;
            after = before;
        }
        if (end == valueStart)
            continue;

        span->nameStart = nameStart;
        span->nameLength = valueStart - 1 - nameStart;
        span->valueStart = valueStart;
        span->valueLength = end - valueStart;
        return true;
    }
}

bool ExportLineMatcher::match(const QString &text)
{
    line = text;
    return findExport(line, &span);
}

void forEachExport(const QByteArray &bytes,
                   const std::function<void(QStringView name, QStringView value)> &found)
{
    const char *pos = bytes.constData();
    const char *const end = pos + bytes.size();
    // The next "export" and the next "\r" at or after pos; end when none.
    const char *word = pos;
    const char *cr = pos;
    while (pos < end) {
        if (word < pos) {
            word = findBytes(pos, end, keyword.data(), size_t(keyword.size()));
            word = word ? word : end;
        }
        if (cr < pos) {
            cr = findByte(pos, end, '\r');
            cr = cr ? cr : end;
        }
        const char *hit = qMin(word, cr);
        if (hit == end)
            return;

        const char *lineStart = static_cast<const char *>(memrchr(pos, '\n', size_t(hit - pos)));
        lineStart = lineStart ? lineStart + 1 : pos;
        const char *lineEnd = findByte(hit, end, '\n');
        lineEnd = lineEnd ? lineEnd : end;
        pos = lineEnd + 1;
        const char *textEnd = lineEnd;
        if (textEnd > lineStart && textEnd[-1] == '\r')
            --textEnd;

        // A line whose only "\r" is its last character needs "export" itself.
        const bool hasCr = findByte(lineStart, textEnd, '\r');
        if (!hasCr && !findBytes(lineStart, textEnd, keyword.data(), size_t(keyword.size())))
            continue;
        QString text = QString::fromUtf8(lineStart, int(textEnd - lineStart));
        if (hasCr)
            text.remove(QLatin1Char('\r'));
        ExportSpan span;
        if (findExport(text, &span)) {
            const QStringView view(text);
            found(view.mid(span.nameStart, span.nameLength),
                  view.mid(span.valueStart, span.valueLength));
        }
    }
}

} // namespace LineGrammar
