#include "BaseControlHelper.h"

#include "Log.h"

#include <cstring>
#include <string_view>

namespace SDK4::Control {

CPropertyParams* CBaseControlHelper::GetPropertyParamsByName(const char* name) {
    SDK4_LOG_CALL();
    const bool logging = logger->isDebugEnabled(); // tested once for a thousand lines
    const std::string_view wanted = name == nullptr ? "" : name;
    for (CPropertyParams* property : properties) {
        if (logging) {
            SDK4_LOG(Debug, property->Name());
        }
        if (name != nullptr && property->Name() == wanted) {
            return property;
        }
    }
    return nullptr;
}

CPropertyParams* CBaseControlHelper::GetPropertyParamsByName(int index, const char* name) {
    SDK4_LOG_CALL();
    for (CPropertyParams* property : properties) {
        if (name != nullptr && property->Name() == name && property->GetIndex() == index) {
            return property;
        }
    }
    return nullptr;
}

const char* CBaseControlHelper::GetPropertyNameByIndex(std::int32_t i) {
    SDK4_LOG_CALL();
    std::int32_t position = 0;
    for (const CPropertyParams* property : properties) {
        if (position++ == i) {
            std::memset(nameBuffer, 0, sizeof nameBuffer); // no trace of a longer name
            property->Name().copy(nameBuffer, sizeof nameBuffer - 1);
            return nameBuffer;
        }
    }
    return nullptr;
}

/// The property that a lookup found. Throws for an unknown name.
CPropertyParams& CBaseControlHelper::Existing(CPropertyParams* property) {
    if (property == nullptr) {
        SDK4_THROW(SDK4_ERR_ERROR);
    }
    return *property;
}

/// A flag of the property of this name, or false for an unknown name.
bool CBaseControlHelper::Query(const char* name, bool (CPropertyParams::*query)() const) {
    const CPropertyParams* property = GetPropertyParamsByName(name);
    return property != nullptr && (property->*query)();
}

// clang-format off
std::uint32_t CBaseControlHelper::GetUIntMin(const char* name)                 { SDK4_LOG_CALL(); return Find(name).GetUIntMin(); }
std::uint32_t CBaseControlHelper::GetUIntMax(const char* name)                 { SDK4_LOG_CALL(); return Find(name).GetUIntMax(); }
std::uint32_t CBaseControlHelper::GetUIntDefault(const char* name)             { SDK4_LOG_CALL(); return Find(name).GetUIntDefault(); }
std::uint32_t CBaseControlHelper::GetUIntValue(const char* name)               { SDK4_LOG_CALL(); return Find(name).GetUIntValue(); }
std::uint32_t CBaseControlHelper::GetUIntValue(int index, const char* name)    { SDK4_LOG_CALL(); return Find(index, name).GetUIntValue(); }
std::int32_t  CBaseControlHelper::GetIntMin(const char* name)                  { SDK4_LOG_CALL(); return Find(name).GetIntMin(); }
std::int32_t  CBaseControlHelper::GetIntMax(const char* name)                  { SDK4_LOG_CALL(); return Find(name).GetIntMax(); }
std::int32_t  CBaseControlHelper::GetIntDefault(const char* name)              { SDK4_LOG_CALL(); return Find(name).GetIntDefault(); }
std::int32_t  CBaseControlHelper::GetIntValue(const char* name)                { SDK4_LOG_CALL(); return Find(name).GetIntValue(); }
std::int32_t  CBaseControlHelper::GetIntValue(int index, const char* name)     { SDK4_LOG_CALL(); return Find(index, name).GetIntValue(); }
bool          CBaseControlHelper::GetEnabled(const char* name)                 { SDK4_LOG_CALL(); return Query(name, &CPropertyParams::GetEnabled); }
void          CBaseControlHelper::SetEnabled(const char* name, bool enabled)   { SDK4_LOG_CALL(); Find(name).SetEnabled(enabled); }
bool          CBaseControlHelper::GetImplemented(const char* name)             { SDK4_LOG_CALL(); return Query(name, &CPropertyParams::GetImplemented); }
bool          CBaseControlHelper::IsUnsigned(const char* name)                 { SDK4_LOG_CALL(); return Query(name, &CPropertyParams::IsUnsigned); }
bool          CBaseControlHelper::IsIndexed(const char* name)                  { SDK4_LOG_CALL(); return Query(name, &CPropertyParams::IsIndexed); }
bool          CBaseControlHelper::IsEnumerated(const char* name)               { SDK4_LOG_CALL(); return Query(name, &CPropertyParams::IsEnumerated); }
// clang-format on

void CBaseControlHelper::AddCallback(SDK4_CALLBACK callback, void* context) {
    SDK4_LOG_CALL();
    observer = {callback, context};
    for (CPropertyParams* property : properties) {
        property->AddCallback(callback, context);
    }
}

void CBaseControlHelper::RemoveCallback(SDK4_CALLBACK callback) {
    SDK4_LOG_CALL();
    observer = {};
    for (CPropertyParams* property : properties) {
        property->RemoveCallback(callback);
    }
}

} // namespace SDK4::Control
