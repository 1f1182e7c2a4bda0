#include "gui/reach/reachdialog.h"

#include "core/files/systempaths.h"
#include "core/lookup/whereset.h"
#include "core/preview/linediff.h"
#include "core/reach/etcenvironment.h"
#include "core/reach/generatorprobe.h"
#include "core/reach/shellprobe.h"
#include "core/reach/usermanager.h"
#include "gui/lookup/wheresetcommand.h"
#include "gui/model/evemodel.h"
#include "gui/window/editorwindow.h"

#include "gui/window/wrappedlabel.h"
#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

QString shellName(const QString &shell)
{
    const QString name = QFileInfo(shell).fileName();
    return name.isEmpty() ? ReachDialog::tr("no shell") : name;
}

// The environment.d files the user manager reads when the generator cannot
// be asked, in the order it reads them.
ReachResult environmentDFiles(const ReachEnvironment &environment, const QString &name)
{
    ReachResult found = ReachResult::notSet();
    for (const QString &folder : {SystemPaths::underRoot(QStringLiteral("/etc/environment.d")),
                                  environment.configHome() + QStringLiteral("/environment.d")}) {
        const QStringList files =
            QDir(folder).entryList({QStringLiteral("*.conf")}, QDir::Files, QDir::Name);
        for (const QString &file : files) {
            const ReachResult result = EtcEnvironment::lookup(folder + '/' + file, name);
            if (result.state == ReachResult::State::Set)
                found = result;
        }
    }
    return found;
}

} // namespace

ReachDialog::ReachDialog(EditorWindow *window, const QString &name, const QString &tableValue,
                         const ReachEnvironment &environment, QWidget *parent)
    : QDialog(parent)
    , window(window)
    , name(name)
    , tableValue(tableValue)
    , environment(environment)
{
    setWindowTitle(tr("Where %1 takes effect").arg(name));
    resize(820, 460);

    introLabel = wrappedLabel(QString(), this);
    introLabel->setText(tr("The value each kind of program gets at the next login, as the "
                           "programs themselves work it out. The table has %1=%2.")
                            .arg(name, tableValue));

    rowList = new QTreeWidget(this);
    rowList->setObjectName(QStringLiteral("reachRows"));
    rowList->setRootIsDecorated(false);
    rowList->setUniformRowHeights(true);
    rowList->setHeaderLabels(
        {tr("Programs"), tr("Value at the next login"), tr("Set in"), tr("As in the table")});
    const QStringList contexts{tr("Graphical programs"),
                               tr("Login shell (%1)").arg(shellName(environment.shell)),
                               tr("Terminals"), tr("SSH logins")};
    for (const QString &context : contexts)
        new QTreeWidgetItem(rowList, {context});
    rowList->header()->setSectionResizeMode(ValueColumn, QHeaderView::Stretch);
    rowList->header()->setStretchLastSection(false);
    rowList->resizeColumnToContents(ContextColumn);
    rowList->setColumnWidth(OriginColumn, 220);
    rowList->setToolTip(tr("Double-click a file to see every line that sets %1").arg(name));
    connect(rowList, &QTreeWidget::itemActivated, this,
            [this](QTreeWidgetItem *item) { openOrigin(rowList->indexOfTopLevelItem(item)); });

    graphicalButton = new QPushButton(tr("Make it reach &graphical programs"), this);
    const ShellProbe::Kind kind = ShellProbe::kindOf(environment.shell);
    shellButton = new QPushButton(kind == ShellProbe::Kind::Fish ? tr("Make it reach &fish")
                                                                 : tr("Make it reach &zsh"),
                                  this);
    connect(graphicalButton, &QPushButton::clicked, this,
            [this] { propose(ReachWrite::Target::GraphicalPrograms); });
    connect(shellButton, &QPushButton::clicked, this, [this, kind] {
        propose(kind == ShellProbe::Kind::Fish ? ReachWrite::Target::Fish
                                               : ReachWrite::Target::Zsh);
    });
    auto *makeRow = new QHBoxLayout;
    makeRow->addWidget(graphicalButton);
    makeRow->addWidget(shellButton);
    makeRow->addStretch();

    pendingLabel = wrappedLabel(QString(), this);
    pendingLabel->setObjectName(QStringLiteral("pendingLabel"));
    pendingLines = new QPlainTextEdit(this);
    pendingLines->setReadOnly(true);
    pendingLines->setLineWrapMode(QPlainTextEdit::NoWrap);
    pendingLines->setFont(QFont(QStringLiteral("monospace")));
    writeButton = new QPushButton(tr("&Write these lines"), this);
    applyButton = new QPushButton(tr("&Apply to programs started from now on"), this);
    connect(writeButton, &QPushButton::clicked, this, &ReachDialog::writePending);
    connect(applyButton, &QPushButton::clicked, this, &ReachDialog::applyNow);
    auto *pendingRow = new QHBoxLayout;
    pendingRow->addWidget(writeButton);
    pendingRow->addWidget(applyButton);
    pendingRow->addStretch();

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(introLabel);
    layout->addWidget(rowList, 1);
    layout->addLayout(makeRow);
    layout->addWidget(pendingLabel);
    layout->addWidget(pendingLines, 1);
    layout->addLayout(pendingRow);
    layout->addWidget(buttons);

    for (QWidget *widget :
         {static_cast<QWidget *>(pendingLines), static_cast<QWidget *>(writeButton),
          static_cast<QWidget *>(applyButton)})
        widget->hide();

    userManager = new UserManager(this);
    connect(userManager, &UserManager::answered, this, &ReachDialog::updateButtons);
    userManager->ask();
    start();
}

// The probes are children: closing kills whatever still runs.
ReachDialog::~ReachDialog() = default;

bool ReachDialog::isWorkingOut() const
{
    return (shells && shells->isRunning()) || (generator && generator->isRunning());
}

void ReachDialog::start()
{
    delete shells;
    delete generator;
    for (int row = 0; row < RowCount; ++row) {
        results[row] = ReachResult();
        showRow(Row(row), results[row]);
    }
    etcEnvironment = EtcEnvironment::lookup(SystemPaths::etcEnvironment(), name);
    shells = new ShellProbe(this);
    generator = new GeneratorProbe(this);
    connect(shells, &ShellProbe::finished, this, &ReachDialog::combine);
    connect(generator, &GeneratorProbe::finished, this, &ReachDialog::combine);
    shells->start(environment, name);
    generator->start(environment, name);
    updateButtons();
}

void ReachDialog::combine()
{
    if (!shells->isRunning()) {
        results[LoginRow] = shells->result(ShellProbe::Context::Login);
        results[TerminalRow] = shells->result(ShellProbe::Context::Interactive);
        // sshd gives /etc/environment first; the login shell's files may set it again.
        const ReachResult &login = results[LoginRow];
        results[SshRow] = login.state == ReachResult::State::NotSet &&
                                  etcEnvironment.state != ReachResult::State::Pending
                              ? etcEnvironment
                              : login;
    }
    if (!generator->isRunning()) {
        const ReachResult generated = generator->result();
        generatorNote.clear();
        if (generated.state == ReachResult::State::Set) {
            results[GraphicalRow] = generated;
        } else {
            // The user manager starts from the PAM environment, /etc/environment.
            ReachResult files = generated.state == ReachResult::State::Failed
                                    ? environmentDFiles(environment, name)
                                    : ReachResult::notSet();
            if (generated.state == ReachResult::State::Failed)
                generatorNote = generated.failure;
            results[GraphicalRow] = files.state == ReachResult::State::Set ? files : etcEnvironment;
        }
    }
    for (int row = 0; row < RowCount; ++row)
        showRow(Row(row), results[row]);
    updateButtons();
    if (!isWorkingOut())
        emit workedOut();
}

void ReachDialog::showRow(Row row, const ReachResult &result)
{
    QTreeWidgetItem *item = rowList->topLevelItem(row);
    QString value, origin, same;
    switch (result.state) {
    case ReachResult::State::Pending:
        value = tr("working out...");
        break;
    case ReachResult::State::Set:
        value = result.value;
        same = result.value == tableValue ? tr("yes") : tr("no");
        break;
    case ReachResult::State::NotSet:
        value = tr("not set");
        same = tr("no");
        break;
    case ReachResult::State::Failed:
        value = result.failure;
        break;
    }
    if (!result.originFile.isEmpty()) {
        origin = WhereSet::displayPath(result.originFile, environment.home);
        if (result.originLine > 0)
            origin += QLatin1Char(':') + QString::number(result.originLine);
    }
    if (row == GraphicalRow && !generatorNote.isEmpty())
        value += QLatin1String(" (") +
                 tr("environment.d read without the generator: %1").arg(generatorNote) +
                 QLatin1Char(')');
    item->setText(ValueColumn, value);
    item->setToolTip(ValueColumn, value);
    item->setText(OriginColumn, origin);
    item->setText(SameColumn, same);
}

void ReachDialog::updateButtons()
{
    const auto differs = [this](Row row) {
        const ReachResult &result = results[row];
        return (result.state == ReachResult::State::Set && result.value != tableValue) ||
               result.state == ReachResult::State::NotSet;
    };
    const ShellProbe::Kind kind = ShellProbe::kindOf(environment.shell);
    const bool writableShell = kind == ShellProbe::Kind::Zsh || kind == ShellProbe::Kind::Fish;
    graphicalButton->setVisible(differs(GraphicalRow));
    shellButton->setVisible(writableShell &&
                            (differs(LoginRow) || differs(TerminalRow) || differs(SshRow)));
    applyButton->setVisible(pending && pending->target == ReachWrite::Target::GraphicalPrograms &&
                            userManager->answer().ok());
}

void ReachDialog::propose(ReachWrite::Target target)
{
    const Result<ReachWrite> planned = ReachWrite::plan(target, environment, name, tableValue);
    pendingLines->setVisible(planned.ok());
    writeButton->setVisible(planned.ok());
    if (!planned) {
        pending.reset();
        pendingLabel->setText(
            tr("%1 cannot be written into %2: %3")
                .arg(name, WhereSet::displayPath(planned.failure().path, environment.home),
                     planned.reason()));
        updateButtons();
        return;
    }
    pending = planned.value();
    const QString file = WhereSet::displayPath(pending->file.path, environment.home);
    QString text = pending->file.existed ? tr("Writing changes these lines of %1:").arg(file)
                                         : tr("Writing makes %1 with these lines:").arg(file);
    if (target == ReachWrite::Target::GraphicalPrograms && !userManager->answer().ok())
        text = tr("It takes effect at the next login; it cannot be applied now, because %1.")
                   .arg(userManager->answer().reason()) +
               QLatin1Char(' ') + text;
    pendingLabel->setText(text);
    pendingLines->setPlainText(QString::fromUtf8(
        LineDiff::unified(pending->file.before, pending->file.after, file, file)));
    updateButtons();
}

void ReachDialog::writePending()
{
    if (!pending)
        return;
    const Result<CommittedFile> written = pending->commit();
    const QString file = WhereSet::displayPath(pending->file.path, environment.home);
    if (!written) {
        pendingLabel->setText(tr("Couldn't write file %1: %2").arg(file, written.reason()));
        return;
    }
    QString text = tr("%1 was written.").arg(file);
    if (!written->copy.isEmpty())
        text += QLatin1Char(' ') + tr("What it held before is kept as a copy (Restore...).");
    else if (!written->copyFailure.isEmpty())
        text += QLatin1Char(' ') + tr("No copy could be kept: %1.").arg(written->copyFailure);
    pendingLabel->setText(text);
    pending.reset();
    pendingLines->hide();
    writeButton->hide();
    start();
}

void ReachDialog::applyNow()
{
    const Status applied = UserManager::apply(name, tableValue);
    pendingLabel->setText(
        applied
            ? tr("Programs started from now on get %1=%2. Programs already running and open "
                 "terminals keep the value they have.")
                  .arg(name, tableValue)
            : tr("Couldn't apply it now: %1: %2").arg(applied.failure().path, applied.reason()));
    applyButton->hide();
}

void ReachDialog::openOrigin(int row)
{
    if (row < 0 || row >= RowCount || results[row].originFile.isEmpty())
        return;
    WhereSetCommand::show(window, name, tableValue, results[row].originFile,
                          results[row].originLine);
}
