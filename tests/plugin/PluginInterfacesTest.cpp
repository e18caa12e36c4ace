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

/** The Qt identifier of an interface; empty without one, be it that the toolkit forbids the question. */
template <class Interface>
auto identifierOf(int) -> decltype(QByteArray(qobject_interface_iid<Interface*>()))
{
    return QByteArray(qobject_interface_iid<Interface*>());
}
template <class Interface>
QByteArray identifierOf(...)
{
    return QByteArray();
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
#define SLOT_ROW(Class, operation, Result, arguments, slot)                                                            \
    QTest::newRow(#Class "::" #operation) << slotOf(typed<Result(Class::*) arguments>(&Class::operation)) << slot
    SLOT_ROW(IBaseInterface, Release, void, (), 2);
    SLOT_ROW(IBaseInterface, GetLastError, int, (), 3);
    SLOT_ROW(IDestroyEvent, OnDestroy, void, (), 2);
    SLOT_ROW(IBasePlugin, Init, int, (), 4);
    SLOT_ROW(IBasePlugin, GetPluginType, int, (), 5);
    SLOT_ROW(IBasePlugin, GetCLSID, QString, (), 6);
    SLOT_ROW(IBasePlugin, GetVersion, int, (), 7);
    SLOT_ROW(IBasePlugin, GetPluginName, QString, (), 8);
    SLOT_ROW(IBasePlugin, IsAllowRelease, int, (), 9);
    SLOT_ROW(IBasePlugin, QueryInterface, int, (int, QObject**), 10);
    SLOT_ROW(IUIPlugin, ShowWindow, int, (QWidget*, QRect&), 11);
    SLOT_ROW(IUIPlugin, DoModal, int, (), 12);
    SLOT_ROW(IUIPlugin, Hide, void, (), 13);
    SLOT_ROW(IUIPlugin, FitSize, void, (QRect&), 14);
    SLOT_ROW(IUIPlugin, IsReady, int, (), 15);
    SLOT_ROW(IUIPlugin, ChangeLang, int, (const QString&), 16);
    SLOT_ROW(ISettingUIPlugin, OnClickSettingOkButton, int, (), 2);
    SLOT_ROW(ISettingUIPlugin, OnClickSettingCancelButton, int, (), 3);
    SLOT_ROW(ISettingUIPlugin, ShowSettingDialog, int, (QWidget*, QRect&), 4);
    SLOT_ROW(ISettingUIPlugin, GetModuleName, QString, (), 5);
    SLOT_ROW(ISettingUIPlugin, HideSetting, int, (), 6);
    SLOT_ROW(ISettingUIPlugin, IsActiveSetting, int, (), 7);
    SLOT_ROW(INotify, Notify, int, (unsigned int, unsigned int, unsigned int), 2);
    SLOT_ROW(IQuickLinkPlugin, GetQuickLinkRecordSize, int, (), 2);
    SLOT_ROW(IQuickLinkPlugin, GetActionFromQuickLink, QAction*, (int), 3);
    SLOT_ROW(IQuickLinkPlugin, LaunchQuickLinkAction, void, (QAction*), 4);
#undef SLOT_ROW
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
    QTest::newRow(#Class) << identifierOf<Class>(0) << QByteArray("com.norvik.vellumconnect.plugin." #Class)
    IDENTIFIER_ROW(IBasePlugin);
    IDENTIFIER_ROW(IUIPlugin);
    IDENTIFIER_ROW(ISettingUIPlugin);
    IDENTIFIER_ROW(INotify);
    IDENTIFIER_ROW(IQuickLinkPlugin);
    IDENTIFIER_ROW(INotifyService);
    IDENTIFIER_ROW(IDialupUIService);
#undef IDENTIFIER_ROW
    QTest::newRow("IBaseInterface has none") << identifierOf<IBaseInterface>(0) << QByteArray();
    QTest::newRow("IDestroyEvent has none") << identifierOf<IDestroyEvent>(0) << QByteArray();
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
    const struct {
        const char *row, *name;
        quintptr expected;
    } rows[] = {
        {"null", nullptr, none},
        {"empty", "", none},
        {"the class", "QuickLinkSettingPluginDlg", object},
        {"IUIPlugin", "IUIPlugin", window},
        {"ISettingUIPlugin", "ISettingUIPlugin", setting},
        {"INotify", "INotify", notify},
        {"IQuickLinkPlugin", "IQuickLinkPlugin", links},
        {"identifier of IBasePlugin", "com.norvik.vellumconnect.plugin.IBasePlugin", window},
        {"identifier of IUIPlugin", "com.norvik.vellumconnect.plugin.IUIPlugin", window},
        {"identifier of ISettingUIPlugin", "com.norvik.vellumconnect.plugin.ISettingUIPlugin", setting},
        {"identifier of INotify", "com.norvik.vellumconnect.plugin.INotify", notify},
        {"identifier of IQuickLinkPlugin", "com.norvik.vellumconnect.plugin.IQuickLinkPlugin", links},
        {"QObject", "QObject", object},
        {"IBasePlugin by name", "IBasePlugin", none},
        {"IBaseInterface", "IBaseInterface", none},
        {"IDestroyEvent", "IDestroyEvent", none},
        {"identifier of a service", "com.norvik.vellumconnect.plugin.INotifyService", none},
        {"identifier in another case", "com.norvik.vellumconnect.plugin.iuiplugin", none},
        {"identifier and more", "com.norvik.vellumconnect.plugin.IUIPlugin/1.0", none},
        {"unknown", "something", none},
    };
    for (const auto& row : rows)
        QTest::newRow(row.row) << QByteArray(row.name) << row.expected;
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
