// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "PutBackOffer.h"

#include <QStringList>

#include "OfferLine.h"
#include "ShownText.h"

void PutBackOffer::setLine(OfferLine* line)
{
    if (m_line) {
        m_line->disconnect(this);
        m_line->offer(QString());
    }
    m_line = line;
    if (!m_line)
        return;
    connect(m_line, &OfferLine::dismissed, this, &PutBackOffer::withdraw);
    connect(m_line, &OfferLine::accepted, this, [this] {
        withdraw();
        Q_EMIT accepted();
    });
    m_line->offer(m_text);
}

void PutBackOffer::offer(const LinkItems::Fields& link, const LinkItems::Fields& fields)
{
    const QString name = ShownText::isolatedName(ShownText::shortLine(link.value(QStringLiteral("name"))));
    const bool onConnect = fields.contains(QStringLiteral("startconnect"));
    const bool onStart = fields.contains(QStringLiteral("startmobile"));
    QStringList sentences;
    if (onConnect && onStart)
        sentences.append(tr("\"%1\" no longer opens by itself.").arg(name));
    else if (onConnect)
        sentences.append(tr("\"%1\" no longer opens when connected.").arg(name));
    else if (onStart)
        sentences.append(tr("\"%1\" no longer opens when Vellum Connect starts.").arg(name));
    if (fields.contains(QStringLiteral("url")))
        sentences.append(tr("\"%1\" no longer has a recipient.").arg(name));
    m_text = sentences.join(QLatin1Char(' '));
    if (m_line)
        m_line->offer(m_text);
}

void PutBackOffer::withdraw()
{
    m_text.clear();
    if (m_line)
        m_line->offer(m_text);
}
