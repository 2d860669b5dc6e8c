// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <exchange/formats.h>

#include <colormath/csstext.h>

#include <QCollator>
#include <QStringList>

#include <algorithm>

namespace Exchange
{

namespace
{

// An identifier begins behind "--palette-", so a digit may come first.
QString cssName(const char *group, const QString &key)
{
    QString name = QLatin1String("--") % QLatin1String(group) % QLatin1Char('-');
    for (const QChar character : key) {
        const bool isPlain = character.isLetterOrNumber() || character == QLatin1Char('_')
            || character == QLatin1Char('-') || character.unicode() > 127;
        if (isPlain)
            name += character;
        else if (character.unicode() < 32 || character.unicode() == 127)
            name += QLatin1Char('\\') % QString::number(character.unicode(), 16) % QLatin1Char(' ');
        else
            name += QLatin1Char('\\') % character;
    }
    return name;
}

} // namespace

QByteArray cssProperties(const ThemeContent &theme)
{
    QString css = QStringLiteral(":root {\n");
    const auto add = [&](const QString &name, const QString &value) {
        css += QLatin1String("  ") % name % QLatin1String(": ") % value % QLatin1String(";\n");
    };
    for (auto it = theme.palette.cbegin(); it != theme.palette.cend(); ++it)
        add(cssName("palette", it.key()), ColorMath::cssColor(it.value()));
    for (auto it = theme.colors.cbegin(); it != theme.colors.cend(); ++it) {
        const QString &entry = it.value().palette;
        add(cssName("color", it.key()),
            entry.isEmpty() ? ColorMath::cssColor(it.value().color)
                            : QLatin1String("var(") % cssName("palette", entry) % QLatin1Char(')'));
    }
    for (auto it = theme.integers.cbegin(); it != theme.integers.cend(); ++it)
        add(cssName("integer", it.key()),
            QString::number(it.value())
                % QLatin1String(it.key().startsWith(QLatin1String("FontSize_")) ? "px" : ""));
    for (auto it = theme.gradients.cbegin(); it != theme.gradients.cend(); ++it)
        add(cssName("gradient", it.key()), ColorMath::cssGradient(it.value()));
    for (auto it = theme.flags.cbegin(); it != theme.flags.cend(); ++it)
        add(cssName("flag", it.key()), QLatin1String(it.value() ? "1" : "0"));
    return QString(css % QLatin1String("}\n")).toUtf8();
}

QByteArray gimpPalette(const ThemeContent &theme)
{
    const auto oneLine = [](QString text) {
        return text.replace(QLatin1Char('\n'), QLatin1Char(' ')).toUtf8();
    };
    QByteArray text = "GIMP Palette\nName: " + oneLine(theme.displayName) + "\nColumns: 10\n#\n";
    QCollator collator{QLocale(QLocale::English)};
    collator.setNumericMode(true); // a run in its order: Brand_2 before Brand_10
    QStringList keys = theme.palette.keys();
    std::sort(keys.begin(), keys.end(), collator);
    for (const QString &key : qAsConst(keys)) {
        const QColor color = theme.palette.value(key).toRgb();
        for (const int channel : {color.red(), color.green(), color.blue()})
            text += QByteArray::number(channel).rightJustified(3) + ' ';
        text += '\t' + oneLine(key) + '\n';
    }
    return text;
}

QByteArray paletteFile(const QPalette &palette)
{
    QByteArray text = "[ColorScheme]\n";
    const auto add = [&](const char *name, QPalette::ColorGroup group) {
        QByteArray line;
        for (int role = 0; role <= QPalette::PlaceholderText; ++role) {
            const QColor &color = palette.color(group, QPalette::ColorRole(role));
            line += (line.isEmpty() ? "" : ", ") + color.name(QColor::HexArgb).toLatin1();
        }
        text += name + QByteArrayLiteral("_colors=") + line + '\n';
    };
    add("active", QPalette::Active);
    add("disabled", QPalette::Disabled);
    add("inactive", QPalette::Inactive);
    return text;
}

} // namespace Exchange
