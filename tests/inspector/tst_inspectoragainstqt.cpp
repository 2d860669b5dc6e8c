// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "ownpicture.h"
#include "quietplatform.h"
#include "styledparts.h"
#include "widgetzoo.h"

#include <inspector/inspection.h>
#include <inspector/usage.h>

#include <hvthemeapp/applicationtheme.h>

#ifdef HVTHEME_HAS_GALLERY
#include <gallery/specimentable.h>
#include <gallery/specimenwidget.h>
#endif

#include <QtTest>
#include <QtWidgets>

/*
 * What the inspector says is held against what Qt paints. Every colour and every image in the style sheet
 * becomes a marker, one of its own for each declaration; what a widget paints by itself, without its children,
 * then tells which declarations Qt had in force for it.
 */
class tst_InspectorAgainstQt : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void paintedIsNamed_data();
    void paintedIsNamed();
    void specimens();
    void cleanupTestCase();

private:
    void compare(QWidget *window);
    void count(bool agrees, const QString &what);

    std::unique_ptr<QuietPlatform> m_quiet;
    HV::ApplicationTheme m_theme;
    QTemporaryDir m_folder; // of marker images
    int m_images = 0;
    QString m_marked; // the style sheet with markers
    QHash<QRgb, int> m_offsets; // of declarations in it, by marker
    QString m_row; // what is looked at
    int m_comparisons = 0;
    QStringList m_disagreements;
};

namespace
{

// Far from one another and from black, white and greys, so that mixtures at edges are no markers.
QColor marker(int number)
{
    quint32 bits = quint32(number + 1) * 2654435761U;
    bits ^= bits >> 15U;
    return QColor(int(bits & 0xffU), int((bits >> 8U) & 0xffU), int((bits >> 16U) & 0xffU));
}

// Clear around a square of the colour, so that what is below is seen too and scaling leaves some of it.
bool writeMarkerImage(const QString &path, const QColor &color)
{
    constexpr int side = 32;
    QImage image(side, side, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    for (int y = side / 4; y < side * 3 / 4; ++y) {
        for (int x = side / 4; x < side * 3 / 4; ++x)
            image.setPixelColor(x, y, color);
    }
    return image.save(path);
}

QSet<QRgb> colorsOf(const QImage &picture)
{
    QSet<QRgb> colors;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            colors << (picture.pixel(x, y) | 0xff000000U);
    }
    return colors;
}

// What Qt makes impossible to know from outside, each with its reason.
bool isKnown(const QString &disagreement)
{
    static const QRegularExpression known(
        // Days of other months and titles of inactive windows have the disabled colours of the palette.
        "QCalendarWidget QTableView:disabled \\{ color|QMdiSubWindow: \\*:disabled \\{ color"
        // Painted, but wholly covered by children, by a picture, by a chunk of 100 per cent.
        "|not paint QCalendarWidget: |not paint QLineEditIconButton: |not paint QProgressBar: "
        // Specimens that put a state into their own paint event.
        "|(Spin|Time)\\w*::?(up|down)-button:(hover|pressed) paints|^QComboBox\\S*:on paints"
        // A specimen that draws the list of another combo box.
        "|^QComboBox QAbstractItemView\\S* paints unnamed QWidget:"
        // Icons that the rule of a dock widget gives to the buttons on it, which have rules of their own.
        "|paints unnamed QDockWidgetTitleButton\\S*: QDockWidget \\{ titlebar-"
        // The field of all colours has each marker's colour too.
        "|paints unnamed QColorPicker: "
        // The view alone knows which item the mouse is over.
        "|::item:hover paints",
        QRegularExpression::CaseInsensitiveOption);
    return disagreement.contains(known);
}

QString describe(const QWidget *widget, const StyleRule &rule, int offset)
{
    return nameOf(widget) + ": " + rule.selector + " { " + rule.declarationAt(offset)->property
        + " }";
}

} // namespace

void tst_InspectorAgainstQt::initTestCase()
{
    m_quiet = std::make_unique<QuietPlatform>();
    QApplication::setStyle("fusion");
    QVERIFY(m_theme.setName("light"));
    static const QRegularExpression color("#[0-9a-fA-F]{3,8}\\b|rgba?\\([^)]*\\)");
    static const QRegularExpression image("url\\([^)]*\\)");
    const QString text = qApp->styleSheet();
    const StyleRules rules(text);
    int number = 0;
    int copied = 0;
    for (const StyleRule &rule : rules.rules()) {
        for (const StyleDeclaration &declaration : rule.declarations) {
            m_marked += text.mid(copied, declaration.start - copied);
            copied = declaration.end;
            QString written = text.mid(declaration.start, declaration.end - declaration.start);
            const bool isImage = written.contains(image);
            if (isImage || written.contains(color)) {
                while (m_offsets.contains(marker(number).rgb()))
                    ++number;
                m_offsets.insert(marker(number).rgb(), int(m_marked.size()));
                const QString path = m_folder.filePath(QString("%1.png").arg(number));
                if (isImage)
                    QVERIFY(writeMarkerImage(path, marker(number)));
                written.replace(isImage ? image : color,
                                isImage ? "url(" + path + ")" : marker(number).name());
                m_images += isImage ? 1 : 0;
                ++number;
            }
            m_marked += written;
        }
    }
    m_marked += text.mid(copied);
    QVERIFY2(m_offsets.size() > 100, qPrintable(QString::number(m_offsets.size())));
    QVERIFY2(m_images > 10, qPrintable(QString::number(m_images)));
    QFont font = QApplication::font();
    font.setStyleStrategy(QFont::NoAntialias);
    QApplication::setFont(font);
    qApp->setStyleSheet(m_marked);
}

void tst_InspectorAgainstQt::count(bool agrees, const QString &what)
{
    ++m_comparisons;
    if (!agrees)
        m_disagreements << what;
}

void tst_InspectorAgainstQt::paintedIsNamed_data()
{
    QTest::addColumn<int>("page");
    for (int i = 0; i < Zoo::pages().size(); ++i)
        QTest::newRow(Zoo::pages().at(i).name) << i;
    for (int i = 0; i < Zoo::dialogs().size(); ++i)
        QTest::newRow(Zoo::dialogs().at(i).name) << Zoo::pages().size() + i;
}

void tst_InspectorAgainstQt::paintedIsNamed()
{
    QFETCH(int, page);
    m_row = QTest::currentDataTag();
    const int dialogs = page - int(Zoo::pages().size());
    const std::unique_ptr<QWidget> window(dialogs < 0 ? Zoo::pages().at(page).make()
                                                      : Zoo::dialogs().at(dialogs).make());
    Zoo::settle(window.get());
    compare(window.get());
}

// Each widget of a window: what it paints must be named, and the ground that is named be painted.
void tst_InspectorAgainstQt::compare(QWidget *window)
{
    const InspectedSheet sheet(m_marked, {});
    const QList<QWidget *> widgets = window->findChildren<QWidget *>() << window;
    for (QWidget *widget : widgets) {
        if (!widget->isVisible() || widget->size().isEmpty())
            continue;
        QSet<int> named; // declarations that the inspector says are in force
        forEachStyledProperty(widget, sheet, [&](int, const StyleProperty &property) {
            named << property.winner().offset;
        });
        const QSet<QRgb> painted = colorsOf(ownPicture(widget));
        const Inspection inspection =
            Inspection::of(widget, widgetParts(paintedAs(widget)).constFirst(), sheet);
        const InspectedValue *ground = inspection.value("background-color");
        const QRgb wanted = ground && ground->isOfRule() ? m_offsets.key(ground->match.offset) : 0;
        if (widget == paintedAs(widget) && wanted != 0)
            count(painted.contains(wanted),
                  m_row + QString(" does not paint ")
                      + describe(widget, *sheet.rules().ruleAt(ground->match.offset),
                                 ground->match.offset));
        for (const QRgb color : painted) {
            if (m_offsets.contains(color))
                count(named.contains(m_offsets.value(color)),
                      m_row + QString(" paints unnamed ")
                          + describe(widget, *sheet.rules().ruleAt(m_offsets.value(color)),
                                     m_offsets.value(color)));
        }
    }
}

void tst_InspectorAgainstQt::specimens()
{
#ifdef HVTHEME_HAS_GALLERY
    const auto specimens = Gallery::allSpecimens();
    QVERIFY(specimens.size() > 100);
    for (const Gallery::Specimen &specimen : specimens) {
        QWidget ground;
        QWidget *widget = Gallery::createSpecimenWidget(specimen);
        if (!widget)
            continue;
        widget->setParent(&ground);
        widget->setGeometry(QRect(QPoint(2, 2), widget->sizeHint().expandedTo(QSize(30, 20))));
        ground.setAttribute(Qt::WA_DontShowOnScreen);
        ground.setFocusPolicy(Qt::StrongFocus);
        ground.resize(widget->size() + QSize(4, 4));
        widget->show();
        ground.show();
        QApplication::setActiveWindow(&ground);
        ground.setFocus();
        m_row = specimen.selector;
        compare(&ground);
    }
#else
    QSKIP("The gallery is not built.");
#endif
}

void tst_InspectorAgainstQt::cleanupTestCase()
{
    int known = 0;
    int unknown = 0;
    for (const QString &disagreement : qAsConst(m_disagreements)) {
        if (!isKnown(disagreement))
            qInfo("%s", qUtf8Printable(disagreement));
        ++(isKnown(disagreement) ? known : unknown);
    }
    qInfo("%d comparisons, %d disagreements that Qt makes, %d others", m_comparisons, known,
          unknown);
    QCOMPARE(unknown, 0);
    qApp->setStyleSheet(QString());
}

QTEST_MAIN(tst_InspectorAgainstQt)

#include "tst_inspectoragainstqt.moc"
