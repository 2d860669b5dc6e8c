// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef COLORMATH_SRGB_H
#define COLORMATH_SRGB_H

#include <cmath>

namespace ColorMath
{

// The transfer functions of sRGB (IEC 61966-2-1). Channels are from 0 to 1.

/*! \brief Returns how much light the \a encoded channel of a colour stands for. */
inline double linearChannel(double encoded)
{
    return encoded <= 0.04045 ? encoded / 12.92 : std::pow((encoded + 0.055) / 1.055, 2.4);
}

/*! \brief Returns the channel that stands for the light \a linear. */
inline double encodedChannel(double linear)
{
    return linear <= 0.0031308 ? 12.92 * linear : 1.055 * std::pow(linear, 1 / 2.4) - 0.055;
}

} // namespace ColorMath

#endif
