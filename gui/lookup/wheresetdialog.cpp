#include "gui/lookup/wheresetdialog.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QTreeWidget>
#include <QVBoxLayout>

WhereSetDialog::WhereSetDialog(const QString &name, const std::optional<QString> &session,
                               const QList<WhereSet::Line> &lines, const QString &explanation,
                               const QString &home, QWidget *parent)
    : QDialog(parent)
    , shownLines(lines)
{
    setWindowTitle(tr("Where is %1 set?").arg(name));
    resize(760, 420);

    sessionLabel = new QLabel(session ? tr("In this session: %1=%2").arg(name, *session)
                                      : tr("This session does not have %1").arg(name),
                              this);
    sessionLabel->setTextFormat(Qt::PlainText);
    sessionLabel->setWordWrap(true);
    sessionLabel->setTextInteractionFlags(Qt::TextSelectableByMouse);

    lineList = new QTreeWidget(this);
    lineList->setObjectName(QStringLiteral("lineList"));
    lineList->setRootIsDecorated(false);
    lineList->setUniformRowHeights(true);
    lineList->setAlternatingRowColors(true);
    lineList->setHeaderLabels({tr("File"), tr("Line"), tr("Text"), tr("Note")});
    for (const WhereSet::Line &line : lines) {
        auto *item = new QTreeWidgetItem(lineList);
        item->setText(FileColumn, WhereSet::displayPath(line.path, home));
        item->setToolTip(FileColumn, line.path);
        item->setText(TextColumn, line.text);
        item->setToolTip(TextColumn, line.text);
        if (!line.readable) {
            item->setIcon(FileColumn, QIcon::fromTheme(QStringLiteral("dialog-warning")));
            continue;
        }
        item->setText(LineColumn, QString::number(line.number));
        item->setTextAlignment(LineColumn, Qt::AlignRight | Qt::AlignVCenter);
        if (line.commented) {
            item->setText(NoteColumn, tr("commented out"));
            QFont font = item->font(TextColumn);
            font.setItalic(true);
            for (int column = 0; column < lineList->columnCount(); ++column) {
                item->setFont(column, font);
                item->setForeground(column, palette().brush(QPalette::Disabled, QPalette::Text));
            }
        } else if (!line.hasValue) {
            item->setText(NoteColumn, tr("exports it, sets no value"));
        }
    }
    lineList->header()->setStretchLastSection(false);
    lineList->header()->setSectionResizeMode(TextColumn, QHeaderView::Stretch);
    for (int column : {FileColumn, LineColumn, NoteColumn})
        lineList->resizeColumnToContents(column);
    if (lineList->topLevelItemCount() > 0)
        lineList->setCurrentItem(lineList->topLevelItem(0));

    explanationLabel = new QLabel(explanation, this);
    explanationLabel->setTextFormat(Qt::PlainText);
    explanationLabel->setWordWrap(true);
    explanationLabel->setTextInteractionFlags(Qt::TextSelectableByMouse);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(sessionLabel);
    layout->addWidget(lineList, 1);
    layout->addWidget(explanationLabel);
    layout->addWidget(buttons);
    lineList->setFocus();
}

void WhereSetDialog::selectLine(const QString &path, int line)
{
    int chosen = -1;
    for (int i = 0; i < shownLines.size(); ++i) {
        if (shownLines.at(i).path != path)
            continue;
        if (chosen < 0 || shownLines.at(i).number == line)
            chosen = i;
    }
    if (chosen >= 0)
        lineList->setCurrentItem(lineList->topLevelItem(chosen));
}
