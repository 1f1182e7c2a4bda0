#include "gui/history/previewdialog.h"

#include "core/lookup/whereset.h"
#include "core/preview/linediff.h"
#include "gui/history/diffview.h"

#include "gui/window/wrappedlabel.h"
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

namespace {

QString bulleted(const QStringList &sentences)
{
    QStringList lines;
    for (const QString &sentence : sentences)
        lines.append(QStringLiteral("\u2022 ") + sentence);
    return lines.join(QLatin1Char('\n'));
}

} // namespace

PreviewDialog::PreviewDialog(const ChangePreview &preview, const QString &home, QWidget *parent)
    : QDialog(parent)
{
    setWindowTitle(tr("Preview changes"));
    resize(960, 600);

    QString summary;
    if (preview.files.isEmpty())
        summary = tr("Saving changes no file.");
    else if (preview.files.size() == 1)
        summary = tr("Saving changes one file.");
    else
        summary = tr("Saving changes %1 files.").arg(preview.files.size());
    if (!preview.notices.isEmpty())
        summary += QLatin1Char('\n') + bulleted(preview.notices);
    summaryLabel = wrappedLabel(summary, this);
    summaryLabel->setObjectName(QStringLiteral("summaryLabel"));

    fileTabs = new QTabWidget(this);
    fileTabs->setObjectName(QStringLiteral("fileTabs"));
    fileTabs->setDocumentMode(true);
    fileTabs->setVisible(!preview.files.isEmpty());
    for (const ChangePreview::File &file : preview.files) {
        const QString shown = WhereSet::displayPath(file.path, home);
        auto *page = new QWidget(fileTabs);
        auto *layout = new QVBoxLayout(page);
        const QStringList sentences = file.surprises.sentences();
        if (!sentences.isEmpty())
            layout->addWidget(wrappedLabel(bulleted(sentences), page));
        layout->addWidget(wrappedLabel(file.check.sentence(), page));
        auto *diff = new DiffView(page);
        diff->setObjectName(QStringLiteral("diffView"));
        diff->setDiff(LineDiff::unified(file.before, file.after,
                                        file.created ? tr("%1 (new file)").arg(shown)
                                                     : tr("%1 (now)").arg(shown),
                                        tr("%1 (after saving)").arg(shown)));
        layout->addWidget(diff, 1);
        const bool warn = !sentences.isEmpty() || file.check.outcome == ShellCheck::Fails;
        const int tab = fileTabs->addTab(
            page, warn ? QIcon::fromTheme(QStringLiteral("dialog-warning")) : QIcon(), shown);
        fileTabs->setTabToolTip(tab, file.path);
    }

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Save | QDialogButtonBox::Close, this);
    saveButton = buttons->button(QDialogButtonBox::Save);
    saveButton->setText(tr("&Save"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(summaryLabel);
    layout->addWidget(fileTabs, 1);
    if (preview.files.isEmpty())
        layout->addStretch(1);
    layout->addWidget(buttons);
}
