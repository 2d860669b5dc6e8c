// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "quietplatform.h"
#include "stylabletable.h"
#include "widgetzoo.h"

#include <colormath/contrast.h>
#include <hvthemeapp/applicationtheme.h>

#include <QtTest>
#include <QtWidgets>

using Stylable::Row;

namespace
{

/*! The last part of a selector, which names what the rule is for. */
struct Subject {
    QString element;
    QString subControl;
    QSet<QString> states;
    QString attributes;

    explicit Subject(const QString &selector)
    {
        static const QRegularExpression parts(
            QStringLiteral("(\\[[^\\]]*\\])|(::?)(!?[\\w-]+)|(#[\\w]+)|([A-Za-z_*][\\w-]*)"));
        static const QStringList subControls = Stylable::referenceSubControls();
        const QString last = selector.trimmed().section(QRegularExpression("\\s+"), -1);
        for (auto it = parts.globalMatch(last); it.hasNext();) {
            const QRegularExpressionMatch match = it.next();
            const QString name = match.captured(3);
            if (!match.captured(1).isEmpty())
                attributes += match.captured(1);
            else if (match.captured(2) == "::" || subControls.contains(name))
                subControl = name;
            else if (!name.isEmpty())
                states << name;
            else if (!match.captured(5).isEmpty())
                element = match.captured(5);
        }
    }

    /*! Whether \a rule says something about what this names, on \a widget or on what it is made of. */
    bool isReachedBy(const Subject &rule, const QWidget &widget) const
    {
        const bool isElement = rule.element == element
            || (rule.element != "*" && widget.inherits(qUtf8Printable(element))
                && widget.inherits(qUtf8Printable(rule.element)));
        return isElement && (subControl.isEmpty() || rule.subControl == subControl)
            && rule.states.contains(states) && rule.attributes.contains(attributes);
    }
};

/*! \a styleSheet without the rules for what \a selectors name; counts them in \a count. */
QString withoutRules(QString styleSheet, const QString &selectors, const QWidget &widget,
                     int *count)
{
    styleSheet.remove(
        QRegularExpression("/\\*.*?\\*/", QRegularExpression::DotMatchesEverythingOption));
    QVector<Subject> wanted;
    for (const QString &selector : selectors.split(','))
        wanted << Subject(selector);
    QString rest;
    static const QRegularExpression rule(QStringLiteral("([^{}]*)\\{([^{}]*)\\}"));
    for (auto it = rule.globalMatch(styleSheet); it.hasNext();) {
        const QRegularExpressionMatch match = it.next();
        QStringList kept;
        for (const QString &selector : match.captured(1).split(',')) {
            const Subject subject(selector);
            const bool isOne = std::any_of(wanted.cbegin(), wanted.cend(), [&](const Subject &one) {
                return one.isReachedBy(subject, widget);
            });
            *count += isOne ? 1 : 0;
            if (!isOne)
                kept << selector;
        }
        if (!kept.isEmpty())
            rest += kept.join(',') + '{' + match.captured(2) + "}\n";
    }
    return rest;
}

/*! What somebody can tell from \a other: a few pixels, by more than a shade. */
bool looksDifferent(const QImage &one, const QImage &other)
{
    constexpr int few = 3;
    constexpr double shade = 1.03;
    if (one.size() != other.size())
        return true;
    int count = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QColor a(one.pixel(x, y));
            const QColor b(other.pixel(x, y));
            const bool isSeen = a != b
                && (ColorMath::contrastRatio(a, b) >= shade
                    || qAbs(a.hsvHue() - b.hsvHue()) + qAbs(a.saturation() - b.saturation()) > 40);
            if (isSeen && ++count >= few)
                return true;
        }
    }
    return false;
}

/*! What a row is looked at on. */
class Specimen
{
public:
    explicit Specimen(const Row &row, bool isHeld = true)
        : m_window(row.make())
    {
        if (m_window->layoutDirection() == Qt::LeftToRight
            && !m_window->testAttribute(Qt::WA_Resized))
            m_window->adjustSize();
        Zoo::settle(m_window.get());
        m_subject = row.find ? row.find(m_window.get()) : find(row.selector);
        if (!m_subject)
            return;
        if (isHeld && row.hold)
            row.hold(m_subject);
        for (int round = 0; round < 2; ++round) {
            QCoreApplication::sendPostedEvents();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
        }
        const QRect part = row.area ? row.area(m_subject) : m_subject->rect();
        QWidget *const window = m_subject->window();
        window->grab();
        const QPoint at = m_subject->mapTo(window, QPoint());
        m_picture =
            window->grab(part.translated(at)).toImage().convertToFormat(QImage::Format_RGB32);
    }

    ~Specimen() { QToolTip::hideText(); }
    Q_DISABLE_COPY(Specimen)

    QWidget *subject() const { return m_subject; }
    QImage picture() const { return m_picture; }

private:
    QWidget *find(const QString &selector) const
    {
        const QByteArray name = Subject(selector).element.toLatin1();
        if (m_window->inherits(name.constData()))
            return m_window.get();
        const auto all = m_window->findChildren<QWidget *>();
        for (QWidget *widget : all) {
            if (widget->inherits(name.constData()) && widget->isVisible())
                return widget;
        }
        return nullptr;
    }

    std::unique_ptr<QWidget> m_window;
    QWidget *m_subject = nullptr;
    QImage m_picture;
};

} // namespace

/*!
 * That every class, sub-control and state of Qt's style sheet reference, and every standard dialog, is
 * seen to in every look. Whoever a row names is taken away, and the picture must then be another.
 */
class tst_StylableWidgets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void cleanup();

    void complete_data();
    void complete();
    void covered_data();
    void covered();
    void probed_data();
    void probed();
    void dialog_data();
    void dialog();

private:
    void setLook(const QString &look, const Row &row);
    QImage picture(const Row &row) const { return Specimen(row).picture(); }
    QImage withoutRules(const Row &row, int *count);
    QImage withPlainStyle(const Row &row);
    bool hasRole(const Row &row);
    QImage unthemed(const Row &row);

    std::unique_ptr<QuietPlatform> m_quiet;
    QPalette m_startPalette;
    HV::ApplicationTheme m_theme;
};

void tst_StylableWidgets::initTestCase()
{
    m_quiet = std::make_unique<QuietPlatform>();
    m_startPalette = QApplication::palette();
}

void tst_StylableWidgets::cleanupTestCase()
{
    m_quiet.reset();
}

void tst_StylableWidgets::cleanup()
{
    qApp->setStyleSheet(QString());
}

void tst_StylableWidgets::setLook(const QString &look, const Row &row)
{
    QApplication::setStyle(row.style);
    QVERIFY(m_theme.setName(look));
    m_theme.restyleAgain(); // gives the style its drawings
}

QImage tst_StylableWidgets::withoutRules(const Row &row, int *count)
{
    {
        const Specimen specimen(row);
        qApp->setStyleSheet(
            ::withoutRules(qApp->styleSheet(), row.rules, *specimen.subject(), count));
    }
    return picture(row);
}

// Qt's own in the place of the library's, with the same palette and rules.
QImage tst_StylableWidgets::withPlainStyle(const Row &row)
{
    QStyle *plain = QStyleFactory::create("fusion");
    plain->setObjectName("plain"); // one that the library takes for a program's
    QApplication::setStyle(plain);
    QImage without = picture(row);
    QApplication::setStyle(row.style);
    return without;
}

// Where no rule for all widgets gives a colour: programs that keep their fonts have none.
bool tst_StylableWidgets::hasRole(const Row &row)
{
    int count = 0;
    {
        const Specimen specimen(row);
        qApp->setStyleSheet(
            ::withoutRules(qApp->styleSheet(), "*," + row.rules, *specimen.subject(), &count));
    }
    const QImage before = picture(row);
    QPalette palette = m_theme.palette();
    palette.setColor(row.role, QColor(255, 0, 255));
    QApplication::setPalette(palette);
    return looksDifferent(before, picture(row));
}

QImage tst_StylableWidgets::unthemed(const Row &row)
{
    qApp->setStyleSheet(QString());
    QApplication::setPalette(m_startPalette);
    return withPlainStyle(row);
}

void tst_StylableWidgets::complete_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QString>("pattern");

    const QString widget = QStringLiteral("^%1(?![\\w])");
    QTest::newRow("widgets") << Stylable::referenceWidgets() << widget;
    QTest::newRow("sub-controls") << Stylable::referenceSubControls() << "::%1(?![\\w-])";
    QTest::newRow("states") << Stylable::referenceStates() << "[^:]:%1(?![\\w-])";
    QTest::newRow("other-classes") << Stylable::otherClasses() << widget;
}

void tst_StylableWidgets::complete()
{
    QFETCH(QStringList, names);
    QFETCH(QString, pattern);

    QVERIFY(!names.isEmpty());
    QStringList missing;
    for (const QString &name : names) {
        const QRegularExpression expression(pattern.arg(name));
        const bool isThere =
            std::any_of(Stylable::rows().cbegin(), Stylable::rows().cend(),
                        [&](const Row &row) { return row.selector.contains(expression); });
        if (!isThere)
            missing << name;
    }
    QVERIFY2(missing.isEmpty(), qUtf8Printable(missing.join(", ")));
}

void tst_StylableWidgets::covered_data()
{
    QTest::addColumn<QString>("look");
    QTest::addColumn<int>("index");

    for (const char *look : {"dark", "light", "contrast"}) {
        for (int i = 0; i < Stylable::rows().size(); ++i)
            QTest::addRow("%s-%s", look, qUtf8Printable(Stylable::rows().at(i).selector))
                << look << i;
    }
}

void tst_StylableWidgets::covered()
{
    QFETCH(QString, look);
    QFETCH(int, index);

    const Row &row = Stylable::rows().at(index);
    setLook(look, row);
    const QImage ours = picture(row);
    QVERIFY2(!ours.isNull(), "nothing to look at");
    if (row.hold && !row.isAlike)
        QVERIFY2(looksDifferent(ours, Specimen(row, false).picture()),
                 "looks as it does without the state");
    int count = 0;
    switch (row.means) {
    case Row::Means::Rule:
        QVERIFY2(looksDifferent(ours, withoutRules(row, &count)),
                 qUtf8Printable(QString("looks the same without %1 rules").arg(count)));
        QVERIFY(count > 0);
        break;
    case Row::Means::Style:
        QVERIFY2(looksDifferent(ours, withPlainStyle(row)), qUtf8Printable(row.drawing));
        break;
    case Row::Means::Palette:
        QVERIFY2(hasRole(row), "looks the same with another colour");
        QVERIFY2(ours != unthemed(row), "looks as without a theme");
        break;
    case Row::Means::Nothing:
        break;
    }
}

void tst_StylableWidgets::probed_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < Stylable::rows().size(); ++i) {
        if (Stylable::rows().at(i).isProbed)
            QTest::newRow(qUtf8Printable(Stylable::rows().at(i).selector)) << i;
    }
}

// What a row looks at is what it says: a rule of that very selector reaches it.
void tst_StylableWidgets::probed()
{
    QFETCH(int, index);

    const Row &row = Stylable::rows().at(index);
    setLook("dark", row);
    const QImage ours = picture(row);
    const QString declarations = row.probe.isEmpty()
        ? QStringLiteral("background: #ff00ff; color: #00ff00; border: 2px solid #00ff00; "
                         "min-width: 12px; min-height: 12px;")
        : row.probe;
    qApp->setStyleSheet(qApp->styleSheet() + row.selector + '{' + declarations + '}');
    QCOMPARE(looksDifferent(ours, picture(row)), row.means != Row::Means::Nothing);
}

void tst_StylableWidgets::dialog_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < Zoo::dialogs().size(); ++i)
        QTest::newRow(Zoo::dialogs().at(i).name) << i;
}

// Dialogs consist of classes that have rows.
void tst_StylableWidgets::dialog()
{
    QFETCH(int, index);

    QVERIFY(m_theme.setName("dark"));
    const std::unique_ptr<QWidget> window(Zoo::dialogs().at(index).make());
    Zoo::settle(window.get());
    const QStringList known = Stylable::referenceWidgets() + Stylable::otherClasses();
    QStringList others;
    int count = 0;
    const auto all = window->findChildren<QWidget *>();
    for (const QWidget *widget : all) {
        if (!widget->isVisible() || typeid(*widget) == typeid(QWidget))
            continue;
        ++count;
        const QMetaObject *meta = widget->metaObject();
        while (meta && !known.contains(meta->className()))
            meta = meta->superClass();
        if (!meta || qstrcmp(meta->className(), "QWidget") == 0)
            others << widget->metaObject()->className();
    }
    QVERIFY(count > 0);
    // What shows colours or holds others, and has no look of its own.
    for (const char *name : {"QWidget", "QWellArray", "QColorLuminancePicker", "QColorShower",
                             "QMessageBoxDetailsText"})
        others.removeAll(name);
    QVERIFY2(others.isEmpty(), qUtf8Printable(others.join(", ")));
}

QTEST_MAIN(tst_StylableWidgets)
#include "tst_stylablewidgets.moc"
