#include "M2VXCameraBaseCtrl.h"

#include "Log.h"

#include <new>

namespace SDK4::Control {

namespace {

IControlPort* Required(IControlPort* port) {
    if (port == nullptr) {
        SDK4_THROW_QUALIFIED(SDK4_ERR_INVALID_PARAMETER);
    }
    return port;
}

template <typename Object> std::unique_ptr<Object> Create(IControlPort* port) {
    std::unique_ptr<Object> object(new (std::nothrow) Object(port));
    if (object == nullptr) {
        SDK4_THROW_QUALIFIED(SDK4_ERR_ERROR);
    }
    return object;
}

/// Only the low nibble of the index counts.
bool ReadsThrough(std::int32_t index) { return (index & 0xF) <= 2; }

} // namespace

// The media type gets no timing: this family does not implement ITiming.
CM2VXBaseControl::CM2VXBaseControl(IControlPort* port, std::int32_t index, const char* id)
    : classId(id),
      bootstrap(Create<CBootstrap>(Required(port))),
      acquisition(Create<CGigEAcqControl>(port)),
      identity(Create<CGigEGufi>(port)),
      common(Create<CRT6Camera>(port)),
      family(Create<CM2VXCamera>(port)),
      table(properties),
      access(*common, *family, ReadsThrough(index)),
      mediaType(new CQDV12VideoFrame(nullptr, this)) {
    if (!ReadsThrough(index)) {
        GetInitialValues();
    }
}

CM2VXBaseControl::~CM2VXBaseControl() {
    SDK4_LOG_CALL();
    bootstrap.reset();
    acquisition.reset();
    identity.reset();
    common.reset();
    family.reset();
    mediaType.reset();
}

/// Frees the storage without a destructor: the frame owns nothing, and its public interfaces have no virtual
/// destructor.
void CM2VXBaseControl::StorageRelease::operator()(CQDV12VideoFrame* frame) const { ::operator delete(frame); }

void CM2VXBaseControl::Release() { delete this; }

const char* CM2VXBaseControl::GetClassID() {
    SDK4_LOG_CALL();
    return classId;
}

void CM2VXBaseControl::Start() {
    SDK4_LOG_CALL();
    acquisition->StartAcquisition();
    running = true;
}

void CM2VXBaseControl::Stop() {
    SDK4_LOG_CALL();
    acquisition->StopAcquisition();
    running = false;
}

IMediaType* CM2VXBaseControl::GetMediaType() {
    SDK4_LOG_CALL();
    return mediaType.get();
}

int CM2VXBaseControl::GetNumberOfProperties() {
    SDK4_LOG_CALL();
    return static_cast<int>(properties.size());
}

const char* CM2VXBaseControl::GetPropertyName(int i) {
    SDK4_LOG_CALL();
    return GetPropertyNameByIndex(i);
}

void CM2VXBaseControl::RefuseWhileRunning() const {
    if (running) {
        SDK4_THROW(SDK4_ERR_ACQUISITIONRUNNING);
    }
}

} // namespace SDK4::Control
