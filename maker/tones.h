// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef MAKER_TONES_H
#define MAKER_TONES_H

#include <QColor>
#include <QPair>
#include <QString>
#include <QVector>

/*!
 * \brief Makes themes out of a few colours; their contrast is guaranteed, not hoped for.
 *
 * Internal to the project. Everything is a pure function of its arguments: equal parameters give
 * equal bytes, on every machine.
 */
namespace Maker
{

/*!
 * \brief Ten tones of one hue, from light (step 1) to dark (step 10).
 *
 * Step n has the CIE lightness 100 - 9n, whatever the hue, so that the number of a step tells its
 * contrast. Hue and chroma are those of OKLCH.
 */
struct Run {
    double firstHue; //!< degrees, at step 1
    double lastHue; //!< at step 10; between them it moves evenly
    double chroma; //!< the greatest; towards both ends it falls along a parabola to a quarter
    double summit; //!< the step that has it, need not be whole

    QColor tone(int step) const;
};

constexpr int toneCount = 10;

/*! \brief Returns the CIE lightness of a step of any run. */
double toneLightness(int step);

/*! \brief Returns the step, from 1 to 10, whose lightness is nearest to that of \a color. */
int nearestStep(const QColor &color);

/*! \brief Returns the name of the palette entry of a step of the brand's run: `Brand_6`. */
QString brandToneName(int step);

/*! \brief Tells whether \a name is that of a step of the brand's run, and not only begins like one. */
bool isBrandTone(const QString &name);

/*! \brief Tells whether \a name is that of the brand's entry, `Brand`, or of one of its tones. */
bool isOfBrand(const QString &name);

/*! \brief Returns the run through \a brand: its hue throughout, its chroma where it is itself. */
Run brandRun(const QColor &brand);

/*! \brief The hue that lies in all surfaces. */
struct Neutral {
    double hue = 264; //!< degrees
    double chroma = 0.012; //!< 0 (grey) to maximalChroma

    static constexpr double maximalChroma = 0.03;

    /*! \brief Returns the tinge of \a color; of a stronger colour than surfaces can bear, its hue. */
    static Neutral of(const QColor &color);
    static Neutral cool() { return {}; }
    static Neutral warm() { return {70, 0.012}; }
};

/*! \brief What a set of themes is made of. */
struct Parameters {
    QColor brand; //!< opaque
    Neutral neutral;
    double textContrast = 4.5; //!< least of text in dark and light, 4.5 to 10
    double surfaceStep = 3.0; //!< between neighbouring dark surfaces, L*, 1 to 4
};

using PaletteEntry = QPair<QString, QColor>;

/*!
 * \brief Returns the palette of \a parameters: the 69 entries of the library's vocabulary, in its
 *        order, and `Brand`, the brand itself, unless one of its tones is just that.
 */
QVector<PaletteEntry> palette(const Parameters &parameters);

/*! \brief Returns BackgroundColor_0 to BackgroundColor_7 of a light look. */
QVector<QColor> lightSurfaces(const Parameters &parameters);

/*! \brief Returns how theme files write \a color: `#RRGGBB`, or `#AARRGGBB` if it is translucent. */
QString hexadecimal(const QColor &color);

} // namespace Maker

#endif
