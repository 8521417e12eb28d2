// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/directshow/FrameSink.h"
#include "tests/devices/windowscameras/WindowsCameraTest.h"

#include <QtTest>

using namespace Platform;
using namespace TestSupport;

// Cameras that DirectShow lists, beside those of Media Foundation or alone.
class tst_DirectShowCameras : public WindowsCameraTest
{
    Q_OBJECT

private Q_SLOTS:
    void listsProgramsByTheirEntry();
    void listsThemAfterMediaFoundation();
    void takesWhatBothListFromMediaFoundation();
    void worksWithoutMediaFoundation();
    void followsTheRegistry();
    void survivesHostileNames_data();
    void survivesHostileNames();
    void saysThatItsProgramIsGone();
    void asksForTheUsualRate();
    void slowsDownWhatNeverWaits();
    void opensWhatCannotBeConfigured();
    void hearsWhatTheFilterTells_data();
    void hearsWhatTheFilterTells();

private:
    void plugProgram(const QString& name);
    QString programId() const { return ids().isEmpty() ? QString() : ids().constFirst(); }
};

// It has no device, and so no link.
void tst_DirectShowCameras::plugProgram(const QString& name)
{
    m_cameras->setSystem(StagedSystem::DirectShow);
    m_cameras->plug(LinkB, name);
    m_cameras->hideLink(LinkB);
}

void tst_DirectShowCameras::listsProgramsByTheirEntry()
{
    plugProgram(QStringLiteral("Studio"));
    makeBackend();
    QTRY_COMPARE_WITH_TIMEOUT(names(), QStringList{QStringLiteral("Studio")}, LongMs);
    const QString id = programId();
    QVERIFY2(id.startsWith(QLatin1String("@device:sw:{860bb310-")), qPrintable(id));
    QCOMPARE(m_cameras->activations(LinkB), 0); // listing loads nothing
    start();
    m_backend.reset();
    makeBackend();
    QTRY_COMPARE_WITH_TIMEOUT(ids(), QStringList{id}, LongMs);
}

void tst_DirectShowCameras::listsThemAfterMediaFoundation()
{
    plugProgram(QStringLiteral("Studio"));
    m_cameras->setSystem(StagedSystem::MediaFoundation);
    m_cameras->plug(LinkA, QStringLiteral("Camera"));
    makeBackend();
    QTRY_COMPARE_WITH_TIMEOUT(ids().size(), 2, LongMs);
    QCOMPARE(m_watcher.log.count(QStringLiteral("list")), 1);
    QTRY_COMPARE(m_backend->currentId(), IdA);
    start();
    QCOMPARE(m_cameras->opened(LinkA), 1);
    m_backend->setCurrent(programId());
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), QStringLiteral("working"), LongMs);
    QCOMPARE(m_cameras->opened(LinkB), 1);
    QTRY_COMPARE_WITH_TIMEOUT(m_cameras->opened(LinkA), 0, LongMs);
}

void tst_DirectShowCameras::takesWhatBothListFromMediaFoundation()
{
    m_cameras->plug(LinkA, QStringLiteral("Camera"));
    m_cameras->setSystem(StagedSystem::DirectShow);
    const QString otherLink = QString(IdA).toUpper() + QStringLiteral("#{65E8773D}\\global");
    m_cameras->plug(otherLink, QStringLiteral("Camera of DirectShow"));
    makeBackend();
    QTRY_COMPARE_WITH_TIMEOUT(names(), QStringList{QStringLiteral("Camera")}, LongMs);
    QCOMPARE(ids(), QStringList{IdA});
    start();
    QCOMPARE(m_cameras->opened(LinkA), 1);
    QCOMPARE(m_cameras->activations(otherLink), 0);
}

void tst_DirectShowCameras::worksWithoutMediaFoundation()
{
    m_cameras->setSystem(StagedSystem::DirectShow);
    m_cameras->plug(LinkA, QStringLiteral("Camera"));
    makeSystem([] { return MediaFoundation::load(L"no-such-library.dll"); });
    QTRY_COMPARE_WITH_TIMEOUT(ids(), QStringList{IdA}, LongMs); // as Media Foundation names it
    QVERIFY(m_backend->serverState() == SoundServerState::Running);
    start();
    m_cameras->unplug(LinkA);
    StagedCameras::castDeviceChange();
    QTRY_COMPARE_WITH_TIMEOUT(causeName(), QStringLiteral("notBuilt"), LongMs);
}

void tst_DirectShowCameras::followsTheRegistry()
{
    makeBackend();
    QTRY_VERIFY_WITH_TIMEOUT(m_backend->serverState() == SoundServerState::Running, LongMs);
    plugProgram(QStringLiteral("Studio"));
    QTRY_COMPARE_WITH_TIMEOUT(names(), QStringList{QStringLiteral("Studio")}, LongMs);
    start();
    m_cameras->unplug(LinkB);
    QTRY_COMPARE_WITH_TIMEOUT(causeName(), QStringLiteral("unplugged"), LongMs);
    QVERIFY(ids().isEmpty());
}

void tst_DirectShowCameras::survivesHostileNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("none") << QString();
    QTest::newRow("empty") << QStringLiteral("");
    QTest::newRow("long") << QString(3000, QLatin1Char('x'));
    QTest::newRow("controls") << QStringLiteral("a\n\t\x1b[31mb\u202e");
    QTest::newRow("half a pair") << QString(QChar(0xd83d));
    QTest::newRow("script") << QStringLiteral("\u7530\u0939\u0901 \u0645");
}

void tst_DirectShowCameras::survivesHostileNames()
{
    QFETCH(QString, name);
    m_cameras->setSystem(StagedSystem::DirectShow);
    m_cameras->plug(LinkA, name);
    makeBackend();
    QTRY_COMPARE_WITH_TIMEOUT(ids(), QStringList{IdA}, LongMs);
    const QString shown = names().constFirst();
    QVERIFY(!shown.isEmpty());
    QVERIFY(name.isEmpty() || shown == printableName(name));
    start(); // it can be used all the same
}

void tst_DirectShowCameras::saysThatItsProgramIsGone()
{
    plugProgram(QStringLiteral("Studio"));
    m_cameras->removeClass(LinkB);
    makeBackend();
    m_backend->start();
    // Wine looks for it in other processes, too, which takes some ten seconds.
    QTRY_COMPARE_WITH_TIMEOUT(causeName(), QStringLiteral("failed"), 4 * LongMs);
}

// Of all that it offers, and it sends what it was asked for.
void tst_DirectShowCameras::asksForTheUsualRate()
{
    StagedMode mode;
    mode.rateNumerator = 60;
    mode.lowestRate = 5;
    m_cameras->setSystem(StagedSystem::DirectShow);
    m_cameras->plug(LinkA, QStringLiteral("Camera"), {mode});
    makeBackend();
    start();
    QTRY_VERIFY_WITH_TIMEOUT(m_watcher.frames >= 60, LongMs);
    m_backend->stop();
    QCOMPARE(figures().value(QLatin1String("modes")).toString(),
             QStringLiteral("YUY2 640x480 60/s"));
    const double told = figures().value(QLatin1String("rate")).toDouble();
    QVERIFY2(told > 24 && told < 33, qPrintable(QString::number(told)));
}

void tst_DirectShowCameras::slowsDownWhatNeverWaits()
{
    CoInitializeEx(nullptr, COINIT_MULTITHREADED);
    {
        ComPointer<FrameSink> sink;
        *sink.put() = new FrameSink(std::make_shared<SampleBox>());
        ComPointer<IMemInputPin> input;
        QCOMPARE(sink->pin().QueryInterface(__uuidof(IMemInputPin), input.putVoid()), S_OK);
        ComPointer<IMemAllocator> allocator;
        QCOMPARE(input->GetAllocator(allocator.put()), S_OK);
        ALLOCATOR_PROPERTIES properties{1, 1000, 1, 0};
        allocator->SetProperties(&properties, &properties);
        allocator->Commit();
        ComPointer<IMediaSample> sample;
        QCOMPARE(allocator->GetBuffer(sample.put(), nullptr, nullptr, 0), S_OK);
        QElapsedTimer duration;
        duration.start();
        for (int i = 0; i < 21; ++i) {
            QCOMPARE(input->Receive(sample.get()), S_OK);
        }
        QVERIFY2(duration.elapsed() >= 80, qPrintable(QString::number(duration.elapsed())));
    }
    CoUninitialize();
}

void tst_DirectShowCameras::opensWhatCannotBeConfigured()
{
    m_cameras->setSystem(StagedSystem::DirectShow);
    m_cameras->plug(LinkA, QStringLiteral("Camera"),
                    {{"YUY2", QSize(1280, 720)}, {"NV12", QSize(640, 480)}});
    m_cameras->refuseConfiguration(LinkA);
    makeBackend();
    start();
    m_backend->stop();
    QCOMPARE(figures().value(QLatin1String("width")).toInt(), 640);
}

void tst_DirectShowCameras::hearsWhatTheFilterTells_data()
{
    QTest::addColumn<quint32>("error");
    QTest::addColumn<QString>("cause");
    QTest::newRow("unplugged") << 0x80070651U << QStringLiteral("failed");
    QTest::newRow("taken by another program") << 0x800705aaU << QStringLiteral("busy");
    QTest::newRow("privacy settings") << 0x80070005U << QStringLiteral("denied");
}

void tst_DirectShowCameras::hearsWhatTheFilterTells()
{
    QFETCH(quint32, error);
    m_cameras->setSystem(StagedSystem::DirectShow);
    m_cameras->plug(LinkA, QStringLiteral("Camera"));
    makeBackend();
    start();
    m_cameras->breakStream(LinkA, static_cast<HRESULT>(error));
    QFETCH(QString, cause);
    QTRY_COMPARE_WITH_TIMEOUT(causeName(), cause, LongMs);
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), QStringLiteral("working"), LongMs); // by itself
}

QTEST_GUILESS_MAIN(tst_DirectShowCameras)
#include "tst_DirectShowCameras.moc"
