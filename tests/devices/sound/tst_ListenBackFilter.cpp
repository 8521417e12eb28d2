// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/sound/ListenBackFilter.h"
#include "platform/devices/sound/SoundMath.h"

#include <QTest>
#include <cmath>
#include <optional>
#include <vector>

using Platform::DriftControl;
using Platform::FeedbackLimiter;
using Platform::ListenBackFilter;
using Platform::Pi;

namespace {

constexpr unsigned Rate = 48000;
constexpr std::size_t PieceFrames = 240; // 5 ms
constexpr int PiecesPerSecond = 200;
constexpr double ExcessMs = 100.0;

} // namespace

class tst_ListenBackFilter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_filter.emplace(Rate);
        m_phase = 0;
    }

    void keepsTheLengthBeforePlayback()
    {
        const double ms = run(PiecesPerSecond, 0.1, std::nullopt);
        QVERIFY2(std::abs(ms - 1000.0) < 1.0, qPrintable(QString::number(ms)));
    }

    void shortensIfTheBufferIsTooFull()
    {
        run(PiecesPerSecond, 0.1, DriftControl::FirstTargetMs + 5.0);
        QVERIFY(run(PiecesPerSecond, 0.1, DriftControl::FirstTargetMs + 5.0) < 999.0);
    }

    void lengthensIfTheBufferIsTooEmpty()
    {
        run(PiecesPerSecond, 0.1, 1.0);
        QVERIFY(run(PiecesPerSecond, 0.1, 1.0) > 1001.0);
    }

    void limitsTheSound()
    {
        m_loudest = 0.0F;
        run(PiecesPerSecond / 10, 1.0, std::nullopt);
        // The filter of the resampler overshoots a little.
        QVERIFY2(m_loudest > 0.4F && m_loudest <= FeedbackLimiter::Ceiling * 1.05F,
                 qPrintable(QString::number(static_cast<double>(m_loudest))));
    }

    void dropsSilenceFirst()
    {
        pileUp(0.1);
        // Nothing audible is dropped while silence may come.
        QVERIFY(run(40, 0.1, DriftControl::FirstTargetMs) > 199.0);
        QVERIFY(run(40, 0.0, DriftControl::FirstTargetMs) < 200.0 - ExcessMs + 10.0);
        QVERIFY(run(40, 0.0, DriftControl::FirstTargetMs) > 199.0);
    }

    void dropsSoundIfNoSilenceComes()
    {
        pileUp(0.1);
        QVERIFY(run(PiecesPerSecond, 0.1, DriftControl::FirstTargetMs) < 1000.0 - ExcessMs + 10.0);
    }

private:
    // One window with more in the buffer than resampling may compensate.
    void pileUp(double amplitude)
    {
        const int pieces = static_cast<int>(DriftControl::WindowMs) * PiecesPerSecond / 1000;
        run(pieces, amplitude, DriftControl::FirstTargetMs + ExcessMs);
    }

    // Returns how many milliseconds of sound came out.
    double run(int pieces, double amplitude, std::optional<double> fillMs)
    {
        std::size_t frames = 0;
        std::vector<float> piece(PieceFrames);
        for (int i = 0; i < pieces; ++i) {
            for (float& sample : piece) {
                sample =
                    static_cast<float>(amplitude * std::sin(2.0 * Pi * 1000.0 * m_phase++ / Rate));
            }
            const std::vector<float>& output =
                m_filter->process(piece.data(), piece.size(), fillMs);
            frames += output.size();
            for (const float sample : output) {
                m_loudest = std::max(m_loudest, std::abs(sample));
            }
        }
        return 1000.0 * static_cast<double>(frames) / Rate;
    }

    std::optional<ListenBackFilter> m_filter;
    int m_phase = 0;
    float m_loudest = 0.0F;
};

QTEST_APPLESS_MAIN(tst_ListenBackFilter)
#include "tst_ListenBackFilter.moc"
