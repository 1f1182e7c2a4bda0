#pragma once

#include <QString>
#include <QtGlobal>

// The one line printed instead of Qt's abort when no window system can be reached.
extern const char noDisplayMessage[];

// True for Qt's fatal error about a platform plugin that could not start, which is how
// a missing or unreachable display ends the construction of the application object.
bool isDisplayFailure(QtMsgType type, const QString &message);

// Lives around the construction of the application object. Qt reports a display it
// cannot open with warnings and then a fatal error that aborts the program; while the
// guard is active, warnings are held back and that fatal error becomes noDisplayMessage
// on stderr and exit code 2. release() (or the destructor) hands the held warnings on
// to the previous message handler, since the application did start after all.
class NoDisplayGuard
{
public:
    NoDisplayGuard();
    ~NoDisplayGuard();
    NoDisplayGuard(const NoDisplayGuard &) = delete;
    NoDisplayGuard &operator=(const NoDisplayGuard &) = delete;

    void release();

private:
    bool active = true;
};
