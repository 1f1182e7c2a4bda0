#pragma once

#include <QMenu>

class QMainWindow;

// The window's "&Tools" menu, which holds the actions of the features that
// go beyond the basic editing commands. It sits just before the Help menu
// and is made by the first feature that asks for it.
class ToolsMenu : public QMenu
{
    Q_OBJECT

public:
    static ToolsMenu *of(QMainWindow *window);

private:
    explicit ToolsMenu(QWidget *parent);
};
