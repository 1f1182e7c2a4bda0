#include "gui/lookup/pathlistdialog.h"

#include "core/lookup/pathlist.h"

#include <QAction>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>
#include <QStyle>
#include <QVBoxLayout>

namespace {

// Adds a key to a button's command that works while the list has the focus.
void addListKey(QListWidget *list, QPushButton *button, const QKeySequence &key)
{
    auto *action = new QAction(list);
    action->setShortcut(key);
    action->setShortcutContext(Qt::WidgetShortcut);
    QObject::connect(action, &QAction::triggered, button, &QPushButton::click);
    list->addAction(action);
    button->setToolTip(key.toString(QKeySequence::NativeText));
}

} // namespace

PathListDialog::PathListDialog(const QString &name, const QString &value, QWidget *parent)
    : QDialog(parent)
    , original(value)
{
    setWindowTitle(tr("Edit %1 as a list").arg(name));
    resize(600, 420);

    auto *intro = new QLabel(
        tr("The entries of %1 in their order, one per line; double-click an entry to change it.")
            .arg(name),
        this);
    intro->setWordWrap(true);

    list = new QListWidget(this);
    list->setObjectName(QStringLiteral("entryList"));
    list->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed);
    const int iconSize = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    list->setIconSize(QSize(iconSize, iconSize));

    addButton = new QPushButton(tr("&Add folder..."), this);
    removeButton = new QPushButton(tr("&Remove"), this);
    upButton = new QPushButton(tr("Move &up"), this);
    downButton = new QPushButton(tr("Move &down"), this);
    duplicatesButton = new QPushButton(tr("Remove du&plicates"), this);
    addListKey(list, addButton, QKeySequence(Qt::Key_Insert));
    addListKey(list, removeButton, QKeySequence::Delete);
    addListKey(list, upButton, QKeySequence(Qt::CTRL | Qt::Key_Up));
    addListKey(list, downButton, QKeySequence(Qt::CTRL | Qt::Key_Down));

    auto *side = new QVBoxLayout;
    for (QPushButton *button : {addButton, removeButton, upButton, downButton})
        side->addWidget(button);
    side->addStretch();
    side->addWidget(duplicatesButton);

    auto *middle = new QHBoxLayout;
    middle->addWidget(list, 1);
    middle->addLayout(side);

    buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(intro);
    layout->addLayout(middle, 1);
    layout->addWidget(buttons);

    connect(addButton, &QPushButton::clicked, this, &PathListDialog::addFolder);
    connect(removeButton, &QPushButton::clicked, this, &PathListDialog::removeCurrent);
    connect(upButton, &QPushButton::clicked, this, [this] { move(-1); });
    connect(downButton, &QPushButton::clicked, this, [this] { move(1); });
    connect(duplicatesButton, &QPushButton::clicked, this, &PathListDialog::removeDuplicates);
    connect(list, &QListWidget::currentRowChanged, this, &PathListDialog::refresh);
    // Queued: the edited item must outlive the editor that is still committing it.
    connect(list, &QListWidget::itemChanged, this, &PathListDialog::entryEdited,
            Qt::QueuedConnection);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    setEntries(PathList::split(value), 0);
    list->setFocus();
}

QStringList PathListDialog::entries() const
{
    QStringList texts;
    for (int row = 0; row < list->count(); ++row)
        texts.append(list->item(row)->text());
    return texts;
}

QString PathListDialog::value() const
{
    return PathList::join(entries());
}

QString PathListDialog::chooseFolder(QWidget *parent, const QString &start)
{
    // Qt's own dialog: native ones ignore the request to show hidden folders.
    QFileDialog dialog(parent, tr("Add folder"), start);
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOptions(QFileDialog::ShowDirsOnly | QFileDialog::DontUseNativeDialog);
    dialog.setFilter(dialog.filter() | QDir::Hidden);
    if (dialog.exec() != QDialog::Accepted)
        return QString();
    return dialog.selectedFiles().value(0);
}

void PathListDialog::setEntries(const QStringList &entries, int current)
{
    {
        const QSignalBlocker blocker(list);
        list->clear();
        for (const QString &entry : entries) {
            auto *item = new QListWidgetItem(entry, list);
            item->setFlags(item->flags() | Qt::ItemIsEditable);
        }
    }
    list->setCurrentRow(qBound(-1, current, list->count() - 1));
    refresh();
}

void PathListDialog::addFolder()
{
    const QString currentEntry = list->currentItem() ? list->currentItem()->text() : QString();
    const QString start = QFileInfo(currentEntry).isDir() ? currentEntry : QDir::homePath();
    const QString folder = folderChooser(this, start);
    if (folder.isEmpty())
        return;
    QStringList texts = entries();
    const int row = list->currentRow() < 0 ? texts.size() : list->currentRow() + 1;
    texts.insert(row, QDir::cleanPath(folder));
    setEntries(texts, row);
}

void PathListDialog::removeCurrent()
{
    const int row = list->currentRow();
    if (row < 0)
        return;
    QStringList texts = entries();
    texts.removeAt(row);
    setEntries(texts, qMin(row, texts.size() - 1));
}

void PathListDialog::move(int step)
{
    const int row = list->currentRow();
    const int target = row + step;
    if (row < 0 || target < 0 || target >= list->count())
        return;
    QStringList texts = entries();
    texts.move(row, target);
    setEntries(texts, target);
}

void PathListDialog::removeDuplicates()
{
    setEntries(PathList::withoutDuplicates(entries()), 0);
}

void PathListDialog::entryEdited()
{
    // An entry typed or pasted with colons becomes several entries.
    const QString value = this->value();
    if (PathList::split(value) == entries())
        refresh();
    else
        setEntries(PathList::split(value), list->currentRow());
}

void PathListDialog::refresh()
{
    const QSignalBlocker blocker(list);
    const QStringList texts = entries();
    const QVector<int> earlier = PathList::earlierDuplicates(texts);
    const QIcon warning = QIcon::fromTheme(QStringLiteral("dialog-warning"),
                                           style()->standardIcon(QStyle::SP_MessageBoxWarning));
    const QIcon copy = QIcon::fromTheme(QStringLiteral("edit-copy"),
                                        style()->standardIcon(QStyle::SP_MessageBoxInformation));
    // Unmarked entries get an empty icon, so that every text starts at one place.
    QPixmap blank(list->iconSize());
    blank.fill(Qt::transparent);
    const QIcon none(blank);
    bool anyDuplicate = false;
    for (int row = 0; row < texts.size(); ++row) {
        QListWidgetItem *item = list->item(row);
        const QString &text = texts.at(row);
        const QFileInfo info(text);
        QStringList notes;
        if (text.isEmpty())
            notes << tr("empty: stands for the current folder");
        else if (!info.exists())
            notes << tr("does not exist");
        else if (!info.isDir())
            notes << tr("is not a folder");
        const bool missing = !notes.isEmpty();
        if (earlier.at(row) >= 0) {
            notes << tr("duplicate of entry %1").arg(earlier.at(row) + 1);
            anyDuplicate = true;
        }
        QFont font = list->font();
        font.setItalic(earlier.at(row) >= 0);
        item->setFont(font);
        item->setIcon(missing ? warning : earlier.at(row) >= 0 ? copy : none);
        item->setToolTip(notes.join(QLatin1Char('\n')));
    }

    const int row = list->currentRow();
    removeButton->setEnabled(row >= 0);
    upButton->setEnabled(row > 0);
    downButton->setEnabled(row >= 0 && row < list->count() - 1);
    duplicatesButton->setEnabled(anyDuplicate);
    buttons->button(QDialogButtonBox::Ok)->setEnabled(value() != original);
}
