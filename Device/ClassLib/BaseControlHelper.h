#pragma once

#include "PropertyParams.h"

#include <SDK4/IPropertyState.h>

#include <vector>

namespace SDK4::Control {

/// Gives the host access to the properties of a control by name. The derived control creates the properties, appends
/// all of them in its constructor, and deletes them.
class CBaseControlHelper : public IPropertyState {
public:
    CBaseControlHelper() = default;
    CBaseControlHelper(const CBaseControlHelper&) = delete;
    CBaseControlHelper& operator=(const CBaseControlHelper&) = delete;

    std::uint32_t GetUIntMin(const char* name) override;
    std::uint32_t GetUIntMax(const char* name) override;
    std::uint32_t GetUIntDefault(const char* name) override;
    std::uint32_t GetUIntValue(const char* name) override;
    std::uint32_t GetUIntValue(int index, const char* name) override;
    std::int32_t GetIntMin(const char* name) override;
    std::int32_t GetIntMax(const char* name) override;
    std::int32_t GetIntDefault(const char* name) override;
    std::int32_t GetIntValue(const char* name) override;
    std::int32_t GetIntValue(int index, const char* name) override;
    bool GetEnabled(const char* name) override;
    void SetEnabled(const char* name, bool enabled) override;
    bool GetImplemented(const char* name) override;
    bool IsUnsigned(const char* name) override;
    bool IsIndexed(const char* name) override;
    bool IsEnumerated(const char* name) override;
    void AddCallback(SDK4_CALLBACK callback, void* context) override;
    void RemoveCallback(SDK4_CALLBACK callback) override;

    /// The first property of this name, or null.
    CPropertyParams* GetPropertyParamsByName(const char* name);

    /// The first property of this name and index, or null. Index 0 also finds a property that was never indexed.
    CPropertyParams* GetPropertyParamsByName(int index, const char* name);

    /// The name at a position, or null. Valid until the next call.
    const char* GetPropertyNameByIndex(std::int32_t i);

private:
    static CPropertyParams& Existing(CPropertyParams* property);
    CPropertyParams& Find(const char* name) { return Existing(GetPropertyParamsByName(name)); }
    CPropertyParams& Find(int index, const char* name) { return Existing(GetPropertyParamsByName(index, name)); }
    bool Query(const char* name, bool (CPropertyParams::*query)() const);

    char nameBuffer[256] = {};
    Observer observer;

protected:
    std::vector<CPropertyParams*> properties; ///< not owned: the control deletes them
};

} // namespace SDK4::Control
