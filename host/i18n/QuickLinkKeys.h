// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

/**
 * The keys of the quick-link plug-in's texts, each with a comment for translators: where it shows, how long it may be.
 *
 * The plug-in asks for texts by key, in calls that lupdate cannot read; it finds the keys here. A key is no text:
 * English is translated, too. Pixels are those of DejaVu Sans at 9 points, which Debian shows where no desktop says
 * otherwise.
 */
static const char* const quickLinkKeys[] = {
    //: Caption of the page in the list of the settings dialog. Up to about 20 characters.
    QT_TRANSLATE_NOOP("QuickLinkUIPlugin", "IDS_SETTING_NAME"),
    //: Title of the only tab of the settings page, above the table. Up to about 30 characters (the tab widget is 280
    //: pixels wide).
    QT_TRANSLATE_NOOP("QuickLinkUIPlugin", "IDS_LINK_SETTING_TAB"),
    //: Label above the table of the settings page. Up to about 35 characters (250 pixels). Labels are low: a capital
    //: letter with an accent, such as an umlaut, loses it with Qt 6.
    QT_TRANSLATE_NOOP("QuickLinkUIPlugin", "IDS_LINK_SETTING_ORDER"),
    //: Header of the table's first column. Up to about 12 characters (100 pixels).
    QT_TRANSLATE_NOOP("QuickLinkUIPlugin", "IDS_LINK_SETTING_NAME"),
    //: Header of the table's second column. Up to about 12 characters (100 pixels).
    QT_TRANSLATE_NOOP("QuickLinkUIPlugin", "IDS_LINK_SETTING_TYPE"),
    //: Button below the table: moves the link up. Up to about 14 characters; the letter after the ampersand must differ
    //: from those of the page's other buttons.
    QT_TRANSLATE_NOOP("QuickLinkUIPlugin", "IDS_LINK_SETTING_UP"),
    //: Button below the table: moves the link down. As IDS_LINK_SETTING_UP.
    QT_TRANSLATE_NOOP("QuickLinkUIPlugin", "IDS_LINK_SETTING_DOWN"),
    //: Button beside the table: opens the dialog for a new link. Up to about 12 characters; with an ampersand as
    //: IDS_LINK_SETTING_UP.
    QT_TRANSLATE_NOOP("QuickLinkUIPlugin", "IDS_LINK_SETTING_NEW"),
    //: Button beside the table: opens the dialog that changes the chosen link. As IDS_LINK_SETTING_NEW.
    QT_TRANSLATE_NOOP("QuickLinkUIPlugin", "IDS_LINK_SETTING_EDIT"),
    //: Button beside the table: deletes the chosen link after a question. As IDS_LINK_SETTING_NEW.
    QT_TRANSLATE_NOOP("QuickLinkUIPlugin", "IDS_LINK_SETTING_DEL"),
    //: Title of the dialog for a new link. Up to about 16 characters: most desktops put the program's name behind it.
    QT_TRANSLATE_NOOP("QuickLinkUIPlugin", "IDS_LINK_SETTING_NEW_TITLE"),
    //: Title of the dialog that changes a link. As IDS_LINK_SETTING_NEW_TITLE.
    QT_TRANSLATE_NOOP("QuickLinkUIPlugin", "IDS_LINK_SETTING_EDIT_TITLE"),
    //: Label of the dialog's name field. 51 pixels: about 6 characters.
    QT_TRANSLATE_NOOP("QuickLinkUIPlugin", "IDS_LINK_SETTING_NEW_NAME"),
    //: Label of the dialog's choice of type. 70 pixels: about 9 characters.
    QT_TRANSLATE_NOOP("QuickLinkUIPlugin", "IDS_LINK_SETTING_NEW_TYPE"),
    //: Type of a link that starts a program: in the dialog's choice and on its tab, and in the table. Up to about 13
    //: characters (100 pixels).
    QT_TRANSLATE_NOOP("QuickLinkUIPlugin", "IDS_LINK_TYPE_APPLICATION"),
    //: Type of a link that opens the mail program. As IDS_LINK_TYPE_APPLICATION.
    QT_TRANSLATE_NOOP("QuickLinkUIPlugin", "IDS_LINK_TYPE_E-MAIL"),
    //: Type of a link that opens an Internet address. As IDS_LINK_TYPE_APPLICATION.
    QT_TRANSLATE_NOOP("QuickLinkUIPlugin", "IDS_LINK_TYPE_INTERNET"),
    //: Label above the field with the path of the program. Up to about 25 characters (184 pixels).
    QT_TRANSLATE_NOOP("QuickLinkUIPlugin", "IDS_LINK_SETTING_NEW_TAB_APP_URL"),
    //: Button beside that field: opens the choice of a file. 80 pixels: up to about 10 characters.
    QT_TRANSLATE_NOOP("QuickLinkUIPlugin", "IDS_LINK_SETTING_NEW_TAB_APP_BROWSER"),
    //: Label above the field with the program's parameters. Up to about 35 characters (250 pixels).
    QT_TRANSLATE_NOOP("QuickLinkUIPlugin", "IDS_LINK_SETTING_NEW_TAB_APP_PARA"),
    //: Label above the field with the Internet address. Up to about 35 characters (250 pixels).
    QT_TRANSLATE_NOOP("QuickLinkUIPlugin", "IDS_LINK_SETTING_NEW_TAB_IE_URL"),
    //: What an e-mail link does; the only text on its panel. Up to about 35 characters (250 pixels), one line.
    QT_TRANSLATE_NOOP("QuickLinkUIPlugin", "IDS_LINK_SETTING_NEW_TAB_EMAIL_URL"),
    //: Check box of the dialog. Up to about 32 characters (230 pixels).
    QT_TRANSLATE_NOOP("QuickLinkUIPlugin", "IDS_LINK_SETTING_NEW_CHECK_STARTUP"),
    //: Check box of the dialog: opens the link when a data connection comes up. Up to about 32 characters (230 pixels).
    QT_TRANSLATE_NOOP("QuickLinkUIPlugin", "IDS_LINK_SETTING_NEW_CHECK"),
    //: Button of the dialog. Up to about 14 characters.
    QT_TRANSLATE_NOOP("QuickLinkUIPlugin", "IDS_LINK_SETTING_NEW_OK"),
    //: Button of the dialog. Up to about 14 characters.
    QT_TRANSLATE_NOOP("QuickLinkUIPlugin", "IDS_LINK_SETTING_NEW_CANCEL"),
    //: Title of every message about quick links. Up to about 30 characters.
    QT_TRANSLATE_NOOP("QuickLinkUIPlugin", "IDS_LINK_PROMPT"),
    //: Message: the address of the link that was picked is none. A sentence or two; keep what stands in quotation
    //: marks.
    QT_TRANSLATE_NOOP("QuickLinkUIPlugin", "IDS_LINK_SETTING_INVALID_URL"),
    //: Message: the dialog's name is in use. A sentence or two.
    QT_TRANSLATE_NOOP("QuickLinkUIPlugin", "IDS_LINK_SETTING_NAME_SAME"),
    //: Message: the dialog's program file is missing, or none was chosen. A sentence or two.
    QT_TRANSLATE_NOOP("QuickLinkUIPlugin", "IDS_LINK_SETTING_FILENOTEXIST"),
    //: Question before a link is deleted, with the buttons IDS_OK and IDS_CANCEL. A sentence or two.
    QT_TRANSLATE_NOOP("QuickLinkUIPlugin", "IDS_LINK_SETTING_DELETE_CONFORM"),
    //: First button of messages. Up to about 14 characters.
    QT_TRANSLATE_NOOP("QuickLinkUIPlugin", "IDS_OK"),
    //: Second button of messages. Up to about 14 characters.
    QT_TRANSLATE_NOOP("QuickLinkUIPlugin", "IDS_CANCEL"),
};
