// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

namespace Platform {

// What the host tells the real engine. Texts are shown as they are.
struct DeviceEngineConfig
{
    QString server;               // as StunServer::fromText() reads it; empty: the own responder
    QString builtInResponderText; // what the server line says then; empty: the usual words
    QString nameservers;          // for its DNS records: "ADDRESS:PORT,…"; empty: the system's
    QString cdnFirstPart;
    QString cdnSecondPart;
    QString account;           // empty: the operating system's user
    QString nickname;          // likewise
    QString resultsPath;       // the results' JSON document; empty: kept in memory
    QString reportUrl;         // http or https; empty: reports stay in the journal
    bool isProcessOwn = false; // nobody else in it speaks to the report server: floods may be cut
    QString settingsFolder;    // the settings stores
    QString cacheFolder;       // its volume's free space is a fact to show
    QString reportsFolder;     // the journal and the outbox; empty: "reports" in settingsFolder
    QByteArray reportToken;    // goes along with every report as a bearer token; empty: none
};

} // namespace Platform
