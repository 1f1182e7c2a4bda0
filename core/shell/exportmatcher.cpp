#include "core/shell/exportmatcher.h"

#include "core/shell/characters.h"

#include <QByteArray>

#include <cstring>
#include <optional>

namespace LineGrammar {

namespace {

const QLatin1String keyword("export");

// QRegExp's word characters (\w, and the sides of \b).
using ShellCharacters::isPatternWordChar;

const char *findByte(const char *from, const char *end, char what)
{
    return static_cast<const char *>(memchr(from, what, size_t(end - from)));
}

// The first "export" in [from, end), or null. Found through its "x", the
// rarest of its letters in shell text, which memchr finds fast.
const char *findKeyword(const char *from, const char *end)
{
    if (end - from < 6)
        return nullptr;
    for (const char *x = from + 1; end - x >= 5; ++x) {
        x = findByte(x, end - 4, 'x');
        if (!x)
            return nullptr;
        if (x[-1] == 'e' && memcmp(x + 1, "port", 4) == 0)
            return x - 1;
    }
    return nullptr;
}

// Where "(.+)\b" ends a value that starts at `valueStart` in a line of `n`
// characters: at the last word boundary, which is `valueStart` when there is
// none. `isWord(at)` tells whether the character at `at` is a word character;
// when it cannot tell, the result is -1.
template <typename IsWord>
int valueEnd(int valueStart, int n, IsWord isWord)
{
    std::optional<bool> after = false; // beyond the line is no word character
    for (int end = n; end > valueStart; --end) {
        const std::optional<bool> before = isWord(end - 1);
        if (!before)
            return -1;
        if (*before != *after)
            return end;
        after = before;
    }
    return valueStart;
}

// The first "export" in the line at or after `from`, or -1; found through
// its "x", as in the bytes.
int findKeyword(QStringView line, int from)
{
    const QChar *s = line.data();
    const int n = int(line.size());
    for (int x = from + 1; x + 5 <= n; ++x) {
        x = int(line.indexOf(QLatin1Char('x'), x));
        if (x < 0 || x + 5 > n)
            return -1;
        if (s[x - 1] == QLatin1Char('e') && s[x + 1] == QLatin1Char('p') &&
            s[x + 2] == QLatin1Char('o') && s[x + 3] == QLatin1Char('r') &&
            s[x + 4] == QLatin1Char('t'))
            return x - 1;
    }
    return -1;
}

} // namespace

bool findExport(QStringView line, ExportSpan *span)
{
    const QChar *s = line.data();
    const int n = int(line.size());
    for (int from = 0;;) {
        const int at = findKeyword(line, from);
        if (at < 0)
            return false;
        from = at + 1;

        // "\bexport\b\s+": a whole word and white space after it.
        if (at > 0 && isPatternWordChar(s[at - 1]))
            continue;
        int i = at + keyword.size();
        if (i >= n || !s[i].isSpace())
            continue;
        while (i < n && s[i].isSpace())
            ++i;

        // "\b(\w+)=": all the word characters after the space, then "=".
        const int nameStart = i;
        while (i < n && isPatternWordChar(s[i]))
            ++i;
        if (i == nameStart || i >= n || s[i] != QLatin1Char('='))
            continue;

        // "(.+)\b": at least one character, up to the last word boundary.
        const int valueStart = i + 1;
        const int end = valueEnd(valueStart, n, [s](int at) { return isPatternWordChar(s[at]); });
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

namespace {

// Calls line(start, end, hasCr) for every line of `bytes` that holds
// "export" or a "\r" before its last character; `end` excludes the line end.
template <typename Line>
void forEachCandidateLine(const QByteArray &bytes, Line line)
{
    const char *pos = bytes.constData();
    const char *const end = pos + bytes.size();
    // The next "export" and the next "\r" at or after pos; end when none.
    const char *word = pos;
    const char *cr = pos;
    while (pos < end) {
        if (word < pos) {
            word = findKeyword(pos, end);
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

        // Both lie at or after lineStart: hit's line is the first that holds either.
        const bool hasCr = cr < textEnd;
        if (hasCr || word < lineEnd)
            line(lineStart, textEnd, hasCr);
    }
}

// The line as the grammar sees it: decoded, without its "\r" characters.
QString decodedLine(const char *start, const char *end, bool hasCr)
{
    QString text = QString::fromUtf8(start, int(end - start));
    if (hasCr)
        text.remove(QLatin1Char('\r'));
    return text;
}

enum class Quick { NoMatch, Match, Unsure };

inline bool isAsciiSpace(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

inline bool isAsciiWord(char c)
{
    return ShellCharacters::isNameChar(QLatin1Char(c));
}

inline bool isAscii(char c)
{
    return static_cast<unsigned char>(c) < 0x80;
}

// findExport on the undecoded bytes of a line without "\r". Every byte it
// looks at must be ASCII, which decodes to the same character; when one is
// not, only the decoded line can tell.
Quick quickFindExport(const char *s, int n, int *nameStart, int *nameLength)
{
    for (const char *from = s;;) {
        const char *word = findKeyword(from, s + n);
        if (!word)
            return Quick::NoMatch;
        const int at = int(word - s);
        from = word + 1;

        if (at > 0 && !isAscii(s[at - 1]))
            return Quick::Unsure;
        if (at > 0 && isAsciiWord(s[at - 1]))
            continue;
        int i = at + keyword.size();
        while (i < n && isAsciiSpace(s[i]))
            ++i;
        if (i < n && !isAscii(s[i]))
            return Quick::Unsure;
        if (i == at + keyword.size())
            continue;

        const int start = i;
        while (i < n && isAsciiWord(s[i]))
            ++i;
        if (i < n && !isAscii(s[i]))
            return Quick::Unsure;
        if (i == start || i >= n || s[i] != '=')
            continue;

        const int valueStart = i + 1;
        const int end = valueEnd(valueStart, n, [s](int at) -> std::optional<bool> {
            if (!isAscii(s[at]))
                return std::nullopt;
            return isAsciiWord(s[at]);
        });
        if (end < 0)
            return Quick::Unsure;
        if (end == valueStart)
            continue;
        *nameStart = start;
        *nameLength = valueStart - 1 - start;
        return Quick::Match;
    }
}

} // namespace

void forEachExport(const QByteArray &bytes,
                   const std::function<void(QStringView name, QStringView value)> &found)
{
    forEachCandidateLine(bytes, [&](const char *start, const char *end, bool hasCr) {
        const QString text = decodedLine(start, end, hasCr);
        ExportSpan span;
        if (findExport(text, &span)) {
            const QStringView view(text);
            found(view.mid(span.nameStart, span.nameLength),
                  view.mid(span.valueStart, span.valueLength));
        }
    });
}

void forEachExportedName(const QByteArray &bytes,
                         const std::function<void(std::string_view name)> &found)
{
    forEachCandidateLine(bytes, [&](const char *start, const char *end, bool hasCr) {
        int nameStart = 0;
        int nameLength = 0;
        const Quick quick = hasCr
                                ? Quick::Unsure
                                : quickFindExport(start, int(end - start), &nameStart, &nameLength);
        if (quick == Quick::Match) {
            found(std::string_view(start + nameStart, size_t(nameLength)));
        } else if (quick == Quick::Unsure) {
            const QString text = decodedLine(start, end, hasCr);
            ExportSpan span;
            if (findExport(text, &span)) {
                const QByteArray name =
                    QStringView(text).mid(span.nameStart, span.nameLength).toUtf8();
                found(std::string_view(name.constData(), size_t(name.size())));
            }
        }
    });
}

} // namespace LineGrammar
