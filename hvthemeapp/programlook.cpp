// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "programlook.h"

#include "iconcolors.h"

#include <hvtheme/restyling.h>

#include <QApplication>
#include <QLabel>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextCursor>
#include <QToolTip>

#include <algorithm>

namespace HV
{
namespace
{

struct LinkColors {
    QColor before;
    QColor after;
};

// Only links in the palette's own colour: a document may have chosen another.
void recolorLinks(QTextDocument *document, const LinkColors &colors)
{
    QTextCursor cursor(document);
    QTextCharFormat format;
    format.setForeground(colors.after);
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextFragment fragment = it.fragment();
            const QTextCharFormat old = fragment.charFormat();
            if (!old.isAnchor() || old.foreground().color() != colors.before)
                continue;
            cursor.setPosition(fragment.position());
            cursor.setPosition(fragment.position() + fragment.length(), QTextCursor::KeepAnchor);
            cursor.mergeCharFormat(format);
        }
    }
}

// A text that can be edited has a history that must not have this in it, and is left alone.
void recolorLinks(QTextEdit *edit, const LinkColors &colors)
{
    QTextDocument *document = edit->document();
    if (document->isUndoAvailable() || document->isRedoAvailable() || document->isModified())
        return;
    const bool hasUndo = document->isUndoRedoEnabled();
    document->setUndoRedoEnabled(false);
    recolorLinks(document, colors);
    document->setUndoRedoEnabled(hasUndo);
    document->setModified(false);
}

// A label has no document to ask for; it makes one of the text that it is given.
void recolorLinks(QLabel *label)
{
    const QString text = label->text();
    if (!text.contains(QLatin1String("<a "), Qt::CaseInsensitive) || label->hasSelectedText())
        return;
    label->setText(QString());
    label->setText(text);
}

void recolorLinks(const LinkColors &colors)
{
    if (colors.before == colors.after)
        return;
    const QWidgetList all = QApplication::allWidgets();
    for (QWidget *widget : all) {
        if (auto *edit = qobject_cast<QTextEdit *>(widget))
            recolorLinks(edit, colors);
        else if (auto *label = qobject_cast<QLabel *>(widget))
            recolorLinks(label);
    }
}

} // namespace

QPalette startPalette()
{
    if (!qApp)
        return {};
    static const QPalette palette = QApplication::palette();
    return palette;
}

bool isPainting()
{
    const QWidgetList all = QApplication::allWidgets();
    return std::any_of(all.cbegin(), all.cend(), [](const QWidget *widget) {
        return widget->testAttribute(Qt::WA_WState_InPaintEvent);
    });
}

QString styleSheetBeside(const QString &look)
{
    QString styleSheet = qApp->styleSheet();
    if (!look.isEmpty())
        styleSheet.remove(look);
    return styleSheet.trimmed();
}

void setProgramLook(const QPalette &palette, const QVariantMap &values, const QString &styleSheet)
{
    startPalette();
    const LinkColors links{QApplication::palette().color(QPalette::Link),
                           palette.color(QPalette::Link)};
    restyle(*qApp, styleSheet, [&] {
        QApplication::setPalette(palette); // forgets the palettes of classes, so it comes first
        QToolTip::setPalette(palette);
        IconColors::setValues(values);
    });
    recolorLinks(links);
}

} // namespace HV
