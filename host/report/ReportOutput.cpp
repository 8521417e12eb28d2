// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/report/ReportOutput.h"

#include "host/Console.h"
#include "host/report/CsvLine.h"
#include "host/report/ReportJson.h"
#include "host/report/ReportWriter.h"
#include "host/report/RoomMap.h"
#include "host/report/RoomRow.h"
#include "host/report/RoomTable.h"
#include "host/report/TwinTexts.h"

#include <QJsonDocument>
#include <utility>

namespace {

class TextOutput final : public ReportOutput
{
public:
    TextOutput(const QString& language, Print print) : m_texts(language), m_print(std::move(print))
    {
    }

    void add(const Report& report, const QString&) override
    {
        m_print(std::exchange(m_gap, QStringLiteral("\n\n")) +
                ReportWriter::toText(report, m_texts));
    }

private:
    const TwinTexts m_texts;
    const Print m_print;
    QString m_gap;
};

class HtmlOutput final : public ReportOutput
{
public:
    HtmlOutput(const QString& language, Print print) : m_texts(language), m_print(std::move(print))
    {
    }

    void add(const Report& report, const QString&) override
    {
        if (!std::exchange(m_hasBegun, true)) {
            m_print(ReportWriter::htmlBegin(m_texts));
        }
        m_print(ReportWriter::htmlOf(report, m_texts));
    }

    void finish() override
    {
        if (m_hasBegun) {
            m_print(ReportWriter::htmlEnd());
        }
    }

private:
    const TwinTexts m_texts;
    const Print m_print;
    bool m_hasBegun = false;
};

class JsonOutput final : public ReportOutput
{
public:
    JsonOutput(bool isList, Print print) : m_isList(isList), m_print(std::move(print)) {}

    void add(const Report& report, const QString&) override
    {
        const QString text = QString::fromUtf8(ReportWriter::toJson(report));
        m_print(m_isList ? std::exchange(m_start, QStringLiteral(",\n")) + text.trimmed() : text);
        m_hasBegun = true;
    }

    void finish() override
    {
        if (m_isList && m_hasBegun) {
            m_print(QStringLiteral("\n]\n"));
        }
    }

private:
    const bool m_isList;
    const Print m_print;
    QString m_start = QStringLiteral("[\n");
    bool m_hasBegun = false;
};

class CsvOutput final : public ReportOutput
{
public:
    explicit CsvOutput(Print print) : m_print(std::move(print)) {}

    void add(const Report& report, const QString& name) override
    {
        QStringList names;
        std::vector<QJsonValue> cells;
        for (const RoomRow::Field& field : RoomRow::of(report, name).fields()) {
            names << QLatin1String(field.name);
            cells.push_back(field.value);
        }
        m_print((std::exchange(m_hasBegun, true) ? QString() : CsvLine::ofNames(names)) +
                CsvLine::of(cells));
    }

private:
    const Print m_print;
    bool m_hasBegun = false;
};

class LinesOutput final : public ReportOutput
{
public:
    explicit LinesOutput(Print print) : m_print(std::move(print)) {}

    void add(const Report& report, const QString& name) override
    {
        QJsonObject object;
        for (const RoomRow::Field& field : RoomRow::of(report, name).fields()) {
            object.insert(QLatin1String(field.name), field.value);
        }
        m_print(Console::plainJson(QJsonDocument(object), QJsonDocument::Compact) +
                QLatin1Char('\n'));
    }

private:
    const Print m_print;
};

} // namespace

std::unique_ptr<ReportOutput> ReportOutput::create(Options::Format format, const QString& language,
                                                   bool isList, const Print& print)
{
    switch (format) {
    case Options::Format::Text:
        return std::make_unique<TextOutput>(language, print);
    case Options::Format::Html:
        return std::make_unique<HtmlOutput>(language, print);
    case Options::Format::Json:
        break;
    case Options::Format::Room:
        return std::make_unique<RoomTable>(language, print);
    case Options::Format::Csv:
        return std::make_unique<CsvOutput>(print);
    case Options::Format::Lines:
        return std::make_unique<LinesOutput>(print);
    case Options::Format::Map:
        return std::make_unique<RoomMap>(language, print);
    }
    return std::make_unique<JsonOutput>(isList, print);
}
