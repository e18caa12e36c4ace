// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Someone else's host of the installed plug-ins: a button for each quick link, and the settings pages.
// Usage: mini-host FOLDER; the user's data lie there, such as the links in plugins/QuickLinkUIPlugin/config.xml.

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFile>
#include <QHash>
#include <QPushButton>
#include <QStringList>
#include <QTextStream>
#include <QTimer>
#include <QTranslator>
#include <QVBoxLayout>

#include "HostContract.h"
#include "INotify.h"
#include "INotifyService.h"
#include "IQuickLinkPlugin.h"
#include "ISettingUIPlugin.h"
#include "PluginContainer.h"
#include "StartupContainer.h"
#include "UserFolder.h"

/** The window, which is what plug-ins find in this host: the service by which they notify, and the menu of links. */
class Window : public QWidget, public INotify, public INotifyService
{
    Q_OBJECT
    Q_INTERFACES(INotify INotifyService)

public:
    explicit Window(PluginContainer& container)
        : m_container(container)
        , m_rows(new QVBoxLayout(this))
    {
        const HostContract::Component components[] = {HostContract::notifyService, HostContract::menuManager};
        for (const HostContract::Component& own : components)
            container.registerComponent(QLatin1String(own.clsid), own.kind, QLatin1String(own.name), this);
        addButton(this, QLatin1String("Settings..."), SLOT(showSettings()));
    }

    int Notify(const QString& name, unsigned int code, unsigned int param1, unsigned int param2) override
    {
        return m_container.notify(name, code, param1, param2);
    }

    int Notify(unsigned int code, unsigned int, unsigned int) override
    {
        // Later: whoever tells of it may not be through with the links.
        if (code == HostContract::linksChanged)
            QTimer::singleShot(0, this, SLOT(showLinks()));
        return 0;
    }

public Q_SLOTS:
    void showLinks()
    {
        delete m_buttons;
        m_buttons = new QWidget;
        new QVBoxLayout(m_buttons);
        m_rows->insertWidget(0, m_buttons);
        m_links.clear();
        QStringList names;
        for (const PluginWith<IQuickLinkPlugin>& plugin : m_container.all<IQuickLinkPlugin>()) {
            for (int i = 0; i < plugin.interface->GetQuickLinkRecordSize(); ++i) {
                const Link link = {plugin.interface, plugin.interface->GetActionFromQuickLink(i)};
                names.append(link.action->text());
                m_links.insert(addButton(m_buttons, names.last(), SLOT(open())), link);
            }
        }
        QTextStream(stdout) << "Quick links: " << names.join(QLatin1String(", ")) << '\n';
    }

private Q_SLOTS:
    void open()
    {
        const Link link = m_links.value(sender());
        link.plugin->LaunchQuickLinkAction(link.action);
    }

    void showSettings()
    {
        for (const PluginWith<ISettingUIPlugin>& plugin : m_container.all<ISettingUIPlugin>()) {
            QDialog dialog(this);
            dialog.setWindowTitle(QLatin1String("Settings"));
            QDialogButtonBox* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok, Qt::Horizontal, &dialog);
            connect(buttons, SIGNAL(accepted()), &dialog, SLOT(accept()));
            QWidget* const place = new QWidget;
            place->setFixedSize(470, 420);
            (new QVBoxLayout(&dialog))->addWidget(place);
            dialog.layout()->addWidget(buttons);
            QRect area = place->rect();
            if (!plugin.interface->IsActiveSetting() || !plugin.interface->ShowSettingDialog(place, area))
                continue;
            if (dialog.exec() == QDialog::Accepted)
                plugin.interface->OnClickSettingOkButton();
            else
                plugin.interface->OnClickSettingCancelButton();
            plugin.interface->HideSetting();
        }
    }

private:
    struct Link {
        IQuickLinkPlugin* plugin;
        QAction* action;
    };

    QPushButton* addButton(QWidget* place, QString text, const char* slot)
    {
        QPushButton* const button = new QPushButton(text.replace(QLatin1Char('&'), QLatin1String("&&")));
        connect(button, SIGNAL(clicked()), this, slot);
        place->layout()->addWidget(button);
        return button;
    }

    PluginContainer& m_container;
    QVBoxLayout* m_rows;
    QWidget* m_buttons = nullptr;
    QHash<QObject*, Link> m_links; ///< by button
};

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    UserFolder::setPath(argc > 1 ? QFile::decodeName(argv[1]) : QString());
    QTranslator texts;
    if (texts.load(QLatin1String("vellumconnect_en"), QLatin1String(TEXTS)))
        QCoreApplication::installTranslator(&texts);

    PluginContainer container;
    Window window(container);
    installPluginContainer(&container);
    container.loadFolder(QString::fromUtf8(PLUGINS));
    window.showLinks();
    window.show();
    for (const PluginWith<INotify>& plugin : container.all<INotify>())
        plugin.interface->Notify(HostContract::programStarted, 0, 0);
    const int result = QApplication::exec();
    // While the window, which plug-ins may notify, is still there.
    container.shutdown();
    return result;
}

#include "main.moc"
