// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "themereading.h"

#include "applicationtheme.h"
#include "missingcolors.h"
#include "missingimages.h"
#include "themefolder.h"

#include <hvtheme/inifile.h>
#include <hvtheme/theme.h>
#include <maker/rebranding.h>

#include <QDir>
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

QString problemOfWriting(QTemporaryFile *file, const QByteArray &text)
{
    if (!file->open() || file->write(text) != text.size() || !file->flush())
        return ApplicationTheme::tr(
                   "No temporary file can be written in \"%1\", which the look takes "
                   "(%2); make room there, or let TMPDIR name another folder.")
            .arg(QDir::tempPath(), file->errorString());
    file->fileName(); // a closed file that was never named is lost
    file->close();
    return {};
}

// A theme takes values from files only, so what is to be added goes through one.
class Supplement
{
public:
    void add(const QString &section, const QString &key, const QString &value)
    {
        m_sections[section] += key + QLatin1Char('=') + value + QLatin1Char('\n');
    }

    // Leaves the theme as it is, and says why, where no temporary file can be written.
    template<typename Read>
    QString giveTo(Read read) const
    {
        if (m_sections.isEmpty())
            return {};
        QByteArray text;
        for (auto it = m_sections.cbegin(); it != m_sections.cend(); ++it)
            text += QStringLiteral("[%1]\n%2").arg(it.key(), it.value()).toLatin1();
        QTemporaryFile file;
        QString problem = problemOfWriting(&file, text);
        if (!problem.isEmpty())
            return problem;
        const QString path = file.fileName();
        QSettings settings(path, iniFormat(path));
        read(settings);
        return {};
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

    std::optional<QStringList> run(QString *problem)
    {
        m_theme.clear();
        addPaletteAndIntegers();
        read(m_first);
        if (m_second)
            read(*m_second);
        QStringList derived = addColors();
        if (!m_problem.isEmpty()) {
            *problem = m_problem;
            m_theme.clear();
            return std::nullopt;
        }
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
        m_problem = supplement.giveTo([this](QSettings &settings) {
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
        const QString problem = supplement.giveTo([this](QSettings &settings) {
            m_theme.readColors(settings, false, *m_theme.metaObject());
        });
        if (m_problem.isEmpty())
            m_problem = problem;
        QStringList names = derived.keys();
        names.sort();
        return names;
    }

    Theme &m_theme;
    QSettings m_defaultFile;
    QSettings m_first;
    std::optional<QSettings> m_second;
    QString m_problem;
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
            QString fault;
            const auto branded = Maker::withBrand(texts, accent, &notes, &fault);
            texts = branded.value_or(texts);
            if (!fault.isNull())
                m_problem =
                    folder.file(name) % QLatin1String(": the accent cannot be had: ") % fault;
        }
        if (m_problem.isEmpty())
            m_problem = problemOfWriting(&m_first, texts.base);
        if (m_problem.isEmpty())
            m_problem = problemOfWriting(&m_second, texts.own);
    }

    /*! \brief One sentence if the files cannot be had, or an empty text. */
    QString problem() const { return m_problem; }

    QString first() const { return m_first.fileName(); }
    QString second() const { return m_second.fileName(); }

private:
    QTemporaryFile m_first;
    QTemporaryFile m_second;
    QString m_problem;
};

} // namespace

std::optional<QStringList> readTheme(Theme &theme, const ThemeFolder &folder, const QString &name,
                                     const QColor &accent,
                                     const QHash<QString, QByteArray> &contents, QString *problem)
{
    if (!accent.isValid() && contents.isEmpty())
        return Reading(theme, folder, name, QString(), QString()).run(problem);
    const OtherFiles files(folder, name, accent, contents);
    if (!files.problem().isEmpty()) {
        *problem = files.problem();
        return std::nullopt;
    }
    return Reading(theme, folder, name, files.first(), files.second()).run(problem);
}

} // namespace HV
