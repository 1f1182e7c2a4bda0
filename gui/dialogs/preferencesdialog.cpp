#include "gui/dialogs/preferencesdialog.h"

#include "core/files/configfiles.h"
#include "core/files/systempaths.h"
#include "core/settings/settingkeys.h"
#include "gui/model/evemodel.h"
#include "platform/orvintegration.h"

#include <QFileDialog>
#include <QKeyEvent>
#include <QPushButton>
#include <QSettings>

namespace {

QStringList itemTexts(const QListWidget *list)
{
    QStringList texts;
    for (int row = 0; row < list->count(); ++row)
        texts.append(list->item(row)->text());
    return texts;
}

} // namespace

preferencesDialog::preferencesDialog(QWidget *parent, EveModel *model)
    : QDialog(parent, Qt::WindowFlags())
    , model(model)
{
    setupUi(this);
    readSettings();

    setWindowTitle(tr("Preferences"));
    // Theme icons replace the form's; a theme without one leaves the button blank.
    const std::pair<QPushButton *, const char *> icons[] = {
        {userAddButton, "list-add"},   {userRemoveButton, "list-remove"},
        {userUpButton, "go-up"},       {userDownButton, "go-down"},
        {systemAddButton, "list-add"}, {systemRemoveButton, "list-remove"},
        {systemUpButton, "go-up"},     {systemDownButton, "go-down"}};
    for (const auto &[button, name] : icons)
        button->setIcon(QIcon::fromTheme(QLatin1String(name), QIcon()));

    buttonBox->button(QDialogButtonBox::Ok)->setEnabled(false);
    buttonBox->setFocus(Qt::OtherFocusReason);

    systemFilesList->addItems(model->systemFiles);
    userFilesList->addItems(model->userFiles);

    // Only root may change the system-wide list.
    systemFilesList->setEnabled(false);
    if (model->rootSession) {
        systemFilesList->setEnabled(true);
        systemAddButton->setEnabled(true);
    }
    setModified(false);
    userAddButton->setFocus(Qt::OtherFocusReason);
}

void preferencesDialog::setModified(bool m)
{
    modified = m;
    if (m) {
        buttonBox->button(QDialogButtonBox::Apply)->setEnabled(true);
        buttonBox->button(QDialogButtonBox::Ok)->setEnabled(true);
    } else {
        // After an Apply, OK stays as it was.
        buttonBox->button(QDialogButtonBox::Apply)->setEnabled(false);
    }
}

void preferencesDialog::setSystemButtonsEnabled(bool e)
{
    systemRemoveButton->setEnabled(e);
    systemUpButton->setEnabled(e);
    systemDownButton->setEnabled(e);
}

void preferencesDialog::setUserButtonsEnabled(bool e)
{
    userRemoveButton->setEnabled(e);
    userUpButton->setEnabled(e);
    userDownButton->setEnabled(e);
}

void preferencesDialog::updateButtons(QListWidget *list, QPushButton *up, QPushButton *down,
                                      QPushButton *remove)
{
    const int row = list->currentRow();
    const bool any = row >= 0;
    up->setEnabled(any && row != 0);
    down->setEnabled(any && row != list->count() - 1);
    remove->setEnabled(any);
}

void preferencesDialog::moveCurrent(QListWidget *list, int step)
{
    // The buttons are off at the ends, so the target row always exists.
    const int row = list->currentRow();
    QListWidgetItem *item = list->takeItem(row);
    list->insertItem(row + step, item);
    list->setCurrentRow(row + step);
    setModified(true);
}

void preferencesDialog::removeCurrent(QListWidget *list)
{
    delete list->takeItem(list->currentRow());
    // The current-item signal came while the row was still counted; update again.
    if (list == systemFilesList)
        on_systemFilesList_currentItemChanged();
    else
        on_userFilesList_currentItemChanged();
    setModified(true);
}

void preferencesDialog::addFile(QListWidget *list, const QString &startDir)
{
    // Start-up files are dot files: Qt's own dialog, which can show them
    // (a native one ignores the request).
    QFileDialog dialog(this, QString(), startDir, QString());
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setFilter(dialog.filter() | QDir::Hidden);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const QString path = dialog.selectedFiles().value(0);
    if (path.isEmpty())
        return;
    list->addItem(path);
    setModified(true);
}

void preferencesDialog::on_userAddButton_clicked()
{
    addFile(userFilesList, model->homeDir);
}

void preferencesDialog::on_userRemoveButton_clicked()
{
    removeCurrent(userFilesList);
}

void preferencesDialog::on_userUpButton_clicked()
{
    moveCurrent(userFilesList, -1);
}

void preferencesDialog::on_userDownButton_clicked()
{
    moveCurrent(userFilesList, 1);
}

void preferencesDialog::on_userFilesList_currentItemChanged()
{
    updateButtons(userFilesList, userUpButton, userDownButton, userRemoveButton);
}

void preferencesDialog::on_systemAddButton_clicked()
{
    addFile(systemFilesList, SystemPaths::etcDir());
}

void preferencesDialog::on_systemRemoveButton_clicked()
{
    removeCurrent(systemFilesList);
}

void preferencesDialog::on_systemUpButton_clicked()
{
    moveCurrent(systemFilesList, -1);
}

void preferencesDialog::on_systemDownButton_clicked()
{
    moveCurrent(systemFilesList, 1);
}

void preferencesDialog::on_systemFilesList_currentItemChanged()
{
    updateButtons(systemFilesList, systemUpButton, systemDownButton, systemRemoveButton);
}

void preferencesDialog::on_buttonBox_clicked(QAbstractButton *button)
{
    switch (buttonBox->standardButton(button)) {
    case QDialogButtonBox::Cancel:
        close();
        break;
    case QDialogButtonBox::Apply:
        writeSettings();
        setModified(false);
        break;
    case QDialogButtonBox::Ok:
        // The box's accepted() follows this click and makes exec() return Accepted.
        writeSettings();
        close();
        break;
    default:
        break;
    }
}

void preferencesDialog::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        buttonBox->button(QDialogButtonBox::Ok)->click();
        break;
    case Qt::Key_Escape:
        buttonBox->button(QDialogButtonBox::Cancel)->click();
        break;
    case Qt::Key_F1:
        orvHelpShow(orvHelpLookForWidget());
        break;
    default:
        QDialog::keyPressEvent(event);
        break;
    }
}

void preferencesDialog::readSettings()
{
    resize(SettingKeys::preferencesSize.read(QSettings()).toSize());
}

void preferencesDialog::writeSettings()
{
    {
        QSettings settings;
        SettingKeys::preferencesSize.write(settings, size());
        SettingKeys::preferencesPosition.write(settings, pos());
    }

    // The model scans the new lists at its next reload.
    model->systemFiles = itemTexts(systemFilesList);
    model->userFiles = itemTexts(userFilesList);
    ConfigFiles::storeLists(model->ShellKind, model->systemFiles, model->userFiles);
}
