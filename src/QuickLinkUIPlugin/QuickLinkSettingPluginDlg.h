// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QObject>
#include <QSet>
#include <QString>

#include "INotify.h"
#include "IQuickLinkPlugin.h"
#include "ISettingUIPlugin.h"
#include "IUIPlugin.h"
#include "ObjectWatch.h"
#include "QtVersionSwitches.h"
#include "QuickLinkRecord.h"

class QAction;
class QHBoxLayout;
class QLabel;
class QPushButton;
class QTabWidget;
class QTableWidget;
class QTableWidgetItem;
class QVBoxLayout;
class QWidget;
class QuickLinkSettingNewEditDlg;
class QuickLinkXmlParse;

/**
 * The plug-in's one object: what the host talks to, and the quick-link page of its settings dialog.
 *
 * The Qt plug-in loader makes it, the host calls Init() once, then any operation on its GUI thread, then
 * OnDestroy() once, and the loader deletes it. OnDestroy() frees everything but the menu's actions, which go
 * with the object. The page works on the store's record list itself and saves every change at once.
 *
 * The host may delete the widget that it gave for the page at any time; every operation then behaves as if the
 * page had not been built. One file of this folder holds each behaviour; docs/architecture.md names them.
 */
class QuickLinkSettingPluginDlg : public QObject,
                                  public IUIPlugin,
                                  public ISettingUIPlugin,
                                  public INotify,
                                  public IQuickLinkPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "com.norvik.vellumconnect.plugin.IBasePlugin")
    Q_INTERFACES(IBasePlugin IUIPlugin ISettingUIPlugin INotify IQuickLinkPlugin)

public:
    QuickLinkSettingPluginDlg();

    /** Frees the action map and, as their parent, the actions. All else is OnDestroy()'s. */
    ~QuickLinkSettingPluginDlg() override;

    /** The separate single object that Init() makes; made here if it is missing. For hosts; nothing in here calls it.
     * It lives until Destroy() or OnDestroy(). */
    static QuickLinkSettingPluginDlg* GetInstance();

    /** Deletes the single object if there is one. */
    static void Destroy();

    // IBasePlugin and its bases. The answers are constants but for Init() and OnDestroy().
    void Release() override;
    int GetLastError() override;
    void OnDestroy() override;
    int Init() override;
    int GetPluginType() override;
    QString GetCLSID() override;
    int GetVersion() override;
    QString GetPluginName() override;
    int IsAllowRelease() override;
    int QueryInterface(int number, QObject** object) override;

    // IUIPlugin
    int ShowWindow(QWidget* parent, QRect& area) override;
    int DoModal() override;
    void Hide() override;
    void FitSize(QRect& area) override;
    int IsReady() override;
    int ChangeLang(const QString& language) override;

    // ISettingUIPlugin
    int OnClickSettingOkButton() override;
    int OnClickSettingCancelButton() override;
    int ShowSettingDialog(QWidget* parent, QRect& area) override;
    QString GetModuleName() override;
    int HideSetting() override;
    int IsActiveSetting() override;

    // INotify: 1024 (language), 1536 (connection state) and 258 (host started); other codes are ignored.
    int Notify(unsigned int code, unsigned int param1, unsigned int param2) override;

    // IQuickLinkPlugin
    int GetQuickLinkRecordSize() override;
    QAction* GetActionFromQuickLink(int index) override;
    void LaunchQuickLinkAction(QAction* action) override;

    /** The text behind a key in this plug-in's context. Hand it a QString: a C string picks the toolkit's tr(). */
    QString tr(QString key);

    /** Tells the host's menu manager that the links changed. Without that service it only leaves a trace. */
    void sendNotifyToMenu();

    /** Whether url holds "http://", "https://", "ftp" or "www." anywhere. Loose on purpose, and case-sensitive. */
    bool isValidUrl(QString url);

    /** Opens the links marked for the host's start: see launchOnConnection(). */
    void launchOnSoftwareLaunch();

    // The page, in the order of its building. Each checks what it needs, and leaves a trace and returns where
    // something is missing.

    /** Frees the page of an earlier showing and makes the widgets and layouts of a new one as children of parent. */
    void createWidgetMemory(QWidget* parent);

    /** Connects, names, lays out and captions the widgets and sets the first button states. */
    void initializeUI();
    void setObjectNameDlg();
    void setDisplayLayout();

    /** Sets every text but the table's to the current language. */
    void setDisplayString();

    /** Configures the table, fills it from the record list and selects the first row. */
    void fillTable();

    /** Shows record in a row (from 0) of the table, which owns it from then on. The row's old record is the caller's.
     */
    void populateTableRow(QuickLinkRecord* record, int row);

    /** Frees the records of the rows and leaves the rows in place. */
    void releaseTable();

    /** Enables Delete and Edit by the rights of the selected link. */
    void enableDeleteEditButton();

    /** Puts an edited record, which the row then owns, in the place of the current row's. */
    void replaceRecordWithEditedRecord(QuickLinkRecord* record);

    /** Puts a record, which the row then owns, into a row and into the same place of the list. For both directions. */
    void addRecordOnUpButtonClick(QuickLinkRecord* record, int row);

private Q_SLOTS:
    void onNewBtnClick();
    void onEditBtnClick();
    void onDeleteBtnClick();
    void onUpBtnClick();
    void ondownBtnClick();
    void AddRecord(QuickLinkRecord* record);
    void onClickQuickLinkRow(int row);
    void onTableSelectionChanged();
    void onCancelNewEditor();
    void launchOnConnection();

private:
    // Walks over the members that live in the host's widget. See Members.h for what is done with each.
    template <class Page, class Visitor>
    static void visitContents(Page& page, Visitor&& visit); ///< what lies on the tab and in the button column
    template <class Page, class Visitor>
    static void visitNamedWidgets(Page& page, Visitor&& visit); ///< these with tab and tab widget, in naming order
    template <class Page, class Visitor>
    static void visitLayouts(Page& page, Visitor&& visit); ///< each outer layout before its inner one
    template <class Page, class Visitor>
    static void visitAll(Page& page, Visitor&& visit);

    bool isComplete() const;      ///< every widget and layout is there
    bool hasNamedWidgets() const; ///< every widget but the page's own is there
    static void onWatchedObjectGone(void* page, QObject* object);
    void deletePage();
    void releaseRows();
    void releaseHeaderItems();
    void releasePageContents();
    void releasePageFrame();

    void configureTable();
    bool fillRows();
    bool setCell(int row, int column, const QString& text, QuickLinkRecord* record);
    QuickLinkRecord* rowRecord(int row) const;
    static QuickLinkRecord* recordOf(const QTableWidgetItem* item); ///< null where there is none, no item included
    const QTableWidgetItem* selectedItem() const;                   ///< null when no row is selected
    bool isRowOfList(int row) const;
    void freeRecord(QuickLinkRecord* record);
    void selectRow(int row);
    bool swapWithNext(int row);
    void finishMove(int row);

    void appendRecord(QuickLinkRecord* record);
    void fillEditDialog(const QuickLinkRecord& record);
    void connectDialog(QuickLinkSettingNewEditDlg* dialog);
    void disposeDialog(QuickLinkSettingNewEditDlg*& dialog);
    void tellRecordTaken(QuickLinkRecord* record);
    bool deleteCurrentLink();

    int retranslate();
    int connectionStateChanged();

    static QuickLinkSettingPluginDlg* m_pInstance;

    QWidget* m_pageWidget = nullptr;
    QTabWidget* m_QLinkTabWidget = nullptr;
    QWidget* m_QLinkTab = nullptr;
    QTableWidget* m_QLinkListTblView = nullptr;
    QLabel* m_launchOrderLbl = nullptr;
    QPushButton* m_upBtn = nullptr;
    QPushButton* m_downBtn = nullptr;
    QPushButton* m_newBtn = nullptr;
    QPushButton* m_editBtn = nullptr;
    QPushButton* m_deleteBtn = nullptr;
    QHBoxLayout* m_pageLayout = nullptr;
    QVBoxLayout* m_tabLayout = nullptr;
    QVBoxLayout* m_buttonColumnLayout = nullptr;
    QHBoxLayout* m_orderButtonsLayout = nullptr;

    QWidget* m_parentWidget = nullptr;
    QObject* m_headerOwner = nullptr; ///< the table's model once it owns the header items; null: they are ours
    QTableWidgetItem* m_nameHeaderItem = nullptr;
    QTableWidgetItem* m_typeHeaderItem = nullptr;
    GridDelegateLayout* m_gridDelegate = nullptr;
    QuickLinkSettingNewEditDlg* m_newDlg = nullptr;
    QuickLinkSettingNewEditDlg* m_editDlg = nullptr;
    bool m_isEditing = false;
    QuickLinkXmlParse* m_store = nullptr;
    QuickLinkRecordList* m_recordList = nullptr;
    QHash<QAction*, QuickLinkRecord> m_actionMap;

    QSet<QuickLinkRecord*>
        m_rowRecords; ///< the records that rows own: a host's deletion of the table must not lose them
    ObjectWatch m_watch;
};
