#pragma once

#include "Event.h"
#include "FeatureList.h"
#include "Log.h"
#include "Range.h"
#include "Register.h"

#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace SDK4 {

/// Guards a camera setting: conditions, which are features of the same list, decide whether it can be read or written.
/// The condition lists are filled right after construction; without conditions nothing is refused.
template <typename T> class CBaseFeature : public IFeature, public IGetter<T>, public ISetter<T> {
public:
    CBaseFeature(std::string featureName, CFeatureList* owner) : name(std::move(featureName)), list(owner) {}

    CBaseFeature(const CBaseFeature&) = delete;
    CBaseFeature& operator=(const CBaseFeature&) = delete;

    std::string GetName() override { return name; }
    virtual ~CBaseFeature() = default;

    /// Writes the setting.
    /// @throws X4Error SDK4_ERR_NOT_IMPLEMENTED if the camera lacks it, SDK4_ERR_DISABLED if it is not available now,
    ///         SDK4_ERR_CANTSETFEATURE if it is locked, checked in this order; nothing is written
    void SetValue(T value) override = 0;

    /// Reads the setting. A lock does not prevent reading.
    /// @throws X4Error SDK4_ERR_NOT_IMPLEMENTED or SDK4_ERR_DISABLED
    T GetValue() override = 0;

    [[nodiscard]] bool IsImplemented() const { return list->AllHold(implementedConditions); }
    [[nodiscard]] bool IsAvailable() const { return list->AllHold(availableConditions); }

    std::string name;
    Utility::CppEvent<unsigned int> changedEvent;   ///< fires after every write and when the register is invalidated
    std::vector<std::string> implementedConditions; ///< if one does not hold, the camera lacks the setting
    std::vector<std::string> availableConditions;   ///< if one does not hold, the setting is not available now
    std::vector<std::string> lockConditions;        ///< if one holds, writing is locked

protected:
    void RequireReadable() const;
    void RequireWritable() const;
    void NotifyChanged() { changedEvent.notify(this, 0); }

    CFeatureList* list; ///< owns this feature
};

template <typename T> void CBaseFeature<T>::RequireReadable() const {
    if (!IsImplemented()) {
        SDK4_LOG(Info, name << " is not implemented");
        SDK4_THROW(SDK4_ERR_NOT_IMPLEMENTED);
    }
    if (!IsAvailable()) {
        SDK4_LOG(Info, name << " is not available");
        SDK4_THROW(SDK4_ERR_DISABLED);
    }
}

template <typename T> void CBaseFeature<T>::RequireWritable() const {
    RequireReadable();
    if (list->AnyHolds(lockConditions)) {
        SDK4_LOG(Info, name << " is locked");
        SDK4_THROW(SDK4_ERR_CANTSETFEATURE);
    }
}

/// Base of the features below, which differ in the value check: a feature bound to a register that it does not own.
template <typename T> class CRegisterFeature : public CBaseFeature<T> {
public:
    ~CRegisterFeature() override { reg->Unsubscribe(&subscription); }

    T GetValue() override {
        this->RequireReadable();
        return reg->GetValue();
    }

    /// Notifies the listeners of this feature that the register was invalidated.
    void OnRegisterInvalid(void* /*sender*/, unsigned int /*argument*/) {
        SDK4_LOG(Debug, reg->GetName());
        this->NotifyChanged();
    }

protected:
    CRegisterFeature(std::string featureName, CFeatureList* owner, CBaseRegister<T>* boundRegister)
        : CBaseFeature<T>(std::move(featureName), owner),
          reg(boundRegister),
          subscription(this, &CRegisterFeature::OnRegisterInvalid) {
        reg->Subscribe(&subscription);
    }

    void Write(T value) {
        reg->SetValue(std::move(value));
        this->NotifyChanged();
    }

private:
    CBaseRegister<T>* reg;
    Utility::EventHandler<CRegisterFeature, unsigned int> subscription;
};

/// A feature whose value is not checked.
template <typename T> class CFeature final : public CRegisterFeature<T> {
public:
    CFeature(std::string featureName, CFeatureList* owner, CBaseRegister<T>* boundRegister)
        : CRegisterFeature<T>(std::move(featureName), owner, boundRegister) {
        SDK4_LOG(Debug, "ctor CFeature");
    }

    void SetValue(T value) override {
        this->RequireWritable();
        this->Write(std::move(value));
    }
};

/// A feature with a range, bounds included. A value outside is clamped and written before the error is thrown.
template <typename T> class CIntegerFeature final : public CRegisterFeature<T> {
public:
    CIntegerFeature(std::string featureName, CFeatureList* owner, CBaseRegister<T>* boundRegister, T minimum, T maximum)
        : CRegisterFeature<T>(std::move(featureName), owner, boundRegister),
          min(minimum),
          max(maximum) {
        SDK4_LOG(Debug, "ctor CIntegerFeature");
    }

    /// @throws X4Error SDK4_ERR_OUTOFRANGE when the value was clamped; the camera then holds the nearest admitted value
    void SetValue(T value) override {
        this->RequireWritable();
        RefreshBound(min, minFeature);
        RefreshBound(max, maxFeature);
        const bool outside = Range<T>::Check(value, min, max);
        this->Write(value);
        if (outside) {
            SDK4_THROW(SDK4_ERR_OUTOFRANGE);
        }
    }

    T min;
    T max;
    std::string minFeature; ///< if not empty, the feature that supplies `min` on every write
    std::string maxFeature; ///< the same for `max`

private:
    void RefreshBound(T& bound, std::string_view feature) {
        if (feature.empty()) {
            return;
        }
        if (auto* getter = this->list->template Find<IGetter<T>>(feature)) {
            bound = getter->GetValue();
        }
    }
};

/// A feature with a set of admitted values. Other values are refused and not written.
template <typename T> class CEnumFeature final : public CRegisterFeature<T> {
public:
    CEnumFeature(std::string featureName, CFeatureList* owner, CBaseRegister<T>* boundRegister)
        : CRegisterFeature<T>(std::move(featureName), owner, boundRegister) {
        SDK4_LOG(Debug, "ctor CEnumFeature");
    }

    /// @throws X4Error SDK4_ERR_INVALID_PARAMETER when the value is not admitted
    void SetValue(T value) override {
        this->RequireWritable();
        if (!allowed.contains(value)) {
            SDK4_THROW(SDK4_ERR_INVALID_PARAMETER);
        }
        this->Write(value);
    }

    std::set<T> allowed; ///< an empty set admits nothing
};

} // namespace SDK4
