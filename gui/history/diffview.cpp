#include "gui/history/diffview.h"

#include <QFontDatabase>
#include <QSyntaxHighlighter>

namespace {

class DiffHighlighter : public QSyntaxHighlighter
{
public:
    explicit DiffHighlighter(QTextDocument *document)
        : QSyntaxHighlighter(document)
    {
        // Tints rather than colours of their own, readable on light and dark.
        removed.setBackground(QColor(220, 40, 40, 60));
        added.setBackground(QColor(40, 180, 40, 60));
        hunk.setFontWeight(QFont::Bold);
        note.setFontItalic(true);
    }

protected:
    void highlightBlock(const QString &text) override
    {
        if (currentBlock().blockNumber() < 2) // the two file names
            setFormat(0, text.size(), hunk);
        else if (text.startsWith(QLatin1Char('-')))
            setFormat(0, text.size(), removed);
        else if (text.startsWith(QLatin1Char('+')))
            setFormat(0, text.size(), added);
        else if (text.startsWith(QLatin1String("@@")))
            setFormat(0, text.size(), hunk);
        else if (text.startsWith(QLatin1Char('\\')))
            setFormat(0, text.size(), note);
    }

private:
    QTextCharFormat removed;
    QTextCharFormat added;
    QTextCharFormat hunk;
    QTextCharFormat note;
};

} // namespace

DiffView::DiffView(QWidget *parent)
    : QPlainTextEdit(parent)
{
    setReadOnly(true);
    setLineWrapMode(QPlainTextEdit::NoWrap);
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    new DiffHighlighter(document());
}

void DiffView::setDiff(const QByteArray &diff)
{
    setPlainText(QString::fromUtf8(diff));
}
