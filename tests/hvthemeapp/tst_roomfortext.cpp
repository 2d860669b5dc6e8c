// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "quietplatform.h"
#include "textrecorder.h"
#include "widgetzoo.h"

#include <hvtheme/theme.h>
#include <hvthemeapp/applicationtheme.h>

#include <QtTest>
#include <QtWidgets>

namespace
{

const QStringList looks{"dark", "light", "contrast"};
constexpr qreal antialiasing = 1; // what the edge of a glyph may lose
const QChar ellipsis(0x2026);

struct Setting {
    const char *name;
    int fontSize; /*!< in pixels */
    bool isFontOfTheme; /*!< else the application's */
    Qt::LayoutDirection direction;
};
const Setting settings[] = {{"plain", 14, true, Qt::LeftToRight},
                            {"right-to-left", 14, true, Qt::RightToLeft},
                            {"24-px", 24, true, Qt::LeftToRight},
                            {"24-px-right-to-left", 24, true, Qt::RightToLeft},
                            {"own-24-px", 24, false, Qt::LeftToRight},
                            {"own-24-px-right-to-left", 24, false, Qt::RightToLeft}};

/*! What a page or a dialog says, and how much of it. */
struct Text {
    QString text;
    QString widget;
    QRectF ink;
    QRectF hidden; /*!< of the ink, what is lost at each side; null if all of it is seen */
    bool isElided = false;
    bool isPassing = false; /*!< scrolled, moved or left out by who holds it, since there is more */
};

bool isLonger(const QScrollBar *bar)
{
    return bar->maximum() > bar->minimum();
}

/*! Whether \a widget lies in what can be scrolled, or moves what it shows. */
bool isInScrolled(const QWidget *widget)
{
    if (const auto *edit = qobject_cast<const QLineEdit *>(widget)) {
        if (edit->fontMetrics().horizontalAdvance(edit->text()) > edit->width())
            return true;
    }
    for (; widget; widget = widget->parentWidget()) {
        const auto *area = qobject_cast<const QAbstractScrollArea *>(widget);
        if (area && (isLonger(area->horizontalScrollBar()) || isLonger(area->verticalScrollBar())))
            return true;
        // Files are listed by a thread, in its own time.
        if (area && qobject_cast<const QFileDialog *>(area->window()))
            return true;
        // A bar that is too short keeps the rest behind a button, as it does without a theme.
        if (qobject_cast<const QToolBar *>(widget) || qobject_cast<const QMdiArea *>(widget))
            return true;
        const auto *tabs = qobject_cast<const QTabBar *>(widget);
        for (int i = 0; tabs && i < tabs->count(); ++i) {
            if (!tabs->rect().contains(tabs->tabRect(i).center()))
                return true;
        }
    }
    return false;
}

// Where text runs from right to left, the dots are a text of their own.
void markElided(QVector<Text> &texts)
{
    for (Text &text : texts) {
        text.isElided = std::any_of(texts.cbegin(), texts.cend(), [&](const Text &dots) {
            return dots.text.contains(ellipsis) && dots.widget == text.widget
                && dots.ink.adjusted(-12, -20, 12, 20).intersects(text.ink);
        });
    }
}

QRectF hiddenPart(const RecordedText &text)
{
    const QRectF seen = text.ink & text.clip;
    const QRectF lost(seen.left() - text.ink.left(), seen.top() - text.ink.top(),
                      text.ink.right() - seen.right(), text.ink.bottom() - seen.bottom());
    const qreal most = qMax(qMax(lost.x(), lost.y()), qMax(lost.width(), lost.height()));
    return most > antialiasing ? lost : QRectF();
}

/*! Adds \a text in the place of its shadow, if it has one a pixel to the right and below, as disabled texts have. */
void append(QVector<Text> &texts, const Text &text)
{
    const auto isShadow = [&](const Text &other) {
        const QPointF distance = other.ink.topLeft() - text.ink.topLeft() - QPointF(1, 1);
        return other.text == text.text && other.widget == text.widget
            && distance.manhattanLength() < 0.1;
    };
    texts.erase(std::remove_if(texts.begin(), texts.end(), isShadow), texts.end());
    texts.append(text);
}

QVector<Text> textsOf(const Zoo::Page &page)
{
    const std::unique_ptr<QWidget> window(page.make());
    Zoo::settle(window.get());
    window->grab(); // some layouts settle only as they are painted
    // Pages with a size of their own have chosen it for an ordinary font, and message boxes keep to
    // the screen of the platform, which is 400 pixels wide at a scale of 2.
    if (qobject_cast<QMessageBox *>(window.get()))
        window->setFixedSize(window->size().expandedTo(window->layout()->totalMinimumSize()));
    else
        window->resize(window->size().expandedTo(window->sizeHint()));
    QVector<Text> texts;
    const auto windows = Zoo::windows(window.get());
    for (QWidget *one : windows) {
        one->grab();
        TextRecorder recorder(one->size(), one->devicePixelRatioF());
        recorder.record(one);
        for (const RecordedText &text : recorder.texts())
            append(texts,
                   {text.text, text.widget, text.ink, hiddenPart(text), false,
                    isInScrolled(text.drawnBy)});
    }
    markElided(texts);
    return texts;
}

int count(const QVector<Text> &texts, const Text &text)
{
    return int(std::count_if(texts.cbegin(), texts.cend(), [&](const Text &one) {
        return one.text == text.text && one.widget == text.widget;
    }));
}

int countCut(const QVector<Text> &texts, const Text &text)
{
    return int(std::count_if(texts.cbegin(), texts.cend(), [&](const Text &one) {
        return one.text == text.text && one.widget == text.widget && !one.hidden.isNull();
    }));
}

/*! All that widgets of a name say, however the lines break. */
QString wordsOf(const QVector<Text> &texts, const QString &widget)
{
    QString words;
    for (const Text &text : texts) {
        if (text.widget == widget)
            words += text.text;
    }
    return words.remove(QLatin1Char(' '));
}

/*! What is worse with a theme, for each text. */
QStringList faultsOf(const QVector<Text> &themed, const QVector<Text> &plain)
{
    QStringList faults;
    const auto tell = [&](const Text &text, const QString &fault) {
        faults.append(QString("\"%1\" %2, by %3").arg(text.text, fault, text.widget));
    };
    for (const Text &text : themed) {
        if (!text.hidden.isNull() && !text.isPassing
            && countCut(themed, text) > countCut(plain, text))
            tell(text,
                 QString("loses %1 and %2 of its width %3, %4 and %5 of its height %6")
                     .arg(text.hidden.x())
                     .arg(text.hidden.width())
                     .arg(text.ink.width())
                     .arg(text.hidden.y())
                     .arg(text.hidden.height())
                     .arg(text.ink.height()));
    }
    for (const Text &text : plain) {
        if (text.isElided || count(themed, text) >= count(plain, text))
            continue;
        const bool isElided = std::any_of(themed.cbegin(), themed.cend(), [&](const Text &one) {
            const QString beginning = one.text.section(ellipsis, 0, 0);
            return one.widget == text.widget && one.isElided && text.text.startsWith(beginning)
                && (!beginning.isEmpty() || count(themed, one) > count(plain, one));
        });
        if (isElided)
            tell(text, "is elided");
        else if (!text.isPassing
                 && !wordsOf(themed, text.widget).contains(QString(text.text).remove(' ')))
            tell(text, "is not there");
    }
    return faults;
}

using Texts = QMap<QString, QVector<Text>>;

QString folderOf(const QString &parent, int fontSize)
{
    return parent + QLatin1Char('/') + QString::number(fontSize);
}

/*! The built-in themes with a font of that size. */
void writeThemes(const QString &parent, int fontSize)
{
    const QString folder = folderOf(parent, fontSize);
    QDir().mkpath(folder);
    const auto files = QDir(":/hvthemeapp/themes").entryInfoList();
    for (const QFileInfo &file : files) {
        QFile from(file.filePath());
        QFile to(folder + QLatin1Char('/') + file.fileName());
        QVERIFY(from.open(QIODevice::ReadOnly) && to.open(QIODevice::WriteOnly));
        static const QRegularExpression size("^FontSize_L=.*$",
                                             QRegularExpression::MultilineOption);
        const QString text = QString::fromUtf8(from.readAll());
        to.write(QString(text).replace(size, QString("FontSize_L=%1").arg(fontSize)).toUtf8());
    }
}

} // namespace

Q_DECLARE_METATYPE(Setting)

/*!
 * Whether each text has room: in each look, from either side, at a large font, and on a screen of the
 * scale that QT_SCALE_FACTOR gives.
 */
class tst_RoomForText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase() { m_quiet.reset(); }
    void cleanup();

    void recorder();
    void everyText_data();
    void everyText();

private:
    void set(const Setting &setting);

    std::unique_ptr<QuietPlatform> m_quiet;
    const QFont m_font = QApplication::font();
    QMap<QString, Texts> m_plain; // of each setting, without any theme
    QTemporaryDir m_themes;
};

void tst_RoomForText::initTestCase()
{
    m_quiet = std::make_unique<QuietPlatform>();
    // File dialogs keep the widths of their parts, those of other tests too.
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_themes.path());
    const QString scale = qEnvironmentVariable("QT_SCALE_FACTOR", "1");
    QCOMPARE(QString::number(qApp->devicePixelRatio()), scale);
    QCOMPARE(QApplication::style()->objectName(), QString("fusion"));
    for (const Setting &setting : settings) {
        set(setting);
        for (const Zoo::Page &page : Zoo::pages() + Zoo::dialogs())
            m_plain[setting.name][page.name] = textsOf(page);
        cleanup();
    }
    for (const Setting &setting : settings)
        writeThemes(m_themes.path(), setting.fontSize);
}

void tst_RoomForText::cleanup()
{
    qApp->setStyleSheet(QString());
    QApplication::setFont(m_font);
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
}

void tst_RoomForText::set(const Setting &setting)
{
    QSettings(QSettings::UserScope, "QtProject").clear();
    QFont font = m_font;
    font.setPixelSize(setting.fontSize);
    QApplication::setFont(font);
    QGuiApplication::setLayoutDirection(setting.direction);
}

// A label that is too small for its text, in two ways.
void tst_RoomForText::recorder()
{
    QLabel label("legible");
    label.resize(label.sizeHint());
    const auto lost = [&label] {
        TextRecorder recorder(label.size(), label.devicePixelRatioF());
        recorder.record(&label);
        const RecordedText text = recorder.texts().value(0);
        return QSizeF(text.ink.width() - (text.ink & text.clip).width(),
                      text.ink.height() - (text.ink & text.clip).height());
    };
    QVERIFY(lost().width() <= antialiasing && lost().height() <= antialiasing);
    const QImage whole = label.grab().toImage().convertToFormat(QImage::Format_RGB32);
    TextRecorder recorder(label.size(), label.devicePixelRatioF());
    recorder.record(&label);
    QCOMPARE(recorder.image().size(), whole.size());
    label.resize(label.sizeHint() - QSize(10, 0));
    QVERIFY2(qAbs(lost().width() - 10) < 3, qUtf8Printable(QString::number(lost().width())));
    label.resize(label.sizeHint() - QSize(0, 10));
    QVERIFY2(lost().height() > 2, qUtf8Printable(QString::number(lost().height())));
}

void tst_RoomForText::everyText_data()
{
    QTest::addColumn<QString>("look");
    QTest::addColumn<Setting>("setting");

    for (const QString &look : looks) {
        for (const Setting &setting : settings)
            QTest::addRow("%s-%s", qUtf8Printable(look), setting.name) << look << setting;
    }
}

void tst_RoomForText::everyText()
{
    QFETCH(QString, look);
    QFETCH(Setting, setting);

    set(setting);
    HV::ApplicationTheme theme;
    theme.setKeepsFonts(!setting.isFontOfTheme);
    QVERIFY(theme.setFolder(folderOf(m_themes.path(), setting.fontSize)));
    QVERIFY(theme.setName(look));
    QStringList faults;
    int count = 0;
    for (const Zoo::Page &page : Zoo::pages() + Zoo::dialogs()) {
        const QVector<Text> themed = textsOf(page);
        count += int(themed.size());
        const auto ofPage = faultsOf(themed, m_plain[setting.name][page.name]);
        for (const QString &fault : ofPage)
            faults.append(QString("%1: %2").arg(page.name, fault));
    }
    faults.removeDuplicates();
    QVERIFY2(count > 700, qUtf8Printable(QString::number(count)));
    QVERIFY2(faults.isEmpty(), qUtf8Printable(faults.join('\n')));
}

QTEST_MAIN(tst_RoomForText)
#include "tst_roomfortext.moc"
