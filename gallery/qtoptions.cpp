// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#include "qtoptions.h"

#include <algorithm>
#include <iterator>

namespace Gallery
{

namespace
{

const char *const flags[] = {"dograb",  "nograb",      "qdebug",     "qdevel",
                             "reverse", "testability", "widgetcount"};

const char *const optionsWithValue[] = {
    "display",         "geometry",           "icon",          "name",
    "platform",        "platformpluginpath", "platformtheme", "plugin",
    "qwindowgeometry", "qwindowicon",        "qwindowtitle",  "session",
    "style",           "stylesheet",         "title",         "visual",
};

const char *const optionsWithEqualSign[] = {"qmljsdebugger=", "style=", "stylesheet="};

// Qt takes one dash and two for the same.
QString optionName(const QString &argument)
{
    if (argument.startsWith(QLatin1String("--")))
        return argument.mid(2);
    return argument.startsWith(QLatin1Char('-')) ? argument.mid(1) : QString();
}

} // namespace

QStringList withoutOptionsOfQt(const QStringList &arguments)
{
    QStringList others = arguments.mid(0, 1);
    for (int i = 1; i < arguments.size(); ++i) {
        const QString name = optionName(arguments.at(i));
        const auto is = [&](const char *option) { return name == QLatin1String(option); };
        const auto begins = [&](const char *option) {
            return name.startsWith(QLatin1String(option));
        };
        if (std::any_of(std::begin(optionsWithValue), std::end(optionsWithValue), is))
            ++i;
        else if (std::none_of(std::begin(flags), std::end(flags), is)
                 && std::none_of(std::begin(optionsWithEqualSign), std::end(optionsWithEqualSign),
                                 begins))
            others.append(arguments.at(i));
    }
    return others;
}

} // namespace Gallery
