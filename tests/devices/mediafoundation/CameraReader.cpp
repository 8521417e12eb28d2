// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/mediafoundation/CameraReader.h"

#include "tests/devices/ComObject.h"

#include <QtEndian>
#include <condition_variable>
#include <mutex>
#include <vector>

using Platform::ComPointer;

namespace TestSupport {

namespace {

constexpr auto Video = static_cast<DWORD>(MF_SOURCE_READER_FIRST_VIDEO_STREAM);

HRESULT listCameras(std::vector<ComPointer<IMFActivate>>& cameras)
{
    ComPointer<IMFAttributes> wanted;
    MFCreateAttributes(wanted.put(), 1);
    wanted->SetGUID(MF_DEVSOURCE_ATTRIBUTE_SOURCE_TYPE,
                    MF_DEVSOURCE_ATTRIBUTE_SOURCE_TYPE_VIDCAP_GUID);
    IMFActivate** entries = nullptr;
    UINT32 count = 0;
    const HRESULT error = MFEnumDeviceSources(wanted.get(), &entries, &count);
    cameras.resize(count);
    for (UINT32 i = 0; i < count; ++i) {
        *cameras[i].put() = entries[i];
    }
    CoTaskMemFree(entries);
    return error;
}

QString nameOf(IMFActivate& camera)
{
    LPWSTR text = nullptr;
    UINT32 length = 0;
    if (FAILED(camera.GetAllocatedString(MF_DEVSOURCE_ATTRIBUTE_FRIENDLY_NAME, &text, &length))) {
        return QStringLiteral("none");
    }
    const QString name = QString::fromWCharArray(text, static_cast<int>(length));
    CoTaskMemFree(text);
    return name;
}

QString pairOf(IMFMediaType& type, const GUID& key, char separator)
{
    UINT64 pair = 0;
    type.GetUINT64(key, &pair);
    return QStringLiteral(" %1%2%3")
        .arg(pair >> 32)
        .arg(QLatin1Char(separator))
        .arg(static_cast<quint32>(pair));
}

QString numberOf(IMFMediaType& type, const GUID& key, const char* label)
{
    UINT32 number = 0;
    return FAILED(type.GetUINT32(key, &number)) ? QString()
                                                : QStringLiteral(" %1 %2")
                                                      .arg(QLatin1String(label))
                                                      .arg(static_cast<qint32>(number));
}

// Four letters, or a number.
QString formatOf(IMFMediaType& type)
{
    GUID subtype{};
    type.GetGUID(MF_MT_SUBTYPE, &subtype);
    if (subtype.Data1 < 256) {
        return QString::number(subtype.Data1);
    }
    const quint32 letters = qToLittleEndian<quint32>(subtype.Data1);
    return QString::fromLatin1(reinterpret_cast<const char*>(&letters), sizeof letters);
}

QByteArray bytesOf(IMFSample& sample)
{
    ComPointer<IMFMediaBuffer> buffer;
    sample.ConvertToContiguousBuffer(buffer.put());
    BYTE* memory = nullptr;
    DWORD size = 0;
    buffer->Lock(&memory, nullptr, &size);
    QByteArray bytes(reinterpret_cast<const char*>(memory), static_cast<int>(size));
    buffer->Unlock();
    return bytes;
}

} // namespace

// What the system's threads put in.
struct CameraReader::Inbox
{
    std::atomic<int> objects{0};
    std::mutex mutex;
    std::condition_variable changed;
    bool isAsked = false; // guarded by the mutex, as are the next ones
    DWORD flags = 0;
    QByteArray frame;
};

class CameraReader::Callback final : public ComObject<IMFSourceReaderCallback>
{
public:
    explicit Callback(std::shared_ptr<Inbox> inbox) : ComObject(inbox), m_inbox(std::move(inbox)) {}

    HRESULT STDMETHODCALLTYPE OnReadSample(HRESULT, DWORD, DWORD flags, LONGLONG,
                                           IMFSample* sample) override
    {
        const std::scoped_lock lock(m_inbox->mutex);
        m_inbox->isAsked = false;
        m_inbox->flags = flags;
        m_inbox->frame = sample ? bytesOf(*sample) : QByteArray();
        m_inbox->changed.notify_all();
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE OnFlush(DWORD) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnEvent(DWORD, IMFMediaEvent*) override { return S_OK; }

private:
    std::shared_ptr<Inbox> m_inbox;
};

CameraReader::CameraReader() : m_inbox(std::make_shared<Inbox>())
{
}

CameraReader::~CameraReader()
{
    if (m_source) {
        m_source->Shutdown();
    }
}

QStringList CameraReader::names()
{
    std::vector<ComPointer<IMFActivate>> cameras;
    listCameras(cameras);
    QStringList result;
    for (const ComPointer<IMFActivate>& camera : cameras) {
        result << nameOf(*camera.get());
    }
    return result;
}

HRESULT CameraReader::open()
{
    std::vector<ComPointer<IMFActivate>> cameras;
    HRESULT error = listCameras(cameras);
    if (SUCCEEDED(error)) {
        error = cameras.at(0)->ActivateObject(__uuidof(IMFMediaSource), m_source.putVoid());
    }
    if (SUCCEEDED(error)) {
        ComPointer<Callback> callback;
        *callback.put() = new Callback(m_inbox);
        ComPointer<IMFAttributes> attributes;
        MFCreateAttributes(attributes.put(), 1);
        attributes->SetUnknown(MF_SOURCE_READER_ASYNC_CALLBACK, callback.get());
        error =
            MFCreateSourceReaderFromMediaSource(m_source.get(), attributes.get(), m_reader.put());
    }
    return error;
}

QStringList CameraReader::modes() const
{
    QStringList result;
    ComPointer<IMFMediaType> type;
    for (DWORD i = 0; SUCCEEDED(m_reader->GetNativeMediaType(Video, i, type.put())); ++i) {
        result << formatOf(*type.get()) + pairOf(*type.get(), MF_MT_FRAME_SIZE, 'x') +
                      pairOf(*type.get(), MF_MT_FRAME_RATE, '/') +
                      numberOf(*type.get(), MF_MT_DEFAULT_STRIDE, "stride") +
                      numberOf(*type.get(), MF_MT_VIDEO_NOMINAL_RANGE, "range") +
                      numberOf(*type.get(), MF_MT_YUV_MATRIX, "matrix");
    }
    return result;
}

QByteArray CameraReader::read(std::chrono::milliseconds timeout)
{
    const auto end = std::chrono::steady_clock::now() + timeout;
    std::unique_lock lock(m_inbox->mutex);
    do {
        if (!m_inbox->isAsked) {
            m_inbox->isAsked = true;
            lock.unlock();
            m_reader->ReadSample(Video, 0, nullptr, nullptr, nullptr, nullptr);
            lock.lock();
        }
        if (!m_inbox->changed.wait_until(lock, end, [this] { return !m_inbox->isAsked; })) {
            return {};
        }
    } while (m_inbox->frame.isEmpty() && m_inbox->flags == 0);
    return m_inbox->frame;
}

bool CameraReader::isAtEnd() const
{
    const std::scoped_lock lock(m_inbox->mutex);
    return (m_inbox->flags & MF_SOURCE_READERF_ENDOFSTREAM) != 0;
}

} // namespace TestSupport
