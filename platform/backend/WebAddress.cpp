// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/WebAddress.h"

namespace Platform {

std::optional<QUrl> webAddress(const QString& text)
{
    const QUrl url(text, QUrl::StrictMode);
    const bool isWeb =
        url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https");
    return url.isValid() && isWeb && !url.host().isEmpty() ? std::optional<QUrl>(url)
                                                           : std::nullopt;
}

} // namespace Platform
