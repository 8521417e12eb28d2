// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/directshow/StagedEntry.h"

#include "platform/devices/windows/ComCallback.h"
#include "tests/devices/directshow/StagedFilter.h"

#include <QUuid>
#include <utility>

// Must follow windows.h.
#include <uuids.h>

namespace TestSupport {

namespace {

class Factory final : public Platform::ComCallback<IClassFactory>
{
public:
    Factory(std::shared_ptr<CameraStage> stage, std::shared_ptr<StagedCamera> camera)
        : m_stage(std::move(stage)), m_camera(std::move(camera))
    {
    }

    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown*, REFIID id, void** object) override
    {
        *object = nullptr;
        {
            const std::scoped_lock lock(m_stage->mutex);
            ++m_stage->activations[m_camera->link];
        }
        m_stage->pass(m_camera->hangsInActivation);
        {
            const std::scoped_lock lock(m_stage->mutex);
            if (FAILED(m_camera->activationError)) {
                return m_camera->activationError;
            }
        }
        auto* filter = new StagedFilter(m_stage, m_camera);
        const HRESULT error = filter->QueryInterface(id, object);
        filter->Release();
        return error;
    }
    HRESULT STDMETHODCALLTYPE LockServer(WINBOOL) override { return S_OK; }

private:
    std::shared_ptr<CameraStage> m_stage;
    std::shared_ptr<StagedCamera> m_camera;
};

LPCWSTR wide(const QString& text)
{
    return reinterpret_cast<LPCWSTR>(text.utf16());
}

// The list is sorted by the keys' names.
QString keyOf(const CLSID& filter, std::size_t number)
{
    return QStringLiteral("CLSID\\%1\\Instance\\%2 %3")
        .arg(QUuid(CLSID_VideoInputDeviceCategory).toString())
        .arg(number, 6, 10, QLatin1Char('0'))
        .arg(QUuid(filter).toString());
}

// A null text removes it.
void setText(const QString& key, const wchar_t* name, const QString& text)
{
    if (text.isNull()) {
        RegDeleteKeyValueW(HKEY_CLASSES_ROOT, wide(key), name);
        return;
    }
    RegSetKeyValueW(HKEY_CLASSES_ROOT, wide(key), name, REG_SZ, text.utf16(),
                    static_cast<DWORD>((text.size() + 1) * int(sizeof(wchar_t))));
}

} // namespace

StagedEntry::StagedEntry(std::shared_ptr<CameraStage> stage, std::shared_ptr<StagedCamera> camera)
    : m_stage(std::move(stage)),
      m_camera(std::move(camera)),
      m_class(QUuid::createUuid()),
      m_key(keyOf(m_class, m_stage->all.size())),
      m_end(CreateEventW(nullptr, TRUE, FALSE, nullptr))
{
    serve();
    write();
}

StagedEntry::~StagedEntry()
{
    RegDeleteTreeW(HKEY_CLASSES_ROOT, wide(m_key));
    removeClass();
    CloseHandle(m_end);
}

void StagedEntry::write()
{
    setText(m_key, L"CLSID", QUuid(m_class).toString());
    setText(m_key, L"FriendlyName", m_camera->name);
    setText(m_key, L"DevicePath", m_camera->hasLink ? m_camera->link : QString());
}

void StagedEntry::removeClass()
{
    SetEvent(m_end);
    if (m_registrar.joinable()) {
        m_registrar.join();
    }
}

// COM finds the class from all threads of the multithreaded apartment. A thread keeps that alive.
void StagedEntry::serve()
{
    const HANDLE isReady = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    m_registrar = std::thread([this, isReady] {
        CoInitializeEx(nullptr, COINIT_MULTITHREADED);
        DWORD cookie = 0;
        auto* factory = new Factory(m_stage, m_camera);
        CoRegisterClassObject(m_class, factory, CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE, &cookie);
        SetEvent(isReady);
        WaitForSingleObject(m_end, INFINITE);
        CoRevokeClassObject(cookie);
        factory->Release();
        CoUninitialize();
    });
    WaitForSingleObject(isReady, INFINITE);
    CloseHandle(isReady);
}

} // namespace TestSupport
