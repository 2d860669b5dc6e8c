// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEME_TESTS_QUIETPLATFORM_H
#define HVTHEME_TESTS_QUIETPLATFORM_H

#include <QString>

/*!
 * Drops what the offscreen platform says about windows that are shown all the same: that it cannot
 * pass their size on, raise them or grab the keyboard. Any other message goes on as before.
 */
class QuietPlatform
{
public:
    QuietPlatform() { previous() = qInstallMessageHandler(handle); }
    ~QuietPlatform() { qInstallMessageHandler(previous()); }
    Q_DISABLE_COPY(QuietPlatform)

private:
    static QtMessageHandler &previous()
    {
        static QtMessageHandler handler = nullptr;
        return handler;
    }

    static void handle(QtMsgType type, const QMessageLogContext &context, const QString &text)
    {
        if (!text.startsWith(QLatin1String("This plugin does not support")))
            previous()(type, context, text);
    }
};

#endif
