#pragma once

#include "Feature.h"
#include "FeatureList.h"
#include "OrvikControlImpl/Names.h"
#include "Register.h"

#include <SDK4/IControlPort.h>

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

namespace SDK4::Control {

/// How a register is cached. With caching off, every mode except the fixed ones becomes CacheNone.
enum class Caching {
    Never,         ///< CacheNone, fixed
    Normal,        ///< CacheNormal, unless caching is off
    ReadBack,      ///< CacheWriteInvalidates, unless caching is off
    ReadBackFixed, ///< CacheWriteInvalidates, even with caching off
};

/// Selects one of the instances that share an address.
struct Instance {
    int index;
};

/// Adds conditions to a feature that was just declared.
template <typename T> class DeclaredFeature {
public:
    explicit DeclaredFeature(CBaseFeature<T>& declared) : feature(declared) {}

    DeclaredFeature& ImplementedIf(std::string_view condition) {
        feature.implementedConditions.emplace_back(condition);
        return *this;
    }
    DeclaredFeature& AvailableIf(std::string_view condition) {
        feature.availableConditions.emplace_back(condition);
        return *this;
    }
    DeclaredFeature& LockedBy(std::string_view condition) {
        feature.lockConditions.emplace_back(condition);
        return *this;
    }

private:
    CBaseFeature<T>& feature;
};

/// Base of the capability classes: the lists and the port of the control, one-line declarations of registers and
/// features, and access to features by name. The lists own the registers and features.
class Capability {
public:
    Capability(const Capability&) = delete;
    Capability& operator=(const Capability&) = delete;

protected:
    Capability(CFeatureList* features, CRegisterList* registers, IControlPort* port, bool noCache)
        : featureList(features),
          registerList(registers),
          controlPort(port),
          cachingOff(noCache) {}
    ~Capability() = default;

    using Names = std::initializer_list<std::string_view>;
    using Pair = std::string_view[2]; ///< the features of the two instances of a setting

    // Declarations. A feature is bound to the register of its name and type, which must be declared first.

    template <typename T>
    CBaseRegister<T>* Register(std::string_view name, std::uint32_t address, Caching caching, Names invalidators = {}) {
        return Invalidated(new CRegister<T, void>(std::string(name), registerList, controlPort, address, Mode(caching)),
                           invalidators);
    }
    template <typename T>
    CBaseRegister<T>* Register(std::string_view name, std::uint32_t address, Instance instance, Caching caching,
                               Names invalidators = {}) {
        return Invalidated(
            new CRegister<T, int>(std::string(name), registerList, instance.index, controlPort, address, Mode(caching)),
            invalidators);
    }
    /// @param length bytes of the block, the leading word included
    void Text(std::string_view name, std::uint32_t address, unsigned int length, Caching caching) {
        new CRegister<std::string, void>(std::string(name), registerList, controlPort, address, Mode(caching), length);
    }

    /// A feature whose value is not checked.
    template <typename T> DeclaredFeature<T> Plain(std::string_view name) {
        return Enter<T>(new CFeature<T>(std::string(name), featureList, Bound<T>(name)));
    }
    /// A feature that clamps to [min, max].
    template <typename T> DeclaredFeature<T> Range(std::string_view name, T min, T max) {
        return Enter<T>(new CIntegerFeature<T>(std::string(name), featureList, Bound<T>(name), min, max));
    }
    /// A feature whose bounds are the values of other features at the time of a write. An empty name leaves the bound
    /// at T{}.
    template <typename T>
    DeclaredFeature<T> RangeOf(std::string_view name, std::string_view minFeature, std::string_view maxFeature) {
        auto* feature = new CIntegerFeature<T>(std::string(name), featureList, Bound<T>(name), T{}, T{});
        feature->minFeature = minFeature;
        feature->maxFeature = maxFeature;
        return Enter<T>(feature);
    }
    /// A feature that admits only the listed values.
    DeclaredFeature<int> Enum(std::string_view name, std::initializer_list<int> admitted) {
        auto* feature = new CEnumFeature<int>(std::string(name), featureList, Bound<int>(name));
        feature->allowed = admitted;
        return Enter<int>(feature);
    }

    // Access to features by name, with the checks that each applies.

    template <typename T> [[nodiscard]] T Get(std::string_view feature) const {
        return featureList->GetValue<T>(feature);
    }
    template <typename T> void Set(std::string_view feature, T value) const {
        featureList->SetValue<T>(feature, value);
    }

    /// Reads a setting that is an enumeration in the interface and an int in its register.
    template <typename Enumeration> [[nodiscard]] Enumeration GetEnum(std::string_view feature) const {
        return static_cast<Enumeration>(featureList->GetValue<int>(feature));
    }

    /// While an automatic mode is on, the camera adjusts the value, so it is not cached. Switching the mode off turns
    /// caching on, even on a control opened with caching off.
    static void CacheUnlessAutomatic(IRegister* reg, int automaticMode) {
        reg->SetCacheMode(automaticMode == 0 ? CacheNormal : CacheNone);
    }

    /// Selects one of the two features.
    /// @throws X4Error SDK4_ERR_INVALID_PARAMETER for a select other than 0 and 1
    static std::string_view OneOf(int select, const Pair& features) {
        if (select != 0 && select != 1) {
            SDK4_THROW(SDK4_ERR_INVALID_PARAMETER);
        }
        return features[select];
    }

    /// Colour models carry a "C" in their name.
    static bool IsColorModel(const std::string& model) { return model.find('C') != std::string::npos; }

private:
    [[nodiscard]] EnumCacheMode Mode(Caching caching) const;

    template <typename T> static CBaseRegister<T>* Invalidated(CBaseRegister<T>* reg, Names invalidators) {
        for (const std::string_view invalidator : invalidators) {
            reg->AddInvalidator(std::string(invalidator));
        }
        return reg;
    }

    template <typename T> [[nodiscard]] CBaseRegister<T>* Bound(std::string_view name) const {
        auto* reg = dynamic_cast<CBaseRegister<T>*>(registerList->Find(name));
        if (reg == nullptr) { // a row without a register of its type is a programming error
            SDK4_THROW(SDK4_ERR_INVALID_INTERFACE);
        }
        return reg;
    }

    template <typename T> DeclaredFeature<T> Enter(CBaseFeature<T>* feature) {
        featureList->AddEntry(feature);
        return DeclaredFeature<T>(*feature);
    }

    CFeatureList* featureList;
    CRegisterList* registerList;
    IControlPort* controlPort;
    bool cachingOff;
};

inline EnumCacheMode Capability::Mode(Caching caching) const {
    switch (caching) {
    case Caching::Never:
        return CacheNone;
    case Caching::Normal:
        return cachingOff ? CacheNone : CacheNormal;
    case Caching::ReadBack:
        return cachingOff ? CacheNone : CacheWriteInvalidates;
    case Caching::ReadBackFixed:
        break;
    }
    return CacheWriteInvalidates;
}

} // namespace SDK4::Control
