#pragma once

#include <QPlainTextEdit>

// A read-only view of a unified diff: removed lines on red, added ones on
// green, hunk heads in the colour of links.
class DiffView : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit DiffView(QWidget *parent = nullptr);

    void setDiff(const QByteArray &diff);
};
