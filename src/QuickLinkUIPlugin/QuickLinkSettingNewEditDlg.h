// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QWidget>

#include "ObjectWatch.h"
#include "QuickLinkRecord.h"

class ExtendDialog;
class QCheckBox;
class QComboBox;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QTabWidget;
class QVBoxLayout;

/**
 * The dialog in which the user makes or edits one quick link.
 *
 * The object itself is never shown: the visible window is the host's frame, m_frameDialog, a child of the
 * widget given to ShowNewEditDlg(), and every widget below lives in that frame and goes with it. Whoever made
 * the object disposes of it and of the frame; the destructor deletes neither the frame nor m_record. When the
 * host deletes the frame, the object is as it was before the first ShowNewEditDlg().
 */
class QuickLinkSettingNewEditDlg : public QWidget
{
    Q_OBJECT

public:
    QuickLinkSettingNewEditDlg();
    ~QuickLinkSettingNewEditDlg() override;

    /** Builds the widgets at the first call and shows the frame over parent (may be null) without blocking. */
    void ShowNewEditDlg(QWidget* parent);

    /** Sets every text to the current language. Does nothing, with a trace, while the widgets are not built. */
    void SetLanguage();

    /** Says whether an existing link is edited, and the name it had: that name then counts as free. */
    void onNewEditClicked(bool isEdit, QString editedName);

    /** Says that somebody owns the emitted record now: the next OK forgets it in place of deleting it. */
    void recordTaken(const QuickLinkRecord* record);

    /** The text behind a key in this plug-in's context. Hand it a QString: a C string picks the toolkit's tr(). */
    QString tr(QString key);

    /** Whether no stored link has the name typed. Where one has, the user is told. */
    bool checkNameDuplication();

    /** Whether the application path names a file or folder. Where it does not, the user is told. */
    bool isValidPath();

Q_SIGNALS:
    /**
     * The user pressed OK and record passed the checks. It is valid during the signal; a receiver that keeps it
     * says so by recordTaken() and frees it later.
     */
    void addRecord(QuickLinkRecord* record);

    /** The user pressed Cancel. */
    void cancelNewButton();

private Q_SLOTS:
    void initializeUI();
    void onButtonClickCancelNew();
    void onClickBrowseButton();
    void onEnterNameInApplication();
    void onDeleteNameInApplication();
    void onSelectLaunchOnsoftware(bool checked);
    void onSelectLaunchOnConnect(bool checked);
    void onClickOkButton();

public Q_SLOTS:
    /** Shows the panel of a link type (0 application, 1 e-mail, else Internet) and clears the launch options. */
    void OnSelectComboItem(int index);

public:
    // The page fills these when a link is edited. All are null until the dialog is shown.
    ExtendDialog* m_frameDialog = nullptr;
    QWidget* m_mainWidget = nullptr;
    QTabWidget* m_appTabWidget = nullptr;
    QWidget* m_applicationPanel = nullptr;
    QWidget* m_appTab = nullptr;
    QLabel* m_nameLbl = nullptr;
    QLabel* m_typeLbl = nullptr;
    QLabel* m_applicationPathLbl = nullptr;
    QLabel* m_applicationParamLbl = nullptr;
    QLineEdit* m_appPathEdit = nullptr;
    QLineEdit* m_appNameEdit = nullptr;
    QLineEdit* m_appParamEdit = nullptr;
    QPushButton* m_browseBtn = nullptr;
    QCheckBox* m_launchWhenSWLaunchCB = nullptr;
    QCheckBox* m_launchWhenConnectCB = nullptr;
    QComboBox* m_appTypeChoice = nullptr;
    QPushButton* m_okBtn = nullptr;
    QPushButton* m_cancelBtn = nullptr;
    QVBoxLayout* m_mainLayout = nullptr;
    QVBoxLayout* m_applicationLayout = nullptr;
    QHBoxLayout* m_pathLayout = nullptr;
    QHBoxLayout* m_buttonLayout = nullptr;
    QHBoxLayout* m_nameLayout = nullptr;
    QHBoxLayout* m_typeLayout = nullptr;
    QVBoxLayout* m_tabLayout = nullptr;
    QWidget* m_EmailTab = nullptr;
    QLabel* m_DefaultLbl = nullptr;
    QVBoxLayout* m_emailLayout = nullptr;
    QCheckBox* m_launchWhenSWLaunchCBForEmail = nullptr;
    QCheckBox* m_launchWhenConnectCBForEmail = nullptr;
    QWidget* m_InternetTab = nullptr;
    QLabel* m_UrlLabel = nullptr;
    QLineEdit* m_EditUrlName = nullptr;
    QVBoxLayout* m_internetLayout = nullptr;
    QCheckBox* m_launchWhenSWLaunchCBForInternet = nullptr;
    QCheckBox* m_launchWhenConnectCBForInternet = nullptr;
    QString m_launchOnSoftware; ///< "1": the link opens when the host starts
    QString m_launchOnConnect;  ///< "1": the link opens when a connection comes up
    bool m_isEdit = false;
    QString m_editedName;
    QuickLinkRecord* m_record = nullptr; ///< built by the last OK; null before the first one

private:
    // Walks over the members that live in the frame. See Members.h for what is done with each.
    template <class Dialog, class Visitor>
    static void visitNamedWidgets(Dialog& dialog, Visitor&& visit); ///< in naming order
    template <class Dialog, class Visitor>
    static void visitAll(Dialog& dialog, Visitor&& visit);

    static void onWatchedObjectGone(void* dialog, QObject* object);
    bool isComplete() const;

    void createMemory(QWidget* parent);
    void createTabForApplication();
    void createTabForEmail();
    void createTabForInternet();
    void setDisplayLayout();
    void setKeyboardOrder();
    void setObjectNameNewDialog();
    void setDisplayString();
    bool hasTexts() const;
    void addListener();
    void listenToEdit(QLineEdit* edit);
    void listenToOptions(QCheckBox* onSoftware, QCheckBox* onConnect);

    void showPanel(QWidget* panel, const QString& titleKey);
    bool isFilled() const;
    void beginRecord();
    bool fillRecord();
    void showMessage(const QString& textKey);

    bool m_isRecordTaken = false; ///< somebody else owns m_record
    ObjectWatch m_watch;
};
