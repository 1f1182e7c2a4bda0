#pragma once

#include "ui_ueditor.h"

#include <QDialog>

class QRegExpValidator;

// The dialog for a new variable and for changing the selected one. It only
// fills and checks its fields; the main window reads them back on OK.
class uEditor : public QDialog, public Ui_uEditor
{
    Q_OBJECT

public:
    // A new variable; the second argument only tells this constructor apart.
    uEditor(QWidget *parent, int);
    // The variable in the current row of the main window's table.
    explicit uEditor(QWidget *parent);
    ~uEditor() override;

private slots:
    bool eventFilter(QObject *object, QEvent *event) override;
    void anyTextChanged();
    void on_vipCheck_stateChanged(int state);
    void setValueModified();
    void setDescriptionModified();

private:
    void readSettings();
    QPushButton *okButton() const;

    bool newVariable = false;
    bool valueModified = false;
    bool descriptionModified = false;
    QRegExpValidator *validator = nullptr;
};
