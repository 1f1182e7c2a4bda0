#pragma once

#include <QObject>

class Eve;
class QAction;

// "Preview changes...": what the next save would write, before it does;
// enabled exactly while Save is.
class PreviewCommand : public QObject
{
    Q_OBJECT

public:
    explicit PreviewCommand(Eve *window);

    QAction *action() const;

private:
    void run();

    Eve *window;
    QAction *previewAction;
};
