// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QTest>

#include "PlainAnswers.h"
#include "PlayedPlugin.h"
#include "SampleFolder.h"

/** A container with four plug-ins: PlayedFirst and PlayedSecond, then one without links or texts and a quiet one. */
class PlayedContainer
{
public:
    /** Loads fresh copies of them, and forgets what played ones told before. */
    PlayedContainer()
    {
        for (const char* name : {"PlayedFirst", "PlayedSecond", "SampleFirst", "SampleQuiet"}) {
            if (!m_folder.add(QString::fromLatin1(name)))
                qFatal("The sample %s is missing", name);
        }
        container().loadFolder(m_folder.path());
        if (container().plugins().size() != 4)
            qFatal("Not every sample was loaded");
        PlayedPlugin::takeEvents();
    }

    PluginContainer& container() { return m_host.container; }
    QObject* first() const { return m_host.container.plugins().at(0); }
    QObject* second() const { return m_host.container.plugins().at(1); }

    /** What happened to the third, the fourth tells nothing. */
    QStringList eventsOfThird() const { return m_host.events(); }

private:
    SampleFolder m_folder;
    RecordingContainer m_host;
};
