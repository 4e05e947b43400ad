#include "Register.h"

namespace SDK4 {

CRegisterBase::CRegisterBase(std::string registerName, CRegisterList* owner, IControlPort* controlPort,
                             std::uint64_t cameraAddress, EnumCacheMode mode)
    : name(std::move(registerName)),
      port(controlPort),
      address(cameraAddress),
      cacheMode(mode),
      list(owner) {
    SDK4_LOG(Debug, "ctor " << name);
    list->AddEntry(this);
}

void CRegisterBase::AddInvalidator(std::string invalidator) {
    invalidators.insert(std::move(invalidator));
    list->InvalidatorsChanged();
}

void CRegisterBase::Invalidate() {
    if (!invalid) {
        SDK4_LOG(Info, "Invalidate: " << name);
        MarkInvalid();
    }
    // Even if it was already invalid: its dependants may have been read meanwhile.
    list->DoInvalidate(name);
}

void CRegisterBase::MarkInvalid() {
    invalid = true;
    invalidatedEvent.notify(this, 0);
}

} // namespace SDK4
