#pragma once

#include <QByteArray>
#include <QRandomGenerator>
#include <QString>

// Random lines built from the pieces that decide how the read grammar and
// the environment split match: "export" and its near misses, every kind of
// white space, word characters from ASCII to combining marks and surrogate
// pairs, "=", punctuation, and for file bytes broken UTF-8 and line ends.
// The same start value gives the same lines, so a failure can be repeated.
class RandomLines
{
public:
    explicit RandomLines(quint32 startValue)
        : random(startValue)
    {}

    // One line of text that may or may not hold "export NAME=VALUE".
    QString exportLine();
    // The bytes of a small start-up file: such lines in UTF-8 with broken
    // sequences, NUL bytes, "\r" and "\n" between them.
    QByteArray fileBytes();
    // One NAME=VALUE entry of a process environment, or something near it.
    QString environmentEntry();

private:
    int below(int bound) { return int(random.bounded(quint32(bound))); }

    QRandomGenerator random;
};
