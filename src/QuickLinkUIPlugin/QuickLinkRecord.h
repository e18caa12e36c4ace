// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QItemDelegate>
#include <QString>
#include <QVector>

/**
 * One quick link. A plain value: every field is text as it stands in config.xml, flags included, and nothing
 * trims or parses it. Only the exact text "1" means yes.
 */
class QuickLinkRecord
{
public:
    QuickLinkRecord()
        : startconnect(QLatin1String("0"))
        , startmobile(QLatin1String("0"))
        , delete_(QLatin1String("1"))
        , edit(QLatin1String("1"))
        , visible(QLatin1String("1"))
    {
    }

    QString id;           ///< decimal number; empty until the record is saved and read back
    QString name;         ///< shown in the table and the menu, unique among links made in the dialog
    QString url;          ///< an Internet address, the path of an executable or "mailto:"
    QString startconnect; ///< "1": open when a connection comes up
    QString startmobile;  ///< "1": open when the host starts
    QString type;         ///< one of the texts of LinkType
    QString para;         ///< parameters of an application, kept but not passed on
    QString delete_;      ///< "1": the user may delete the link
    QString edit;         ///< "1": the user may edit the link
    QString visible;      ///< "1": the link exists for the user
};
// Lists move their records by copying bytes.
Q_DECLARE_TYPEINFO(QuickLinkRecord, Q_MOVABLE_TYPE);

/** Whether a flag of a link says yes. */
inline bool isSet(const QString& flag)
{
    return flag == QLatin1String("1");
}

/** The links in the user's order: that of the file, the table, the menu and the automatic launches. */
typedef QVector<QuickLinkRecord> QuickLinkRecordList;

/** The texts of QuickLinkRecord::type, which are also the translation keys of the types' names. */
namespace LinkType
{
inline QString application()
{
    return QLatin1String("IDS_LINK_TYPE_APPLICATION");
}
inline QString email()
{
    return QLatin1String("IDS_LINK_TYPE_E-MAIL");
}
inline QString internet()
{
    return QLatin1String("IDS_LINK_TYPE_INTERNET");
}
} // namespace LinkType

/** Paints the cells of the quick-link table: like any other, but without a frame around the focused one. */
class GridDelegateLayout : public QItemDelegate
{
public:
    ~GridDelegateLayout() override;

    /** Draws no frame; leaves the painter with a white cosmetic pen when the cell has the focus. */
    void drawFocus(QPainter* painter, const QStyleOptionViewItem& option, const QRect& rect) const override;
};
