#pragma once

#include <QString>

// The value one kind of program will get for a variable, or why it could
// not be worked out, in words a dialog can show as they stand.
struct ReachResult
{
    enum class State {
        Pending, // still being worked out
        Set,
        NotSet,
        Failed,
    };

    State state = State::Pending;
    QString value;      // when Set
    QString failure;    // when Failed: one sentence
    QString originFile; // the file that last assigned it, when the program can tell
    int originLine = 0; // from 1; 0 when unknown

    static ReachResult set(const QString &value, const QString &file = QString(), int line = 0)
    {
        return {State::Set, value, QString(), file, line};
    }
    static ReachResult notSet() { return {State::NotSet, {}, {}, {}, 0}; }
    static ReachResult failed(const QString &sentence)
    {
        return {State::Failed, {}, sentence, {}, 0};
    }

    bool operator==(const ReachResult &other) const
    {
        return state == other.state && value == other.value && failure == other.failure &&
               originFile == other.originFile && originLine == other.originLine;
    }
    bool operator!=(const ReachResult &other) const { return !(*this == other); }
};
