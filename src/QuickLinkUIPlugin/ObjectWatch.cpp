// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "ObjectWatch.h"

ObjectWatch::ObjectWatch(void* owner, Callback gone)
    : QObject()
    , m_owner(owner)
    , m_gone(gone)
{
}

void ObjectWatch::watch(QObject* object)
{
    if (object)
        connect(object, SIGNAL(destroyed(QObject*)), this, SLOT(onDestroyed(QObject*)), Qt::UniqueConnection);
}

void ObjectWatch::onDestroyed(QObject* object)
{
    m_gone(m_owner, object);
}
