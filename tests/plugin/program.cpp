// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <QtWidgets>

#include <cstdio>
#include <functional>

// A program that knows nothing of themes: `program CASE` does what programs do, and tells as JSON
// what came of it.

namespace
{

QJsonObject facts()
{
    const QPalette palette = QApplication::palette();
    QJsonObject object;
    object["sheet"] = qApp->styleSheet();
    object["window"] = palette.color(QPalette::Window).name();
    object["text"] = palette.color(QPalette::Text).name();
    object["highlight"] = palette.color(QPalette::Highlight).name();
    return object;
}

void print(const QJsonObject &object)
{
    std::fputs(QJsonDocument(object).toJson().constData(), stdout);
}

// The colour of a text that is painted in one colour on another: that which is furthest from ground.
QColor textColor(QWidget *widget, const QRect &part = QRect())
{
    const QImage image = widget->grab(part.isNull() ? widget->rect() : part).toImage();
    const QColor ground = image.pixelColor(0, 0);
    const auto distance = [&](const QColor &color) {
        return qAbs(color.red() - ground.red()) + qAbs(color.green() - ground.green())
            + qAbs(color.blue() - ground.blue());
    };
    QColor furthest = ground;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor color = image.pixelColor(x, y);
            if (distance(color) > distance(furthest))
                furthest = color;
        }
    }
    return furthest;
}

// A letter without an edge that is smoothed, so that its colour can be read.
QFont blockFont()
{
    QFont font;
    font.setPixelSize(30);
    font.setStyleStrategy(QFont::NoAntialias);
    return font;
}

QJsonObject colorsOf(QWidget *widget, const QRect &part = QRect())
{
    QJsonObject object;
    object["seen"] = textColor(widget, part).name();
    const QImage image = widget->grab(part.isNull() ? widget->rect() : part).toImage();
    object["ground"] = image.pixelColor(0, 0).name();
    return object;
}

// Lets a window come up and the work be done that waits for it.
void showFor(QWidget *window)
{
    window->show();
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
}

const char *const ownRule = "QLabel#own { color: #010203 }";

QJsonObject withLabel(const std::function<void()> &before, const std::function<void()> &after)
{
    before();
    QWidget window;
    QLabel label("own", &window);
    label.setObjectName("own");
    QLabel other("other", &window);
    showFor(&window);
    after();
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    QJsonObject object = facts();
    object["label"] = label.palette().color(QPalette::WindowText).name();
    object["other"] = other.palette().color(QPalette::WindowText).name();
    object["style"] = QString::fromLatin1(QApplication::style()->metaObject()->className());
    return object;
}

void nothing() { }

void setSheet()
{
    qApp->setStyleSheet(ownRule);
}

void setHighlight()
{
    QPalette palette = QApplication::palette();
    palette.setColor(QPalette::Highlight, QColor(1, 2, 3));
    QApplication::setPalette(palette);
}

void setWholePalette(const QColor &ground, const QColor &text)
{
    QPalette palette(ground);
    palette.setColor(QPalette::Base, ground);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(role, text);
    QApplication::setPalette(palette);
}

void setLightPalette()
{
    setWholePalette("#f8f8f0", "#202020");
}

// What an item of the user's choice does: the light palette first, then that which was there.
QJsonObject darkAgain()
{
    return withLabel(setLightPalette, [] {
        QCoreApplication::processEvents();
        setWholePalette("#181818", "#f0f0f0");
    });
}

// Light by itself on a dark desktop, which then asks for high contrast.
QJsonObject contrastLater()
{
    return withLabel(setLightPalette, [] {
        QCoreApplication::processEvents();
        const QString before = qApp->styleSheet();
        QFile file(qEnvironmentVariable("XDG_CONFIG_HOME") + "/kdeglobals");
        if (!file.open(QIODevice::Append))
            return;
        file.write("[General]\nColorScheme=HighContrast\n");
        file.close();
        QElapsedTimer timer;
        timer.start();
        while (qApp->styleSheet() == before && timer.elapsed() < 5000)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
    });
}

QJsonObject replacedSheet()
{
    return withLabel(setSheet, [] {
        QCoreApplication::processEvents();
        qApp->setStyleSheet("QLabel#own { color: #040506 }");
    });
}

QJsonObject appendedSheet()
{
    return withLabel(setSheet, [] {
        QCoreApplication::processEvents();
        qApp->setStyleSheet(qApp->styleSheet() + " QLabel#own { color: #040506 }");
    });
}

QJsonObject clearedSheet()
{
    return withLabel(setSheet, [] {
        QCoreApplication::processEvents();
        qApp->setStyleSheet({});
    });
}

// Answers each style sheet that is not its own with its own.
class Insistent : public QWidget
{
public:
    int answers = 0;

protected:
    void changeEvent(QEvent *event) override
    {
        if (event->type() == QEvent::StyleChange && qApp->styleSheet() != ownRule) {
            ++answers;
            QTimer::singleShot(0, this, setSheet);
        }
        QWidget::changeEvent(event);
    }
};

QJsonObject insistent()
{
    Insistent window;
    showFor(&window);
    setSheet();
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < 1500)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
    QJsonObject object = facts();
    object["answers"] = window.answers;
    return object;
}

QJsonObject widgetPalette()
{
    QWidget window;
    QLabel label("own", &window);
    QPalette palette = label.palette();
    palette.setColor(QPalette::WindowText, QColor(1, 2, 3));
    label.setPalette(palette);
    showFor(&window);
    QJsonObject object = facts();
    object["label"] = label.palette().color(QPalette::WindowText).name();
    return object;
}

QJsonObject items()
{
    QTreeWidget tree;
    tree.setFont(blockFont());
    tree.setHeaderHidden(true);
    tree.setRootIsDecorated(false);
    new QTreeWidgetItem(&tree, {"the current one, which has a frame and a tint"});
    auto *item = new QTreeWidgetItem(&tree, {QString(QChar(0x2588))});
    item->setForeground(0, QColor(128, 0, 0));
    auto *bright = new QTreeWidgetItem(&tree, {QString(QChar(0x2588))});
    bright->setForeground(0, Qt::black);
    bright->setBackground(0, Qt::yellow);
    tree.resize(200, 200);
    showFor(&tree);
    QJsonObject object;
    object["red"] = colorsOf(tree.viewport(), tree.visualItemRect(item).adjusted(2, 2, -150, -2));
    object["black"] =
        colorsOf(tree.viewport(), tree.visualItemRect(bright).adjusted(2, 2, -150, -2));
    object["stored"] = item->foreground(0).color().name();
    return object;
}

QJsonObject document()
{
    QTextEdit edit;
    edit.setFont(blockFont());
    edit.setCursorWidth(0);
    const QString html = QString("<p style=\"color:#000080\">%1</p>").arg(QChar(0x2588));
    edit.setHtml(html);
    const QString before = edit.toHtml();
    edit.resize(200, 100);
    showFor(&edit);
    QJsonObject object;
    object["blue"] = colorsOf(edit.viewport());
    object["kept"] = edit.toHtml() == before && before.contains("#000080");
    return object;
}

int report(const QString &name)
{
    const QHash<QString, std::function<QJsonObject()>> cases = {
        {"plain", [] { return withLabel(nothing, nothing); }},
        {"sheet-before", [] { return withLabel(setSheet, nothing); }},
        {"sheet-after", [] { return withLabel(nothing, setSheet); }},
        {"sheet-replaced", replacedSheet},
        {"sheet-appended", appendedSheet},
        {"sheet-cleared", clearedSheet},
        {"sheet-insistent", insistent},
        {"palette-before", [] { return withLabel(setHighlight, nothing); }},
        {"palette-after", [] { return withLabel(nothing, setHighlight); }},
        {"palette-light", [] { return withLabel(setLightPalette, nothing); }},
        {"palette-light-after", [] { return withLabel(nothing, setLightPalette); }},
        {"palette-dark-again", darkAgain},
        {"palette-of-widget", widgetPalette},
        {"contrast-later", contrastLater},
        {"style", [] { return withLabel(nothing, [] { QApplication::setStyle("windows"); }); }},
        {"items", items},
        {"document", document},
    };
    if (!cases.contains(name))
        return 2;
    print(cases[name]());
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    const QString name = QString::fromLocal8Bit(argc > 1 ? argv[1] : "");
    if (name == "core") {
        const QCoreApplication application(argc, argv);
        print({{"done", true}});
        return 0;
    }
    if (name == "gui") {
        const QGuiApplication application(argc, argv);
        print({{"window", QGuiApplication::palette().color(QPalette::Window).name()}});
        return 0;
    }
    const QApplication application(argc, argv);
    return report(name);
}
