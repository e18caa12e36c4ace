// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QRect>
#include <QString>

#include "QuickLinkSettingPluginDlg.h"

/** What a host or a signal may call, and each step of the page; a record where one is handed over. */
struct PageOperation {
    const char* text; ///< "name(arguments)"
    int (*call)(QuickLinkSettingPluginDlg* page, QuickLinkRecord* record);

    /** The name of the function alone. */
    QString name() const { return QString(text).section('(', 0, 0); }
};

/** An operation without an answer, and one with. */
#define CALL(operation)                                                                                                \
    {                                                                                                                  \
#operation, [](QuickLinkSettingPluginDlg * page, QuickLinkRecord * record) {                                   \
            Q_UNUSED(record);                                                                                          \
            return page->operation, 0;                                                                                 \
        }                                                                                                              \
    }
#define ASK(operation)                                                                                                 \
    {                                                                                                                  \
#operation, [](QuickLinkSettingPluginDlg * page, QuickLinkRecord * record) {                                   \
            Q_UNUSED(record);                                                                                          \
            return page->operation;                                                                                    \
        }                                                                                                              \
    }

namespace
{
QRect anyArea(0, 0, 450, 400);

const PageOperation operations[] = {
    ASK(HideSetting()),
    ASK(OnClickSettingOkButton()),
    ASK(OnClickSettingCancelButton()),
    ASK(IsActiveSetting()),
    ASK(ChangeLang("de")),
    ASK(Notify(1024, 0, 0)),
    ASK(Notify(1536, 0, 0)),
    ASK(Notify(258, 0, 0)),
    CALL(Hide()),
    CALL(FitSize(anyArea)),
    CALL(OnDestroy()),
    CALL(onNewBtnClick()),
    CALL(onEditBtnClick()),
    CALL(onDeleteBtnClick()),
    CALL(onUpBtnClick()),
    CALL(ondownBtnClick()),
    CALL(AddRecord(record)),
    CALL(onClickQuickLinkRow(0)),
    CALL(onTableSelectionChanged()),
    CALL(onCancelNewEditor()),
    CALL(launchOnConnection()),
    CALL(initializeUI()),
    CALL(setObjectNameDlg()),
    CALL(setDisplayLayout()),
    CALL(setDisplayString()),
    CALL(fillTable()),
    CALL(populateTableRow(record, 1)),
    CALL(releaseTable()),
    CALL(enableDeleteEditButton()),
    CALL(replaceRecordWithEditedRecord(record)),
    CALL(addRecordOnUpButtonClick(record, 1)),
};

/** The one of that name; a name that is not there ends the test program. */
inline const PageOperation& operationNamed(const QString& name)
{
    for (const PageOperation& operation : operations) {
        if (operation.name() == name)
            return operation;
    }
    qFatal("There is no operation %s", qPrintable(name));
    return operations[0];
}
} // namespace

#undef CALL
#undef ASK
