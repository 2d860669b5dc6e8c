// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "distincttheme.h"
#include "qtversion.h"

#include <gallery/gallerywindow.h>

#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>

#include <ctime>
#include <memory>

using namespace Gallery;

namespace
{

constexpr char buttonKey[] = "GeneralButtonBackgroundNormal";

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qUtf8Printable(path));
}

QByteArray read(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qUtf8Printable(path));
    return file.readAll();
}

// What editors do: write the new file under another name and put it in the place of the old one.
void replaceByRename(const QString &path, const QByteArray &bytes)
{
    write(path + QLatin1String(".new"), bytes);
    QFile::remove(path);
    if (!QFile::rename(path + QLatin1String(".new"), path))
        qFatal("cannot rename to %s", qUtf8Printable(path));
}

QByteArray formWithText(const QByteArray &text)
{
    return "<ui version=\"4.0\"><class>Form</class><widget class=\"QWidget\" name=\"Form\">"
           "<layout class=\"QVBoxLayout\" name=\"column\"><item>"
           "<widget class=\"QLabel\" name=\"label\"><property name=\"text\"><string>"
        + text + "</string></property></widget></item></layout></widget></ui>\n";
}

} // namespace

class tst_LiveReload : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void watcherAlone();
    void themeFile_data();
    void themeFile();
    void themeFolderGoneAndBack();
    void image_data();
    void image();
    void imageGoneAndBack();
    void templates();
    void messages();
    void form();
    void unrelatedFile();
    void endlessValue();
    void eachSaveIsPainted();

private:
    void open(const QString &page);
    QColor shownButtonColor() const;
    QString themePath() const { return m_files->folder() + QLatin1String("/default.theme"); }
    QByteArray themeWith(const QString &buttonColor) const;

    std::unique_ptr<DistinctTheme> m_files;
    std::unique_ptr<QTemporaryDir> m_extra;
    std::unique_ptr<GalleryWindow> m_window;
};

void tst_LiveReload::initTestCase()
{
    QApplication::setStyle(QStringLiteral("fusion"));
}

void tst_LiveReload::init()
{
    m_files = std::make_unique<DistinctTheme>();
    m_extra = std::make_unique<QTemporaryDir>();
}

void tst_LiveReload::cleanup()
{
    m_window.reset();
    m_files.reset();
}

void tst_LiveReload::open(const QString &page)
{
    Options options;
    options.source = {m_files->folder(), QStringLiteral("default"), {m_extra->path()}};
    options.pages = QStringList{page};
    if (page == QLatin1String("form"))
        options.formFile = m_extra->filePath(QStringLiteral("settings.ui"));
    m_window = std::make_unique<GalleryWindow>(options);
    m_window->show();
}

QColor tst_LiveReload::shownButtonColor() const
{
    const auto buttons = m_window->page()->findChildren<QPushButton *>();
    for (QPushButton *button : buttons) {
        if (button->property("style") == QLatin1String("general"))
            return button->grab().toImage().pixelColor(4, button->height() / 2);
    }
    return {};
}

QByteArray tst_LiveReload::themeWith(const QString &buttonColor) const
{
    m_files->writeFile(QStringLiteral("scratch"), {{QString::fromLatin1(buttonKey), buttonColor}});
    const QString scratch = m_files->folder() + QLatin1String("/scratch.theme");
    QByteArray bytes = read(scratch).replace("ThemeName=scratch", "ThemeName=default");
    QFile::remove(scratch);
    return bytes;
}

void tst_LiveReload::watcherAlone()
{
    // In a quiet folder within a quiet folder: whatever else happens there is told too.
    const QDir folder(m_extra->filePath(QStringLiteral("inner")));
    QVERIFY(QDir().mkpath(folder.path()));
    const QString path = folder.filePath(QStringLiteral("watched"));
    HV::ThemeWatcher watcher;
    QSignalSpy changed(&watcher, &HV::ThemeWatcher::changed);
    watcher.setPaths({path}, {});
    write(path, "1"); // it was not there before
    QVERIFY(changed.wait());
    replaceByRename(path, "2");
    QVERIFY(changed.wait());
    while (changed.wait(200)) { } // the rename may be told in parts
    write(path, "3"); // of which the folder tells nothing
    QVERIFY(changed.wait());
    QVERIFY(QFile::remove(path));
    QVERIFY(changed.wait());
    QVERIFY(QDir(folder).removeRecursively());
    QVERIFY(QDir().mkpath(folder.path()));
    write(path, "5");
    QVERIFY(changed.wait());
    while (changed.wait(200)) { }
    watcher.setPaths({folder.filePath(QStringLiteral("other"))}, {});
    QVERIFY(!changed.wait(200)); // what is no longer watched has not changed
}

void tst_LiveReload::themeFile_data()
{
    QTest::addColumn<QString>("way");

    QTest::newRow("saved-in-place") << "in-place";
    QTest::newRow("replaced-by-rename") << "rename";
    QTest::newRow("several-writes-in-a-burst") << "burst";
    QTest::newRow("gone-and-back") << "gone";
}

void tst_LiveReload::themeFile()
{
    QFETCH(QString, way);
    const QByteArray changed = themeWith(QStringLiteral("#123456"));
    open(QStringLiteral("buttons"));
    QCOMPARE(shownButtonColor(), m_files->color(QString::fromLatin1(buttonKey)));

    if (way == QLatin1String("in-place")) {
        write(themePath(), changed);
    } else if (way == QLatin1String("rename")) {
        replaceByRename(themePath(), changed);
    } else if (way == QLatin1String("burst")) {
        for (int i = 0; i < 5; ++i)
            write(themePath(), themeWith(QStringLiteral("#65432%1").arg(i)));
        write(themePath(), changed);
    } else {
        QSignalSpy reloaded(m_window.get(), &GalleryWindow::reloaded);
        QTest::ignoreMessage(QtCriticalMsg, QRegularExpression("is missing or cannot be read"));
        QVERIFY(QFile::remove(themePath()));
        QVERIFY(reloaded.wait());
        QCOMPARE(shownButtonColor(), m_files->color(QString::fromLatin1(buttonKey)));
        write(themePath(), changed);
    }
    QTRY_COMPARE(shownButtonColor(), QColor(0x123456));

    // And once more: whatever was watched is watched still.
    write(themePath(), themeWith(QStringLiteral("#345612")));
    QTRY_COMPARE(shownButtonColor(), QColor(0x345612));
}

void tst_LiveReload::themeFolderGoneAndBack()
{
    open(QStringLiteral("buttons"));
    const QString elsewhere = m_files->folder() + QLatin1String("-elsewhere");
    QSignalSpy reloaded(m_window.get(), &GalleryWindow::reloaded);
    QTest::ignoreMessage(QtCriticalMsg, QRegularExpression("The themes folder .* does not exist"));
    QVERIFY(QDir().rename(m_files->folder(), elsewhere));
    QVERIFY(reloaded.wait());
    QCOMPARE(shownButtonColor(), m_files->color(QString::fromLatin1(buttonKey)));

    QVERIFY(QDir().rename(elsewhere, m_files->folder()));
    QVERIFY(reloaded.wait());
    write(themePath(), themeWith(QStringLiteral("#123456")));
    QTRY_COMPARE(shownButtonColor(), QColor(0x123456));
}

void tst_LiveReload::image_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("key");

    QTest::newRow("image") << "image-buttons" << QByteArray("imageBtn") << "close"
                           << "close";
    QTest::newRow("border-image") << "labels" << QByteArray("labelImage") << "titleIcon"
                                  << "title_icon";
}

// Rewritten at once, in the same size: Qt would take the one it has kept.
void tst_LiveReload::image()
{
    QFETCH(QString, page);
    QFETCH(QByteArray, property);
    QFETCH(QString, value);
    QFETCH(QString, key);
    open(page);
    const auto shown = [&] {
        const auto widgets = m_window->page()->findChildren<QWidget *>();
        for (QWidget *widget : widgets) {
            if (widget->property(property.constData()) == value)
                return widget->grab().toImage().pixelColor(widget->rect().center());
        }
        return QColor();
    };
    QCOMPARE(shown(), m_files->imageColor(key));
    m_files->writeImage(key, QColor(0x123456));
    QTRY_COMPARE(shown(), QColor(0x123456));
    m_files->writeImage(key, QColor(0x563412));
    QTRY_COMPARE(shown(), QColor(0x563412));
}

void tst_LiveReload::imageGoneAndBack()
{
    open(QStringLiteral("image-buttons"));
    const QString path = m_files->imagePath(QStringLiteral("close"));
    // Once, however many rules name it.
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("\"close\".* is not exist!"));
    QSignalSpy reloaded(m_window.get(), &GalleryWindow::reloaded);
    QVERIFY(QFile::remove(path));
    QVERIFY(reloaded.wait());
    QTRY_COMPARE(m_window->messages().rowCount(), 1);
    m_files->writeImage(QStringLiteral("close"), QColor(0x123456));
    QTRY_COMPARE(m_window->messages().rowCount(), 0);
}

void tst_LiveReload::templates()
{
    open(QStringLiteral("buttons"));
    const QString path = m_extra->filePath(QStringLiteral("mine.qss"));
    write(path, "QPushButton[style=general] { background-color: global.theme.color.Color_Red_6 }");
    QTRY_COMPARE(shownButtonColor(), m_files->color(QStringLiteral("Color_Red_6")));
    replaceByRename(path, "QPushButton[style=general] { background-color: #123456 }");
    QTRY_COMPARE(shownButtonColor(), QColor(0x123456));
}

void tst_LiveReload::messages()
{
    // Qt says it of each widget that the rule is for; the pane says it once.
    const auto previous =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    open(QStringLiteral("buttons"));
    const QString path = m_extra->filePath(QStringLiteral("mine.qss"));
    write(path, "QPushButton[style=general] { colr: red }");
    const auto *pane = m_window->findChild<QListView *>(QStringLiteral("messages"));
    const auto shown = [&] {
        return pane->model()->rowCount() == 0 ? QString()
                                              : pane->model()->index(0, 0).data().toString();
    };
    QTRY_COMPARE(shown(), QtDifference::unknownPropertyLevel + ": Unknown property colr");
    QCOMPARE(pane->model()->rowCount(), 1);
    write(path, "");
    QTRY_COMPARE(pane->model()->rowCount(), 0);
    m_window.reset();
    qInstallMessageHandler(previous);
}

void tst_LiveReload::form()
{
    const QString path = m_extra->filePath(QStringLiteral("settings.ui"));
    write(path, formWithText("first"));
    open(QStringLiteral("form"));
    const auto text = [&] {
        const auto *label = m_window->page()->findChild<QLabel *>();
        return label == nullptr ? QString() : label->text();
    };
    QCOMPARE(text(), QStringLiteral("first"));
    replaceByRename(path, formWithText("second"));
    QTRY_COMPARE(text(), QStringLiteral("second"));

    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("Designer: An error has occurred.*"));
    QTest::ignoreMessage(QtCriticalMsg, QRegularExpression("The form .* is none"));
    QSignalSpy reloaded(m_window.get(), &GalleryWindow::reloaded);
    write(path, "no form");
    QVERIFY(reloaded.wait());
    QCOMPARE(text(), QStringLiteral("second")); // the last good one
    write(path, formWithText("third"));
    QTRY_COMPARE(text(), QStringLiteral("third"));
}

void tst_LiveReload::unrelatedFile()
{
    open(QStringLiteral("buttons"));
    QSignalSpy reloaded(m_window.get(), &GalleryWindow::reloaded);
    write(m_files->folder() + QLatin1String("/images/unknown.png"), "nothing of the theme's");
    // Proof by a change that counts: it is the first one to be told.
    write(themePath(), themeWith(QStringLiteral("#123456")));
    QTRY_COMPARE(shownButtonColor(), QColor(0x123456));
    QVERIFY(reloaded.count() <= 2); // the file and its folder may be told of apart
}

// Substitution would never end; the window must stay as it is, and alive.
void tst_LiveReload::endlessValue()
{
    open(QStringLiteral("buttons"));
    const QColor good = shownButtonColor();
    const QByteArray sound = themeWith(QStringLiteral("#123456"));
    QByteArray endless = sound;
    const int start = int(endless.indexOf("\nadd=") + 5);
    endless.replace(start, endless.indexOf('\n', start) - start, "../global.theme.image.add");
    QSignalSpy reloaded(m_window.get(), &GalleryWindow::reloaded);
    QTest::ignoreMessage(QtCriticalMsg,
                         QRegularExpression("default.theme:\\d+: the value of add leads "
                                            "back to its own token"));
    write(themePath(), endless);
    QVERIFY(reloaded.wait());
    QCOMPARE(shownButtonColor(), good);
    write(themePath(), sound);
    QTRY_COMPARE(shownButtonColor(), QColor(0x123456));
}

// How long it takes is told, and not judged: machines differ.
void tst_LiveReload::eachSaveIsPainted()
{
    open(QStringLiteral("image-buttons")); // the page with the most specimens
    const auto shown = [] {
        const QVariantMap &values = HV::ApplicationTheme::inForce()->theme()->values();
        return values.value(buttonKey).value<QColor>();
    };
    double fastestMs = 1e6;
    for (int i = 0; i < 8; ++i) {
        const QColor color(QStringLiteral("#12345%1").arg(i));
        const QByteArray changed = themeWith(color.name());
        const std::clock_t start = std::clock();
        write(themePath(), changed);
        QTRY_COMPARE(shown(), color);
        QCoreApplication::processEvents(); // the painting
        fastestMs = qMin(fastestMs, 1000.0 * double(std::clock() - start) / CLOCKS_PER_SEC);
    }
    qInfo("restyled after %.0f ms of the processor", fastestMs);
}

QTEST_MAIN(tst_LiveReload)

#include "tst_livereload.moc"
