// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "quietplatform.h"

#include <inspector/inspectorlists.h>
#include <inspector/inspectorwindow.h>

#include <hvtheme/theme.h>
#include <hvthemeapp/applicationtheme.h>

#include <QtTest>
#include <QtWidgets>

#include <sys/stat.h>
#include <unistd.h>

// Values changed and saved in the inspector as a user does it: by the pointer and by keys.
class tst_Changing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void color_data();
    void color();
    void colorByEntry();
    void entriesByKeys_data();
    void entriesByKeys();
    void contrast_data();
    void contrast();
    void targets();
    void integer();
    void image_data();
    void image();
    void openDialogs_data();
    void openDialogs();
    void flag();
    void keyThatTheFilesLack();
    void noKey_data();
    void noKey();
    void accent_data();
    void accent();
    void folderOfTheLook();
    void undoAndRedo();
    void typingIsOneStep();
    void resetOne();
    void property_data();
    void property();
    void propertyOfTheClass();
    void propertyOfRebuilding();
    void propertyBoxesStay();
    void writtenPropertyStays();
    void save_data();
    void save();
    void changedMeanwhile_data();
    void changedMeanwhile();
    void changedWhileAsked_data();
    void changedWhileAsked();
    void twoChangedMeanwhile();
    void changedBetweenEdits_data();
    void changedBetweenEdits();
    void cannotBeSaved_data();
    void cannotBeSaved();
    void saveAs_data();
    void saveAs();
    void saveAsKeepsOtherFiles();
    void saveAsCannotGoOn();
    void closing_data();
    void closing();
    void closedWhileAsked();
    void lastWindow();
    void brokenMeanwhile();
    void anotherThemeMeanwhile();
    void textsOfTheProgram();
    void byKeysAlone();
    void accessibleNames();

private:
    template<typename Widget>
    Widget *part(const char *accessibleName, QWidget *in = nullptr) const;
    template<typename Dialog>
    Dialog *dialog() const;
    void openFolder(const QString &folder);
    bool choose(const char *list, const QString &property, const QString &key = {});
    void type(QLineEdit *edit, const QString &text) const;
    void press(QAbstractButton *button) const;
    QColor ground() const;
    QByteArray file(const char *name) const;
    void append(const char *name, const QByteArray &text) const;
    void answer(const QString &button) const;
    void settle() const;

    std::unique_ptr<QuietPlatform> m_quiet;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<HV::ApplicationTheme> m_theme;
    std::unique_ptr<QWidget> m_program;
    QPushButton *m_button = nullptr;
    std::unique_ptr<InspectorWindow> m_window;
};

void tst_Changing::initTestCase()
{
    m_quiet = std::make_unique<QuietPlatform>();
}

void tst_Changing::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_theme = std::make_unique<HV::ApplicationTheme>();
    const QStringList files{"default.theme", "dark.theme", "light.theme"};
    for (const QString &name : files) {
        QVERIFY(QFile::copy(":/hvthemeapp/themes/" + name, m_folder->filePath(name)));
        QVERIFY(
            QFile::setPermissions(m_folder->filePath(name), QFile::ReadOwner | QFile::WriteOwner));
    }
    openFolder(m_folder->path());
    QVERIFY(m_theme->setName("dark"));
    m_program = std::make_unique<QWidget>();
    auto *column = new QVBoxLayout(m_program.get());
    m_button = new QPushButton("Push");
    m_button->setProperty("style", "general");
    column->addWidget(m_button);
    m_program->setGeometry(0, 0, 200, 120);
    m_program->show();
    m_window = std::make_unique<InspectorWindow>();
    m_window->setAttribute(Qt::WA_DeleteOnClose, false);
    m_window->move(220, 0);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    QTest::mouseClick(m_button, Qt::LeftButton, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(m_window->pane()->pickedWidget(), m_button);
}

void tst_Changing::cleanup()
{
    delete ProgramChanges::ofProgram();
    m_window.reset();
    m_program.reset();
    m_theme.reset();
    m_folder.reset();
}

void tst_Changing::openFolder(const QString &folder)
{
    QVERIFY(m_theme->setFolder(folder));
}

template<typename Widget>
Widget *tst_Changing::part(const char *accessibleName, QWidget *in) const
{
    const auto widgets = (in ? in : m_window.get())->findChildren<Widget *>();
    for (Widget *widget : widgets) {
        if (widget->accessibleName() == accessibleName)
            return widget;
    }
    qFatal("there is no %s", accessibleName);
}

template<typename Dialog>
Dialog *tst_Changing::dialog() const
{
    const auto dialogs = m_window->findChildren<Dialog *>();
    for (Dialog *dialog : dialogs) {
        if (dialog->isVisible()) // others may wait for their end
            return dialog;
    }
    qFatal("no such dialog is open");
}

// Clicks the row of a property in a list, or below it the one of a key.
bool tst_Changing::choose(const char *listName, const QString &property, const QString &key)
{
    auto *list = part<QTreeWidget>(listName);
    auto *tabs = m_window->findChild<QTabWidget *>();
    tabs->setCurrentIndex(tabs->indexOf(list));
    for (QTreeWidgetItemIterator it(list); *it; ++it) {
        if ((*it)->data(0, InspectorLists::Property).toString() != property
            || (!key.isEmpty() && (*it)->data(0, InspectorLists::Key).toString() != key))
            continue;
        for (QTreeWidgetItem *above = (*it)->parent(); above; above = above->parent())
            above->setExpanded(true);
        list->scrollToItem(*it);
        const QRect rect = list->visualItemRect(*it);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, rect.topLeft() + QPoint(30, 8));
        const bool isCurrent = list->currentItem() == *it;
        QCoreApplication::processEvents(); // the panel finds its room
        return isCurrent;
    }
    return false;
}

void tst_Changing::type(QLineEdit *edit, const QString &text) const
{
    QTest::mouseClick(edit, Qt::LeftButton);
    edit->selectAll();
    QTest::keyClicks(edit, text);
}

void tst_Changing::press(QAbstractButton *button) const
{
    QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(8, button->height() / 2));
}

QColor tst_Changing::ground() const
{
    return m_button->grab().toImage().pixelColor(12, m_button->height() / 2);
}

QByteArray tst_Changing::file(const char *name) const
{
    QFile file(m_folder->filePath(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(unreadable)");
}

// What somebody else does.
void tst_Changing::append(const char *name, const QByteArray &text) const
{
    QFile other(m_folder->filePath(name));
    QVERIFY(other.open(QIODevice::Append) && other.write(text) == text.size());
}

void tst_Changing::answer(const QString &button) const
{
    const auto buttons = dialog<QDialog>()->findChildren<QPushButton *>();
    for (QPushButton *each : buttons) {
        if (each->text().contains(button)) {
            QTest::mouseClick(each, Qt::LeftButton);
            return;
        }
    }
    QFAIL("there is no such button");
}

// The inspector looks at the program again some time after a change.
void tst_Changing::settle() const
{
    m_window->pane()->refresh();
}

void tst_Changing::color_data()
{
    QTest::addColumn<int>("target");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QColor>("expected");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");

    const QString button = "Colors/AccentBackgroundColor";
    QTest::newRow("key") << 0 << "#ff00aa" << QColor("#ff00aa") << button << "#ff00aa";
    QTest::newRow("entry-by-name") << 0 << "Green_6" << QColor("#007E3F") << button << "Green_6";
    QTest::newRow("opacity") << 0 << "#ff123456" << QColor("#123456") << button << "#ff123456";
    QTest::newRow("palette") << 1 << "#ff00aa" << QColor("#ff00aa") << "Palettes/Brand_6"
                             << "#ff00aa";
    QTest::newRow("palette-by-name") << 1 << "Green_6" << QColor("#007E3F") << "Palettes/Brand_6"
                                     << "#007E3F";
}

void tst_Changing::color()
{
    QFETCH(int, target);
    QFETCH(QString, text);
    QFETCH(QColor, expected);
    QFETCH(QString, key);
    QFETCH(QString, value);
    QVERIFY(choose("Values", "background-color"));
    const auto choices = m_window->findChildren<QRadioButton *>();
    QVERIFY(choices.at(1)->isVisible() && !choices.at(2)->isVisible());
    press(choices.at(target));
    type(part<QLineEdit>("Colour"), text);
    QCOMPARE(ground(), expected); // at once, in the program
    const QVector<ThemeChange> changes = ProgramChanges::ofProgram()->values();
    QCOMPARE(changes.size(), 1);
    QCOMPARE(changes.constFirst().key, key);
    QCOMPARE(changes.constFirst().value, value);
    settle();
    QCOMPARE(part<QLineEdit>("Colour")->text(), text); // as it was written
    QCOMPARE(m_window->pane()->inspection().value("background-color")->value.toLower(),
             QColor(expected).name());
    QCOMPARE(file("dark.theme").contains("ff00aa"), false); // nothing is written
}

void tst_Changing::colorByEntry()
{
    QVERIFY(choose("Values", "background-color"));
    auto *entries = part<QTreeWidget>("Palette entries");
    QCOMPARE(entries->currentItem()->text(0), QString("Brand_6"));
    entries->scrollToItem(entries->currentItem());
    const QRect next = entries->visualItemRect(entries->itemBelow(entries->currentItem()));
    QTest::mouseClick(entries->viewport(), Qt::LeftButton, {}, next.center());
    QCOMPARE(ProgramChanges::ofProgram()->values().constFirst().value, QString("Brand_7"));
    QCOMPARE(part<QLineEdit>("Colour")->text(), QString("Brand_7"));
    QTest::keyClick(entries, Qt::Key_Down);
    QCOMPARE(ProgramChanges::ofProgram()->values().constFirst().value, QString("Brand_8"));
    QCOMPARE(ground(), m_theme->theme()->readNamedColor("Brand_8").first);
}

void tst_Changing::entriesByKeys_data()
{
    QTest::addColumn<int>("target");

    QTest::newRow("key") << 0;
    QTest::newRow("palette-entry") << 1;
}

void tst_Changing::entriesByKeys()
{
    QFETCH(int, target);
    QVERIFY(choose("Values", "background-color"));
    press(m_window->findChildren<QRadioButton *>().at(target));
    auto *entries = part<QTreeWidget>("Palette entries");
    QTreeWidgetItem *first = entries->topLevelItem(entries->topLevelItemCount() / 2);
    entries->scrollToItem(first, QAbstractItemView::PositionAtTop);
    QTest::mouseClick(entries->viewport(), Qt::LeftButton, {},
                      entries->visualItemRect(first).center());
    const int row = entries->indexOfTopLevelItem(first);
    const int scrolled = entries->verticalScrollBar()->value();
    QVERIFY(scrolled > 0);
    for (int i = 1; i < 4; ++i) {
        settle();
        QCOMPARE(entries->verticalScrollBar()->value(), scrolled);
        QTest::keyClick(entries, Qt::Key_Down);
        const QTreeWidgetItem *item = entries->topLevelItem(row + i);
        QCOMPARE(entries->currentItem(), item);
        QCOMPARE(ProgramChanges::ofProgram()->values().constFirst().value,
                 item->text(target == 0 ? 0 : 1));
    }
}

void tst_Changing::contrast_data()
{
    QTest::addColumn<QString>("property");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("told");
    QTest::addColumn<bool>("isWarning");

    QTest::newRow("ground-low") << "background-color"
                                << "#F0F0F0"
                                << "under the text" << true;
    QTest::newRow("ground-good") << "background-color"
                                 << "#102030"
                                 << "under the text" << false;
    QTest::newRow("text-low") << "color"
                              << "#3060C0"
                              << "on the ground #3060F0" << true;
    QTest::newRow("text-good") << "color"
                               << "#FFFFFF"
                               << "on the ground #3060F0" << false;
}

void tst_Changing::contrast()
{
    QFETCH(QString, property);
    QFETCH(QString, text);
    QFETCH(QString, told);
    QFETCH(bool, isWarning);
    QVERIFY(choose("Values", property));
    press(m_window->findChildren<QRadioButton *>().at(0));
    type(part<QLineEdit>("Colour"), text);
    const auto *label = part<QLabel>("Contrast of the chosen colour");
    QVERIFY2(label->text().contains(told), qPrintable(label->text()));
    QCOMPARE(label->text().contains("Too low for text, 4.5:1 is needed"), isWarning);
    QCOMPARE(label->styleSheet().isEmpty(), !isWarning);
    QVERIFY(label->isVisible());
}

void tst_Changing::targets()
{
    QVERIFY(choose("Values", "background-color"));
    const auto choices = m_window->findChildren<QRadioButton *>();
    const QRegularExpression key(
        "^the key AccentBackgroundColor  ·  dark\\.theme:\\d+  ·  \\d+ places?$");
    const QRegularExpression entry(
        "^the palette entry Brand_6  ·  default\\.theme:\\d+  ·  \\d+ places of \\d+ keys$");
    QVERIFY2(key.match(choices.at(0)->text()).hasMatch(), qPrintable(choices.at(0)->text()));
    QVERIFY2(entry.match(choices.at(1)->text()).hasMatch(), qPrintable(choices.at(1)->text()));
    const auto *all = part<QLabel>("What else changes");
    QVERIFY(!all->isVisible());
    press(choices.at(1));
    QVERIFY(all->isVisible());
    QCOMPARE(all->text(),
             QString("It stands in the default file: a change there changes all themes."));
}

void tst_Changing::integer()
{
    QVERIFY(choose("Values", "font-size"));
    auto *box = part<QSpinBox>("Integer");
    QVERIFY(box->isVisible());
    const int before = box->value();
    QCOMPARE(before, QFontInfo(m_button->font()).pixelSize());
    QTest::mouseClick(box, Qt::LeftButton);
    QTest::keyClick(box, Qt::Key_Up);
    QTest::keyClick(box, Qt::Key_Up);
    QCOMPARE(box->value(), before + 2);
    QCOMPARE(QFontInfo(m_button->font()).pixelSize(), before + 2);
    QCOMPARE(ProgramChanges::ofProgram()->values().constFirst().value, QString::number(before + 2));
    box->selectAll();
    QTest::keyClicks(box, "30");
    QCOMPARE(QFontInfo(m_button->font()).pixelSize(), 30);
    QTest::keyClick(box, Qt::Key_Z, Qt::ControlModifier); // the change, not a digit
    QVERIFY(!ProgramChanges::ofProgram()->isUnsaved());
    QCOMPARE(QFontInfo(m_button->font()).pixelSize(), before);
}

void tst_Changing::image_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isTaken");

    QTest::newRow("resource") << ":/qt-project.org/styles/commonstyle/images/left-16.png" << true;
    QTest::newRow("missing") << "no/such/image.png" << false;
    QTest::newRow("folder") << "." << false;
}

void tst_Changing::image()
{
    QFETCH(QString, text);
    QFETCH(bool, isTaken);
    auto *box = new QCheckBox("Check");
    m_program->layout()->addWidget(box);
    m_window->pane()->pick(box, {"indicator", {}, {}, {"unchecked", "enabled"}});
    QVERIFY(choose("Theme", QString(), "CheckBoxUnchecked") || choose("Values", "image"));
    auto *edit = part<QLineEdit>("Image file");
    QVERIFY(edit->isVisible());
    type(edit, text);
    QTest::keyClick(edit, Qt::Key_Return);
    QCOMPARE(ProgramChanges::ofProgram()->values().size(), isTaken ? 1 : 0);
    const auto *problem = part<QLabel>("Problem");
    QCOMPARE(problem->isVisible(), !isTaken);
    if (!isTaken)
        QVERIFY(problem->text().contains("is no image that can be read; nothing was changed."));
}

void tst_Changing::openDialogs_data()
{
    QTest::addColumn<QString>("next");

    QTest::newRow("another-key") << "font-size";
    QTest::newRow("the-palette-entry") << "";
    QTest::newRow("another-theme") << "light";
}

// A dialog is about one value in one file.
void tst_Changing::openDialogs()
{
    QFETCH(QString, next);
    QVERIFY(choose("Values", "background-color"));
    press(part<QToolButton>("Choose any colour"));
    const QPointer<QColorDialog> colors = dialog<QColorDialog>();
    if (!next.isEmpty()) { // else the value would not come from the entry any more
        colors->setCurrentColor("#ff00aa");
        QCOMPARE(ground(), QColor("#ff00aa"));
    }
    settle();
    QVERIFY(colors && colors->isVisible());
    if (next.isEmpty())
        press(m_window->findChildren<QRadioButton *>().at(1));
    else if (next == "light")
        QVERIFY(m_theme->setName(next));
    else
        QVERIFY(choose("Values", next));
    settle();
    const QVector<ThemeChange> before = ProgramChanges::ofProgram()->values();
    if (colors)
        colors->setCurrentColor("#aabbcc");
    QCOMPARE(ProgramChanges::ofProgram()->values(), before);
    QVERIFY(!colors || !colors->isVisible());
    if (next.isEmpty()) {
        press(part<QToolButton>("Choose any colour"));
        dialog<QColorDialog>()->setCurrentColor("#aabbcc");
        QCOMPARE(ProgramChanges::ofProgram()->values().size(), 1);
        QCOMPARE(ProgramChanges::ofProgram()->values().constFirst().key,
                 QString("Palettes/Brand_6"));
    }
}

void tst_Changing::flag()
{
    QVERIFY(choose("Theme", QString(), "DarkSurfaces"));
    auto *box = part<QCheckBox>("Flag");
    QVERIFY(box->isVisible() && box->isChecked());
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
    QVERIFY(!m_theme->theme()->flag("DarkSurfaces"));
    QCOMPARE(ProgramChanges::ofProgram()->values().constFirst().value, QString("0"));
}

// A look is made complete with what the files lack; such a key goes to the theme's own file.
void tst_Changing::keyThatTheFilesLack()
{
    QByteArray dark = file("dark.theme");
    const int from = int(dark.indexOf("AccentBackgroundColor="));
    dark.remove(from, dark.indexOf('\n', from) + 1 - from);
    QFile rewritten(m_folder->filePath("dark.theme"));
    QVERIFY(rewritten.open(QIODevice::WriteOnly) && rewritten.write(dark) == dark.size());
    rewritten.close();
    m_theme->setName("light");
    m_theme->setName("dark");
    settle();
    QVERIFY(choose("Values", "background-color"));
    const auto choices = m_window->findChildren<QRadioButton *>();
    QVERIFY(choices.at(0)->isVisible() && !choices.at(1)->isVisible());
    QVERIFY(
        choices.constFirst()->text().startsWith("AccentBackgroundColor, a new key  ·  dark.theme"));
    type(part<QLineEdit>("Colour"), "#ff00aa");
    QCOMPARE(ground(), QColor("#ff00aa"));
    QTest::keyClick(m_window.get(), Qt::Key_S, Qt::ControlModifier);
    QVERIFY(file("dark.theme").contains("AccentBackgroundColor=#ff00aa\n"));
}

void tst_Changing::noKey_data()
{
    QTest::addColumn<QString>("ownSheet");
    QTest::addColumn<QString>("property");
    QTest::addColumn<QString>("told");

    QTest::newRow("own") << "color: #123456"
                         << "color"
                         << "a style sheet of the program's own";
    QTest::newRow("palette") << ""
                             << "alternate-background-color"
                             << "has no key of a theme: it is AlternateBase of";
}

void tst_Changing::noKey()
{
    QFETCH(QString, ownSheet);
    QFETCH(QString, property);
    QFETCH(QString, told);
    m_button->setStyleSheet(ownSheet);
    settle();
    QVERIFY(choose("Values", property));
    const auto *title = part<QLabel>("What is changed");
    QVERIFY2(title->isVisible() && title->text().contains(told), qPrintable(title->text()));
    QVERIFY(!part<QLineEdit>("Colour")->isVisible());
}

void tst_Changing::accent_data()
{
    QTest::addColumn<QColor>("accent");
    QTest::addColumn<bool>("isOfAccent");

    QTest::newRow("none") << QColor() << false;
    QTest::newRow("red") << QColor(200, 30, 30) << true;
}

// What is shown is in force, and what the accent decides says so.
void tst_Changing::accent()
{
    QFETCH(QColor, accent);
    QFETCH(bool, isOfAccent);
    QVERIFY(m_theme->setAccent(accent));
    settle();
    const QString brand = m_theme->theme()->readNamedColor("Brand_6").first.name();
    QCOMPARE(brand != "#3060f0", isOfAccent);
    const auto entries =
        part<QTreeWidget>("Theme")->findItems("Brand_6", Qt::MatchExactly | Qt::MatchRecursive);
    QCOMPARE(entries.size(), 1);
    QCOMPARE(entries.constFirst()->text(1), isOfAccent ? brand + "  of the accent" : brand);
    QVERIFY(choose("Values", "background-color"));
    auto *named =
        part<QTreeWidget>("Palette entries")->findItems("Brand_6", Qt::MatchExactly).value(0);
    QVERIFY(named);
    QCOMPARE(named->text(1), brand.toUpper());
    QStringList told;
    for (QTreeWidgetItemIterator it(part<QTreeWidget>("Values")); *it; ++it) {
        if ((*it)->text(0).startsWith("The accent "))
            told << (*it)->text(0);
    }
    QCOMPARE(told.contains("The accent " + accent.name() + " makes " + brand + " of Brand_6."),
             isOfAccent);
    press(m_window->findChildren<QRadioButton *>().at(1)); // the palette entry
    QCOMPARE(part<QLabel>("What else changes")->text().contains("shows its accent instead"),
             isOfAccent);
}

// A folder that lacks the theme leaves the look; the look's own files are what is changed and copied.
void tst_Changing::folderOfTheLook()
{
    const QTemporaryDir other;
    QVERIFY(QFile::copy(":/hvthemeapp/themes/default.theme", other.filePath("default.theme")));
    QVERIFY(QFile::copy(":/hvthemeapp/themes/light.theme", other.filePath("light.theme")));
    QVERIFY(m_theme->setFolder(other.path()));
    QCOMPARE(m_theme->folder(), other.path());
    QCOMPARE(m_theme->name(), QString("dark"));
    settle();
    QVERIFY(choose("Values", "background-color"));
    press(m_window->findChildren<QRadioButton *>().at(0));
    type(part<QLineEdit>("Colour"), "#ff00aa");
    QCOMPARE(ground(), QColor("#ff00aa"));
    QCOMPARE(ProgramChanges::ofProgram()->unsavedFiles(),
             QStringList(m_folder->filePath("dark.theme")));
}

void tst_Changing::undoAndRedo()
{
    const QColor before = ground();
    QVERIFY(choose("Values", "background-color"));
    type(part<QLineEdit>("Colour"), "#ff00aa");
    QTest::keyClick(part<QLineEdit>("Colour"), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(ground(), before);
    settle();
    QCOMPARE(part<QLineEdit>("Colour")->text(), QString("Brand_6"));
    QTest::keyClick(part<QLineEdit>("Colour"), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(ground(), QColor("#ff00aa"));
    QTest::mouseClick(part<QToolButton>("Undo"), Qt::LeftButton);
    QCOMPARE(ground(), before);
    QVERIFY(!part<QToolButton>("Undo")->isEnabled());
    QTest::mouseClick(part<QToolButton>("Redo"), Qt::LeftButton);
    QCOMPARE(ground(), QColor("#ff00aa"));
    QVERIFY(!part<QToolButton>("Redo")->isEnabled());
}

void tst_Changing::typingIsOneStep()
{
    const QColor before = ground();
    QVERIFY(choose("Values", "background-color"));
    type(part<QLineEdit>("Colour"), "#ff00aa");
    type(part<QLineEdit>("Colour"), "#00ff00"); // goes on
    settle();
    QVERIFY(choose("Values", "font-size"));
    QVERIFY(choose("Values", "background-color")); // begins anew
    type(part<QLineEdit>("Colour"), "#0000ff");
    part<QToolButton>("Undo")->click();
    QCOMPARE(ground(), QColor("#00ff00"));
    part<QToolButton>("Undo")->click();
    QCOMPARE(ground(), before);
}

void tst_Changing::resetOne()
{
    QVERIFY(choose("Values", "background-color"));
    type(part<QLineEdit>("Colour"), "#ff00aa");
    QVERIFY(choose("Values", "font-size"));
    QTest::keyClick(part<QSpinBox>("Integer"), Qt::Key_Up);
    auto *tabs = m_window->findChild<QTabWidget *>();
    auto *list = part<QTreeWidget>("Changes");
    tabs->setCurrentIndex(tabs->indexOf(list->parentWidget()));
    QCOMPARE(list->topLevelItemCount(), 2);
    const QTreeWidgetItem *item = list->topLevelItem(0);
    QCOMPARE(item->text(0), QString("Colors/AccentBackgroundColor"));
    QCOMPARE(item->text(1), QString("Brand_6"));
    QCOMPARE(item->text(2), QString("#ff00aa"));
    QCOMPARE(item->text(3), QString("dark.theme"));
    const int size = QFontInfo(m_button->font()).pixelSize();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                      list->visualItemRect(item).topLeft() + QPoint(20, 8));
    QTest::keyClick(list, Qt::Key_Delete);
    QCOMPARE(list->topLevelItemCount(), 1);
    QCOMPARE(ground(), m_theme->theme()->readNamedColor("Brand_6").first);
    QCOMPARE(QFontInfo(m_button->font()).pixelSize(), size);
    part<QToolButton>("Undo")->click(); // a reset is a step too
    QCOMPARE(ground(), QColor("#ff00aa"));
}

void tst_Changing::property_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("key");

    QTest::newRow("another") << "assist"
                             << "AssistButtonBackgroundNormal";
    QTest::newRow("unknown") << "no-such-style"
                             << "";
}

void tst_Changing::property()
{
    QFETCH(QString, value);
    QFETCH(QString, key);
    const QImage before = m_button->grab().toImage();
    auto *tabs = m_window->findChild<QTabWidget *>();
    auto *list = part<QTreeWidget>("Properties");
    tabs->setCurrentIndex(tabs->indexOf(list->parentWidget()));
    auto *name = part<QComboBox>("Property");
    auto *box = part<QComboBox>("Value of the property");
    type(name->lineEdit(), "style");
    QCOMPARE(box->currentText(), QString("general"));
    QVERIFY(box->findText("assist") >= 0
            && box->findText("transparent") >= 0); // what rules ask for
    QCOMPARE(box->findText("simpleList"), -1); // of another class
    QVERIFY(box->completer()->completionModel()->rowCount() > 0);
    type(box->lineEdit(), value);
    QTest::keyClick(box->lineEdit(), Qt::Key_Return);
    QCOMPARE(m_button->property("style").toString(), value);
    QVERIFY(m_button->grab().toImage() != before);
    if (!key.isEmpty())
        QCOMPARE(m_button->grab().toImage().pixelColor(12, m_button->height() / 2).name(), [&] {
            QPushButton other("Push");
            other.setProperty("style", value);
            m_program->layout()->addWidget(&other);
            other.resize(m_button->size());
            return other.grab().toImage().pixelColor(12, m_button->height() / 2).name();
        }());
    QCOMPARE(part<QTreeWidget>("Changes")->topLevelItemCount(), 1);
    QVERIFY(!ProgramChanges::ofProgram()->isUnsaved());
    part<QToolButton>("Undo")->click();
    QCOMPARE(m_button->property("style").toString(), QString("general"));
    QCOMPARE(m_button->grab().toImage(), before);
    part<QToolButton>("Redo")->click();
    QCOMPARE(m_button->property("style").toString(), value);
}

void tst_Changing::propertyOfTheClass()
{
    auto *tabs = m_window->findChild<QTabWidget *>();
    tabs->setCurrentIndex(tabs->indexOf(part<QTreeWidget>("Properties")->parentWidget()));
    type(part<QComboBox>("Property")->lineEdit(), "text");
    type(part<QComboBox>("Value of the property")->lineEdit(), "Other");
    QTest::keyClick(part<QComboBox>("Value of the property")->lineEdit(), Qt::Key_Return);
    QCOMPARE(m_button->text(), QString("Push"));
    QCOMPARE(
        part<QLabel>("About the properties")->text(),
        QString(
            "text belongs to the class QPushButton; only dynamic properties are changed here."));
}

// A widget may make its children anew when its style changes.
void tst_Changing::propertyOfRebuilding()
{
    class Rebuilding : public QWidget
    {
    public:
        using QWidget::QWidget;

    protected:
        void changeEvent(QEvent *event) override
        {
            if (event->type() != QEvent::StyleChange)
                return;
            const auto former = findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
            qDeleteAll(former);
            for (int i = 0; i < 3; ++i)
                new QLabel(new QFrame(this));
        }
    };
    Rebuilding widget(m_program.get());
    QEvent event(QEvent::StyleChange);
    QCoreApplication::sendEvent(&widget, &event);
    const QPointer<QWidget> child = widget.findChild<QLabel *>();
    QVERIFY(child);
    ProgramChanges::ofProgram()->setProperty(&widget, "style", "general");
    QVERIFY(!child);
    ProgramChanges::ofProgram()->undo();
    QVERIFY(!widget.property("style").isValid());
    QCOMPARE(widget.findChildren<QLabel *>().size(), 3);
}

void tst_Changing::propertyBoxesStay()
{
    const int before = int(m_window->findChildren<QCompleter *>().size());
    for (int i = 0; i < 3; ++i)
        settle();
    QCOMPARE(int(m_window->findChildren<QCompleter *>().size()), before);
}

void tst_Changing::writtenPropertyStays()
{
    auto *list = part<QTreeWidget>("Properties");
    auto *tabs = m_window->findChild<QTabWidget *>();
    tabs->setCurrentIndex(tabs->indexOf(list->parentWidget()));
    list->setCurrentItem(list->findItems("style", Qt::MatchExactly).value(0));
    auto *value = part<QComboBox>("Value of the property")->lineEdit();
    type(value, "half written");
    value->setCursorPosition(4);
    for (int i = 0; i < 3; ++i) {
        settle();
        QCOMPARE(value->text(), QString("half written"));
        QCOMPARE(value->cursorPosition(), 4);
        QVERIFY(list->currentItem());
        QCOMPARE(list->currentItem()->text(0), QString("style"));
    }
}

void tst_Changing::save_data()
{
    QTest::addColumn<int>("target");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");

    QTest::newRow("key") << 0 << "dark.theme" << QByteArray("AccentBackgroundColor=Brand_6\n")
                         << QByteArray("AccentBackgroundColor=#ff00aa\n");
    QTest::newRow("palette") << 1 << "default.theme" << QByteArray("Brand_6=#3060F0\n")
                             << QByteArray("Brand_6=#ff00aa\n");
}

void tst_Changing::save()
{
    QFETCH(int, target);
    QFETCH(QString, name);
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    QByteArray expected = file(qPrintable(name));
    QCOMPARE(expected.count(before), 1);
    expected.replace(before, after);
    QVERIFY(choose("Values", "background-color"));
    press(m_window->findChildren<QRadioButton *>().at(target));
    type(part<QLineEdit>("Colour"), "#ff00aa");
    QCOMPARE(part<QLabel>("Unsaved changes")->text(), "1 unsaved change in " + name);
    QTest::keyClick(part<QLineEdit>("Colour"), Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(file(qPrintable(name)), expected); // not another byte
    QCOMPARE(part<QLabel>("What came of saving")->text(), "Saved " + name + '.');
    QCOMPARE(part<QLabel>("Unsaved changes")->text(), QString("No unsaved changes"));
    QCOMPARE(ground(), QColor("#ff00aa"));
    QVERIFY(!part<QToolButton>("Save the changes")->isEnabled());
    part<QToolButton>("Undo")->click(); // works over a save
    QCOMPARE(ground(), QColor("#3060f0"));
    QVERIFY(part<QToolButton>("Save the changes")->isEnabled());
}

void tst_Changing::changedMeanwhile_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<bool>("hasTheirs");
    QTest::addColumn<bool>("hasOurs");

    QTest::newRow("both") << "Keep &both: theirs, with my changes" << true << true;
    QTest::newRow("mine") << "Write &mine" << false << true;
    QTest::newRow("cancel") << "" << true << false;
}

void tst_Changing::changedMeanwhile()
{
    QFETCH(QString, button);
    QFETCH(bool, hasTheirs);
    QFETCH(bool, hasOurs);
    QVERIFY(choose("Values", "background-color"));
    type(part<QLineEdit>("Colour"), "#ff00aa");
    QFile other(m_folder->filePath("dark.theme"));
    QVERIFY(other.open(QIODevice::Append) && other.write("; theirs\n") > 0);
    other.close();
    QTest::keyClick(part<QLineEdit>("Colour"), Qt::Key_S, Qt::ControlModifier);
    QVERIFY(!file("dark.theme").contains("ff00aa"));
    auto *conflict = dialog<QDialog>();
    QVERIFY(part<QPlainTextEdit>("The text on disk", conflict)->toPlainText().contains("; theirs"));
    QVERIFY(part<QPlainTextEdit>("The text with your changes", conflict)
                ->toPlainText()
                .contains("=#ff00aa"));
    const auto buttons = conflict->findChildren<QPushButton *>();
    for (QPushButton *each : buttons) {
        if (each->text() == button || (button.isEmpty() && each->text().contains("Cancel")))
            QTest::mouseClick(each, Qt::LeftButton);
    }
    QCOMPARE(file("dark.theme").contains("; theirs"), hasTheirs);
    QCOMPARE(file("dark.theme").contains("=#ff00aa"), hasOurs);
    QCOMPARE(ProgramChanges::ofProgram()->isUnsaved(), !hasOurs);
    QCOMPARE(ground(), QColor("#ff00aa")); // never lost
}

void tst_Changing::changedWhileAsked_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<bool>("hasTheirs");

    QTest::newRow("both") << "Keep &both" << true;
    QTest::newRow("mine") << "Write &mine" << false;
}

// What is chosen holds for the text that was shown, not for one that came after it.
void tst_Changing::changedWhileAsked()
{
    QFETCH(QString, button);
    QFETCH(bool, hasTheirs);
    QVERIFY(choose("Values", "background-color"));
    type(part<QLineEdit>("Colour"), "#ff00aa");
    append("dark.theme", "; first\n");
    QTest::keyClick(part<QLineEdit>("Colour"), Qt::Key_S, Qt::ControlModifier);
    append("dark.theme", "; second\n");
    const QByteArray before = file("dark.theme");
    answer(button);
    QCOMPARE(file("dark.theme"), before);
    QVERIFY(part<QLabel>("What came of saving")->text().contains("nothing was written"));
    auto *conflict = dialog<QDialog>(); // another one
    QVERIFY(part<QPlainTextEdit>("The text on disk", conflict)->toPlainText().contains("; second"));
    answer(button);
    QCOMPARE(file("dark.theme").contains("; first\n; second\n"), hasTheirs);
    QVERIFY(file("dark.theme").contains("=#ff00aa"));
    QVERIFY(!ProgramChanges::ofProgram()->isUnsaved());
}

// Each file has a question of its own, and only one.
void tst_Changing::twoChangedMeanwhile()
{
    ProgramChanges *changes = ProgramChanges::ofProgram();
    for (const char *name : {"dark.theme", "light.theme"}) {
        QVERIFY(
            changes->setValue(m_folder->filePath(name), "Colors/AccentBackgroundColor", "#ff00aa"));
        append(name, "; theirs\n");
    }
    const auto openDialogs = [this] {
        const auto dialogs = m_window->findChildren<QDialog *>();
        return std::count_if(dialogs.cbegin(), dialogs.cend(),
                             [](const QDialog *each) { return each->isVisible(); });
    };
    QTest::keyClick(m_window.get(), Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(openDialogs(), 2);
    QTest::keyClick(m_window.get(), Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(openDialogs(), 2);
    answer("Keep &both");
    QCOMPARE(openDialogs(), 1);
    QCOMPARE(changes->unsavedFiles().size(), 1);
    const auto *message = part<QLabel>("What came of saving");
    QVERIFY2(message->text().startsWith(changes->unsavedFiles().constFirst() + ": somebody else"),
             qPrintable(message->text()));
    answer("Keep &both");
    QCOMPARE(openDialogs(), 0);
    for (const char *name : {"dark.theme", "light.theme"})
        QVERIFY(file(name).contains("=#ff00aa") && file(name).contains("; theirs"));
    QVERIFY2(message->text().startsWith("Saved "), qPrintable(message->text()));
}

void tst_Changing::changedBetweenEdits_data()
{
    QTest::addColumn<bool>("failsFirst");

    QTest::newRow("at-once") << false;
    QTest::newRow("after-one-that-cannot-be") << true;
}

// Nobody is asked where nothing can get lost.
void tst_Changing::changedBetweenEdits()
{
    QFETCH(bool, failsFirst);
    QVERIFY(choose("Values", "background-color"));
    type(part<QLineEdit>("Colour"), "#ff00aa");
    QTest::keyClick(part<QLineEdit>("Colour"), Qt::Key_S, Qt::ControlModifier);
    append("dark.theme", "; theirs\n");
    if (failsFirst)
        QVERIFY(!ProgramChanges::ofProgram()->setValue(m_folder->filePath("dark.theme"),
                                                       "Palettes//Bg", "1"));
    type(part<QLineEdit>("Colour"), "#aa00ff");
    QTest::keyClick(part<QLineEdit>("Colour"), Qt::Key_S, Qt::ControlModifier);
    QVERIFY(file("dark.theme").contains("=#aa00ff\n") && file("dark.theme").contains("; theirs\n"));
    QVERIFY(!m_window->findChild<QDialog *>());
    part<QToolButton>("Undo")->click(); // in the file as it is now
    QTest::keyClick(part<QLineEdit>("Colour"), Qt::Key_S, Qt::ControlModifier);
    QVERIFY(file("dark.theme").contains("=#ff00aa\n") && file("dark.theme").contains("; theirs\n"));
}

void tst_Changing::cannotBeSaved_data()
{
    QTest::addColumn<QString>("what");
    QTest::addColumn<QString>("told");

    QTest::newRow("resource")
        << "resource"
        << "inside the program, where nothing can be written; save it as a new theme";
    QTest::newRow("vanished") << "vanished"
                              << "no longer there; save it as a new theme";
    QTest::newRow("read-only") << "read-only"
                               << "may only be read; save it as a new theme";
}

void tst_Changing::cannotBeSaved()
{
    QFETCH(QString, what);
    QFETCH(QString, told);
    if (what == "resource") {
        openFolder(":/hvthemeapp/themes");
        settle();
    }
    QVERIFY(choose("Values", "background-color"));
    type(part<QLineEdit>("Colour"), "#ff00aa");
    QCOMPARE(ground(), QColor("#ff00aa"));
    if (what == "vanished")
        QVERIFY(QFile::remove(m_folder->filePath("dark.theme")));
    // The superuser may write all files, so it takes another user's part.
    const bool takesPart = what == "read-only" && ::geteuid() == 0;
    const uid_t nobody = 65534;
    if (what == "read-only") {
        QCOMPARE(::chmod(QFile::encodeName(m_folder->path()).constData(), 0777), 0);
        QCOMPARE(::chmod(QFile::encodeName(m_folder->filePath("dark.theme")).constData(), 0444), 0);
    }
    if (takesPart)
        QCOMPARE(::setresuid(nobody, nobody, 0), 0);
    QTest::keyClick(part<QLineEdit>("Colour"), Qt::Key_S, Qt::ControlModifier);
    if (takesPart)
        QCOMPARE(::setresuid(0, 0, 0), 0);
    const auto *message = part<QLabel>("What came of saving");
    QVERIFY2(message->isVisible() && message->text().contains(told), qPrintable(message->text()));
    QVERIFY(ProgramChanges::ofProgram()->isUnsaved());
    QCOMPARE(m_window->focusWidget(), part<QToolButton>("Save as a new theme")); // the way out

    QTest::keyClick(m_window->focusWidget(), Qt::Key_Space);
    auto *copy = dialog<QDialog>();
    const QString folder = m_folder->filePath("copy");
    type(part<QLineEdit>("Folder", copy), folder);
    type(part<QLineEdit>("Name", copy), "mine");
    QTest::keyClick(part<QLineEdit>("Name", copy), Qt::Key_Return);
    QFile made(folder + "/mine.theme");
    QVERIFY(made.open(QIODevice::ReadOnly) && made.readAll().contains("=#ff00aa"));
    QCOMPARE(m_theme->name(), QString("mine"));
    QCOMPARE(ground(), QColor("#ff00aa"));
    QVERIFY(!ProgramChanges::ofProgram()->isUnsaved());
}

void tst_Changing::saveAs_data()
{
    QTest::addColumn<QString>("suffix");
    QTest::newRow("usual-suffix") << "theme";
    QTest::newRow("another-suffix") << "look";
}

void tst_Changing::saveAs()
{
    QFETCH(QString, suffix);
    for (const char *name : {"default", "dark", "light"}) {
        const QString path = m_folder->filePath(name);
        QVERIFY(suffix == "theme" || QFile::rename(path + ".theme", path + '.' + suffix));
    }
    QVERIFY(m_theme->setSuffix(suffix));
    settle();
    const QByteArray dark = "dark." + suffix.toUtf8();
    const QByteArray night = "night." + suffix.toUtf8();
    QVERIFY(choose("Values", "background-color"));
    type(part<QLineEdit>("Colour"), "#ff00aa");
    const QByteArray before = file(dark.constData());
    QTest::keyClick(part<QLineEdit>("Colour"), Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    auto *copy = dialog<QDialog>();
    QCOMPARE(part<QLineEdit>("Name", copy)->text(), QString("dark-2"));
    type(part<QLineEdit>("Name", copy), "dark"); // taken
    QTest::keyClick(part<QLineEdit>("Name", copy), Qt::Key_Return);
    const auto *problem = part<QLabel>("Problem", copy);
    QVERIFY2(problem->isVisible() && problem->text().contains("there is such a theme already"),
             qPrintable(problem->text()));
    type(part<QLineEdit>("Name", copy), "night");
    QTest::keyClick(part<QLineEdit>("Name", copy), Qt::Key_Return);
    QVERIFY(file(night.constData()).contains("AccentBackgroundColor=#ff00aa"));
    QVERIFY(file(night.constData()).contains("ThemeName=night"));
    QCOMPARE(file(dark.constData()), before);
    QCOMPARE(m_theme->name(), QString("night"));
    QCOMPARE(part<QLabel>("What came of saving")->text(),
             "Saved as the new theme " + m_folder->filePath(QString::fromUtf8(night)) + '.');
}

// What is written nowhere stays unsaved.
void tst_Changing::saveAsKeepsOtherFiles()
{
    ProgramChanges *changes = ProgramChanges::ofProgram();
    const QString light = m_folder->filePath("light.theme");
    QVERIFY(changes->setValue(light, "Colors/AccentBackgroundColor", "#aa00ff"));
    QVERIFY(choose("Values", "background-color"));
    type(part<QLineEdit>("Colour"), "#ff00aa");
    QTest::keyClick(part<QLineEdit>("Colour"), Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    type(part<QLineEdit>("Name", dialog<QDialog>()), "night");
    QTest::keyClick(part<QLineEdit>("Name", dialog<QDialog>()), Qt::Key_Return);
    QCOMPARE(m_theme->name(), QString("night"));
    QVERIFY(file("night.theme").contains("AccentBackgroundColor=#ff00aa"));
    QCOMPARE(changes->unsavedFiles(), QStringList(light));
    QVERIFY(m_theme->setName("light"));
    QCOMPARE(ground(), QColor("#aa00ff"));
}

// A program that stays with its theme needs the changes.
void tst_Changing::saveAsCannotGoOn()
{
    QVERIFY(QDir(m_folder->path()).mkdir("templates"));
    QVERIFY(m_theme->addTemplates(m_folder->filePath("templates")));
    QVERIFY(choose("Values", "background-color"));
    type(part<QLineEdit>("Colour"), "#ff00aa");
    QVERIFY(QDir(m_folder->path()).rmdir("templates"));
    QTest::keyClick(part<QLineEdit>("Colour"), Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    type(part<QLineEdit>("Name", dialog<QDialog>()), "night");
    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression("^The templates folder .* does not exist"));
    QTest::keyClick(part<QLineEdit>("Name", dialog<QDialog>()), Qt::Key_Return);
    QVERIFY(file("night.theme").contains("AccentBackgroundColor=#ff00aa"));
    QCOMPARE(m_theme->name(), QString("dark"));
    QVERIFY(ProgramChanges::ofProgram()->isUnsaved());
    QCOMPARE(ground(), QColor("#ff00aa"));
    const auto *message = part<QLabel>("What came of saving");
    QVERIFY2(message->text().startsWith("Saved as the new theme ")
                 && message->text().contains(" The program cannot go on with it: "),
             qPrintable(message->text()));
}

void tst_Changing::closing_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<bool>("isClosed");
    QTest::addColumn<bool>("isSaved");
    QTest::addColumn<bool>("isInForce");

    QTest::newRow("save") << "&Save" << true << true << true;
    QTest::newRow("keep") << "&Keep for now" << true << false << true;
    QTest::newRow("discard") << "&Discard" << true << false << false;
    QTest::newRow("cancel") << "Cancel" << false << false << true;
}

void tst_Changing::closing()
{
    QFETCH(QString, button);
    QFETCH(bool, isClosed);
    QFETCH(bool, isSaved);
    QFETCH(bool, isInForce);
    QVERIFY(!m_window->testAttribute(Qt::WA_QuitOnClose));
    QVERIFY(choose("Values", "background-color"));
    type(part<QLineEdit>("Colour"), "#ff00aa");
    QVERIFY(m_window->testAttribute(Qt::WA_QuitOnClose)); // a program does not end over it
    bool isAsked = false;
    QTimer::singleShot(0, this, [&] {
        const auto buttons = dialog<QMessageBox>()->findChildren<QPushButton *>();
        for (QPushButton *each : buttons) {
            if (each->text().contains(button)) {
                isAsked = true;
                QTest::mouseClick(each, Qt::LeftButton);
            }
        }
        QVERIFY(isAsked);
    });
    m_window->close();
    QVERIFY(isAsked);
    QCOMPARE(m_window->isVisible(), !isClosed);
    QCOMPARE(file("dark.theme").contains("#ff00aa"), isSaved);
    QCOMPARE(ground() == QColor("#ff00aa"), isInForce);
    if (m_window->isVisible()) { // nothing else is open then, so closing it ends the program
        m_program->hide();
        QTimer::singleShot(0, this, [&] {
            const auto buttons = dialog<QMessageBox>()->findChildren<QPushButton *>();
            for (QPushButton *each : buttons)
                QVERIFY(!each->text().contains("Keep"));
            dialog<QMessageBox>()->reject();
        });
        m_window->close();
        QVERIFY(m_window->isVisible());
    }
    if (button == "&Keep for now") {
        m_window = std::make_unique<InspectorWindow>();
        m_window->setAttribute(Qt::WA_DeleteOnClose, false);
        QCOMPARE(part<QTreeWidget>("Changes")->topLevelItemCount(), 1);
    }
}

// The program closes the inspector without a question, even while it asks one.
void tst_Changing::closedWhileAsked()
{
    QVERIFY(choose("Values", "background-color"));
    type(part<QLineEdit>("Colour"), "#ff00aa");
    bool isAsked = false;
    QTimer::singleShot(0, this, [&] {
        isAsked = dialog<QMessageBox>() != nullptr;
        m_window.reset();
    });
    InspectorWindow *window = m_window.get();
    window->close();
    QVERIFY(isAsked && !m_window);
    QVERIFY(ProgramChanges::ofProgram()->isUnsaved());
    QCOMPARE(ground(), QColor("#ff00aa"));
}

// The inspector stays for its question; the program then ends with it.
void tst_Changing::lastWindow()
{
    const auto endsProgram = [](QWidget *window) {
        QSignalSpy ended(qApp, &QGuiApplication::lastWindowClosed);
        QTimer::singleShot(0, window, &QWidget::close);
        QTimer::singleShot(200, window, [] { QCoreApplication::exit(); });
        QCoreApplication::exec(); // it is only said while there are events
        return !ended.isEmpty();
    };
    QVERIFY(choose("Values", "background-color"));
    type(part<QLineEdit>("Colour"), "#ff00aa");
    QVERIFY(!endsProgram(m_program.get()));
    QTest::keyClick(part<QLineEdit>("Colour"), Qt::Key_S, Qt::ControlModifier);
    QVERIFY(!ProgramChanges::ofProgram()->isUnsaved());
    QVERIFY(endsProgram(m_window.get()));
    m_window->show();
    m_program->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_program.get()));
    QVERIFY(endsProgram(m_program.get())); // there is nothing to ask any more
}

void tst_Changing::brokenMeanwhile()
{
    QVERIFY(QDir(m_folder->path()).removeRecursively());
    settle();
    QVERIFY(choose("Values", "background-color"));
    const auto *title = part<QLabel>("What is changed");
    QVERIFY2(title->isVisible() && title->text().startsWith("The theme's files cannot be read: "),
             qPrintable(title->text()));
}

void tst_Changing::anotherThemeMeanwhile()
{
    QVERIFY(choose("Values", "background-color"));
    type(part<QLineEdit>("Colour"), "#ff00aa");
    QVERIFY(m_theme->setName("light"));
    settle();
    QVERIFY(m_window->findChildren<QRadioButton *>().constFirst()->text().contains("light.theme"));
    QVERIFY(ProgramChanges::ofProgram()->isUnsaved());
    QVERIFY(m_theme->setName("dark"));
    QCOMPARE(ground(), QColor("#ff00aa"));
}

// A program may show theme files otherwise than they are written.
void tst_Changing::textsOfTheProgram()
{
    QHash<QString, QByteArray> texts;
    texts.insert(m_folder->filePath("light.theme"), file("light.theme") + "; of the program\n");
    QVERIFY(m_theme->setUnsavedTexts(texts));
    QVERIFY(choose("Values", "background-color"));
    type(part<QLineEdit>("Colour"), "#ff00aa");
    QCOMPARE(m_theme->unsavedTexts().size(), 2);
    part<QToolButton>("Undo")->click();
    QCOMPARE(m_theme->unsavedTexts(), texts);
    part<QToolButton>("Redo")->click();
    QTest::keyClick(part<QLineEdit>("Colour"), Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(m_theme->unsavedTexts(), texts);
    QCOMPARE(ground(), QColor("#ff00aa"));
}

void tst_Changing::byKeysAlone()
{
    auto *values = part<QTreeWidget>("Values");
    values->setFocus();
    const auto keyTo = [&](const char *property) {
        for (int i = 0; i < 300; ++i) {
            QTest::keyClick(values, i == 0 ? Qt::Key_Home : Qt::Key_Down);
            if (values->currentItem()->data(0, InspectorLists::Property) == property)
                return true;
        }
        return false;
    };
    QVERIFY(keyTo("background-color"));
    QTest::keyClick(values, Qt::Key_Return);
    QCOMPARE(m_window->focusWidget(), part<QLineEdit>("Colour"));
    QTest::keyClick(m_window->focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
    QVERIFY(qobject_cast<QRadioButton *>(m_window->focusWidget()));
    QTest::keyClick(m_window->focusWidget(), Qt::Key_Down); // the palette entry
    QTest::keyClick(m_window->focusWidget(), Qt::Key_Space);
    QTest::keyClick(m_window->focusWidget(), Qt::Key_Tab);
    QCOMPARE(m_window->focusWidget(), part<QLineEdit>("Colour"));
    part<QLineEdit>("Colour")->selectAll();
    QTest::keyClicks(m_window->focusWidget(), "#ff00aa");
    QTest::keyClick(m_window->focusWidget(), Qt::Key_S, Qt::ControlModifier);
    QVERIFY(file("default.theme").contains("Brand_6=#ff00aa\n"));
    QCOMPARE(ground(), QColor("#ff00aa"));
}

void tst_Changing::accessibleNames()
{
    QVERIFY(choose("Values", "background-color"));
    QTest::keyClick(m_window.get(), Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    const auto widgets = m_window->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        const bool isInner = widget->objectName().startsWith("qt_")
            || qobject_cast<QTabBar *>(widget) || qobject_cast<QHeaderView *>(widget)
            || qobject_cast<QDialog *>(widget) || qobject_cast<QTabWidget *>(widget)
            || qobject_cast<QAbstractItemView *>(widget->parentWidget());
        const auto *button = qobject_cast<QAbstractButton *>(widget);
        if (widget->focusPolicy() == Qt::NoFocus || isInner || widget->isHidden()
            || (button && !button->text().isEmpty()) || widget->inherits("QComboBoxListView")
            || widget->inherits("QComboBoxPrivateContainer"))
            continue;
        QVERIFY2(!widget->accessibleName().isEmpty(), widget->metaObject()->className());
    }
}

QTEST_MAIN(tst_Changing)

#include "tst_changing.moc"
