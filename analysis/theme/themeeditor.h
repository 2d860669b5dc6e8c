// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef ANALYSIS_THEME_THEMEEDITOR_H
#define ANALYSIS_THEME_THEMEEDITOR_H

#include <analysis/theme/themefile.h>

#include <QHash>
#include <QStringList>
#include <QVector>

/*! \brief A value of a theme file that is not saved yet. */
struct ThemeChange {
    QString file;
    QString key; //!< the whole key, such as "Palettes/Bg_1"
    QString before; //!< null if the file has no such key
    QString value; //!< null if the key is gone

    bool operator==(const ThemeChange &other) const
    {
        return file == other.file && key == other.key && before == other.before
            && value == other.value && before.isNull() == other.before.isNull()
            && value.isNull() == other.value.isNull();
    }
};

/*! \brief What became of a file that was to be saved. */
struct ThemeSaving {
    enum class Outcome {
        Saved, //!< or there was nothing to save
        ChangedMeanwhile, //!< the file has another text now; nothing was written
        Vanished, //!< the file is no longer there; nothing was written
        InProgram, //!< the file is a resource, which cannot be written: save a copy
        Refused, //!< by the system: read-only, no room
    };

    Outcome outcome = Outcome::Saved;
    QString message; //!< one sentence, unless it is saved
    QByteArray ours; //!< the text that was to be written
    QByteArray theirs; //!< the text on disk, if it changed meanwhile

    bool isSaved() const { return outcome == Outcome::Saved; }
};

/*! \brief Where a whole new theme goes. */
struct NewTheme {
    QString folder; //!< is made if it is not there
    QString name; //!< by which applications ask for it, and of its file
    QString displayName; //!< for people; empty for the name
    QString suffix;
};

/*!
 * \brief Changes to theme files: in memory, to be tried, undone, redone and saved.
 *
 * ```
 * ThemeEditor editor;
 * if (editor.setValue(file, "Palettes/Brand_6", "#2449cc", ThemeEditor::Step::New, &error))
 *     options.contents = editor.contents(); // of ThemeProjectOptions: the theme as it would be
 * const ThemeSaving saving = editor.save(file);
 * ```
 *
 * A file is read when it is first changed; ChangedText says what changes in it. Undo and redo go on
 * working over a save: what then differs from the file is a change again. Some hundred steps are
 * kept. A value, no widgets, no signals; it is copied cheaply.
 */
class ThemeEditor
{
public:
    /*! \brief How a change is undone. */
    enum class Step {
        New, //!< by itself
        Continued, //!< with the one before it, if that was of the same key: while a slider moves
    };

    ThemeEditor();

    /*! \brief Takes \a file as it was read, unless the editor has it already. */
    void open(const ThemeFile &file);

    /*!
     * \brief Gives the whole \a key in \a file the \a value; a null one takes the key out.
     *
     * \return false if that cannot be, with one sentence in \a error; nothing then changes.
     */
    bool setValue(const QString &file, const QString &key, const QString &value, Step step,
                  QString *error);

    /*! \brief Returns all that is not saved, by file and in the order of its text. */
    QVector<ThemeChange> changes() const;
    bool isChanged() const { return !contents().isEmpty(); }

    /*! \brief Takes back the changes of one key of \a file, which is a step of its own. */
    void reset(const QString &file, const QString &key);
    /*! \brief Takes back all that is not saved in \a files, which is a step of its own. */
    void resetFiles(const QStringList &files);
    /*! \brief Takes back all that is not saved, which is a step of its own. */
    void resetAll() { resetFiles(m_saved.keys()); }

    bool canUndo() const { return m_current > 0; }
    bool canRedo() const { return m_current + 1 < m_states.size(); }
    void undo();
    void redo();

    /*! \brief Returns the texts of changed files by path, as ThemeProjectOptions::contents has them. */
    QHash<QString, QByteArray> contents() const;

    /*!
     * \brief Writes \a file, whole or not at all, if nobody else changed it since it was read.
     *
     * Owner, permissions, symbolic and other links stay as they are. What counts is what the file
     * says, not when it was written.
     */
    ThemeSaving save(const QString &file);

    /*! \brief Whose text is the one to go on with when a file changed meanwhile. */
    enum class Text {
        Theirs, //!< the one on disk, with the changes made to it
        Ours, //!< the one that was to be written, which then takes back what others changed
    };

    /*!
     * \brief Goes on from what \a file has become meanwhile; save() can then write it.
     *
     * With Text::Theirs every step that can be undone is one of the new text from then on.
     *
     * \param theirs  what whoever decides has seen, see ThemeSaving::theirs. If the file has changed once
     *                more, save() says so again.
     * \return false if that is no theme file or cannot be changed, with one sentence in \a error; nothing
     *         then changes.
     */
    bool adopt(const QString &file, const QByteArray &theirs, Text text, QString *error);

    /*!
     * \brief Writes a whole new theme: a default file and the theme's own, with what is not saved.
     *
     * The changes stay unsaved in the files that they were made to. A folder that has the very same
     * default file already gets the theme's own file alone.
     *
     * \param files  the paths of the running theme's files: of the default file and, if it has one,
     *               its own. They may be resources.
     * \return false if nothing was written, with one sentence in \a error: themes of that name or with
     *         another default file are there, or the name is none.
     */
    bool saveAs(const NewTheme &to, const QStringList &files, QString *error) const;

private:
    struct State {
        QHash<QString, QByteArray> contents; // of all files that are open
        QString changed; // the key whose change led here, with its file
    };

    QVector<ThemeChange> changesOf(const QString &file, const QByteArray &content) const;
    QByteArray contentOf(const QString &file) const { return state().contents.value(file); }
    std::optional<QByteArray> newContent(const QString &file, QString *error) const;
    const State &state() const { return m_states.at(m_current); }
    void push(const QString &file, const QByteArray &content, const QString &changed);
    void push(const State &next);

    QHash<QString, QByteArray> m_saved; // as on disk when they were read or written
    QVector<State> m_states;
    int m_current = 0;
};

#endif
