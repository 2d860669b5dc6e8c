// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEMEAPP_APPLICATIONTHEME_H
#define HVTHEMEAPP_APPLICATIONTHEME_H

#include <hvthemeapp/hvthemeapp_export.h>

#include <QObject>

#include <memory>

namespace HV
{

class Theme;

/*!
 * \brief The look of a whole application: a theme, the palette and the style sheets that go with it.
 */
class HVTHEMEAPP_EXPORT ApplicationTheme : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString name READ name WRITE setName NOTIFY nameChanged)

public:
    explicit ApplicationTheme(QObject *parent = nullptr);
    ~ApplicationTheme() override;

    QString name() const;

    /*! \brief Gives the application the look \a name; returns whether it has it now. */
    bool setName(const QString &name);

    /*! \brief Returns the theme in force; never null. */
    Theme *theme() const;

Q_SIGNALS:
    void nameChanged();

    /*! \brief The palette, the icons and the style sheet of another look are in force. */
    void changed();

private:
    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace HV

#endif // HVTHEMEAPP_APPLICATIONTHEME_H
