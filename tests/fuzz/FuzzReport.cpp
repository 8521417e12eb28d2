// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/report/Redaction.h"
#include "host/report/ReportJson.h"
#include "host/report/ReportOutput.h"
#include "tests/fuzz/FuzzInput.h"

#include <QJsonDocument>

// A report that somebody sent to a support desk: read, shown in all ways, redacted, read again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QJsonDocument document = QJsonDocument::fromJson(FuzzInput::bytes(data, size));
    QString error;
    const std::optional<Report> report = ReportJson::fromJson(document.object(), &error);
    if (!report) {
        FuzzInput::require(!error.isEmpty());
        return 0;
    }
    using Format = Options::Format;
    for (const Format format : {Format::Text, Format::Html, Format::Json, Format::Room, Format::Csv,
                                Format::Lines, Format::Map}) {
        QString shown;
        const auto output = ReportOutput::create(format, QStringLiteral("en"), false,
                                                 [&shown](const QString& text) { shown += text; });
        output->add(*report, QString());
        output->finish();
        FuzzInput::require(!shown.contains(QChar(0x1B)) && !shown.contains(QChar(0x9B)) &&
                           !shown.contains(QChar(0x202E)));
    }
    const Report redacted =
        Redaction(Options::Redaction::Hash, QByteArrayLiteral("key")).redacted(*report);
    FuzzInput::require(ReportJson::fromJson(ReportJson::toJson(redacted), &error).has_value());
    return 0;
}
