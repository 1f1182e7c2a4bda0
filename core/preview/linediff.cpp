#include "core/preview/linediff.h"

#include <QHash>

namespace LineDiff {

namespace {

// Beyond this many differing lines the search would take too much memory;
// the part between the common start and end is then one change.
constexpr int largestSearch = 1000;

struct Step
{
    bool insert;  // a line of the new file, else one of the old file
    int oldIndex; // where the step starts
    int newIndex;
};

// The shortest edit script of Myers' greedy algorithm, kept small by
// remembering only the diagonals each round reached.
bool shortestEdit(const QVector<int> &a, const QVector<int> &b, QVector<Step> *steps)
{
    const int n = a.size();
    const int m = b.size();
    const int limit = qMin(n + m, largestSearch);
    const int offset = limit + 1;
    QVector<int> v(2 * limit + 3, 0);
    QVector<QVector<int>> trace; // per round d: v[-d .. d] before the round
    int rounds = -1;
    for (int d = 0; d <= limit && rounds < 0; ++d) {
        trace.append(v.mid(offset - d, 2 * d + 1));
        for (int k = -d; k <= d; k += 2) {
            int x = (k == -d || (k != d && v[offset + k - 1] < v[offset + k + 1]))
                        ? v[offset + k + 1]
                        : v[offset + k - 1] + 1;
            int y = x - k;
            while (x < n && y < m && a.at(x) == b.at(y)) {
                ++x;
                ++y;
            }
            v[offset + k] = x;
            if (x >= n && y >= m) {
                rounds = d;
                break;
            }
        }
    }
    if (rounds < 0)
        return false;

    int x = n;
    int y = m;
    for (int d = rounds; d > 0; --d) {
        const QVector<int> &previous = trace.at(d); // diagonals -(d-1) .. d-1 at index k + d
        const auto at = [&](int k) {
            return previous.at(k + d);
        };
        const int k = x - y;
        const bool insert = k == -d || (k != d && at(k - 1) < at(k + 1));
        const int previousK = insert ? k + 1 : k - 1;
        const int previousX = at(previousK);
        const int previousY = previousX - previousK;
        steps->prepend({insert, previousX, previousY});
        x = previousX;
        y = previousY;
    }
    return true;
}

} // namespace

QByteArrayList splitLines(const QByteArray &bytes)
{
    QByteArrayList lines;
    int start = 0;
    while (start < bytes.size()) {
        const int end = bytes.indexOf('\n', start);
        const int next = end < 0 ? bytes.size() : end + 1;
        lines.append(bytes.mid(start, next - start));
        start = next;
    }
    return lines;
}

QVector<Change> changes(const QByteArrayList &before, const QByteArrayList &after)
{
    // Saves change few lines: the common start and end cost a comparison each.
    int head = 0;
    const int shorter = qMin(before.size(), after.size());
    while (head < shorter && before.at(head) == after.at(head))
        ++head;
    int tail = 0;
    while (tail < shorter - head &&
           before.at(before.size() - 1 - tail) == after.at(after.size() - 1 - tail))
        ++tail;
    const int oldCount = before.size() - head - tail;
    const int newCount = after.size() - head - tail;
    if (oldCount == 0 && newCount == 0)
        return {};
    if (oldCount == 0 || newCount == 0)
        return {{head, oldCount, head, newCount}};

    // Lines as numbers, so the search compares integers.
    QHash<QByteArray, int> numbers;
    const auto numbered = [&numbers](const QByteArrayList &lines, int from, int count) {
        QVector<int> result;
        result.reserve(count);
        for (int i = from; i < from + count; ++i)
            result.append(
                numbers.insert(lines.at(i), numbers.value(lines.at(i), numbers.size())).value());
        return result;
    };
    const QVector<int> a = numbered(before, head, oldCount);
    const QVector<int> b = numbered(after, head, newCount);
    QVector<Step> steps;
    if (!shortestEdit(a, b, &steps))
        return {{head, oldCount, head, newCount}};

    // Steps that follow each other without a common line form one change.
    QVector<Change> result;
    for (const Step &step : steps) {
        const int oldIndex = head + step.oldIndex;
        const int newIndex = head + step.newIndex;
        if (result.isEmpty() || result.last().oldStart + result.last().oldCount != oldIndex ||
            result.last().newStart + result.last().newCount != newIndex)
            result.append({oldIndex, 0, newIndex, 0});
        if (step.insert)
            ++result.last().newCount;
        else
            ++result.last().oldCount;
    }
    return result;
}

QByteArray unified(const QByteArray &before, const QByteArray &after, const QString &beforeLabel,
                   const QString &afterLabel, int context)
{
    const QByteArrayList oldLines = splitLines(before);
    const QByteArrayList newLines = splitLines(after);
    const QVector<Change> found = changes(oldLines, newLines);
    if (found.isEmpty())
        return QByteArray();

    QByteArray out = "--- " + beforeLabel.toUtf8() + "\n+++ " + afterLabel.toUtf8() + "\n";
    const auto put = [&out](char mark, const QByteArray &line) {
        out += mark;
        out += line;
        if (!line.endsWith('\n'))
            out += "\n\\ No newline at end of file\n";
    };
    const auto range = [](int start, int count) {
        // As diff -u: the line before an empty range, and no count of 1.
        QByteArray text = QByteArray::number(count == 0 ? start : start + 1);
        if (count != 1)
            text += ',' + QByteArray::number(count);
        return text;
    };

    for (int first = 0; first < found.size();) {
        // Changes whose contexts touch share a hunk.
        int last = first;
        while (last + 1 < found.size() &&
               found.at(last + 1).oldStart - (found.at(last).oldStart + found.at(last).oldCount) <=
                   2 * context)
            ++last;
        const Change &head = found.at(first);
        const Change &tail = found.at(last);
        const int oldFrom = qMax(0, head.oldStart - context);
        const int oldTo = qMin(oldLines.size(), tail.oldStart + tail.oldCount + context);
        const int newFrom = head.newStart - (head.oldStart - oldFrom);
        const int newTo = tail.newStart + tail.newCount + (oldTo - tail.oldStart - tail.oldCount);
        out += "@@ -" + range(oldFrom, oldTo - oldFrom) + " +" + range(newFrom, newTo - newFrom) +
               " @@\n";
        int at = oldFrom;
        for (int i = first; i <= last; ++i) {
            const Change &change = found.at(i);
            for (; at < change.oldStart; ++at)
                put(' ', oldLines.at(at));
            for (int j = 0; j < change.oldCount; ++j)
                put('-', oldLines.at(change.oldStart + j));
            for (int j = 0; j < change.newCount; ++j)
                put('+', newLines.at(change.newStart + j));
            at = change.oldStart + change.oldCount;
        }
        for (; at < oldTo; ++at)
            put(' ', oldLines.at(at));
        first = last + 1;
    }
    return out;
}

} // namespace LineDiff
