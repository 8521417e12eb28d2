// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/report/ReportView.h"

#include "host/report/Figures.h"
#include "host/report/Remedies.h"
#include "host/report/ReportTexts.h"

#include <QLocale>
#include <algorithm>

namespace {

using Mark = ReportView::Mark;

const QString Colon = QStringLiteral(": ");

struct FactCaption
{
    const char* key;
    const char* id;
};

constexpr FactCaption FactCaptions[] = {
    {"account", "ID_NetworkPage_Account"},      {"nickname", "ID_Nickname_NetworkPage"},
    {"computer", "ID_Host_Report_Computer"},    {"operatingSystem", "ID_NetworkPage_OS"},
    {"processor", "ID_NetworkPage_CPU"},        {"server", "ID_NewLogin_Server"},
    {"clientAddress", "ID_NetworkPage_Client"},
};

// Builds the sections in their order.
class ViewMaker
{
public:
    ViewMaker(const Report& report, const ReportTexts& texts) : m_report(report), m_texts(texts) {}

    ReportView make()
    {
        m_view.language = m_texts.language();
        m_view.isRightToLeft = m_texts.isRightToLeft();
        m_view.title = m_texts.text("ID_Host_Report_Title");
        addSummary();
        addChanges();
        addSystem();
        for (const ReportCheck& check : m_report.checks) {
            addCheck(check);
        }
        return m_view;
    }

private:
    void addSection(const QString& title) { m_view.sections.push_back({title, {}, {}}); }

    void add(const QString& caption, const QString& value, Mark mark = Mark::Plain)
    {
        m_view.sections.back().rows.push_back({caption, value, mark});
    }

    void add(const char* captionId, const QString& value, Mark mark = Mark::Plain)
    {
        add(m_texts.caption(captionId), value, mark);
    }

    static Mark mark(Verdict verdict)
    {
        return isGood(verdict) ? Mark::Good : isBad(verdict) ? Mark::Bad : Mark::Notice;
    }

    static Mark mark(RunEnd end)
    {
        return end == RunEnd::Passed || end == RunEnd::Works    ? Mark::Good
               : end == RunEnd::Failed || end == RunEnd::Faulty ? Mark::Bad
                                                                : Mark::Notice;
    }

    static Mark mark(NetworkGrade::Level level)
    {
        return level == NetworkGrade::Level::Good   ? Mark::Good
               : level == NetworkGrade::Level::Poor ? Mark::Bad
                                                    : Mark::Notice;
    }

    QString named(CheckKind kind, const QString& device) const
    {
        return device.isEmpty() ? m_texts.of(kind) : m_texts.of(kind) + Colon + device;
    }

    QString nameOf(const ReportCheck& check) const
    {
        return named(check.kind, Remedies::deviceAmong(m_report, check));
    }

    void addSummary()
    {
        addSection(m_texts.text("ID_Host_Report_Summary"));
        add("ID_Host_Report_Outcome", m_texts.of(m_report.outcome), mark(m_report.outcome));
        for (const Remedies::Remedy& remedy : Remedies::of(m_report)) {
            add("ID_Host_Remedy",
                named(remedy.check, remedy.device) + Colon + m_texts.of(remedy.cause),
                Mark::Notice);
        }
        for (const ReportCheck& check : m_report.checks) {
            add(nameOf(check), m_texts.of(check.verdict), mark(check.verdict));
            for (const Contradiction flag : check.contradictions) {
                add("ID_Host_Report_Contradiction", nameOf(check) + Colon + m_texts.of(flag),
                    Mark::Notice);
            }
        }
        addGradeLevel();
        add("ID_Host_Report_Time", ReportTexts::exactTimeOf(m_report.finished));
        addNotice(m_report.platform);
        addNotice(m_report.redaction);
    }

    void addGradeLevel()
    {
        const ReportCheck* network = m_report.check(CheckKind::Network);
        if (m_report.grade) {
            add("ID_Host_Grade", m_texts.of(*m_report.grade), mark(*m_report.grade));
        } else if (network && network->has(Cause::NoServer)) {
            add("ID_Host_Grade",
                m_texts.of(FigureStatus::NotMeasured).arg(m_texts.of(Reason::NoServer)),
                Mark::Notice);
        }
    }

    template <typename Value>
    void addNotice(Value value)
    {
        if (const char* id = ReportWords::textId(value)) {
            add("ID_Host_Report_Notice", m_texts.text(id), Mark::Notice);
        }
    }

    void addChanges()
    {
        addSection(m_texts.text("ID_Host_Changes"));
        if (!m_report.lastGoodRun) {
            add("ID_Host_LastGoodRun", m_texts.text("ID_Host_LastGoodRun_None"));
            return;
        }
        add("ID_Host_LastGoodRun", ReportTexts::exactTimeOf(*m_report.lastGoodRun));
        if (m_report.changes.empty()) {
            add("ID_Host_Changes", m_texts.text("ID_Host_Changes_None"));
        }
        for (const ReportChange& change : m_report.changes) {
            const QString arrow =
                m_view.isRightToLeft ? QStringLiteral(" ← ") : QStringLiteral(" → ");
            add(m_texts.of(change.subject) + QStringLiteral(", ") + m_texts.of(change.what),
                changedText(change, change.before) + arrow + changedText(change, change.now),
                Mark::Notice);
        }
    }

    QString changedText(const ReportChange& change, const QString& value) const
    {
        const QString text = m_texts.changedValue(change.what, value);
        return text.isEmpty() ? QStringLiteral("…") : text; // redacted
    }

    void addSystem()
    {
        addSection(m_texts.text("ID_Host_Report_System"));
        for (const FactCaption& fact : FactCaptions) {
            const QString text = m_report.facts.value(QLatin1String(fact.key)).toString();
            if (!text.isEmpty()) {
                add(fact.id, text);
            }
        }
        const QString cdn = m_report.facts.value(QLatin1String("cdn")).toString();
        if (!cdn.isEmpty()) {
            add(QStringLiteral("CDN"), cdn);
        }
        if (m_report.cacheFreeBytes) {
            add("ID_NetworkPage_AvailableCacheSpace",
                QLocale(QLocale::C)
                    .formattedDataSize(static_cast<qint64>(*m_report.cacheFreeBytes), 2,
                                       QLocale::DataSizeTraditionalFormat));
        }
        add("ID_Host_Report_Program", QStringLiteral("envcheck ") + m_report.programVersion);
        add("ID_Host_Report_Id", m_report.id);
    }

    void addCheck(const ReportCheck& check)
    {
        addSection(nameOf(check));
        add("ID_Host_Report_Result", m_texts.of(check.verdict), mark(check.verdict));
        const bool isNetwork = check.kind == CheckKind::Network;
        const bool wasAsked = !isNetwork && isAttended(check.verdict);
        if (wasAsked) {
            add("ID_Host_Report_Answer", m_texts.of(check.answer));
        }
        if (!check.device.isEmpty()) {
            add("ID_Host_Report_Device", check.device);
        }
        for (const Contradiction flag : check.contradictions) {
            add("ID_Host_Report_Contradiction", m_texts.of(flag), Mark::Notice);
        }
        for (const Cause cause : check.causes) {
            add("ID_Host_Remedy", m_texts.of(cause), Mark::Notice);
        }
        addMeasurements(check);
        // All that the check knows about a speaker is whether the sound was recognised.
        if (check.kind == CheckKind::Speaker && wasAsked) {
            add("ID_Host_Report_RightSound", m_texts.of(check.deviceState));
        }
        addLater(check);
        addPlots(check);
        if (isNetwork && m_report.grade) {
            addGrade();
        }
    }

    void addLater(const ReportCheck& check)
    {
        QStringList figures;
        for (const Measurement& measurement : check.later) {
            const QString value = m_texts.valueOf(check.kind, measurement);
            if (!value.isEmpty() && !isPlotted(measurement)) {
                figures << m_texts.captionOf(check.kind, measurement.key) + QStringLiteral(": ") +
                               value;
            }
        }
        if (!figures.isEmpty()) {
            add("ID_Host_Report_Later", figures.join(QStringLiteral("; ")));
        }
    }

    // Also if it wasn't measured: the figure itself says why.
    static bool isPlotted(const Measurement& measurement)
    {
        return ReportSeries::kindOf(measurement.key) &&
               (measurement.status != FigureStatus::Measured ||
                ReportSeries::of(measurement.key, measurement.value));
    }

    // The later ones are longer, and begin at the same time.
    void addPlots(const ReportCheck& check)
    {
        for (const Measurement& measurement : check.measurements) {
            const auto later = std::find_if(
                check.later.begin(), check.later.end(),
                [&measurement](const Measurement& each) { return each.key == measurement.key; });
            const QJsonValue value = later == check.later.end() ? measurement.value : later->value;
            if (const auto series = ReportSeries::of(measurement.key, value)) {
                m_view.sections.back().plots.push_back(
                    {m_texts.caption(series->kind->captionId), *series});
            }
        }
    }

    // If all figures have the same reason, it is shown once.
    void addMeasurements(const ReportCheck& check)
    {
        const bool areAllMissing = std::all_of(
            check.measurements.begin(), check.measurements.end(), [&check](const Measurement& m) {
                return m.status != Measurement::Status::Measured &&
                       m.reason == check.measurements.front().reason;
            });
        if (areAllMissing && !check.measurements.empty()) {
            add("ID_Host_Report_Measurements",
                m_texts.valueOf(check.kind, check.measurements.front()));
            return;
        }
        for (const Measurement& measurement : check.measurements) {
            const QString value = m_texts.valueOf(check.kind, measurement);
            // Shows no row for a redacted name.
            if (!value.isEmpty() && !isPlotted(measurement)) {
                add(m_texts.captionOf(check.kind, measurement.key), value);
            }
        }
    }

    void addGrade()
    {
        add("ID_Host_Grade", m_texts.of(*m_report.grade), mark(*m_report.grade));
        for (const GradeLine& line : m_report.gradeLines) {
            const Figures::Unit unit = line.figure == NetworkGrade::Figure::Loss
                                           ? Figures::Unit::Percent
                                           : Figures::Unit::Ms;
            QString limits =
                m_texts.text("ID_Host_Grade_GoodUpTo").arg(Figures::toText(line.goodUpTo, unit));
            if (line.fairUpTo) {
                limits += QStringLiteral(", ") + m_texts.text("ID_Host_Grade_FairUpTo")
                                                     .arg(Figures::toText(*line.fairUpTo, unit));
            }
            add(m_texts.of(line.figure),
                QStringLiteral("%1: %2 (%3; %4)")
                    .arg(Figures::toText(line.value, unit), m_texts.of(line.level), limits,
                         line.source),
                mark(line.level));
        }
    }

    const Report& m_report;
    const ReportTexts& m_texts;
    ReportView m_view;
};

} // namespace

ReportView ReportView::of(const Report& report, const ReportTexts& texts)
{
    return ViewMaker(report, texts).make();
}
