// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "FakeHost.h"

#include <QDesktopServices>
#include <QDir>
#include <QFile>

#include "HostContract.h"

namespace
{
class NotifyOwner : public QObject, public INotifyService
{
    Q_OBJECT
    Q_INTERFACES(INotifyService)

public:
    int Notify(const QString& pluginName, unsigned int code, unsigned int param1, unsigned int param2) override
    {
        FakeHost& host = FakeHost::instance();
        host.notifications.append(QString("%1 %2 %3 %4").arg(pluginName).arg(code).arg(param1).arg(param2));
        FakeHost::run(host.duringNotification);
        return 0;
    }
};

class DialupOwner : public QObject, public IDialupUIService
{
    Q_OBJECT
    Q_INTERFACES(IDialupUIService)

public:
    int IsConnected() override { return FakeHost::instance().isConnected ? 1 : 0; }
};

class Desktop : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void open(const QUrl& url)
    {
        FakeHost::instance().openedByDesktop.append(url);
        FakeHost::instance().opened("desktop", url.toString());
    }
};

class Container : public IPluginContainer
{
public:
    QObject* GetPlugin(const QString& clsid, int kind) override
    {
        FakeHost& host = FakeHost::instance();
        const Lookup lookup = {clsid, kind};
        host.lookups.append(lookup);
        if (isAskedFor(HostContract::notifyService, clsid, kind))
            return owner(host.hasNotifyOwner, host.notifyOwnerHasService, &m_notify);
        if (isAskedFor(HostContract::dialupService, clsid, kind))
            return owner(host.hasDialupOwner, host.dialupOwnerHasService, &m_dialup);
        return nullptr;
    }

private:
    static bool isAskedFor(const HostContract::Component& component, const QString& clsid, int kind)
    {
        return clsid == component.clsid && kind == component.kind;
    }

    QObject* owner(bool isThere, bool hasService, QObject* object)
    {
        if (!isThere)
            return nullptr;
        return hasService ? object : &m_plain;
    }

    NotifyOwner m_notify;
    DialupOwner m_dialup;
    QObject m_plain;
};
} // namespace

FakeHost::FakeHost()
{
    static Desktop desktop;
    const char* const schemes[] = {"", "file", "mailto", "http", "https", "ftp"};
    for (const char* scheme : schemes)
        QDesktopServices::setUrlHandler(QLatin1String(scheme), &desktop, "open");
}

FakeHost& FakeHost::instance()
{
    static FakeHost host;
    return host;
}

void FakeHost::reset()
{
    m_folder.reset(new QTemporaryDir);
    userFolder = m_folder->path();
    QDir().mkpath(configFolder());
    hasContainer = true;
    hasNotifyOwner = notifyOwnerHasService = true;
    hasDialupOwner = dialupOwnerHasService = true;
    isConnected = false;
    messageAnswer = QMessageBox::Ok;
    language = "en";
    duringMessage = std::function<void()>();
    duringNotification = std::function<void()>();
    duringOpening = std::function<void()>();
    messages.clear();
    frames.clear();
    lookups.clear();
    notifications.clear();
    openedByHost.clear();
    openedByDesktop.clear();
    openings.clear();
    translationContexts.clear();
}

QString FakeHost::configFolder() const
{
    return userFolder + "/plugins/QuickLinkUIPlugin";
}

QString FakeHost::configPath() const
{
    return configFolder() + "/config.xml";
}

bool FakeHost::writeConfig(const QByteArray& bytes)
{
    QFile file(configPath());
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

QByteArray FakeHost::readConfig() const
{
    QFile file(configPath());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

IPluginContainer* FakeHost::container()
{
    static Container onlyContainer;
    return hasContainer ? &onlyContainer : nullptr;
}

void FakeHost::opened(const QString& who, const QString& what)
{
    openings.append(who + ' ' + what);
    run(duringOpening);
}

QString shown(const char* key)
{
    return FakeHost::instance().language + ':' + QLatin1String(key);
}

#include "FakeHost.moc"
