// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QString>

#include "ObjectWatch.h"
#include "Pointers.h"

/**
 * What is done with every pointer of a walk over the widgets and layouts of a page or dialog. A walk hands over the
 * member and the name of its object; null stands for an object without a name.
 */
namespace Members
{
/** Notes whether any is null. */
struct FindNull {
    template <class T>
    void operator()(T* member, const char*)
    {
        isFound = isFound || !member;
    }
    bool isFound = false;
};

/** Gives every object its name. None of those that have one may be null. */
struct SetName {
    template <class T>
    void operator()(T* member, const char* name) const
    {
        if (name)
            member->setObjectName(QLatin1String(name));
    }
};

/** Watches every object. */
struct Watch {
    explicit Watch(ObjectWatch& objectWatch)
        : watch(objectWatch)
    {
    }
    template <class T>
    void operator()(T* member, const char*) const
    {
        watch.watch(member);
    }
    ObjectWatch& watch;
};

/** Makes the members null that point at an object that is gone. */
struct Forget {
    explicit Forget(const QObject* goneObject)
        : gone(goneObject)
    {
    }
    template <class T>
    void operator()(T*& member, const char*) const
    {
        if (member == gone)
            member = nullptr;
    }
    const QObject* gone;
};

/** Deletes every object, in the order of the walk. */
struct Release {
    template <class T>
    void operator()(T*& member, const char*) const
    {
        release(member);
    }
};
} // namespace Members
