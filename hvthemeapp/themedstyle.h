// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEMEAPP_THEMEDSTYLE_H
#define HVTHEMEAPP_THEMEDSTYLE_H

#include <QPointer>
#include <QProxyStyle>

namespace HV
{

/*!
 * \brief One of Qt's styles with the icons of the theme in force in the place of its own.
 *
 * They are those of message boxes, file dialogs, dialog buttons, title bars, line edits and tool bars.
 * What style sheets do not reach takes the colours of the palette: title bars and grounds of windows
 * inside windows, dials, tick marks of sliders, titles in menus, frames and dividing lines, arrows and
 * boxes of items, and icons that cannot be used. Until a theme is in force the style's own stay.
 */
class ThemedStyle : public QProxyStyle
{
    Q_OBJECT

public:
    /*!
     * \brief Makes a themed style of the application's, and of each that replaces it later.
     *
     * One of Qt's that the program changes through a QProxyStyle works behind it, and keeps the icons
     * that it has of its own. A style that is all the program's is left alone. Cheap if it is done
     * already. Needs a QApplication; call it on the GUI thread.
     */
    static void install();

    /*!
     * \brief Gives the application's style the name of the one behind it, if it has none.
     *
     * Qt's style for style sheets has none, and programs make styles of the name that they find.
     */
    static void keepName();

    using QProxyStyle::polish;
    using QProxyStyle::unpolish;
    /*! \brief Prepares \a widget; the ground of an area of inner windows, which else stays that of the
     *         palette at its making, becomes that of the palette in force, unless the program chose it. */
    void polish(QWidget *widget) override;
    void unpolish(QWidget *widget) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

    QIcon standardIcon(StandardPixmap icon, const QStyleOption *option = nullptr,
                       const QWidget *widget = nullptr) const override;
    QPixmap standardPixmap(StandardPixmap pixmap, const QStyleOption *option = nullptr,
                           const QWidget *widget = nullptr) const override;

    QPixmap generatedIconPixmap(QIcon::Mode mode, const QPixmap &pixmap,
                                const QStyleOption *option) const override;

    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                            QPainter *painter, const QWidget *widget = nullptr) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget = nullptr) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget = nullptr) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &contents,
                           const QWidget *widget = nullptr) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption *option = nullptr,
                    const QWidget *widget = nullptr) const override;

private:
    explicit ThemedStyle(const QString &name);
    ThemedStyle(QProxyStyle *ofProgram, QStyle *changed);
    bool hasOwn(StandardPixmap pixmap, const QStyleOption *option, const QWidget *widget) const;

    bool paint(QWidget &widget, QEvent &event);
    void paintItself(QWidget &widget, QEvent &event);

    const QObject *m_painted = nullptr; // by itself, as was asked for
    // Qt's, behind what the program makes of it; null if it makes nothing
    QPointer<QStyle> m_changed;
    mutable bool m_isComparing = false; // what the two have
};

} // namespace HV

#endif // HVTHEMEAPP_THEMEDSTYLE_H
