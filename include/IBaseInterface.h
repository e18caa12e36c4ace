// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

/**
 * The two operations that every interface of a plug-in starts with.
 *
 * The host calls through the tables of these classes, so the order of the virtual operations is a binary
 * contract: never insert, remove or reorder one. A truth value is an int: 1 is true, 0 is false. Every
 * operation of every interface is called on the GUI thread only.
 */
class IBaseInterface
{
public:
    virtual ~IBaseInterface() {}

    /** Tells the plug-in that one holder lets go of it. Frees nothing: the plug-in loader owns the object. */
    virtual void Release() = 0;

    /** The plug-in's last error code; 0 stands for none. */
    virtual int GetLastError() = 0;
};
