// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <inspector/changesubject.h>

#include <analysis/theme/storedvalues.h>
#include <colormath/contrast.h>

#include <QCoreApplication>
#include <QFileInfo>

namespace
{

QString tr(const char *text, int count = -1)
{
    return QCoreApplication::translate("ChangeSubject", text, nullptr, count);
}

bool isTextProperty(const QString &property)
{
    return property == QLatin1String("color") || property == QLatin1String("selection-color");
}

// A new key goes into the file of the theme itself; the default file would give it to all themes.
ChangeTarget newTarget(const InspectedSheet &sheet, const ThemeStack &theme, Kind kind,
                       const QString &key)
{
    ChangeTarget target;
    target.kind = kind;
    target.key = key;
    target.fileKey = sectionName(kind) % QLatin1Char('/') % key;
    target.place.file = (theme.own() ? *theme.own() : theme.base()).file.path();
    target.isOfDefaultFile = !theme.own();
    target.text = valueText(sheet.theme().values.value(key));
    target.keys = QStringList(key);
    target.declarations = int(sheet.declarationsOfKey(key).size());
    return target;
}

} // namespace

std::optional<double> ColorPartner::ratio(const QColor &other) const
{
    if (isGround)
        return ColorMath::contrastRatio(other, color);
    if (other.alpha() < 255)
        return std::nullopt; // what shines through is not known before it is painted
    return ColorMath::contrastRatio(color, other);
}

ChangeSubject ChangeSubject::of(const InspectedSheet &sheet, Kind kind, const QString &key)
{
    ChangeSubject subject;
    subject.kind = kind;
    subject.key = key;
    const ThemeProject *project = sheet.project();
    if (!project) {
        subject.reason = sheet.problem().isEmpty()
            ? tr("No theme is in force, so there is no file to change this in.")
            : tr("The theme's files cannot be read: %1").arg(sheet.problem());
        return subject;
    }
    const ThemeStack &theme = project->theme(sheet.theme().name);
    subject.targets = kind == Kind::Palette ? paletteChangeTargets(*project, theme, key)
                                            : changeTargets(*project, theme, key);
    if (subject.targets.isEmpty())
        subject.targets << newTarget(sheet, theme, kind, key);
    subject.kind = subject.targets.constFirst().kind;
    if (subject.kind == Kind::Color || subject.kind == Kind::Palette)
        subject.palette = sheet.palette();
    for (const ChangeTarget &target : qAsConst(subject.targets)) {
        if (sheet.colorOfAccent(target.kind, target.key).isValid())
            subject.keysOfAccent << target.fileKey;
    }
    return subject;
}

std::optional<ColorPartner> partnerOf(const QString &property, const Inspection &inspection,
                                      const std::optional<TextContrast> &contrast)
{
    if (property.startsWith(QLatin1String("selection-"))) {
        const bool isText = isTextProperty(property);
        const InspectedValue *other =
            inspection.value(isText ? QStringLiteral("selection-background-color")
                                    : QStringLiteral("selection-color"));
        const QColor color = other ? QColor(other->value) : QColor();
        if (!color.isValid())
            return std::nullopt;
        return ColorPartner{color, isText};
    }
    const bool isGround = property.startsWith(QLatin1String("background"));
    if (!contrast || !(isGround || isTextProperty(property)))
        return std::nullopt;
    if (isGround)
        return ColorPartner{contrast->text, false, contrast->wanted()};
    return ColorPartner{contrast->ground, true, contrast->wanted()};
}

QString targetText(const ChangeTarget &target)
{
    const QString file = QFileInfo(target.place.file).fileName();
    const bool isNew = target.place.position.line == 0;
    const QString what = target.kind == Kind::Palette ? tr("the palette entry %1").arg(target.key)
        : isNew                                       ? tr("%1, a new key").arg(target.key)
                                                      : tr("the key %1").arg(target.key);
    const QString where = isNew ? file : target.place.shortText();
    const QString count =
        target.declarations == 1 ? tr("1 place") : tr("%1 places").arg(target.declarations);
    QString text = QStringLiteral("%1  ·  %2  ·  %3").arg(what, where, count);
    if (target.keys.size() > 1)
        text += tr(" of %1 keys").arg(target.keys.size());
    return text;
}
