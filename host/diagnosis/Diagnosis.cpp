// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/diagnosis/Diagnosis.h"

#include "host/Console.h"
#include "host/report/ReportWriter.h"
#include "platform/backend/MachineFacts.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSysInfo>
#include <private/qzipwriter_p.h> // Qt has no other archives

namespace {

QJsonObject versions()
{
    return {{QStringLiteral("program"), QCoreApplication::applicationVersion()},
            {QStringLiteral("qt"), QString::fromLatin1(qVersion())},
            {QStringLiteral("qtBuilt"), QStringLiteral(QT_VERSION_STR)},
            {QStringLiteral("build"), QSysInfo::buildAbi()},
            {QStringLiteral("operatingSystem"),
             QJsonArray::fromStringList(Platform::MachineFacts::operatingSystem())},
            {QStringLiteral("product"), QSysInfo::prettyProductName()},
            {QStringLiteral("kernel"), QSysInfo::kernelVersion()},
            {QStringLiteral("processor"), Platform::MachineFacts::processorName()}};
}

QByteArray toBytes(const QJsonObject& object)
{
    return Console::plainJson(QJsonDocument(object)).toUtf8();
}

} // namespace

QByteArray Diagnosis::toZip(const Redaction& redaction) const
{
    const Report shownReport = redaction.redacted(report);
    const QString shownLog = redaction.redactedText(QString::fromUtf8(log), privateTexts());
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QZipWriter zip(&buffer);
    zip.setCompressionPolicy(QZipWriter::AlwaysCompress);
    zip.addFile(QStringLiteral("report.json"),
                ReportWriter::toFormat(shownReport, Options::Format::Json, report.language));
    zip.addFile(QStringLiteral("devices.json"), toBytes(redaction.redacted(devices).toJson()));
    zip.addFile(QStringLiteral("versions.json"), toBytes(versions()));
    zip.addFile(QStringLiteral("log.txt"), shownLog.toUtf8());
    zip.close();
    return bytes;
}

// The names in the report and in the lists, and those of the machine and of the user's folder.
QStringList Diagnosis::privateTexts() const
{
    QStringList texts{QSysInfo::machineHostName(), QDir::homePath(),
                      QDir::toNativeSeparators(QDir::homePath()), QDir::home().dirName()};
    for (const DeviceSurvey::Devices* list :
         {&devices.cameras, &devices.microphones, &devices.speakers}) {
        for (const DeviceSurvey::Device& device : *list) {
            texts << device.info.id << device.info.name;
        }
    }
    for (const ReportCheck& check : report.checks) {
        texts << check.device;
    }
    return texts + Redaction::privateFacts(report);
}
