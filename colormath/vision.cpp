// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <colormath/srgb.h>
#include <colormath/vision.h>

#include <QHash>
#include <QImage>

#include <cmath>

namespace
{

using Matrix = ColorMath::ColorMatrix;

constexpr Matrix normal = {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};
constexpr Matrix protan = {{{0.152286, 1.052583, -0.204868},
                            {0.114503, 0.786281, 0.099216},
                            {-0.003882, -0.048116, 1.051998}}};
constexpr Matrix deutan = {{{0.367322, 0.860646, -0.227968},
                            {0.280085, 0.672501, 0.047413},
                            {-0.011820, 0.042940, 0.968881}}};
constexpr Matrix tritan = {{{1.255528, -0.076749, -0.178779},
                            {-0.078411, 0.930809, 0.147602},
                            {0.004733, 0.691367, 0.303900}}};

std::array<double, 256> decodingTable()
{
    std::array<double, 256> table{};
    for (size_t i = 0; i < table.size(); ++i) {
        table[i] = ColorMath::linearChannel(double(i) / 255.0);
    }
    return table;
}

constexpr int encodingSteps = 65535; // fine enough for each of the 256 levels to come back

std::array<uchar, encodingSteps + 1> encodingTable()
{
    std::array<uchar, encodingSteps + 1> table{};
    for (size_t i = 0; i < table.size(); ++i) {
        table[i] = uchar(qRound(255.0 * ColorMath::encodedChannel(double(i) / encodingSteps)));
    }
    return table;
}

// Pictures have millions of pixels, which would be as many powers.
int encoded(double linear)
{
    static const std::array<uchar, encodingSteps + 1> table = encodingTable();
    return table[size_t(qRound(qBound(0.0, linear, 1.0) * encodingSteps))];
}

QRgb seen(const Matrix &matrix, QRgb color)
{
    static const std::array<double, 256> decoded = decodingTable();
    const double red = decoded[size_t(qRed(color))];
    const double green = decoded[size_t(qGreen(color))];
    const double blue = decoded[size_t(qBlue(color))];
    const auto channel = [&](size_t row) {
        return encoded(matrix[row][0] * red + matrix[row][1] * green + matrix[row][2] * blue);
    };
    return qRgba(channel(0), channel(1), channel(2), qAlpha(color));
}

} // namespace

namespace ColorMath
{

QString visionName(Vision vision)
{
    static const std::array<const char *, visionCount> names{"normal", "protan", "deutan",
                                                             "tritan"};
    return QString::fromLatin1(names[size_t(vision)]);
}

std::optional<Vision> visionCalled(const QString &name)
{
    for (const Vision vision : {Vision::Normal, Vision::Protan, Vision::Deutan, Vision::Tritan}) {
        if (name == visionName(vision))
            return vision;
    }
    return std::nullopt;
}

const ColorMatrix &colorMatrix(Vision vision)
{
    static const std::array<const ColorMatrix *, visionCount> matrices{&normal, &protan, &deutan,
                                                                       &tritan};
    return *matrices[size_t(vision)];
}

QColor seenBy(Vision vision, const QColor &color)
{
    if (vision == Vision::Normal)
        return color;
    return QColor::fromRgba(seen(colorMatrix(vision), color.rgba()));
}

QImage seenBy(Vision vision, const QImage &image)
{
    if (vision == Vision::Normal)
        return image;
    QImage result = image.convertToFormat(QImage::Format_ARGB32);
    const Matrix &matrix = colorMatrix(vision);
    // Pictures of windows have few colours, and most pixels that of their neighbour.
    QHash<QRgb, QRgb> known;
    QRgb last = 0;
    QRgb lastSeen = seen(matrix, last);
    for (int y = 0; y < result.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(result.scanLine(y));
        for (int x = 0; x < result.width(); ++x) {
            if (line[x] != last) {
                last = line[x];
                auto it = known.find(last);
                if (it == known.end())
                    it = known.insert(last, seen(matrix, last));
                lastSeen = *it;
            }
            line[x] = lastSeen;
        }
    }
    return result;
}

std::array<Lab, visionCount> seenByAll(const QColor &color)
{
    return {toLab(color), toLab(seenBy(Vision::Protan, color)),
            toLab(seenBy(Vision::Deutan, color)), toLab(seenBy(Vision::Tritan, color))};
}

double leastDistance(const QColor &first, const QColor &second, Vision *worst)
{
    return leastDistance(seenByAll(first), seenByAll(second), worst);
}

double leastDistance(const std::array<Lab, visionCount> &first,
                     const std::array<Lab, visionCount> &second, Vision *worst)
{
    double least = 1000.0;
    for (size_t i = 0; i < first.size(); ++i) {
        const double value = distance(first[i], second[i]);
        if (value >= least)
            continue;
        least = value;
        if (worst)
            *worst = Vision(i);
    }
    return least;
}

} // namespace ColorMath
