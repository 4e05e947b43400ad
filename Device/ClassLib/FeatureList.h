#pragma once

#include "Log.h"
#include "RegisterList.h"

#include <map>
#include <string>
#include <string_view>
#include <typeinfo>
#include <utility>
#include <vector>

namespace SDK4 {

/// An entry of a feature list: a camera function, or a condition on one.
class IFeature {
public:
    virtual std::string GetName() = 0;
};

template <typename T> class IGetter {
public:
    virtual T GetValue() = 0;
};

template <typename T> class ISetter {
public:
    virtual void SetValue(T value) = 0;
};

/// The features of one control, by name. Owns its entries, which are made with new; see ReleaseStorage.
class CFeatureList {
public:
    CFeatureList();
    ~CFeatureList();
    CFeatureList(const CFeatureList&) = delete;
    CFeatureList& operator=(const CFeatureList&) = delete;

    /// Adds a feature. If its name is taken, the first feature stays, and the list does not own @p entry.
    void AddEntry(IFeature* entry);

    /// The value of the feature of that name, after the checks of the feature. The type must match exactly: an int
    /// feature is not found as unsigned int.
    /// @throws X4Error SDK4_ERR_INVALID_INTERFACE when no feature of that name has a value of type T
    template <typename T> T GetValue(std::string_view name) const;

    /// Writes the feature of that name, after the checks of the feature; otherwise as GetValue.
    template <typename T> void SetValue(std::string_view name, T value) const;

    /// The feature of that name as an Interface, or null.
    template <typename Interface> [[nodiscard]] Interface* Find(std::string_view name) const;

    /// Whether every condition holds. Conditions are evaluated in order up to the first that does not. Names without an
    /// IGetter<bool> are ignored.
    [[nodiscard]] bool AllHold(const std::vector<std::string>& conditions) const;

    /// Whether any condition holds, evaluated in order up to the first that does.
    [[nodiscard]] bool AnyHolds(const std::vector<std::string>& conditions) const;

private:
    /// A feature, with the result of its last cast: a cross-cast costs more than the rest of a read.
    struct Entry {
        IFeature* feature;
        const std::type_info* asked = nullptr; ///< the target of the last cast
        void* answer = nullptr;                ///< its result, or null
    };
    mutable std::map<std::string, Entry, std::less<>> entries;
};

template <typename Interface> Interface* CFeatureList::Find(std::string_view name) const {
    const auto found = entries.find(name);
    if (found == entries.end()) {
        return nullptr;
    }
    Entry& entry = found->second;
    if (entry.asked != &typeid(Interface)) {
        entry.asked = &typeid(Interface);
        entry.answer = dynamic_cast<Interface*>(entry.feature);
    }
    return static_cast<Interface*>(entry.answer);
}

template <typename T> T CFeatureList::GetValue(std::string_view name) const {
    auto* getter = Find<IGetter<T>>(name);
    if (getter == nullptr) {
        SDK4_LOG(Info, name << " has no IGetter Interface");
        SDK4_THROW(SDK4_ERR_INVALID_INTERFACE);
    }
    return getter->GetValue();
}

template <typename T> void CFeatureList::SetValue(std::string_view name, T value) const {
    auto* setter = Find<ISetter<T>>(name);
    if (setter == nullptr) {
        SDK4_LOG(Info, name << " has no ISetter Interface");
        SDK4_THROW(SDK4_ERR_INVALID_INTERFACE);
    }
    setter->SetValue(std::move(value));
}

} // namespace SDK4
