// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <tools/command_diff.h>

#include <analysis/theme/storedvalues.h>
#include <colormath/distance.h>
#include <tools/commandline.h>
#include <tools/outputfile.h>
#include <tools/texttable.h>
#include <tools/themeoptions.h>

#include <QMap>

namespace
{

struct Pair {
    StoredValue first;
    StoredValue second;
};

// By kind and key; the kinds keep their order.
using Pairs = QMap<QPair<int, QString>, Pair>;

Pairs pairsOf(const ThemeProject &project, const ThemeStack &first, const ThemeStack &second)
{
    Pairs pairs;
    const auto firstValues = storedValues(first, project.options().applicationFolder);
    const auto secondValues = storedValues(second, project.options().applicationFolder);
    for (const StoredValue &value : firstValues)
        pairs[{int(value.kind()), value.key()}].first = value;
    for (const StoredValue &value : secondValues)
        pairs[{int(value.kind()), value.key()}].second = value;
    return pairs;
}

double colorDistance(const QColor &first, const QColor &second)
{
    return ColorMath::distance(ColorMath::toLab(first), ColorMath::toLab(second));
}

QString percentage(const QColor &color)
{
    return QString::number(qRound(color.alphaF() * 100.0)) % QLatin1Char('%');
}

// The distance of colours as if they were opaque, and apart from it what their alpha says.
QString distanceText(const QVariant &first, const QVariant &second)
{
    if (first.userType() != QMetaType::QColor || second.userType() != QMetaType::QColor)
        return {};
    const auto from = first.value<QColor>();
    const auto to = second.value<QColor>();
    QString text = QString::number(colorDistance(from, to), 'f', 1);
    if (from.alpha() != to.alpha())
        text +=
            QLatin1String(", opacity ") % percentage(from) % QLatin1String(" to ") % percentage(to);
    return text;
}

// An image is shown as its file gives it; the resolved path would differ from machine to machine.
QString textOrDash(const StoredValue &stored)
{
    if (!stored.definition)
        return QStringLiteral("-");
    return stored.kind() == Kind::ImageFile ? stored.definition->value->text()
                                            : valueText(stored.value);
}

QString countText(int count, QLatin1String one, QLatin1String many)
{
    return QString::number(count) % QLatin1Char(' ') % (count == 1 ? one : many);
}

} // namespace

int runDiff(const QStringList &arguments)
{
    const QString name = QStringLiteral("diff");
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Lists the values in which two themes differ, and for colours how far they "
                       "are apart:\nthe CIEDE2000 distance, where 1 can just be seen and black and "
                       "white are 100 apart.\n\n"
                       "Exit code: 0 the values are the same, 1 they differ, 2 wrong usage or "
                       "nothing to read."));
    ThemeOptions::add(&parser);
    parser.addPositionalArgument(QStringLiteral("THEME_A"), QStringLiteral("A theme."));
    parser.addPositionalArgument(QStringLiteral("THEME_B"), QStringLiteral("Another one."));
    if (const std::optional<int> code = parseArguments(parser, name, arguments))
        return *code;
    const auto project = ThemeOptions::readProject(name, parser, {2, 2});
    if (!project)
        return ExitUnusable;

    const QStringList names = parser.positionalArguments().mid(1);
    const Pairs pairs = pairsOf(*project, project->theme(names.at(0)), project->theme(names.at(1)));
    TextTable table({QStringLiteral("KIND"), QStringLiteral("KEY"), QStringLiteral("DISTANCE"),
                     names.at(0), names.at(1)});
    int differing = 0;
    for (auto it = pairs.cbegin(); it != pairs.cend(); ++it) {
        const Pair &pair = it.value();
        if (isSameValue(pair.first.value, pair.second.value))
            continue;
        ++differing;
        table.addRow({nounOf(Kind(it.key().first)), it.key().second,
                      distanceText(pair.first.value, pair.second.value), textOrDash(pair.first),
                      textOrDash(pair.second)});
    }
    const QString summary =
        countText(differing, QLatin1String("value differs"), QLatin1String("values differ"))
        % QLatin1String(", ")
        % countText(int(pairs.size()) - differing, QLatin1String("is the same\n"),
                    QLatin1String("are the same\n"));
    const QString text = differing == 0 ? summary : table.text() % QLatin1Char('\n') % summary;
    if (!writeStandardOutput(text))
        return ExitUnusable;
    return differing == 0 ? ExitDone : ExitFindings;
}
