// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "templatefolders.h"

#include "applicationtheme.h"
#include "brokenimages.h"
#include "missingimages.h"
#include "themefolder.h"

#include <format/quotedurls.h>
#include <format/themepath.h>
#include <hvtheme/theme.h>
#include <hvtheme/theming.h>

#include <QFileInfo>

namespace HV
{
namespace
{

// Qt drops a style sheet whole that it cannot parse, and tells nobody but the log. What it stumbles
// over while a template is being written is mostly a rule, comment or text that is not closed yet.
bool isClosed(const QString &text)
{
    bool isInRule = false;
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (c == u'/' && text.mid(i + 1, 1) == QLatin1String("*")) {
            i = int(text.indexOf(QLatin1String("*/"), i + 2));
            if (i < 0)
                return false;
            ++i;
        } else if (c == u'"' || c == u'\'') {
            i = int(text.indexOf(c, i + 1));
            if (i < 0)
                return false;
        } else if (c == u'{' || c == u'}') {
            if (isInRule == (c == u'{'))
                return false;
            isInRule = !isInRule;
        }
    }
    return !isInRule;
}

QString problemOfTemplate(const QString &file)
{
    QString fault = ThemeFolder::problemOfText(file);
    if (!fault.isEmpty())
        return fault;
    QString text;
    readStyleSheet(QStringList(file), text);
    if (isClosed(text))
        return {};
    return ApplicationTheme::tr("\"%1\" has a rule, comment or text that does not begin or end")
        .arg(file);
}

QString builtInPrefix()
{
    return QStringLiteral("global");
}

QStringList builtInFiles(bool keepsFonts)
{
    QStringList files = templateFilePaths(QStringLiteral(":/stylesheet"));
    if (keepsFonts)
        files.removeOne(QStringLiteral(":/stylesheet/global.qss")); // its rules begin with `*`
    return files + templateFilePaths(QStringLiteral(":/hvthemeapp/stylesheet"));
}

} // namespace

void TemplateFolders::add(const QString &folder, const QString &prefix)
{
    m_folders.append({folder, prefix});
}

QStringList TemplateFolders::folders() const
{
    QStringList paths;
    for (const Folder &folder : m_folders)
        paths.append(folder.path);
    return paths;
}

QStringList TemplateFolders::files() const
{
    QStringList files;
    for (const Folder &folder : m_folders)
        files += templateFilePaths(folder.path);
    return files;
}

QVector<QPair<QString, QString>> TemplateFolders::sources(bool keepsFonts) const
{
    QVector<QPair<QString, QString>> sources;
    const QStringList builtIn = builtInFiles(keepsFonts);
    for (const QString &file : builtIn)
        sources.append({file, builtInPrefix()});
    for (const Folder &folder : m_folders) {
        const QStringList files = templateFilePaths(folder.path);
        for (const QString &file : files)
            sources.append({file, folder.prefix});
    }
    return sources;
}

QString TemplateFolders::problem() const
{
    for (const Folder &folder : m_folders) {
        if (!QFileInfo(folder.path).isDir())
            return ApplicationTheme::tr(
                       "The templates folder \"%1\" does not exist; name one that does.")
                .arg(folder.path);
    }
    const QStringList all = files();
    for (const QString &file : all) {
        const QString fault = problemOfTemplate(file);
        if (!fault.isEmpty())
            return ApplicationTheme::tr("%1; mend it or take it out of the templates folder.")
                .arg(fault);
    }
    return {};
}

QString TemplateFolders::styleSheet(Theme *theme, bool keepsFonts) const
{
    QSet<QString> told;
    const auto drawings = drawingsForBrokenImages(theme->values());
    const auto sheetOf = [&](const auto &source, const QString &prefix) -> QString {
        QString text;
        readStyleSheet(source, text);
        text = withMissingImagesOnce(text, prefix, theme->values(), drawings, &told);
        replaceStyleSheet(theme, prefix, text);
        return text + QLatin1Char('\n'); // which a template may lack
    };
    QString sheet = sheetOf(builtInFiles(keepsFonts), builtInPrefix());
    for (const Folder &folder : m_folders)
        sheet += sheetOf(folder.path, folder.prefix);
    return withQuotedUrls(sheet, theme->values());
}

} // namespace HV
