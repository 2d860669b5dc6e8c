// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEMEAPP_CALENDARWEEKENDS_H
#define HVTHEMEAPP_CALENDARWEEKENDS_H

#include <QColor>
#include <QObject>

class QAbstractItemView;
class QApplication;
class QCalendarWidget;

namespace HV
{

/*!
 * \brief Gives the weekends of calendars a colour of the look, and those of disabled ones that of
 *        other days.
 *
 * Qt writes its red into the text formats of each calendar, where neither palette nor style sheet
 * reaches it. Formats in another colour are the program's and stay. Internal.
 */
class CalendarWeekends final : public QObject
{
public:
    /*! \brief Colours all calendars of \a application with \a color as they get their next look. An
     *         invalid one leaves them as they are. */
    static void install(QApplication *application, const QColor &color);

    bool eventFilter(QObject *object, QEvent *event) override;

private:
    using QObject::QObject;
    void paint(QCalendarWidget *calendar, const QAbstractItemView &days) const;

    QColor m_color;
};

} // namespace HV

#endif // HVTHEMEAPP_CALENDARWEEKENDS_H
