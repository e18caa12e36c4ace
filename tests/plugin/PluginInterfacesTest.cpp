// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The binary contract: tables of virtual operations, bases, identifiers.


#include <cstring>
#include <type_traits>

#include "FakeHost.h"
#include "QuickLinkSettingPluginDlg.h"
#include "Test.h"

namespace
{
/** The place of a virtual operation in its table, by the C++ ABI of GCC and Clang. */
template <class Operation>
int slotOf(Operation operation)
{
    std::ptrdiff_t words[2];
    static_assert(sizeof(words) == sizeof(operation), "a pointer to member is an offset and an adjustment");
    std::memcpy(words, &operation, sizeof(words));
#if defined(__arm__) || defined(__aarch64__)
    const bool isVirtual = words[1] & 1;
    const std::ptrdiff_t offset = words[0];
#else
    const bool isVirtual = words[0] & 1;
    const std::ptrdiff_t offset = words[0] - 1;
#endif
    return isVirtual ? static_cast<int>(offset / static_cast<std::ptrdiff_t>(sizeof(void*))) : -1;
}

/** How many bytes after the beginning of object its base lies. */
template <class Base, class Derived>
int offsetOf(Derived* object)
{
    return static_cast<int>(reinterpret_cast<char*>(static_cast<Base*>(object)) - reinterpret_cast<char*>(object));
}

/** An operation that has just the type that it should have. */
template <class Type>
Type typed(Type operation)
{
    return operation;
}

const int pointerSize = static_cast<int>(sizeof(void*));
} // namespace

class PluginInterfacesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();

    void operationHasItsSlot_data();
    void operationHasItsSlot();
    void classIsPureInterface_data();
    void classIsPureInterface();
    void baseHasItsPlace_data();
    void baseHasItsPlace();
    void identifier_data();
    void identifier();
    void castAnswer_data();
    void castAnswer();
    void interfaceCast_data();
    void interfaceCast();
    void callsThroughEveryBaseReachTheObject();

private:
    QuickLinkSettingPluginDlg* m_plugin;
};

void PluginInterfacesTest::initTestCase()
{
    FakeHost::instance().reset();
    m_plugin = new QuickLinkSettingPluginDlg;
}

void PluginInterfacesTest::cleanupTestCase()
{
    delete m_plugin;
}

void PluginInterfacesTest::operationHasItsSlot_data()
{
    QTest::addColumn<int>("slot");
    QTest::addColumn<int>("expected");
    // The destructor comes first and has two slots.
    QTest::newRow("IBaseInterface::Release")
        << slotOf(typed<void (IBaseInterface::*)()>(&IBaseInterface::Release)) << 2;
    QTest::newRow("IBaseInterface::GetLastError")
        << slotOf(typed<int (IBaseInterface::*)()>(&IBaseInterface::GetLastError)) << 3;
    QTest::newRow("IDestroyEvent::OnDestroy")
        << slotOf(typed<void (IDestroyEvent::*)()>(&IDestroyEvent::OnDestroy)) << 2;
    QTest::newRow("IBasePlugin::Init") << slotOf(typed<int (IBasePlugin::*)()>(&IBasePlugin::Init)) << 4;
    QTest::newRow("IBasePlugin::GetPluginType")
        << slotOf(typed<int (IBasePlugin::*)()>(&IBasePlugin::GetPluginType)) << 5;
    QTest::newRow("IBasePlugin::GetCLSID") << slotOf(typed<QString (IBasePlugin::*)()>(&IBasePlugin::GetCLSID)) << 6;
    QTest::newRow("IBasePlugin::GetVersion") << slotOf(typed<int (IBasePlugin::*)()>(&IBasePlugin::GetVersion)) << 7;
    QTest::newRow("IBasePlugin::GetPluginName")
        << slotOf(typed<QString (IBasePlugin::*)()>(&IBasePlugin::GetPluginName)) << 8;
    QTest::newRow("IBasePlugin::IsAllowRelease")
        << slotOf(typed<int (IBasePlugin::*)()>(&IBasePlugin::IsAllowRelease)) << 9;
    QTest::newRow("IBasePlugin::QueryInterface")
        << slotOf(typed<int (IBasePlugin::*)(int, QObject**)>(&IBasePlugin::QueryInterface)) << 10;
    QTest::newRow("IUIPlugin::ShowWindow")
        << slotOf(typed<int (IUIPlugin::*)(QWidget*, QRect&)>(&IUIPlugin::ShowWindow)) << 11;
    QTest::newRow("IUIPlugin::DoModal") << slotOf(typed<int (IUIPlugin::*)()>(&IUIPlugin::DoModal)) << 12;
    QTest::newRow("IUIPlugin::Hide") << slotOf(typed<void (IUIPlugin::*)()>(&IUIPlugin::Hide)) << 13;
    QTest::newRow("IUIPlugin::FitSize") << slotOf(typed<void (IUIPlugin::*)(QRect&)>(&IUIPlugin::FitSize)) << 14;
    QTest::newRow("IUIPlugin::IsReady") << slotOf(typed<int (IUIPlugin::*)()>(&IUIPlugin::IsReady)) << 15;
    QTest::newRow("IUIPlugin::ChangeLang")
        << slotOf(typed<int (IUIPlugin::*)(const QString&)>(&IUIPlugin::ChangeLang)) << 16;
    typedef ISettingUIPlugin Setting;
    QTest::newRow("ISettingUIPlugin::OnClickSettingOkButton")
        << slotOf(typed<int (Setting::*)()>(&Setting::OnClickSettingOkButton)) << 2;
    QTest::newRow("ISettingUIPlugin::OnClickSettingCancelButton")
        << slotOf(typed<int (Setting::*)()>(&Setting::OnClickSettingCancelButton)) << 3;
    QTest::newRow("ISettingUIPlugin::ShowSettingDialog")
        << slotOf(typed<int (Setting::*)(QWidget*, QRect&)>(&Setting::ShowSettingDialog)) << 4;
    QTest::newRow("ISettingUIPlugin::GetModuleName")
        << slotOf(typed<QString (Setting::*)()>(&Setting::GetModuleName)) << 5;
    QTest::newRow("ISettingUIPlugin::HideSetting") << slotOf(typed<int (Setting::*)()>(&Setting::HideSetting)) << 6;
    QTest::newRow("ISettingUIPlugin::IsActiveSetting")
        << slotOf(typed<int (Setting::*)()>(&Setting::IsActiveSetting)) << 7;
    QTest::newRow("INotify::Notify") << slotOf(typed<int (INotify::*)(unsigned int, unsigned int, unsigned int)>(
                                            &INotify::Notify))
                                     << 2;
    typedef IQuickLinkPlugin Links;
    QTest::newRow("IQuickLinkPlugin::GetQuickLinkRecordSize")
        << slotOf(typed<int (Links::*)()>(&Links::GetQuickLinkRecordSize)) << 2;
    QTest::newRow("IQuickLinkPlugin::GetActionFromQuickLink")
        << slotOf(typed<QAction* (Links::*)(int)>(&Links::GetActionFromQuickLink)) << 3;
    QTest::newRow("IQuickLinkPlugin::LaunchQuickLinkAction")
        << slotOf(typed<void (Links::*)(QAction*)>(&Links::LaunchQuickLinkAction)) << 4;
}

void PluginInterfacesTest::operationHasItsSlot()
{
    QFETCH(int, slot);
    QFETCH(int, expected);
    QCOMPARE(slot, expected);
}

void PluginInterfacesTest::classIsPureInterface_data()
{
    QTest::addColumn<bool>("isAbstract");
    QTest::addColumn<bool>("hasVirtualDestructor");
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("tables");
#define INTERFACE_ROW(Class, tables)                                                                                   \
    QTest::newRow(#Class) << std::is_abstract<Class>::value << std::has_virtual_destructor<Class>::value               \
                          << static_cast<int>(sizeof(Class)) << tables
    INTERFACE_ROW(IBaseInterface, 1);
    INTERFACE_ROW(IDestroyEvent, 1);
    INTERFACE_ROW(IBasePlugin, 2);
    INTERFACE_ROW(IUIPlugin, 2);
    INTERFACE_ROW(ISettingUIPlugin, 1);
    INTERFACE_ROW(INotify, 1);
    INTERFACE_ROW(IQuickLinkPlugin, 1);
#undef INTERFACE_ROW
}

void PluginInterfacesTest::classIsPureInterface()
{
    QFETCH(bool, isAbstract);
    QFETCH(bool, hasVirtualDestructor);
    QFETCH(int, size);
    QFETCH(int, tables);
    QVERIFY(isAbstract);
    QVERIFY(hasVirtualDestructor);
    // Nothing but the pointers to its tables: no data.
    QCOMPARE(size, tables * pointerSize);
}

void PluginInterfacesTest::baseHasItsPlace_data()
{
    QTest::addColumn<int>("offset");
    QTest::addColumn<int>("expected");
    IUIPlugin* const window = m_plugin;
    IBasePlugin* const base = window;
    const int afterObject = static_cast<int>(sizeof(QObject));
    QTest::newRow("IBasePlugin: IBaseInterface") << offsetOf<IBaseInterface>(base) << 0;
    QTest::newRow("IBasePlugin: IDestroyEvent") << offsetOf<IDestroyEvent>(base) << pointerSize;
    QTest::newRow("IUIPlugin: IBasePlugin") << offsetOf<IBasePlugin>(window) << 0;
    QTest::newRow("IUIPlugin: IDestroyEvent") << offsetOf<IDestroyEvent>(window) << pointerSize;
    QTest::newRow("plug-in: QObject") << offsetOf<QObject>(m_plugin) << 0;
    QTest::newRow("plug-in: IUIPlugin") << offsetOf<IUIPlugin>(m_plugin) << afterObject;
    QTest::newRow("plug-in: ISettingUIPlugin") << offsetOf<ISettingUIPlugin>(m_plugin) << afterObject + 2 * pointerSize;
    QTest::newRow("plug-in: INotify") << offsetOf<INotify>(m_plugin) << afterObject + 3 * pointerSize;
    QTest::newRow("plug-in: IQuickLinkPlugin") << offsetOf<IQuickLinkPlugin>(m_plugin) << afterObject + 4 * pointerSize;
}

void PluginInterfacesTest::baseHasItsPlace()
{
    QFETCH(int, offset);
    QFETCH(int, expected);
    QCOMPARE(offset, expected);
    // Going back down is only possible because no base is virtual.
    IBaseInterface* const bottom = static_cast<IUIPlugin*>(m_plugin);
    QCOMPARE(static_cast<QuickLinkSettingPluginDlg*>(static_cast<IUIPlugin*>(static_cast<IBasePlugin*>(bottom))),
             m_plugin);
}

void PluginInterfacesTest::identifier_data()
{
    QTest::addColumn<QByteArray>("identifier");
    QTest::addColumn<QByteArray>("expected");
#define IDENTIFIER_ROW(Class)                                                                                          \
    QTest::newRow(#Class) << QByteArray(qobject_interface_iid<Class*>())                                               \
                          << QByteArray("com.norvik.vellumconnect.plugin." #Class)
    IDENTIFIER_ROW(IBasePlugin);
    IDENTIFIER_ROW(IUIPlugin);
    IDENTIFIER_ROW(ISettingUIPlugin);
    IDENTIFIER_ROW(INotify);
    IDENTIFIER_ROW(IQuickLinkPlugin);
    IDENTIFIER_ROW(INotifyService);
    IDENTIFIER_ROW(IDialupUIService);
#undef IDENTIFIER_ROW
#if QT_VERSION < 0x060000 // later ones do not even compile the question
    QTest::newRow("IBaseInterface has none") << QByteArray(qobject_interface_iid<IBaseInterface*>()) << QByteArray();
    QTest::newRow("IDestroyEvent has none") << QByteArray(qobject_interface_iid<IDestroyEvent*>()) << QByteArray();
#endif
}

void PluginInterfacesTest::identifier()
{
    QFETCH(QByteArray, identifier);
    QFETCH(QByteArray, expected);
    QCOMPARE(identifier, expected);
}

void PluginInterfacesTest::castAnswer_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<quintptr>("expected");
    const quintptr none = 0;
    const quintptr object = reinterpret_cast<quintptr>(m_plugin);
    const quintptr window = reinterpret_cast<quintptr>(static_cast<IUIPlugin*>(m_plugin));
    const quintptr setting = reinterpret_cast<quintptr>(static_cast<ISettingUIPlugin*>(m_plugin));
    const quintptr notify = reinterpret_cast<quintptr>(static_cast<INotify*>(m_plugin));
    const quintptr links = reinterpret_cast<quintptr>(static_cast<IQuickLinkPlugin*>(m_plugin));
    const QByteArray prefix = "com.norvik.vellumconnect.plugin.";
    QTest::newRow("null") << QByteArray() << none;
    QTest::newRow("empty") << QByteArray("") << none;
    QTest::newRow("the class") << QByteArray("QuickLinkSettingPluginDlg") << object;
    QTest::newRow("IUIPlugin") << QByteArray("IUIPlugin") << window;
    QTest::newRow("ISettingUIPlugin") << QByteArray("ISettingUIPlugin") << setting;
    QTest::newRow("INotify") << QByteArray("INotify") << notify;
    QTest::newRow("IQuickLinkPlugin") << QByteArray("IQuickLinkPlugin") << links;
    QTest::newRow("identifier of IBasePlugin") << prefix + "IBasePlugin" << window;
    QTest::newRow("identifier of IUIPlugin") << prefix + "IUIPlugin" << window;
    QTest::newRow("identifier of ISettingUIPlugin") << prefix + "ISettingUIPlugin" << setting;
    QTest::newRow("identifier of INotify") << prefix + "INotify" << notify;
    QTest::newRow("identifier of IQuickLinkPlugin") << prefix + "IQuickLinkPlugin" << links;
    QTest::newRow("QObject") << QByteArray("QObject") << object;
    QTest::newRow("IBasePlugin by name") << QByteArray("IBasePlugin") << none;
    QTest::newRow("IBaseInterface") << QByteArray("IBaseInterface") << none;
    QTest::newRow("IDestroyEvent") << QByteArray("IDestroyEvent") << none;
    QTest::newRow("identifier of a service") << prefix + "INotifyService" << none;
    QTest::newRow("identifier in another case") << prefix + "iuiplugin" << none;
    QTest::newRow("identifier and more") << prefix + "IUIPlugin/1.0" << none;
    QTest::newRow("unknown") << QByteArray("something") << none;
}

void PluginInterfacesTest::castAnswer()
{
    QFETCH(QByteArray, name);
    QFETCH(quintptr, expected);
    const char* const asked = name.isNull() ? nullptr : name.constData();
    QCOMPARE(reinterpret_cast<quintptr>(m_plugin->qt_metacast(asked)), expected);
}

void PluginInterfacesTest::interfaceCast_data()
{
    QTest::addColumn<quintptr>("answer");
    QTest::addColumn<quintptr>("expected");
    QObject* const object = m_plugin;
#define CAST_ROW(Class)                                                                                                \
    QTest::newRow(#Class) << reinterpret_cast<quintptr>(qobject_cast<Class*>(object))                                  \
                          << reinterpret_cast<quintptr>(static_cast<Class*>(m_plugin))
    CAST_ROW(IBasePlugin);
    CAST_ROW(IUIPlugin);
    CAST_ROW(ISettingUIPlugin);
    CAST_ROW(INotify);
    CAST_ROW(IQuickLinkPlugin);
    CAST_ROW(QuickLinkSettingPluginDlg);
#undef CAST_ROW
    const quintptr none = 0;
    QTest::newRow("INotifyService") << reinterpret_cast<quintptr>(qobject_cast<INotifyService*>(object)) << none;
    QTest::newRow("IDialupUIService") << reinterpret_cast<quintptr>(qobject_cast<IDialupUIService*>(object)) << none;
}

void PluginInterfacesTest::interfaceCast()
{
    QFETCH(quintptr, answer);
    QFETCH(quintptr, expected);
    QCOMPARE(answer, expected);
}

void PluginInterfacesTest::callsThroughEveryBaseReachTheObject()
{
    IBaseInterface* const base = static_cast<IUIPlugin*>(m_plugin);
    QCOMPARE(base->GetLastError(), 0);
    QCOMPARE(qobject_cast<IBasePlugin*>(static_cast<QObject*>(m_plugin))->GetVersion(), 257);
    QCOMPARE(static_cast<INotify*>(m_plugin)->Notify(0xffffffffU, 0xffffffffU, 0xffffffffU), 0);
    QCOMPARE(static_cast<IQuickLinkPlugin*>(m_plugin)->GetQuickLinkRecordSize(), -1);
    QCOMPARE(static_cast<ISettingUIPlugin*>(m_plugin)->GetModuleName(), shown("IDS_SETTING_NAME"));
}

REGISTER_TEST(PluginInterfacesTest)
#include "PluginInterfacesTest.moc"
