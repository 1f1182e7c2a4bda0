#include "gui/app/eve.h"

#include "core/preview/sideeffects.h"
#include "core/save/saveplan.h"
#include "core/settings/settingkeys.h"
#include "gui/app/eveport.h"
#include "gui/dialogs/preferencesdialog.h"
#include "gui/dialogs/ueditor.h"
#include "gui/history/history.h"
#include "gui/history/previewcommand.h"
#include "gui/lookup/lookup.h"
#include "gui/model/evemodel.h"
#include "gui/reach/reachcommand.h"
#include "platform/orvintegration.h"

#include <QCloseEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>

// The form icons live in the gui library, which is linked statically.
static void initResources()
{
    Q_INIT_RESOURCE(icons);
}

Eve::Eve(QWidget *parent)
    : QMainWindow(parent)
{
    initResources();
    setupUi(this);
    initDesktopUi();

    model = new EveModel(this);
    tableView->setModel(model);
    // Before the window's own connections: the filter must hear of an edit
    // before the re-sort that follows it.
    auto *features = new EvePort(this);
    installLookup(features);
    installHistory(features);
    installReach(features);

    header = tableView->horizontalHeader();
    header->hideSection(EveModel::ScopeColumn);
    header->hideSection(EveModel::VipColumn);
    header->hideSection(EveModel::PreviousColumn);
    header->setSectionResizeMode(QHeaderView::Interactive);

    readSettings();

    header->setDefaultAlignment(Qt::AlignLeft);
    header->setStretchLastSection(false);
    header->setSortIndicator(EveModel::VariableColumn, Qt::DescendingOrder);
    model->sort(EveModel::VariableColumn, Qt::DescendingOrder);

    tableView->addAction(actionAdd);
    tableView->addAction(actionDelete);
    tableView->addAction(actionEdit);
    tableView->setContextMenuPolicy(Qt::ActionsContextMenu);
    tableView->installEventFilter(this);

    modified = false;

    setFocusProxy(tableView);
    tableView->setFocus(Qt::OtherFocusReason);
    activateWindow();

    connect(tableView, SIGNAL(pressed(QModelIndex)), this, SLOT(checkModelIndex(QModelIndex)));
    connect(tableView, SIGNAL(activated(QModelIndex)), this, SLOT(checkModelIndex(QModelIndex)));
    connect(model, SIGNAL(dataChanged(QModelIndex, QModelIndex)), this,
            SLOT(setModifiedFlagTrue(QModelIndex, QModelIndex)));
    connect(actionAdd, SIGNAL(triggered()), this, SLOT(insertRow()));
    connect(actionDelete, SIGNAL(triggered()), this, SLOT(removeRow()));
    connect(model, SIGNAL(disableDel()), this, SLOT(disableModifications()));
    connect(model, SIGNAL(rowsInserted(QModelIndex, int, int)), this,
            SLOT(rowsInsertedInModel(QModelIndex, int, int)));
    connect(actionPreferences, SIGNAL(triggered()), this, SLOT(showPreferencesDialog()));
    connect(actionSave, SIGNAL(triggered()), this, SLOT(save()));
    connect(actionReset, SIGNAL(triggered()), this, SLOT(reset()));
    connect(actionEdit, SIGNAL(triggered()), this, SLOT(showEditDialog()));
}

Eve::~Eve()
{
    // Hidden first: hiding a visible table after its header is gone would
    // lay out the deleted header.
    hide();
    delete model;
    delete header;
}

void Eve::initDesktopUi()
{
    setWindowTitle(tr("Orv environment variable editor"));
    setWindowIconText(tr("Orv env editor"));

    // Theme icons replace the form's; a theme without one leaves no icon.
    const std::pair<QAction *, const char *> icons[] = {
        {actionSave, "document-save"},    {actionReset, "document-revert"},
        {actionQuit, "application-exit"}, {actionAdd, "list-add"},
        {actionDelete, "list-remove"},    {actionEdit, "document-properties"},
        {actionPreferences, "configure"}};
    for (const auto &[action, name] : icons)
        action->setIcon(QIcon::fromTheme(QLatin1String(name), QIcon()));

    QMenuBar *bar = menuBar();
    bar->addMenu(new OrvHelpMenu(this));
    setMenuBar(bar);
}

void Eve::readSettings()
{
    const QSettings settings;
    resize(SettingKeys::windowSize.read(settings).toSize());
    restoreState(SettingKeys::windowState.read(settings).toByteArray(), 0);

    // A width of 0 or less (also a missing or unreadable one) means the default.
    for (int column = 0; column < 4; ++column) {
        const SettingKey &key = SettingKeys::columnWidths[column];
        const int stored = settings.value(key.path()).toInt();
        tableView->setColumnWidth(column, stored <= 0 ? key.defaultValue.toInt() : stored);
    }
}

void Eve::writeSettings()
{
    QSettings settings;
    SettingKeys::windowSize.write(settings, size());
    SettingKeys::windowState.write(settings, saveState(0));
    for (int column = 0; column < 4; ++column)
        SettingKeys::columnWidths[column].write(settings, tableView->columnWidth(column));
}

bool Eve::eventFilter(QObject *object, QEvent *event)
{
    if (object != tableView || event->type() != QEvent::KeyPress)
        return false;
    const int rows = tableView->model()->rowCount();
    if (rows <= 0)
        return false;
    // With a single row the table ignores keys; action shortcuts still work.
    if (rows <= 1)
        return true;

    const int key = static_cast<QKeyEvent *>(event)->key();
    if (key == Qt::Key_Tab || key == Qt::Key_Backtab)
        return true;

    // Select before the view moves, so that the edit actions follow the keys.
    const int current = tableView->selectionModel()->currentIndex().row();
    switch (key) {
    case Qt::Key_Up:
        tableView->selectRow(current <= 1 ? 0 : current);
        enableModifications();
        break;
    case Qt::Key_PageUp:
    case Qt::Key_Home:
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Space:
        tableView->selectRow(current);
        enableModifications();
        break;
    case Qt::Key_Down:
    case Qt::Key_PageDown:
    case Qt::Key_End:
        enableModifications();
        break;
    default:
        break;
    }
    return false;
}

void Eve::closeEvent(QCloseEvent *event)
{
    if (maybeSave()) {
        writeSettings();
        event->accept();
    } else {
        event->ignore();
    }
}

void Eve::checkModelIndex(const QModelIndex &index)
{
    if (index.isValid())
        enableModifications();
    else
        disableModifications();
}

void Eve::setModifiedFlagTrue(const QModelIndex &, const QModelIndex &)
{
    setModifiedFlag(true);
    resort();
}

void Eve::setModifiedFlag(bool b)
{
    modified = b;
    actionSave->setEnabled(b);
    actionReset->setEnabled(b);
}

void Eve::disableModifications()
{
    actionDelete->setEnabled(false);
    actionEdit->setEnabled(false);
}

void Eve::enableModifications()
{
    actionDelete->setEnabled(true);
    actionEdit->setEnabled(true);
}

void Eve::insertRow()
{
    showNewDialog();
}

void Eve::removeRow()
{
    // The last row can never be deleted.
    if (model->rowCount() < 2) {
        actionDelete->setEnabled(false);
        return;
    }
    if (!confirmDelete())
        return;
    const QModelIndex current = tableView->selectionModel()->currentIndex();
    if (current.row() < 0)
        return;
    model->removeRows(current.row(), 1, QModelIndex());
    if (tableView->selectionModel()->currentIndex().row() > 0)
        enableModifications();
    setModifiedFlag(true);
    tableView->selectRow(0);
}

void Eve::help()
{
    QMessageBox box;
    box.setText(tr("Help Dump"));
    box.exec();
}

void Eve::rowsInsertedInModel(const QModelIndex &, int, int)
{}

void Eve::showPreferencesDialog()
{
    preferencesDialog dialog(this, model);
    if (model->ShellKind == EveModel::Bash)
        dialog.groupBox_2->setTitle(dialog.groupBox_2->title() + QStringLiteral(" (bash)"));
    else if (model->ShellKind == EveModel::Csh)
        dialog.groupBox_2->setTitle(dialog.groupBox_2->title() + QStringLiteral(" (*csh)"));
    if (dialog.exec() != QDialog::Accepted)
        return;

    if (modified) {
        const auto answer = QMessageBox::information(
            this, tr("Apply changes now?"), tr("Do you want to save data and apply changes now?"),
            QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Ok);
        if (answer != QMessageBox::Ok)
            return;
        // The reload below drops whatever the save could not write.
        save();
    }
    reloadModel(tr("New settings have been applied!"), 2000);
}

void Eve::save()
{
    // The files are read once: what the question is about is what gets written.
    const SavePlan plan = planSave(model->saveInput());
    if (confirmSideEffects(plan))
        saveChanges(plan);
}

bool Eve::confirmSideEffects(const SavePlan &plan)
{
    const SideEffects effects = SideEffects::of(plan);
    if (effects.isEmpty())
        return true;
    QMessageBox box(QMessageBox::Warning, tr("Attention!"), effects.sentence(model->homeDir),
                    QMessageBox::NoButton, this);
    QPushButton *saveAnyway = box.addButton(tr("Save anyway"), QMessageBox::AcceptRole);
    QPushButton *preview = box.addButton(tr("Preview..."), QMessageBox::ActionRole);
    QPushButton *cancel = box.addButton(QMessageBox::Cancel);
    box.setDefaultButton(cancel);
    box.setEscapeButton(cancel);
    box.exec();
    if (box.clickedButton() == preview) {
        // Its own Save button saves what it shows.
        if (auto *command = findChild<PreviewCommand *>())
            command->run();
    }
    return box.clickedButton() == saveAnyway;
}

void Eve::saveChanges(const SavePlan &plan)
{
    if (model->save(plan)) {
        setModifiedFlag(false);
        statusBar()->showMessage(tr("Changes were saved successfully!"), 5000);
        QMessageBox::warning(this, tr("Changes were saved"),
                             tr("Changes were saved and will be applied after restarting a "
                                "session!"),
                             QMessageBox::Ok);
    } else {
        QMessageBox::warning(this, tr("Attention!"),
                             tr("Unable to save changes - file access denied!"), QMessageBox::Ok);
    }
}

void Eve::reset()
{
    if (confirmReset())
        reloadModel(tr("All changes were reseted!"), 5000);
}

void Eve::reloadModel(const QString &message, int timeout)
{
    if (!model->reload())
        return;
    setModifiedFlag(false);
    statusBar()->showMessage(message, timeout);
    tableView->setEnabled(true);
    resort();
}

void Eve::showEditDialog()
{
    uEditor editor(this);
    if (editor.exec() != QDialog::Accepted)
        return;

    const QModelIndex current = tableView->selectionModel()->currentIndex();
    const QString value = editor.valueEdit->toPlainText();
    const QString description = editor.descriptEdit->toPlainText();
    const QString name = editor.variableEdit->text();
    const QString vip = editor.vipCheck->isChecked() ? QStringLiteral("true") : QString();
    const QString scope =
        editor.checkBox->isChecked() ? QStringLiteral("global") : QStringLiteral("local");
    updateRecord(current, name, value, description, scope, vip);
}

void Eve::updateRecord(const QModelIndex &index, const QString &name, const QString &value,
                       const QString &description, const QString &scope, const QString &vip)
{
    model->setData(index, name, value, description, scope, vip, value, Qt::EditRole);
    tableView->selectRow(0);
    resort();
    setModifiedFlag(true);
    if (model->rowCount() > 1)
        enableModifications();
}

void Eve::showNewDialog()
{
    uEditor editor(this, 0);
    if (editor.exec() != QDialog::Accepted)
        return;

    const QString value = editor.valueEdit->toPlainText();
    const QString name = editor.variableEdit->text();
    const QString description = editor.descriptEdit->toPlainText();
    const QString scope =
        editor.checkBox->isChecked() ? QStringLiteral("global") : QStringLiteral("local");
    model->insertRows(model->rowCount(), 1, QStringList{name, value, description, scope},
                      QModelIndex());

    // One past the last row: selects nothing, but makes the view's current
    // index the selection model's current one.
    tableView->selectRow(model->rowCount());
    tableView->selectionModel()->setCurrentIndex(tableView->currentIndex(),
                                                 QItemSelectionModel::Current);
    resort();
    setModifiedFlag(true);
    if (model->rowCount() > 1)
        enableModifications();
}

bool Eve::maybeSave()
{
    if (!modified)
        return true;
    const auto answer =
        QMessageBox::warning(this, tr("Changes are not saved!"),
                             tr("Do you want to save your changes?\n (Changes will be applied "
                                "after restarting a session)"),
                             QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
    if (answer == QMessageBox::Yes) {
        model->save();
        return true;
    }
    return answer == QMessageBox::No;
}

bool Eve::confirmReset()
{
    return QMessageBox::warning(this, tr("Attention!"), tr("Do you really want to reset?"),
                                QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes;
}

bool Eve::confirmDelete()
{
    const QModelIndex current = tableView->selectionModel()->currentIndex();
    const QString origin =
        model->data(model->index(current.row(), EveModel::OriginColumn), Qt::DisplayRole)
            .toString();
    const QString vip =
        model->data(model->index(current.row(), EveModel::VipColumn), Qt::DisplayRole).toString();

    QString question;
    if (vip == QLatin1String("true") && origin != tr("System"))
        question = tr("Do you really want to delete SYSTEM variable located at file \n") + origin +
                   QStringLiteral(" ?");
    else
        question = tr("Do you really want to delete a variable?");
    return QMessageBox::warning(this, tr("Attention!"), question,
                                QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes;
}

void Eve::resort()
{
    model->sort(header->sortIndicatorSection(), header->sortIndicatorOrder());
}
