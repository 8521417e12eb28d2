// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/diagnosis/LogRecorder.h"

#include "host/Console.h"

#include <QElapsedTimer>
#include <QLoggingCategory>

#include <mutex>
#include <vector>

namespace {

const char* const EnginePrefix = "engine.";

struct Record
{
    std::mutex mutex;
    QElapsedTimer clock;
    std::vector<QByteArray> lines;
    qint64 leftOut = 0;
};

// Messages may come from threads that outlive the recorder.
Record& record()
{
    static auto* const theRecord = new Record;
    return *theRecord;
}

bool theIsVerbose = false;
QtMessageHandler thePrevious = nullptr;
QLoggingCategory::CategoryFilter thePreviousFilter = nullptr;

const char* levelOf(QtMsgType type)
{
    switch (type) {
    case QtDebugMsg:
        return "debug";
    case QtInfoMsg:
        return "info";
    case QtWarningMsg:
        return "warning";
    case QtCriticalMsg:
    case QtFatalMsg:
        break;
    }
    return "error";
}

bool isDetail(QtMsgType type)
{
    return type == QtDebugMsg || type == QtInfoMsg;
}

void keep(QtMsgType type, const char* category, const QString& text)
{
    Record& all = record();
    const std::scoped_lock lock(all.mutex);
    if (all.lines.size() == LogRecorder::MaxLines) {
        ++all.leftOut;
        return;
    }
    const QString line = Console::plainLine(text.left(LogRecorder::MaxLineLength));
    all.lines.push_back(QByteArray::number(double(all.clock.elapsed()) / 1000, 'f', 3) + ' ' +
                        category + ' ' + levelOf(type) + ": " + line.toUtf8());
}

void handle(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    keep(type, context.category ? context.category : "default", text);
    if (theIsVerbose || !isDetail(type)) {
        thePrevious(type, context, text);
    }
}

// Also what has a threshold of its own, which rules don't lower.
void enableDetails(QLoggingCategory* category)
{
    thePreviousFilter(category);
    if (qstrncmp(category->categoryName(), EnginePrefix, qstrlen(EnginePrefix)) == 0) {
        for (const QtMsgType type : {QtDebugMsg, QtInfoMsg, QtWarningMsg}) {
            category->setEnabled(type, true);
        }
    }
}

} // namespace

LogRecorder::LogRecorder(bool isVerbose)
{
    {
        Record& all = record();
        const std::scoped_lock lock(all.mutex);
        all.lines.clear();
        all.leftOut = 0;
        all.clock.start();
    }
    theIsVerbose = isVerbose;
    thePrevious = qInstallMessageHandler(&handle);
    thePreviousFilter = QLoggingCategory::installFilter(nullptr);
    QLoggingCategory::installFilter(&enableDetails);
}

LogRecorder::~LogRecorder()
{
    QLoggingCategory::installFilter(thePreviousFilter);
    qInstallMessageHandler(thePrevious);
}

QByteArray LogRecorder::content() const
{
    Record& all = record();
    const std::scoped_lock lock(all.mutex);
    QByteArray content;
    for (const QByteArray& line : all.lines) {
        content += line + '\n';
    }
    if (all.leftOut > 0) {
        content += QByteArray::number(all.leftOut) + " lines left out\n";
    }
    return content;
}
