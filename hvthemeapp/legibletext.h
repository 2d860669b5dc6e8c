// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEMEAPP_LEGIBLETEXT_H
#define HVTHEMEAPP_LEGIBLETEXT_H

#include <hvthemeapp/paintforwarding.h>

#include <QHash>

/*!
 * \brief From begin() to end(), text that does not stand out from its ground is painted lighter or darker.
 *
 * All widgets of the application on the screen are meant, whoever chose the colour of the text: an
 * item of a model, a document, a palette of a widget, a paint event. Hue stays and nothing but the
 * paint changes: models, documents and palettes keep what they hold, and what goes to printers, PDF
 * and SVG files stays as it is.
 *
 * The ground is what has been painted where the text comes. On a picture or another ground of many
 * colours, text stays as it is.
 */
class LegibleText : public QObject, private TextColors
{
public:
    /*! \brief Does nothing before begin(); made with new, and deleted by end(). */
    LegibleText();

    /*! \brief Begins with the application that there is now, on whose thread this is used. */
    void begin();

    /*! \brief Ends, and deletes the object: at once, or after the paint that it is at work in. */
    void end();

    /*! \brief Sets the contrast to reach: 7 (WCAG 2.1) if it is to be high, 4.5 if not, as at first.
     *         Disabled text reaches 3. */
    void setIsHighContrast(bool isHigh);

private:
    QColor textColor(const QPainter &painter, const QRectF &rect, const QColor &color) override;

    double m_ratio;
    PaintForwarding m_forwarding;
    QHash<quint64, QColor> m_lifted; // by colour and ground
};

/*! Ends instead of deleting. */
struct EndLegibleText {
    void operator()(LegibleText *text) const { text->end(); }
};

#endif
