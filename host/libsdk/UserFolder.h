// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/** The folder with the user's own files, which CommonUtils::GetPluginLibraryPath() answers. */
namespace UserFolder
{

/** Chooses the folder for this process. A relative path counts from the current folder; empty goes back to the default.
 */
void setPath(const QString& path);

/**
 * The chosen folder, by default $XDG_DATA_HOME/vellumconnect; absolute, without a trailing slash (so the root is
 * empty). It need not exist.
 */
QString path();

} // namespace UserFolder
