// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QHash>
#include <QTranslator>

// Translates the texts that it is given, as long as it lives.
class Dictionary : public QTranslator
{
public:
    // Keys are ids, or for texts with a context "context/source".
    explicit Dictionary(const QHash<QString, QString>& words) : m_words(words)
    {
        QCoreApplication::installTranslator(this);
    }
    ~Dictionary() override { QCoreApplication::removeTranslator(this); }

    QString translate(const char* context, const char* text, const char* /*comment*/,
                      int /*count*/) const override
    {
        const QString key = QString::fromUtf8(text);
        return m_words.value(context ? QString::fromUtf8(context) + QLatin1Char('/') + key : key);
    }
    bool isEmpty() const override { return false; }

private:
    QHash<QString, QString> m_words;
};
