// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// A plug-in that records "<plug-in> <event>" for what happens to it. Its name, its class identifier, its kind and the
// answer of its Init come from the build.

#include "FakeAnswers.h"
#include "INotify.h"
#include "IPluginContainer.h"
#include "QtVersions.h"
#include "RecordedEvents.h"
#include "Startup.h"

static void record(const QString& event)
{
    recordEvent(QStringLiteral(FAKE_NAME) + ' ' + event);
}

/** Something that the plug-in leaves to the event loop to delete. */
class LateObject : public QObject
{
public:
    ~LateObject() override { record("late"); }
};

class RecordingPlugin : public QObject, public FakeAnswers<IBasePlugin>, public INotify
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "com.norvik.vellumconnect.plugin.IBasePlugin")
    Q_INTERFACES(IBasePlugin INotify)

public:
    ~RecordingPlugin() override { record("gone"); }

    int Init() override
    {
        record("Init");
        return FAKE_INIT;
    }
    int GetPluginType() override { return FAKE_KIND; }
    // Data of the library itself, which the host must not keep beyond it.
    QString GetCLSID() override { return QStringLiteral(FAKE_CLSID); }
    QString GetPluginName() override { return QStringLiteral(FAKE_NAME); }
    void OnDestroy() override
    {
        const bool isListed = Startup::GetPluginContainer()->GetPlugin(GetCLSID(), GetPluginType()) == this;
        record(isListed ? "OnDestroy while listed" : "OnDestroy");
        (new LateObject)->deleteLater();
    }
    int Notify(unsigned int code, unsigned int param1, unsigned int param2) override
    {
        record(QString("Notify %1 %2 %3").arg(code).arg(param1).arg(param2));
        return 7;
    }
};

EXPORT_FAKE_PLUGIN(RecordingPlugin)
#include "RecordingPlugin.moc"
