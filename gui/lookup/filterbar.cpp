#include "gui/lookup/filterbar.h"

#include "gui/lookup/rowfilter.h"
#include "gui/window/editorwindow.h"
#include "gui/window/toolscommand.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QStatusBar>
#include <QTableView>
#include <QToolBar>

FilterBar::FilterBar(EditorWindow *window)
    : QObject(window->window())
    , window(window)
    , filter(new RowFilter(window->table()))
{
    QMainWindow *main = window->window();
    edit = new QLineEdit(main);
    edit->setObjectName(QStringLiteral("filterEdit"));
    edit->setPlaceholderText(tr("Filter variables"));
    edit->setToolTip(tr("Shows only the variables whose name, value or description contain "
                        "this text (Ctrl+F)"));
    edit->setClearButtonEnabled(true);
    edit->setMaximumWidth(260);
    edit->installEventFilter(this);
    window->toolBar()->addSeparator();
    window->toolBar()->addWidget(edit);

    action = new QAction(tr("&Filter variables"), main);
    addToolsCommand(window, action, QStringLiteral("actionFilter"), QString(),
                    QStringLiteral("edit-find"), QKeySequence::Find);
    connect(action, &QAction::triggered, edit, [this] {
        edit->setFocus(Qt::ShortcutFocusReason);
        edit->selectAll();
    });

    // Permanent, so that the window's own status messages do not hide it.
    count = new QLabel(main);
    count->setObjectName(QStringLiteral("filterCount"));
    count->hide();
    main->statusBar()->addPermanentWidget(count);

    connect(edit, &QLineEdit::textChanged, filter, &RowFilter::setText);
    connect(filter, &RowFilter::applied, this, &FilterBar::showCount);
    // With no row in sight, Delete and Edit have nothing to act on.
    connect(filter, &RowFilter::currentLost, this, [window] { window->disableRowCommands(); });
}

bool FilterBar::eventFilter(QObject *object, QEvent *event)
{
    if (object != edit || event->type() != QEvent::KeyPress)
        return false;
    switch (static_cast<QKeyEvent *>(event)->key()) {
    case Qt::Key_Escape:
        edit->clear();
        window->table()->setFocus(Qt::ShortcutFocusReason);
        window->table()->scrollTo(window->table()->currentIndex());
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Down:
        window->table()->setFocus(Qt::ShortcutFocusReason);
        return true;
    default:
        return false;
    }
}

void FilterBar::showCount(int visible, int total)
{
    count->setVisible(!filter->text().isEmpty());
    count->setText(tr("%1 of %2 variables").arg(visible).arg(total));
}
