#pragma once

#include <QObject>
#include <QSet>
#include <QString>

class QTableView;

// Hides the rows of a table view whose name, value and description do not
// contain a text. Only the view changes: the model keeps every row, so the
// commands that read rows by number read what they always read.
class RowFilter : public QObject
{
    Q_OBJECT

public:
    explicit RowFilter(QTableView *view);

    QString text() const { return needle; }
    void setText(const QString &text);
    int visibleCount() const { return visible; }

signals:
    // After every pass over the rows.
    void applied(int visible, int total);
    // The current row was hidden and no visible row could take its place.
    void currentLost();

private:
    void apply();
    void keepCurrentVisible();
    void pinRows(int first, int last);

    QTableView *view;
    QString needle;
    // Names of rows added or changed under the current text: they stay in
    // sight, so the user sees what the command did, until the text changes.
    QSet<QString> pinned;
    int visible = 0;
};
