#include "gui/dialogs/ueditor.h"

#include "core/settings/settingkeys.h"
#include "gui/model/evemodel.h"

#include <QKeyEvent>
#include <QPushButton>
#include <QRegExpValidator>
#include <QSettings>
#include <QTableView>

namespace {

// Both constructors are only ever called with the main window as parent,
// whose table shows the model.
QTableView *tableOf(QWidget *parent)
{
    return parent->findChild<QTableView *>(QStringLiteral("tableView"));
}

bool isRootSession(QWidget *parent)
{
    return qobject_cast<const EveModel *>(tableOf(parent)->model())->rootSession;
}

} // namespace

uEditor::uEditor(QWidget *parent, int)
    : QDialog(parent, Qt::WindowFlags())
    , newVariable(true)
{
    setupUi(this);
    readSettings();
    setWindowIconText(tr("orv-adm-env"));
    setWindowTitle(tr("Create new variable"));

    valueEdit->installEventFilter(this);
    valueEdit->setFocusPolicy(Qt::StrongFocus);
    setFocusProxy(valueEdit);
    variableEdit->installEventFilter(this);
    okButton()->setEnabled(false);
    buttonBox->button(QDialogButtonBox::Cancel)->setFocus(Qt::OtherFocusReason);
    variableEdit->selectAll();
    descriptEdit->installEventFilter(this);
    if (isRootSession(parent))
        checkBox->setEnabled(true);

    variableEdit->setEnabled(true);
    // The form puts the name after the button box, where the dialog itself
    // stands between the box's last button and the name; Tab reaches the
    // dialog first, whose focus proxy is the value, and never the name. Qt
    // takes the name as already in place (the dialog takes no Tab itself), so
    // it is moved away once before it is put right after the last button.
    QWidget *lastButton = buttonBox;
    while (lastButton->nextInFocusChain()->parentWidget() == buttonBox)
        lastButton = lastButton->nextInFocusChain();
    QWidget::setTabOrder(valueEdit, variableEdit);
    QWidget::setTabOrder(lastButton, variableEdit);
    variableEdit->setPlaceholderText(tr("Enter new variable's name here..."));
    valueEdit->setPlaceholderText(tr("Enter new variable's value here..."));
    valueEdit->document()->setModified(false);
    descriptEdit->setPlaceholderText(tr("Enter comments here..."));

    const QString scope = QStringLiteral("local");
    checkBox->setChecked(scope == QLatin1String("global"));

    // The range A-z also takes [ \ ] ^ _ and the grave accent; kept on purpose.
    validator = new QRegExpValidator(
        QRegExp(QStringLiteral("[A-z\\d_-]*"), Qt::CaseInsensitive, QRegExp::RegExp), this);
    variableEdit->setValidator(validator);

    connect(variableEdit, SIGNAL(textChanged(QString)), this, SLOT(anyTextChanged()));
    connect(valueEdit, SIGNAL(textChanged()), this, SLOT(anyTextChanged()));
    connect(valueEdit, SIGNAL(textChanged()), this, SLOT(setValueModified()));
    connect(descriptEdit, SIGNAL(textChanged()), this, SLOT(anyTextChanged()));
    connect(descriptEdit, SIGNAL(textChanged()), this, SLOT(setDescriptionModified()));
    connect(vipCheck, SIGNAL(stateChanged(int)), this, SLOT(anyTextChanged()));
}

uEditor::uEditor(QWidget *parent)
    : QDialog(parent, Qt::WindowFlags())
{
    setupUi(this);
    readSettings();
    setWindowIconText(tr("orv-adm-env"));
    setWindowTitle(tr("Edit variable"));
    okButton()->setEnabled(false);

    valueEdit->installEventFilter(this);
    valueEdit->setFocusPolicy(Qt::StrongFocus);
    setFocusProxy(valueEdit);
    valueEdit->setFocus(Qt::OtherFocusReason);
    if (isRootSession(parent))
        checkBox->setEnabled(true);

    const QModelIndex current = tableOf(parent)->selectionModel()->currentIndex();
    auto cell = [&current](int column) {
        return current.sibling(current.row(), column).data(Qt::DisplayRole).toString();
    };
    const QString vip = cell(EveModel::VipColumn);
    variableEdit->setText(cell(EveModel::VariableColumn));
    valueEdit->setPlainText(cell(EveModel::ValueColumn));
    descriptEdit->setPlainText(cell(EveModel::DescriptionColumn));
    checkBox->setChecked(cell(EveModel::ScopeColumn) == QLatin1String("global"));
    if (vip == QLatin1String("true")) {
        vipCheck->setCheckState(Qt::Checked);
        valueEdit->setEnabled(false);
    } else {
        vipCheck->setCheckState(Qt::Unchecked);
        valueEdit->setEnabled(true);
    }

    // Connected after filling, so that filling does not enable OK.
    connect(variableEdit, SIGNAL(textChanged(QString)), this, SLOT(anyTextChanged()));
    connect(valueEdit, SIGNAL(textChanged()), this, SLOT(anyTextChanged()));
    connect(descriptEdit, SIGNAL(textChanged()), this, SLOT(anyTextChanged()));
    connect(vipCheck, SIGNAL(stateChanged(int)), this, SLOT(anyTextChanged()));
}

uEditor::~uEditor()
{
    QSettings settings;
    SettingKeys::editorSize.write(settings, size());
}

void uEditor::readSettings()
{
    resize(SettingKeys::editorSize.read(QSettings()).toSize());
}

QPushButton *uEditor::okButton() const
{
    return buttonBox->button(QDialogButtonBox::Ok);
}

bool uEditor::eventFilter(QObject *object, QEvent *event)
{
    // Enter and Return accept the dialog instead of breaking the value's line.
    if (object == valueEdit && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            okButton()->click();
            return true;
        }
    }
    return false;
}

void uEditor::anyTextChanged()
{
    if (!newVariable) {
        okButton()->setEnabled(true);
        return;
    }
    okButton()->setEnabled(variableEdit->isModified() && valueEdit->document()->isModified() &&
                           !variableEdit->text().isEmpty());
}

void uEditor::on_vipCheck_stateChanged(int state)
{
    valueEdit->setEnabled(state == 0);
}

void uEditor::setValueModified()
{
    valueModified = true;
}

void uEditor::setDescriptionModified()
{
    descriptionModified = true;
}
