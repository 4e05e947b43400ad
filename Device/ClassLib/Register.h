#pragma once

#include "Event.h"
#include "Log.h"
#include "RegisterList.h"
#include "Transfer.h"

#include <SDK4/IControlPort.h>

#include <cstdint>
#include <set>
#include <string>
#include <type_traits>
#include <utility>

namespace SDK4 {

/// The part of a register that does not depend on its type: name, address, caching, invalidators.
class CRegisterBase : public IRegister {
public:
    void Invalidate() override;
    void SetCacheMode(EnumCacheMode mode) override { cacheMode = mode; }
    EnumCacheMode GetCacheMode() override { return cacheMode; }
    void AddInvalidator(std::string invalidator) final;
    std::set<std::string> GetInvalidatorSet() final { return invalidators; }
    std::string GetName() override { return name; }
    virtual ~CRegisterBase() = default;

    CRegisterBase(const CRegisterBase&) = delete;
    CRegisterBase& operator=(const CRegisterBase&) = delete;

    /// Notifies @p handler when the cached value is invalidated. The sender of the event is this register.
    void Subscribe(Utility::IEventHandler<unsigned int>* handler) { invalidatedEvent.Subscribe(handler); }
    void Unsubscribe(Utility::IEventHandler<unsigned int>* handler) { invalidatedEvent.Unsubscribe(handler); }

protected:
    /// Adds the register to @p owner, which owns it.
    CRegisterBase(std::string registerName, CRegisterList* owner, IControlPort* controlPort,
                  std::uint64_t cameraAddress, EnumCacheMode mode);

    [[nodiscard]] std::uint32_t PortAddress() const { return static_cast<std::uint32_t>(address); }
    void MarkInvalid();

    std::string name;
    bool invalid = true;
    IControlPort* port; ///< not owned
    std::uint64_t address;
    EnumCacheMode cacheMode;
    Utility::CppEvent<unsigned int> invalidatedEvent;
    std::set<std::string> invalidators;
    CRegisterList* list; ///< owns this register
};

/// A register with a value of type T.
template <typename T> class CBaseRegister : public CRegisterBase {
public:
    /// Writes the camera, then the cache, and invalidates every dependant.
    virtual void SetValue(T value) = 0;

    /// The value, from the camera or from the cache, depending on the cache mode.
    virtual T GetValue() = 0;

protected:
    CBaseRegister(std::string registerName, CRegisterList* owner, IControlPort* controlPort,
                  std::uint64_t cameraAddress, EnumCacheMode mode)
        : CRegisterBase(std::move(registerName), owner, controlPort, cameraAddress, mode) {}

    T cache{}; ///< the last value read or written
};

/// A register whose value travels as Transfer<T, I> says: I is void for a plain or text register, int for an indexed
/// one.
template <typename T, typename I> class CRegister final : public CBaseRegister<T> {
public:
    /// A plain register.
    CRegister(std::string registerName, CRegisterList* owner, IControlPort* controlPort, unsigned long cameraAddress,
              EnumCacheMode mode) requires(std::is_void_v<I> && !std::is_same_v<T, std::string>)
        : CBaseRegister<T>(std::move(registerName), owner, controlPort, cameraAddress, mode) {}

    /// An indexed register.
    CRegister(std::string registerName, CRegisterList* owner, int index, IControlPort* controlPort,
              unsigned long cameraAddress, EnumCacheMode mode) requires(std::is_same_v<I, int>)
        : CBaseRegister<T>(std::move(registerName), owner, controlPort, cameraAddress, mode),
          transfer(index) {}

    /// A text register with a block of @p length bytes, the leading word included.
    CRegister(std::string registerName, CRegisterList* owner, IControlPort* controlPort, unsigned long cameraAddress,
              EnumCacheMode mode, unsigned int length) requires(std::is_same_v<T, std::string>)
        : CBaseRegister<T>(std::move(registerName), owner, controlPort, cameraAddress, mode),
          transfer(length) {}

    void SetValue(T value) override;
    T GetValue() override;

private:
    Transfer<T, I> transfer;
};

template <typename T, typename I> void CRegister<T, I>::SetValue(T value) {
    SDK4_LOG_CALL();
    transfer.Write(*this->port, this->PortAddress(), value);
    this->cache = std::move(value);
    switch (this->cacheMode) {
    case CacheNone:
        break;
    case CacheNormal:
        this->invalid = false;
        break;
    case CacheWriteInvalidates:
        this->MarkInvalid();
        break;
    default: // the camera has the value; the dependants are not invalidated
        SDK4_THROW(SDK4_ERR_CANTSETFEATURE);
    }
    this->list->DoInvalidate(this->name);
}

template <typename T, typename I> T CRegister<T, I>::GetValue() {
    SDK4_LOG_CALL();
    switch (this->cacheMode) {
    case CacheNone: // leaves `invalid` unchanged: this value is never returned from the cache
        this->cache = transfer.Read(*this->port, this->PortAddress());
        return this->cache;
    case CacheNormal:
    case CacheWriteInvalidates:
        if (this->invalid) {
            SDK4_LOG(Info, this->name << " invalid @ Address=0x" << std::hex << this->address);
            this->cache = transfer.Read(*this->port, this->PortAddress());
            this->invalid = false;
        }
        return this->cache;
    default:
        SDK4_THROW(SDK4_ERR_CANTGETFEATURE);
    }
}

} // namespace SDK4
