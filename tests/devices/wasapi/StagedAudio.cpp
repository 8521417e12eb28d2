// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/wasapi/StagedAudio.h"

#include "tests/devices/ComObject.h"
#include "tests/devices/wasapi/AudioStage.h"
#include "tests/devices/wasapi/StagedVolume.h"

#include <cstring>
#include <utility>
#include <vector>

// Must follow windows.h.
#include <propsys.h>

using namespace Platform;

namespace TestSupport {

namespace {

LPWSTR copyOf(const QString& text)
{
    const auto size = (static_cast<std::size_t>(text.size()) + 1) * sizeof(wchar_t);
    auto* copy = static_cast<LPWSTR>(CoTaskMemAlloc(size));
    std::memcpy(copy, text.utf16(), size);
    return copy;
}

// Has the name alone.
class Properties final : public ComObject<IPropertyStore>
{
public:
    Properties(std::shared_ptr<AudioStage> stage, QString name)
        : ComObject(stage), m_stage(std::move(stage)), m_name(std::move(name))
    {
    }

    HRESULT STDMETHODCALLTYPE GetValue(REFPROPERTYKEY, PROPVARIANT* value) override
    {
        m_stage->pass();
        value->vt = VT_LPWSTR;
        value->pwszVal = copyOf(m_name);
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetCount(DWORD*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetAt(DWORD, PROPERTYKEY*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetValue(REFPROPERTYKEY, REFPROPVARIANT) override
    {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE Commit() override { return E_NOTIMPL; }

private:
    std::shared_ptr<AudioStage> m_stage;
    QString m_name;
};

class Endpoint final : public ComObject<IMMDevice>
{
public:
    Endpoint(std::shared_ptr<AudioStage> stage, QString id)
        : ComObject(stage), m_stage(std::move(stage)), m_id(std::move(id))
    {
    }

    HRESULT STDMETHODCALLTYPE Activate(REFIID id, DWORD, PROPVARIANT*, void** object) override
    {
        m_stage->pass();
        *object = nullptr;
        std::unique_lock lock(m_stage->mutex);
        const AudioStage::Staged* staged = m_stage->find(m_id);
        if (!staged->isPresent) {
            return AUDCLNT_E_DEVICE_INVALIDATED;
        }
        if (id != __uuidof(IAudioEndpointVolume)) {
            const SoundKind kind = staged->kind;
            const QString name = staged->name;
            const HRESULT error = m_stage->streamError;
            const bool isOfSystem = m_stage->hasSystemStreams;
            lock.unlock(); // the system may hang
            return isOfSystem ? AudioStage::activate(kind, name, id, object) : error;
        }
        *object = staged->hasVolume ? new StagedVolume(m_stage, staged->kind, m_id) : nullptr;
        return staged->hasVolume ? S_OK : E_NOINTERFACE;
    }
    HRESULT STDMETHODCALLTYPE OpenPropertyStore(DWORD, IPropertyStore** properties) override
    {
        m_stage->pass();
        const std::scoped_lock lock(m_stage->mutex);
        *properties = new Properties(m_stage, m_stage->find(m_id)->name);
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetId(LPWSTR* id) override
    {
        *id = copyOf(m_id);
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetState(DWORD*) override { return E_NOTIMPL; }

private:
    std::shared_ptr<AudioStage> m_stage;
    QString m_id;
};

class Endpoints final : public ComObject<IMMDeviceCollection>
{
public:
    Endpoints(std::shared_ptr<AudioStage> stage, std::vector<QString> ids)
        : ComObject(stage), m_stage(std::move(stage)), m_ids(std::move(ids))
    {
    }

    HRESULT STDMETHODCALLTYPE GetCount(UINT* count) override
    {
        *count = static_cast<UINT>(m_ids.size());
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Item(UINT number, IMMDevice** endpoint) override
    {
        *endpoint = new Endpoint(m_stage, m_ids.at(number));
        return S_OK;
    }

private:
    std::shared_ptr<AudioStage> m_stage;
    std::vector<QString> m_ids;
};

class Enumerator final : public ComObject<IMMDeviceEnumerator>
{
public:
    explicit Enumerator(std::shared_ptr<AudioStage> stage)
        : ComObject(stage), m_stage(std::move(stage))
    {
    }

    HRESULT STDMETHODCALLTYPE EnumAudioEndpoints(EDataFlow flow, DWORD states,
                                                 IMMDeviceCollection** endpoints) override
    {
        m_stage->pass();
        const std::scoped_lock lock(m_stage->mutex);
        ++m_stage->lists;
        *endpoints = nullptr;
        if (SUCCEEDED(m_error)) {
            m_error = m_stage->enumeratorError;
        }
        if (FAILED(m_error)) {
            return m_error;
        }
        std::vector<QString> ids;
        for (const AudioStage::Staged& staged : m_stage->all) {
            const DWORD state = staged.isPresent ? DEVICE_STATE_ACTIVE : DEVICE_STATE_UNPLUGGED;
            if (staged.kind == kindOf(flow) && (state & states) != 0) {
                ids.push_back(staged.id);
            }
        }
        *endpoints = new Endpoints(m_stage, std::move(ids));
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetDefaultAudioEndpoint(EDataFlow flow, ERole role,
                                                      IMMDevice** endpoint) override
    {
        m_stage->pass();
        const std::scoped_lock lock(m_stage->mutex);
        return give(m_stage->defaults[{kindOf(flow), role}], endpoint);
    }
    HRESULT STDMETHODCALLTYPE GetDevice(LPCWSTR id, IMMDevice** endpoint) override
    {
        m_stage->pass();
        const std::scoped_lock lock(m_stage->mutex);
        return give(QString::fromWCharArray(id), endpoint);
    }
    HRESULT STDMETHODCALLTYPE
    RegisterEndpointNotificationCallback(IMMNotificationClient* one) override
    {
        m_stage->pass();
        const std::scoped_lock lock(m_stage->mutex);
        one->AddRef();
        m_stage->listeners.push_back(one);
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE
    UnregisterEndpointNotificationCallback(IMMNotificationClient* one) override
    {
        m_stage->pass();
        const std::scoped_lock lock(m_stage->mutex);
        return removeFrom(m_stage->listeners, one);
    }

private:
    static SoundKind kindOf(EDataFlow flow)
    {
        return flow == eRender ? SoundKind::Speaker : SoundKind::Microphone;
    }
    HRESULT give(const QString& id, IMMDevice** endpoint)
    {
        const bool isKnown = m_stage->find(id) != nullptr;
        *endpoint = isKnown ? new Endpoint(m_stage, id) : nullptr;
        return isKnown ? S_OK : HRESULT_FROM_WIN32(ERROR_NOT_FOUND);
    }

    std::shared_ptr<AudioStage> m_stage;
    HRESULT m_error = S_OK; // guarded by the stage
};

class Factory final : public ComObject<IClassFactory>
{
public:
    explicit Factory(std::shared_ptr<AudioStage> stage)
        : ComObject(stage), m_stage(std::move(stage))
    {
    }

    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown*, REFIID id, void** object) override
    {
        m_stage->pass();
        auto* enumerator = new Enumerator(m_stage);
        const HRESULT error = enumerator->QueryInterface(id, object);
        enumerator->Release();
        return error;
    }
    HRESULT STDMETHODCALLTYPE LockServer(WINBOOL) override { return S_OK; }

private:
    std::shared_ptr<AudioStage> m_stage;
};

} // namespace

// COM looks for the class in the apartment of the thread that asks, and finds this one from all
// threads of the multithreaded one. A thread keeps that apartment alive.
StagedAudio::StagedAudio(VolumeSet volumeSet)
    : m_stage(std::make_shared<AudioStage>()), m_end(CreateEventW(nullptr, TRUE, FALSE, nullptr))
{
    m_stage->hasSystemStreams = static_cast<bool>(volumeSet);
    m_stage->volumeSet = std::move(volumeSet);
    const HANDLE isReady = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    m_registrar = std::thread([stage = m_stage, isReady, end = m_end] {
        CoInitializeEx(nullptr, COINIT_MULTITHREADED);
        DWORD cookie = 0;
        auto* factory = new Factory(stage);
        CoRegisterClassObject(__uuidof(MMDeviceEnumerator), factory, CLSCTX_INPROC_SERVER,
                              REGCLS_MULTIPLEUSE, &cookie);
        SetEvent(isReady);
        WaitForSingleObject(end, INFINITE);
        CoRevokeClassObject(cookie);
        factory->Release();
        CoUninitialize();
    });
    WaitForSingleObject(isReady, INFINITE);
    CloseHandle(isReady);
}

StagedAudio::~StagedAudio()
{
    setHanging(false);
    SetEvent(m_end);
    m_registrar.join();
    CloseHandle(m_end);
}

void StagedAudio::plug(SoundKind kind, const QString& id, const QString& name)
{
    bool isNew = false;
    {
        const std::scoped_lock lock(m_stage->mutex);
        AudioStage::Staged* staged = m_stage->find(id);
        isNew = !staged;
        if (isNew) {
            m_stage->all.push_back({kind, id, name});
        } else {
            staged->isPresent = true;
        }
    }
    const auto wide = id.toStdWString();
    m_stage->tell([&wide, isNew](IMMNotificationClient& one) {
        if (isNew) {
            one.OnDeviceAdded(wide.c_str());
        } else {
            one.OnDeviceStateChanged(wide.c_str(), DEVICE_STATE_ACTIVE);
        }
    });
}

void StagedAudio::unplug(const QString& id)
{
    {
        const std::scoped_lock lock(m_stage->mutex);
        m_stage->find(id)->isPresent = false;
    }
    const auto wide = id.toStdWString();
    m_stage->tell([&wide](IMMNotificationClient& one) {
        one.OnDeviceStateChanged(wide.c_str(), DEVICE_STATE_UNPLUGGED);
    });
}

void StagedAudio::setDefault(SoundKind kind, ERole role, const QString& id)
{
    {
        const std::scoped_lock lock(m_stage->mutex);
        m_stage->defaults[{kind, role}] = id;
    }
    const auto wide = id.toStdWString();
    m_stage->tell([kind, role, &wide](IMMNotificationClient& one) {
        const EDataFlow flow = kind == SoundKind::Speaker ? eRender : eCapture;
        one.OnDefaultDeviceChanged(flow, role, wide.empty() ? nullptr : wide.c_str());
    });
}

void StagedAudio::setVolume(const QString& id, const VolumeState& volume)
{
    m_stage->setVolume(id, volume);
}

void StagedAudio::takeVolumeAway(const QString& id)
{
    const std::scoped_lock lock(m_stage->mutex);
    m_stage->find(id)->hasVolume = false;
}

VolumeState StagedAudio::volumeOf(const QString& id) const
{
    const std::scoped_lock lock(m_stage->mutex);
    return m_stage->find(id)->volume;
}

QStringList StagedAudio::present() const
{
    const std::scoped_lock lock(m_stage->mutex);
    QStringList result;
    for (const AudioStage::Staged& staged : m_stage->all) {
        if (staged.isPresent) {
            result << staged.id;
        }
    }
    return result;
}

QString StagedAudio::defaultId(SoundKind kind) const
{
    const std::scoped_lock lock(m_stage->mutex);
    return m_stage->defaults[{kind, eConsole}];
}

void StagedAudio::refuseEnumerator(HRESULT error)
{
    const std::scoped_lock lock(m_stage->mutex);
    m_stage->enumeratorError = error;
}

void StagedAudio::refuseStreams(HRESULT error)
{
    const std::scoped_lock lock(m_stage->mutex);
    m_stage->streamError = error;
}

void StagedAudio::setHanging(bool hangs)
{
    const std::scoped_lock lock(m_stage->mutex);
    m_stage->hangs = hangs;
    m_stage->goesOn.notify_all();
}

int StagedAudio::hangingCalls() const
{
    const std::scoped_lock lock(m_stage->mutex);
    return m_stage->hanging;
}

int StagedAudio::lists() const
{
    return m_stage->lists;
}

int StagedAudio::objects() const
{
    return m_stage->objects - 1; // without the factory
}

int StagedAudio::listeners() const
{
    const std::scoped_lock lock(m_stage->mutex);
    std::size_t count = m_stage->listeners.size();
    for (const AudioStage::Staged& staged : m_stage->all) {
        count += staged.listeners.size();
    }
    return static_cast<int>(count);
}

} // namespace TestSupport
