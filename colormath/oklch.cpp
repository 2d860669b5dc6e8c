// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <colormath/contrast.h>
#include <colormath/oklch.h>
#include <colormath/srgb.h>

#include <QtMath>

#include <cmath>
#include <optional>

namespace
{

struct LinearColor {
    double red;
    double green;
    double blue;
};

// In eight bits, half to even as scripts in other languages round as well.
int eightBits(double linear)
{
    return int(std::nearbyint(255.0 * ColorMath::encodedChannel(qBound(0.0, linear, 1.0))));
}

double cube(double x)
{
    return x * x * x;
}

LinearColor linearColor(const ColorMath::Oklch &color)
{
    const double a = color.chroma * std::cos(qDegreesToRadians(color.hue));
    const double b = color.chroma * std::sin(qDegreesToRadians(color.hue));
    const double l = cube(color.lightness + 0.3963377774 * a + 0.2158037573 * b);
    const double m = cube(color.lightness - 0.1055613458 * a - 0.0638541728 * b);
    const double s = cube(color.lightness - 0.0894841775 * a - 1.2914855480 * b);
    return {4.0767416621 * l - 3.3077115913 * m + 0.2309699292 * s,
            -1.2684380046 * l + 2.6097574011 * m - 0.3413193965 * s,
            -0.0041960863 * l - 0.7034186147 * m + 1.7076147010 * s};
}

double luminance(const LinearColor &color)
{
    return 0.2126 * color.red + 0.7152 * color.green + 0.0722 * color.blue;
}

double luminanceOf(double cieLightness)
{
    return cieLightness > 8 ? std::pow((cieLightness + 16) / 116, 3) : cieLightness / 903.2963;
}

bool isDisplayable(const LinearColor &color)
{
    const auto isInside = [](double channel) { return channel >= -0.0005 && channel <= 1.0005; };
    return isInside(color.red) && isInside(color.green) && isInside(color.blue);
}

// Returns the greatest value below high for which isLow holds; it holds up to one point only.
template<typename Condition>
double bisected(double low, double high, Condition isLow)
{
    for (int i = 0; i < 32; ++i) { // far finer than eight bits
        const double middle = (low + high) / 2;
        (isLow(middle) ? low : high) = middle;
    }
    return low;
}

LinearColor linearAtLightness(double lightness, double chroma, double hue)
{
    const double wanted = luminanceOf(lightness);
    return linearColor({bisected(0, 1.2,
                                 [=](double value) {
                                     return luminance(linearColor({value, chroma, hue})) < wanted;
                                 }),
                        chroma, hue});
}

// The colour nearest to lightness start, on the way to end, that passes; nothing if none does. The
// text does not pass at start, so it lies close to the ground and leaves it once on its way.
std::optional<QColor> firstThatPasses(const ColorMath::Oklch &text, double start, double end,
                                      const QColor &ground, double ratio)
{
    const auto colorAt = [&](double way) {
        return ColorMath::colorAtLightness(start + way * (end - start), text.chroma, text.hue);
    };
    const auto passes = [&](double way) {
        return ColorMath::contrastRatio(colorAt(way), ground) >= ratio;
    };
    if (!passes(1.0))
        return std::nullopt;
    double failing = 0.0;
    double passing = 1.0;
    for (int i = 0; i < 10; ++i) {
        const double middle = (failing + passing) / 2;
        (passes(middle) ? passing : failing) = middle;
    }
    return colorAt(passing);
}

} // namespace

namespace ColorMath
{

Oklch toOklch(const QColor &color)
{
    constexpr double full = 0xffff; // the fractions that Qt gives are coarser in Qt 6
    const QRgba64 rgb = color.rgba64();
    const double red = linearChannel(rgb.red() / full);
    const double green = linearChannel(rgb.green() / full);
    const double blue = linearChannel(rgb.blue() / full);
    const double l = std::cbrt(0.4122214708 * red + 0.5363325363 * green + 0.0514459929 * blue);
    const double m = std::cbrt(0.2119034982 * red + 0.6806995451 * green + 0.1073969566 * blue);
    const double s = std::cbrt(0.0883024619 * red + 0.2817188376 * green + 0.6299787005 * blue);
    const double lightness = 0.2104542553 * l + 0.7936177850 * m - 0.0040720468 * s;
    const double a = 1.9779984951 * l - 2.4285922050 * m + 0.4505937099 * s;
    const double b = 0.0259040371 * l + 0.7827717662 * m - 0.8086757660 * s;
    const double chroma = std::hypot(a, b);
    if (chroma < 0.0005) // eight bits a channel make no smaller one that is not a grey
        return {lightness, 0.0, 0.0};
    const double hue = qRadiansToDegrees(std::atan2(b, a));
    return {lightness, chroma, hue < 0.0 ? hue + 360.0 : hue};
}

double cieLightness(const QColor &color)
{
    const double value = relativeLuminance(color);
    return value > 216.0 / 24389.0 ? 116.0 * std::cbrt(value) - 16.0 : 24389.0 / 27.0 * value;
}

QColor colorAtLightness(double lightness, double chroma, double hue)
{
    LinearColor color = linearAtLightness(lightness, chroma, hue);
    if (!isDisplayable(color)) {
        const double shown = bisected(0, chroma, [=](double value) {
            return isDisplayable(linearAtLightness(lightness, value, hue));
        });
        color = linearAtLightness(lightness, shown, hue);
    }
    return {eightBits(color.red), eightBits(color.green), eightBits(color.blue)};
}

QColor liftedToContrast(const QColor &text, const QColor &ground, double ratio)
{
    if (contrastRatio(text, ground) >= ratio)
        return text;
    const QColor seen = over(text, QColor(ground.rgb()));
    const Oklch origin = toOklch(seen);
    const double lightness = cieLightness(seen);
    const std::optional<QColor> lighter = firstThatPasses(origin, lightness, 100, ground, ratio);
    const std::optional<QColor> darker = firstThatPasses(origin, lightness, 0, ground, ratio);
    if (lighter && darker) {
        const double up = cieLightness(*lighter) - lightness;
        const double down = lightness - cieLightness(*darker);
        return up <= down ? *lighter : *darker;
    }
    if (lighter || darker)
        return lighter ? *lighter : *darker;
    const QColor white(Qt::white);
    const QColor black(Qt::black);
    return contrastRatio(white, ground) > contrastRatio(black, ground) ? white : black;
}

} // namespace ColorMath
