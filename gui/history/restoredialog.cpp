#include "gui/history/restoredialog.h"

#include "core/lookup/whereset.h"
#include "core/preview/linediff.h"
#include "core/save/restore.h"
#include "gui/history/diffview.h"

#include "gui/window/wrappedlabel.h"
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

constexpr int copyRole = Qt::UserRole; // index into the copies, or -1 for a file

} // namespace

RestoreDialog::RestoreDialog(const QStringList &startupFiles, const QString &home, QWidget *parent)
    : QDialog(parent)
    , home(home)
{
    setWindowTitle(tr("Restore an earlier version"));
    resize(960, 600);

    folderLabel = wrappedLabel(QString(), this);
    folderLabel->setObjectName(QStringLiteral("folderLabel"));
    const Result<QList<Backups::Copy>> listed = Backups::list();
    if (!listed)
        folderLabel->setText(tr("The earlier copies cannot be listed: the folder %1 cannot be "
                                "read: %2.")
                                 .arg(Backups::directory(), listed.reason()));
    folderLabel->setVisible(!listed);
    if (listed)
        copies = listed.value();

    copyTree = new QTreeWidget(this);
    copyTree->setObjectName(QStringLiteral("copyTree"));
    copyTree->setHeaderLabels({tr("File and copy"), tr("Size")});
    copyTree->setUniformRowHeights(true);
    QStringList files = startupFiles;
    for (const Backups::Copy &copy : qAsConst(copies)) {
        if (!files.contains(copy.original))
            files.append(copy.original);
    }
    for (const QString &file : qAsConst(files)) {
        auto *fileItem = new QTreeWidgetItem(copyTree, {WhereSet::displayPath(file, home)});
        fileItem->setData(0, copyRole, -1);
        fileItem->setToolTip(0, file);
        for (int i = 0; i < copies.size(); ++i) {
            if (copies.at(i).original != file)
                continue;
            auto *item =
                new QTreeWidgetItem(fileItem, {Restore::timeText(copies.at(i).time),
                                               locale().formattedDataSize(copies.at(i).size)});
            item->setData(0, copyRole, i);
            item->setToolTip(0, copies.at(i).path);
        }
        if (fileItem->childCount() == 0)
            fileItem->setText(1, tr("no copies"));
    }
    copyTree->expandAll();
    copyTree->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    copyTree->header()->setStretchLastSection(false);
    copyTree->resizeColumnToContents(1);

    statusLabel = wrappedLabel(QString(), this);
    statusLabel->setObjectName(QStringLiteral("statusLabel"));
    diffView = new DiffView(this);
    diffView->setObjectName(QStringLiteral("diffView"));

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    restoreButton = buttons->addButton(tr("&Restore"), QDialogButtonBox::AcceptRole);
    restoreButton->setEnabled(false);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto *right = new QVBoxLayout;
    right->addWidget(statusLabel);
    right->addWidget(diffView, 1);
    auto *middle = new QHBoxLayout;
    middle->addWidget(copyTree, 2);
    middle->addLayout(right, 3);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(folderLabel);
    layout->addLayout(middle, 1);
    layout->addWidget(buttons);

    connect(copyTree, &QTreeWidget::currentItemChanged, this, &RestoreDialog::showChosen);
    // The newest copy of the first file that has one.
    QTreeWidgetItem *first = copyTree->topLevelItem(0);
    for (int i = 0; i < copyTree->topLevelItemCount(); ++i) {
        if (copyTree->topLevelItem(i)->childCount() > 0) {
            first = copyTree->topLevelItem(i)->child(0);
            break;
        }
    }
    if (first)
        copyTree->setCurrentItem(first);
    else
        statusLabel->setText(tr("No start-up file has earlier copies."));
    copyTree->setFocus();
}

Backups::Copy RestoreDialog::chosenCopy() const
{
    const QTreeWidgetItem *item = copyTree->currentItem();
    const int index = item ? item->data(0, copyRole).toInt() : -1;
    return index >= 0 ? copies.at(index) : Backups::Copy();
}

void RestoreDialog::showChosen()
{
    restoreButton->setEnabled(false);
    diffView->clear();
    const QTreeWidgetItem *item = copyTree->currentItem();
    if (!item)
        return;
    const int index = item->data(0, copyRole).toInt();
    if (index < 0) {
        const QString file = item->text(0);
        statusLabel->setText(item->childCount() > 0
                                 ? tr("Choose a copy of %1.").arg(file)
                                 : tr("No earlier copies of %1 are kept. A copy is made each "
                                      "time a save or a restore rewrites the file.")
                                       .arg(file));
        return;
    }

    const Backups::Copy &copy = copies.at(index);
    const QString file = WhereSet::displayPath(copy.original, home);
    const QString time = Restore::timeText(copy.time);
    const Result<QByteArray> keptRead = Backups::readCopy(copy.path);
    if (!keptRead) {
        statusLabel->setText(
            tr("The copy of %1 from %2 cannot be read: %3.").arg(file, time, keptRead.reason()));
        return;
    }
    const Result<Restore::Contents> nowRead = Restore::read(copy.original);
    if (!nowRead) {
        statusLabel->setText(tr("%1 cannot be read now: %2.").arg(file, nowRead.reason()));
        return;
    }
    const QByteArray &kept = keptRead.value();
    const Restore::Contents &now = nowRead.value();
    if (now.exists && now.bytes == kept) {
        statusLabel->setText(tr("The copy from %1 is the same as %2 now.").arg(time, file));
        return;
    }
    statusLabel->setText(
        now.exists ? tr("Restoring the copy from %1 changes these lines of %2:").arg(time, file)
                   : tr("%1 does not exist now; restoring the copy from %2 makes it again.")
                         .arg(file, time));
    diffView->setDiff(LineDiff::unified(now.bytes, kept, tr("%1 (now)").arg(file),
                                        tr("%1 (copy from %2)").arg(file, time)));
    restoreButton->setEnabled(true);
}
