// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/sound/Mp3Decoder.h"
#include "platform/devices/sound/SoundBuffer.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>
#include <algorithm>
#include <cmath>
#include <vector>

using namespace Platform;

namespace {

const QString Sound = QStringLiteral(ENVCHECK_SOURCE_DIR "/share/sounds/Piano.mp3");

} // namespace

// What the file system gives to the decoder, in any system.
class tst_Mp3Decoder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_buffer = std::make_unique<SoundBuffer>(); }

    void soundInAForeignScript()
    {
        const QString path = m_folder.filePath(QStringLiteral("声音 (ä).mp3"));
        QVERIFY(QFile::copy(Sound, path));
        Mp3Decoder::decode(path, 1.0F, *m_buffer);
        QVERIFY(m_buffer->hasEnded());
        QVERIFY(m_buffer->lengthMs() > 1000);
        QVERIFY(loudest() > 0.1F);
    }

    // Read as text, the sound would end at a byte that means the end of a text.
    void wholeFileIsRead()
    {
        QFile file(Sound);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray once = file.readAll();
        QVERIFY(once.contains('\x1a'));
        Mp3Decoder::decode(Sound, 1.0F, *m_buffer);
        const int length = m_buffer->lengthMs();
        QFile twice(m_folder.filePath(QStringLiteral("twice.mp3")));
        QVERIFY(twice.open(QIODevice::WriteOnly));
        twice.write(once + once);
        twice.close();
        init();
        Mp3Decoder::decode(twice.fileName(), 1.0F, *m_buffer);
        QVERIFY(m_buffer->lengthMs() > length * 3 / 2);
    }

    void volumeIsAFactor()
    {
        Mp3Decoder::decode(Sound, 1.0F, *m_buffer);
        const float loud = loudest();
        init();
        Mp3Decoder::decode(Sound, 0.5F, *m_buffer);
        QVERIFY(std::abs(loudest() - loud / 2) < 0.01F);
    }

    void whatIsNoSound_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("nothing") << m_folder.filePath(QStringLiteral("absent.mp3"));
        QTest::newRow("folder") << m_folder.path();
        QTest::newRow("device") << QFile::decodeName(NullDevice);
        QTest::newRow("text") << made("text.mp3", "Hello, world.\n");
        QTest::newRow("too large") << made("large.mp3", {}, Mp3Decoder::MaxFileBytes + 1);
    }

    void whatIsNoSound()
    {
        QFETCH(QString, path);
        Mp3Decoder::decode(path, 1.0F, *m_buffer);
        QVERIFY(m_buffer->hasEnded());
        QCOMPARE(m_buffer->size(), std::size_t{0});
    }

private:
#ifdef Q_OS_WIN
    static constexpr char NullDevice[] = "nul";
#else
    static constexpr char NullDevice[] = "/dev/zero";
#endif

    QString made(const char* name, const QByteArray& content, qint64 bytes = 0) const
    {
        QFile source(Sound);
        QFile file(m_folder.filePath(QString::fromLatin1(name)));
        if (source.open(QIODevice::ReadOnly) && file.open(QIODevice::WriteOnly)) {
            file.write(bytes > 0 ? source.readAll() : content);
            if (bytes > 0) {
                file.resize(bytes);
            }
        }
        return file.fileName();
    }

    float loudest() const
    {
        std::vector<float> samples(m_buffer->size());
        m_buffer->read(0, samples.data(), samples.size());
        float result = 0.0F;
        for (const float sample : samples) {
            result = std::max(result, std::abs(sample));
        }
        return result;
    }

    QTemporaryDir m_folder;
    std::unique_ptr<SoundBuffer> m_buffer;
};

QTEST_GUILESS_MAIN(tst_Mp3Decoder)
#include "tst_Mp3Decoder.moc"
