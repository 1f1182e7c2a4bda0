#pragma once

#include "core/preview/changepreview.h"

#include <QDialog>

class QDialogButtonBox;
class QLabel;
class QPushButton;
class QTabWidget;

// Every file the next save writes, as a diff of the file now against what
// the save would write, with what may surprise above it. Accepted means:
// save now.
class PreviewDialog : public QDialog
{
    Q_OBJECT

public:
    PreviewDialog(const ChangePreview &preview, const QString &home, QWidget *parent);

    QLabel *summaryLabel;
    QTabWidget *fileTabs;
    QPushButton *saveButton;
};
