// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/mediafoundation/MediaFoundationSources.h"

#include <algorithm>

namespace Platform {

namespace {

// A list that Windows allocates, with a reference to each of its objects.
class ActivateList
{
public:
    ActivateList() = default;
    ~ActivateList()
    {
        for (UINT32 i = 0; i < m_count; ++i) {
            if (m_items[i]) {
                m_items[i]->Release();
            }
        }
        CoTaskMemFree(m_items);
    }
    ActivateList(const ActivateList&) = delete;
    ActivateList& operator=(const ActivateList&) = delete;

    HRESULT read(const MediaFoundation& functions)
    {
        ComPointer<IMFAttributes> wanted;
        HRESULT error = functions.createAttributes(wanted.put(), 1);
        if (SUCCEEDED(error)) {
            error = wanted->SetGUID(MF_DEVSOURCE_ATTRIBUTE_SOURCE_TYPE,
                                    MF_DEVSOURCE_ATTRIBUTE_SOURCE_TYPE_VIDCAP_GUID);
        }
        return FAILED(error) ? error
                             : functions.enumDeviceSources(wanted.get(), &m_items, &m_count);
    }
    UINT32 count() const { return m_items ? m_count : 0; }
    ComPointer<IMFActivate> take(UINT32 index)
    {
        ComPointer<IMFActivate> result;
        std::swap(*result.put(), m_items[index]);
        return result;
    }

private:
    IMFActivate** m_items = nullptr;
    UINT32 m_count = 0;
};

QString textOf(IMFActivate& activate, const GUID& key)
{
    WCHAR* text = nullptr;
    UINT32 length = 0;
    if (FAILED(activate.GetAllocatedString(key, &text, &length)) || !text) {
        return {};
    }
    const QString result = QString::fromWCharArray(text, static_cast<int>(length));
    CoTaskMemFree(text);
    return result;
}

} // namespace

HRESULT MediaFoundationSources::list(const MediaFoundation& functions,
                                     std::vector<MediaFoundationSource>& sources)
{
    ActivateList all;
    const HRESULT error = all.read(functions);
    if (FAILED(error)) {
        return error;
    }
    for (UINT32 i = 0; i < all.count(); ++i) {
        MediaFoundationSource source;
        source.activate = all.take(i);
        if (!source.activate) {
            continue;
        }
        IMFActivate& activate = *source.activate.get();
        source.link = textOf(activate, MF_DEVSOURCE_ATTRIBUTE_SOURCE_TYPE_VIDCAP_SYMBOLIC_LINK);
        source.link = source.link.toLower(); // Windows doesn't care for case
        source.name = textOf(activate, MF_DEVSOURCE_ATTRIBUTE_FRIENDLY_NAME);
        if (!source.link.isEmpty()) {
            sources.push_back(std::move(source));
        }
    }
    return S_OK;
}

ComPointer<IMFActivate> MediaFoundationSources::find(const MediaFoundation& functions,
                                                     const QString& link, HRESULT& error)
{
    std::vector<MediaFoundationSource> sources;
    error = list(functions, sources);
    const auto found =
        std::find_if(sources.begin(), sources.end(),
                     [&link](const MediaFoundationSource& one) { return one.link == link; });
    if (found != sources.end()) {
        return std::move(found->activate);
    }
    error = FAILED(error) ? error : HRESULT_FROM_WIN32(ERROR_FILE_NOT_FOUND);
    return {};
}

} // namespace Platform
