// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/theme/themeeditor.h>

#include <analysis/theme/changedtext.h>
#include <format/themepath.h>
#include <maker/stagedfiles.h>

#include <QDir>
#include <QFileInfo>
#include <QStringBuilder>

#include <algorithm>

namespace
{

constexpr int undoLimit = 500;

bool fail(const QString &message, QString *error)
{
    *error = message;
    return false;
}

// A text that the editor has was one of a theme file.
ThemeFile fileOf(const QString &path, const QByteArray &content)
{
    QString error;
    return *ThemeFile::fromContent(path, content, &error);
}

// A value that is no text, such as a list, is told as it is written.
QString textOf(const ThemeFile &file, const ThemeFileEntry &entry,
               const QMap<QString, QVariant> &values)
{
    const QVariant value = values.value(entry.key);
    if (value.userType() == QMetaType::QString)
        return value.toString().isNull() ? QStringLiteral("") : value.toString();
    const int length = entry.valueEnd - entry.valueStart;
    return QString::fromUtf8(file.content().mid(entry.valueStart, length));
}

struct KnownText {
    KnownText(const QString &path, const QByteArray &content)
        : file(fileOf(path, content))
        , values(ChangedText::values(content))
    {
    }

    const ThemeFile file;
    const QMap<QString, QVariant> values;
};

QVector<ThemeChange> differences(const KnownText &before, const KnownText &after)
{
    QVector<ThemeChange> changes;
    const QString path = after.file.path();
    for (const ThemeFileEntry &entry : after.file.entries()) {
        if (!entry.isEffective)
            continue;
        const ThemeFileEntry *old = before.file.find(entry.key);
        ThemeChange change{path, entry.key, QString(), textOf(after.file, entry, after.values)};
        if (old)
            change.before = textOf(before.file, *old, before.values);
        if (!old || change.before != change.value)
            changes.append(change);
    }
    for (const ThemeFileEntry &entry : before.file.entries()) {
        if (entry.isEffective && !after.file.find(entry.key))
            changes.append({path, entry.key, textOf(before.file, entry, before.values), QString()});
    }
    return changes;
}

std::optional<QByteArray> changed(const QString &path, QByteArray content,
                                  const QVector<ThemeChange> &changes, QString *error)
{
    for (const ThemeChange &change : changes) {
        const auto file = ThemeFile::fromContent(path, content, error);
        if (!file)
            return std::nullopt;
        const auto next = change.value.isNull()
            ? ChangedText::withoutKey(*file, change.key)
            : ChangedText::withValue(*file, change.key, change.value, error);
        if (!next)
            return std::nullopt;
        content = *next;
    }
    return content;
}

using ValuesByKey = QHash<QString, QString>; // of changes

ValuesByKey byKey(const QVector<ThemeChange> &changes)
{
    ValuesByKey values;
    for (const ThemeChange &each : changes)
        values.insert(each.key, each.value);
    return values;
}

// Tells whether all that was changed before still is: no key was reset, and none is there again.
bool goesOn(const ValuesByKey &before, const ValuesByKey &now)
{
    for (auto it = before.cbegin(); it != before.cend(); ++it) {
        const auto found = now.constFind(it.key());
        if (found == now.cend() || (it->isNull() && !found->isNull()))
            return false;
    }
    return true;
}

QVector<ThemeChange> added(const ValuesByKey &before, const QVector<ThemeChange> &changes)
{
    QVector<ThemeChange> added;
    for (const ThemeChange &each : changes) {
        const auto known = before.constFind(each.key);
        const bool isSame = known != before.cend() && *known == each.value
            && known->isNull() == each.value.isNull();
        if (!isSame)
            added.append(each);
    }
    return added;
}

} // namespace

ThemeEditor::ThemeEditor()
    : m_states{State()}
{
}

void ThemeEditor::open(const ThemeFile &file)
{
    if (m_saved.contains(file.path()))
        return;
    m_saved.insert(file.path(), file.content());
    for (State &each : m_states)
        each.contents.insert(file.path(), file.content());
}

void ThemeEditor::push(const QString &file, const QByteArray &content, const QString &changed)
{
    State next = state();
    next.contents.insert(file, content);
    next.changed = changed;
    push(next);
}

void ThemeEditor::push(const State &next)
{
    m_states.resize(m_current + 1);
    m_states.append(next);
    if (m_states.size() > undoLimit)
        m_states.removeFirst();
    m_current = int(m_states.size()) - 1;
}

bool ThemeEditor::setValue(const QString &file, const QString &key, const QString &value, Step step,
                           QString *error)
{
    if (!m_saved.contains(file)) {
        const std::optional<ThemeFile> read = ThemeFile::read(file, error);
        if (!read)
            return false;
        open(*read);
    }
    const auto content =
        ::changed(file, contentOf(file), {ThemeChange{file, key, QString(), value}}, error);
    if (!content)
        return false;
    if (*content == contentOf(file))
        return true;
    const QString changed = file % QLatin1Char('\n') % key;
    if (step == Step::Continued && canUndo() && state().changed == changed)
        --m_current; // what it led to takes its place
    push(file, *content, changed);
    return true;
}

QVector<ThemeChange> ThemeEditor::changesOf(const QString &file, const QByteArray &content) const
{
    const QByteArray saved = m_saved.value(file);
    return content == saved ? QVector<ThemeChange>()
                            : differences(KnownText(file, saved), KnownText(file, content));
}

QVector<ThemeChange> ThemeEditor::changes() const
{
    QVector<ThemeChange> changes;
    QStringList files = m_saved.keys();
    files.sort();
    for (const QString &file : qAsConst(files))
        changes += changesOf(file, contentOf(file));
    return changes;
}

// Not by writing the old value: the text becomes what it would be had the key never been touched.
void ThemeEditor::reset(const QString &file, const QString &key)
{
    QVector<ThemeChange> kept = changesOf(file, contentOf(file));
    const auto isReset = [&](const ThemeChange &change) { return change.key == key; };
    kept.erase(std::remove_if(kept.begin(), kept.end(), isReset), kept.end());
    QString error;
    const auto content = ::changed(file, m_saved.value(file), kept, &error);
    if (content && *content != contentOf(file))
        push(file, *content, QString());
}

void ThemeEditor::resetFiles(const QStringList &files)
{
    State next = state();
    next.changed.clear();
    for (const QString &file : files) {
        if (m_saved.contains(file))
            next.contents.insert(file, m_saved.value(file));
    }
    if (next.contents != state().contents)
        push(next);
}

void ThemeEditor::undo()
{
    if (canUndo())
        --m_current;
}

void ThemeEditor::redo()
{
    if (canRedo())
        ++m_current;
}

QHash<QString, QByteArray> ThemeEditor::contents() const
{
    QHash<QString, QByteArray> contents;
    for (auto it = m_saved.cbegin(); it != m_saved.cend(); ++it) {
        if (contentOf(it.key()) != it.value())
            contents.insert(it.key(), contentOf(it.key()));
    }
    return contents;
}

ThemeSaving ThemeEditor::save(const QString &file)
{
    using Outcome = ThemeSaving::Outcome;
    const QByteArray ours = contentOf(file);
    const QByteArray saved = m_saved.value(file);
    if (ours == saved)
        return {};
    if (isResourcePath(file))
        return {Outcome::InProgram,
                file
                    % QLatin1String(": inside the program, where nothing can be written; save it "
                                    "as a new theme"),
                ours, QByteArray()};
    if (!QFileInfo::exists(file))
        return {Outcome::Vanished,
                file % QLatin1String(": no longer there; save it as a new theme"), ours,
                QByteArray()};
    if (!QFileInfo(file).isWritable())
        return {Outcome::Refused,
                file % QLatin1String(": may only be read; save it as a new theme"), ours,
                QByteArray()};
    QString error;
    Maker::StagedFile staged(file);
    if (!staged.stage(ours, {}, &error))
        return {Outcome::Refused, error, ours, QByteArray()};
    // As late as can be, so that next to nobody comes in between.
    const std::optional<ThemeFile> onDisk = ThemeFile::read(file, &error);
    if (!onDisk)
        return {Outcome::Refused, error, ours, QByteArray()};
    const bool isWritten = onDisk->content() == ours; // by whoever it was
    if (onDisk->content() != saved && !isWritten)
        return {Outcome::ChangedMeanwhile,
                file % QLatin1String(": somebody else changed it meanwhile; nothing was written"),
                ours, onDisk->content()};
    if (!isWritten && !staged.commit(&error))
        return {Outcome::Refused, error, ours, QByteArray()};
    m_saved.insert(file, ours);
    m_states[m_current].changed.clear(); // what comes now can be undone to here
    return {};
}

bool ThemeEditor::adopt(const QString &file, const QByteArray &theirs, Text text, QString *error)
{
    if (!ThemeFile::fromContent(file, theirs, error))
        return false;
    QVector<State> states = m_states;
    const KnownText saved(file, m_saved.value(file));
    QHash<QByteArray, QByteArray> adopted; // by our text
    ValuesByKey before; // what led to content
    QByteArray content = theirs;
    for (State &each : states) {
        if (text == Text::Ours)
            break;
        const QByteArray ours = each.contents.value(file);
        if (!adopted.contains(ours)) {
            const QVector<ThemeChange> changes = differences(saved, KnownText(file, ours));
            // A step seldom does more than one thing to what the one before it made.
            const bool isFurther = goesOn(before, byKey(changes));
            const auto next = ::changed(file, isFurther ? content : theirs,
                                        isFurther ? added(before, changes) : changes, error);
            if (!next)
                return false;
            adopted.insert(ours, *next);
            before = byKey(changes);
            content = *next;
        }
        each.contents.insert(file, adopted.value(ours));
    }
    m_states = states;
    m_saved.insert(file, theirs);
    return true;
}

std::optional<QByteArray> ThemeEditor::newContent(const QString &file, QString *error) const
{
    if (m_saved.contains(file))
        return contentOf(file);
    const std::optional<ThemeFile> read = ThemeFile::read(file, error);
    return read ? std::optional<QByteArray>(read->content()) : std::nullopt;
}

bool ThemeEditor::saveAs(const NewTheme &to, const QStringList &files, QString *error) const
{
    const QString defaultName = defaultThemeName();
    if (!isNewThemeName(to.name) || to.name.compare(defaultName, Qt::CaseInsensitive) == 0)
        return fail(QStringLiteral("\"%1\" cannot be the name of a new theme").arg(to.name), error);
    const auto base = newContent(files.value(0), error);
    if (!base)
        return false;
    const QString nameKey = QStringLiteral("ThemeName");
    if (ChangedText::values(*base).value(nameKey).toString().compare(to.name, Qt::CaseInsensitive)
        == 0)
        return fail(QStringLiteral("the default theme is itself called \"%1\"").arg(to.name),
                    error);
    const auto own = files.size() > 1 ? newContent(files.at(1), error) : QByteArray();
    if (!own)
        return false;
    const QString ownPath = themeFilePath(to.folder, to.name, to.suffix);
    const auto named = ChangedText::withValue(
        fileOf(ownPath, *own), nameKey, to.displayName.isEmpty() ? to.name : to.displayName, error);
    if (!named)
        return false;

    const QString basePath = themeFilePath(to.folder, defaultName, to.suffix);
    if (QFileInfo::exists(ownPath))
        return fail(ownPath % QLatin1String(": there is such a theme already"), error);
    const bool hasBase = QFileInfo::exists(basePath);
    if (hasBase) {
        const std::optional<ThemeFile> present = ThemeFile::read(basePath, error);
        if (!present)
            return false;
        if (present->content() != *base)
            return fail(basePath
                            % QLatin1String(": another default file, which the theme would get its "
                                            "values from; choose an empty folder"),
                        error);
    }
    Maker::StagedFiles staged;
    return staged.makeFolder(to.folder, error) && (hasBase || staged.stage(basePath, *base, error))
        && staged.stage(ownPath, *named, error) && staged.commit(error);
}
