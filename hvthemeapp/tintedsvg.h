// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEMEAPP_TINTEDSVG_H
#define HVTHEMEAPP_TINTEDSVG_H

#include <QByteArray>
#include <QIcon>
#include <QString>
#include <QStringList>

namespace HV
{

/*! \brief An SVG document made fit to be drawn: in the theme's colours, and harmless. */
struct TintedSvg {
    /*! \brief The document; empty if it cannot be used. */
    QByteArray text;
    /*! \brief Why it cannot be used: a sentence without a full stop; null if it can. */
    QString error;
    /*! \brief What was left out or replaced, a sentence each; at most a few. */
    QStringList remarks;
};

/*!
 * \brief Returns \a source with the colours of the theme in force for an icon of \a mode.
 *
 * Tokens `<prefix>.theme.color.<Key>` become colours, in attributes, `style` attributes and `<style>`;
 * a translucent one multiplies the opacity that stands beside it. `currentColor` is the colour of the
 * strokes. Only elements that draw are kept. What a document asks for from outside, scripts, animations
 * and embedded pictures other than PNG and JPEG of modest size are left out. Documents that do not
 * parse, are larger than 1 MiB, nest deeper than 100 elements, in which a `use` repeats a `use`, or with
 * so many elements, uses and style rules that they would take long, cannot be used.
 */
TintedSvg tintedSvg(const QByteArray &source, QIcon::Mode mode);

} // namespace HV

#endif // HVTHEMEAPP_TINTEDSVG_H
