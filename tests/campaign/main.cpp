// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/Languages.h"
#include "tests/campaign/FaultProcess.h"
#include "tests/campaign/FaultRun.h"
#include "tests/campaign/FaultTable.h"
#include "tests/campaign/Lanes.h"
#include "tests/campaign/ResultTable.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QElapsedTimer>
#include <QFile>
#include <QFont>
#include <QJsonDocument>
#include <QRandomGenerator>

#include <algorithm>
#include <cstdio>
#include <vector>

// The fault campaign: breaks what the check depends on, and judges each time by one rule. --help
// says how.

namespace {

constexpr int FontPixelSize = 12;

QString word(const char* text)
{
    return QString::fromLatin1(text);
}

void print(const QString& text)
{
    std::fputs(qPrintable(text), stdout);
    std::fflush(stdout);
}

void addOptions(QCommandLineParser& parser)
{
    parser.setApplicationDescription(word("Breaks what the check depends on."));
    parser.addHelpOption();
    parser.addOptions({
        {word("list"), word("Names all faults.")},
        {word("quick"), word("A few repetitions of each fault; the default.")},
        {word("full"), word("All repetitions.")},
        {word("only"), word("This fault; may be given again."), word("NAME")},
        {word("seed"), word("Repeats a former run."), word("N")},
        {word("repetitions"), word("Instead of those of the table."), word("N")},
        {word("document"), word("Puts the table between the marks of this file."), word("FILE")},
    });
    for (const char* name : {"inject", "lines"}) { // for the processes that it starts
        QCommandLineOption option(word(name), QString(), word("X"));
        option.setFlags(QCommandLineOption::HiddenFromHelp);
        parser.addOption(option);
    }
}

const char* wordOf(Fault::Needs needs)
{
    switch (needs) {
    case Fault::Needs::Scripted:
        return "scripted devices";
    case Fault::Needs::Servers:
        return "servers";
    case Fault::Needs::Program:
        break;
    }
    return "program";
}

int list()
{
    for (const Fault& fault : FaultTable::all()) {
        print(QStringLiteral("%1  %2  %3 / %4  %5\n")
                  .arg(word(fault.name), -24)
                  .arg(word(wordOf(fault.needs)), -16)
                  .arg(fault.quick, 4)
                  .arg(fault.full, 5)
                  .arg(word(fault.what)));
    }
    return 0;
}

// In the process of some faults.
int inject(const QCommandLineParser& parser)
{
    std::vector<const Fault*> faults;
    for (const QString& name : parser.values(word("inject"))) {
        faults.push_back(FaultTable::find(name));
    }
    QFile lines(parser.value(word("lines")));
    if (std::count(faults.begin(), faults.end(), nullptr) > 0 ||
        !lines.open(QIODevice::WriteOnly)) {
        return 2;
    }
    Languages languages;
    languages.use(word("en"));
    QApplication::setQuitOnLastWindowClosed(false);
    QFont font = QApplication::font();
    font.setPixelSize(FontPixelSize);
    QApplication::setFont(font);
    FaultRun run(faults, parser.value(word("seed")).toUInt(), [&lines](const QJsonObject& line) {
        lines.write(QJsonDocument(line).toJson(QJsonDocument::Compact) + '\n');
        lines.flush();
    });
    run.run(parser.value(word("repetitions")).toInt());
    return 0;
}

bool isChosen(const Fault& fault, const QStringList& only)
{
#ifdef __SANITIZE_ADDRESS__
    if (!fault.isSanitized) {
        return false;
    }
#endif
    return only.isEmpty() || only.contains(word(fault.name));
}

bool writeInto(const QString& path, const ResultTable& table)
{
    QFile file(path);
    const QByteArray content =
        file.open(QIODevice::ReadWrite) ? table.placedIn(file.readAll()) : QByteArray();
    const bool isWritten = !content.isEmpty() && file.resize(0) && file.seek(0) &&
                           file.write(content) == content.size();
    if (!isWritten) {
        print(QStringLiteral("The table can't be written into %1\n").arg(path));
    }
    return isWritten;
}

int runAll(const QCommandLineParser& parser)
{
    const quint32 seed = parser.isSet(word("seed")) ? parser.value(word("seed")).toUInt()
                                                    : QRandomGenerator::global()->generate();
    const QStringList only = parser.values(word("only"));
    for (const QString& name : only) {
        if (!FaultTable::find(name)) {
            print(QStringLiteral("There is no fault \"%1\"; see --list\n").arg(name));
            return 2;
        }
    }
    print(QStringLiteral("Seed %1\n\n").arg(seed) + ResultTable::head());
    std::vector<const Fault*> faults;
    for (const Fault& fault : FaultTable::all()) {
        if (isChosen(fault, only)) {
            faults.push_back(&fault);
        }
    }
    const int usual = parser.isSet(word("full")) ? FaultProcess::Full : FaultProcess::Quick;
    const int repetitions = parser.isSet(word("repetitions"))
                                ? std::max(1, parser.value(word("repetitions")).toInt())
                                : usual;
    QElapsedTimer clock;
    clock.start();
    ResultTable table;
    Lanes lanes(faults, seed, repetitions, [&table](const Fault& fault, const FaultResult& result) {
        table.add(fault, result);
        print(table.row(fault, result));
    });
    lanes.run();
    table.setDuration(clock.elapsed());
    print(QStringLiteral("\n%1\n").arg(table.summary()));
    const bool isWritten =
        !parser.isSet(word("document")) || writeInto(parser.value(word("document")), table);
    return table.hasFailure() || !isWritten ? 1 : 0;
}

} // namespace

int main(int argc, char* argv[])
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QApplication application(argc, argv);
    QCommandLineParser parser;
    addOptions(parser);
    parser.process(application);
    if (parser.isSet(word("list"))) {
        return list();
    }
    return parser.isSet(word("inject")) ? inject(parser) : runAll(parser);
}
