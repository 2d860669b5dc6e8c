// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "programlook.h"

#include "calendarweekends.h"
#include "iconcolors.h"
#include "partialrestyling.h"
#include "placeholders.h"
#include "styledifference.h"
#include "stylesheettext.h"
#include "themedstyle.h"

#include <colormath/oklch.h>
#include <hvtheme/restyling.h>

#include <QApplication>
#include <QCalendarWidget>
#include <QLabel>
#include <QMdiArea>
#include <QPointer>
#include <QSet>
#include <QSignalBlocker>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextCursor>
#include <QToolTip>
#include <QVector>

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
    const QSignalBlocker blocker(edit); // the text is what it was
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

// What widgets keep of a palette for themselves: links, and the ground of an area of windows.
void renewKeptColors(const QPalette &before, const QPalette &after)
{
    const LinkColors links{before.color(QPalette::Link), after.color(QPalette::Link)};
    const QWidgetList all = QApplication::allWidgets();
    const QVector<QPointer<QWidget>> widgets(all.cbegin(), all.cend());
    for (const QPointer<QWidget> &widget : widgets) { // a document's signals may delete others
        auto *area = qobject_cast<QMdiArea *>(widget.data());
        if (area && area->background() == before.brush(QPalette::Dark))
            area->setBackground(after.brush(QPalette::Dark));
        if (links.before == links.after)
            continue;
        if (auto *edit = qobject_cast<QTextEdit *>(widget.data()))
            recolorLinks(edit, links);
        else if (auto *label = qobject_cast<QLabel *>(widget.data()))
            recolorLinks(label);
    }
}

// Of what is marked to be painted Qt paints an opaque widget by itself, unless something on it was marked
// before, and after that what is on it: a window that is marked first is painted twice.
void markContents()
{
    const QWidgetList all = QApplication::allWidgets();
    for (QWidget *widget : all) {
        if (!widget->isWindow())
            widget->update();
    }
}

QColor weekendColor(const QPalette &palette, const QVariantMap &values)
{
    const auto color = values.value(QStringLiteral("ErrorHintForegroundColor")).value<QColor>();
    const bool isHighContrast = values.value(QStringLiteral("HighContrast")).toBool();
    return color.isValid() ? ColorMath::liftedToContrast(color, palette.color(QPalette::Base),
                                                         isHighContrast ? 7 : 4.5)
                           : color;
}

bool hasCalendar()
{
    const QWidgetList all = QApplication::allWidgets();
    return std::any_of(all.cbegin(), all.cend(), [](const QWidget *widget) {
        return qobject_cast<const QCalendarWidget *>(widget) != nullptr;
    });
}

// Whether what is painted without the style sheet stays as it is, wherever that is.
bool arePaintedAlike(const QPalette &palette, const QVariantMap &before, const QVariantMap &after)
{
    const auto isAlike = [&](const QString &key) { return before.value(key) == after.value(key); };
    const QSet<QString> inIcons = IconColors::usedKeys();
    return palette == QApplication::palette() && isAlike(QStringLiteral("HighContrast"))
        && std::all_of(inIcons.cbegin(), inIcons.cend(), isAlike)
        && (weekendColor(palette, before) == weekendColor(palette, after) || !hasCalendar());
}

// Returns false, and does nothing, if what changes may be painted anywhere.
bool setChanges(const QPalette &palette, const QVariantMap &values, const QString &styleSheet)
{
    if (qApp->styleSheet().isEmpty() || !arePaintedAlike(palette, IconColors::values(), values))
        return false;
    const auto difference = StyleDifference::between(qApp->styleSheet(), styleSheet);
    if (!difference)
        return false;
    CalendarWeekends::install(qApp, weekendColor(palette, values));
    restyleConcerned(styleSheet, *difference, [&] { IconColors::setValues(values); });
    ThemedStyle::keepName();
    return true;
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

QString styleSheetBeside(const StyleSheetParts &given)
{
    QString styleSheet = qApp->styleSheet();
    if (given.whole.isEmpty())
        return styleSheetText(styleSheet).trimmed();
    if (styleSheet.contains(given.whole))
        styleSheet.replace(given.whole, given.own);
    else
        styleSheet.remove(given.templates);
    return styleSheetText(styleSheet).trimmed();
}

void setProgramLook(const QPalette &palette, const QVariantMap &values, const QString &styleSheet,
                    Extent extent)
{
    if (extent == Extent::Changes && setChanges(palette, values, styleSheet))
        return;
    startPalette();
    Placeholders::install(qApp);
    CalendarWeekends::install(qApp, weekendColor(palette, values));
    const QPalette before = QApplication::palette();
    markContents();
    restyle(*qApp, styleSheet, [&] {
        QApplication::setPalette(palette); // forgets the palettes of classes, so it comes first
        QToolTip::setPalette(palette);
        IconColors::setValues(values);
    });
    ThemedStyle::keepName();
    renewKeptColors(before, palette);
}

} // namespace HV
