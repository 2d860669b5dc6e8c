// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "themedstyle.h"

#include "attributevalues.h"
#include "controldrawing.h"
#include "iconcolors.h"
#include "standarddrawings.h"
#include "stylesbehind.h"
#include "themedicon.h"
#include "titlebar.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QEvent>
#include <QListView>
#include <QMdiArea>
#include <QMenu>
#include <QPainter>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QSet>
#include <QSlider>
#include <QStyleFactory>
#include <QStyleOption>
#include <QTimer>
#include <QTreeView>

#include <algorithm>
#include <typeinfo>
#include <utility>

namespace HV
{

namespace
{

// Grounds that areas of inner windows got from a palette, so that none of them is the program's choice.
QSet<QRgb> &formerGrounds()
{
    static QSet<QRgb> grounds;
    return grounds;
}

// An area takes the brush of the moment when it is made, and no other after it.
void followPalette(QMdiArea &area)
{
    const QBrush ground = area.palette().brush(QPalette::Button);
    const QBrush own = area.background();
    formerGrounds().insert(area.palette().color(QPalette::Dark).rgba());
    formerGrounds().insert(ground.color().rgba());
    if (own.style() == Qt::SolidPattern && formerGrounds().contains(own.color().rgba()))
        area.setBackground(ground);
}

// Its frame is the one of the list inside.
bool isPopUpOfCombo(const QWidget *widget)
{
    return widget && widget->inherits("QComboBoxPrivateContainer");
}

// There the colour of selected rows lies below the text alone.
bool showsIconsAbove(const QWidget *widget)
{
    const auto *list = qobject_cast<const QListView *>(widget);
    return list && list->viewMode() == QListView::IconMode;
}

// The button for what a tool bar has no room for asks the style of the moment when it is made, and again
// when the direction changes.
void renewIcon(QWidget &moreButton)
{
    QEvent event(QEvent::LayoutDirectionChange);
    QCoreApplication::sendEvent(&moreButton, &event);
}

// Null for what is none, or while no theme is in force.
const QStyleOptionMenuItem *themedSeparator(const QStyleOption *option)
{
    const auto *item = qstyleoption_cast<const QStyleOptionMenuItem *>(option);
    const bool isSeparator = item && item->menuItemType == QStyleOptionMenuItem::Separator;
    return isSeparator && IconColors::hasValues() ? item : nullptr;
}

bool hasSeparators(const QMenu &menu)
{
    const auto actions = menu.actions();
    return std::any_of(actions.cbegin(), actions.cend(),
                       [](const QAction *action) { return action->isSeparator(); });
}

// Whether the button's ground is the brand, so that its icon shall have the colour of the text there.
bool hasIconOnBrand(const QPushButton &button)
{
    return !button.icon().isNull() && button.isEnabled()
        && (button.isDefault() || button.property("style") == QLatin1String("general"))
        && IconColors::color(QStringLiteral("AccentForegroundColor"), QIcon::Normal)
        != IconColors::ink(QIcon::Normal);
}

// Qt's style for style sheets passes on a branch of an item view alone, and drops what a delegate asks
// for: the signs before the categories of Designer's boxes.
QTreeView *treeOfCategories(QWidget *viewport)
{
    auto *tree = qobject_cast<QTreeView *>(viewport->parentWidget());
    const bool isOne = tree && viewport == tree->viewport() && tree->itemDelegate()
        && tree->itemDelegate()->inherits("qdesigner_internal::SheetDelegate");
    return isOne ? tree : nullptr;
}

// A class of the program's own may paint something else.
bool isUprightProgress(const QWidget &widget)
{
    return typeid(widget) == typeid(QProgressBar)
        && static_cast<const QProgressBar &>(widget).orientation() == Qt::Vertical;
}

// Neither Qt's styles nor a rule that leaves items their colours tell the row under the mouse from others.
bool isUnderMouse(const QStyleOptionViewItem &item)
{
    const QStyle::State states = QStyle::State_MouseOver | QStyle::State_Enabled;
    return (item.state & states) == states && !(item.state & QStyle::State_Selected);
}

void drawVeil(const QStyleOptionViewItem &item, QPainter &painter)
{
    QColor veil = item.palette.color(QPalette::Text);
    veil.setAlphaF(0.08F);
    painter.fillRect(item.rect, veil);
}

// Qt 6 takes the ground of a selected row from the group of the view and the text from that of the row,
// and a row may be disabled alone.
QPalette withOneHighlight(QPalette palette, QPalette::ColorGroup group)
{
    palette.setBrush(QPalette::Highlight, palette.brush(group, QPalette::Highlight));
    return palette;
}

} // namespace

ThemedStyle::ThemedStyle(const QString &name)
    : QProxyStyle(QStyleFactory::create(name))
{
    setObjectName(name); // by which programs and Qt tell styles apart
}

ThemedStyle::ThemedStyle(QProxyStyle *ofProgram, QStyle *changed)
    : QProxyStyle(ofProgram)
    , m_changed(changed)
{
    setObjectName(ofProgram->objectName());
}

void ThemedStyle::install()
{
    formerGrounds().insert(QApplication::palette().color(QPalette::Dark).rgba());
    static QPointer<ThemedStyle> installed;
    if (installed)
        return;
    const QPointer<QStyle> former = plainStyle();
    auto *ofProgram = qobject_cast<QProxyStyle *>(former);
    if (isMadeByName(*former))
        installed = new ThemedStyle(former->objectName());
    else if (QStyle *changed = innermost(former); ofProgram && isMadeByName(*changed))
        installed = new ThemedStyle(ofProgram, changed);
    else
        return;
    // A program may choose another of Qt's styles at any time, an option of its command line as well.
    connect(installed, &QObject::destroyed, qApp, [] {
        if (!QCoreApplication::closingDown())
            QTimer::singleShot(0, qApp, [] {
                install();
                keepName();
            });
    });
    QApplication::setStyle(installed);
    // One that was chosen before there was an application belongs to nobody.
    if (former && !former->parent())
        former->setParent(qApp);
}

void ThemedStyle::keepName()
{
    QStyle *style = QApplication::style();
    if (style->objectName().isEmpty())
        style->setObjectName(plainStyle()->objectName());
}

void ThemedStyle::polish(QWidget *widget)
{
    QProxyStyle::polish(widget);
    const bool hasAttributes = keepAttributeValues(*widget);
    auto *area = qobject_cast<QMdiArea *>(widget);
    if (area)
        followPalette(*area);
    if (widget->objectName() == QLatin1String("qt_toolbar_ext_button"))
        renewIcon(*widget);
    if (area || qobject_cast<QSlider *>(widget) || qobject_cast<QMenu *>(widget)
        || qobject_cast<QPushButton *>(widget) || qobject_cast<QProgressBar *>(widget)
        || treeOfCategories(widget) || hasAttributes)
        widget->installEventFilter(this);
    if (auto *view = qobject_cast<QAbstractItemView *>(widget))
        view->viewport()->setAttribute(Qt::WA_Hover);
}

void ThemedStyle::unpolish(QWidget *widget)
{
    widget->removeEventFilter(this);
    QProxyStyle::unpolish(widget);
}

bool ThemedStyle::eventFilter(QObject *watched, QEvent *event)
{
    // With Qt 6 a palette reaches the widgets after they are polished.
    auto *area =
        event->type() == QEvent::PaletteChange ? qobject_cast<QMdiArea *>(watched) : nullptr;
    if (area)
        followPalette(*area);
    if ((event->type() == QEvent::Paint || event->type() == QEvent::Show)
        && watched->isWidgetType())
        renewAttributeRules(*static_cast<QWidget *>(watched));
    const bool isForeign = event->type() == QEvent::Paint && watched != m_painted
        && watched->isWidgetType() && IconColors::hasValues();
    return (isForeign && paint(*static_cast<QWidget *>(watched), *event))
        || QProxyStyle::eventFilter(watched, event);
}

// Adds what style sheets do not let a style draw. Returns whether the widget has been painted.
bool ThemedStyle::paint(QWidget &widget, QEvent &event)
{
    auto *slider = qobject_cast<QSlider *>(&widget);
    auto *button = qobject_cast<QPushButton *>(&widget);
    auto *menu = qobject_cast<QMenu *>(&widget);
    if (slider && slider->tickPosition() != QSlider::NoTicks) {
        // A style sheet that draws the groove draws no marks, and asks no style for them.
        QPainter painter(slider);
        drawTickMarks(*slider->style(), *slider, painter);
    } else if (isUprightProgress(widget)) {
        // Style sheets write across a bar, however narrow it is.
        QPainter painter(&widget);
        drawUprightProgress(static_cast<QProgressBar &>(widget), painter);
        return true;
    } else if (button && hasIconOnBrand(*button)) {
        const IconColors::OnGround ground(
            IconColors::color(QStringLiteral("AccentBackgroundColor"), QIcon::Normal),
            IconColors::color(QStringLiteral("AccentForegroundColor"), QIcon::Normal));
        paintItself(widget, event);
        return true;
    } else if (menu && hasSeparators(*menu)) {
        // One that draws the items of a menu leaves out the titles of its sections.
        paintItself(widget, event);
        QPainter painter(menu);
        drawMenuSeparators(*menu, painter);
        return true;
    } else if (const QTreeView *tree = treeOfCategories(&widget)) {
        paintItself(widget, event);
        QPainter painter(&widget);
        drawCategorySigns(*tree, painter);
        return true;
    }
    return false;
}

// With the filters that come after this one: the program's own, and the tree's for its viewport.
void ThemedStyle::paintItself(QWidget &widget, QEvent &event)
{
    const QObject *const outer = std::exchange(m_painted, &widget);
    QCoreApplication::sendEvent(&widget, &event);
    m_painted = outer;
}

// Whether the program's style has another picture than the one that it changes. Icons that no style has
// are made of the pixmap that the outermost one has, which is this; so pixmaps are compared first.
bool ThemedStyle::hasOwn(StandardPixmap pixmap, const QStyleOption *option,
                         const QWidget *widget) const
{
    // The ground of this button is the look's, whatever the program had below its sign.
    const bool isOfLook = pixmap == SP_ToolBarHorizontalExtensionButton
        || pixmap == SP_ToolBarVerticalExtensionButton;
    if (!m_changed || isOfLook)
        return false;
    const QScopedValueRollback<bool> comparing(m_isComparing, true);
    const QSize size(16, 16);
    return QProxyStyle::standardPixmap(pixmap, option, widget).toImage()
        != m_changed->standardPixmap(pixmap, option, widget).toImage()
        || QProxyStyle::standardIcon(pixmap, option, widget).pixmap(size).toImage()
        != m_changed->standardIcon(pixmap, option, widget).pixmap(size).toImage();
}

QIcon ThemedStyle::standardIcon(StandardPixmap icon, const QStyleOption *option,
                                const QWidget *widget) const
{
    const char *drawing =
        IconColors::hasValues() && !m_isComparing ? standardDrawing(icon, option, widget) : nullptr;
    return drawing && !hasOwn(icon, option, widget)
        ? themedIcon(QLatin1String(drawing))
        : QProxyStyle::standardIcon(icon, option, widget);
}

QPixmap ThemedStyle::standardPixmap(StandardPixmap pixmap, const QStyleOption *option,
                                    const QWidget *widget) const
{
    const QPixmap own = QProxyStyle::standardPixmap(pixmap, option, widget);
    const char *drawing = IconColors::hasValues() && !m_isComparing
        ? standardDrawing(pixmap, option, widget)
        : nullptr;
    if (!drawing || hasOwn(pixmap, option, widget))
        return own;
    return themedIcon(QLatin1String(drawing))
        .pixmap(own.isNull() ? QSize(16, 16) : own.size() / own.devicePixelRatio());
}

QPixmap ThemedStyle::generatedIconPixmap(QIcon::Mode mode, const QPixmap &pixmap,
                                         const QStyleOption *option) const
{
    // Styles mix it with the ground, and what is to recede comes out brighter than the rest on a dark one.
    return mode == QIcon::Disabled && IconColors::hasValues()
        ? disabledPixmap(pixmap)
        : QProxyStyle::generatedIconPixmap(mode, pixmap, option);
}

void ThemedStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                                     QPainter *painter, const QWidget *widget) const
{
    const auto *titleBar = qstyleoption_cast<const QStyleOptionTitleBar *>(option);
    const auto *slider = qstyleoption_cast<const QStyleOptionSlider *>(option);
    if (control == CC_TitleBar && titleBar && IconColors::hasValues())
        drawTitleBar(*proxy(), *titleBar, *painter, widget);
    else if (control == CC_Dial && slider && IconColors::hasValues())
        drawDial(*slider, *painter);
    else
        QProxyStyle::drawComplexControl(control, option, painter, widget);
}

void ThemedStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                                QPainter *painter, const QWidget *widget) const
{
    const auto *item = qstyleoption_cast<const QStyleOptionViewItem *>(option);
    if (item && !(item->state & State_Enabled) && IconColors::hasValues()
        && (element == PE_PanelItemViewItem || element == PE_PanelItemViewRow)) {
        QStyleOptionViewItem disabled = *item;
        disabled.palette = withOneHighlight(item->palette, QPalette::Disabled);
        QProxyStyle::drawPrimitive(element, &disabled, painter, widget);
        return;
    }
    const char *name = IconColors::hasValues() ? primitiveDrawing(element, *option) : nullptr;
    if (!name) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        if (item && element == PE_PanelItemViewItem && IconColors::hasValues()
            && isUnderMouse(*item))
            drawVeil(*item, *painter);
        return;
    }
    // The dots of a handle fill the middle of their drawing alone.
    const int room = element == PE_IndicatorToolBarHandle
        ? 16
        : qMin(option->rect.width(), option->rect.height());
    const int side = qMin(16, room);
    QRect area(0, 0, side, side);
    area.moveCenter(option->rect.center());
    const bool isEnabled = (option->state & State_Enabled) != 0;
    const bool isSelected = (option->state & State_Selected) != 0 && !showsIconsAbove(widget);
    themedIcon(QLatin1String(name))
        .paint(painter, area, Qt::AlignCenter,
               !isEnabled       ? QIcon::Disabled
                   : isSelected ? QIcon::Selected
                                : QIcon::Normal);
}

void ThemedStyle::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                              const QWidget *widget) const
{
    const auto *item = qstyleoption_cast<const QStyleOptionViewItem *>(option);
    if (!IconColors::hasValues())
        return QProxyStyle::drawControl(element, option, painter, widget);
    if (element == CE_ColumnViewGrip) {
        drawGrip(*option, *painter);
    } else if (const auto *grip = qstyleoption_cast<const QStyleOptionSizeGrip *>(option);
               grip && element == CE_SizeGrip) {
        drawSizeGrip(*grip, *painter);
    } else if (const auto *frame = qstyleoption_cast<const QStyleOptionFrame *>(option); frame
               && element == CE_ShapedFrame && isFlatFrame(*frame) && !isPopUpOfCombo(widget)) {
        drawFlatFrame(*frame, *painter);
    } else if (element == CE_ItemViewItem && item && item->state & State_Selected
               && showsIconsAbove(widget)) {
        QStyleOptionViewItem plain = *item;
        plain.icon = QIcon();
        const QIcon::Mode mode = item->state & State_Enabled ? QIcon::Normal : QIcon::Disabled;
        plain.icon.addPixmap(
            item->icon.pixmap(widget->window()->windowHandle(), item->decorationSize, mode),
            QIcon::Selected);
        QProxyStyle::drawControl(element, &plain, painter, widget);
    } else {
        QProxyStyle::drawControl(element, option, painter, widget);
    }
}

QSize ThemedStyle::sizeFromContents(ContentsType type, const QStyleOption *option,
                                    const QSize &contents, const QWidget *widget) const
{
    const QSize own = QProxyStyle::sizeFromContents(type, option, contents, widget);
    const QStyleOptionMenuItem *separator = type == CT_MenuItem ? themedSeparator(option) : nullptr;
    return separator ? QSize(own.width(), menuSeparatorHeight(*separator)) : own;
}

int ThemedStyle::pixelMetric(PixelMetric metric, const QStyleOption *option,
                             const QWidget *widget) const
{
    const int own = QProxyStyle::pixelMetric(metric, option, widget);
    if (!IconColors::hasValues())
        return own;
    switch (metric) {
    case PM_ToolBarExtensionExtent:
        // The usual twelve leave six for the sign that there is more, which nobody sees.
        return qMax(own, 20);
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
        // With a rule for it, a style sheet draws whole items without asking this style.
        return qobject_cast<const QAbstractItemView *>(widget) ? qMax(own, 16) : own;
    default:
        return own;
    }
}

} // namespace HV
