// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef COLORMATH_VISION_H
#define COLORMATH_VISION_H

#include <colormath/distance.h>

#include <QColor>

#include <array>
#include <optional>

class QImage;

namespace ColorMath
{

/*! \brief How an eye sees colours; one kind of cone is missing in all but the first. */
enum class Vision {
    Normal,
    Protan, //!< without the cones for long waves: reds are dark, red and green look alike
    Deutan, //!< without those for medium waves: red and green look alike
    Tritan, //!< without those for short waves: blue and green, yellow and violet look alike
};

/*! \brief Returns "normal", "protan", "deutan" or "tritan". */
QString visionName(Vision vision);

/*! \brief Returns the vision of that name, or nothing. */
std::optional<Vision> visionCalled(const QString &name);

/*! \brief A linear map of linear sRGB, row by row. */
using ColorMatrix = std::array<std::array<double, 3>, 3>;

/*! \brief Returns what seenBy() does to a colour. */
const ColorMatrix &colorMatrix(Vision vision);

/*!
 * \brief Returns what a person of this \a vision sees, as a colour for everybody else.
 *
 * The simulation of Machado, Oliveira and Fernandes (2009), full severity, in linear sRGB. The
 * alpha channel is kept.
 */
QColor seenBy(Vision vision, const QColor &color);

/*! \brief The same for each pixel of a picture. */
QImage seenBy(Vision vision, const QImage &image);

constexpr int visionCount = 4;

/*! \brief Returns \a color as each vision sees it, in the order of Vision. */
std::array<Lab, visionCount> seenByAll(const QColor &color);

/*!
 * \brief Returns the smallest CIEDE2000 distance of two colours over all kinds of vision.
 *
 * \param worst  may be null; set to the vision that sees it.
 */
double leastDistance(const QColor &first, const QColor &second, Vision *worst = nullptr);

/*! \brief The same for colours that are compared more than once, as seenByAll() gives them. */
double leastDistance(const std::array<Lab, visionCount> &first,
                     const std::array<Lab, visionCount> &second, Vision *worst = nullptr);

} // namespace ColorMath

#endif
