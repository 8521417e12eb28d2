// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/host/report/SampleReport.h"

namespace {

Measurement measured(const char* key, const QJsonValue& value)
{
    return {QLatin1String(key), Measurement::Status::Measured, value, {}};
}

ReportCheck check(CheckKind kind, Answer answer, const char* device)
{
    ReportCheck result;
    result.kind = kind;
    result.verdict = Verdict::Passed;
    result.answer = answer;
    result.deviceState = SeenState::Works;
    result.device = QString::fromUtf8(device);
    return result;
}

} // namespace

Report sampleReport()
{
    Report report;
    report.id = QStringLiteral("6d1f8d5e-0f43-4a57-8b0f-7d5d9b0a1c11");
    report.programVersion = QStringLiteral("1.0.0");
    report.started = QDateTime(QDate(2026, 3, 1), QTime(8, 30), Qt::UTC);
    report.finished = QDateTime(QDate(2026, 3, 1), QTime(8, 33, 20, 250), Qt::UTC);
    report.language = QStringLiteral("de");
    report.platform = Options::Platform::Devices;
    report.outcome = RunEnd::Passed;
    report.facts = {{QStringLiteral("account"), QStringLiteral("robin@example.org")},
                    {QStringLiteral("nickname"), QStringLiteral("Robin <b>B</b>")},
                    {QStringLiteral("operatingSystem"), QStringLiteral("Debian GNU/Linux 12")},
                    {QStringLiteral("processor"), QStringLiteral("A processor")},
                    {QStringLiteral("server"), QStringLiteral("stun.example.org:3478")},
                    {QStringLiteral("clientAddress"), QStringLiteral("192.0.2.7")},
                    {QStringLiteral("cdn"), QStringLiteral("edge-1/edge-2")}};
    report.cacheFreeBytes = 1536.0 * 1024 * 1024;
    ReportCheck network = check(CheckKind::Network, Answer::None, "");
    network.measurements = {measured("delayMs", 40), measured("jitterMs", 3),
                            measured("lossPercent", 2)};
    network.later = {measured("lossPercent", 84), measured("lens", QStringLiteral("Robin's net"))};
    ReportCheck camera =
        check(CheckKind::Camera, Answer::Yes, "Robin's <script>alert(1)</script> & \"camera\"");
    camera.cause = QStringLiteral("black");
    camera.measurements = {
        measured("rate", 29.97),
        measured("blackShare", 0.75),
        measured("lens", QStringLiteral("Robin's lens")),
        {QStringLiteral("brightness"),
         Measurement::Status::NotMeasured,
         {},
         QStringLiteral("notRecorded")},
        {QStringLiteral("width"), Measurement::Status::Failed, {}, QStringLiteral("hung")}};
    camera.contradictions = {Contradiction::YesToBlackPicture};
    ReportCheck speaker = check(CheckKind::Speaker, Answer::No, "Headset of Robin");
    speaker.measurements = {measured("mutedAfter", false), measured("volumeAfter", 60),
                            measured("soundPlayed", QStringLiteral("Thunder"))};
    report.checks = {network, camera, speaker,
                     check(CheckKind::Microphone, Answer::Yes, "Mic \x1b[31m of Robin")};
    report.grade = NetworkGrade::Level::Fair;
    report.gradeLines = {{NetworkGrade::Figure::OneWayDelay, NetworkGrade::Level::Good, 20, 150,
                          400, QStringLiteral("ITU-T G.114")},
                         {NetworkGrade::Figure::Loss, NetworkGrade::Level::Fair, 2, 1, 3,
                          QStringLiteral("ITU-T G.1010")},
                         {NetworkGrade::Figure::Jitter, NetworkGrade::Level::Good, 3, 50,
                          std::nullopt, QStringLiteral("ITU-T Y.1541")}};
    report.lastGoodRun = QDateTime(QDate(2026, 2, 1), QTime(9, 0), Qt::UTC);
    report.changes = {{ChangeSubject::Camera, ChangedThing::Device,
                       QStringLiteral("Old camera of Robin"),
                       QStringLiteral("New camera of Robin")},
                      {ChangeSubject::Network, ChangedThing::Grade, QStringLiteral("good"),
                       QStringLiteral("fair")}};
    return report;
}
