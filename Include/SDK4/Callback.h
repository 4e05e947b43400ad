#pragma once

namespace SDK4::Control {

/// Reports a change of a property. It runs inside the call that changes the property, after the change, and may call
/// the control. An exception that it throws leaves that call: the change stays, but the rest of the call (further
/// fields of a record, enabled flags of dependent properties) is not done.
/// @param name the property's full name
/// @param attribute "minimum", "maximum", "value", "enabled" or "implemented"
/// @param context the context given to AddCallback
using SDK4_CALLBACK = void (*)(const char* name, const char* attribute, void* context);

} // namespace SDK4::Control
