// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "Notice.h"

#include <QPointer>

#include "EditLinkButton.h"
#include "FailureList.h"
#include "LooseMessage.h"

namespace
{

/** The failures that a window tells. Belongs to the window and goes with it. */
class Notice : public QObject
{
public:
    explicit Notice(QMessageBox* box)
        : QObject(box)
        , m_box(box)
        , m_edit(nullptr)
    {
        box->setDefaultButton(box->addButton(QMessageBox::Ok));
        box->setEscapeButton(QMessageBox::Ok);
    }

    /** Whether the user still sees it; one that was closed is deleted a moment later. */
    bool isOpen() const { return m_box->isVisible(); }

    void add(const QString& title, const QString& text, const QString& subject, const QString& link)
    {
        m_failures.add(title, text, subject, link);
        m_box->setWindowTitle(m_failures.title());
        setMessageText(m_box, m_failures.text());
        const QString details = m_failures.details();
        // Every call lays out the window anew.
        if (details != m_box->detailedText())
            m_box->setDetailedText(details);
        offerToEdit();
        if (isOpen())
            liftAboveModal(m_box);
        else
            m_box->show();
    }

private:
    void offerToEdit()
    {
        if (!EditLinkButton::isOfferedFor(m_failures.link()))
            return;
        if (!m_edit) {
            m_edit = new EditLinkButton;
            m_box->addButton(m_edit, QMessageBox::ActionRole);
            connect(m_edit, SIGNAL(clicked()), m_edit, SLOT(edit()));
        }
        m_edit->setLink(m_failures.link(), m_failures.hasSeveralLinks());
    }

    QMessageBox* const m_box;
    EditLinkButton* m_edit; ///< the box's; null while it is about no link
    FailureList m_failures;
};

NoticeOutlet& currentOutlet()
{
    static NoticeOutlet outlet;
    return outlet;
}

} // namespace

void showNotice(const QString& title, const QString& text, const QString& subject, const QString& link)
{
    if (!currentOutlet() || !currentOutlet()(title, text, subject, link))
        showNoticeWindow(title, text, subject, link);
}

void showNoticeWindow(const QString& title, const QString& text, const QString& subject, const QString& link)
{
    static QPointer<Notice> last;
    if (!last || !last->isOpen())
        last = new Notice(newLooseMessage(QMessageBox::Warning, title, QString()));
    last->add(title, text, subject, link);
}

void setNoticeOutlet(const NoticeOutlet& outlet)
{
    currentOutlet() = outlet;
}
