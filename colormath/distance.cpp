// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <colormath/distance.h>
#include <colormath/srgb.h>

#include <QColor>
#include <QtMath>

#include <cmath>

namespace
{

double labCurve(double ratio)
{
    constexpr double threshold = 216.0 / 24389.0;
    constexpr double slope = 24389.0 / 27.0;
    return ratio > threshold ? std::cbrt(ratio) : (slope * ratio + 16.0) / 116.0;
}

double square(double x)
{
    return x * x;
}

// How much chroma is damped or turned: 0 for greys, 1 for saturated colours.
double saturation(double chroma)
{
    const double power = std::pow(chroma, 7);
    return std::sqrt(power / (power + 6103515625.0)); // 25 to the 7th
}

struct Polar {
    double chroma;
    double hue; // degrees, 0 to 360; 0 for a grey, which has none
};

Polar toPolar(double a, double b)
{
    const double hue = (a == 0.0 && b == 0.0) ? 0.0 : qRadiansToDegrees(std::atan2(b, a));
    return {std::hypot(a, b), hue < 0.0 ? hue + 360.0 : hue};
}

double hueDifference(const Polar &first, const Polar &second)
{
    if (first.chroma * second.chroma == 0.0)
        return 0.0;
    const double difference = second.hue - first.hue;
    if (difference > 180.0)
        return difference - 360.0;
    return difference < -180.0 ? difference + 360.0 : difference;
}

double meanHue(const Polar &first, const Polar &second)
{
    const double sum = first.hue + second.hue;
    if (first.chroma * second.chroma == 0.0)
        return sum;
    if (std::abs(first.hue - second.hue) <= 180.0)
        return sum / 2.0;
    return sum < 360.0 ? (sum + 360.0) / 2.0 : (sum - 360.0) / 2.0;
}

double cosine(double degrees)
{
    return std::cos(qDegreesToRadians(degrees));
}

double hueWeight(double hue)
{
    return 1.0 - 0.17 * cosine(hue - 30.0) + 0.24 * cosine(2.0 * hue)
        + 0.32 * cosine(3.0 * hue + 6.0) - 0.20 * cosine(4.0 * hue - 63.0);
}

} // namespace

namespace ColorMath
{

Lab toLab(const QColor &color)
{
    constexpr double full = 0xffff; // the fractions that Qt gives are coarser in Qt 6
    const QRgba64 rgb = color.rgba64();
    const double red = ColorMath::linearChannel(rgb.red() / full);
    const double green = ColorMath::linearChannel(rgb.green() / full);
    const double blue = ColorMath::linearChannel(rgb.blue() / full);
    // IEC 61966-2-1; each row is divided by its sum, the white point, so that greys come out as such.
    const double x = (0.4124 * red + 0.3576 * green + 0.1805 * blue) / 0.9505;
    const double y = 0.2126 * red + 0.7152 * green + 0.0722 * blue;
    const double z = (0.0193 * red + 0.1192 * green + 0.9505 * blue) / 1.0890;
    return {116.0 * labCurve(y) - 16.0, 500.0 * (labCurve(x) - labCurve(y)),
            200.0 * (labCurve(y) - labCurve(z))};
}

double distance(const Lab &first, const Lab &second)
{
    const double meanChroma = (std::hypot(first.a, first.b) + std::hypot(second.a, second.b)) / 2.0;
    const double stretch = 1.0 + 0.5 * (1.0 - saturation(meanChroma));
    const Polar one = toPolar(first.a * stretch, first.b);
    const Polar two = toPolar(second.a * stretch, second.b);

    const double lightness = (first.lightness + second.lightness) / 2.0;
    const double chroma = (one.chroma + two.chroma) / 2.0;
    const double hue = meanHue(one, two);

    const double middle = square(lightness - 50.0);
    const double lightnessScale = 1.0 + 0.015 * middle / std::sqrt(20.0 + middle);
    const double chromaScale = 1.0 + 0.045 * chroma;
    const double hueScale = 1.0 + 0.015 * chroma * hueWeight(hue);

    const double turn = 60.0 * std::exp(-square((hue - 275.0) / 25.0)); // blues: twice 30 degrees
    const double rotation = -2.0 * saturation(chroma) * std::sin(qDegreesToRadians(turn));

    const double lightnessPart = (second.lightness - first.lightness) / lightnessScale;
    const double chromaPart = (two.chroma - one.chroma) / chromaScale;
    const double huePart = 2.0 * std::sqrt(one.chroma * two.chroma)
        * std::sin(qDegreesToRadians(hueDifference(one, two) / 2.0)) / hueScale;
    return std::sqrt(square(lightnessPart) + square(chromaPart) + square(huePart)
                     + rotation * chromaPart * huePart);
}

} // namespace ColorMath
