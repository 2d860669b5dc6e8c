// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "themereading.h"

#include "missingcolors.h"
#include "missingimages.h"
#include "themefolder.h"

#include <hvtheme/inifile.h>
#include <hvtheme/theme.h>
#include <maker/rebranding.h>

#include <QFile>
#include <QMap>
#include <QSettings>
#include <QTemporaryFile>

#include <optional>

namespace HV
{
namespace
{

QStringList keysOf(QSettings &settings, const QString &section)
{
    settings.beginGroup(section);
    QStringList keys = settings.allKeys();
    settings.endGroup();
    return keys;
}

// A theme takes values from files only, so what is to be added goes through one.
class Supplement
{
public:
    void add(const QString &section, const QString &key, const QString &value)
    {
        m_sections[section] += key + QLatin1Char('=') + value + QLatin1Char('\n');
    }

    // Leaves the theme as it is where no temporary file can be written.
    template<typename Read>
    void giveTo(Read read) const
    {
        QTemporaryFile file;
        if (m_sections.isEmpty() || !file.open())
            return;
        for (auto it = m_sections.cbegin(); it != m_sections.cend(); ++it)
            file.write(QStringLiteral("[%1]\n%2").arg(it.key(), it.value()).toLatin1());
        if (!file.flush())
            return;
        const QString path = file.fileName(); // a closed file that was never named is lost
        file.close();
        QSettings settings(path, iniFormat(path));
        read(settings);
    }

private:
    QMap<QString, QString> m_sections;
};

class Reading
{
public:
    // What stands in first and second takes the place of the folder's files; null texts do not.
    Reading(Theme &theme, const ThemeFolder &folder, const QString &name, const QString &first,
            const QString &second)
        : m_theme(theme)
        , m_defaultFile(folder.defaultFile(), iniFormat(folder.defaultFile()))
        , m_first(first.isNull() ? folder.defaultFile() : first,
                  iniFormat(first.isNull() ? folder.defaultFile() : first))
    {
        const QString file = second.isNull() ? folder.file(name) : second;
        if (folder.file(name) != folder.defaultFile())
            m_second.emplace(file, iniFormat(file));
    }

    QStringList run()
    {
        m_theme.clear();
        addPaletteAndIntegers();
        read(m_first);
        if (m_second)
            read(*m_second);
        QStringList derived = addColors();
        addMissingImages(m_theme);
        // Everything is stored now, so what the theme's class requires is looked for in an empty
        // part of the default file; this also gives the theme its file path.
        m_defaultFile.beginGroup(QStringLiteral("hvtheme-no-such-section"));
        m_theme.readSettings(m_defaultFile);
        m_defaultFile.endGroup();
        return derived;
    }

private:
    void read(QSettings &settings)
    {
        const QMetaObject &vocabulary = *m_theme.metaObject();
        m_theme.readDisplayName(settings);
        m_theme.readPalettes(settings, false, vocabulary);
        m_theme.readColors(settings, false, vocabulary);
        m_theme.readImageFiles(settings, false, vocabulary);
        m_theme.readGradients(settings, false, vocabulary);
        m_theme.readFlags(settings, false, vocabulary);
        m_theme.readIntegers(settings, false, vocabulary);
    }

    QStringList stored(const QString &section)
    {
        QStringList keys = keysOf(m_first, section);
        if (m_second)
            keys += keysOf(*m_second, section);
        return keys;
    }

    void addPaletteAndIntegers()
    {
        QSettings sample(ThemeFolder().defaultFile(), QSettings::IniFormat);
        Supplement supplement;
        for (const QString &section : {QStringLiteral("Palettes"), QStringLiteral("Integers")}) {
            const QStringList known = stored(section);
            const QStringList keys = keysOf(sample, section);
            for (const QString &key : keys) {
                const QString path = section + QLatin1Char('/') + key;
                if (!known.contains(key))
                    supplement.add(section, key, sample.value(path).toString());
            }
        }
        supplement.giveTo([this](QSettings &settings) {
            const QMetaObject &vocabulary = *m_theme.metaObject();
            m_theme.readPalettes(settings, false, vocabulary);
            m_theme.readIntegers(settings, false, vocabulary);
        });
    }

    QStringList addColors()
    {
        QHash<QString, QColor> known;
        const QStringList keys = stored(QStringLiteral("Colors"));
        for (const QString &key : keys)
            known.insert(key, m_theme.color(key));
        const QHash<QString, QColor> derived = derivedColors(known);
        Supplement supplement;
        const auto add = [&](const QHash<QString, QColor> &colors) {
            for (auto it = colors.cbegin(); it != colors.cend(); ++it) {
                supplement.add(QStringLiteral("Colors"), it.key(), it->name(QColor::HexArgb));
                known.insert(it.key(), *it);
            }
        };
        add(derived);
        add(accentColors(known)); // optional, so nobody is told
        supplement.giveTo([this](QSettings &settings) {
            m_theme.readColors(settings, false, *m_theme.metaObject());
        });
        QStringList names = derived.keys();
        names.sort();
        return names;
    }

    Theme &m_theme;
    QSettings m_defaultFile;
    QSettings m_first;
    std::optional<QSettings> m_second;
};

QByteArray contentOf(const QString &path, const QHash<QString, QByteArray> &contents)
{
    const auto unsaved = contents.constFind(path);
    if (unsaved != contents.cend())
        return *unsaved;
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// A theme takes values from files only, so texts that stand in none go through files as well.
class OtherFiles
{
public:
    OtherFiles(const ThemeFolder &folder, const QString &name, const QColor &accent,
               const QHash<QString, QByteArray> &contents)
    {
        const bool isDefault = folder.file(name) == folder.defaultFile();
        Maker::ThemeTexts texts{contentOf(folder.defaultFile(), contents),
                                isDefault ? QByteArray() : contentOf(folder.file(name), contents)};
        QStringList notes; // what cannot be had is a tone that comes near
        if (accent.isValid()) {
            const auto branded = Maker::withBrand(texts, accent, &notes, &m_problem);
            texts = branded.value_or(texts);
        }
        m_isWritten = write(&m_first, texts.base) && write(&m_second, texts.own);
    }

    /*! \brief One sentence if the accent cannot be had, or a null text. */
    QString problem() const { return m_problem; }

    QString first() const { return m_isWritten ? m_first.fileName() : QString(); }
    QString second() const { return m_isWritten ? m_second.fileName() : QString(); }

private:
    static bool write(QTemporaryFile *file, const QByteArray &text)
    {
        if (!file->open() || file->write(text) != text.size() || !file->flush())
            return false;
        file->fileName(); // a closed file that was never named is lost
        file->close();
        return true;
    }

    QTemporaryFile m_first;
    QTemporaryFile m_second;
    QString m_problem;
    bool m_isWritten = false;
};

} // namespace

std::optional<QStringList> readTheme(Theme &theme, const ThemeFolder &folder, const QString &name,
                                     const QColor &accent,
                                     const QHash<QString, QByteArray> &contents, QString *problem)
{
    if (!accent.isValid() && contents.isEmpty())
        return Reading(theme, folder, name, QString(), QString()).run();
    const OtherFiles files(folder, name, accent, contents);
    if (!files.problem().isNull()) {
        *problem =
            folder.file(name) % QLatin1String(": the accent cannot be had: ") % files.problem();
        return std::nullopt;
    }
    return Reading(theme, folder, name, files.first(), files.second()).run();
}

} // namespace HV
