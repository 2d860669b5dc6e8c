// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "standarddrawings.h"

#include <QDockWidget>
#include <QGuiApplication>
#include <QStyleOption>

namespace HV
{

namespace
{

struct Drawing {
    QStyle::StandardPixmap pixmap;
    const char *name;
    const char *mirroredName; // where text runs from right to left; null if it is the same
};

const Drawing drawings[] = {
    {QStyle::SP_TitleBarMenuButton, "menu", nullptr},
    {QStyle::SP_TitleBarMinButton, "minimize", nullptr},
    {QStyle::SP_TitleBarMaxButton, "show_max", nullptr},
    {QStyle::SP_TitleBarCloseButton, "close", nullptr},
    {QStyle::SP_TitleBarNormalButton, "show_normal", nullptr},
    {QStyle::SP_TitleBarShadeButton, "up", nullptr},
    {QStyle::SP_TitleBarUnshadeButton, "down", nullptr},
    {QStyle::SP_TitleBarContextHelpButton, "help", nullptr},
    {QStyle::SP_DockWidgetCloseButton, "close", nullptr},
    {QStyle::SP_MessageBoxInformation, "tip_about", nullptr},
    {QStyle::SP_MessageBoxWarning, "tip_warning", nullptr},
    {QStyle::SP_MessageBoxCritical, "tip_critical", nullptr},
    {QStyle::SP_MessageBoxQuestion, "tip_question", nullptr},
    {QStyle::SP_DesktopIcon, "desktop", nullptr},
    {QStyle::SP_TrashIcon, "delete", nullptr},
    {QStyle::SP_ComputerIcon, "computer", nullptr},
    {QStyle::SP_DriveFDIcon, "save", nullptr},
    {QStyle::SP_DriveHDIcon, "drive", nullptr},
    {QStyle::SP_DriveCDIcon, "disc", nullptr},
    {QStyle::SP_DriveDVDIcon, "disc", nullptr},
    {QStyle::SP_DriveNetIcon, "network", nullptr},
    {QStyle::SP_DirHomeIcon, "home", nullptr},
    {QStyle::SP_DirOpenIcon, "folder_open", nullptr},
    {QStyle::SP_DirClosedIcon, "folder", nullptr},
    {QStyle::SP_DirIcon, "folder", nullptr},
    {QStyle::SP_DirLinkIcon, "folder_link", nullptr},
    {QStyle::SP_DirLinkOpenIcon, "folder_link", nullptr},
    {QStyle::SP_FileIcon, "file", nullptr},
    {QStyle::SP_FileLinkIcon, "file_link", nullptr},
    {QStyle::SP_ToolBarHorizontalExtensionButton, "extension_right", "extension_left"},
    {QStyle::SP_ToolBarVerticalExtensionButton, "extension_down", nullptr},
    {QStyle::SP_FileDialogStart, "move_top", nullptr},
    {QStyle::SP_FileDialogEnd, "move_bottom", nullptr},
    {QStyle::SP_FileDialogToParent, "folder_up", nullptr},
    {QStyle::SP_FileDialogNewFolder, "folder_new", nullptr},
    {QStyle::SP_FileDialogDetailedView, "view_details", nullptr},
    {QStyle::SP_FileDialogInfoView, "tip_about", nullptr},
    {QStyle::SP_FileDialogContentsView, "view_icons", nullptr},
    {QStyle::SP_FileDialogListView, "view_list", nullptr},
    {QStyle::SP_FileDialogBack, "turn_prev", "turn_next"},
    {QStyle::SP_DialogOkButton, "correct", nullptr},
    {QStyle::SP_DialogCancelButton, "close", nullptr},
    {QStyle::SP_DialogHelpButton, "help", nullptr},
    {QStyle::SP_DialogOpenButton, "open", nullptr},
    {QStyle::SP_DialogSaveButton, "save", nullptr},
    {QStyle::SP_DialogCloseButton, "close", nullptr},
    {QStyle::SP_DialogApplyButton, "correct", nullptr},
    {QStyle::SP_DialogResetButton, "reset", nullptr},
    {QStyle::SP_DialogDiscardButton, "delete", nullptr},
    {QStyle::SP_DialogYesButton, "correct", nullptr},
    {QStyle::SP_DialogNoButton, "close", nullptr},
    {QStyle::SP_DialogYesToAllButton, "correct", nullptr},
    {QStyle::SP_DialogNoToAllButton, "close", nullptr},
    {QStyle::SP_DialogSaveAllButton, "save", nullptr},
    {QStyle::SP_DialogAbortButton, "stop", nullptr},
    {QStyle::SP_DialogRetryButton, "reload", nullptr},
    {QStyle::SP_DialogIgnoreButton, "turn_next", "turn_prev"},
    {QStyle::SP_RestoreDefaultsButton, "reset", nullptr},
    {QStyle::SP_ArrowUp, "move_up", nullptr},
    {QStyle::SP_ArrowDown, "move_down", nullptr},
    {QStyle::SP_ArrowLeft, "turn_prev", nullptr},
    {QStyle::SP_ArrowRight, "turn_next", nullptr},
    {QStyle::SP_ArrowBack, "turn_prev", "turn_next"},
    {QStyle::SP_ArrowForward, "turn_next", "turn_prev"},
    {QStyle::SP_CommandLink, "turn_next", "turn_prev"},
    {QStyle::SP_VistaShield, "admin_lock", nullptr},
    {QStyle::SP_BrowserReload, "reload", nullptr},
    {QStyle::SP_BrowserStop, "stop", nullptr},
    {QStyle::SP_MediaPlay, "media_play", nullptr},
    {QStyle::SP_MediaStop, "media_stop", nullptr},
    {QStyle::SP_MediaPause, "media_pause", nullptr},
    {QStyle::SP_MediaSkipForward, "media_skip_forward", nullptr},
    {QStyle::SP_MediaSkipBackward, "media_skip_backward", nullptr},
    {QStyle::SP_MediaSeekForward, "media_seek_forward", nullptr},
    {QStyle::SP_MediaSeekBackward, "media_seek_backward", nullptr},
    {QStyle::SP_MediaVolume, "mute_off", nullptr},
    {QStyle::SP_MediaVolumeMuted, "mute_on", nullptr},
    {QStyle::SP_LineEditClearButton, "clear", nullptr},
#if QT_VERSION >= QT_VERSION_CHECK(6, 3, 0)
    {QStyle::SP_TabCloseButton, "close", nullptr},
#endif
};

} // namespace

const char *standardDrawing(QStyle::StandardPixmap pixmap, const QStyleOption *option,
                            const QWidget *widget)
{
    // Only a dock widget uses the sign of a window's normal size to leave its place.
    if (pixmap == QStyle::SP_TitleBarNormalButton && qobject_cast<const QDockWidget *>(widget))
        return "float";
    const Qt::LayoutDirection direction = option ? option->direction
        : widget                                 ? widget->layoutDirection()
                                                 : QGuiApplication::layoutDirection();
    for (const Drawing &drawing : drawings) {
        if (drawing.pixmap == pixmap)
            return direction == Qt::RightToLeft && drawing.mirroredName ? drawing.mirroredName
                                                                        : drawing.name;
    }
    return nullptr;
}

const char *primitiveDrawing(QStyle::PrimitiveElement element, const QStyleOption &option)
{
    const bool isMirrored = option.direction == Qt::RightToLeft;
    switch (element) {
    case QStyle::PE_IndicatorBranch:
        if (!(option.state & QStyle::State_Children))
            return nullptr;
        return option.state & QStyle::State_Open ? "down" : isMirrored ? "left" : "right";
    case QStyle::PE_IndicatorToolBarHandle:
        return option.state & QStyle::State_Horizontal ? "grip" : "grip_horizontal";
    case QStyle::PE_IndicatorColumnViewArrow:
        return isMirrored ? "left" : "right";
    case QStyle::PE_IndicatorItemViewItemCheck:
        return option.state & QStyle::State_NoChange ? "checkbox_half"
            : option.state & QStyle::State_On        ? "checkbox_on"
                                                     : "checkbox_off";
    default:
        return nullptr;
    }
}

} // namespace HV
