// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QStringList>
#include "QtVersions.h"

#include "PluginContainer.h"

/** A temporary plug-in folder. Its libraries are copies, so that no test meets one that another has loaded. */
class SampleFolder
{
public:
    SampleFolder();

    /** The plug-in folder. */
    QString path() const;

    /** Where the library of a plug-in with this name belongs. */
    QString file(const QString& name) const;

    /** Puts a copy of a built sample there, under its own or another name; false when that fails. */
    bool add(const QString& sample, const QString& name = QString()) const;

    /** Puts a file of these bytes there; false when that fails. */
    bool write(const QString& name, const QByteArray& bytes) const;

private:
    QTemporaryDir m_folder;
};

/** An installed container with a component in which the samples record what happens to them. */
class RecordingContainer
{
public:
    RecordingContainer();

    PluginContainer container;

    /** "<plug-in> <event>" in order. */
    QStringList events() const;

    /** The names of the loaded plug-ins, in order. */
    QStringList loaded() const;

private:
    QObject m_recorder;
};

/** Whether the library is in this process's memory. */
bool isMapped(const QString& file);
