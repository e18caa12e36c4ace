// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <functional>

/** The folder with the user's own files, which CommonUtils::GetPluginLibraryPath() answers. */
namespace UserFolder
{

/** Chooses the folder for this process. A relative path counts from the current folder; empty goes back to the default.
 */
void setPath(const QString& path);

/** The folder where none is chosen; absolute. */
QString defaultPath();

/**
 * The chosen folder, by default $XDG_DATA_HOME/vellumconnect; absolute, without a trailing slash (so the root is
 * empty). It need not exist.
 */
QString path();

/**
 * Lets listener be called each time a plug-in asks for the folder, before it has the answer: it is about to read or
 * write there. caller is an address in the plug-in's code. One at a time; a null one ends it.
 */
void setListener(const std::function<void(const void* caller)>& listener);

/** A plug-in asks for the folder, from this place in its code: tells the listener and answers path(). */
QString askedByPlugin(const void* caller);

} // namespace UserFolder
