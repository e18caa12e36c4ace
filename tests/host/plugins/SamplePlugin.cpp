// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// A plug-in that tells the host's component "recorder" what happens to it. Its name, its class identifier, its kind and
// the answer of its Init come from the build.

#include <QStringList>
#include <QVariant>

#include "INotify.h"
#include "IPluginContainer.h"
#include "PlainAnswers.h"
#include "Startup.h"
#include "QtVersions.h"

static void record(const QString& event)
{
    IPluginContainer* const container = Startup::GetPluginContainer();
    QObject* const recorder = container ? container->GetPlugin("recorder", 1) : nullptr;
    if (recorder)
        recorder->setProperty("events", recorder->property("events").toStringList()
                                            << QStringLiteral(SAMPLE_NAME) + ' ' + event);
}

/** Something that the plug-in leaves to the event loop to delete. */
class LateObject : public QObject
{
public:
    ~LateObject() override { record("late"); }
};

class SamplePlugin : public QObject, public PlainAnswers<IBasePlugin>, public INotify
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "com.norvik.vellumconnect.plugin.IBasePlugin")
    Q_INTERFACES(IBasePlugin INotify)

public:
    ~SamplePlugin() override { record("gone"); }

    int Init() override
    {
        record("Init");
        return SAMPLE_INIT;
    }
    int GetPluginType() override { return SAMPLE_KIND; }
    // Data of the library itself, which the host must not keep beyond it.
    QString GetCLSID() override { return QStringLiteral(SAMPLE_CLSID); }
    QString GetPluginName() override { return QStringLiteral(SAMPLE_NAME); }
    void OnDestroy() override
    {
        const bool isListed = Startup::GetPluginContainer()->GetPlugin(GetCLSID(), GetPluginType()) == this;
        record(isListed ? "OnDestroy while listed" : "OnDestroy");
        (new LateObject)->deleteLater();
    }
    int Notify(unsigned int code, unsigned int param1, unsigned int param2) override
    {
        record(QString("%1 %2 %3").arg(code).arg(param1).arg(param2));
        return 7;
    }
};

EXPORT_FAKE_PLUGIN(SamplePlugin)
#include "SamplePlugin.moc"
