// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

#include "PluginContainer.h"
#include "QtVersions.h"

/** A temporary plug-in folder. Its libraries are copies, so that no test meets one that another has loaded. */
class PluginFolder
{
public:
    PluginFolder();

    QString path() const;

    /** Where the library of a plug-in with this name belongs. */
    QString file(const QString& name) const;

    /** Puts a copy of a built plug-in there, under its own or another name, or ends the test program. */
    void add(const QString& plugin, const QString& name = QString()) const;

    /** Puts a file of these bytes there, or ends the test program. */
    void write(const QString& name, const QByteArray& bytes) const;

private:
    QTemporaryDir m_folder;
};

/** An installed container, and the folder it loads from. Events of former plug-ins are forgotten. */
class PluginFixture
{
public:
    /** Puts copies of these plug-ins into the folder; load() loads them. */
    explicit PluginFixture(const QStringList& plugins = QStringList());

    /** Loads what is in the folder. The names of all loaded plug-ins, in order. */
    QStringList load();

    PluginFolder folder;
    PluginContainer container;
};

/** Whether the library is in this process's memory. */
bool isMapped(const QString& file);
