// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#ifndef GALLERY_TOOLTIPSPECIMEN_H
#define GALLERY_TOOLTIPSPECIMEN_H

#include <QLabel>

/*!
 * \brief A tool tip that stays.
 *
 * Qt's own tool tip is a private class of this name outside every namespace, and by this name
 * alone the style sheet engine knows that the selector `QToolTip` means it. Qt does not export its
 * class, so the two never meet.
 */
class QTipLabel final : public QLabel
{
    Q_OBJECT

public:
    QTipLabel();

protected:
    void paintEvent(QPaintEvent *event) override;
};

#endif
