// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <inspector/programchanges.h>

#include <hvthemeapp/applicationtheme.h>
#include <inspector/inspection.h>

#include <QApplication>

#include <algorithm>

ProgramChanges::ProgramChanges(QObject *parent)
    : QObject(parent)
{
}

ProgramChanges *ProgramChanges::ofProgram()
{
    static QPointer<ProgramChanges> changes;
    if (!changes)
        changes = new ProgramChanges(qApp);
    return changes;
}

bool ProgramChanges::isShown(const ThemeEditor &editor)
{
    HV::ApplicationTheme *look = HV::ApplicationTheme::inForce();
    if (!look) {
        m_problem = tr("The program has no look of a theme.");
        return false;
    }
    // The program may show texts of its own; they give way where files are changed here.
    const QHash<QString, QByteArray> before = look->unsavedTexts();
    QHash<QString, QByteArray> texts = m_covered;
    for (auto it = before.cbegin(); it != before.cend(); ++it) {
        if (!m_shown.contains(it.key()))
            texts.insert(it.key(), *it);
    }
    const QHash<QString, QByteArray> covered = texts;
    const QHash<QString, QByteArray> contents = editor.contents();
    for (auto it = contents.cbegin(); it != contents.cend(); ++it)
        texts.insert(it.key(), translated(*it));
    if (look->setUnsavedTexts(texts)) {
        m_covered = covered;
        const QStringList files = contents.keys();
        m_shown = QSet<QString>(files.cbegin(), files.cend());
        return true;
    }
    m_problem = look->problem();
    look->setUnsavedTexts(before);
    return false;
}

QByteArray ProgramChanges::translated(const QByteArray &text) const
{
    return m_translation ? m_translation(text) : text;
}

void ProgramChanges::showAgain()
{
    m_covered.clear();
    m_shown.clear();
    if (m_editor.isChanged())
        isShown(m_editor);
}

void ProgramChanges::log(const Step &step)
{
    m_undo.append(step);
    m_redo.clear();
}

// What others wrote into a file that has no changes here is what is changed. All steps are made anew
// for that, so it is only done if need be. Returns what the file says, if that is new.
std::optional<QByteArray> ProgramChanges::readAnew(ThemeEditor *editor, const QString &file) const
{
    QString error;
    if (editor->contents().contains(file))
        return std::nullopt;
    const auto onDisk = ThemeFile::read(file, &error);
    if (!onDisk || onDisk->content() == m_known.value(file)
        || !editor->adopt(file, onDisk->content(), ThemeEditor::Text::Theirs, &error))
        return std::nullopt;
    return onDisk->content();
}

bool ProgramChanges::setValue(const QString &file, const QString &key, const QString &value,
                              ThemeEditor::Step step)
{
    m_problem.clear();
    ThemeEditor next = m_editor;
    const std::optional<QByteArray> known = readAnew(&next, file);
    const QString changing = file % QLatin1Char('\n') % key;
    const bool isContinued = step == ThemeEditor::Step::Continued && changing == m_continued;
    if (!next.setValue(file, key, value, isContinued ? step : ThemeEditor::Step::New, &m_problem))
        return false;
    const bool isSame = next.contents() == m_editor.contents();
    if (!isSame && !isShown(next))
        return false;
    m_editor = next;
    if (known)
        m_known.insert(file, *known);
    if (isSame)
        return true;
    if (!isContinued)
        log({});
    m_continued = changing;
    Q_EMIT changed();
    return true;
}

void ProgramChanges::setProperty(QWidget *widget, const QString &name, const QVariant &value)
{
    m_problem.clear();
    const QVariant before = widget->property(name.toUtf8().constData());
    if (before == value && before.isValid() == value.isValid())
        return;
    const PropertyChange change{widget, nameOf(widget), name, before, value};
    m_continued.clear();
    apply(change);
    log({false, change});
    Q_EMIT changed();
}

// The list has each property once, with what it was at first.
void ProgramChanges::apply(const PropertyChange &change)
{
    if (!change.widget)
        return;
    setWidgetProperty(change.widget, change.name, change.value);
    const auto known =
        std::find_if(m_properties.begin(), m_properties.end(), [&](const PropertyChange &other) {
            return other.widget == change.widget && other.name == change.name;
        });
    if (known == m_properties.end()) {
        m_properties.append(change);
        return;
    }
    known->value = change.value;
    if (known->value == known->before && known->value.isValid() == known->before.isValid())
        m_properties.erase(known);
}

void ProgramChanges::resetValue(const QString &file, const QString &key)
{
    m_problem.clear();
    m_continued.clear();
    const QHash<QString, QByteArray> before = m_editor.contents();
    m_editor.reset(file, key);
    if (m_editor.contents() == before)
        return;
    log({});
    isShown(m_editor);
    Q_EMIT changed();
}

void ProgramChanges::resetProperty(QWidget *widget, const QString &name)
{
    for (const PropertyChange &change : qAsConst(m_properties)) {
        if (change.widget == widget && change.name == name) {
            setProperty(widget, name, QVariant(change.before));
            return;
        }
    }
}

void ProgramChanges::discardFiles(const QStringList &files)
{
    m_problem.clear();
    m_continued.clear();
    const QHash<QString, QByteArray> before = m_editor.contents();
    m_editor.resetFiles(files);
    if (m_editor.contents() == before)
        return;
    log({});
    isShown(m_editor);
    Q_EMIT changed();
}

void ProgramChanges::move(QVector<Step> *from, QVector<Step> *to, bool isUndo)
{
    m_problem.clear();
    m_continued.clear();
    const Step step = from->takeLast();
    to->append(step);
    if (step.isValue) {
        if (isUndo)
            m_editor.undo();
        else
            m_editor.redo();
        isShown(m_editor);
    } else {
        PropertyChange change = step.property;
        if (isUndo)
            std::swap(change.before, change.value);
        apply(change);
    }
    Q_EMIT changed();
}

void ProgramChanges::undo()
{
    if (canUndo())
        move(&m_undo, &m_redo, true);
}

void ProgramChanges::redo()
{
    if (canRedo())
        move(&m_redo, &m_undo, false);
}

QStringList ProgramChanges::unsavedFiles() const
{
    QStringList files = m_editor.contents().keys();
    files.sort();
    return files;
}

ThemeSaving ProgramChanges::save(const QString &file)
{
    m_continued.clear();
    const QByteArray content = m_editor.contents().value(file);
    const bool isTranslated = m_translation && !content.isNull() && m_covered.contains(file);
    ThemeSaving saving = m_editor.save(file);
    m_problem = saving.message;
    if (saving.isSaved()) {
        m_known.insert(file, content);
        if (isTranslated)
            m_covered.insert(file, translated(content));
        isShown(m_editor);
        Q_EMIT changed();
    }
    return saving;
}

bool ProgramChanges::adopt(const QString &file, const QByteArray &theirs, ThemeEditor::Text text)
{
    m_problem.clear();
    m_continued.clear();
    if (!m_editor.adopt(file, theirs, text, &m_problem))
        return false;
    m_known.remove(file);
    isShown(m_editor);
    Q_EMIT changed();
    return true;
}

bool ProgramChanges::saveAs(const NewTheme &to, const QStringList &files)
{
    m_problem.clear();
    return m_editor.saveAs(to, files, &m_problem);
}
