// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "PluginMessages.h"

#include <QCoreApplication>
#include <QMessageBox>
#include <QPushButton>

#include "LooseMessage.h"
#include "Notice.h"
#include "ShownText.h"

namespace
{
/** The context of the sentences. */
class Sentence
{
    Q_DECLARE_TR_FUNCTIONS(PluginMessages)

public:
    static QString of(const Gatekeeper::Refusal& refusal)
    {
        switch (refusal.problem) {
        case Gatekeeper::ForeignOwner:
            return withPlace(tr("This was not loaded, because another user owns %1:"), refusal);
        case Gatekeeper::OthersWrite:
            return withPlace(tr("This was not loaded, because other users may change %1:"), refusal);
        case Gatekeeper::NotKnown:
            return withPlace(tr("This was not loaded, because it is not known who may change %1:"), refusal);
        case Gatekeeper::FalseLinks:
            break;
        }
        return tr("This was not loaded, because it passes itself off as the quick links of this program:");
    }

    static QString of(const UnfinishedCall& unfinished)
    {
        const bool isStart = unfinished.call == PluginGate::Loading || unfinished.call == PluginGate::Init;
        const QString sentence = isStart ? ofStart(unfinished.isHung) : ofEnd(unfinished.isHung);
        return sentence.arg(ShownText::isolatedName(ShownText::shortLine(unfinished.file.name())));
    }

private:
    static QString ofStart(bool isHung)
    {
        return isHung ? tr("The plug-in %1 did not answer while it was starting, and was left out.")
                      : tr("The plug-in %1 did not finish starting last time (it crashed or hung), and was left out.");
    }

    static QString ofEnd(bool isHung)
    {
        return isHung ? tr("The plug-in %1 did not answer while it was ending, and was left out.")
                      : tr("The plug-in %1 did not finish ending last time (it crashed or hung), and was left out.");
    }

    static QString withPlace(const QString& sentence, const Gatekeeper::Refusal& refusal)
    {
        return sentence.arg(ShownText::isolatedPath(ShownText::shortLine(refusal.place)));
    }
};
} // namespace

PluginMessages::PluginMessages(QWidget* window)
    : m_window(window)
{
}

void PluginMessages::tell(const QList<Gatekeeper::Refusal>& refusals)
{
    for (const Gatekeeper::Refusal& refusal : refusals)
        showNotice(tr("Plug-ins"), Sentence::of(refusal), refusal.file);
}

void PluginMessages::ask(const QList<LeftOutPlugins::Entry>& leftOut)
{
    delete m_question;
    if (leftOut.isEmpty())
        return;
    QStringList sentences;
    for (const LeftOutPlugins::Entry& entry : leftOut)
        sentences.append(Sentence::of(entry.call));
    m_question = newLooseMessage(QMessageBox::Warning, tr("Plug-ins"), sentences.join(QStringLiteral("\n\n")));
    m_question->setParent(m_window, m_question->windowFlags());
    const QPushButton* const load = m_question->addButton(tr("&Load at the Next Start"), QMessageBox::AcceptRole);
    QPushButton* const leave = m_question->addButton(tr("Leave &Out"), QMessageBox::RejectRole);
    m_question->setEscapeButton(leave);
    m_question->setDefaultButton(leave);
    connect(m_question.data(), &QMessageBox::finished, this,
            [this, load, box = m_question.data()] { Q_EMIT decided(box->clickedButton() == load); });
    m_question->show();
}
