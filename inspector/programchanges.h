// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef INSPECTOR_PROGRAMCHANGES_H
#define INSPECTOR_PROGRAMCHANGES_H

#include <analysis/theme/themeeditor.h>
#include <inspector/widgetproperty.h>

#include <QObject>

#include <functional>
#include <optional>

/*!
 * \brief What the user changes: values of theme files and dynamic properties of widgets, in one history.
 *
 * Every change is in force in the whole program at once. Theme files are written when they are
 * saved; properties of widgets last as long as the widgets.
 */
class ProgramChanges : public QObject
{
    Q_OBJECT

public:
    explicit ProgramChanges(QObject *parent = nullptr);

    /*! \brief Returns the changes of the program, which outlive every inspector. */
    static ProgramChanges *ofProgram();

    /*!
     * \brief Gives the whole \a key in \a file the \a value.
     *
     * \param step  Continued is undone together with the change of the same key before it.
     * \return false if it cannot be, or the program cannot show it; problem() says why, and nothing changes.
     */
    bool setValue(const QString &file, const QString &key, const QString &value,
                  ThemeEditor::Step step = ThemeEditor::Step::New);

    /*! \brief What a program shows for a changed text of a theme file. */
    using Translation = std::function<QByteArray(const QByteArray &text)>;

    /*! \brief Lets the program show \a translation of changed texts from now on; null for the texts themselves. */
    void setTranslation(Translation translation) { m_translation = std::move(translation); }

    /*! \brief Shows what is changed, after the program has given its look other texts of its own. */
    void showAgain();

    /*! \brief Gives \a widget the dynamic property \a name; an invalid \a value takes it away. */
    void setProperty(QWidget *widget, const QString &name, const QVariant &value);

    /*! \brief Returns the values of theme files that are not saved. */
    QVector<ThemeChange> values() const { return m_editor.changes(); }
    /*! \brief Returns the properties that are not what they were at first. */
    const QVector<PropertyChange> &properties() const { return m_properties; }
    /*! \brief Returns the texts of theme files that are not saved, by path. */
    QHash<QString, QByteArray> contents() const { return m_editor.contents(); }
    /*! \brief Tells whether a theme file is not saved. */
    bool isUnsaved() const { return m_editor.isChanged(); }

    void resetValue(const QString &file, const QString &key);
    void resetProperty(QWidget *widget, const QString &name);
    /*! \brief Takes back all values that are not saved. */
    void discard() { discardFiles(unsavedFiles()); }
    /*! \brief Takes back the values of \a files that are not saved. */
    void discardFiles(const QStringList &files);

    bool canUndo() const { return !m_undo.isEmpty(); }
    bool canRedo() const { return !m_redo.isEmpty(); }
    void undo();
    void redo();

    /*! \brief Returns the paths of files that are not saved, sorted. */
    QStringList unsavedFiles() const;
    ThemeSaving save(const QString &file);
    /*! \brief Goes on from what others wrote into \a file, see ThemeEditor::adopt(). */
    bool adopt(const QString &file, const QByteArray &theirs, ThemeEditor::Text text);
    /*! \brief Writes a new theme with all that is not saved, see ThemeEditor::saveAs(). */
    bool saveAs(const NewTheme &to, const QStringList &files);

    /*! \brief Returns why the last thing asked for could not be done, in a sentence. */
    QString problem() const { return m_problem; }

Q_SIGNALS:
    /*! \brief A value, a property or what is saved is another. */
    void changed();

private:
    struct Step {
        bool isValue = true;
        PropertyChange property;
    };

    bool isShown(const ThemeEditor &editor);
    std::optional<QByteArray> readAnew(ThemeEditor *editor, const QString &file) const;
    void log(const Step &step);
    void apply(const PropertyChange &change);
    void move(QVector<Step> *from, QVector<Step> *to, bool isUndo);

    QByteArray translated(const QByteArray &text) const;

    ThemeEditor m_editor;
    Translation m_translation;
    QHash<QString, QByteArray> m_known; // files as they are on disk, when they had no changes here
    QSet<QString> m_shown; // files whose text in the program is from here
    QHash<QString, QByteArray> m_covered; // texts that the program itself shows, or would
    QVector<PropertyChange> m_properties;
    QVector<Step> m_undo;
    QVector<Step> m_redo;
    QString m_continued; // what a continued step may be joined with
    QString m_problem;
};

#endif
