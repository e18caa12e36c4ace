// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/** What is known of the data connection at one moment. */
struct ConnectionState {
    /** How far the network lets us go. */
    enum class Reach {
        Unknown,  ///< nobody looks
        Checking, ///< somebody looks just now
        Limited,  ///< not into the Internet
        Portal,   ///< a page of the network wants a login first
        Full,     ///< into the Internet
    };

    /** What is there while the connection that counts is not up. */
    enum class InItsPlace {
        Nothing,
        Ethernet, ///< the user is in the Internet by a cable
        Wireless, ///< by Wi-Fi
        Other,    ///< by something else
        Roaming,  ///< it is up, but in the network of another operator, where it is not to count
    };

    bool isUp = false;
    bool isComingUp = false; ///< only while it is not up
    Reach reach = Reach::Unknown;
    QString id;           ///< the same each time this connection comes up; empty while down
    QString name;         ///< as the user knows it; empty where nobody named it
    QString device;       ///< such as "wwan0"; empty when unknown
    QString operatorName; ///< of the mobile network; empty when unknown
    InItsPlace inItsPlace = InItsPlace::Nothing;
};
