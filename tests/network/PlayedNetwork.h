// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QHash>
#include <QSet>

/**
 * A service of the system bus that says what the test wants it to. The bus is the test's own as well, and stays until
 * the program ends. It answers in the event loop of the test: whoever blocks that and waits for an answer gets none.
 */
class PlayedService : public QDBusVirtualObject
{
public:
    /** Takes the name. */
    explicit PlayedService(const QString& name);
    /** Leaves the bus, as when it was killed. */
    ~PlayedService() override;

    /**
     * Gives an object this property, by the object's own or a new value. One of a stored connection is in the section
     * "bluetooth", or in that which its name begins with, such as "connection.id".
     */
    void set(const QString& path, const QString& name, const QVariant& value);
    void remove(const QString& path, const QString& name);
    void removeObject(const QString& path);

    /** Tells by signals what was set and removed since the last time, or since it is there. */
    void tellChanges();

    /** Answers no question to this object from now on, or again, those from before first. */
    void setSilent(const QString& path, bool isSilent);

    /** Answers every question to this object with this error; with an empty one properly again. */
    void setError(const QString& path, const QString& error);

    /** Answers with this whatever the object is asked; with an invalid one properly again. */
    void setAnswer(const QString& path, const QVariant& answer);

    /** How many questions came to this object. */
    int questions(const QString& path) const;

    /** Says that values of an object changed, so many times as fast as it can. */
    void tell(const QString& path, const QString& interface, const QVariantMap& changes = {}, int times = 1);

    /** Says this signal of an object with these arguments, of any number and type. */
    void tellAnything(const QString& path, const QString& interface, const QString& signal,
                      const QVariantList& arguments);

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;
    QString introspect(const QString& path) const override;

protected:
    /** The interface of an object's properties. */
    virtual QString interfaceOf(const QString& path) const = 0;

private:
    void answer(const QDBusMessage& question);
    QDBusMessage answerTo(const QDBusMessage& question) const;

    const QString m_name;
    QDBusConnection m_bus;
    QHash<QString, QVariantMap> m_objects;
    QHash<QString, QVariantMap> m_set; ///< what was set and not told
    QSet<QString> m_added, m_removed;  ///< objects, and not told
    QSet<QString> m_silent;
    QList<QDBusMessage> m_open; ///< questions without an answer
    QHash<QString, QString> m_errors;
    QHash<QString, QVariant> m_answers;
    QHash<QString, int> m_questions;
};

/** NetworkManager with a modem by which "Mobile plan" is up and in the Internet, and a telephone by Bluetooth. */
class PlayedNetwork : public PlayedService
{
public:
    static const QString name, objects, manager, mobile, modem, telephone, bluetooth, stored, settings;

    PlayedNetwork();

    /** Adds the connection by Bluetooth, which is there at first, with this state. */
    void addTelephone(uint state);

protected:
    QString interfaceOf(const QString& path) const override;
};

/** ModemManager with the modem of PlayedNetwork, registered with "Northern Mobile", at home. */
class PlayedModems : public PlayedService
{
public:
    static const QString modem, mobileNetwork;

    PlayedModems();

    void tellOperator(const QVariant& operatorName) { tell(modem, mobileNetwork, {{"OperatorName", operatorName}}); }
    void tellRegistration(const QVariant& state) { tell(modem, mobileNetwork, {{"RegistrationState", state}}); }

protected:
    QString interfaceOf(const QString& path) const override;
};

/** To be called before anything uses the system bus: makes it one of the test's own. */
void useOwnSystemBus();
