// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "quietplatform.h"

#include <analysis/messagelog.h>
#include <inspector/inspection.h>
#include <inspector/mismatch.h>
#include <inspector/usage.h>

#include <hvthemeapp/applicationtheme.h>

#include <QtTest>
#include <QtWidgets>

namespace
{

// A window with one of what the tests look at.
class Window : public QWidget
{
public:
    Window()
        : button(new QPushButton("Push", this))
        , label(new QLabel("Label", this))
        , spin(new QSpinBox(this))
        , list(new QListWidget(this))
    {
        button->setObjectName("ok");
        button->setProperty("style", "general");
        list->addItems({"one", "two", "three"});
        auto *column = new QVBoxLayout(this);
        for (QWidget *widget : QList<QWidget *>{button, label, spin, list})
            column->addWidget(widget);
        setAttribute(Qt::WA_DontShowOnScreen);
        show();
    }

    QPushButton *button;
    QLabel *label;
    QSpinBox *spin;
    QListWidget *list;
};

WidgetPart itself(const QWidget *widget)
{
    return widgetParts(widget).constFirst();
}

const InspectedRule *ruleOf(const Inspection &inspection, const QString &selector)
{
    for (const InspectedRule &rule : inspection.rules) {
        if (rule.selector == selector)
            return &rule;
    }
    return nullptr;
}

} // namespace

class tst_Inspection : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void rulesInOrder();
    void chainOfAValue();
    void plainValues();
    void plainGround_data();
    void plainGround();
    void ownStyleSheet();
    void unreadStyleSheet();
    void pathWithASpace();
    void replacedStyleSheet();
    void ruleOfTwoTemplates();
    void containers();
    void parts();
    void pagesOfOneTitle();
    void alternateRows_data();
    void alternateRows();
    void whyNot_data();
    void whyNot();
    void users();
    void contrast();
    void textOfToolButtons_data();
    void textOfToolButtons();
    void dyingWidget();

private:
    std::unique_ptr<QuietPlatform> m_quiet;
    HV::ApplicationTheme m_theme;
};

void tst_Inspection::initTestCase()
{
    m_quiet = std::make_unique<QuietPlatform>();
    QVERIFY(m_theme.setName("dark"));
}

void tst_Inspection::rulesInOrder()
{
    Window window;
    const auto sheet = InspectedSheet::inForce();
    const Inspection inspection = Inspection::of(window.button, itself(window.button), *sheet);
    const InspectedRule *strong = ruleOf(inspection, "QPushButton[style=\"general\"]");
    if (!strong)
        strong = ruleOf(inspection, "QPushButton[style=general]");
    QVERIFY(strong);
    QCOMPARE(strong->specificity, 17);
    QVERIFY(strong->place.file.endsWith(".qss"));
    QVERIFY(strong->place.position.line > 0);
    // The general rule for all widgets loses its colour to the one of this variant.
    int overridden = 0;
    for (const InspectedRule &rule : inspection.rules) {
        for (const InspectedDeclaration &declaration : rule.declarations) {
            if (!declaration.isOverridden())
                continue;
            ++overridden;
            QVERIFY(!declaration.overriddenBy.isEmpty());
        }
    }
    QVERIFY(overridden > 0);
}

void tst_Inspection::chainOfAValue()
{
    Window window;
    const auto sheet = InspectedSheet::inForce();
    const Inspection inspection = Inspection::of(window.button, itself(window.button), *sheet);
    const InspectedValue *value = inspection.value("background-color");
    QVERIFY(value && value->isOfRule());
    QVERIFY2(value->origin.value.contains("global.theme.color."), qPrintable(value->origin.value));
    QCOMPARE(value->chains.size(), 1);
    const ValueChain &chain = value->chains.constFirst();
    QVERIFY(value->value.contains(chain.value));
    QVERIFY(!chain.palette.isEmpty());
    QVERIFY(chain.steps.size() >= 2);
    // Each step stands where it says it does.
    for (const ExplanationStep &step : chain.steps) {
        if (step.topic != ExplanationStep::Topic::Origin)
            continue;
        QFile file(step.place.file);
        QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(step.place.file));
        const QByteArray line = file.readAll().split('\n').value(step.place.position.line - 1);
        const QString name = step.text.section("] ", 1).section('=', 0, 0);
        QCOMPARE(QString::fromUtf8(line).mid(step.place.position.column - 1, name.size()), name);
    }
}

void tst_Inspection::plainValues()
{
    Window window;
    const auto sheet = std::make_unique<InspectedSheet>(QString(), InspectedTheme());
    QPalette palette = window.palette();
    palette.setColor(QPalette::WindowText, Qt::red);
    window.setPalette(palette);
    const Inspection inspection = Inspection::of(window.label, itself(window.label), *sheet);
    const InspectedValue *color = inspection.value("color");
    QVERIFY(color);
    QVERIFY(!color->isOfRule());
    QVERIFY2(color->source.startsWith("WindowText of "), qPrintable(color->source));
    QVERIFY(inspection.value("padding-top")->source.startsWith("as the style draws it"));
}

void tst_Inspection::plainGround_data()
{
    QTest::addColumn<QWidget *>("widget");
    QTest::addColumn<QString>("ground");
    QTest::addColumn<QString>("text");

    auto *tree = new QTreeWidget;
    tree->setHeaderHidden(true);
    auto *combo = new QComboBox;
    combo->setEditable(true);
    combo->setFixedWidth(100);
    // clang-format off
    QTest::newRow("tree") << static_cast<QWidget *>(tree) << "Base" << "Text";
    QTest::newRow("list") << static_cast<QWidget *>(new QListWidget) << "Base" << "Text";
    QTest::newRow("table") << static_cast<QWidget *>(new QTableWidget) << "Base" << "Text";
    QTest::newRow("text") << static_cast<QWidget *>(new QPlainTextEdit) << "Base" << "Text";
    QTest::newRow("scroll-area") << static_cast<QWidget *>(new QScrollArea) << "Window" << "WindowText";
    QTest::newRow("line") << static_cast<QWidget *>(new QLineEdit) << "Base" << "Text";
    QTest::newRow("spin-box") << static_cast<QWidget *>(new QSpinBox) << "Base" << "Text";
    QTest::newRow("editable-box") << static_cast<QWidget *>(combo) << "Base" << "Text";
    QTest::newRow("window") << new QWidget << "Window" << "WindowText";
    // clang-format on
}

// Where no rule says it, the ground is what the widget paints.
void tst_Inspection::plainGround()
{
    QFETCH(QWidget *, widget);
    QFETCH(QString, ground);
    QFETCH(QString, text);
    const std::unique_ptr<QWidget> owner(widget);
    const QString before = qApp->styleSheet();
    qApp->setStyleSheet(QString());
    QPalette palette;
    palette.setColor(QPalette::Base, QColor(1, 2, 3));
    palette.setColor(QPalette::Text, QColor(4, 5, 6));
    palette.setColor(QPalette::Window, QColor(7, 8, 9));
    palette.setColor(QPalette::WindowText, QColor(10, 11, 12));
    widget->setPalette(palette);
    const InspectedSheet sheet(QString(), {});
    const Inspection inspection = Inspection::of(widget, itself(widget), sheet);
    const QImage painted = widget->grab().toImage();
    qApp->setStyleSheet(before);
    const InspectedValue *color = inspection.value("background-color");
    QCOMPARE(color->source.section(' ', 0, 0), ground);
    QCOMPARE(color->value, painted.pixelColor(painted.rect().center()).name());
    QCOMPARE(inspection.value("color")->source.section(' ', 0, 0), text);
}

void tst_Inspection::ownStyleSheet()
{
    Window window;
    window.label->setStyleSheet("color: #010203");
    const auto sheet = InspectedSheet::inForce();
    const Inspection inspection = Inspection::of(window.label, itself(window.label), *sheet);
    QCOMPARE(inspection.value("color")->value, QString("#010203"));
    QCOMPARE(inspection.rules.constFirst().source, QString("QLabel"));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^Could not parse stylesheet of object"));
    window.label->setStyleSheet("QLabel { color: ");
    const Inspection broken = Inspection::of(window.label, itself(window.label), *sheet);
    QVERIFY(broken.value("color"));
    QVERIFY(broken.value("color")->match.sheet == StyleMatch::application
            || !broken.value("color")->isOfRule());
    // The same as Qt, which keeps what it has read.
    for (const char *text : {"QLabel { color: #010203 } } QLabel { color: #040506 }",
                             "QLabel { color: #010203 } QLabel [ { color: #040506 }",
                             "QLabel [ { color: #040506 } QLabel { color: #010203 }"}) {
        const MessageLog silence; // Qt says once or twice that it cannot read it all
        window.label->setStyleSheet(text);
        window.label->ensurePolished();
        const Inspection partly = Inspection::of(window.label, itself(window.label), *sheet);
        QCOMPARE(QColor(partly.value("color")->value).name(),
                 window.label->palette().color(QPalette::WindowText).name());
    }
}

// Qt reads an application's style sheet up to its first mistake.
void tst_Inspection::unreadStyleSheet()
{
    Window window;
    const QString whole = qApp->styleSheet();
    const QString own("QLabel { color: #112233 }\n} QLabel { color: #445566 }");
    QTest::ignoreMessage(QtWarningMsg, "Could not parse application stylesheet");
    qApp->setStyleSheet(own);
    window.label->ensurePolished();
    const QColor painted = window.label->palette().color(QPalette::WindowText);
    const auto sheet = InspectedSheet::inForce();
    const Inspection inspection = Inspection::of(window.label, itself(window.label), *sheet);
    const Place unread = sheet->unreadPlace();
    qApp->setStyleSheet(whole);
    QCOMPARE(painted.name(), QString("#112233"));
    QCOMPARE(inspection.value("color")->value, QString("#112233"));
    QCOMPARE(unread.position.line, 2);
    QCOMPARE(InspectedSheet::inForce()->unreadPlace().position.line, 0);
}

// The application library quotes paths with a space, which the templates do not.
void tst_Inspection::pathWithASpace()
{
    InspectedTheme theme = InspectedTheme::inForce();
    const QString path = theme.values.value("turn_prev").toString();
    QVERIFY(!path.isEmpty());
    theme.values.insert("turn_prev", "/my icons/prev.svg");
    QString text = qApp->styleSheet();
    text.replace("url(" + path + ")", "url(\"/my icons/prev.svg\")");
    const InspectedSheet sheet(text, theme);
    const int at = int(text.indexOf("/my icons/"));
    QVERIFY(at > 0);
    const DeclarationOrigin origin = sheet.originOf(at);
    QVERIFY(origin.isTemplate());
    QCOMPARE(origin.tokens.value(0).key, QString("turn_prev"));
}

void tst_Inspection::replacedStyleSheet()
{
    Window window;
    const QString own("QLabel { color: #112233 }");
    InspectedSheet sheet(own, InspectedTheme::inForce());
    const Inspection inspection = Inspection::of(window.label, itself(window.label), sheet);
    QCOMPARE(inspection.value("color")->value, QString("#112233"));
    QVERIFY(!inspection.value("color")->origin.isTemplate());
    QCOMPARE(inspection.value("color")->origin.place.position.column, 10);
    // What the program adds behind the theme leaves the theme's places what they are.
    InspectedSheet both(qApp->styleSheet() + own, InspectedTheme::inForce());
    const Inspection added = Inspection::of(window.button, itself(window.button), both);
    QVERIFY(added.value("background-color")->origin.isTemplate());
}

// Templates are put together as they are, whatever one ends with.
void tst_Inspection::ruleOfTwoTemplates()
{
    QTemporaryDir folder;
    InspectedTheme theme = InspectedTheme::inForce();
    theme.templates.clear();
    QString text;
    for (const char *part : {"QLabel,\n", "QFrame { color: #112233 }\n"}) {
        const QString path = folder.filePath(QString::number(theme.templates.size()) + ".qss");
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(part) > 0);
        theme.templates.append({path, "global.theme"});
        text += QLatin1String(part);
    }
    const InspectedSheet sheet(text, theme);
    const StyleRule &rule = sheet.rules().rules().constFirst();
    QCOMPARE(rule.start, 0);
    QCOMPARE(sheet.placeOfRule(rule.start).position.line, 1);
    QCOMPARE(sheet.originOf(rule.declarations.constFirst().start).value, QString("#112233"));
    Window window;
    QCOMPARE(Inspection::of(window.label, itself(window.label), sheet).value("color")->value,
             QString("#112233"));
}

void tst_Inspection::containers()
{
    Window window;
    const auto sheet = InspectedSheet::inForce();
    auto *edit = window.spin->findChild<QLineEdit *>();
    QVERIFY(edit);
    const Inspection inner = Inspection::of(edit, WidgetPart(), *sheet);
    QCOMPARE(inner.styledWidget.data(), window.spin);
    QWidget *viewport = window.list->viewport();
    QCOMPARE(Inspection::of(viewport, WidgetPart(), *sheet).styledWidget.data(), window.list);
}

void tst_Inspection::parts()
{
    Window window;
    window.list->setCurrentRow(1);
    const QVector<WidgetPart> parts = widgetParts(window.list);
    QStringList selected;
    for (const WidgetPart &part : parts) {
        if (part.subControl == "item" && part.states.contains("selected"))
            selected << part.label;
    }
    QCOMPARE(selected, QStringList("two"));
    const QRect second = window.list->visualItemRect(window.list->item(1));
    QCOMPARE(widgetPartAt(window.list, second.center()).label, QString("two"));
    QCOMPARE(widgetPartAt(window.label, QPoint(1, 1)).subControl, QString());
}

void tst_Inspection::pagesOfOneTitle()
{
    QToolBox box;
    for (const char *name : {"last", "first"})
        box.insertItem(0, new QLabel(name), "Page");
    box.resize(200, 200);
    box.grab(); // lays it out
    QVector<QRect> rects;
    const QVector<WidgetPart> parts = widgetParts(&box);
    for (const WidgetPart &part : parts) {
        if (part.subControl == "tab")
            rects << part.rect;
    }
    QCOMPARE(rects.size(), 2);
    QVERIFY(!rects.at(0).isEmpty() && !rects.at(1).isEmpty());
    QVERIFY(rects.at(0).bottom() < rects.at(1).top());
}

void tst_Inspection::alternateRows_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<bool>("hidesOne");

    QTest::newRow("list") << "list" << false;
    QTest::newRow("list-hidden-row") << "list" << true;
    QTest::newRow("table") << "table" << false;
    QTest::newRow("table-hidden-row") << "table" << true;
    QTest::newRow("tree") << "tree" << false;
}

// Qt counts from the first row, not from the first that is scrolled into sight.
void tst_Inspection::alternateRows()
{
    QFETCH(QString, kind);
    QFETCH(bool, hidesOne);
    QListWidget list;
    QTableWidget table(60, 3);
    QTreeWidget tree;
    for (int i = 0; i < 60; ++i) {
        list.addItem(QString::number(i));
        table.setItem(i, 0, new QTableWidgetItem(QString::number(i)));
        QTreeWidgetItem *above =
            i % 2 == 0 ? tree.invisibleRootItem() : tree.topLevelItem(tree.topLevelItemCount() - 1);
        new QTreeWidgetItem(above, {QString::number(i)});
    }
    tree.expandAll();
    list.setRowHidden(2, hidesOne);
    table.setRowHidden(2, hidesOne);
    QAbstractItemView *view = &list;
    if (kind != "list")
        view = kind == "table" ? static_cast<QAbstractItemView *>(&table) : &tree;
    view->setAlternatingRowColors(true);
    view->setAttribute(Qt::WA_DontShowOnScreen);
    view->resize(240, 200);
    view->show();
    const QVector<WidgetPart> unscrolled = widgetParts(view);
    QVERIFY(unscrolled.size() < 30); // what lies below is not looked at
    const QModelIndex eleventh = kind == "tree"
        ? tree.model()->index(0, 0, tree.model()->index(5, 0))
        : view->model()->index(11, 0);
    view->scrollTo(eleventh, QAbstractItemView::PositionAtTop);
    int found = 0;
    const QVector<WidgetPart> parts = widgetParts(view);
    for (const WidgetPart &part : parts) {
        const int number = part.label.toInt();
        if (part.subControl != "item" || part.label.isEmpty())
            continue;
        QVERIFY(number > 9);
        ++found;
        QCOMPARE(part.states.contains("alternate"), (number - (hidesOne ? 1 : 0)) % 2 == 1);
    }
    QVERIFY(found > 3);
}

void tst_Inspection::whyNot_data()
{
    QTest::addColumn<QString>("selector");
    QTest::addColumn<QString>("reason");

    QTest::newRow("matches") << "QPushButton#ok[style=\"general\"]:enabled"
                             << "";
    QTest::newRow("class") << "QLabel"
                           << "QLabel: the class is QPushButton and not derived from QLabel";
    QTest::newRow("name") << "QPushButton#no"
                          << "#no: the object is called \"ok\"";
    QTest::newRow("property") << "*[style=\"other\"]"
                              << "[style=\"other\"]: its property \"style\" is \"general\"";
    QTest::newRow("no-property") << "*[kind]"
                                 << "[kind]: it has no property \"kind\"";
    QTest::newRow("state") << "QPushButton:hover"
                           << ":hover: it is not in the state :hover";
    QTest::newRow("not-state") << "QPushButton:!enabled"
                               << ":!enabled: it is in the state :enabled";
    QTest::newRow("part")
        << "QPushButton::menu-indicator"
        << "::menu-indicator: it is for the part ::menu-indicator, not for the widget itself";
    QTest::newRow("ancestor") << "QDialog QPushButton"
                              << "QDialog: no ancestor is such a QDialog";
    QTest::newRow("parent") << "QFrame > QPushButton"
                            << "QFrame: the parent is QWidget";
    QTest::newRow("sibling") << "QLabel + QPushButton"
                             << "QLabel: widgets have no siblings in style sheets";
    QTest::newRow("unreadable") << "QPushButton["
                                << "Qt cannot read this selector";
}

void tst_Inspection::whyNot()
{
    QFETCH(QString, selector);
    QFETCH(QString, reason);
    Window window;
    const StyleElement element = StyleElement::of(window.button, {"kind", "style"});
    const SelectorVerdict verdict = ::whyNot(selector, element);
    QCOMPARE(verdict.reason, reason);
    QCOMPARE(verdict.matches, reason.isEmpty());
}

void tst_Inspection::users()
{
    Window window;
    const auto sheet = InspectedSheet::inForce();
    const Inspection inspection = Inspection::of(window.button, itself(window.button), *sheet);
    const InspectedValue *value = inspection.value("background-color");
    const QList<QWidget *> all{window.button, window.label, window.spin, window.list};
    const QString key = value->chains.constFirst().token.key;
    const auto isButton = [&](const QVector<StyleUser> &users) {
        return std::any_of(users.cbegin(), users.cend(),
                           [&](const StyleUser &user) { return user.widget == window.button; });
    };
    QVERIFY(isButton(usersOf(sheet->declarationsOfKey(key), all, *sheet)));
    QVERIFY(isButton(
        usersOf(sheet->declarationsOfPalette(value->chains.constFirst().palette.constFirst()), all,
                *sheet)));
    const auto ofRule = usersOf(sheet->declarationsOfRule(value->match.offset), all, *sheet);
    QVERIFY(isButton(ofRule));
    for (const StyleUser &user : ofRule)
        QVERIFY(user.widget != window.label);
    QVERIFY(usersOf(sheet->declarationsOfKey("NoSuchKey"), all, *sheet).isEmpty());
}

void tst_Inspection::contrast()
{
    Window window;
    window.label->setStyleSheet("color: #777777; background: #707070");
    window.label->resize(200, 40);
    const auto sheet = InspectedSheet::inForce();
    const Inspection inspection = Inspection::of(window.label, itself(window.label), *sheet);
    const auto contrast = textContrast(inspection, {}, *sheet);
    QVERIFY(contrast);
    QCOMPARE(contrast->ground.name(), QString("#707070"));
    QVERIFY(!contrast->passes());
    QVERIFY(!contrast->passingEntry.isEmpty());
}

void tst_Inspection::textOfToolButtons_data()
{
    QTest::addColumn<int>("style");
    QTest::addColumn<bool>("hasIcon");
    QTest::addColumn<bool>("hasText");

    QTest::newRow("icon-only") << int(Qt::ToolButtonIconOnly) << true << false;
    QTest::newRow("as-the-style-has-it") << int(Qt::ToolButtonFollowStyle) << true << false;
    QTest::newRow("beside") << int(Qt::ToolButtonTextBesideIcon) << true << true;
    QTest::newRow("text-only") << int(Qt::ToolButtonTextOnly) << true << true;
    QTest::newRow("no-icon") << int(Qt::ToolButtonIconOnly) << false << true;
}

void tst_Inspection::textOfToolButtons()
{
    QFETCH(int, style);
    QFETCH(bool, hasIcon);
    QFETCH(bool, hasText);
    QWidget window;
    QToolButton button(&window);
    button.setText("Open");
    button.setToolButtonStyle(Qt::ToolButtonStyle(style));
    if (hasIcon) {
        QPixmap icon(16, 16);
        icon.fill(Qt::red);
        button.setIcon(icon);
    }
    button.resize(60, 30);
    const auto sheet = InspectedSheet::inForce();
    const Inspection inspection = Inspection::of(&button, itself(&button), *sheet);
    QCOMPARE(textContrast(inspection, {}, *sheet).has_value(), hasText);
}

void tst_Inspection::dyingWidget()
{
    auto window = std::make_unique<Window>();
    const auto sheet = InspectedSheet::inForce();
    const Inspection inspection = Inspection::of(window->button, itself(window->button), *sheet);
    window.reset();
    QVERIFY(!inspection.widget);
    QVERIFY(!textContrast(inspection, {}, *sheet));
    QVERIFY(!inspection.values.isEmpty());
}

QTEST_MAIN(tst_Inspection)

#include "tst_inspection.moc"
