// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QStringList>
#include <QVariantMap>

/**
 * This program as the desktop and a second start of it reach it: the interface org.freedesktop.Application on the
 * session bus, by the Desktop Entry Specification, chapter "D-Bus Activation". A program with a folder of its own has a
 * name of its own. Where there is no session bus, nobody reaches it.
 */
class RunningProgram : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    /**
     * The program that keeps its data in userFolder, an absolute path. Nobody reaches it before announce(), nor the
     * adaptors (QDBusAbstractAdaptor) that it has by then.
     */
    explicit RunningProgram(const QString& userFolder);

    /** The end of being reached. */
    ~RunningProgram() override;

    RunningProgram(const RunningProgram&) = delete;
    RunningProgram& operator=(const RunningProgram&) = delete;

    /** Lets others reach the program from now on. False, with a line on the warning channel, where that cannot be. */
    bool announce();

    /**
     * From another process: brings the program of userFolder to the front, with the token that the desktop gave to this
     * process for it. Waits for a program that is starting, 5 s at most. False where none answers.
     */
    static bool handOver(const QString& userFolder);

    /** The name on the bus of the program with this folder. */
    static QString nameOf(const QString& userFolder);

    /** The object of that name by which the program is reached. */
    static QString path();

public Q_SLOTS:
    // What the interface has, by its names.
    Q_SCRIPTABLE void Activate(const QVariantMap& platformData);
    Q_SCRIPTABLE void Open(const QStringList& addresses, const QVariantMap& platformData);
    Q_SCRIPTABLE void ActivateAction(const QString& action, const QVariantList& parameters,
                                     const QVariantMap& platformData);

Q_SIGNALS:
    /** The window is wanted. token is what the desktop lets it come to the front by; empty for none. */
    void windowRequested(const QByteArray& token);

    /** The settings are wanted. */
    void settingsRequested();

    /** The program is to end. */
    void quitRequested();

private:
    QString m_name;
    bool m_isAnnounced = false;
};
