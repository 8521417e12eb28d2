// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/campaign/ProgramCheck.h"

#include "platform/backend/WholeFile.h"
#include "tests/campaign/ReportProof.h"
#include "tests/campaign/ScriptedFaults.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>

namespace {

constexpr int TimeoutMs = 40000;
const QString HistoryName = QStringLiteral("/runs.jsonl");
const QByteArray FormerRun = "{\"id\":\"former\",\"report\":\"former\"}\n";
constexpr int FirstErrorCode = 64;
constexpr int QuestionCount = 3; // camera, speaker, microphone

GivenAnswers answersIn(const QString& path)
{
    GivenAnswers result;
    QFile file(path);
    if (file.open(QIODevice::ReadOnly)) {
        for (const QByteArray& line : file.readAll().trimmed().split('\n')) {
            const QList<QByteArray> words = line.split(' ');
            if (words.size() == 2) {
                result[QString::fromLatin1(words[0])] = QString::fromLatin1(words[1]);
            }
        }
    }
    return result;
}

void writeFile(const QString& path, const QByteArray& content)
{
    QFile file(path);
    if (file.open(QIODevice::WriteOnly)) {
        file.write(content);
    }
}

bool hasFormerRun(const QString& history)
{
    QFile file(history);
    return file.open(QIODevice::ReadOnly) && file.readAll().startsWith(FormerRun);
}

QString excerpt(const QString& text)
{
    constexpr int Length = 200;
    return text.trimmed().right(Length);
}

} // namespace

ProgramCheck::ProgramCheck(Injection& injection)
    : m_injection(injection), m_own(std::make_unique<QTemporaryDir>()), m_home(m_own->path())
{
    prepare();
}

ProgramCheck::ProgramCheck(Injection& injection, const QString& home, int number)
    : m_injection(injection), m_home(home), m_number(number)
{
    prepare();
}

ProgramCheck::~ProgramCheck() = default;

void ProgramCheck::prepare()
{
    m_program = std::make_unique<ProgramRun>(m_home);
    m_program->addPreload(QStringLiteral(ENVCHECK_PROGRAM_USER));
    m_program->setVariable("CAMPAIGN_ANSWERS", m_answers.filePath(QStringLiteral("answers")));
    m_program->setVariable("ASAN_OPTIONS", QStringLiteral("verify_asan_link_order=0"));
    writeFile(file("scenario.json"), ScriptedFaults::scenario());
    if (m_number == 0) {
        QDir().mkpath(dataFolder());
        writeFile(dataFolder() + HistoryName, FormerRun);
    }
}

QString ProgramCheck::file(const char* name) const
{
    return QStringLiteral("%1/%2-%3").arg(m_home, QString::number(m_number), QLatin1String(name));
}

QString ProgramCheck::dataFolder() const
{
    return m_home + QStringLiteral("/.local/share/envcheck");
}

void ProgramCheck::start(const QStringList& moreArguments)
{
    m_program->start(QStringList{QStringLiteral("--scenario"), file("scenario.json"),
                                 QStringLiteral("--language"), QStringLiteral("en"),
                                 QStringLiteral("--report"), reportFile(),
                                 QStringLiteral("--results"), file("results.json")} +
                     moreArguments);
}

void ProgramCheck::startOnDevices(const QStringList& moreArguments)
{
    m_program->start(QStringList{QStringLiteral("--language"), QStringLiteral("en"),
                                 QStringLiteral("--report"), reportFile(),
                                 QStringLiteral("--results"), file("results.json")} +
                     moreArguments);
}

void ProgramCheck::finish(Expect expected)
{
    judge(m_program->finish(TimeoutMs), expected);
}

void ProgramCheck::judge(const ProgramRun::Result& result, Expect expected)
{
    const bool isKilled = expected == Expect::Whole && result.isEndedBySignal;
    m_injection.require(result.code >= 0 || isKilled,
                        QStringLiteral("crash or hang after %1 ms: %2")
                            .arg(QString::number(result.ms), excerpt(result.error)));
    for (const char* mark : {"ERROR: AddressSanitizer", "runtime error: "}) {
        m_injection.require(!result.error.contains(QLatin1String(mark)), excerpt(result.error));
    }
    judgeReport(result, expected);
    judgeFolder(result, expected);
}

void ProgramCheck::judgeReport(const ProgramRun::Result& result, Expect expected)
{
    const bool isError = result.code >= FirstErrorCode;
    const bool saysWhy = isError && !result.error.trimmed().isEmpty();
    const bool isMissing = !QFile::exists(reportFile());
    const QString end = QStringLiteral("; exit code %1, %2")
                            .arg(QString::number(result.code), excerpt(result.error));
    m_injection.require(expected != Expect::Report || !isError, QStringLiteral("an error") + end);
    if (isMissing &&
        (expected == Expect::Whole || (expected == Expect::ReportOrMessage && saysWhy))) {
        return;
    }
    const GivenAnswers given = answersIn(m_answers.filePath(QStringLiteral("answers")));
    // A program that is killed or ended by a signal may miss the last answers.
    const QString problem = ReportProof::problemOfReport(
        reportFile(), expected == Expect::Whole ? GivenAnswers() : given);
    m_injection.require(problem.isEmpty(), problem + end);
    m_injection.require(expected != Expect::Report || given.size() == QuestionCount,
                        QStringLiteral("only %1 answers were clicked").arg(given.size()));
}

void ProgramCheck::judgeFolder(const ProgramRun::Result& result, Expect expected)
{
    const QString history = ReportProof::problemOfHistory(
        dataFolder() + HistoryName, expected == Expect::Report ? reportFile() : QString());
    m_injection.require(history.isEmpty(), history);
    m_injection.require(hasFormerRun(dataFolder() + HistoryName),
                        QStringLiteral("the history has lost a former run"));
    m_injection.require(ReportProof::isWholeOrMissing(file("results.json")),
                        QStringLiteral("the results are damaged"));
    // Temporary files may stay if the disk hung, which the exit code says, or if other checks still
    // write in this home.
    const bool isLeft = result.code < 0 || result.code >= FirstErrorCode || !m_own;
    const QString left = isLeft ? QString() : leftover();
    m_injection.require(left.isEmpty(), QStringLiteral("left behind: ") + left);
}

void ProgramCheck::expectNothingLeftByTheNextWrite()
{
    QStringList folders{m_home};
    QDirIterator all(m_home, QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot,
                     QDirIterator::Subdirectories);
    while (all.hasNext()) {
        const QString folder = all.next();
        if (!folder.contains(QLatin1String("/.envcheck-"))) { // it goes with its folder's write
            folders << folder;
        }
    }
    for (const QString& folder : folders) {
        const QString problem =
            Platform::WholeFile::write(folder + QStringLiteral("/next"), QByteArray());
        m_injection.require(problem.isEmpty(), problem);
    }
    m_injection.require(leftover().isEmpty(), QStringLiteral("left behind: ") + leftover());
}

QString ProgramCheck::leftover() const
{
    QDirIterator all(m_home, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (all.hasNext()) {
        if (all.next().contains(QLatin1String("/.envcheck-"))) {
            return all.fileName();
        }
    }
    return {};
}
