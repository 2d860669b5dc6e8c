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

// A style sheet sets the palette of each calendar that it polishes, and of the days in it.
bool CalendarWeekends::eventFilter(QObject *object, QEvent *event)
{
    const bool isOfInterest =
        event->type() == QEvent::PaletteChange || event->type() == QEvent::EnabledChange;
    if (!isOfInterest || !m_color.isValid())
        return false;
    auto *calendar = qobject_cast<QCalendarWidget *>(object);
    if (!calendar)
        calendar = qobject_cast<QCalendarWidget *>(object->parent());
    // A calendar that is still being made tells of its palette before it has formats.
    const auto *days = calendar ? calendar->findChild<QAbstractItemView *>() : nullptr;
    if (days && (object == calendar || object == days))
        paint(calendar, *days);
    return false;
}

void CalendarWeekends::paint(QCalendarWidget *calendar, const QAbstractItemView &days) const
{
    const auto former = calendar->property(colorProperty).value<QColor>();
    const QColor color =
        days.isEnabled() ? m_color : days.palette().color(QPalette::Disabled, QPalette::Text);
    for (const auto day : {Qt::Saturday, Qt::Sunday}) {
        QTextCharFormat format = calendar->weekdayTextFormat(day);
        const QColor own = format.foreground().color();
        if ((own != QColor(Qt::red) && own != former) || own == color)
            continue;
        format.setForeground(color);
        calendar->setWeekdayTextFormat(day, format);
    }
    calendar->setProperty(colorProperty, color);
}

} // namespace HV
