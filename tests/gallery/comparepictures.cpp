// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <gallery/picturediff.h>

#include <QCoreApplication>

#include <cstdio>

// comparepictures EXPECTED ACTUAL DIFFERENCE: writes the three side by side to DIFFERENCE.
// Exits with 0 if no pixel differs, 1 if some do, 2 if a picture cannot be read or written.
int main(int argc, char **argv)
{
    if (argc != 4) {
        std::fputs("Usage: comparepictures EXPECTED.png ACTUAL.png DIFFERENCE.png\n", stderr);
        return 2;
    }
    const QImage expected(QString::fromLocal8Bit(argv[1]));
    const QImage actual(QString::fromLocal8Bit(argv[2]));
    if (expected.isNull() || actual.isNull()) {
        std::fprintf(stderr, "comparepictures: cannot read %s\n", argv[expected.isNull() ? 1 : 2]);
        return 2;
    }
    const Gallery::PictureDiff diff = Gallery::comparePictures(expected, actual, 0);
    if (!diff.image.save(QString::fromLocal8Bit(argv[3]))) {
        std::fprintf(stderr, "comparepictures: cannot write %s\n", argv[3]);
        return 2;
    }
    std::printf("%d of %d pixels differ; see %s\n", diff.differingPixels, diff.pixels, argv[3]);
    return diff.differingPixels == 0 ? 0 : 1;
}
