// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/directshow/DirectShowCamera.h"

#include "platform/devices/directshow/DirectShowFormat.h"
#include "platform/devices/directshow/DirectShowSources.h"

#include <algorithm>
#include <utility>

// Must follow windows.h.
#include <evcode.h>
#include <uuids.h>
#include <vfwmsgs.h>

namespace Platform {

namespace {

constexpr int MaxTypes = CameraModes::MaxOffers; // a filter may have no end
constexpr int MaxPins = 100;
constexpr int MaxEvents = 100; // of one look

bool isCapture(IPin& pin)
{
    ComPointer<IKsPropertySet> properties;
    GUID category{};
    DWORD bytes = 0;
    return SUCCEEDED(pin.QueryInterface(__uuidof(IKsPropertySet), properties.putVoid())) &&
           SUCCEEDED(properties->Get(AMPROPSETID_Pin, AMPROPERTY_PIN_CATEGORY, nullptr, 0,
                                     &category, sizeof category, &bytes)) &&
           IsEqualGUID(category, PIN_CATEGORY_CAPTURE);
}

bool isOutput(IPin& pin)
{
    PIN_DIRECTION direction = PINDIR_INPUT;
    return SUCCEEDED(pin.QueryDirection(&direction)) && direction == PINDIR_OUTPUT;
}

bool includes(const CameraModes::Offer& offer, const CameraMode& mode)
{
    return offer.pixelFormat == mode.pixelFormat && offer.smallest == mode.size &&
           offer.lowest.value() <= mode.rate.value() && mode.rate.value() <= offer.highest.value();
}

// What ends a stream, among what a filter tells its graph.
HRESULT errorOf(long event, LONG_PTR first, LONG_PTR second)
{
    switch (event) {
    case EC_DEVICE_LOST: // or it is there again
        return second == 0 ? HRESULT_FROM_WIN32(ERROR_DEVICE_REMOVED) : S_OK;
    case EC_ERRORABORT:
    case EC_STREAM_ERROR_STOPPED:
        return FAILED(static_cast<HRESULT>(first)) ? static_cast<HRESULT>(first) : E_FAIL;
    default:
        return S_OK;
    }
}

} // namespace

DirectShowCamera::DirectShowCamera(const QString& entry, std::shared_ptr<SampleBox> box)
    : m_entry(entry), m_box(std::move(box))
{
}

// The filters hold each other as long as their pins are connected.
DirectShowCamera::~DirectShowCamera()
{
    if (m_control) {
        m_control->Stop();
    }
    if (m_graph && m_sink) {
        m_graph->RemoveFilter(m_sink.get());
    }
    if (m_graph && m_source) {
        m_graph->RemoveFilter(m_source.get());
    }
}

HRESULT DirectShowCamera::open()
{
    HRESULT error = S_OK;
    m_source = DirectShowSources::open(m_entry, error);
    if (SUCCEEDED(error) && !m_box->isStopped()) {
        error = createGraph();
    }
    if (SUCCEEDED(error) && m_graph) {
        error = findPin();
    }
    if (SUCCEEDED(error) && m_pin) {
        listOffers();
    }
    return error;
}

HRESULT DirectShowCamera::start(const CameraMode& mode)
{
    const Offer* offer = offerFor(mode);
    if (!offer) {
        return VFW_E_INVALIDMEDIATYPE;
    }
    *m_sink.put() = new FrameSink(m_box);
    HRESULT error = m_graph->AddFilter(m_sink.get(), L"preview");
    if (SUCCEEDED(error)) {
        error = connect(*offer, mode.rate);
    }
    return SUCCEEDED(error) ? m_control->Run() : error;
}

HRESULT DirectShowCamera::check()
{
    HRESULT result = S_OK;
    long event = 0;
    LONG_PTR first = 0;
    LONG_PTR second = 0;
    for (int i = 0; i < MaxEvents && SUCCEEDED(result); ++i) {
        if (FAILED(m_events->GetEvent(&event, &first, &second, 0))) {
            break; // there are no more
        }
        result = errorOf(event, first, second);
        m_events->FreeEventParams(event, first, second);
    }
    return result;
}

HRESULT DirectShowCamera::createGraph()
{
    HRESULT error = CoCreateInstance(CLSID_FilterGraph, nullptr, CLSCTX_INPROC_SERVER,
                                     __uuidof(IGraphBuilder), m_graph.putVoid());
    if (SUCCEEDED(error)) {
        error = m_graph->AddFilter(m_source.get(), L"camera");
    }
    if (SUCCEEDED(error)) {
        error = m_graph->QueryInterface(__uuidof(IMediaControl), m_control.putVoid());
    }
    if (SUCCEEDED(error)) {
        error = m_graph->QueryInterface(IID_IMediaEvent, m_events.putVoid());
    }
    return error;
}

// The one for capture; without one, the first output.
HRESULT DirectShowCamera::findPin()
{
    ComPointer<IEnumPins> pins;
    const HRESULT error = m_source->EnumPins(pins.put());
    for (int i = 0; SUCCEEDED(error) && i < MaxPins; ++i) {
        ComPointer<IPin> pin;
        if (pins->Next(1, pin.put(), nullptr) != S_OK) {
            break;
        }
        const bool isBest = isOutput(*pin.get()) && isCapture(*pin.get());
        if (isBest || (!m_pin && isOutput(*pin.get()))) {
            m_pin = std::move(pin);
        }
        if (isBest) {
            break;
        }
    }
    return SUCCEEDED(error) && !m_pin ? VFW_E_NO_TYPES : error;
}

void DirectShowCamera::listOffers()
{
    m_pin->QueryInterface(__uuidof(IAMStreamConfig), m_config.putVoid());
    if (!listCapabilities()) {
        listTypes();
    }
}

bool DirectShowCamera::listCapabilities()
{
    int count = 0;
    int bytes = 0;
    if (!m_config || FAILED(m_config->GetNumberOfCapabilities(&count, &bytes)) ||
        bytes != sizeof(VIDEO_STREAM_CONFIG_CAPS)) {
        return false;
    }
    for (int i = 0; i < std::min(count, MaxTypes); ++i) {
        AM_MEDIA_TYPE* allocated = nullptr;
        VIDEO_STREAM_CONFIG_CAPS range{};
        if (m_config->GetStreamCaps(i, &allocated, reinterpret_cast<BYTE*>(&range)) != S_OK) {
            continue;
        }
        MediaType type = MediaType::taken(allocated);
        CameraModes::Offer modes = DirectShowFormat::of(type.get()).offer();
        if (range.MinFrameInterval > 0 && range.MaxFrameInterval >= range.MinFrameInterval) {
            modes.lowest = DirectShowFormat::rateOf(range.MaxFrameInterval);
            modes.highest = DirectShowFormat::rateOf(range.MinFrameInterval);
        }
        add(std::move(type), modes);
    }
    return !m_offers.empty();
}

void DirectShowCamera::listTypes()
{
    ComPointer<IEnumMediaTypes> types;
    if (FAILED(m_pin->EnumMediaTypes(types.put())) || !types) {
        return;
    }
    for (int i = 0; i < MaxTypes; ++i) {
        AM_MEDIA_TYPE* allocated = nullptr;
        if (types->Next(1, &allocated, nullptr) != S_OK) {
            return;
        }
        MediaType type = MediaType::taken(allocated);
        const CameraModes::Offer modes = DirectShowFormat::of(type.get()).offer();
        add(std::move(type), modes);
    }
}

void DirectShowCamera::add(MediaType type, const CameraModes::Offer& modes)
{
    m_modes.add(modes); // knows what can be shown
    if (modes.pixelFormat != PixelFormat::None) {
        m_offers.push_back({modes, std::move(type)});
    }
}

const DirectShowCamera::Offer* DirectShowCamera::offerFor(const CameraMode& mode) const
{
    const auto found = std::find_if(m_offers.begin(), m_offers.end(), [&mode](const Offer& offer) {
        return includes(offer.modes, mode);
    });
    return found == m_offers.end() ? nullptr : &*found;
}

// At the rate that suits the preview; if the filter doesn't like that, at the one that it offered.
HRESULT DirectShowCamera::connect(const Offer& offer, const FrameRate& rate)
{
    MediaType type(offer.type.get());
    DirectShowFormat::setRate(type, rate);
    const HRESULT error = connect(type);
    return SUCCEEDED(error) ? error : connect(offer.type);
}

HRESULT DirectShowCamera::connect(const MediaType& type)
{
    MediaType wanted(type.get()); // the functions are declared without const
    const HRESULT error = m_config ? m_config->SetFormat(&wanted.get()) : S_OK;
    return FAILED(error) ? error
                         : m_graph->ConnectDirect(m_pin.get(), &m_sink->pin(), &wanted.get());
}

} // namespace Platform
