#pragma once

#include <QObject>

class EditorWindow;
class QAction;
class QLabel;
class QLineEdit;
class RowFilter;

// The filter field at the end of the window's tool bar (Ctrl+F focuses it,
// Escape clears it) and the "N of M variables" count in the status bar.
class FilterBar : public QObject
{
    Q_OBJECT

public:
    explicit FilterBar(EditorWindow *window);

    QLineEdit *field() const { return edit; }
    QAction *findAction() const { return action; }
    QLabel *countLabel() const { return count; }
    RowFilter *rowFilter() const { return filter; }

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void showCount(int visible, int total);

    EditorWindow *window;
    RowFilter *filter;
    QLineEdit *edit;
    QAction *action;
    QLabel *count;
};
