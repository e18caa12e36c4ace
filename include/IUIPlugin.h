// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include "IBasePlugin.h"

class QRect;
class QWidget;

/** A plug-in with a window or page of its own. */
class IUIPlugin : public IBasePlugin
{
public:
    virtual ~IUIPlugin() {}

    /**
     * Builds and shows the plug-in's page inside parent, at area (in: pixels, coordinates of parent).
     * The page becomes a child of parent, which stays the host's and may be deleted by it at any time;
     * parent may be null. 1 on success.
     */
    virtual int ShowWindow(QWidget* parent, QRect& area) = 0;

    /** Runs the plug-in's window as a modal dialog; its result code, 0 where there is none. */
    virtual int DoModal() = 0;

    /** Tells the plug-in that the host hides its window. */
    virtual void Hide() = 0;

    /** Tells the plug-in the area (pixels, coordinates of its parent) that the host has for it. */
    virtual void FitSize(QRect& area) = 0;

    /** Whether the plug-in has something to show without being asked. */
    virtual int IsReady() = 0;

    /** Tells the name of the new language. 1 when the name can be used, 0 when it is empty. */
    virtual int ChangeLang(const QString& language) = 0;
};

Q_DECLARE_INTERFACE(IUIPlugin, "com.norvik.vellumconnect.plugin.IUIPlugin")
