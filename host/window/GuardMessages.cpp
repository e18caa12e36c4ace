// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "GuardMessages.h"

#include <QApplication>
#include <QLocale>
#include <QPushButton>

#include "LooseMessage.h"
#include "ShownText.h"

namespace
{
/** The context of the sentences. */
class Sentence
{
    Q_DECLARE_TR_FUNCTIONS(GuardMessages)

public:
    static QString of(LinkFile::Condition condition)
    {
        switch (condition) {
        case LinkFile::Missing:
            return tr("The file with your quick links is missing.");
        case LinkFile::Empty:
            return tr("The file with your quick links is empty.");
        case LinkFile::Damaged:
            return tr("The file with your quick links is damaged.");
        case LinkFile::TooLarge:
            return tr("The file with your quick links is far too large.");
        case LinkFile::Unreadable:
            return tr("The file with your quick links cannot be read.");
        case LinkFile::NotRegular:
            return tr("In the place of the file with your quick links there is something that is no file.");
        case LinkFile::Good:
            break;
        }
        return QString();
    }

    static QString of(LinkGuard::Event::Reason reason)
    {
        switch (reason) {
        case LinkGuard::Event::DiskFull:
            return tr("The disk is full.");
        case LinkGuard::Event::NotWritable:
            return tr("You are not allowed to write to its folder.");
        case LinkGuard::Event::Unknown:
            break;
        }
        return QString();
    }

    /** What was done about it. */
    static QString remedy(const LinkGuard::Event& event)
    {
        const QString time = QLocale().toString(event.time.toLocalTime(), QLocale::ShortFormat);
        switch (event.kind) {
        case LinkGuard::Event::PutBack:
            return tr("The %n link(s) of %1 are in place again.", nullptr, event.links).arg(time);
        case LinkGuard::Event::Gone:
            return tr("The %n link(s) of %1 can be brought back.", nullptr, event.links).arg(time);
        case LinkGuard::Event::Lost:
            return tr("The %n link(s) of %1 are kept, but could not be put in place.", nullptr, event.links).arg(time);
        case LinkGuard::Event::NothingKept:
            return tr("No earlier state of the links is known.");
        case LinkGuard::Event::Nothing:
        case LinkGuard::Event::FirstStart:
            break;
        }
        return QString();
    }
};
} // namespace

GuardMessages::GuardMessages(QWidget* window)
    : m_window(window)
{
}

void GuardMessages::tell(const LinkGuard::Event& event)
{
    const QString remedy = Sentence::remedy(event);
    if (remedy.isEmpty())
        return;
    QStringList sentences = {Sentence::of(event.condition) + QLatin1Char(' ') + remedy};
    if (!event.setAside.isEmpty())
        sentences += {tr("What was found there was kept:"), ShownText::isolatedPath(event.setAside)};
    QMessageBox* const box = open(QMessageBox::Warning, sentences);
    if (event.kind != LinkGuard::Event::Gone) {
        box->addButton(QMessageBox::Ok);
        return;
    }
    connect(box->addButton(tr("&Bring Back"), QMessageBox::AcceptRole), &QPushButton::clicked, this,
            &GuardMessages::bringBackRequested);
    box->setEscapeButton(box->addButton(tr("&Leave Out"), QMessageBox::RejectRole));
}

void GuardMessages::tellUnprepared()
{
    open(QMessageBox::Warning, {tr("The quick links that were prepared for you could not be put in place. The program "
                                   "tries again at its next start.")})
        ->addButton(QMessageBox::Ok);
}

void GuardMessages::tellSaveFailed(const LinkGuard::Event& event, bool canTryAgain)
{
    QStringList sentences = {tr("The change of your quick links could not be saved.")};
    if (event.reason != LinkGuard::Event::Unknown)
        sentences.last() += QLatin1Char(' ') + Sentence::of(event.reason);
    if (event.kind != LinkGuard::Event::Nothing)
        sentences += Sentence::remedy(event);
    QMessageBox* const box = open(QMessageBox::Warning, sentences);
    if (canTryAgain)
        connect(box->addButton(tr("&Try Again"), QMessageBox::AcceptRole), &QPushButton::clicked, this,
                &GuardMessages::tryAgainRequested);
    box->setEscapeButton(box->addButton(QMessageBox::Ok));
}

void GuardMessages::askWhoseLinks()
{
    delete m_question;
    m_question = open(QMessageBox::Question, {tr("The quick links were changed by another program. Do you want to load "
                                                 "them, or to keep yours?")});
    const QPushButton* const load = m_question->addButton(tr("&Load Them"), QMessageBox::AcceptRole);
    QPushButton* const keep = m_question->addButton(tr("&Keep Mine"), QMessageBox::RejectRole);
    m_question->setEscapeButton(keep);
    m_question->setDefaultButton(keep);
    connect(m_question, &QMessageBox::finished, this,
            [this, load, box = m_question.data()] { Q_EMIT decided(box->clickedButton() == load); });
}

void GuardMessages::leaveModalWindow()
{
    for (const QPointer<QMessageBox>& box : qAsConst(m_open)) {
        if (!box || box->parent() == m_window)
            continue;
        box->setParent(m_window, box->windowFlags());
        box->setWindowModality(Qt::NonModal);
        box->show();
    }
}

QMessageBox* GuardMessages::open(QMessageBox::Icon icon, const QStringList& sentences)
{
    QWidget* const modal = QApplication::activeModalWidget();
    QMessageBox* const box = newLooseMessage(icon, tr("Quick Links"), sentences.join(QStringLiteral("\n\n")));
    // Beside a modal window it would be hidden behind it at the next click there.
    if (modal)
        box->setWindowModality(Qt::WindowModal);
    else
        box->setParent(m_window, box->windowFlags());
    m_open.removeAll(nullptr);
    m_open.append(box);
    // When its buttons are there.
    QMetaObject::invokeMethod(box, "show", Qt::QueuedConnection);
    return box;
}
