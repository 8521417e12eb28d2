// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT

#include "host/Languages.h"
#include "host/report/Redaction.h"
#include "host/report/ReportReader.h"
#include "host/report/ReportWriter.h"
#include "tests/host/report/SampleReport.h"

#include <QTemporaryDir>
#include <QtTest>

class tst_ReportReader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void inTheirOrder();
    void largeOnes();
    void none();

private:
    QString written(const QString& name, const QByteArray& content) const;

    QTemporaryDir m_folder;
    Languages m_languages;
};

namespace {

std::vector<ReportReader::Read> readAll(const QStringList& files)
{
    std::vector<ReportReader::Read> result;
    ReportReader::readAll(files, Redaction(Options::Redaction::Personal, {}),
                          [&result](const ReportReader::Read& read) { result.push_back(read); });
    return result;
}

} // namespace

void tst_ReportReader::initTestCase()
{
    QCOMPARE(m_languages.use(QStringLiteral("en")), QString());
}

QString tst_ReportReader::written(const QString& name, const QByteArray& content) const
{
    QFile file(m_folder.filePath(name));
    if (file.open(QIODevice::WriteOnly)) {
        file.write(content);
    }
    return file.fileName();
}

// Also those after a broken one, and each redacted.
void tst_ReportReader::inTheirOrder()
{
    QStringList files;
    for (int i = 0; i < 300; ++i) {
        Report report = sampleReport();
        report.id = QString::number(i);
        const QByteArray content = i % 7 == 3 ? QByteArray("{") : ReportWriter::toJson(report);
        files << written(QStringLiteral("%1.json").arg(i), content);
    }
    const std::vector<ReportReader::Read> reads = readAll(files);
    QCOMPARE(static_cast<int>(reads.size()), 300);
    for (int i = 0; i < 300; ++i) {
        const ReportReader::Read& read = reads[static_cast<std::size_t>(i)];
        QCOMPARE(read.file, files.at(i));
        QCOMPARE(read.report.has_value(), i % 7 != 3);
        QCOMPARE(read.problem.isEmpty(), read.report.has_value());
        if (read.report) {
            QCOMPARE(read.report->id, QString::number(i));
            QCOMPARE(read.report->redaction, Options::Redaction::Personal);
        }
    }
}

// Each takes more than may be read ahead.
void tst_ReportReader::largeOnes()
{
    QStringList files;
    for (int i = 0; i < 6; ++i) {
        files << written(QStringLiteral("large-%1.json").arg(i),
                         ReportWriter::toJson(sampleReport()) + QByteArray(1000000, ' '));
    }
    for (const ReportReader::Read& read : readAll(files)) {
        QVERIFY2(read.report, qPrintable(read.problem));
    }
}

void tst_ReportReader::none()
{
    QVERIFY(readAll({}).empty());
}

QTEST_GUILESS_MAIN(tst_ReportReader)
#include "tst_ReportReader.moc"
