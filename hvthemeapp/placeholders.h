// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEMEAPP_PLACEHOLDERS_H
#define HVTHEMEAPP_PLACEHOLDERS_H

#include <QObject>

class QApplication;
class QWidget;

namespace HV
{

/*!
 * \brief Keeps placeholders apart from what was typed.
 *
 * A rule for the colour of a text field gives it to the placeholder too, opaque in Qt 5.15. Whenever
 * that happens the placeholder gets the application's colour for it again. Internal.
 */
class Placeholders final : public QObject
{
public:
    /*! \brief Watches all text fields of \a application from now on; one call is as good as many. */
    static void install(QApplication *application);

    bool eventFilter(QObject *object, QEvent *event) override;

private:
    using QObject::QObject;
};

} // namespace HV

#endif // HVTHEMEAPP_PLACEHOLDERS_H
