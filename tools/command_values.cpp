// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <tools/command_values.h>

#include <analysis/theme/storedvalues.h>
#include <tools/commandline.h>
#include <tools/outputfile.h>
#include <tools/outputtext.h>
#include <tools/texttable.h>
#include <tools/themeoptions.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace
{

QString asTable(const QVector<StoredValue> &values)
{
    TextTable table({QStringLiteral("KIND"), QStringLiteral("KEY"), QStringLiteral("VALUE"),
                     QStringLiteral("PALETTE"), QStringLiteral("FROM")});
    for (const StoredValue &value : values) {
        const QLatin1String remark(value.isHidden ? ", hidden from style sheets" : "");
        table.addRow({nounOf(value.kind()), value.key(), valueText(value.value), value.palette,
                      value.definition->keyPlace().lineText() % remark});
    }
    return table.text();
}

QString quoted(const QString &field)
{
    QString doubled = field;
    doubled.replace(QLatin1Char('"'), QLatin1String("\"\""));
    return QLatin1Char('"') % doubled % QLatin1Char('"');
}

// RFC 4180; every field is quoted, because any key may hold a comma.
QString asCsv(const QVector<StoredValue> &values)
{
    QString text = QStringLiteral("kind,key,value,palette,file,line,seen by style sheets\r\n");
    for (const StoredValue &value : values) {
        const bool isSeen = isInStyleSheets(value.kind()) && !value.isHidden;
        const QStringList fields{enumerationName(value.kind()),
                                 value.key(),
                                 valueText(value.value),
                                 value.palette,
                                 value.definition->layer->file.path(),
                                 QString::number(value.definition->entry()->keyPosition.line),
                                 QLatin1String(isSeen ? "yes" : "no")};
        QStringList cells;
        for (const QString &field : fields)
            cells << quoted(field);
        text += cells.join(QLatin1Char(',')) % QLatin1String("\r\n");
    }
    return text;
}

QJsonValue jsonValue(const QVariant &value)
{
    if (value.userType() != qMetaTypeId<QGradientStops>())
        return value.userType() == QMetaType::QColor ? valueText(value)
                                                     : QJsonValue::fromVariant(value);
    QJsonArray stops;
    const auto gradient = value.value<QGradientStops>();
    for (const QGradientStop &stop : gradient)
        stops.append(QJsonObject{{QStringLiteral("position"), stop.first},
                                 {QStringLiteral("color"), valueText(stop.second)}});
    return stops;
}

QJsonObject jsonObject(const StoredValue &stored)
{
    QJsonObject object{
        {QStringLiteral("value"), jsonValue(stored.value)},
        {QStringLiteral("file"), stored.definition->layer->file.path()},
        {QStringLiteral("line"), stored.definition->entry()->keyPosition.line},
    };
    if (!stored.palette.isEmpty())
        object.insert(QStringLiteral("palette"), stored.palette);
    return object;
}

// "imageFiles" for the section "ImageFiles".
QString jsonName(Kind kind)
{
    const QString section = sectionName(kind);
    return section.at(0).toLower() % section.mid(1);
}

QString asJson(const ThemeStack &theme, const QVector<StoredValue> &values)
{
    QJsonObject flattened;
    QHash<int, QJsonObject> kinds;
    for (const StoredValue &value : values) {
        kinds[int(value.kind())].insert(value.key(), jsonObject(value));
        if (isInStyleSheets(value.kind()) && !value.isHidden)
            flattened.insert(value.key(), jsonValue(value.value));
    }
    QJsonObject root{
        {QStringLiteral("theme"), theme.name()},
        {QStringLiteral("displayName"), theme.displayName()},
        {QStringLiteral("values"), flattened},
    };
    for (const Kind kind : allKinds)
        root.insert(jsonName(kind), kinds.value(int(kind)));
    return QString::fromUtf8(QJsonDocument(root).toJson());
}

} // namespace

int runValues(const QStringList &arguments)
{
    const QString name = QStringLiteral("values");
    const QString formatOption = QStringLiteral("format");
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Lists everything that a theme has in store: the values that style sheets "
                       "see, and palette\nentries and gradients, which they do not.\n\n"
                       "Exit code: 0 done, 2 wrong usage or nothing to read."));
    ThemeOptions::add(&parser);
    parser.addPositionalArgument(QStringLiteral("THEME"), QStringLiteral("The name of the theme."));
    parser.addOption({formatOption, "table, json or csv (default: table).", "format", "table"});
    if (const std::optional<int> code = parseArguments(parser, name, arguments))
        return *code;
    const QString format = parser.value(formatOption);
    if (!QStringList{QStringLiteral("table"), QStringLiteral("json"), QStringLiteral("csv")}
             .contains(format))
        return usageError(name,
                          QLatin1String("no format is called \"") % format
                              % QLatin1String("\"; there are table, json and csv"));
    const auto project = ThemeOptions::readProject(name, parser, {1, 1});
    if (!project)
        return ExitUnusable;

    const ThemeStack &theme = project->theme(parser.positionalArguments().at(1));
    const auto values = storedValues(theme, project->options().applicationFolder);
    const QString text = format == QLatin1String("json") ? asJson(theme, values)
        : format == QLatin1String("csv")                 ? asCsv(values)
                                                         : asTable(values);
    return writeStandardOutput(text) ? ExitDone : ExitUnusable;
}
