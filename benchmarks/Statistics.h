// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cmath>
#include <vector>

// Of what was measured, in ascending order.
class Statistics
{
public:
    explicit Statistics(std::vector<double> values) : m_values(std::move(values))
    {
        std::sort(m_values.begin(), m_values.end());
    }

    std::size_t count() const { return m_values.size(); }
    double quantile(double share) const
    {
        if (m_values.empty()) {
            return std::nan("");
        }
        const double at = share * static_cast<double>(m_values.size() - 1);
        return m_values[static_cast<std::size_t>(std::lround(at))];
    }
    double p10() const { return quantile(0.1); }
    double median() const { return quantile(0.5); }
    double p90() const { return quantile(0.9); }
    double maximum() const { return quantile(1.0); }

private:
    std::vector<double> m_values;
};
