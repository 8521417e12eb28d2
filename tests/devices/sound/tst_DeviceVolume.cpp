// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/sound/DeviceVolume.h"

#include <QTest>

using Platform::DeviceVolume;

class tst_DeviceVolume : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_volume.reset({60.0, false}); }

    void tellsWhatOthersChange()
    {
        QVERIFY(m_volume.take({40.4, false}, 0));
        QCOMPARE(m_volume.percent(), 40);
        QVERIFY(!m_volume.take({40.0, false}, 0));
    }

    void isZeroWhileMuted()
    {
        QVERIFY(m_volume.take({60.0, true}, 0));
        QCOMPARE(m_volume.percent(), 0);
        QVERIFY(!m_volume.take({30.0, true}, 0)); // as silent as before
        QVERIFY(m_volume.take({30.0, false}, 0));
        QCOMPARE(m_volume.percent(), 30);
    }

    void lateReportsAreIgnored()
    {
        QCOMPARE(m_volume.set(80), 80);
        m_volume.await(5);
        QVERIFY(!m_volume.take({60.0, true}, 4));
        QCOMPARE(m_volume.percent(), 80);
        QVERIFY(!m_volume.take({80.0, false}, 5));
        QVERIFY(m_volume.take({20.0, false}, 6));
    }

    void userEndsTheMute()
    {
        m_volume.reset({60.0, true});
        QCOMPARE(m_volume.set(50), 50);
        QCOMPARE(m_volume.percent(), 50);
    }

    void staysWithinItsLimits()
    {
        QCOMPARE(m_volume.set(-1), 0);
        QCOMPARE(m_volume.set(1000), 150);
        QVERIFY(!m_volume.take({1000.0, false}, 0));
        QCOMPARE(m_volume.percent(), 150);
    }

private:
    DeviceVolume m_volume{150};
};

QTEST_APPLESS_MAIN(tst_DeviceVolume)
#include "tst_DeviceVolume.moc"
