// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/scripted/Scenario.h"

#include "platform/backend/FileNames.h"
#include "platform/backend/JsonLines.h"
#include "platform/scripted/ScenarioReader.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <algorithm>

namespace Platform {

namespace {

constexpr qint64 MaxFileBytes = qint64(1024) * 1024;
const QLatin1String BundledFolder(":/scenarios");
const QLatin1String Suffix(".json");
const QLatin1String BaseKey("base");

// Empty on success, otherwise why the file can't be read.
QString load(const QString& path, QByteArray* content)
{
    QString nameProblem = path.startsWith(BundledFolder) ? QString() : FileNames::problem(path);
    if (!nameProblem.isEmpty()) {
        return nameProblem;
    }
    const QFileInfo info(path);
    if (!info.exists()) {
        return qtTrId("ID_Engine_Scenario_Unknown")
            .arg(Scenario::bundledNames().join(QStringLiteral(", ")));
    }
    if (!info.isFile()) {
        return qtTrId("ID_Engine_Scenario_NotRegular");
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return qtTrId("ID_Engine_Scenario_NotRead").arg(file.errorString());
    }
    // Memory for what there is, not for what there may be.
    *content = file.read(std::min(file.size(), MaxFileBytes) + 1);
    if (content->size() > MaxFileBytes) {
        return qtTrId("ID_Engine_Scenario_TooLarge");
    }
    return {};
}

QString bundledPath(const QString& name)
{
    return BundledFolder + QLatin1Char('/') + name + Suffix;
}

// Takes fields that the scenario doesn't set from the bundled scenario that it names as its base.
QJsonObject withBase(const QJsonObject& document, JsonProblem& problem)
{
    if (!document.contains(BaseKey)) {
        return document;
    }
    const QString base = document.value(BaseKey).toString();
    if (!Scenario::bundledNames().contains(base)) {
        problem.set(BaseKey, qtTrId("ID_Engine_Scenario_Base"));
        return document;
    }
    QByteArray json;
    load(bundledPath(base), &json);
    QJsonObject result = withBase(QJsonDocument::fromJson(json).object(), problem);
    for (auto it = document.begin(); it != document.end(); ++it) {
        result.insert(it.key(), it.value());
    }
    result.remove(BaseKey);
    return result;
}

QString message(const QString& file, int line, const QString& text)
{
    return QStringLiteral("%1:%2: ").arg(file).arg(line) + text;
}

} // namespace

std::optional<Scenario> Scenario::read(const QString& nameOrPath, QString* error)
{
    const bool isBundled = bundledNames().contains(nameOrPath);
    const QString path = isBundled ? bundledPath(nameOrPath) : nameOrPath;
    QByteArray json;
    const QString unreadable = load(path, &json);
    if (!unreadable.isEmpty()) {
        *error = path + QStringLiteral(": ") + unreadable;
        return {};
    }
    return parse(json, path, error);
}

std::optional<Scenario> Scenario::parse(const QByteArray& json, const QString& name, QString* error)
{
    QJsonParseError syntax;
    const QJsonDocument document = QJsonDocument::fromJson(json, &syntax);
    if (syntax.error != QJsonParseError::NoError) {
        *error = message(name, JsonLines::lineAt(json, syntax.offset),
                         qtTrId("ID_Engine_Json_Invalid").arg(syntax.errorString()));
        return {};
    }
    const JsonLines lines(json);
    JsonProblem problem;
    if (!document.isObject()) {
        problem.set({}, qtTrId("ID_Engine_Json_Document"));
    }
    const QString duplicate = lines.duplicate();
    if (!duplicate.isEmpty()) {
        problem.set(duplicate, qtTrId("ID_Engine_Json_Twice"));
    }
    const Scenario scenario = ScenarioReader(problem).read(withBase(document.object(), problem));
    if (problem.isSet()) {
        *error = message(name, lines.lineOf(problem.path), problem.toString());
        return {};
    }
    return scenario;
}

QStringList Scenario::bundledNames()
{
    QStringList names;
    const QFileInfoList files = QDir(BundledFolder).entryInfoList(QDir::Files, QDir::Name);
    for (const QFileInfo& file : files) {
        names.append(file.completeBaseName());
    }
    return names;
}

} // namespace Platform
