// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/messagelog.h>
#include <analysis/style/templatetext.h>
#include <analysis/theme/themefolder.h>
#include <analysis/theme/themestack.h>
#include <analysis/themeproject.h>
#include <hvtheme/theming.h>
#include <hvtheme/workabletheming.h>

#include <QTemporaryDir>
#include <QtTest>

class tst_ThemeStack : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fates();
    void fromContent();
    void projectFromContent();
    void ownFileNotRead();
    void values();
    void templateText();
    void templatesRefused();

private:
    void write(const QString &name, const QByteArray &content) const;
    ThemeLayer layer(const QString &name) const;

    QTemporaryDir m_folder;
};

void tst_ThemeStack::write(const QString &name, const QByteArray &content) const
{
    QFile file(m_folder.filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s", qPrintable(file.fileName()));
}

ThemeLayer tst_ThemeStack::layer(const QString &name) const
{
    QString error;
    const std::optional<ThemeFile> file =
        ThemeFile::read(m_folder.filePath(name + ".theme"), &error);
    if (!file)
        qFatal("%s", qPrintable(error));
    return {*file, ThemeValues::read(file->content()), name};
}

void tst_ThemeStack::fates()
{
    write("default.theme",
          "ThemeName=Default\n[Palettes]\nA=B\nB=#010203\n[Colors]\nText=B\nWord=red\n"
          "[Gradients]\nG=1\nG\\size=1\nG\\1\\pos=0\n[Flags]\nF=0\n[Integers]\nN=1\n");
    write("dark.theme", "[Colors]\nText=#ffffff\nOwn=A\n[Flags]\nF=1\nN=1\n");
    const ThemeLayer base = layer("default");
    const ThemeLayer own = layer("dark");
    const ThemeStack stack("dark", &base, &own);
    QVERIFY(stack.isOwnRead());

    QStringList fates;
    for (const Definition &definition : stack.definitions()) {
        static const char *const names[] = {"stored", "replaced", "exists", "invalid"};
        fates << definition.layer->name + ' ' + sectionName(definition.kind()) + '/'
                + definition.key() + ' ' + names[int(definition.fate)];
    }
    const QStringList expected{"default Palettes/A stored",
                               "default Palettes/B stored",
                               "default Colors/Text stored",
                               "default Colors/Word stored",
                               "default Gradients/G invalid",
                               "default Gradients/G/1/pos invalid",
                               "default Gradients/G/size invalid",
                               "default Flags/F replaced",
                               "default Integers/N stored",
                               "dark Colors/Own stored",
                               "dark Colors/Text exists",
                               "dark Flags/F stored",
                               "dark Flags/N exists"};
    QCOMPARE(fates, expected);

    QCOMPARE(stack.find(Kind::Palette, "A")->palette, -1); // B comes after it
    QCOMPARE(stack.find(Kind::Color, "Word")->palette, -1);
    const int entry = stack.find(Kind::Color, "Text")->palette;
    QCOMPARE(stack.definitions().at(entry).key(), QStringLiteral("B"));
    QCOMPARE(stack.find(Kind::Color, "Text")->entry()->keyPosition.line, 6);
    QVERIFY(stack.theme().flag("F"));
    QCOMPARE(stack.theme().color("Text"), QColor(1, 2, 3));
}

// Nothing of it is on disk.
void tst_ThemeStack::fromContent()
{
    QString error;
    const QByteArray text = "ThemeName=Memory\n[Palettes]\nA=#010203\n[Colors]\nText=A\n";
    const auto file = ThemeFile::fromContent("nowhere/default.theme", text, &error);
    QVERIFY2(file, qPrintable(error));
    const ThemeLayer base{*file, ThemeValues::read(file->content()), "default"};
    const ThemeStack stack("default", &base, nullptr);
    QCOMPARE(stack.displayName(), QString("Memory"));
    QCOMPARE(stack.theme().color("Text"), QColor(1, 2, 3));
    QCOMPARE(stack.find(Kind::Color, "Text")->keyPlace().text(),
             QString("nowhere/default.theme:5:1"));
    QVERIFY(file->isUnchanged());

    QVERIFY(!ThemeFile::fromContent("nowhere/x.theme", QByteArray("a\0b", 3), &error));
    QCOMPARE(error, QString("nowhere/x.theme: a binary file, not a theme file"));
}

// Of two texts of one size each is read as it is.
void tst_ThemeStack::projectFromContent()
{
    QTemporaryDir folder;
    for (const auto &file :
         {qMakePair(QString("default.theme"), QByteArray("[Colors]\nText=#010101")),
          qMakePair(QString("a.qss"), QByteArray("X { color: global.theme.color.Text }"))}) {
        QFile written(folder.filePath(file.first));
        QVERIFY(written.open(QIODevice::WriteOnly));
        written.write(file.second);
    }
    ThemeProjectOptions options;
    options.folder = folder.path();
    options.templates = QStringList(folder.filePath("a.qss"));
    QString error;
    for (const char *color : {"#020202", "#030303"}) {
        options.contents.insert(folder.filePath("default.theme"),
                                QByteArray("[Colors]\nText=") + color + '\n');
        const auto project = ThemeProject::read(options, &error);
        QVERIFY2(project, qPrintable(error));
        QCOMPARE(project->finished(project->base()).text, QString("X { color: %1 }").arg(color));
    }
}

void tst_ThemeStack::ownFileNotRead()
{
    write("default.theme", "ThemeName=Night\n");
    write("night.theme", "[Colors]\nText=#ffffff\n");
    const ThemeLayer base = layer("default");
    const ThemeLayer own = layer("night");
    const ThemeStack stack("night", &base, &own);
    QVERIFY(!stack.isOwnRead());
    QVERIFY(!stack.find(Kind::Color, "Text"));
}

void tst_ThemeStack::values()
{
    write("default.theme",
          "[ImageFiles]\na=../img/a.png\nb=/b.png\nc=:/c.png\nd=\ne=x/./y\n[Integers]\nn=7\n");
    const ThemeLayer base = layer("default");
    const ThemeStack stack("default", &base, nullptr);

    // In the application's own folder, what the library says is the measure.
    HV::WorkableTheme theme;
    const MessageLog silence;
    HV::changeTheme(&theme, QString(), m_folder.path(), "theme");
    QCOMPARE(stack.values(QCoreApplication::applicationDirPath()), theme.values());

    const QVariantMap elsewhere = stack.values("/opt/app/bin");
    QCOMPARE(elsewhere.value("a").toString(), QStringLiteral("/opt/app/img/a.png"));
    QCOMPARE(elsewhere.value("b").toString(), QStringLiteral("/opt/app/bin/b.png"));
    QCOMPARE(elsewhere.value("c").toString(), QStringLiteral(":/c.png"));
    QCOMPARE(elsewhere.value("d").toString(), QStringLiteral("/opt/app/bin"));
    QCOMPARE(elsewhere.value("n").toLongLong(), 7);
}

void tst_ThemeStack::templateText()
{
    QVERIFY(QDir(m_folder.path()).mkpath("qss/sub.qss"));
    write("qss/b.qss", "\xEF\xBB\xBFQLabel {\r\n color: global.theme.color.A; }");
    write("qss/A.CSS", "/* \xE4\xB8\xAD */ a global.theme.integer.N|px\n");
    write("qss/c.css", QByteArray("x\0y", 3));
    write("qss/d.txt", "no");
    const QString folder = m_folder.filePath("qss");
    const QString single = m_folder.filePath("qss/b.qss");
    QString error;
    const auto templates = TemplateText::read({folder, single}, "global", &error);
    QVERIFY2(templates, qPrintable(error));

    QString expected;
    HV::readStyleSheet(folder, expected);
    HV::readStyleSheet(QStringList(single), expected);
    QCOMPARE(templates->text(), expected);

    QCOMPARE(templates->tokens().size(), 3);
    const TemplateToken integer = templates->tokens().at(0);
    QCOMPARE(integer.key, QStringLiteral("N"));
    QCOMPARE(integer.kind, Kind::Integer);
    QCOMPARE(templates->fileAt(integer.offset).input.path(), folder + "/A.CSS");
    QCOMPARE(templates->placeAt(integer.offset).position.column, 11);
    const TemplateToken color = templates->tokens().at(1);
    QCOMPARE(templates->fileAt(color.offset).input.path(), folder + "/b.qss");
    QCOMPARE(templates->placeAt(color.offset).position.line, 2);
    QCOMPARE(templates->placeAt(color.offset).position.column, 9);
    QCOMPARE(templates->fileAt(templates->tokens().at(2).offset).input.path(), single);
    QCOMPARE(templates->placeAt(templates->files().last().offset).position.line, 1);
}

void tst_ThemeStack::templatesRefused()
{
    QString error;
    QVERIFY(QDir(m_folder.path()).mkpath("empty"));
    const QString empty = m_folder.filePath("empty");
    QVERIFY(!TemplateText::read({empty}, "global", &error));
    QCOMPARE(error, empty + ": no templates (*.qss, *.css) in this folder");
    const QString missing = m_folder.filePath("missing.qss");
    QVERIFY(!TemplateText::read({missing}, "global", &error));
    QCOMPARE(error, missing + ": No such file or directory");
}

QTEST_GUILESS_MAIN(tst_ThemeStack)

#include "tst_themestack.moc"
