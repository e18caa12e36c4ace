// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDBusAbstractAdaptor>
#include <QString>

class Decisions;
class RunningProgram;

/**
 * The program's decisions on the session bus, for "vellumconnect --why": the interface
 * com.norvik.vellumconnect.Decisions of the object by which the program is reached. The bus is the user's own and lets
 * nobody else ask (D-Bus Specification, "Authentication").
 */
class DecisionsOnBus : public QDBusAbstractAdaptor
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.norvik.vellumconnect.Decisions")

public:
    /** Tells decisions, which must outlive program, to whoever reaches program; it belongs to program. */
    DecisionsOnBus(const Decisions& decisions, RunningProgram& program);

    /**
     * From another process: the decisions of the program that keeps its data in userFolder, as Decisions::text() puts
     * them. Starts no program, and waits 5 s at most. False where none answers.
     */
    static bool ask(const QString& userFolder, QString& text);

public Q_SLOTS:
    // By its name on the bus.
    QString List();

private:
    const Decisions& m_decisions;
};
