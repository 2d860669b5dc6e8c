// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <inspector/conflictdialog.h>

#include <inspector/ownlook.h>

#include <QDialogButtonBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextBlock>
#include <QVBoxLayout>

namespace
{

QPlainTextEdit *makeText(const QString &name, const QByteArray &content)
{
    auto *text = new QPlainTextEdit(QString::fromUtf8(content));
    text->setReadOnly(true);
    text->setLineWrapMode(QPlainTextEdit::NoWrap);
    text->setTabChangesFocus(true);
    text->setAccessibleName(name);
    return text;
}

// Marks the lines between those that both texts begin and end with, and shows them.
void markDifference(QPlainTextEdit *text, const QStringList &other)
{
    const QStringList lines = text->toPlainText().split(QLatin1Char('\n'));
    int from = 0;
    while (from < lines.size() && from < other.size() && lines.at(from) == other.at(from))
        ++from;
    int same = 0;
    while (same < lines.size() - from && same < other.size() - from
           && lines.at(lines.size() - 1 - same) == other.at(other.size() - 1 - same))
        ++same;
    QList<QTextEdit::ExtraSelection> marks;
    const QSet<QString> known(other.cbegin(), other.cend());
    for (int i = from; i < lines.size() - same; ++i) {
        if (known.contains(lines.at(i)))
            continue;
        QTextEdit::ExtraSelection mark;
        mark.cursor = QTextCursor(text->document()->findBlockByNumber(i));
        mark.format.setBackground(QColor(0xff, 0xe8, 0xa3));
        mark.format.setForeground(QColor(0x1c, 0x1c, 0x22));
        mark.format.setProperty(QTextFormat::FullWidthSelection, true);
        marks << mark;
    }
    text->setExtraSelections(marks);
    text->setTextCursor(QTextCursor(text->document()->findBlockByNumber(qMax(0, from - 2))));
    text->centerCursor();
}

} // namespace

ConflictDialog::ConflictDialog(const QString &file, const ThemeSaving &saving, QWidget *parent)
    : QDialog(parent)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setPalette(inspectorPalette());
    setWindowTitle(tr("Changed meanwhile"));
    resize(860, 520);
    auto *column = new QVBoxLayout(this);
    auto *message = new QLabel(
        tr("Somebody else changed %1 since it was read. Nothing was written.").arg(file));
    message->setWordWrap(true);
    column->addWidget(message);
    auto *grid = new QGridLayout;
    auto *theirs = makeText(tr("The text on disk"), saving.theirs);
    auto *ours = makeText(tr("The text with your changes"), saving.ours);
    grid->addWidget(new QLabel(tr("On disk now:")), 0, 0);
    grid->addWidget(new QLabel(tr("With your changes:")), 0, 1);
    grid->addWidget(theirs, 1, 0);
    grid->addWidget(ours, 1, 1);
    column->addLayout(grid, 1);
    markDifference(theirs, ours->toPlainText().split(QLatin1Char('\n')));
    markDifference(ours, theirs->toPlainText().split(QLatin1Char('\n')));

    auto *buttons = new QDialogButtonBox;
    auto *both =
        buttons->addButton(tr("Keep &both: theirs, with my changes"), QDialogButtonBox::AcceptRole);
    auto *mine = buttons->addButton(tr("Write &mine"), QDialogButtonBox::AcceptRole);
    buttons->addButton(QDialogButtonBox::Cancel);
    both->setDefault(true);
    column->addWidget(buttons);
    connect(both, &QPushButton::clicked, this,
            [this] { Q_EMIT chosen(ThemeEditor::Text::Theirs); });
    connect(mine, &QPushButton::clicked, this, [this] { Q_EMIT chosen(ThemeEditor::Text::Ours); });
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}
