// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "commandrun.h"

#include <colormath/contrast.h>

#include <QColor>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

// Programs that know nothing of themes, run in one: what each tells of itself.
class tst_Plugin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void unthemed();
    void themed();
    void styleSheet_data();
    void styleSheet();
    void styleSheetOfAFile();
    void programThatInsists();
    void palette_data();
    void palette();
    void wholePalette_data();
    void wholePalette();
    void style_data();
    void style();
    void nothingToTheme_data();
    void nothingToTheme();
    void lifting_data();
    void lifting();
    void documentsStayAsTheyAre();
    void leftAlone_data();
    void leftAlone();
    void firstOfSeveral();
    void folderOfThemes_data();
    void folderOfThemes();
    void templatesOfTheUser();
    void noSuchTheme();
    void desktop_data();
    void desktop();
    void desktopOfLightProgram();
    void themeOfItsOwn();

private:
    QJsonObject m_plain; // the program that does nothing, in the dark theme
};

namespace
{

struct Facts {
    QJsonObject object;
    int code = -1;
    QByteArray errors;
};

Facts run(const QStringList &arguments, const QStringList &environment = {},
          const QString &command = commandPath())
{
    QProcess process;
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    variables.remove("QT_PLUGIN_PATH");
    variables.remove("QT_QPA_GENERIC_PLUGINS");
    variables.insert("QT_QPA_PLATFORM", "offscreen");
    variables.insert("QT_LOGGING_RULES", "qt.qpa.*=false");
    for (const QString &variable : environment)
        variables.insert(variable.section('=', 0, 0), variable.section('=', 1));
    process.setProcessEnvironment(variables);
    process.start(command, arguments);
    if (!process.waitForFinished(30000) || process.exitStatus() != QProcess::NormalExit)
        return {};
    QByteArray errors;
    for (const QByteArray &line : process.readAllStandardError().split('\n')) {
        // What the platform without a screen says of every window is nobody's fault.
        if (!line.isEmpty() && !line.contains("propagateSizeHints")
            && !line.contains("XDG_RUNTIME_DIR"))
            errors += line + '\n';
    }
    return {QJsonDocument::fromJson(process.readAllStandardOutput()).object(), process.exitCode(),
            errors};
}

Facts themed(const QString &name, const QStringList &options = {"--theme", "dark"},
             const QStringList &environment = {})
{
    return run(QStringList("run") + options + QStringList{"--", HVTHEME_PROGRAM, name},
               environment);
}

bool isDark(const QJsonValue &color)
{
    const QString name = color.toString();
    return QColor(name).isValid() && QColor(name).lightness() < 80;
}

} // namespace

void tst_Plugin::initTestCase()
{
    const Facts plain = ::themed("plain");
    QCOMPARE(plain.errors, QByteArray());
    QCOMPARE(plain.code, 0);
    m_plain = plain.object;
}

void tst_Plugin::unthemed()
{
    const Facts facts = run({"plain"}, {}, HVTHEME_PROGRAM);
    QCOMPARE(facts.object["sheet"].toString(), QString());
    QVERIFY(!isDark(facts.object["window"]));
}

void tst_Plugin::themed()
{
    QVERIFY(m_plain["sheet"].toString().size() > 10000);
    QVERIFY(isDark(m_plain["window"]));
    QVERIFY(!isDark(m_plain["text"]));
    QVERIFY(!isDark(m_plain["other"]));
    const QJsonObject light = ::themed("plain", {"--theme", "light"}).object;
    QVERIFY(!isDark(light["window"]));
    QVERIFY(light["sheet"] != m_plain["sheet"]);
}

void tst_Plugin::styleSheet_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("own"); // behind the theme's
    QTest::addColumn<QString>("color"); // of the program's label, null: the theme's

    const QString first = "QLabel#own { color: #010203 }";
    const QString second = "QLabel#own { color: #040506 }";
    QTest::newRow("before-windows") << "sheet-before" << first << "#010203";
    QTest::newRow("after-windows") << "sheet-after" << first << "#010203";
    QTest::newRow("replaced") << "sheet-replaced" << second << "#040506";
    QTest::newRow("appended-to-what-is-read")
        << "sheet-appended" << first + ' ' + second << "#040506";
    QTest::newRow("cleared") << "sheet-cleared" << QString() << QString();
}

void tst_Plugin::styleSheet()
{
    QFETCH(QString, name);
    QFETCH(QString, own);
    QFETCH(QString, color);
    const Facts facts = ::themed(name);
    QCOMPARE(facts.errors, QByteArray());
    const QString theme = m_plain["sheet"].toString();
    QCOMPARE(facts.object["sheet"].toString(), own.isEmpty() ? theme : theme + '\n' + own);
    QCOMPARE(facts.object["label"].toString(),
             color.isNull() ? m_plain["label"].toString() : color);
    QCOMPARE(facts.object["other"], m_plain["other"]);
    QCOMPARE(facts.object["window"], m_plain["window"]);
}

// Qt makes a URL of it, which is no rule behind the theme's.
void tst_Plugin::styleSheetOfAFile()
{
    const QByteArray own = "QLabel#own { color: #010203 }";
    const TemporaryTheme folder("");
    folder.write("own.qss", own);
    const Facts facts = run({"run", "--theme", "dark", "--", HVTHEME_PROGRAM, "plain",
                             "-stylesheet", folder.path() + "/own.qss"});
    QCOMPARE(facts.errors, QByteArray());
    QCOMPARE(facts.object["sheet"].toString(), m_plain["sheet"].toString() + '\n' + own);
    QCOMPARE(facts.object["label"].toString(), QString("#010203"));
    QCOMPARE(facts.object["other"], m_plain["other"]);
}

// Two that answer each other would be busy for ever.
void tst_Plugin::programThatInsists()
{
    const Facts facts = ::themed("sheet-insistent");
    QCOMPARE(facts.errors, QByteArray());
    const int answers = facts.object["answers"].toInt();
    QVERIFY2(answers > 0 && answers < 20, qPrintable(QString::number(answers)));
    QCOMPARE(facts.object["window"], m_plain["window"]);
}

void tst_Plugin::palette_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("highlight");
    QTest::addColumn<QString>("label");

    const QString theme; // the theme's
    QTest::newRow("before-windows") << "palette-before"
                                    << "#010203" << theme;
    QTest::newRow("after-windows") << "palette-after"
                                   << "#010203" << theme;
    QTest::newRow("of-a-widget") << "palette-of-widget" << theme << "#010203";
}

void tst_Plugin::palette()
{
    QFETCH(QString, name);
    QFETCH(QString, highlight);
    QFETCH(QString, label);
    const Facts facts = ::themed(name);
    QCOMPARE(facts.errors, QByteArray());
    const auto orTheme = [this](const QString &color, const char *key) {
        return color.isNull() ? m_plain[key].toString() : color;
    };
    QCOMPARE(facts.object["highlight"].toString(), orTheme(highlight, "highlight"));
    QCOMPARE(facts.object["label"].toString(), orTheme(label, "label"));
    QCOMPARE(facts.object["window"], m_plain["window"]);
    QCOMPARE(facts.object["text"], m_plain["text"]);
    QCOMPARE(facts.object["sheet"], m_plain["sheet"]);
}

void tst_Plugin::wholePalette_data()
{
    QTest::addColumn<QString>("theme");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("window");
    QTest::addColumn<QString>("inForce"); // the theme whose style sheet the program has

    // clang-format off
    QTest::newRow("light-in-dark") << "dark" << "palette-light" << "#f8f8f0" << "light";
    QTest::newRow("after-windows") << "dark" << "palette-light-after" << "#f8f8f0" << "light";
    QTest::newRow("dark-again") << "dark" << "palette-dark-again" << "#181818" << "dark";
    QTest::newRow("dark-in-light") << "light" << "palette-dark-again" << "#181818" << "dark";
    QTest::newRow("light-in-light") << "light" << "palette-light" << "#f8f8f0" << "light";
    QTest::newRow("high-contrast") << "contrast" << "palette-light" << "#f8f8f0" << "contrast";
    // clang-format on
}

// A program that is light by itself is not given black bars.
void tst_Plugin::wholePalette()
{
    QFETCH(QString, theme);
    QFETCH(QString, name);
    QFETCH(QString, window);
    QFETCH(QString, inForce);
    const Facts facts = ::themed(name, {"--theme", theme});
    QCOMPARE(facts.errors, QByteArray());
    QCOMPARE(facts.object["window"].toString(), window);
    QCOMPARE(facts.object["sheet"], ::themed("plain", {"--theme", inForce}).object["sheet"]);
}

void tst_Plugin::style_data()
{
    QTest::addColumn<QStringList>("arguments");

    QTest::newRow("set-by-the-program") << QStringList("style");
    QTest::newRow("option-of-qt") << QStringList({"plain", "-style", "windows"});
}

void tst_Plugin::style()
{
    QFETCH(QStringList, arguments);
    const Facts facts =
        run(QStringList{"run", "--theme", "dark", "--", HVTHEME_PROGRAM} + arguments);
    QCOMPARE(facts.errors, QByteArray());
    QCOMPARE(facts.object["sheet"], m_plain["sheet"]);
    QCOMPARE(facts.object["window"], m_plain["window"]);
    QCOMPARE(facts.object["other"], m_plain["other"]);
}

void tst_Plugin::nothingToTheme_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("no-widgets") << "gui";
    QTest::newRow("no-windows") << "core";
}

void tst_Plugin::nothingToTheme()
{
    QFETCH(QString, name);
    const Facts plain = run({name}, {}, HVTHEME_PROGRAM);
    QVERIFY(!plain.object.isEmpty());
    const Facts facts = ::themed(name);
    QCOMPARE(facts.errors, QByteArray());
    QCOMPARE(facts.code, 0);
    QCOMPARE(facts.object, plain.object);
}

void tst_Plugin::lifting_data()
{
    QTest::addColumn<QString>("theme");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("asked"); // the colour that the program asks for
    QTest::addColumn<double>("least");
    QTest::addColumn<bool>("isChanged");

    // clang-format off
    QTest::newRow("red-item-in-dark") << "dark" << "items" << "red" << "#800000" << 4.5 << true;
    QTest::newRow("red-item-in-contrast") << "contrast" << "items" << "red" << "#800000" << 7.0 << true;
    QTest::newRow("red-item-in-light") << "light" << "items" << "red" << "#800000" << 4.5 << false;
    QTest::newRow("on-a-ground-of-its-own") << "dark" << "items" << "black" << "#000000" << 4.5 << false;
    QTest::newRow("blue-document-in-dark") << "dark" << "document" << "blue" << "#000080" << 4.5 << true;
    QTest::newRow("blue-document-in-light") << "light" << "document" << "blue" << "#000080" << 4.5 << false;
    // clang-format on
}

void tst_Plugin::lifting()
{
    QFETCH(QString, theme);
    QFETCH(QString, name);
    QFETCH(QString, text);
    QFETCH(QString, asked);
    QFETCH(double, least);
    QFETCH(bool, isChanged);
    const Facts facts = ::themed(name, {"--theme", theme});
    QCOMPARE(facts.errors, QByteArray());
    const QJsonObject colors = facts.object[text].toObject();
    const QString seenName = colors["seen"].toString();
    const QColor seen(seenName);
    const QColor ground(colors["ground"].toString());
    const QByteArray told = QJsonDocument(facts.object).toJson();
    QVERIFY2(ColorMath::contrastRatio(seen, ground) >= least, told.constData());
    QVERIFY2((seenName != asked) == isChanged, told.constData());
    const int turned = qAbs(seen.hslHue() - QColor(asked).hslHue());
    QVERIFY2(!isChanged || qMin(turned, 360 - turned) < 20, told.constData());

    const QJsonObject unlifted =
        ::themed(name, {"--theme", theme, "--no-lift"}).object[text].toObject();
    QCOMPARE(unlifted["seen"].toString(), asked);
}

void tst_Plugin::documentsStayAsTheyAre()
{
    QVERIFY(::themed("document").object["kept"].toBool());
    QCOMPARE(::themed("items").object["stored"].toString(), QString("#800000"));
}

void tst_Plugin::leftAlone_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("variable");
    QTest::addColumn<bool>("isThemed");

    QTest::newRow("unlisted") << ""
                              << "" << true;
    QTest::newRow("file") << "# mine\nother\n foreign-program # why\n"
                          << "" << false;
    QTest::newRow("file-takes-off") << "foreign-program\n!foreign-program\n"
                                    << "" << true;
    QTest::newRow("variable") << ""
                              << "other:foreign-program" << false;
    QTest::newRow("variable-wins") << "foreign-program\n"
                                   << "!foreign-program" << true;
    QTest::newRow("part-of-a-name") << "foreign\nprogram\n"
                                    << "foreign-programs" << true;
}

// In a session the variables are there for everyone, and nobody names the program.
void tst_Plugin::leftAlone()
{
    QFETCH(QString, file);
    QFETCH(QString, variable);
    QFETCH(bool, isThemed);
    const QTemporaryDir home;
    QVERIFY(QDir(home.path()).mkdir("hvtheme"));
    QFile list(home.filePath("hvtheme/leave-alone"));
    QVERIFY(list.open(QIODevice::WriteOnly) && list.write(file.toUtf8()) == file.size());
    list.close();
    const QStringList environment{"XDG_CONFIG_HOME=" + home.path(),
                                  "HVTHEME_LEAVE_ALONE=" + variable};
    const QStringList session = QStringList("QT_PLUGIN_PATH=" HVTHEME_BUILD_PLUGINS)
        + QStringList("QT_QPA_GENERIC_PLUGINS=hvtheme:theme=dark") + environment;
    const Facts facts = run({"plain"}, session, HVTHEME_PROGRAM);
    QCOMPARE(facts.errors, QByteArray());
    QCOMPARE(isDark(facts.object["window"]), isThemed);
    QCOMPARE(!facts.object["sheet"].toString().isEmpty(), isThemed);

    // Who names it wants it.
    QVERIFY(isDark(::themed("plain", {"--theme", "dark"}, environment).object["window"]));
}

void tst_Plugin::firstOfSeveral()
{
    const Facts facts =
        ::themed("plain", {"--theme", "dark"}, {"QT_QPA_GENERIC_PLUGINS=hvtheme:theme=light"});
    QCOMPARE(facts.errors, QByteArray());
    QCOMPARE(facts.object["window"], m_plain["window"]);
    QCOMPARE(facts.object["sheet"], m_plain["sheet"]);
}

void tst_Plugin::folderOfThemes_data()
{
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<QStringList>("options");

    const QStringList named{"--theme", "night, of mine"};
    QTest::newRow("usual-suffix") << "theme" << named;
    QTest::newRow("own-suffix") << "l&,k" << named + QStringList{"--suffix", "l&,k"};
    QTest::newRow("as-the-desktop") << "look" << QStringList{"--suffix", "look"};
}

void tst_Plugin::folderOfThemes()
{
    QFETCH(QString, suffix);
    QFETCH(QStringList, options);
    const QTemporaryDir folder;
    const QString sample = HVTHEME_SOURCE_DIR "/themes/";
    QVERIFY(QFile::copy(sample + "default.theme", folder.filePath("default." + suffix)));
    QVERIFY(QFile::copy(sample + "dark.theme", folder.filePath("night, of mine." + suffix)));
    const Facts facts = ::themed("plain", QStringList{"--themes", folder.path()} + options);
    QCOMPARE(facts.object["window"], m_plain["window"]);
    QCOMPARE(facts.object["text"], m_plain["text"]);
    QCOMPARE(facts.code, 0);
}

void tst_Plugin::templatesOfTheUser()
{
    const QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkdir("a&b, c"));
    QFile file(folder.filePath("a&b, c/own.qss"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("QAbstractButton#nobody { color: mine.theme.color.DefaultForegroundColor; }\n");
    file.close();
    const Facts facts = ::themed(
        "plain", {"--theme", "dark", "--templates", folder.filePath("a&b, c"), "--prefix", "mine"});
    QCOMPARE(facts.errors, QByteArray());
    const QString sheet = facts.object["sheet"].toString();
    QVERIFY(sheet.startsWith(m_plain["sheet"].toString()));
    QVERIFY2(sheet.contains("QAbstractButton#nobody { color: #"), qPrintable(sheet.right(200)));
}

// The program is what its user wants; a theme comes second.
void tst_Plugin::noSuchTheme()
{
    const Facts facts = ::themed("plain", {"--theme", "no such"});
    QCOMPARE(facts.code, 2); // the program is not even started
    QVERIFY(facts.object.isEmpty());
    QVERIFY2(facts.errors.count('\n') == 1 && facts.errors.contains("no such"),
             facts.errors.constData());
}

void tst_Plugin::desktop_data()
{
    QTest::addColumn<QByteArray>("ground");
    QTest::addColumn<bool>("isDark");

    QTest::newRow("dark") << QByteArray("30,30,34") << true;
    QTest::newRow("light") << QByteArray("240,240,240") << false;
}

void tst_Plugin::desktop()
{
    QFETCH(QByteArray, ground);
    QFETCH(bool, isDark);
    const TemporaryTheme home("");
    home.write("kdeglobals", "[Colors:Window]\nBackgroundNormal=" + ground + '\n');
    const QStringList environment{"XDG_CONFIG_HOME=" + home.path(),
                                  "DBUS_SESSION_BUS_ADDRESS=unix:path=/nowhere"};
    const Facts facts = ::themed("plain", {"--follow"}, environment);
    QCOMPARE(facts.errors, QByteArray());
    QCOMPARE(::isDark(facts.object["window"]), isDark);
    QVERIFY(!facts.object["sheet"].toString().isEmpty());
}

// A program that gets another theme than the desktop asks for follows in what it can.
void tst_Plugin::desktopOfLightProgram()
{
    const TemporaryTheme home("");
    home.write("kdeglobals", "[Colors:Window]\nBackgroundNormal=30,30,34\n");
    const QStringList environment{"XDG_CONFIG_HOME=" + home.path(),
                                  "DBUS_SESSION_BUS_ADDRESS=unix:path=/nowhere"};
    const Facts light = ::themed("palette-light", {"--follow"}, environment);
    const Facts contrast = ::themed("contrast-later", {"--follow"}, environment);
    QCOMPARE(contrast.errors, QByteArray());
    QVERIFY(!light.object["sheet"].toString().isEmpty());
    QVERIFY(contrast.object["sheet"] != light.object["sheet"]);
}

void tst_Plugin::themeOfItsOwn()
{
    const Facts plain = run({}, {}, HVTHEME_THEMED_PROGRAM);
    const Facts facts = run({"run", "--theme", "dark", "--", HVTHEME_THEMED_PROGRAM});
    QCOMPARE(facts.errors, QByteArray());
    QVERIFY(!facts.object["sheet"].toString().isEmpty());
    QCOMPARE(facts.object, plain.object);
}

QTEST_GUILESS_MAIN(tst_Plugin)
#include "tst_plugin.moc"
