// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "../tests/support/plainsubstitution.h"

#include <hvtheme/theming.h>

#include <QFileInfo>

// An input is a line with a kind ("c", "i" or "n") and a prefix, lines with a key, "=" and a value,
// an empty line, and a style sheet; all UTF-8, in which U+E000 to U+E7FF stand for surrogates. What
// a pass makes of it has to equal what the plainest form of the pass does.
namespace
{

int missingImages = 0;

void countMissingImages(QtMsgType, const QMessageLogContext &, const QString &text)
{
    missingImages += text.endsWith(QLatin1String("is not exist!"));
}

QString wordCharacters(const QString &text)
{
    QString word;
    for (QChar c : text) {
        if (c == '_' || (c.unicode() < 128 && c.isLetterOrNumber()))
            word += c;
    }
    return word;
}

struct Pass {
    Plain::Kind kind;
    QString (*replace)(const QString &, const QVariantMap &, const QString &);
};

Pass passOf(char letter)
{
    switch (letter) {
    case 'i':
        return {Plain::Kind::Image, HV::replaceCssImages};
    case 'n':
        return {Plain::Kind::Integer, HV::replaceCssIntegers};
    default:
        return {Plain::Kind::Color, HV::replaceCssColors};
    }
}

void require(bool condition, const char *what)
{
    if (!condition)
        qFatal("%s", what);
}

} // namespace

// NOLINTNEXTLINE(readability-identifier-naming): the name that fuzzing engines call
extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    static const QtMessageHandler previous = qInstallMessageHandler(countMissingImages);
    const QByteArray input(reinterpret_cast<const char *>(data), int(size));
    const int headEnd = int(input.indexOf("\n\n"));
    if (headEnd < 1)
        return 0;
    QList<QByteArray> lines = input.left(headEnd).split('\n');
    const QString hidden = QString::fromUtf8(input.constData() + headEnd + 2);

    const QByteArray first = lines.takeFirst();
    const Pass pass = passOf(first.isEmpty() ? 'c' : first.at(0));
    const QString prefix = wordCharacters(QString::fromUtf8(first.mid(1)));
    QVariantMap hiddenValues;
    QVariantMap values;
    for (const QByteArray &line : qAsConst(lines)) {
        const int equals = int(line.indexOf('='));
        const QString key = QString::fromUtf8(line.left(equals));
        const QString value = equals < 0 ? QString() : QString::fromUtf8(line.mid(equals + 1));
        hiddenValues.insert(key, Plain::hiddenSurrogates(value));
        values.insert(key, Plain::shownSurrogates(Plain::hiddenSurrogates(value)));
    }

    const Plain::Result plain =
        Plain::replaced(pass.kind, prefix, hiddenValues, Plain::hiddenSurrogates(hidden), 200);
    if (!plain.ended)
        return 0;
    int expectedMissing = 0;
    for (const auto &image : plain.images)
        expectedMissing += !QFileInfo::exists(Plain::shownSurrogates(image.second));
    missingImages = 0;
    const QString text = Plain::shownSurrogates(Plain::hiddenSurrogates(hidden));
    const QString result = pass.replace(prefix, values, text);
    qInstallMessageHandler(previous);
    require(result == Plain::shownSurrogates(plain.text), "another text");
    require(missingImages == expectedMissing, "another number of messages");
    qInstallMessageHandler(countMissingImages);
    return 0;
}
