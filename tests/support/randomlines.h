#pragma once

#include <QRandomGenerator>
#include <QStringList>

// Random lines built from the pieces that decide how the read grammar matches.
// The same start value gives the same lines.
class RandomLines
{
public:
    explicit RandomLines(quint32 startValue)
        : random(startValue)
    {}

    // One line that may or may not hold "export NAME=VALUE".
    QString exportLine();
    // A small start-up file: such lines in UTF-8, broken UTF-8, NUL, "\r" and "\n".
    QByteArray fileBytes();

private:
    int below(int bound) { return int(random.bounded(quint32(bound))); }
    QString pick(const QStringList &from) { return from.at(below(from.size())); }
    QByteArray pick(const QByteArrayList &from) { return from.at(below(from.size())); }
    QString any();
    QRandomGenerator random;
};
