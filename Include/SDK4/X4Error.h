#pragma once

#include <SDK4/Export.h>

#include <cstdint>

/// Every error code, its value and its meaning. The enumeration and the names are generated from this list.
#define SDK4_ERROR_CODES(CODE)                                                                                         \
    /* general failure: the camera answered with an error state, an operation did not complete */                      \
    CODE(SDK4_ERR_ERROR, -1001)                                                                                        \
    /* the operation or feature does not exist on this camera */                                                       \
    CODE(SDK4_ERR_NOT_IMPLEMENTED, -1003)                                                                              \
    /* an argument is not one of the accepted values: enumeration value, null pointer, bad index */                    \
    CODE(SDK4_ERR_INVALID_PARAMETER, -1009)                                                                            \
    /* a feature could not be written: not writable, locked */                                                         \
    CODE(SDK4_ERR_CANTSETFEATURE, -1012)                                                                               \
    /* a feature could not be read: not readable, the port returned nothing */                                         \
    CODE(SDK4_ERR_CANTGETFEATURE, -1013)                                                                               \
    /* a value outside minimum and maximum; where the camera takes part it now holds the nearest admitted value */     \
    CODE(SDK4_ERR_OUTOFRANGE, -1014)                                                                                   \
    /* the feature exists but is not available in the current camera state */                                          \
    CODE(SDK4_ERR_DISABLED, -1015)                                                                                     \
    /* the operation is refused while image acquisition runs */                                                        \
    CODE(SDK4_ERR_ACQUISITIONRUNNING, -1016)                                                                           \
    /* the requested interface or object is not supported */                                                           \
    CODE(SDK4_ERR_INVALID_INTERFACE, -1203)

/// The error codes. The values are part of the contract with the host.
enum SDK4_ERR : std::int32_t {
#define SDK4_ERROR_ENUMERATOR(name, value) name = (value),
    SDK4_ERROR_CODES(SDK4_ERROR_ENUMERATOR)
#undef SDK4_ERROR_ENUMERATOR
};

namespace SDK4 {

/// The only exception type that the library itself throws, by value. Exceptions of the host's port pass through the
/// library unchanged, whatever their type.
struct SDK4_PUBLIC X4Error {
    /// An error with that code.
    explicit X4Error(std::int32_t errorCode) noexcept : code(errorCode) {}

    std::int32_t code; ///< one of SDK4_ERR
};

static_assert(sizeof(X4Error) == 4, "X4Error is one 32-bit code");

/// The name of an error code, "SDK4_ERR_OUTOFRANGE" for -1014, or "unknown error".
inline const char* ErrorName(std::int32_t code) noexcept {
    switch (code) {
#define SDK4_ERROR_NAME(name, value)                                                                                   \
    case value:                                                                                                        \
        return #name;
        SDK4_ERROR_CODES(SDK4_ERROR_NAME)
#undef SDK4_ERROR_NAME
    default:
        return "unknown error";
    }
}

} // namespace SDK4
