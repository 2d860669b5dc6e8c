// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <tools/explanationtext.h>

#include <format/printabletext.h>

using Topic = ExplanationStep::Topic;

namespace
{

QLatin1String headingOf(Topic topic)
{
    switch (topic) {
    case Topic::Ineffective:
        return QLatin1String("Without effect:\n");
    case Topic::Taker:
        return QLatin1String("Taken by:\n");
    case Topic::Token:
        return QLatin1String("Used by templates:\n");
    case Topic::Value:
    case Topic::Origin:
    case Topic::Note:
    case Topic::Statement:
    case Topic::Rule:
    case Topic::Declaration:
    case Topic::Source:
        break;
    }
    return QLatin1String();
}

int indentationOf(Topic topic)
{
    switch (topic) {
    case Topic::Note:
    case Topic::Source:
        return 4;
    case Topic::Value:
    case Topic::Statement:
    case Topic::Rule:
        return 0;
    case Topic::Origin:
    case Topic::Ineffective:
    case Topic::Taker:
    case Topic::Token:
    case Topic::Declaration:
        return 2;
    }
    return 0;
}

} // namespace

QString explanationText(const QVector<ExplanationStep> &steps)
{
    QString text;
    Topic current = Topic::Statement;
    for (const ExplanationStep &step : steps) {
        if (step.topic != Topic::Note && step.topic != current) {
            text += headingOf(step.topic);
            current = step.topic;
        }
        const QString line = step.place.file.isEmpty()
            ? step.text
            : step.place.text() % QLatin1String(": ") % step.text;
        text += QString(indentationOf(step.topic), QLatin1Char(' ')) % printable(line)
            % QLatin1Char('\n');
    }
    return text;
}
