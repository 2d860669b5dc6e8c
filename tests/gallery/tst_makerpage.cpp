// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "distincttheme.h"

#include <colormath/contrast.h>
#include <gallery/gallerywindow.h>
#include <gallery/makerfields.h>
#include <gallery/makerpage.h>
#include <hvtheme/theming.h>
#include <maker/lookcolors.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QSlider>
#include <QStatusBar>
#include <QTableView>
#include <QtTest>

#include <memory>

using namespace Gallery;

namespace
{

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Answers the question that comes up next.
void answer(QMessageBox::StandardButton button, QString *text)
{
    QTimer::singleShot(0, [button, text] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (box == nullptr)
            return;
        *text = box->text();
        box->button(button)->click();
    });
}

} // namespace

class tst_MakerPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void everythingFollows();
    void controls_data();
    void controls();
    void manyChangesAreMadeTogether();
    void looks_data();
    void looks();
    void pageFollowsTheChooser();
    void report_data();
    void report();
    void notes();
    void leaving();
    void saving();
    void savingOverThemes_data();
    void savingOverThemes();
    void savingWhereNothingCanBe();
    void names_data();
    void names();
    void partsHaveNames();
    void tabKeyReachesEverything();

private:
    template<typename Part>
    Part *part(const char *name) const
    {
        return m_window->page()->findChild<Part *>(QString::fromLatin1(name));
    }
    void typeBrand(const QString &digits) const;

    std::unique_ptr<DistinctTheme> m_files;
    std::unique_ptr<GalleryWindow> m_window;
};

void tst_MakerPage::initTestCase()
{
    QApplication::setStyle(QStringLiteral("fusion"));
}

void tst_MakerPage::init()
{
    m_files = std::make_unique<DistinctTheme>();
    Options options;
    options.source = {m_files->folder(), QStringLiteral("default"), {}};
    options.pages = QStringList{QString::fromLatin1("make")};
    m_window = std::make_unique<GalleryWindow>(options);
    m_window->setAttribute(Qt::WA_DontShowOnScreen);
    m_window->show();
}

void tst_MakerPage::cleanup()
{
    m_window.reset();
    m_files.reset();
}

void tst_MakerPage::typeBrand(const QString &digits) const
{
    auto *edit = part<ColorField>("brand")->findChild<QLineEdit *>();
    edit->selectAll();
    QTest::keyClicks(edit, digits);
}

// The palette tells of the whole program; the themes come from the folder of the workshop.
void tst_MakerPage::everythingFollows()
{
    const QColor before = QApplication::palette().color(QPalette::Window);
    QCOMPARE(before, m_files->color(QStringLiteral("BackgroundColor_2")));
    QSignalSpy reloaded(m_window.get(), &GalleryWindow::reloaded);
    typeBrand(QStringLiteral("#8a3324"));
    QVERIFY(reloaded.wait());
    QVERIFY(QApplication::palette().color(QPalette::Window) != before);
    QCoreApplication::processEvents();
    QCOMPARE(m_window->messages().rowCount(), 0);
    QCOMPARE(m_window->findChild<QComboBox *>(QStringLiteral("themes"))->count(), 3);

    const QColor brown = QApplication::palette().color(QPalette::Highlight);
    typeBrand(QStringLiteral("#24338a"));
    QVERIFY(reloaded.wait());
    const QColor blue = QApplication::palette().color(QPalette::Highlight);
    QVERIFY(brown.red() > brown.blue());
    QVERIFY(blue.blue() > blue.red());
    QVERIFY(!reloaded.wait(200)); // what it writes itself is no news
}

void tst_MakerPage::controls_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("key");

    QTest::newRow("tinge") << "neutral" << int(Qt::Key_Down);
    QTest::newRow("depth") << "depth" << int(Qt::Key_Home);
    QTest::newRow("text-contrast") << "textContrast" << int(Qt::Key_End);
    QTest::newRow("look") << "look" << int(Qt::Key_Down);
}

void tst_MakerPage::controls()
{
    QFETCH(QString, name);
    QFETCH(int, key);
    QSignalSpy reloaded(m_window.get(), &GalleryWindow::reloaded);
    typeBrand(QStringLiteral("#8a3324"));
    QVERIFY(reloaded.wait());
    const QPalette before = QApplication::palette();
    auto *control = m_window->page()->findChild<QWidget *>(name);
    QTest::keyClick(control->focusProxy() ? control->focusProxy() : control, Qt::Key(key));
    QVERIFY(reloaded.wait());
    QVERIFY(QApplication::palette() != before);
}

void tst_MakerPage::manyChangesAreMadeTogether()
{
    QSignalSpy reloaded(m_window.get(), &GalleryWindow::reloaded);
    auto *slider = part<NumberField>("depth")->findChild<QSlider *>();
    for (int value = slider->minimum(); value <= slider->maximum(); ++value)
        slider->setValue(value);
    QCOMPARE(part<NumberField>("depth")->value(), 4.0);
    QVERIFY(reloaded.wait());
    QVERIFY(!reloaded.wait(200));
    QCOMPARE(reloaded.count(), 1);
}

void tst_MakerPage::looks_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("theme");
    QTest::addColumn<bool>("isDark");

    QTest::newRow("dark") << 0 << "dark" << true;
    QTest::newRow("light") << 1 << "light" << false;
    QTest::newRow("contrast") << 2 << "contrast" << true;
}

void tst_MakerPage::looks()
{
    QFETCH(int, row);
    QFETCH(QString, theme);
    QFETCH(bool, isDark);
    QSignalSpy reloaded(m_window.get(), &GalleryWindow::reloaded);
    part<QComboBox>("look")->setCurrentIndex((row + 1) % 3);
    part<QComboBox>("look")->setCurrentIndex(row);
    QVERIFY(reloaded.wait());
    QCOMPARE(m_window->findChild<QComboBox *>(QStringLiteral("themes"))->currentText(), theme);
    QCOMPARE(QApplication::palette().color(QPalette::Window).lightness() < 128, isDark);
}

void tst_MakerPage::pageFollowsTheChooser()
{
    QSignalSpy reloaded(m_window.get(), &GalleryWindow::reloaded);
    typeBrand(QStringLiteral("#8a3324"));
    QVERIFY(reloaded.wait());
    auto *themes = m_window->findChild<QComboBox *>(QStringLiteral("themes"));
    QCOMPARE(themes->currentText(), QStringLiteral("dark"));
    QTest::keyClick(themes, Qt::Key_Down);
    QVERIFY(reloaded.wait());
    QCOMPARE(themes->currentText(), QStringLiteral("light"));
    QCOMPARE(part<QComboBox>("look")->currentText(), QStringLiteral("Light"));
}

void tst_MakerPage::report_data()
{
    QTest::addColumn<int>("look");
    QTest::addColumn<double>("textContrast");

    QTest::newRow("dark") << 0 << 4.5;
    QTest::newRow("light") << 1 << 4.5;
    QTest::newRow("contrast") << 2 << 4.5;
    QTest::newRow("more-contrast") << 0 << 7.0;
}

// Measured anew on the theme as the library reads it.
void tst_MakerPage::report()
{
    QFETCH(int, look);
    QFETCH(double, textContrast);
    QTemporaryDir folder;
    ThemeWorkshop workshop;
    Maker::Parameters parameters = workshop.parameters();
    parameters.brand = QColor(0x8a3324);
    parameters.textContrast = textContrast;
    workshop.setParameters(parameters);
    workshop.beginWith(Maker::Look(look));
    const ThemeReport report = workshop.report();
    QString error;
    QVERIFY(workshop.save(folder.path(), {}, false, &error));
    HV::WorkableTheme theme;
    {
        const auto previous = qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext &, const QString &) {}); // there are no images
        HV::changeTheme(&theme, Maker::lookName(Maker::Look(look)), folder.path());
        qInstallMessageHandler(previous);
    }
    QCOMPARE(report.pairs.size(), Maker::colorPairs().size());
    double last = 0;
    for (const PairResult &result : report.pairs) {
        QColor ground = theme.color(result.pair.layers.constFirst());
        for (const QString &layer : result.pair.layers)
            ground = ColorMath::over(theme.color(layer), ground);
        QCOMPARE(result.ground, ground);
        QCOMPARE(result.ratio,
                 ColorMath::contrastRatio(theme.color(result.pair.foreground), ground));
        const bool isText = result.pair.need == Maker::Need::Text;
        if (isText)
            QCOMPARE(result.required, look == 2 ? 7.0 : textContrast);
        QVERIFY(result.ratio / result.required >= last);
        last = result.ratio / result.required;
    }
    for (const MeaningResult &result : report.meanings)
        QCOMPARE(result.distance,
                 ColorMath::leastDistance(theme.color(result.first), theme.color(result.second)));
    QVERIFY(!report.meanings.isEmpty());
}

void tst_MakerPage::notes()
{
    auto *notes = part<QLabel>("notes");
    QCOMPARE(notes->text(),
             QString("dark: the crossed part of sliders would stand out at 2.45:1; "
                     "SliderAcrossBackgroundColor is Brand_5"));
    typeBrand(QStringLiteral("#ffe000"));
    QTRY_VERIFY(notes->text().contains(
        QLatin1String("dark: the look's text would stand on the brand at ")));
    const auto *model = part<QTableView>("pairs")->model();
    QCOMPARE(model->rowCount(), Maker::colorPairs().size());
    QVERIFY(model->index(0, 2).data().toString().contains(QLatin1String(":1")));
    QCOMPARE(part<QTableView>("meanings")->model()->rowCount(), 7);
}

void tst_MakerPage::leaving()
{
    QSignalSpy reloaded(m_window.get(), &GalleryWindow::reloaded);
    typeBrand(QStringLiteral("#8a3324"));
    QVERIFY(reloaded.wait());
    QTest::keyClick(part<QPushButton>("back"), Qt::Key_Space);
    QCOMPARE(QApplication::palette().color(QPalette::Window),
             m_files->color(QStringLiteral("BackgroundColor_2")));
    m_files->writeFile(QStringLiteral("default"), {{"BackgroundColor_2", "#123456"}});
    QTRY_COMPARE(QApplication::palette().color(QPalette::Window), QColor(0x123456));
}

void tst_MakerPage::saving()
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("new/set"));
    typeBrand(QStringLiteral("#8a3324"));
    part<QLineEdit>("name")->setText(QStringLiteral("Rust"));
    qobject_cast<MakerPage *>(m_window->page())->saveTo(path);
    QCOMPARE(QDir(path).entryList(QDir::Files),
             QStringList(
                 {"default.theme", "rust-contrast.theme", "rust-dark.theme", "rust-light.theme"}));
    QCOMPARE(part<QLabel>("status")->text(), QStringLiteral("Saved in “%1”.").arg(path));
    Maker::Order order;
    order.parameters.brand = QColor(0x8a3324);
    order.name = QStringLiteral("Rust");
    for (const Maker::MadeFile &file : Maker::makeThemes(order).files)
        QCOMPARE(contentOf(QDir(path).filePath(file.fileName)), file.content);
}

void tst_MakerPage::savingOverThemes_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<bool>("isWritten");

    QTest::newRow("no") << int(QMessageBox::No) << false;
    QTest::newRow("yes") << int(QMessageBox::Yes) << true;
}

void tst_MakerPage::savingOverThemes()
{
    QFETCH(int, button);
    QFETCH(bool, isWritten);
    const QString path = m_files->folder() + QLatin1String("/default.theme");
    const QByteArray before = contentOf(path);
    QString question;
    answer(QMessageBox::StandardButton(button), &question);
    qobject_cast<MakerPage *>(m_window->page())->saveTo(m_files->folder());
    QVERIFY(question.contains(QLatin1String("There are themes in")));
    QVERIFY(question.contains(QLatin1String("already: default.")));
    QCOMPARE(contentOf(path) != before, isWritten);
    QCOMPARE(QFile::exists(m_files->folder() + QLatin1String("/dark.theme")), isWritten);
}

void tst_MakerPage::savingWhereNothingCanBe()
{
    QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("file")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    qobject_cast<MakerPage *>(m_window->page())->saveTo(file.fileName());
    QVERIFY(part<QLabel>("status")->text().contains(QLatin1String("a file is in the way")));
}

void tst_MakerPage::names_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isGood");

    QTest::newRow("none") << "" << true;
    QTest::newRow("words") << "Warm sepia" << true;
    QTest::newRow("path") << "../evil" << false;
    QTest::newRow("default") << "Default" << false;
    QTest::newRow("other-letters") << "Größe" << false;
}

void tst_MakerPage::names()
{
    QFETCH(QString, name);
    QFETCH(bool, isGood);
    part<QLineEdit>("name")->setText(name);
    QCOMPARE(part<QPushButton>("save")->isEnabled(), isGood);
    QCOMPARE(part<QLabel>("status")->text().isEmpty(), isGood);
    QCOMPARE(part<QLabel>("status")->isHidden(), isGood);
}

// What has no text of its own tells people who do not see it what it is.
void tst_MakerPage::partsHaveNames()
{
    const auto parts = m_window->page()->findChildren<QWidget *>();
    int count = 0;
    for (QWidget *each : parts) {
        if (!(each->focusPolicy() & Qt::TabFocus) || each->focusProxy() || !each->isVisible())
            continue;
        const auto *button = qobject_cast<QAbstractButton *>(each);
        const bool isInner = qobject_cast<QAbstractSpinBox *>(each->parentWidget()) != nullptr;
        if (isInner || (button && !button->text().isEmpty()))
            continue;
        ++count;
        QVERIFY2(!each->accessibleName().isEmpty(), each->metaObject()->className());
    }
    QVERIFY(count >= 10);
}

void tst_MakerPage::tabKeyReachesEverything()
{
    QApplication::setActiveWindow(m_window.get());
    QStringList reached;
    QWidget *first = part<QComboBox>("look");
    first->setFocus();
    for (int i = 0; i < 40; ++i) {
        QWidget *focused = QApplication::focusWidget();
        QVERIFY(focused != nullptr);
        for (QWidget *each = focused; each != m_window->page() && each; each = each->parentWidget())
            reached.append(each->objectName());
        QTest::keyClick(focused, Qt::Key_Tab);
    }
    for (const char *name : {"look", "brand", "neutral", "textContrast", "depth", "name", "save",
                             "back", "pairs", "meanings"})
        QVERIFY2(reached.contains(QString::fromLatin1(name)), name);
}

QTEST_MAIN(tst_MakerPage)

#include "tst_makerpage.moc"
