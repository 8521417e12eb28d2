// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/Languages.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QLocale>
#include <algorithm>

namespace {

const QLatin1String FilePrefix("envcheck_");
const QLatin1String FileSuffix(".qm");
const QLatin1String Fallback("en");
constexpr QChar Digits = u'0'; // the first of them

QString folder()
{
    return QCoreApplication::applicationDirPath() + QLatin1String("/translations");
}

// The first wanted language that is available, exactly or by its name or script. Empty if none is.
QString nearest(const QStringList& wanted, const QStringList& available)
{
    for (QString name : wanted) {
        name.replace(QLatin1Char('-'), QLatin1Char('_'));
        if (name.startsWith(QLatin1String("zh_Hant")) || name == QLatin1String("zh_HK")) {
            name = QStringLiteral("zh_TW");
        } else if (name == QLatin1String("zh") || name.startsWith(QLatin1String("zh_Hans"))) {
            name = QStringLiteral("zh_CN");
        }
        if (available.contains(name)) {
            return name;
        }
        const QString language = name.section(QLatin1Char('_'), 0, 0);
        for (const QString& candidate : available) {
            if (candidate.section(QLatin1Char('_'), 0, 0) == language) {
                return candidate;
            }
        }
    }
    return {};
}

// The pages write most numbers with 0 to 9 and some as the locale wants. To show one kind of digits
// only, this takes a country of the language that uses 0 to 9.
QLocale localeOf(const QString& language)
{
    const QLocale locale(language);
    if (locale.zeroDigit() == Digits) {
        return locale;
    }
    const QList<QLocale> others =
        QLocale::matchingLocales(locale.language(), locale.script(), QLocale::AnyCountry);
    const auto found = std::find_if(others.begin(), others.end(), [](const QLocale& other) {
        return other.zeroDigit() == Digits;
    });
    return found == others.end() ? QLocale::c() : *found;
}

} // namespace

Languages::Languages() = default;

Languages::~Languages()
{
    QCoreApplication::removeTranslator(&m_texts);
    QCoreApplication::removeTranslator(&m_qtTexts);
}

QStringList Languages::available()
{
    QStringList result;
    const QStringList files =
        QDir(folder()).entryList({FilePrefix + QLatin1Char('*') + FileSuffix}, QDir::Files);
    for (const QString& file : files) {
        result << file.mid(FilePrefix.size(), file.size() - FilePrefix.size() - FileSuffix.size());
    }
    return result;
}

bool Languages::load(QTranslator& translator, const QString& language)
{
    return translator.load(FilePrefix + language, folder());
}

QString Languages::use(const QString& language)
{
    const QStringList languages = available();
    if (languages.isEmpty()) {
        return QStringLiteral("there are no texts in %1: install or build the program again")
            .arg(folder());
    }
    const QString asked =
        language.isEmpty() ? QString() : nearest(QStringList{language}, languages);
    QString taken = asked.isEmpty() ? nearest(QLocale::system().uiLanguages(), languages) : asked;
    if (taken.isEmpty()) {
        taken = Fallback;
    }
    QString problem = install(taken);
    if (problem.isEmpty() && asked.isEmpty() && !language.isEmpty()) {
        problem =
            qtTrId("ID_Host_Language_Unknown").arg(language, languages.join(QLatin1String(", ")));
    }
    return problem;
}

QString Languages::install(const QString& language)
{
    QLocale::setDefault(localeOf(language));
    const QString qtTexts = QStringLiteral("qtbase_") + language;
    if (m_qtTexts.load(qtTexts, QLibraryInfo::location(QLibraryInfo::TranslationsPath)) ||
        m_qtTexts.load(qtTexts, folder())) {
        QCoreApplication::installTranslator(&m_qtTexts);
    }
    // Qt asks the translator that was installed last first.
    if (!load(m_texts, language)) {
        return QStringLiteral(
                   "the texts %1 in %2 can't be read: install or build the program again")
            .arg(FilePrefix + language + FileSuffix, folder());
    }
    QCoreApplication::installTranslator(&m_texts);
    m_current = language;
    return {};
}
