// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "missingimages.h"

#include "iconplugins.h"

#include <format/token.h>
#include <hvtheme/theme.h>
#include <hvtheme/theming.h>

#include <QFileInfo>
#include <QSettings>

namespace HV
{
namespace
{

// The paths as they stand in a style sheet, by their keys.
QHash<QString, QString> missingFiles(const QVariantMap &values)
{
    QHash<QString, QString> missing;
    for (auto it = values.cbegin(); it != values.cend(); ++it) {
        if (it->userType() != QMetaType::QString)
            continue;
        const QString file = dpiSpecificImageFile(it->toString());
        if (!QFileInfo::exists(file))
            missing.insert(it.key(), file);
    }
    return missing;
}

} // namespace

void addMissingImages(Theme &theme)
{
    registerIcons();
    // One group per key, with a section ImageFiles inside, since a theme reads sections whole.
    QSettings drawings(QStringLiteral(":/hvthemeapp/icons/imagefiles.ini"), QSettings::IniFormat);
    const QStringList keys = drawings.childGroups();
    const QString missing(QLatin1Char('?'));
    for (const QString &key : keys) {
        if (theme.imageFile(key, missing, false) != missing) // an empty path reads as another one
            continue;
        drawings.beginGroup(key);
        theme.readImageFiles(drawings, false, *theme.metaObject());
        drawings.endGroup();
    }
}

QString withMissingImagesOnce(const QString &templates, const QString &prefix,
                              const QVariantMap &values, const QHash<QString, QString> &drawings,
                              QSet<QString> *told)
{
    QHash<QString, QString> files = missingFiles(values);
    for (auto it = drawings.cbegin(); it != drawings.cend(); ++it)
        files.insert(it.key(), *it);
    if (files.isEmpty())
        return templates;
    QString result;
    int end = 0;
    const auto tokens = Tokens::find(templates, prefix);
    for (const TemplateToken &token : tokens) {
        const auto file = files.constFind(token.key);
        if (token.kind != Kind::ImageFile || file == files.cend())
            continue;
        const bool isFirst = !told->contains(token.key) && !drawings.contains(token.key);
        told->insert(token.key);
        // A path that looks like a token is left to who replaces these.
        if (isFirst || file->contains(QLatin1String(".theme.")))
            continue;
        result += templates.mid(end, token.offset - end) + *file;
        end = token.end();
    }
    return result + templates.mid(end);
}

} // namespace HV
