#pragma once

#include <QString>
#include <QStringView>

#include <functional>
#include <string_view>

class QByteArray;

namespace LineGrammar {

// Where "export NAME=VALUE" lies in a line, as offsets into it.
struct ExportSpan
{
    int nameStart = 0;
    int nameLength = 0;
    int valueStart = 0;
    int valueLength = 0;
};

// The read grammar of the start-up files without a regular-expression
// engine: finds what QRegExp("\\bexport\\b\\s+\\b(\\w+)=(.+)\\b") finds
// (RegExp syntax, case-sensitive, anywhere in the line), with the same
// word characters (letters, digits, marks and '_' by QChar's categories) and
// white space (QChar::isSpace). The value runs to the last word boundary.
bool findExport(QStringView line, ExportSpan *span);

// findExport with the interface of a matcher object.
class ExportLineMatcher
{
public:
    bool match(const QString &line);
    QString name() const { return line.mid(span.nameStart, span.nameLength); }
    QString value() const { return line.mid(span.valueStart, span.valueLength); }

private:
    QString line;
    ExportSpan span;
};

// Calls `found` with the name and value of every line of a start-up file
// that holds an export, in line order. Lines end at "\n"; a line is decoded
// from UTF-8 and loses its "\r" characters, but only when its bytes can hold
// an export: "export" or a "\r" inside it. No other line can match, as UTF-8
// decoding maps ASCII bytes to themselves one by one.
void forEachExport(const QByteArray &bytes,
                   const std::function<void(QStringView name, QStringView value)> &found);

// forEachExport for the names alone, in UTF-8. Lines of ASCII text, the most
// common kind, are matched without being decoded.
void forEachExportedName(const QByteArray &bytes,
                         const std::function<void(std::string_view name)> &found);

} // namespace LineGrammar
