#pragma once

#include <QObject>

class Eve;
class QAction;

// "Restore...": puts an earlier copy of a start-up file back, then reloads
// the table as Reset does.
class RestoreCommand : public QObject
{
    Q_OBJECT

public:
    explicit RestoreCommand(Eve *window);

    QAction *action() const;

private:
    void run();

    Eve *window;
    QAction *restoreAction;
};
