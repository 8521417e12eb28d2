// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/report/HtmlPage.h"

#include "host/Console.h"

namespace {

// All colours of texts have a contrast of at least 4.5 to 1 on their ground.
const char* const Style =
    ":root{color-scheme:light dark;--ground:#fff;--text:#232323;--faint:#595959;--line:#e5e5e5;"
    "--good:#007a55;--bad:#c62f0d;--notice:#8a5a00}"
    "@media (prefers-color-scheme:dark){:root{--ground:#1d1f21;--text:#e8e8e8;--faint:#b0b0b0;"
    "--line:#3d4043;--good:#4cc79b;--bad:#ff8a70;--notice:#e5b04a}}"
    "@media print{:root{color-scheme:light;--ground:#fff;--text:#232323;--faint:#595959;"
    "--line:#e5e5e5;--good:#007a55;--bad:#c62f0d;--notice:#8a5a00}"
    "details::details-content{content-visibility:visible;block-size:auto}"
    "tr,li{break-inside:avoid}h1,h2,summary{break-after:avoid}summary{list-style:none}}"
    "body{font:14px/1.5 sans-serif;color:var(--text);background:var(--ground);max-width:46em;"
    "margin:2em auto;padding:0 1em}body.wide{max-width:none}"
    "h1{font-size:1.5em}h2{font-size:1.1em;margin:1.5em 0 .3em}"
    "table{border-collapse:collapse;width:100%}"
    "th,td{text-align:start;vertical-align:top;padding:.25em .5em;"
    "border-bottom:1px solid var(--line);overflow-wrap:anywhere}"
    "th{width:40%;font-weight:normal;color:var(--faint)}"
    ".good{color:var(--good)}.bad{color:var(--bad)}.notice{color:var(--notice)}"
    ".plot{margin:.8em 0;break-inside:avoid}.plot svg{width:100%;height:auto;direction:ltr}"
    ".plot path{fill:none;stroke:currentColor;stroke-width:1.5;stroke-linecap:round;"
    "stroke-linejoin:round}.plot .axes{stroke:var(--faint);stroke-width:1}"
    ".plot text{font-size:11px;fill:var(--faint)}"
    "summary{cursor:pointer;padding:.3em 0}details>summary{font-weight:bold}"
    "ul.map{list-style:none;padding:0;display:grid;gap:.5em;"
    "grid-template-columns:repeat(auto-fill,minmax(11em,1fr))}"
    "ul.map>li{border:1px solid var(--line);border-inline-start:.4em solid currentColor;"
    "border-radius:.3em;padding:.3em .6em;overflow-wrap:anywhere}"
    "ul.map p{margin:.2em 0;color:var(--text)}ul.map summary{font-weight:bold}"
    "article+article{border-top:2px solid var(--faint);margin-top:3em}";

} // namespace

QString HtmlPage::begin(const ReportTexts& texts, const QString& title)
{
    return QStringLiteral("<!DOCTYPE html>\n<html %1>\n<head>\n<meta charset=\"utf-8\">\n"
                          "<meta name=\"viewport\" content=\"width=device-width\">\n"
                          "<meta http-equiv=\"Content-Security-Policy\" "
                          "content=\"default-src 'none'; style-src 'unsafe-inline'\">\n"
                          "<title>%2</title>\n<style>%3</style>\n</head>\n")
        .arg(languageOf(texts), escaped(title), QLatin1String(Style));
}

QString HtmlPage::end()
{
    return QStringLiteral("</body>\n</html>\n");
}

QString HtmlPage::escaped(const QString& text)
{
    return Console::plainLine(text).toHtmlEscaped();
}

QString HtmlPage::languageOf(const ReportTexts& texts)
{
    QString language = texts.language();
    language.replace(QLatin1Char('_'), QLatin1Char('-'));
    return QStringLiteral("lang=\"%1\" dir=\"%2\"")
        .arg(language, texts.isRightToLeft() ? QStringLiteral("rtl") : QStringLiteral("ltr"));
}
