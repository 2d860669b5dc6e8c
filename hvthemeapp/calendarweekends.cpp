// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "calendarweekends.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCalendarWidget>
#include <QEvent>
#include <QPointer>
#include <QTextCharFormat>
#include <QVariant>

namespace HV
{

namespace
{

const char *const colorProperty = "_hv_weekendColor"; // that a calendar has from here

} // namespace

void CalendarWeekends::install(QApplication *application, const QColor &color)
{
    static QPointer<CalendarWeekends> installed;
    if (!installed) {
        installed = new CalendarWeekends(application);
        application->installEventFilter(installed);
    }
    installed->m_color = color;
}

// A style sheet sets the palette of each calendar that it polishes.
bool CalendarWeekends::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() != QEvent::PaletteChange || !m_color.isValid())
        return false;
    auto *calendar = qobject_cast<QCalendarWidget *>(object);
    // A calendar that is still being made tells of its palette before it has formats.
    if (calendar && calendar->findChild<QAbstractItemView *>())
        paint(calendar);
    return false;
}

void CalendarWeekends::paint(QCalendarWidget *calendar) const
{
    const auto former = calendar->property(colorProperty).value<QColor>();
    for (const auto day : {Qt::Saturday, Qt::Sunday}) {
        QTextCharFormat format = calendar->weekdayTextFormat(day);
        const QColor color = format.foreground().color();
        if (color != QColor(Qt::red) && color != former)
            continue;
        format.setForeground(m_color);
        calendar->setWeekdayTextFormat(day, format);
    }
    calendar->setProperty(colorProperty, m_color);
}

} // namespace HV
