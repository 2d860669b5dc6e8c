// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/theme/changedtext.h>
#include <analysis/theme/themeeditor.h>

#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>
#include <unistd.h>

namespace
{

using Step = ThemeEditor::Step;
using Outcome = ThemeSaving::Outcome;

const QByteArray sample("; mine\r\n[Palettes]\r\nBg=fff ; white\r\nFg=000\r\n");

} // namespace

class tst_ThemeEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void undoAndRedo();
    void continuedSteps();
    void reset();
    void refused();
    void save();
    void undoOverSave();
    void changedMeanwhile();
    void touchedMeanwhile();
    void savedByOthersAlike();
    void adoptAnySteps();
    void adoptManySteps();
    void adoptOurs();
    void vanished();
    void readOnly();
    void resources();
    void linksAndPermissions();
    void saveAs();
    void saveAsRefused_data();
    void saveAsRefused();

private:
    QString path(const QString &name) const { return m_folder->filePath(name); }
    QString write(const QString &name, const QByteArray &content) const;
    static QByteArray read(const QString &path);
    bool set(ThemeEditor *editor, const QString &key, const QString &value, Step step = Step::New)
    {
        return editor->setValue(m_file, key, value, step, &m_error);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_file;
    QString m_error;
};

void tst_ThemeEditor::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
    m_file = write(QStringLiteral("a.theme"), sample);
    m_error.clear();
}

QString tst_ThemeEditor::write(const QString &name, const QByteArray &content) const
{
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s", qPrintable(name));
    return file.fileName();
}

QByteArray tst_ThemeEditor::read(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(unreadable)");
}

void tst_ThemeEditor::undoAndRedo()
{
    ThemeEditor editor;
    QVERIFY(!editor.canUndo() && !editor.isChanged());
    QVERIFY2(set(&editor, "Palettes/Bg", "123"), qPrintable(m_error));
    QVERIFY2(set(&editor, "Palettes/New", "4, 5"), qPrintable(m_error));
    const QVector<ThemeChange> both{{m_file, "Palettes/Bg", "fff", "123"},
                                    {m_file, "Palettes/New", QString(), "4, 5"}};
    QCOMPARE(editor.changes(), both);
    const QByteArray text = editor.contents().value(m_file);
    QCOMPARE(text,
             QByteArray("; mine\r\n[Palettes]\r\nBg=123 ; white\r\nFg=000\r\nNew=\"4, 5\"\r\n"));
    QCOMPARE(read(m_file), sample);

    editor.undo();
    QCOMPARE(editor.changes(), both.mid(0, 1));
    editor.undo();
    QVERIFY(!editor.canUndo() && !editor.isChanged());
    editor.redo();
    editor.redo();
    QVERIFY(!editor.canRedo());
    QCOMPARE(editor.contents().value(m_file), text);
    editor.undo();
    QVERIFY(set(&editor, "Palettes/Fg", "1"));
    QVERIFY(!editor.canRedo());
}

void tst_ThemeEditor::continuedSteps()
{
    ThemeEditor editor;
    for (const char *value : {"1", "2", "3"})
        QVERIFY(set(&editor, "Palettes/Bg", value, Step::Continued));
    QVERIFY(set(&editor, "Palettes/Fg", "4", Step::Continued));
    editor.undo();
    QCOMPARE(editor.changes(), (QVector<ThemeChange>{{m_file, "Palettes/Bg", "fff", "3"}}));
    editor.undo();
    QVERIFY(!editor.canUndo() && !editor.isChanged());
}

void tst_ThemeEditor::reset()
{
    ThemeEditor editor;
    QVERIFY(set(&editor, "Palettes/Bg", "1"));
    QVERIFY(set(&editor, "Colors/New", "2"));
    QVERIFY(set(&editor, "Palettes/Fg", "3"));
    editor.reset(m_file, "Colors/New");
    QCOMPARE(editor.contents().value(m_file),
             QByteArray("; mine\r\n[Palettes]\r\nBg=1 ; white\r\nFg=3\r\n"));
    editor.reset(m_file, "Palettes/Fg");
    QCOMPARE(editor.changes().size(), 1);
    editor.undo();
    QCOMPARE(editor.changes().size(), 2);
    editor.resetAll();
    QVERIFY(!editor.isChanged());
    editor.undo();
    QCOMPARE(editor.changes().size(), 2);
}

void tst_ThemeEditor::refused()
{
    ThemeEditor editor;
    QVERIFY(!set(&editor, "Palettes//Bg", "1"));
    QCOMPARE(m_error, m_file + ": no entry can be called \"Palettes//Bg\"");
    QVERIFY(!editor.setValue(path("none"), "a", "1", Step::New, &m_error));
    QCOMPARE(m_error, path("none") + ": No such file or directory");
    QVERIFY(!editor.canUndo());
}

void tst_ThemeEditor::save()
{
    ThemeEditor editor;
    QVERIFY(set(&editor, "Palettes/Bg", "123"));
    QVERIFY(editor.save(m_file).isSaved());
    QCOMPARE(read(m_file), QByteArray("; mine\r\n[Palettes]\r\nBg=123 ; white\r\nFg=000\r\n"));
    QVERIFY(!editor.isChanged());
    QVERIFY(editor.save(m_file).isSaved());
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden), QStringList{"a.theme"});
}

void tst_ThemeEditor::undoOverSave()
{
    ThemeEditor editor;
    QVERIFY(set(&editor, "Palettes/New", "1"));
    QVERIFY(editor.save(m_file).isSaved());
    QVERIFY(set(&editor, "Palettes/New", "2", Step::Continued));
    editor.undo();
    QVERIFY(!editor.isChanged());
    editor.undo();
    QCOMPARE(editor.changes(), (QVector<ThemeChange>{{m_file, "Palettes/New", "1", QString()}}));
    QVERIFY(editor.save(m_file).isSaved());
    QCOMPARE(read(m_file), sample);
}

void tst_ThemeEditor::changedMeanwhile()
{
    ThemeEditor editor;
    QVERIFY(set(&editor, "Palettes/Fg", "9"));
    QVERIFY(set(&editor, "Palettes/Bg", "123"));
    const QByteArray theirs("[Palettes]\nBg=777\nMore=1\n");
    write("a.theme", theirs);
    const ThemeSaving saving = editor.save(m_file);
    QVERIFY(saving.outcome == Outcome::ChangedMeanwhile);
    QCOMPARE(saving.message, m_file + ": somebody else changed it meanwhile; nothing was written");
    QCOMPARE(saving.theirs, theirs);
    QCOMPARE(saving.ours, editor.contents().value(m_file));
    QCOMPARE(read(m_file), theirs);

    QVERIFY2(editor.adopt(m_file, theirs, ThemeEditor::Text::Theirs, &m_error),
             qPrintable(m_error));
    QCOMPARE(editor.contents().value(m_file), QByteArray("[Palettes]\nBg=123\nMore=1\nFg=9\n"));
    QCOMPARE(editor.changes().constFirst(), (ThemeChange{m_file, "Palettes/Bg", "777", "123"}));
    editor.undo();
    QCOMPARE(editor.contents().value(m_file), QByteArray("[Palettes]\nBg=777\nMore=1\nFg=9\n"));
    editor.redo();
    QVERIFY(editor.save(m_file).isSaved());
    QCOMPARE(read(m_file), QByteArray("[Palettes]\nBg=123\nMore=1\nFg=9\n"));
}

void tst_ThemeEditor::touchedMeanwhile()
{
    ThemeEditor editor;
    QVERIFY(set(&editor, "Palettes/Bg", "123"));
    QFile::remove(m_file);
    write("a.theme", sample); // another file at another time that says the same
    QVERIFY(editor.save(m_file).isSaved());
}

void tst_ThemeEditor::savedByOthersAlike()
{
    ThemeEditor editor;
    QVERIFY(set(&editor, "Palettes/Bg", "123"));
    write("a.theme", editor.contents().value(m_file));
    QVERIFY(editor.save(m_file).isSaved());
    QVERIFY(!editor.isChanged());
}

// Steps that take back, remove and bring back what others changed.
void tst_ThemeEditor::adoptAnySteps()
{
    ThemeEditor editor;
    QVERIFY(set(&editor, "Palettes/Bg", "1"));
    QVERIFY(set(&editor, "Palettes/Fg", QString()));
    editor.reset(m_file, "Palettes/Bg");
    QVERIFY(set(&editor, "Palettes/Fg", "000"));
    QVERIFY(set(&editor, "Palettes/New", "2"));
    QVERIFY(set(&editor, "Palettes/Bg", "1"));
    const QByteArray theirs("[Palettes]\nBg=777 ; theirs\nFg=888\nMore=1\n");
    QVERIFY2(editor.adopt(m_file, theirs, ThemeEditor::Text::Theirs, &m_error),
             qPrintable(m_error));
    const QByteArrayList expected{
        "[Palettes]\nBg=1 ; theirs\nFg=888\nMore=1\nNew=2\n",
        "[Palettes]\nBg=777 ; theirs\nFg=888\nMore=1\nNew=2\n",
        "[Palettes]\nBg=777 ; theirs\nFg=888\nMore=1\n",
        "[Palettes]\nBg=777 ; theirs\nMore=1\n",
        "[Palettes]\nBg=1 ; theirs\nMore=1\n",
        "[Palettes]\nBg=1 ; theirs\nFg=888\nMore=1\n",
    };
    for (const QByteArray &content : expected) {
        QCOMPARE(editor.contents().value(m_file, theirs), content);
        editor.undo();
    }
    QVERIFY(!editor.isChanged());
    QVERIFY(!editor.canUndo());
}

// The time must not grow with the square of the steps.
void tst_ThemeEditor::adoptManySteps()
{
    constexpr int steps = 300;
    QByteArray text("[Palettes]\n");
    for (int i = 0; i < 400; ++i)
        text += "P" + QByteArray::number(i) + "=#000000\n";
    write("a.theme", text);
    ThemeEditor editor;
    for (int i = 0; i < steps; ++i)
        QVERIFY(set(&editor, "Palettes/P" + QString::number(i), "1"));
    QByteArray theirs = text;
    theirs.replace("P7=#000000", "P7=theirs ; by hand").append("More=1\n");
    QVERIFY2(editor.adopt(m_file, theirs, ThemeEditor::Text::Theirs, &m_error),
             qPrintable(m_error));
    for (int i = steps; i >= 0; --i) {
        QByteArray expected = theirs;
        for (int j = 0; j < i; ++j) {
            const QByteArray entry = "P" + QByteArray::number(j) + '=';
            const QByteArray value = j == 7 ? "theirs" : "#000000";
            expected.replace(QByteArray(entry + value), QByteArray(entry + '1'));
        }
        QCOMPARE(editor.contents().value(m_file, theirs), expected);
        editor.undo();
    }
    QVERIFY(!editor.canUndo());
}

void tst_ThemeEditor::adoptOurs()
{
    ThemeEditor editor;
    QVERIFY(set(&editor, "Palettes/Bg", "123"));
    const QByteArray theirs("[Palettes]\nBg=777\nMore=1\n");
    write("a.theme", theirs);
    QVERIFY(editor.adopt(m_file, theirs, ThemeEditor::Text::Ours, &m_error));
    QVERIFY(editor.changes().contains(ThemeChange{m_file, "Palettes/More", "1", QString()}));
    QVERIFY(editor.save(m_file).isSaved());
    QCOMPARE(read(m_file), QByteArray("; mine\r\n[Palettes]\r\nBg=123 ; white\r\nFg=000\r\n"));
}

void tst_ThemeEditor::vanished()
{
    ThemeEditor editor;
    QVERIFY(set(&editor, "Palettes/Bg", "123"));
    QVERIFY(QFile::remove(m_file));
    const ThemeSaving saving = editor.save(m_file);
    QVERIFY(saving.outcome == Outcome::Vanished);
    QCOMPARE(saving.message, m_file + ": no longer there; save it as a new theme");
    QCOMPARE(saving.ours, editor.contents().value(m_file));
    QVERIFY(!QFile::exists(m_file));
    QVERIFY2(editor.saveAs({path("new"), "b", QString(), "theme"}, {m_file}, &m_error),
             qPrintable(m_error));
    QCOMPARE(read(path("new/default.theme")), saving.ours);
}

// The superuser may write all files, so it takes another user's part.
void tst_ThemeEditor::readOnly()
{
    ThemeEditor editor;
    QVERIFY(set(&editor, "Palettes/Bg", "123"));
    QCOMPARE(::chmod(QFile::encodeName(m_folder->path()).constData(), 0777), 0);
    QCOMPARE(::chmod(QFile::encodeName(m_file).constData(), 0444), 0);
    const bool isSuperuser = ::geteuid() == 0;
    const uid_t nobody = 65534;
    if (isSuperuser)
        QCOMPARE(::setresuid(nobody, nobody, 0), 0);
    const ThemeSaving saving = editor.save(m_file);
    if (isSuperuser)
        QCOMPARE(::setresuid(0, 0, 0), 0);
    QVERIFY(saving.outcome == Outcome::Refused);
    QCOMPARE(saving.message, m_file + ": may only be read; save it as a new theme");
    QCOMPARE(saving.ours, editor.contents().value(m_file));
    QCOMPARE(read(m_file), sample);
}

void tst_ThemeEditor::resources()
{
    const QString resource = QStringLiteral(":/sample/a.theme");
    ThemeEditor editor;
    editor.open(*ThemeFile::fromContent(resource, sample, &m_error));
    QVERIFY(editor.setValue(resource, "Palettes/Bg", "123", Step::New, &m_error));
    const ThemeSaving saving = editor.save(resource);
    QVERIFY(saving.outcome == Outcome::InProgram);
    QCOMPARE(saving.message,
             resource
                 + ": inside the program, where nothing can be written; save it as a new theme");
    QVERIFY2(editor.saveAs({path("copy"), "b", "B!", "theme"}, {m_file, resource}, &m_error),
             qPrintable(m_error));
    QCOMPARE(read(path("copy/default.theme")), sample);
    const auto values = ChangedText::values(read(path("copy/b.theme")));
    QCOMPARE(values.value("Palettes/Bg").toString(), QStringLiteral("123"));
    QCOMPARE(values.value("ThemeName").toString(), QStringLiteral("B!"));
    QVERIFY(editor.isChanged());
}

void tst_ThemeEditor::linksAndPermissions()
{
    QCOMPARE(::chmod(QFile::encodeName(m_file).constData(), 0640), 0);
    const QString symbolic = path("symbolic.theme");
    QVERIFY(QFile::link(m_file, symbolic));
    ThemeEditor editor;
    QVERIFY(editor.setValue(symbolic, "Palettes/Bg", "1", Step::New, &m_error));
    QVERIFY(editor.save(symbolic).isSaved());
    QVERIFY(QFileInfo(symbolic).isSymLink());
    struct stat status = {};
    QCOMPARE(::stat(QFile::encodeName(m_file).constData(), &status), 0);
    QCOMPARE(int(status.st_mode & 07777), 0640);
    QCOMPARE(read(m_file), editor.changes().isEmpty() ? read(symbolic) : QByteArray());

    const QString second = path("second.theme");
    QCOMPARE(::link(QFile::encodeName(m_file).constData(), QFile::encodeName(second).constData()),
             0);
    QVERIFY(editor.setValue(symbolic, "Palettes/Bg", "2", Step::New, &m_error));
    QVERIFY(editor.save(symbolic).isSaved());
    QVERIFY(read(second).contains("Bg=2 ; white"));
}

void tst_ThemeEditor::saveAs()
{
    const QString base = write("default.theme", "[Palettes]\nBg=1\n");
    ThemeEditor editor;
    QVERIFY(set(&editor, "Colors/Text", "Bg"));
    QVERIFY2(editor.saveAs({m_folder->path(), "new", QString(), "theme"}, {base, m_file}, &m_error),
             qPrintable(m_error));
    QCOMPARE(read(path("new.theme")),
             sample + "\r\n[Colors]\r\nText=Bg\r\n\r\n[General]\r\nThemeName=new\r\n");
    QCOMPARE(read(m_file), sample);
    QVERIFY(editor.isChanged());

    // A change of the default file would change the other themes there.
    QVERIFY(editor.setValue(base, "Palettes/Bg", "2", Step::New, &m_error));
    QVERIFY(
        !editor.saveAs({m_folder->path(), "more", QString(), "theme"}, {base, m_file}, &m_error));
    QCOMPARE(m_error,
             base
                 + ": another default file, which the theme would get its values from; choose an "
                   "empty folder");
    QVERIFY(!QFile::exists(path("more.theme")));
}

void tst_ThemeEditor::saveAsRefused_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("message");

    const QString none = QStringLiteral("\"%1\" cannot be the name of a new theme");
    for (const char *name : {"", "default", "DEFAULT", "a/b", ".a", "a%1", " a"})
        QTest::newRow(*name ? name : "empty") << QString(name) << none.arg(name);
    QTest::newRow("of-the-default") << "base"
                                    << "the default theme is itself called \"base\"";
    QTest::newRow("present") << "a"
                             << "FOLDER/a.theme: there is such a theme already";
}

void tst_ThemeEditor::saveAsRefused()
{
    QFETCH(QString, name);
    QFETCH(QString, message);
    const QString base = write("default.theme", "ThemeName=Base\n");
    const ThemeEditor editor;
    QVERIFY(!editor.saveAs({m_folder->path(), name, QString(), "theme"}, {base}, &m_error));
    QCOMPARE(m_error.replace(m_folder->path(), "FOLDER"), message);
}

QTEST_GUILESS_MAIN(tst_ThemeEditor)

#include "tst_themeeditor.moc"
