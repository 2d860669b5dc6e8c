// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEMEAPP_PLACEHOLDERS_H
#define HVTHEMEAPP_PLACEHOLDERS_H

#include <QObject>

namespace HV
{

/*!
 * \brief While it lives, placeholders have the colour that the application's palette gives them.
 *
 * A rule of a style sheet that colours text colours the placeholder alike, so that it looks typed
 * in. A widget whose placeholder has a colour of its own keeps that. Needs a QApplication.
 */
class Placeholders : public QObject
{
public:
    explicit Placeholders(QObject *parent = nullptr);

    bool eventFilter(QObject *object, QEvent *event) override;
};

} // namespace HV

#endif // HVTHEMEAPP_PLACEHOLDERS_H
